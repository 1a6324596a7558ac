// Tests the handling of NULL. In WebAssembly, address 0 can be read, so reading NULL does not cause a fault. The
// description of each argument and the behaviour of the wrapper are therefore compared with a build of the same rules
// in which every memory access is observed.

import assert from 'node:assert/strict';
import test from 'node:test';
import {isDeepStrictEqual} from 'node:util';

import {complete} from '../arguments.js';
import {Bare} from './bare.js';
import {FailedAssertion, checkOf, checks, load, moduleOf} from './files.js';
import {describedCode, roomOf} from './described.js';
import {rows} from './rows.js';

const kEndOfMemory = 16;

class Fault extends Error {}
class Assertion extends Error {}

const endOf = (error) => {
  if (error instanceof Fault) return 'read';
  if (error instanceof Assertion) return 'asserted';
  throw error;
};

function watched() {
  return new Bare(moduleOf('watched.wasm'), {
    long: 32,
    room: roomOf,
    imports: (bare) => ({
      ostrel: {
        fail: () => {
          throw new Assertion();
        },
      },
      env: {
        segfault: () => {
          throw new Fault();
        },
        alignfault() {},
        emscripten_get_sbrk_ptr: () => {
          // No other data is stored at an address as low as kEndOfMemory.
          new DataView(bare.exports.memory.buffer).setInt32(kEndOfMemory, 0x7fffffff, true);
          return kEndOfMemory;
        },
      },
    }),
  });
}

// outcomeOf calls a check of the observed rules, and returns its result or how the call ended.
function outcomeOf(bare, check, values) {
  const pointer = bare.exports.__stack_pointer;
  const before = pointer.value;
  try {
    return bare.call(check, values, -1);
  } catch (error) {
    pointer.value = before;
    return endOf(error);
  }
}

test('each NULL answers as described', async (t) => {
  const bare = watched();
  const ostrel = await load({encoding: 'latin1'});
  const seen = new Map();  // for each check and argument, whether the description defines the results
  let calls = 0;
  for (const row of rows) {
    const check = checkOf(row.check);
    const given = complete(check, row.values);
    for (const [i, argument] of check.arguments.entries()) {
      if (argument.null === undefined) continue;
      const values = Object.assign([...given], {[i]: null});
      const place = `${row.place}, ${argument.name}`;
      const outcome = outcomeOf(bare, check, values);
      const code = describedCode(check, values);
      if (code !== null) assert.equal(outcome.code, code, place);
      const name = `${check.name} ${argument.name}`;
      seen.set(name, (seen.get(name) ?? new Set()).add(outcome === 'asserted' ? outcome : code !== null));

      const call = () => ostrel.judge(check.name, ...values);
      if (argument.null === 'read' || outcome === 'read') {
        assert.throws(call, TypeError, place);
      } else if (outcome === 'asserted') {
        assert.throws(call, FailedAssertion, place);
      } else {
        const verdict = call();
        assert.deepEqual([verdict.code, verdict.lines.join(''), verdict.stderr.join('')],
                         [outcome.code, outcome.out, outcome.err], place);
      }
      ++calls;
    }
  }
  t.diagnostic(`${calls} calls`);

  const expected = {read: [false], asserted: ['asserted'], always: [true]};
  const others = [];
  for (const check of checks) {
    for (const argument of check.arguments.filter((one) => one.null !== undefined)) {
      const name = `${check.name} ${argument.name}`;
      const found = [...seen.get(name)];
      const isAsSaid = argument.null === 'sometimes' ? found.length > 1
        : isDeepStrictEqual(found, expected[argument.null]);
      if (!isAsSaid) others.push(`${name}: ${argument.null}, ${found}`);
    }
  }
  assert.deepEqual(others, []);
});
