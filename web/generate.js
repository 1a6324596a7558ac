// Generates package.json and the files that are derived from the descriptions, which are checks.js, constraints.js,
// index.d.ts and sentences/en.js.
//
//   node generate.js DESCRIBE.WASM CATALOGUE.JSON RESULT_CODE.H PACKAGE.JSON BUILD FOLDER
//
// CATALOGUE.JSON is the output of ostrel-check list --json. BUILD is the value of ostrel.build, as JSON.

import {execFileSync} from 'node:child_process';
import {mkdirSync, readFileSync, writeFileSync} from 'node:fs';
import {join} from 'node:path';
import {fileURLToPath} from 'node:url';

const [describe, catalogueFile, header, packageFile, build, folder] = process.argv.slice(2);
const write = (name, text) => writeFileSync(join(folder, name), text);
const template = (name) => readFileSync(new URL(name, import.meta.url), 'utf8');

const runner = fileURLToPath(new URL('run_wasi.js', import.meta.url));
const printed = execFileSync(process.execPath, ['--no-warnings', runner, describe],
                             {encoding: 'utf8', maxBuffer: 2 ** 26});
const described = JSON.parse(printed);
const catalogue = JSON.parse(readFileSync(catalogueFile, 'utf8'));
const kWritten = ['buffer', 'blocks', 'integer_out'];
const listed = new Map(catalogue.checks.map((check) => [check.name, check]));
const checks = described.checks.map(({name, module, nulls}) => {
  const {answers, arguments: all} = listed.get(name);
  const writes = all.some(({kind}) => kWritten.includes(kind)) || undefined;
  return {name, module, answers, writes, arguments: all.map((argument, i) => {
    const {kind, what, unit, secret, blocks, block_size} = argument;
    const output = argument.output_only || undefined;
    return {name: argument.name, kind, what, unit, secret, output, blocks, block_size, null: nulls[i] ?? undefined};
  })};
});

const codes = {};
const named = readFileSync(header, 'utf8').matchAll(/^ +(OSTREL_\w+) = (-?\d+)/gm);
for (const [, name, code] of named) codes[code] = name;

write('checks.js', `// The checks of this build, generated from their descriptions.
export const build = ${build};
export const codes = ${JSON.stringify(codes)};
class Check {
  constructor(described) {
    Object.assign(this, described);
  }
  get constraints() {
    return import('./constraints.js').then(({constraints}) => constraints[this.name]);
  }
}
export const checks = [
${checks.map((check) => `  ${JSON.stringify(check)},`).join('\n')}
].map((check) => new Check(check));
`);

const ofArguments = catalogue.checks.map((check) =>
  [check.name, check.arguments.map(({constraints}) => constraints ?? null)]);
write('constraints.js', `// What each argument of each check must be, derived from the descriptions.
export const constraints = {
${ofArguments.map(([name, all]) => `  ${name}: ${JSON.stringify(all)},`).join('\n')}
};
`);

mkdirSync(join(folder, 'sentences'), {recursive: true});
write('sentences/en.js', template('sentences/en.js.in')
  .replace('@SENTENCES@', () => JSON.stringify(described.sentences, null, 4).replace(/\}$/, '  }')));
write('../phrases.json', JSON.stringify(described.phrases));

const given = {text: 'string', buffer: 'string', integer: 'number', unsigned: 'number', integer_out: 'number'};
const held = {buffer: 'string | null', integer_out: 'number | null'};

const listOf = (argument, type) => `[${Array(argument.blocks).fill(type).join(', ')}]`;
const typeOf = (argument) => {
  const type = argument.kind === 'blocks' ? `readonly ${listOf(argument, 'string')}` : given[argument.kind];
  return ['sometimes', 'always'].includes(argument.null) ? `${type} | null` : type;
};
const heldOf = (argument) => (argument.kind === 'blocks' ? listOf(argument, 'string') : held[argument.kind]);

const declared = (argument) => `${argument.name}${argument.output ? '?' : ''}: ${typeOf(argument)}`;
const argumentsOf = (check) => `[${check.arguments.map(declared).join(', ')}]`;
const writtenOf = (check) =>
  `{${check.arguments.filter(({kind}) => kWritten.includes(kind)).map((argument) =>
    `readonly ${argument.name}: ${heldOf(argument)}`).join('; ')}}`;

const rows = (some, row) => some.map((check) => `  ${check.name}: ${row(check)};`).join('\n');
const names = (list) => list.map((name) => `'${name}'`).join(' | ');
const numbers = checks.filter(({answers}) => answers === 'number').map(({name}) => name);
write('index.d.ts', template('index.d.ts.in')
  .replace('@ARGUMENTS@', () => rows(checks, argumentsOf))
  .replace('@WRITTEN@', () => rows(checks.filter(({writes}) => writes), writtenOf))
  .replace('@NUMBERS@', () => names(numbers))
  .replace('@CODES@', () => names(Object.values(codes))));

const {devDependencies, scripts, private: isPrivate, ...packed} = JSON.parse(readFileSync(packageFile, 'utf8'));
write('package.json', `${JSON.stringify({...packed, version: JSON.parse(build).version}, null, 2)}\n`);
