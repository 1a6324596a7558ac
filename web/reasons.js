// Uses the reasons module, which derives the reason for a refusal from the check's description.

import {most, put, take} from './text.js';

const kNull = 0;
const kText = 1;
const kInteger = 2;
const kUnsigned = 3;
const kBlocks = 4;
const kHead = 5;  // the size of a tag and a number, in bytes

// The positions of a reason's numbers (reasons/told.h). A string takes up two numbers, its address and its size.
const kId = 0;
const kPart = 2;
const kConversion = 4;
const kItemText = 6;
const kLimit = 8;
const kArgument = 10;
const kItem = 11;
const kOffset = 12;
const kFound = 13;
const kAllowed = 16;
const kReadAs = 19;
const kSentence = 22;

// The kinds of datum. Each kind is followed by two numbers.
const kNothing = 0;
const kNumber = 1;
const kDatumText = 2;
const kNumbers = 3;
const kTexts = 4;
const kKeptJson = 6;

const decoder = new TextDecoder();

// longest returns the maximum size of a call, in which each value and each string of a block has a header.
function longest(values, isLatin1) {
  let sum = 0;
  for (const value of values) {
    sum += kHead;
    if (typeof value === 'string') sum += most(value, isLatin1);
    else if (value?.length) for (const text of value) sum += kHead + most(text, isLatin1);
  }
  return sum;
}

// Memory accesses the memory of a module, and writes calls to the place from which the module reads them.
export class Memory {
  #exports;
  #isLatin1;
  #bytes = new Uint8Array();
  #view;
  #numbers;
  #room = 0;
  #begin;

  constructor(exports, isLatin1) {
    this.#exports = exports;
    this.#isLatin1 = isLatin1;
  }

  // #look renews the views if memory has grown, because older views are then empty.
  #look() {
    if (this.#bytes.length > 0) return;
    const {buffer} = this.#exports.memory;
    this.#bytes = new Uint8Array(buffer);
    this.#view = new DataView(buffer);
    this.#numbers = new Int32Array(buffer);
  }

  write(check, values) {
    const size = longest(values, this.#isLatin1);
    if (size > this.#room) {
      this.#begin = this.#exports.reserve(size);
      this.#room = size;
    }
    this.#look();
    const bytes = this.#bytes;
    let at = this.#begin;
    for (let i = 0; i < values.length; ++i) {
      const value = values[i];
      if (value === null) {
        bytes[at++] = kNull;
      } else if (typeof value === 'string') {
        bytes[at++] = kText;
        at = this.#put(at, value);
      } else {
        const {kind} = check.arguments[i];
        bytes[at++] = kind === 'blocks' ? kBlocks : kind === 'unsigned' ? kUnsigned : kInteger;
        this.#view.setUint32(at, kind === 'blocks' ? value.length : value, true);
        at += 4;
        if (kind === 'blocks') for (const text of value) at = this.#put(at, text);
      }
    }
  }

  #put(at, text) {
    const end = put(this.#bytes, at + 4, text, this.#isLatin1);
    this.#view.setUint32(at, end - at - 4, true);
    return end;
  }

  // numbers returns the memory as an array of 32-bit numbers, which is valid until the next call is written.
  numbers() {
    this.#look();
    return this.#numbers;
  }

  text(at, length) {
    return take(this.#bytes, at, length, true);
  }

  // sentence reads ASCII text, for which the decoder is fastest.
  sentence(at, length) {
    return decoder.decode(this.#bytes.subarray(at, at + length));
  }
}

const asText = (text) => text;
const asData = (json) => Object.freeze(JSON.parse(json));

const whole = (low, high) => (low >> 31 === high ? low : high * 2 ** 32 + (low >>> 0));

// Reasons is an instance of the module. Strings whose addresses stay valid are read only once.
class Reasons {
  #exports;
  #memory;
  #told;  // the index of the first number of the reason
  #keptData = new Map();

  constructor(module, {isLatin1, isLong64, channels}) {
    const {exports} = new WebAssembly.Instance(module);
    this.#exports = exports;
    this.#memory = new Memory(exports, isLatin1);
    this.#told = exports.told() / 4;
    exports.configure(isLong64);
    channels.forEach((channel) => exports.add_channel(channel));
  }

  #kept(at, length, made) {
    let kept = this.#keptData.get(at);
    if (kept === undefined) this.#keptData.set(at, kept = made(this.#memory.text(at, length)));
    return kept;
  }

  #keptText(at, length) {
    return this.#kept(at, length, asText);
  }

  #datum(numbers, field) {
    const first = numbers[field + 1];
    const second = numbers[field + 2];
    switch (numbers[field]) {
      case kNumber:
        return whole(first, second);
      case kDatumText:
        return this.#memory.text(first, second);
      case kNumbers:
      case kTexts: {
        const list = [];
        const isText = numbers[field] === kTexts;
        for (let at = first >> 2, left = second; left > 0; --left, at += 2) {
          list.push(isText ? this.#keptText(numbers[at], numbers[at + 1]) : whole(numbers[at], numbers[at + 1]));
        }
        return list;
      }
      case kKeptJson:
        return this.#kept(first, second, asData);
      default:
        return JSON.parse(this.#memory.text(first, second));
    }
  }

  explain({check, number}, values) {
    this.#memory.write(check, values);
    return this.#exports.explain(number) === 0 ? null : this.#reason(check);
  }

  #reason(check) {
    const memory = this.#memory;
    const numbers = memory.numbers();
    const at = this.#told;
    const textAt = (field) => this.#keptText(numbers[at + field], numbers[at + field + 1]);
    const reason = {id: textAt(kId)};
    if (numbers[at + kArgument] >= 0) reason.argument = check.arguments[numbers[at + kArgument]].name;
    if (numbers[at + kPart + 1] > 0) reason.part = memory.text(numbers[at + kPart], numbers[at + kPart + 1]);
    if (numbers[at + kConversion + 1] > 0) reason.conversion = textAt(kConversion);
    if (numbers[at + kItem] >= 0) reason.item = numbers[at + kItem];
    if (numbers[at + kItemText + 1] > 0) {
      reason.item_text = memory.text(numbers[at + kItemText], numbers[at + kItemText + 1]);
    }
    if (numbers[at + kOffset] >= 0) reason.offset = numbers[at + kOffset];
    if (numbers[at + kFound] !== kNothing) reason.found = this.#datum(numbers, at + kFound);
    if (numbers[at + kAllowed] !== kNothing) reason.allowed = this.#datum(numbers, at + kAllowed);
    if (numbers[at + kReadAs] !== kNothing) reason.read_as = this.#datum(numbers, at + kReadAs);
    if (numbers[at + kLimit + 1] > 0) reason.limit = textAt(kLimit);
    reason.text = memory.sentence(numbers[at + kSentence], numbers[at + kSentence + 1]);
    return reason;
  }

  tooMuchWork() {
    this.#exports.too_much_work();
    return this.#reason();
  }
}

export function reasonsOf(module, options) {
  let reasons = new Reasons(module, options);
  return (judged, values) => {
    try {
      return reasons.explain(judged, values);
    } catch (error) {
      // The module traps if a value is too long. A new instance then replaces it.
      if (!(error instanceof WebAssembly.RuntimeError)) throw error;
      reasons = new Reasons(module, options);
      return reasons.tooMuchWork();
    }
  };
}
