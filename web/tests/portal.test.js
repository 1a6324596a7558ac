// Tests the specimen portal's content security policy, its processing time per keystroke, and its accessibility.

import assert from 'node:assert/strict';
import {readFileSync} from 'node:fs';
import {join} from 'node:path';
import test from 'node:test';

import {axe, isReady, opened, refused, retype, serve, site, started} from './page.js';

const kPlain = "default-src 'none'; script-src 'self'; connect-src 'self'; style-src 'self'";

test('portal', async (t) => {
  const unattached = readFileSync(join(site, 'portal.html'), 'utf8').replace(/<script.*<\/script>/, '');
  const base = await serve(t, {pages: {'/unattached.html': unattached}});
  const browser = await started(t);

  await t.test('a policy without wasm-unsafe-eval is named', async () => {
    const strict = await serve(t, {policy: kPlain});
    const page = await opened(t, browser, `${strict}/portal.html`);
    await page.waitForSelector('.failed:not([hidden])');
    assert.match(await page.textContent('.failed'), /content security policy.*'wasm-unsafe-eval'/);
  });

  await t.test('typing makes no long task', async (one) => {
    const costs = [];
    for (const isAttached of [false, true]) {
      const page = await opened(t, browser, `${base}/${isAttached ? 'portal' : 'unattached'}.html`);
      await (isAttached ? isReady(page) : page.waitForSelector('#mtu'));
      await page.evaluate(() => {
        window.long = [];
        new PerformanceObserver((list) => window.long.push(...list.getEntries().map(({duration}) => duration)))
          .observe({type: 'longtask'});
      });
      const client = await page.context().newCDPSession(page);
      await client.send('Performance.enable');
      const cpu = async () => (await client.send('Performance.getMetrics')).metrics
        .find(({name}) => name === 'TaskDuration').value * 1000;
      const before = await cpu();
      let keys = 0;
      for (const [selector, text] of [['#ssid', 'M\u00fcnchen_Wohnzimmer_24GHz_und_mehr'], ['#address', '192.168.1.256'],
        ['#dns', '192.168.1.1,192.168.1.300'], ['#user', 'user@example.net'], ['#mtu', '99999']]) {
        await retype(page, selector, text);
        keys += text.length;
      }
      costs.push(((await cpu()) - before) / keys);
      assert.deepEqual(await page.evaluate(() => window.long), []);
    }
    one.diagnostic(`CPU of a keystroke: ${costs[0].toFixed(2)} ms without attach, ${costs[1].toFixed(2)} ms with it`);
  });

  await t.test('axe finds nothing', async () => {
    const source = readFileSync(axe, 'utf8');
    for (const colorScheme of ['light', 'dark']) {
      for (const width of [360, 1280]) {
        const page = await opened(t, browser, `${base}/portal.html`, {colorScheme, viewport: {width, height: 900}});
        await isReady(page);
        await retype(page, '#address', '192.168.x.1');
        await retype(page, '#user', 'Z\u00fcrich');
        await refused(page, '#address');
        await page.evaluate(source);
        const {violations} = await page.evaluate(() => window.axe.run());
        assert.deepEqual(violations.map(({id, nodes}) => `${id}: ${nodes[0].html}`), [], `${colorScheme} ${width}`);
        const overflow = await page.evaluate(() => document.documentElement.scrollWidth - window.innerWidth);
        assert.ok(overflow <= 0, `${overflow} pixels too wide`);
      }
    }
  });
});
