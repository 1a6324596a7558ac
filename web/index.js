// Calls the checks of a home gateway in a page or in Node, with the same rules as on the gateway.

import {complete, isText, kUnwritten, require} from './arguments.js';
import {build, checks, codes} from './checks.js';
import {FailedAssertion, NeverReturns} from './errors.js';
import {compiled} from './module.js';
import {most, put, take, taken} from './text.js';

export {FailedAssertion, NeverReturns};

const kNoChannel = -1;
const kPage = 0x10000;
const kSpare = 2048;  // bytes reserved beyond the strings of a call, for blocks and buffers that a check writes to
const kNothingWritten = Object.freeze({});

// Verdict is the result of a call. Few callers need the printed lines, so reading them repeats the call.
class Verdict {
  #asked;  // the functions print and explain
  #judged;
  #values;

  constructor(code, after, asked, judged, values) {
    this.valid = judged.isVerdict ? code === 0 : null;
    this.code = code;
    this.after = after;
    this.#asked = asked;
    this.#judged = judged;
    this.#values = values;
  }

  get name() {
    return this.valid === null ? null : codes[this.code];
  }

  get lines() {
    return this.#asked.print(this.#judged, this.#values)[1];
  }

  get stderr() {
    return this.#asked.print(this.#judged, this.#values)[2];
  }

  get reason() {
    return this.valid === false ? this.#asked.explain(this.#judged, this.#values) : Promise.resolve(null);
  }
}

class Ostrel {
  checks = checks;
  build = build;
  #rules;
  #stack;
  #view = new Uint8Array();
  #base;
  #step;  // the distance in bytes between the arguments of the last call
  #isLatin1;
  #reasons;
  #reasonOf;
  #loadReasons;
  #judged;  // the data that every call of a check needs, keyed by the check's name
  // These functions are passed to each verdict.
  #asked = {print: (...call) => this.#print(...call), explain: (...call) => this.#explain(...call)};
  #isBusy = false;
  #message;
  #printed = null;  // the messages printed so far, by stream number, if they are recorded

  constructor(module, options) {
    const {encoding, isLatin1, isLong64, channels, compare, convert, loadReasons} = options;
    this.encoding = encoding;
    this.#isLatin1 = isLatin1;
    this.#loadReasons = loadReasons;
    const text = (at) => taken(this.#bytes(), at, Infinity, isLatin1);
    const {exports} = new WebAssembly.Instance(module, {ostrel: {
      write: (stream, at, length, ends) => this.#write(stream, at, length, ends),
      flush() {},
      fail: (condition, file, line, check) => {
        throw new FailedAssertion(text(condition), text(check), text(file), line);
      },
      never_return() {
        throw new NeverReturns();
      },
      channel: (index) => channels[index] ?? kNoChannel,
      compare: (a, b) => compare(text(a), text(b)),
      convert: (at, length) => {
        const converted = convert(take(this.#bytes(), at, length, isLatin1));
        const room = new Uint8Array(most(converted, isLatin1));
        const end = put(room, 0, converted, isLatin1);
        if (end > length) throw new RangeError('the result of htmlToText is too long');
        this.#bytes().set(room.subarray(0, end + 1), at);
      },
    }});
    this.#rules = exports;
    this.#stack = exports.__stack_pointer.value;
    this.#base = exports.__heap_base.value;
    exports.ostrel_configure(isLong64, compare !== undefined, convert !== undefined);
    this.#judged = new Map(checks.map((check, number) => [check.name, {
      check, number, run: exports[check.name], isVerdict: check.answers !== 'number',
      takesText: check.arguments.length === 1 && check.arguments[0].kind === 'text'}]));
  }

  judge(name, ...given) {
    const judged = this.#judged.get(name);
    if (judged === undefined) throw new RangeError(`there is no check ${name}`);
    const {check} = judged;
    let values = given.length === check.arguments.length ? given : complete(check, given);
    // Arrays are copied, because the caller might change them later.
    if (check.writes) values = values.map((value) => (Array.isArray(value) ? [...value] : value));
    const code = judged.takesText && isText(values[0]) ? this.#callWithText(judged, values)
                                                       : this.#call(judged, values);
    return new Verdict(code, check.writes ? this.#after(check, values) : kNothingWritten, this.#asked, judged, values);
  }

  #print(judged, values) {
    const printed = [null, [], []];
    this.#printed = printed;
    this.#message = '';
    try {
      this.#call(judged, values);
    } finally {
      this.#printed = null;
    }
    return printed;
  }

  // #bytes renews the view if memory has grown, because an older view is then empty.
  #bytes() {
    if (this.#view.length === 0) this.#view = new Uint8Array(this.#rules.memory.buffer);
    return this.#view;
  }

  #write(stream, at, length, ends) {
    if (!this.#printed) return;
    this.#message += take(this.#bytes(), at, length, this.#isLatin1);
    if (!ends) return;
    this.#printed[stream].push(this.#message);
    this.#message = '';
  }

  // #callWithText replaces #call in the most common case, a single string.
  #callWithText(judged, values) {
    const text = values[0];
    put(this.#room(kSpare + most(text, this.#isLatin1)), this.#base, text, this.#isLatin1);
    return this.#run(judged, values, this.#base);
  }

  // #call reserves the same amount of memory for each argument.
  #call(judged, values) {
    const {check} = judged;
    let room = kSpare;
    for (let i = 0; i < values.length; ++i) {
      const value = values[i];
      const argument = check.arguments[i];
      if (!isText(value) || argument.kind !== 'text') require(check, argument, value);
      if (isText(value)) room += most(value, this.#isLatin1);
      else if (value?.length) for (const text of value) room += most(text, this.#isLatin1);
    }
    const bytes = this.#room(room * values.length);
    const passed = [];
    for (let i = 0; i < values.length; ++i) {
      const at = this.#base + i * room;
      passed.push(this.#put(bytes, at, room, check.arguments[i], values[i]) ? at : values[i]);
    }
    this.#step = room;
    return this.#run(judged, values, passed[0], passed[1], passed[2], passed[3]);
  }

  #run({check, run}, values, first, second, third, fourth) {
    this.#isBusy = true;
    try {
      return run(first, second, third, fourth);
    } catch (error) {
      this.#rules.__stack_pointer.value = this.#stack;
      if (!(error instanceof WebAssembly.RuntimeError && values.includes(null))) throw error;
      throw new TypeError(`${check.name} reads an argument, which must not be null`);
    } finally {
      this.#isBusy = false;
    }
  }

  // #room returns the memory, after enlarging it if it has no room for a call of size bytes.
  #room(size) {
    if (this.#isBusy) throw new Error('a check is already running');
    const missing = this.#base + size - this.#bytes().length;
    if (missing > 0) this.#rules.memory.grow(Math.ceil(missing / kPage));
    return this.#bytes();
  }

  // #put stores a value in memory. It returns false for a value that is passed directly.
  #put(bytes, at, room, {kind, block_size: size}, value) {
    if (value === null || kind === 'integer' || kind === 'unsigned') return false;
    if (kind === 'text') put(bytes, at, value, this.#isLatin1);
    else if (kind === 'integer_out') new DataView(bytes.buffer).setInt32(at, value, true);
    else if (kind === 'buffer') bytes.fill(0, put(bytes, at, value, this.#isLatin1), at + room);
    else {
      for (const text of value) {
        const end = put(bytes, at, text, this.#isLatin1);
        at += size;
        if (end >= at) throw new RangeError('a string is too long');
        bytes.fill(0, end, at);
      }
    }
    return true;
  }

  #after(check, values) {
    const bytes = this.#bytes();
    const room = this.#step;
    const text = (at, size) => taken(bytes, at, size, this.#isLatin1);
    const held = {
      buffer: (at) => text(at, room),
      blocks: (at, {blocks, block_size: size}) =>
        Array.from({length: blocks}, (_, i) => text(at + i * size, size)),
      integer_out: (at) => {
        const number = new DataView(bytes.buffer).getInt32(at, true);
        return number === kUnwritten ? null : number;
      },
    };
    const after = {};
    check.arguments.forEach((argument, i) => {
      const take = held[argument.kind];
      if (take) after[argument.name] = values[i] === null ? null : take(this.#base + i * room, argument);
    });
    return after;
  }

  // #explain loads the descriptions when it is first called. If loading fails, the next call tries again.
  async #explain(judged, values) {
    if (this.#reasonOf) return this.#reasonOf(judged, values);
    try {
      this.#reasons ??= this.#loadReasons();
      this.#reasonOf = await this.#reasons;
    } catch (error) {
      this.#reasons = null;
      throw error;
    }
    return this.#reasonOf(judged, values);
  }
}

export async function load(
    {encoding = 'utf-8', long = 32, channels = [], htmlToText, cmsUtl_strcmp, rules, reasons} = {}) {
  if (encoding !== 'utf-8' && encoding !== 'latin1') throw new RangeError(`encoding must be "utf-8" or "latin1", not ${encoding}`);
  if (long !== 32 && long !== 64) throw new RangeError(`long must be 32 or 64, not ${long}`);
  const options = {encoding, isLatin1: encoding === 'latin1', isLong64: long === 64, channels: [...channels]};
  const loadReasons = async () => (await import('./reasons.js'))
    .reasonsOf(await compiled(reasons, new URL('./reasons.wasm', import.meta.url)), options);
  return new Ostrel(await compiled(rules, new URL('./rules.wasm', import.meta.url)),
                    {...options, compare: cmsUtl_strcmp, convert: htmlToText, loadReasons});
}
