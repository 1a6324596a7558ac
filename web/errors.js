// Calls after which the gateway's daemon would not go on.

// FailedAssertion: the gateway's daemon would have ended here.
export class FailedAssertion extends Error {
  constructor(condition, check, module, line) {
    super(`${module}:${line}: ${check}: Assertion \`${condition}' failed.`);
    Object.assign(this, {name: 'FailedAssertion', condition, check, module, line});
  }
}

// NeverReturns: the gateway's daemon would have stood still here.
export class NeverReturns extends Error {
  name = 'NeverReturns';
  message = 'the check does not return for this value';
}
