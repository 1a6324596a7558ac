// The module of reasons: why a check refused a call, by its description.

import {most, put, take} from './text.js';

const kNull = 0;
const kText = 1;
const kInteger = 2;
const kUnsigned = 3;
const kBlocks = 4;
const kHead = 5;  // a tag and a number

// longest is how many bytes a call may take: each value a head, and each text of it another.
const longest = (values, isLatin1) => values.flat().reduce(
  (sum, value) => sum + kHead + (typeof value === 'string' ? most(value, isLatin1) : 0), kHead * values.length);

// Views are kept as long as memory does not grow. Then they are empty.
let viewed;
let bytes = new Uint8Array();
let view;

// viewOf has bytes and view show the memory of a module.
function viewOf(exports) {
  if (viewed === exports && bytes.length > 0) return;
  viewed = exports;
  bytes = new Uint8Array(exports.memory.buffer);
  view = new DataView(exports.memory.buffer);
}

// writeCall writes the call where the module reads it, and returns its bytes.
export function writeCall(exports, check, values, isLatin1) {
  let at = exports.reserve(longest(values, isLatin1));
  const begin = at;
  viewOf(exports);
  const putText = (text) => {
    const end = put(bytes, at + 4, text, isLatin1);
    view.setUint32(at, end - at - 4, true);
    at = end;
  };
  check.arguments.forEach(({kind}, i) => {
    const value = values[i];
    if (value === null) {
      bytes[at++] = kNull;
    } else if (typeof value === 'string') {
      bytes[at++] = kText;
      putText(value);
    } else {
      bytes[at++] = kind === 'blocks' ? kBlocks : kind === 'unsigned' ? kUnsigned : kInteger;
      view.setUint32(at, kind === 'blocks' ? value.length : value, true);
      at += 4;
      if (kind === 'blocks') value.forEach(putText);
    }
  });
  exports.reserve(at - begin);
  return at - begin;
}

export function reasonsOf(module, {isLatin1, isLong64, channels}) {
  const start = () => {
    const {exports} = new WebAssembly.Instance(module);
    exports.configure(isLong64);
    channels.forEach((channel) => exports.add_channel(channel));
    return exports;
  };
  let exports = start();
  const told = (length) => {
    viewOf(exports);
    return length === 0 ? null : JSON.parse(take(bytes, exports.reason(), length, true));
  };
  return (check, number, values) => {
    try {
      writeCall(exports, check, values, isLatin1);
      return told(exports.explain(number));
    } catch (error) {
      // A list so long that its reason is not worth the work ends the module.
      if (!(error instanceof WebAssembly.RuntimeError)) throw error;
      exports = start();
      return told(exports.too_much_work());
    }
  };
}
