// Reads all rows of vectors/*.ndjson.

import {readFileSync, readdirSync} from 'node:fs';
import {join} from 'node:path';

import {rowsOf} from './row.js';

const folder = new URL('../../vectors/', import.meta.url).pathname;

export const files = Object.fromEntries(readdirSync(folder, {recursive: true}).filter((name) => name.endsWith('.ndjson')).sort()
  .map((name) => [name, readFileSync(join(folder, name), 'utf8')]));
export const rows = Object.entries(files).flatMap(([name, lines]) => rowsOf(name, lines));
