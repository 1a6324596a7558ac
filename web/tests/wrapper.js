// Judges every row through the wrapper, in Node and in a browser.

import {complete, kUnwritten} from '../arguments.js';

const kWritten = ['buffer', 'blocks', 'integer_out'];

// held returns the contents of the writable arguments before the call.
const held = (check, values) => complete(check, values).filter((_, i) => kWritten.includes(check.arguments[i].kind))
  .map((value) => (value === kUnwritten ? null : value));

export function expectedOf(row, check, long) {
  const {reason, ...answer} = row.answers[long];
  return {...answer, after: answer.after ?? held(check, row.values)};
}

// mixed returns a checksum that has been updated with a string.
function mixed(number, text) {
  for (let i = 0; i < text.length; ++i) number = Math.imul(number ^ text.charCodeAt(i), 0x01000193);
  return number;
}

// judgedRows returns the rows that differ from their expected result, and a checksum of the reasons.
export async function judgedRows(load, rows, long) {
  const ostrel = await load({encoding: 'latin1', long});
  const faults = [];
  let reasons = 0;
  let sum = 0;
  for (const row of rows.filter(({answers}) => answers[long] !== null)) {
    const check = ostrel.checks.find(({name}) => name === row.check);
    const {code, out, err, after} = expectedOf(row, check, long);
    const verdict = ostrel.judge(row.check, ...row.values);
    const found = [verdict.valid, verdict.code, verdict.lines.join(''), verdict.stderr.join(''),
      Object.values(verdict.after)];
    const expected = [check.answers === 'number' ? null : code === 0, code, out, err, after];
    if (JSON.stringify(found) !== JSON.stringify(expected)) faults.push([row.place, found, expected]);
    const reason = await verdict.reason;
    if (reason) ++reasons;
    sum = mixed(sum, JSON.stringify(reason));
  }
  return {faults, reasons, sum};
}
