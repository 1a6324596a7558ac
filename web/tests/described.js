// Uses the descriptions to find details of a call that the module of reasons does not return.

import {Memory} from '../reasons.js';
import {checks, moduleOf} from './files.js';

// The module's WASI imports, which would end a program, are never called.
const noWasi = {wasi_snapshot_preview1: new Proxy({}, {get: () => () => 0})};
const {exports} = new WebAssembly.Instance(moduleOf('described.wasm'), noWasi);
exports._initialize();
const memory = new Memory(exports, true);
const stackPointer = exports.__stack_pointer.value;

// answered returns the result of calling an export. It returns null if the export traps, because the description reads
// NULL, fails an assertion or does not return.
function answered(call) {
  try {
    return call();
  } catch (error) {
    if (!(error instanceof WebAssembly.RuntimeError)) throw error;
    exports.__stack_pointer.value = stackPointer;
    return null;
  }
}

// roomOf returns the size that a buffer must have, or -1 if it needs only room for its contents.
export function roomOf(check, argument, values) {
  memory.write(check, values);
  return answered(() => exports.room(checks.indexOf(check), argument)) ?? -1;
}

// describedCode returns the result code, or null if the contract does not define the result.
export function describedCode(check, values) {
  memory.write(check, values);
  return answered(() => exports.code(checks.indexOf(check)));
}
