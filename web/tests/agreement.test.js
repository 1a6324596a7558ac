// Tests that the fields of the specimen portal and ostrel-check reach the same verdicts on random values.

import assert from 'node:assert/strict';
import test from 'node:test';

import {judgedNatively} from './native.js';
import {isReady, opened, serve, started} from './page.js';

const kValues = 10000;
const kChannels = [1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 36, 40, 44, 48];
const kCharacters = [...'0123456789abcdefABCDEFghxyzXYZ.:-_@/ ,;%&"\'!#\u00e4\u00fc\u20ac'];
const kSamples = ['Home', '6', '11i', 'WPAand11i', '0123456789abcdef'.repeat(4), 'pass phrase', '192.168.1.1',
  '255.255.255.0', '192.168.1.20', '192.168.1.199', '86400', '-1', '192.168.1.1,192.168.1.2', 'home.example', 'a.b-c.d',
  'user@example.net', 'user#0001@example.net', 'AlwaysOn', 'OnDemand', 'Manual', '300', 'service', '1492', '65536',
  '4294967377', '99999999999999999999', '255.255.0.0', '10.0.0.1', 'x'.repeat(32), 'x'.repeat(33), '\u00fc'.repeat(16)];

// Random numbers with a fixed seed, so that a failure can be reproduced.
let seed = 20;
function random(below) {
  seed = (Math.imul(seed, 1664525) + 1013904223) >>> 0;
  return Math.floor((seed / 2 ** 32) * below);
}
const pick = (list) => list[random(list.length)];

// value returns a sample in which some characters are changed, or a string of random characters.
function value() {
  const characters = random(4) === 0 ? Array.from({length: random(12)}, () => pick(kCharacters)) : [...pick(kSamples)];
  for (let changes = random(3); changes > 0; --changes) {
    const at = random(characters.length + 1);
    const kind = random(3);
    if (kind === 0) characters.splice(at, 1);
    else characters.splice(at, kind === 1 ? 0 : 1, pick(kCharacters));
  }
  return characters.join('');
}

const inBytes = (text) => Buffer.from(text, 'utf8').toString('latin1');

test('the fields of the portal judge as ostrel-check does', async (t) => {
  const base = await serve(t);
  const browser = await started(t);
  const page = await opened(t, browser, `${base}/portal.html?long=64`);
  await isReady(page);
  const names = await page.$$eval('[data-check]', (inputs) => inputs.map(({name}) => name));
  assert.ok(names.length >= 15);
  const told = {accepted: 0, refused: 0};
  for (const name of names) {
    const values = Array.from({length: kValues}, value);
    // Each value is judged as if it had just been typed. The recorded call includes the arguments from other fields.
    const judged = await page.evaluate(async ([field, all]) => {
      const input = document.querySelector(`[name=${field}]`);
      const {checks} = await import('/ostrel/checks.js');
      const {name: check, arguments: taken} = checks.find((one) => one.name === input.dataset.check);
      const others = new Map((input.dataset.with ?? '').split(' ').filter(Boolean).map((one) => one.split('=')));
      const isRequired = input.required;
      const initial = input.value;
      input.required = true;
      const results = all.map((one) => {
        input.value = one;
        input.dispatchEvent(new InputEvent('input', {bubbles: true}));
        const args = taken.filter(({output}) => !output)
          .map((argument) => (others.has(argument.name) ? input.form.elements[others.get(argument.name)].value : input.value));
        return {check, args, refused: input.validity.customError};
      });
      input.required = isRequired;
      input.value = initial;
      input.dispatchEvent(new InputEvent('input', {bubbles: true}));
      return results;
    }, [name, values]);
    const natively = judgedNatively(judged.map(({check, args}) => ({check, args: args.map(inBytes)})), kChannels);
    judged.forEach(({check, args, refused}, i) => {
      assert.equal(refused, natively[i].verdict !== 'accepted', `${check} ${JSON.stringify(args)}`);
      ++told[refused ? 'refused' : 'accepted'];
    });
  }
  t.diagnostic(`${names.length} fields, ${kValues} values each: ${told.accepted} accepted, ${told.refused} refused`);
  assert.ok(told.accepted > names.length * 100);
  assert.deepEqual(page.faults, []);
});
