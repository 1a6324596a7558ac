// Tests that each call judges its own value, that no value is truncated, and that an error does not affect later calls.

import assert from 'node:assert/strict';
import test from 'node:test';

import {FailedAssertion, NeverReturns, checkOf, load, moduleOf} from './files.js';

const kMebibyte = 0x100000;

test('a value that makes the memory grow is the one that is judged', async () => {
  const ostrel = await load();
  const address = (text) => ostrel.judge('PARAM_check_ip_addr', text).valid;
  for (const before of ['192.168.1.1', 'no address']) {
    for (const size of [kMebibyte, 4 * kMebibyte, 16 * kMebibyte]) {
      assert.equal(address(before), before === '192.168.1.1');
      const long = ostrel.judge('Param_check_string_len', 'x'.repeat(size), 0, size - 1);
      assert.equal(long.code, 802);
      assert.equal(long.lines[0].length > size, true);
      assert.equal(ostrel.judge('Param_check_string_len', 'x'.repeat(size), 0, size).code, 0);
      assert.equal(address('192.168.1.1'), true);
      assert.equal(address('192.168.1.256'), false);
    }
  }
});

// loaded loads the package, and also returns the exports of the rules module.
async function loaded(options) {
  let exports;
  const {Instance} = WebAssembly;
  WebAssembly.Instance = class extends Instance {
    constructor(module, imports) {
      super(module, imports);
      exports = this.exports;
    }
  };
  const ostrel = await load(options).finally(() => {
    WebAssembly.Instance = Instance;
  });
  return {ostrel, exports};
}

test('memory that grows between two calls', async () => {
  const {ostrel, exports: {memory}} = await loaded();
  assert.equal(ostrel.judge('PARAM_check_ip_addr', '192.168.1.1').valid, true);
  memory.grow(1);
  assert.equal(ostrel.judge('PARAM_check_ip_addr', '192.168.1.256').valid, false);
  memory.grow(1);
  assert.equal(ostrel.judge('PARAM_check_ip_addr', '10.0.0.1').valid, true);
});

test('memory that grows in a utility of the page', async () => {
  const {ostrel, exports} = await loaded({
    htmlToText: (text) => {
      exports.memory.grow(1);
      return text.replaceAll('&amp;', '&');
    },
  });
  const verdict = ostrel.judge('WLAN_check_ssid', `${'a'.repeat(31)}&amp;`);
  assert.equal(verdict.valid, true);
  const refused = ostrel.judge('WLAN_check_ssid', `${'a'.repeat(32)}&amp;`);
  assert.equal(refused.code, 802);
  assert.match(refused.lines.join(''), /a{32}&/);
});

test('100,000 errors in a row leave the stack where it was', async () => {
  const {ostrel, exports} = await loaded();
  const stack = exports.__stack_pointer;
  const before = stack.value;
  for (let i = 0; i < 50000; ++i) {
    assert.throws(() => ostrel.judge('PARAM_check_ui2_value', '8080'), NeverReturns);
    assert.equal(stack.value, before);
    assert.throws(() => ostrel.judge('PARAM_check_port', null), FailedAssertion);
    assert.equal(stack.value, before);
  }
  assert.equal(ostrel.judge('PARAM_check_ip_addr', '192.168.1.1').valid, true);
  assert.equal(stack.value, before);
});

test('what cannot be passed whole is an error of the caller', async () => {
  const utf8 = await load();
  const latin1 = await load({encoding: 'latin1'});
  for (const ostrel of [utf8, latin1]) {
    assert.throws(() => ostrel.judge('PARAM_check_ip_addr', '192.168.1.1\0x'), RangeError);
    for (const text of ['\ud800', 'a\udc00', '\ud800\ud800', 'x\udbffy', '\udfff\ud800']) {
      assert.throws(() => ostrel.judge('PARAM_check_ip_addr', text), RangeError, JSON.stringify(text));
    }
  }
  assert.throws(() => latin1.judge('PARAM_check_ip_addr', '\u0100'), RangeError);
  assert.throws(() => utf8.judge('PARAM_check_ip_addr', 7), TypeError);
  assert.throws(() => utf8.judge('PARAM_check_ip_addr'), TypeError);
  assert.throws(() => utf8.judge('PARAM_check_ip_addr', '1', '2'), TypeError);
  assert.throws(() => utf8.judge('PARAM_check_ip_address', '1'), RangeError);
  for (const number of [1.5, NaN, Infinity, 2 ** 31, -(2 ** 31) - 1, '1', null]) {
    assert.throws(() => utf8.judge('Param_check_string_len', 'x', number, 5), TypeError, String(number));
  }
});

test('lengths are bytes of the encoding', async () => {
  const utf8 = await load();
  const latin1 = await load({encoding: 'latin1'});
  const length = (ostrel, text) => {
    let bytes = 0;
    while (ostrel.judge('Param_check_string_len', text, 0, bytes).code === 802) ++bytes;
    return bytes;
  };
  const texts = ['a', '\u007f', '\u0080', '\u00fc', '\u07ff', '\u0800', '\u20ac', '\ud7ff', '\ue000', '\uffff',
    '\u{10000}', '\u{1f600}', '\u{10ffff}'];
  for (const text of texts) {
    assert.equal(length(utf8, text), Buffer.from(text).length, text);
    const printed = utf8.judge('Param_check_string_len', text, 9, 9).lines[0];
    assert.ok(printed.includes(`string:${text} `), printed);
  }
  assert.equal(length(latin1, '\u00fc\u00ff'), 2);
});

test('errors tell what they are', async () => {
  const ostrel = await load({rules: moduleOf('package/rules.wasm')});
  assert.equal(new FailedAssertion('c', 'f', 'm', 3) instanceof Error, true);
  assert.throws(() => ostrel.judge('PARAM_check_ui2_value', '8080'), {name: 'NeverReturns'});
  assert.equal(checkOf('PARAM_check_port').module, 'parameter_check');
});
