// Tests that each language is complete, and that English has exactly the sentences of the descriptions.

import assert from 'node:assert/strict';
import {join} from 'node:path';
import test from 'node:test';
import {pathToFileURL} from 'node:url';

import {checkOf, load, packageFolder, read} from './files.js';
import {rows} from './rows.js';

const of = async (name) => import(pathToFileURL(join(packageFolder, name)).href);
const {clause, sentence, bytesOf, placeOf} = await of('sentences.js');
const english = (await of('sentences/en.js')).default;
const german = (await of('sentences/de.js')).default;
const phrases = JSON.parse(read('phrases.json'));
const ostrel = await load({encoding: 'latin1', long: 64});

const refused = [];
for (const row of rows) {
  const reason = await ostrel.judge(row.check, ...row.values).reason;
  if (reason) refused.push({row, reason});
}

// A sentence may contain {character} instead of {position}. The subject is not compared, because only some languages
// name it.
const kSame = {character: 'position'};
const parametersOf = (text) => [...new Set([...text.matchAll(/\{(\w+)/g)].map(([, name]) => kSame[name] ?? name))]
  .filter((name) => name !== 'subject').sort();

test('no id lacks a sentence or a parameter', () => {
  assert.ok(Object.keys(english.sentences).length > 60);
  for (const language of [german]) {
    assert.deepEqual(Object.keys(language).sort(), Object.keys(english).sort());
    assert.deepEqual(Object.keys(language.sentences).sort(), Object.keys(english.sentences).sort());
    for (const [id, text] of Object.entries(english.sentences)) {
      assert.deepEqual(parametersOf(language.sentences[id]), parametersOf(text), id);
    }
    for (const name of Object.keys(english).filter((one) => typeof english[one] === 'string')) {
      assert.deepEqual(parametersOf(language[name]), parametersOf(english[name]), name);
    }
  }
});

// A sentence can end with the limit from another sentence, namely the part of that sentence from the ";" onwards.
test('a limit can be told of a number that is too large', () => {
  for (const {reason} of refused.filter(({reason: {limit}}) => limit)) {
    assert.match(german.sentences[reason.limit], /;/, reason.limit);
  }
});

test('no fixed phrase lacks a translation, and none is translated in vain', () => {
  assert.ok(phrases.length > 20);
  assert.deepEqual(Object.keys(german.phrases).sort(), [...phrases].sort());
});

test('English is what the reasons say', (t) => {
  for (const {row, reason} of refused) {
    // If a call has several arguments, the reason names the offending one.
    const {argument, text} = reason;
    const severalGiven = checkOf(row.check).arguments.filter(({output}) => !output).length > 1;
    let expected = text;
    if (severalGiven && argument && reason.item !== undefined) expected = text.replace(` of ${argument}`, '');
    else if (severalGiven && argument) expected = text.replace(new RegExp(`^${argument}:? `), '');
    assert.equal(clause(reason, english), expected, row.place);
  }
  t.diagnostic(`${refused.length} reasons`);
});

test('German says each reason in German', () => {
  const foreign = new RegExp(`\\b(${phrases.filter((phrase) => /^\w/.test(phrase)).join('|')}|is|are|has|and|to)\\b`);
  for (const {row, reason} of refused) {
    const said = sentence(reason, german);
    assert.match(said, /^[\p{Lu}\u201e\\"].*\.$/su, row.place);
    assert.doesNotMatch(said, /\{\w+\}|undefined|NaN/, `${row.place}: ${said}`);
    const own = said.replace(/\u201e[^\u201c]*\u201c/g, '').replace(/: .*/s, '');
    assert.doesNotMatch(own, foreign, `${row.place}: ${said}`);
  }
});

test('sentences as they are read', async () => {
  const told = async (language, options, name, ...values) => {
    const reason = await ostrel.judge(name, ...values).reason;
    return sentence(reason, language, options);
  };
  const cases = [
    ['L3FORWARDING_check_MTU', ['1541'], 'The value is 1541; at most 1540 is allowed.',
      'Der Wert ist 1541; erlaubt ist höchstens 1540.'],
    ['PARAM_check_ip_addr', ['192.168.1.256'], 'Octet 4 is 256; at most 255 is allowed.',
      'Zahl 4 ist 256; erlaubt ist höchstens 255.'],
    ['WLAN_check_beacon_type', ['wpa'], 'The value is not one of None, Basic, WPA, 11i, WPAand11i.',
      'Der Wert muss einer von diesen sein: None, Basic, WPA, 11i, WPAand11i.'],
    ['LAN_check_interface_addr_type', ['DHCP'], 'The value is not Static.', 'Der Wert muss Static sein.'],
    ['TcmValidateTime', ['2026-11'], 'The value ends before byte 8, where "-" is expected.',
      'Der Wert ist unvollständig; „-“ fehlt als Zeichen 8.'],
    ['TcmValidateDomainName', ['my_host'], 'Byte 3 is "_"; letters, digits and - . are allowed.',
      'Zeichen 3 ist „_“; Buchstaben, Ziffern und - . sind erlaubt.'],
  ];
  for (const [name, values, inEnglish, inGerman] of cases) {
    assert.equal(await told(english, {}, name, ...values), inEnglish);
    assert.equal(await told(german, {}, name, ...values), inGerman);
  }
});

test('characters are shown and counted where the value is known', async () => {
  const utf8 = await load({encoding: 'utf-8'});
  const text = 'Grüße_';
  const reason = await utf8.judge('TcmValidateDomainName', text).reason;
  assert.equal(reason.offset, 2);
  assert.equal(sentence(reason, english), `Byte 3 is \\xC3; ${reason.allowed.text} are allowed.`);
  assert.match(sentence(reason, german, {text, encoding: 'utf-8'}), /^Zeichen 3 ist „ü“; /);
  assert.deepEqual(placeOf(text, 5, 'utf-8'), {character: 'ß', index: 3, number: 3});
  assert.deepEqual(placeOf(text, 99, 'utf-8'), {character: '', index: 6, number: 6});
  assert.deepEqual(placeOf('a\u{1F600}b', 5, 'utf-8'), {character: 'b', index: 3, number: 2});
  assert.equal(bytesOf(text, 'utf-8'), 8);
  assert.equal(bytesOf(text, 'latin1'), 6);
  for (const one of ['', 'a', 'ü', '\u20ac', '\u{1F600}']) assert.equal(bytesOf(one), Buffer.byteLength(one));
});
