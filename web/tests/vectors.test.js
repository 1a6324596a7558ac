// Every row of the vectors: the module with each value at the edge of its memory, and the wrapper.

import assert from 'node:assert/strict';
import test from 'node:test';

import {Bare, completed, edges} from './bare.js';
import {checkOf, load, moduleOf} from './files.js';
import {roomOf} from './described.js';
import {rows} from './rows.js';

const kWritten = ['buffer', 'blocks', 'integer_out'];

// held is what the arguments hold that can be written to, before the call.
const held = (check, values) => completed(check, values).filter((_, i) => kWritten.includes(check.arguments[i].kind))
  .map((value) => (value === -0x80000000 ? null : value));

function expectedOf(row, check, long) {
  const {reason, ...answer} = row.answers[long];
  return {...answer, after: answer.after ?? held(check, row.values)};
}

for (const long of [32, 64]) {
  test(`each value at the edge of memory, long ${long}`, (t) => {
    const module = moduleOf('package/rules.wasm');
    const bare = new Bare(module, {long, room: roomOf});
    let calls = 0;
    const said = rows.filter(({answers}) => answers[long] !== null);
    for (const row of said) {
      const check = checkOf(row.check);
      for (const edge of edges(check, row.values)) {
        assert.deepEqual(bare.call(check, row.values, edge), expectedOf(row, check, long), `${row.place}, ${edge}`);
        ++calls;
      }
    }
    t.diagnostic(`${said.length} of ${rows.length} rows, ${calls} calls`);
  });

  test(`the wrapper, long ${long}`, async (t) => {
    const ostrel = await load({encoding: 'latin1', long});
    const said = rows.filter(({answers}) => answers[long] !== null);
    for (const row of said) {
      const check = checkOf(row.check);
      const expected = expectedOf(row, check, long);
      const verdict = ostrel.judge(row.check, ...row.values);
      assert.deepEqual(
        {code: verdict.code, out: verdict.lines.join(''), err: verdict.stderr.join(''),
          after: Object.values(verdict.after)},
        {code: expected.code, out: expected.out, err: expected.err, after: expected.after}, row.place);
      assert.equal(verdict.valid, check.answers === 'number' ? null : expected.code === 0);
    }
    t.diagnostic(`${said.length} of ${rows.length} rows`);
  });
}
