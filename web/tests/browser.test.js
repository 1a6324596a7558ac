// Tests the forms of the specimen portal in Chromium with the keyboard, the clipboard and an input method.

import assert from 'node:assert/strict';
import test from 'node:test';

import {checkNetwork, isReady, opened, refused, retype, said, serve, started} from './page.js';

const kBlank = '<!doctype html><html lang="en"><meta charset="utf-8"><title>Blank</title><body></body></html>';

test('forms', async (t) => {
  const base = await serve(t, {pages: {'/blank.html': kBlank}});
  const browser = await started(t);
  const portal = async (address = '', options = {}) => {
    const page = await opened(t, browser, `${base}/portal.html${address}`, options);
    await isReady(page);
    return page;
  };
  const state = (page, selector) => page.$eval(selector, (input) => ({
    valid: input.validity.valid, message: input.validationMessage, invalid: input.getAttribute('aria-invalid'),
    maxlength: input.getAttribute('maxlength')}));

  await t.test('typing, a refused and a mended value', async () => {
    const page = await portal();
    await page.focus('#mtu');
    await page.keyboard.press('End');
    await page.keyboard.type('0');
    await refused(page, '#mtu');
    assert.deepEqual(await state(page, '#mtu'), {valid: false, invalid: 'true', maxlength: null,
      message: 'The value is 14920; at most 1540 is allowed.'});
    assert.equal(await said(page, '#mtu'), 'The value is 14920; at most 1540 is allowed.');
    assert.equal(await page.$eval('#mtu ~ .ostrel-reason', (one) => one.getAttribute('aria-live')), 'polite');
    await page.keyboard.press('Backspace');
    assert.deepEqual(await state(page, '#mtu'), {valid: true, invalid: null, maxlength: null, message: ''});
    assert.equal(await said(page, '#mtu'), '');
    assert.deepEqual(page.faults, []);
    checkNetwork(page, base);
  });

  await t.test('the byte that failed is marked', async () => {
    const page = await portal();
    await retype(page, '#address', '192.168.x.1');
    await refused(page, '#address');
    assert.equal(await page.textContent('#address ~ .ostrel-reason mark'), 'x');
    assert.equal(await page.textContent('#address ~ .ostrel-reason .ostrel-excerpt'), '192.168.x.1');
    // A secret is not shown.
    await retype(page, '#password', 'geheim\u20ac!');
    await refused(page, '#password');
    assert.equal(await page.textContent('#password ~ .ostrel-reason .ostrel-excerpt'), '\u2022\u2022\u2022\u2022\u2022\u2022\u20ac\u2022');
  });

  await t.test('pasting a long password leaves it whole', async () => {
    const page = await portal();
    await page.context().grantPermissions(['clipboard-read', 'clipboard-write']);
    const text = 'k'.repeat(300);
    await page.evaluate((copied) => navigator.clipboard.writeText(copied), text);
    await page.focus('#password');
    await page.keyboard.press('Control+V');
    await refused(page, '#password');
    assert.equal(await page.inputValue('#password'), text);
    assert.equal((await state(page, '#password')).valid, false);
    assert.match(await said(page, '#password'), /300 of \d+ bytes/);
  });

  await t.test('submit is held back until each value is right', async () => {
    const page = await portal();
    const saved = () => page.textContent('#lan .saved');
    await retype(page, '#mask', '255.255.0.255');
    await page.keyboard.press('Enter');
    assert.equal(await saved(), '');
    assert.equal(await page.evaluate(() => document.activeElement.id), 'mask');
    await retype(page, '#mask', '255.255.255.0');
    await page.keyboard.press('Enter');
    assert.equal(await saved(), 'Saved.');
    // Values that a script has written are also judged.
    await page.$eval('#mask', (input) => {
      input.value = '255.0.255.0';
      input.form.querySelector('.saved').textContent = '';
    });
    await page.click('#lan button');
    assert.equal((await state(page, '#mask')).valid, false);
    assert.equal(await page.evaluate(() => document.activeElement.id), 'mask');
    assert.equal(await saved(), '');
  });

  await t.test('a reason is told at the field that it speaks of', async () => {
    const page = await portal();
    await retype(page, '#first', '192.168.1.250');
    await refused(page, '#last');
    assert.equal((await state(page, '#first')).valid, true);
    await retype(page, '#first', '192.168.2.20');
    await refused(page, '#first');
    assert.equal((await state(page, '#first')).valid, false);
  });

  await t.test('an empty field that is not required is not judged', async () => {
    const page = await portal();
    for (const [selector, valid] of [['#user', true], ['#domain', true], ['#ssid', false]]) {
      await retype(page, selector, 'x');
      await page.fill(selector, '');
      assert.equal((await state(page, selector)).valid, valid, selector);
    }
  });

  await t.test('used and allowed bytes, and why an umlaut counts twice', async () => {
    const page = await portal();
    await retype(page, '#user', 'Z\u00fcrich');
    await page.waitForSelector('#user ~ .ostrel-bytes:not([hidden])');
    assert.match(await said(page, '#user'), /7 of \d+ bytes · \u00fc takes 2 bytes, so it counts 2 times\./);
    const german = await portal('?lang=de');
    await retype(german, '#user', 'Z\u00fcrich');
    assert.match(await said(german, '#user'), /7 von \d+ Bytes · \u00fc braucht 2 Bytes/);
    const latin1 = await portal('?encoding=latin1');
    await retype(latin1, '#user', 'Z\u00fcrich');
    assert.match(await said(latin1, '#user'), /6 of \d+ bytes$/);
    await retype(latin1, '#user', '\u20ac');
    assert.match(await said(latin1, '#user'), /cannot store/);
  });

  await t.test('keywords are offered', async () => {
    const page = await portal();
    await page.waitForFunction(() => document.querySelector('#security').list !== null);
    const words = await page.$eval('#security', (input) => [...input.list.options].map(({value}) => value));
    assert.deepEqual(words, ['None', 'Basic', 'WPA', '11i', 'WPAand11i']);
  });

  await t.test('nothing is judged while an input method composes', async () => {
    const page = await portal();
    const client = await page.context().newCDPSession(page);
    await page.focus('#user');
    await client.send('Input.imeSetComposition', {text: '\u306b', selectionStart: 1, selectionEnd: 1});
    await client.send('Input.imeSetComposition', {text: '\u65e5\u672c', selectionStart: 2, selectionEnd: 2});
    assert.equal(await page.inputValue('#user'), '\u65e5\u672c');
    assert.equal((await state(page, '#user')).valid, true);
    await client.send('Input.insertText', {text: '\u65e5\u672c'});
    await refused(page, '#user');
    assert.equal((await state(page, '#user')).valid, false);
  });

  await t.test('an answer to an older keystroke is never shown', async () => {
    const page = await opened(t, browser, `${base}/blank.html`);
    const shown = await page.evaluate(async () => {
      const {attach} = await import('/ostrel/form.js');
      document.body.innerHTML = '<form><input name="a" data-check="c"></form>';
      const answers = [];
      const check = {name: 'c', arguments: [{name: 'v', kind: 'text'}], constraints: Promise.resolve([null])};
      const ostrel = {checks: [check], encoding: 'utf-8', judge: (_, value) => ({
        valid: value === 'good', reason: new Promise((resolve) => {
          answers.push(() => resolve({id: 'not_equal', argument: 'v', found: value, allowed: 'good'}));
        })})};
      const form = document.forms[0];
      attach(form, ostrel);
      const type = async (value) => {
        form.elements[0].value = value;
        form.elements[0].dispatchEvent(new InputEvent('input', {bubbles: true}));
        await new Promise((resolve) => setTimeout(resolve));
      };
      const text = async () => {
        await new Promise((resolve) => setTimeout(resolve));
        return form.querySelector('.ostrel-reason').textContent;
      };
      const seen = [];
      await type('first');
      await type('second');
      answers[1]();
      seen.push(await text());
      answers[0]();
      seen.push(await text());
      await type('third');
      await type('good');
      answers[2]();
      seen.push(await text());
      return seen;
    });
    const second = 'The value is "second"; "good" is expected.';
    assert.deepEqual(shown, [second, second, '']);
  });

  await t.test('a value for which the daemon would stop', async () => {
    const page = await opened(t, browser, `${base}/blank.html`);
    await page.evaluate(async () => {
      const [{load}, {attach}] = await Promise.all([import('/ostrel/index.js'), import('/ostrel/form.js')]);
      document.body.innerHTML = '<form><input id="a" name="a" data-check="PARAM_check_ui2_value"></form>';
      attach(document.forms[0], await load());
    });
    await retype(page, '#a', '8080');
    assert.equal(await said(page, '#a'), 'The gateway cannot process this value.');
    await retype(page, '#a', 'x');
    await refused(page, '#a');
    assert.notEqual(await said(page, '#a'), 'The gateway cannot process this value.');
    assert.deepEqual(page.faults, []);
  });

  await t.test('detaching leaves the form as it was', async () => {
    const page = await opened(t, browser, `${base}/blank.html`);
    const [before, after] = await page.evaluate(async () => {
      const [{load}, {attach}] = await Promise.all([import('/ostrel/index.js'), import('/ostrel/form.js')]);
      document.body.innerHTML = '<form><input name="a" value="x" data-check="WLAN_check_beacon_type"></form>';
      const html = document.body.innerHTML;
      const detach = attach(document.forms[0], await load());
      await new Promise((resolve) => setTimeout(resolve, 100));
      detach();
      return [html, document.body.innerHTML];
    });
    assert.equal(after, before);
  });
});
