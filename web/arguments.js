// Completes and validates the arguments that a caller passes.

export const kUnwritten = -0x80000000;  // a number that no check writes

// complete adds the arguments that the caller may omit because they are write-only.
export function complete(check, given) {
  const values = [...given];
  for (const {output, kind} of check.arguments.slice(given.length)) {
    if (output) values.push(kind === 'buffer' ? '' : kUnwritten);
  }
  if (values.length === check.arguments.length) return values;
  throw new TypeError(`${check.name} takes ${check.arguments.map(({name}) => name).join(', ')}`);
}

export const isText = (value) => typeof value === 'string';
const isInteger = (value) => (value | 0) === value;

const isOf = {
  text: isText,
  buffer: isText,
  blocks: (value, {blocks}) => Array.isArray(value) && value.length === blocks && value.every(isText),
  integer: isInteger,
  integer_out: isInteger,
  unsigned: (value) => value >>> 0 === value,
};

export function require(check, argument, value) {
  const isNull = value === null && argument.null;
  if (isNull ? argument.null !== 'read' : isOf[argument.kind](value, argument)) return;
  throw new TypeError(`${check.name}: ${argument.name} must ${isNull ? 'not be null' : `be of kind ${argument.kind}`}`);
}
