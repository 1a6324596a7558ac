// Tests that the site contains every check, and that checks can be found and tried, both on a served page and on one
// opened from disk. It also takes screenshots.

import assert from 'node:assert/strict';
import {mkdirSync, readFileSync} from 'node:fs';
import {join} from 'node:path';
import test from 'node:test';
import {pathToFileURL} from 'node:url';
import {gzipSync} from 'node:zlib';

import {build, checks} from './files.js';
import {axe, checkNetwork, isReady, opened, serve, site, started} from './page.js';

const pictures = join(build, 'pictures');
mkdirSync(pictures, {recursive: true});
const source = readFileSync(axe, 'utf8');
const {checks: catalogue} = JSON.parse(readFileSync(join(build, 'catalogue.json'), 'utf8'));

async function use(page) {
  await page.fill('#search', 'ssid 802');
  const hits = await page.$$eval('.index li:not([hidden]) a', (links) => links.map(({hash}) => hash.slice(1)));
  assert.ok(hits.includes('WLAN_check_ssid') && hits.length < 10, hits.join(' '));
  await page.fill('#search', 'l3forwarding mtu');
  await page.press('#search', 'Enter');
  await page.waitForSelector('#L3FORWARDING_check_MTU:not([hidden])');
  const field = '#L3FORWARDING_check_MTU .try input';
  await page.locator(field).pressSequentially('1541');
  await page.waitForSelector('#L3FORWARDING_check_MTU .reason');
  assert.match(await page.innerText('#L3FORWARDING_check_MTU output'), new RegExp([
    'Refused: 402 OSTREL_INVALID_VALUE', 'The value is 1541; at most 1540 is allowed\\.',
    'Error in L3FORWARDING_check_MTU: Invalid MTU:1541, RANGE\\[1, 1540\\]'].join('\\s+')));
  await page.press(field, 'Backspace');
  assert.match(await page.innerText('#L3FORWARDING_check_MTU output'), /^Accepted/);
  assert.deepEqual(page.faults, []);
}

test('site', async (t) => {
  const base = await serve(t);
  const browser = await started(t);
  const disk = pathToFileURL(join(site, 'ostrel.html')).href;

  await t.test('says all of each check', async () => {
    const page = await opened(t, browser, `${base}/index.html`);
    await isReady(page);
    assert.equal(catalogue.length, checks.length);
    const texts = await page.$$eval('main > article', (all) => Object.fromEntries(all.map((one) => [one.id, one.textContent])));
    const walk = (steps, see) => steps?.forEach((step) => {
      see(step.text);
      step.prints?.forEach(({line}) => see(line));
      [step.uses, step.steps, step.otherwise].forEach((inner) => walk(inner, see));
    });
    for (const check of catalogue) {
      const see = (text) => assert.ok(texts[check.name].includes(text), `${check.name}: ${text}`);
      [check.rule, check.declaration].forEach(see);
      check.arguments.forEach(({name, what}) => [name, what].forEach(see));
      check.codes.forEach(({code, name, meaning}) => [String(code), name, meaning].forEach(see));
      walk(check.steps, see);
    }
  });

  await t.test('from a server', async () => {
    const page = await opened(t, browser, `${base}/index.html`);
    await isReady(page);
    await use(page);
    checkNetwork(page, base);
  });

  await t.test('from a disk, in one file', async (one) => {
    const page = await opened(t, browser, disk);
    await isReady(page);
    await use(page);
    await page.click('.top nav a:last-child');
    await page.waitForSelector('#portal[data-ready]');
    await page.fill('#mtu', '1');
    await page.fill('#mtu', '99999');
    await page.waitForSelector('#mtu ~ .ostrel-reason .ostrel-sentence');
    assert.deepEqual(page.asked, [disk]);
    const bytes = readFileSync(join(site, 'ostrel.html'));
    one.diagnostic(`ostrel.html: ${bytes.length} bytes, ${gzipSync(bytes).length} gzip`);
  });

  await t.test('each field can be tried', async () => {
    const page = await opened(t, browser, `${base}/index.html`);
    await isReady(page);
    const silent = await page.$$eval('form.try', async (forms) => {
      const none = [];
      for (const form of forms) {
        const [input] = form.elements;
        if (input.inputMode !== 'numeric') input.value = '7';
        input.dispatchEvent(new InputEvent('input', {bubbles: true}));
        await new Promise((resolve) => setTimeout(resolve));
        if (!/Accepted|Refused|Returns|does not return/.test(form.querySelector('output').textContent)) {
          none.push(`${form.dataset.name}: ${form.querySelector('output').textContent}`);
        }
      }
      return none;
    });
    assert.deepEqual(silent, []);
  });

  for (const colorScheme of ['light', 'dark']) {
    for (const width of [360, 1280]) {
      await t.test(`${colorScheme}, ${width} pixels`, async () => {
        const options = {colorScheme, viewport: {width, height: 900}};
        const picture = (page, name, fullPage = true) =>
          page.screenshot({path: join(pictures, `${name}-${colorScheme}-${width}.png`), fullPage});
        const look = async (page) => {
          await page.evaluate(source);
          const {violations} = await page.evaluate(() => window.axe.run());
          assert.deepEqual(violations.map(({id, nodes}) => `${id}: ${nodes.map(({html}) => html).join(' ')}`), []);
          const overflow = await page.evaluate(() => document.documentElement.scrollWidth - window.innerWidth);
          assert.ok(overflow <= 0, `${overflow} pixels too wide`);
        };
        const page = await opened(t, browser, `${base}/index.html`, options);
        await isReady(page);
        await look(page);
        await picture(page, 'checks', false);
        await page.goto(`${base}/index.html#LAN_check_dhcp_addr_range`);
        await page.locator('#LAN_check_dhcp_addr_range .try input').first().pressSequentially('192.168.1.x');
        await page.waitForSelector('#LAN_check_dhcp_addr_range .reason');
        await look(page);
        await picture(page, 'check', false);
        const portal = await opened(t, browser, `${base}/portal.html${colorScheme === 'dark' ? '?lang=de' : ''}`, options);
        await isReady(portal);
        await portal.fill('#address', '192.168.x.1');
        await portal.fill('#user', 'Z\u00fcrich');
        await portal.fill('#mtu', '9000');
        await portal.waitForSelector('#mtu ~ .ostrel-reason .ostrel-sentence');
        await portal.waitForSelector('#address ~ .ostrel-reason .ostrel-sentence');
        await picture(portal, 'portal');
      });
    }
  }
});
