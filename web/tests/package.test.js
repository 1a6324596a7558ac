// Tests the installed package, including the sizes of its files, its types and the example in its README.

import assert from 'node:assert/strict';
import {execFileSync} from 'node:child_process';
import {copyFileSync, mkdtempSync, readFileSync, rmSync, writeFileSync} from 'node:fs';
import {tmpdir} from 'node:os';
import {join} from 'node:path';
import test from 'node:test';
import {gzipSync} from 'node:zlib';

import {build, packageFolder} from './files.js';

const stdio = ['ignore', 'pipe', 'pipe'];
const run = (command, args, cwd) => execFileSync(command, args, {cwd, encoding: 'utf8', stdio});
const zipped = (...names) => names.reduce(
  (sum, name) => sum + gzipSync(readFileSync(join(packageFolder, name)), {level: 9}).length, 0);

test('sizes', (t) => {
  const sizes = {
    rules: [zipped('rules.wasm'), 18],
    wrapper: [zipped('index.js'), 3],
    reasons: [zipped('reasons.wasm', 'reasons.js'), 80],
  };
  for (const [name, [size, most]] of Object.entries(sizes)) {
    t.diagnostic(`${name}: ${size} bytes gzip, at most ${most} KiB`);
    assert.ok(size <= most * 1024, `${name}: ${size} bytes`);
  }
  for (const name of ['checks.js', 'constraints.js', 'form.js', 'sentences.js', 'sentences/en.js', 'sentences/de.js']) {
    t.diagnostic(`${name}: ${zipped(name)} bytes gzip`);
  }
});

test('an installed package', async (t) => {
  const folder = mkdtempSync(join(tmpdir(), 'ostrel-web-'));
  t.after(() => rmSync(folder, {recursive: true}));
  const [packed] = JSON.parse(run('npm', ['pack', '--json', '--pack-destination', folder], packageFolder));

  await t.test('holds what a portal needs', () => {
    assert.deepEqual(packed.files.map(({path}) => path).sort(), [
      'README.md', 'checks.js', 'constraints.js', 'form.d.ts', 'form.js', 'index.d.ts', 'index.js', 'package.json',
      'reasons.js', 'reasons.wasm', 'rules.wasm', 'sentences.d.ts', 'sentences.js', 'sentences/de.js',
      'sentences/en.js', 'sentences/language.d.ts']);
    const described = JSON.parse(readFileSync(join(packageFolder, 'package.json'), 'utf8'));
    assert.equal(described.dependencies, undefined);
    assert.equal(described.devDependencies, undefined);
    assert.match(described.version, /^\d+\.\d+\.\d+$/);
  });

  writeFileSync(join(folder, 'package.json'), '{"type": "module"}');
  run('npm', ['install', '--offline', '--no-save', join(folder, packed.filename)], folder);

  await t.test('does what its README shows', () => {
    const readme = readFileSync(join(packageFolder, 'README.md'), 'utf8');
    const [, example] = readme.match(/```js\n([\s\S]*?)```/);
    writeFileSync(join(folder, 'example.js'), example);
    const printed = example.match(/(?<=^\/\/ prints )[\s\S]*?(?=\n)/gm).join('\n');
    assert.equal(run(process.execPath, ['example.js'], folder).trim(), printed);
  });

  await t.test('has types', () => {
    const readme = readFileSync(join(packageFolder, 'README.md'), 'utf8');
    const examples = [...readme.matchAll(/```js\n([\s\S]*?)```/g)].map(([, text], i) => {
      writeFileSync(join(folder, `readme${i}.ts`), text);
      return `readme${i}.ts`;
    });
    assert.ok(examples.length >= 3);
    copyFileSync(new URL('example.ts', import.meta.url), join(folder, 'example.ts'));
    const tsc = join(build, 'node_modules/typescript/bin/tsc');
    run(process.execPath, [tsc, '--strict', '--noEmit', '--target', 'es2022', '--module', 'nodenext', '--lib',
      'es2022,dom,dom.iterable', 'example.ts', ...examples], folder);
  });
});
