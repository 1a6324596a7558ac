// Locates and loads the built files. OSTREL_WEB_BUILD names their folder.

import {readFileSync} from 'node:fs';
import {join} from 'node:path';
import {pathToFileURL} from 'node:url';

export const build = process.env.OSTREL_WEB_BUILD;
export const packageFolder = join(build, 'package');
export const read = (name) => readFileSync(join(build, name));
export const moduleOf = (name) => new WebAssembly.Module(read(name));
export const {load, FailedAssertion, NeverReturns} =
    await import(pathToFileURL(join(packageFolder, 'index.js')).href);
export const {checks} = await import(pathToFileURL(join(packageFolder, 'checks.js')).href);
export const checkOf = (name) => checks.find((check) => check.name === name);
