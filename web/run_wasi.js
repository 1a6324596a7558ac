// Runs a WASI program.

import {readFileSync} from 'node:fs';
import {WASI} from 'node:wasi';

const wasi = new WASI({version: 'preview1', args: process.argv.slice(2)});
const module = new WebAssembly.Module(readFileSync(process.argv[2]));
process.exitCode = wasi.start(new WebAssembly.Instance(module, wasi.getImportObject()));
