// Tests that the reasons module and ostrel-check agree on every row.

import assert from 'node:assert/strict';
import test from 'node:test';

import {load} from './files.js';
import {judgedNatively} from './native.js';
import {rows} from './rows.js';

const expected = judgedNatively(rows.map(({check, values}) => ({check, args: values})));
const kMembers = ['id', 'argument', 'part', 'item', 'offset'];

test('reasons, long 64', async (t) => {
  const ostrel = await load({encoding: 'latin1', long: 64});
  const refused = rows.filter((_, i) => expected[i].verdict === 'refused');
  assert.ok(refused.length > 1000);
  for (const [i, row] of rows.entries()) {
    const reason = await ostrel.judge(row.check, ...row.values).reason;
    assert.deepEqual(reason, expected[i].reason ?? null, row.place);
  }
  t.diagnostic(`${refused.length} reasons of ${rows.length} rows`);
});

// ostrel-check reads numbers with this machine's long. Rows whose result depends on the size of a long are marked.
test('reasons, long 32', async (t) => {
  const ostrel = await load({encoding: 'latin1', long: 32});
  let asNative = 0;
  let byHand = 0;
  for (const [i, row] of rows.entries()) {
    const verdict = ostrel.judge(row.check, ...row.values);
    const reason = await verdict.reason;
    assert.equal(reason !== null, verdict.valid === false, row.place);
    if (!row.depends && reason?.read_as === undefined) {
      assert.deepEqual(reason, expected[i].reason ?? null, row.place);
      ++asNative;
      continue;
    }
    const said = row.answers[32]?.reason;
    if (!said) continue;
    assert.deepEqual(kMembers.map((name) => reason[name]), kMembers.map((name) => said[name]), row.place);
    ++byHand;
  }
  t.diagnostic(`${asNative} of ${rows.length} rows as natively, ${byHand} more as written by hand`);
  assert.ok(byHand > 0);
});
