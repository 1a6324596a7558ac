// Compares the time for a verdict with that of the validator package. The time includes everything that a page does, so
// values are passed as JavaScript strings. Rows labelled "with its reason" also include the time to find the reason.
//
//   OSTREL_WEB_BUILD=build/web/web node web/bench.js

import {createRequire} from 'node:module';
import {join, resolve} from 'node:path';
import {pathToFileURL} from 'node:url';

const build = resolve(process.env.OSTREL_WEB_BUILD);
const {load} = await import(pathToFileURL(join(build, 'package/index.js')).href);
const validator = createRequire(join(build, 'node_modules/'))('validator');
const ostrel = await load();

// Each case contains invalid values, as a user might type them, and valid values.
const cases = [
  {
    name: 'e-mail',
    check: 'TcmValidateEmailAddress',
    peer: (text) => validator.isEmail(text),
    refused: ['user@', 'user.example.net', 'user@example', '@example.net', 'us er@example.net'],
    accepted: ['user@example.net', 'first.last@mail.example.net'],
    atMost: 1 / 8,
  },
  {
    name: 'URL',
    check: 'ValidateURL',
    peer: (text) => validator.isURL(text),
    refused: ['http://', 'http:///path', 'http://exa mple.net/', 'http://example.net:99999/'],
    accepted: ['http://example.net/path', 'http://www.example.net:8080/a/b'],
    atMost: 1 / 8,
  },
  {
    name: 'MAC',
    check: 'TcmValidateMACaddress',
    peer: (text) => validator.isMACAddress(text),
    refused: ['00:11:22:33:44', '00:11:22:33:44:5', '00:11:22:33:44:5g', '00:11:22:33:44:55:66'],
    accepted: ['00:11:22:33:44:55', 'a0:b1:c2:d3:e4:f5'],
    atMost: 1,
  },
  {
    name: 'IPv4',
    check: 'PARAM_check_ip_addr',
    peer: (text) => validator.isIP(text, 4),
    refused: ['192.168.1', '192.168.1.', '192.168.1.256', '192.168.1.1.', '192.168.a.1'],
    accepted: ['192.168.1.1', '255.255.255.0'],
    atMost: 1 / 0.7,
  },
];

const kRuns = 400;
const kRounds = 120;

// best returns the number of nanoseconds per value in the fastest round.
async function best(values, judge) {
  let least = Infinity;
  for (let round = 0; round < kRounds; ++round) {
    const begin = process.hrtime.bigint();
    for (let i = 0; i < kRuns; ++i) {
      for (const value of values) {
        const awaited = judge(value);
        if (awaited) await awaited;
      }
    }
    least = Math.min(least, Number(process.hrtime.bigint() - begin) / (kRuns * values.length));
  }
  return least;
}

const faults = [];
const row = (...cells) => console.log(cells.map((cell, i) => String(cell).padEnd(i === 0 ? 26 : 12)).join(''));
row('', 'ostrel, ns', 'validator', 'ratio', 'at most');

async function compare(name, values, judge, peer, atMost) {
  const ours = await best(values, judge);
  const theirs = await best(values, peer);
  const ratio = ours / theirs;
  row(name, ours.toFixed(0), theirs.toFixed(0), ratio.toFixed(2), atMost.toFixed(2));
  if (ratio > atMost) faults.push(name);
}

for (const {name, check, peer, refused, accepted, atMost} of cases) {
  const judge = (text) => {
    ostrel.judge(check, text);
  };
  const judgePeer = (text) => {
    peer(text);
  };
  await ostrel.judge(check, refused[0]).reason;
  await compare(`${name}, refused`, refused, judge, judgePeer, atMost);
  await compare(`${name}, with its reason`, refused, (text) => ostrel.judge(check, text).reason, judgePeer, 5);
  await compare(`${name}, accepted`, accepted, judge, judgePeer, atMost);
}

if (faults.length > 0) {
  console.log(`Too slow: ${faults.join('; ')}`);
  process.exitCode = 1;
}
