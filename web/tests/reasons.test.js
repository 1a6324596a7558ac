// Reasons: on every row those of the module are those of the descriptions, as this machine's compiler understands them.

import assert from 'node:assert/strict';
import {execFileSync} from 'node:child_process';
import test from 'node:test';

import {completed} from './bare.js';
import {writtenCall} from './described.js';
import {checkOf, checks, load} from './files.js';
import {rows} from './rows.js';

const kHead = 12;

// native asks the program that OSTREL_NATIVE_REASONS names.
function native(long) {
  const calls = rows.flatMap((row) => {
    const check = checkOf(row.check);
    const call = writtenCall(check, completed(check, row.values));
    const head = Buffer.alloc(kHead);
    [checks.indexOf(check), long, call.length].forEach((number, i) => head.writeUInt32LE(number, 4 * i));
    return [head, call];
  });
  const printed = execFileSync(process.env.OSTREL_NATIVE_REASONS, {input: Buffer.concat(calls), maxBuffer: 2 ** 30});
  return printed.toString('latin1').trim().split('\n').map((line) => JSON.parse(line));
}

for (const long of [32, 64]) {
  test(`reasons, long ${long}`, async (t) => {
    const ostrel = await load({encoding: 'latin1', long});
    const expected = native(long);
    assert.equal(expected.length, rows.length);
    let reasons = 0;
    let written = 0;
    let left = 0;
    for (const [i, row] of rows.entries()) {
      const verdict = ostrel.judge(row.check, ...row.values);
      const reason = await verdict.reason;
      // Work is counted otherwise where sizes have 32 bits.
      if (expected[i] === 'too much work') {
        ++left;
        continue;
      }
      assert.deepEqual(reason, expected[i], row.place);
      assert.equal(reason !== null, verdict.valid === false, row.place);
      if (reason === null) continue;
      ++reasons;
      const byHand = row.answers[long]?.reason;
      if (byHand) {
        ++written;
        const members = ['id', 'argument', 'part', 'item', 'offset'];
        assert.deepEqual(members.map((name) => reason[name]), members.map((name) => byHand[name]), row.place);
      }
      assert.ok(reason.id && reason.text, `${row.place}: ${JSON.stringify(reason)}`);
    }
    t.diagnostic(`${reasons} reasons of ${rows.length} rows, ${written} of them written by hand; ${left} not worth the work`);
    assert.ok(written > 0);
  });
}
