// Builds the site as static files for any web server, and as one file that contains the whole site.
//
//   node build.js PACKAGE CATALOGUE.JSON NODE_MODULES FOLDER

import {cpSync, mkdirSync, readFileSync, rmSync, writeFileSync} from 'node:fs';
import {createRequire} from 'node:module';
import {join} from 'node:path';
import {pathToFileURL} from 'node:url';

import {articleOf, escaped, indexOf} from './render.js';

const [packageFolder, catalogueFile, modules, folder] = process.argv.slice(2);
const require = createRequire(`${modules}/`);
const source = (name) => readFileSync(new URL(name, import.meta.url), 'utf8');
const filledIn = (text, values) => text.replace(/@([A-Z]+)@/g, (whole, name) => values[name] ?? whole);

const {version, checks} = JSON.parse(readFileSync(catalogueFile, 'utf8'));
const {build} = await import(pathToFileURL(join(packageFolder, 'checks.js')).href);
const kPages = ['index.html', 'portal.html'];
const kScripts = ['index_page.js', 'portal.js', 'portal_page.js', 'reference.js'];
const kPackage = ['index.js', 'checks.js', 'constraints.js', 'form.js', 'reasons.js', 'sentences.js', 'sentences',
  'rules.wasm', 'reasons.wasm'];

const common = {
  COUNT: checks.length,
  VERSION: escaped(version),
  MODEL: escaped(build.model),
  INDEX: indexOf(checks),
  ARTICLES: checks.map(articleOf).join('\n'),
};
const specimen = (anchor) => filledIn(source('specimen.html'), {FORMS: source('forms.html'), ANCHOR: anchor});

rmSync(folder, {recursive: true, force: true});
mkdirSync(folder, {recursive: true});
for (const name of kPackage) cpSync(join(packageFolder, name), join(folder, 'ostrel', name), {recursive: true});
for (const name of [...kScripts, 'site.css']) cpSync(new URL(name, import.meta.url), join(folder, name));
for (const name of kPages) {
  const isPortal = name === 'portal.html';
  writeFileSync(join(folder, name), filledIn(source(name), {
    ...common,
    STYLE: '<link rel="stylesheet" href="site.css">',
    SCRIPT: `<script type="module" src="${isPortal ? 'portal' : 'index'}_page.js"></script>`,
    FRAGMENT: isPortal ? specimen('') : '',
    PORTAL: 'portal.html',
  }));
}

const bundled = await require('esbuild').build({
  stdin: {contents: source('single.js'), resolveDir: folder, loader: 'js'},
  bundle: true,
  format: 'esm',
  target: 'es2022',
  minify: true,
  write: false,
  external: ['node:fs/promises'],
  logLevel: 'warning',
});
const inText = (name) => `<script type="text/plain" id="${name}">${
  readFileSync(join(packageFolder, name)).toString('base64')}</script>`;
const script = bundled.outputFiles[0].text;
if (/<\/script/i.test(script)) throw new Error('the script would end early');
writeFileSync(join(folder, 'ostrel.html'), filledIn(source('index.html'), {
  ...common,
  STYLE: `<style>\n${source('site.css')}</style>`,
  SCRIPT: `${inText('rules.wasm')}\n${inText('reasons.wasm')}\n<script type="module">\n${script}</script>`,
  FRAGMENT: specimen('#portal'),
  PORTAL: '#portal',
}));
