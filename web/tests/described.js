// Returns details of a call that the reasons module does not return. They are derived from the descriptions.

import {Memory} from '../reasons.js';
import {checks, moduleOf} from './files.js';

// The module's WASI imports, which would end a program, are never called.
const noWasi = {wasi_snapshot_preview1: new Proxy({}, {get: () => () => 0})};
const {exports} = new WebAssembly.Instance(moduleOf('described.wasm'), noWasi);
exports._initialize();
const memory = new Memory(exports, true);
const stackPointer = exports.__stack_pointer.value;

// answered returns the result of calling an export, or null if the export traps. It traps if the described call would
// read NULL, fail an assertion or not return.
function answered(call) {
  try {
    return call();
  } catch (error) {
    if (!(error instanceof WebAssembly.RuntimeError)) throw error;
    exports.__stack_pointer.value = stackPointer;
    return null;
  }
}

// roomOf returns the required size of a buffer, or -1 if the buffer only has to hold its contents.
export function roomOf(check, argument, values) {
  memory.write(check, values);
  return answered(() => exports.room(checks.indexOf(check), argument)) ?? -1;
}

// describedCode returns the result code, or null if the contract does not define the result.
export function describedCode(check, values) {
  memory.write(check, values);
  return answered(() => exports.code(checks.indexOf(check)));
}
