// Calls the rules module without the wrapper, so that a test can place each value in memory and observe every effect.

import {complete, kUnwritten} from '../arguments.js';

const kPage = 0x10000;
const isPointer = ({kind}) => kind !== 'integer' && kind !== 'unsigned';

export class Bare {
  constructor(module, {long, imports = () => ({}), room = () => 0}) {
    const {ostrel, ...others} = imports(this);
    this.roomOf = room;
    const unexpected = (name) => () => {
      throw new Error(`${name} was called`);
    };
    const {exports} = new WebAssembly.Instance(module, {
      ostrel: {
        write: (stream, at, length) => {
          this.printed[stream] += Buffer.from(exports.memory.buffer, at, length).toString('latin1');
        },
        flush: () => {
          this.flushed = this.printed[1].length;
        },
        fail: unexpected('fail'),
        never_return: unexpected('never_return'),
        compare: unexpected('compare'),
        convert: unexpected('convert'),
        channel: () => -1,
        ...ostrel,
      },
      ...others,
    });
    this.exports = exports;
    exports.ostrel_configure(long === 64, false, false);
    this.bytes = Buffer.alloc(0);
  }

  // sizeOf returns the size that the contract requires for the argument.
  sizeOf(check, index, values) {
    const {kind, blocks, block_size: size} = check.arguments[index];
    if (kind === 'integer_out') return 4;
    if (kind === 'blocks') return blocks * size;
    return Math.max(values[index].length + 1, kind === 'buffer' ? this.roomOf(check, index, values) : 0);
  }

  place({kind, block_size: distance}, value, at, size) {
    this.bytes.fill(0, at, at + size);
    if (kind === 'integer_out') this.bytes.writeInt32LE(value, at);
    else [value].flat().forEach((text, i) => this.bytes.write(text, at + i * (distance ?? 0), 'latin1'));
  }

  held(argument, at, size) {
    const text = (begin, end) => this.bytes.subarray(begin, end).toString('latin1').split('\0', 1)[0];
    if (at === 0) return null;
    if (argument.kind === 'integer_out') {
      const number = this.bytes.readInt32LE(at);
      return number === kUnwritten ? null : number;
    }
    if (argument.kind === 'buffer') return text(at, at + size);
    return Array.from({length: argument.blocks}, (_, i) =>
      text(at + i * argument.block_size, at + (i + 1) * argument.block_size));
  }

  // call calls a check, with the argument whose index is edge placed at the end of the memory.
  call(check, given, edge) {
    const values = complete(check, given);
    const sizes = check.arguments.map((argument, i) => (
      isPointer(argument) && values[i] !== null ? this.sizeOf(check, i, values) : 0));
    const {memory, __heap_base: base} = this.exports;
    const needed = base.value + sizes.reduce((sum, size) => sum + size + 16, 0);
    if (memory.buffer.byteLength < needed) memory.grow(Math.ceil((needed - memory.buffer.byteLength) / kPage));
    this.bytes = Buffer.from(memory.buffer);
    let next = base.value;
    const passed = check.arguments.map((argument, i) => {
      if (!isPointer(argument)) return values[i];
      if (values[i] === null) return 0;
      const at = i === edge ? memory.buffer.byteLength - sizes[i] : next;
      if (i !== edge) next += sizes[i];
      this.place(argument, values[i], at, sizes[i]);
      return at;
    });
    this.printed = {1: '', 2: ''};
    this.flushed = 0;
    const code = this.exports[check.name](...passed);
    return {
      code,
      out: this.printed[1],
      flushed: this.flushed === this.printed[1].length,
      err: this.printed[2],
      after: check.arguments.flatMap((argument, i) => (
        ['buffer', 'blocks', 'integer_out'].includes(argument.kind)
          ? [this.held(argument, passed[i], sizes[i])] : [])),
    };
  }
}

// edges lists the arguments that can be placed at the end of the memory or, if there are none, only -1.
export function edges(check, given) {
  const values = complete(check, given);
  const found = check.arguments.flatMap((argument, i) => (isPointer(argument) && values[i] !== null ? [i] : []));
  return found.length > 0 ? found : [-1];
}
