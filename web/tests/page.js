// Starts a browser and a server for the site, for use in tests. Pages may send requests only to this server.

import assert from 'node:assert/strict';
import {createReadStream, existsSync} from 'node:fs';
import {createServer} from 'node:http';
import {createRequire} from 'node:module';
import {extname, join, normalize} from 'node:path';

import {build} from './files.js';

const require = createRequire(join(build, 'node_modules/'));
const {chromium} = require('playwright-core');
export const axe = require.resolve('axe-core/axe.min.js');

const kTypes = {'.html': 'text/html', '.js': 'text/javascript', '.css': 'text/css', '.wasm': 'application/wasm'};
export const kPolicy = "default-src 'none'; script-src 'self' 'wasm-unsafe-eval'; connect-src 'self'; " +
  "style-src 'self'; base-uri 'none'; form-action 'none'";
export const site = join(build, 'site');

// serve serves the site and a test's own pages with a content security policy.
export async function serve(t, {policy = kPolicy, pages = {}} = {}) {
  const server = createServer((request, response) => {
    const name = normalize(decodeURIComponent(new URL(request.url, 'http://x').pathname));
    const file = join(site, name);
    if (name === '/favicon.ico') return response.writeHead(204).end();
    response.setHeader('Content-Type', `${kTypes[extname(name)] ?? 'text/plain'}; charset=utf-8`);
    response.setHeader('Content-Security-Policy', policy);
    if (pages[name] !== undefined) return response.end(pages[name]);
    if (!existsSync(file)) return response.writeHead(404).end();
    createReadStream(file).pipe(response);
  });
  await new Promise((resolve) => server.listen(0, '127.0.0.1', resolve));
  t.after(() => server.close());
  return `http://127.0.0.1:${server.address().port}`;
}

export async function started(t) {
  const browser = await chromium.launch({
    executablePath: process.env.OSTREL_CHROMIUM || '/usr/bin/chromium',
    // The shared memory of a container may be too small for Chromium.
    args: ['--disable-dev-shm-usage', ...(process.getuid() === 0 ? ['--no-sandbox'] : [])],
  });
  t.after(() => browser.close());
  return browser;
}

// opened opens a page and records its errors and its requests.
export async function opened(t, browser, url, options = {}) {
  const context = await browser.newContext(options);
  t.after(() => context.close());
  const page = await context.newPage();
  page.asked = [];
  page.faults = [];
  page.on('request', (request) => page.asked.push(request.url()));
  page.on('pageerror', (error) => page.faults.push(String(error)));
  page.on('console', (message) => message.type() === 'error' && page.faults.push(message.text()));
  await page.goto(url);
  return page;
}

export const isReady = (page) => page.waitForSelector('[data-ready]', {state: 'attached'});

export function checkNetwork(page, base) {
  for (const url of page.asked) assert.ok(url.startsWith(`${base}/`) || url.startsWith('data:'), url);
}

export async function retype(page, selector, text) {
  await page.fill(selector, '');
  await page.locator(selector).pressSequentially(text);
}

// said returns the visible text that describes a field.
export const said = (page, selector) => page.$eval(selector, (input) =>
  input.getAttribute('aria-describedby').split(' ').map((id) => document.getElementById(id))
    .filter((one) => !one.hidden).map((one) => one.innerText).filter(Boolean).join(' | '));

// refused waits until a reason is shown.
export const refused = (page, selector) =>
  page.waitForFunction((one) => document.querySelector(`${one} ~ .ostrel-reason`).textContent !== '', selector);
