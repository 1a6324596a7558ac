// Judges every row of the vectors with the rules module, placing each value at the end of memory, and with the wrapper,
// both in Node and in a browser.

import assert from 'node:assert/strict';
import {readFileSync} from 'node:fs';
import test from 'node:test';

import {Bare, edges} from './bare.js';
import {checkOf, load, moduleOf} from './files.js';
import {roomOf} from './described.js';
import {checkNetwork, opened, serve, started} from './page.js';
import {files, rows} from './rows.js';
import {expectedOf, judgedRows} from './wrapper.js';

const saidFor = (long) => rows.filter(({answers}) => answers[long] !== null);

for (const long of [32, 64]) {
  test(`each value at the edge of memory, long ${long}`, (t) => {
    const module = moduleOf('package/rules.wasm');
    const bare = new Bare(module, {long, room: roomOf});
    let calls = 0;
    for (const row of saidFor(long)) {
      const check = checkOf(row.check);
      for (const edge of edges(check, row.values)) {
        assert.deepEqual(bare.call(check, row.values, edge), expectedOf(row, check, long), `${row.place}, ${edge}`);
        ++calls;
      }
    }
    t.diagnostic(`${saidFor(long).length} of ${rows.length} rows, ${calls} calls`);
  });
}

test('the wrapper', async (t) => {
  const source = (name) => readFileSync(new URL(name, import.meta.url), 'utf8');
  const pages = {'/blank.html': '<!doctype html><html lang="en"><title>Blank</title></html>'};
  for (const name of ['arguments.js', 'tests/row.js', 'tests/wrapper.js']) pages[`/${name}`] = source(`../${name}`);
  for (const [name, lines] of Object.entries(files)) pages[`/${name}`] = lines;
  const base = await serve(t, {pages});
  const browser = await started(t);
  const page = await opened(t, browser, `${base}/blank.html`);
  for (const long of [32, 64]) {
    const here = await judgedRows(load, rows, long);
    const there = await page.evaluate(async ([names, bits]) => {
      const [{load: loadThere}, {judgedRows: judgedThere}, {rowsOf}] =
        await Promise.all(['/ostrel/index.js', '/tests/wrapper.js', '/tests/row.js'].map((name) => import(name)));
      const all = await Promise.all(names.map(async (name) => rowsOf(name, await (await fetch(`/${name}`)).text())));
      return judgedThere(loadThere, all.flat(), bits);
    }, [Object.keys(files), long]);
    assert.deepEqual(here.faults, []);
    assert.deepEqual(there, here);
    t.diagnostic(`long ${long}: ${rows.length} rows in Node and in Chromium, ${here.reasons} reasons`);
  }
  checkNetwork(page, base);
});
