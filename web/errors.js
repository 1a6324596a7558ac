// Errors for calls that would stop the gateway's daemon.

export class FailedAssertion extends Error {
  constructor(condition, check, module, line) {
    super(`${module}:${line}: ${check}: Assertion \`${condition}' failed.`);
    Object.assign(this, {name: 'FailedAssertion', condition, check, module, line});
  }
}

export class NeverReturns extends Error {
  name = 'NeverReturns';
  message = 'the check does not return for this value';
}
