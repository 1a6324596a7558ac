// Copies strings into and out of a module's memory. A value that cannot be passed unchanged causes an error.

const kHighSurrogates = 0xd800;
const kLowSurrogates = 0xdc00;
const kAfterSurrogates = 0xe000;

// put writes the string and a terminator, and returns the offset of the terminator.
export function put(bytes, at, text, isLatin1) {
  for (let i = 0; i < text.length; ++i) {
    let c = text.charCodeAt(i);
    if (c === 0) throw new RangeError('a value contains U+0000');
    if (c < 0x80 || (isLatin1 && c < 0x100)) {
      bytes[at++] = c;
      continue;
    }
    if (isLatin1) throw new RangeError('a value is not in Latin-1');
    if (c >= kHighSurrogates && c < kAfterSurrogates) {
      const low = text.charCodeAt(++i);
      if (c >= kLowSurrogates || !(low >= kLowSurrogates && low < kAfterSurrogates)) {
        throw new RangeError('a value contains a lone surrogate');
      }
      c = 0x10000 + ((c - kHighSurrogates) << 10) + (low - kLowSurrogates);
      bytes[at++] = 0xf0 | (c >> 18);
      bytes[at++] = 0x80 | ((c >> 12) & 0x3f);
    } else if (c >= 0x800) {
      bytes[at++] = 0xe0 | (c >> 12);
    }
    bytes[at++] = c < 0x800 ? 0xc0 | (c >> 6) : 0x80 | ((c >> 6) & 0x3f);
    bytes[at++] = 0x80 | (c & 0x3f);
  }
  bytes[at] = 0;
  return at;
}

// most returns the maximum number of bytes that put writes.
export const most = (text, isLatin1) => text.length * (isLatin1 ? 1 : 3) + 1;

const decoder = new TextDecoder('utf-8', {ignoreBOM: true});
const kShort = 64;      // in bytes; strings up to this size are decoded faster without the decoder
const kAtOnce = 0x1000;  // the number of bytes that are passed as arguments to one call

export function take(bytes, at, length, isLatin1) {
  const end = at + length;
  let text = '';
  if (length > kShort && !isLatin1) return decoder.decode(bytes.subarray(at, end));
  if (length > kShort) {
    for (; at < end; at += kAtOnce) {
      text += String.fromCharCode(...bytes.subarray(at, Math.min(at + kAtOnce, end)));
    }
    return text;
  }
  for (let i = at; i < end; ++i) {
    if (bytes[i] >= 0x80 && !isLatin1) return decoder.decode(bytes.subarray(at, end));
    text += String.fromCharCode(bytes[i]);
  }
  return text;
}

// taken decodes the bytes up to the terminator, but at most room bytes.
export function taken(bytes, at, room, isLatin1) {
  const end = bytes.indexOf(0, at);
  return take(bytes, at, end < 0 ? room : Math.min(end - at, room), isLatin1);
}
