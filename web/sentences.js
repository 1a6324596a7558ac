// Describes a reason to the user as a sentence, in the language of a module such as sentences/en.js or sentences/de.js.

const kMostWords = 40;  // the maximum length of a list that is shown in full
const kLongest = 64;    // the maximum number of characters shown of a value
const kCategories = ['zero', 'one', 'two', 'few', 'many', 'other'];

const filledIn = (template, value) => template.replace(/\{([^}]*)\}/g, (_, name) => value(name));
const capital = (text) => text.replace(/^\p{L}/u, (letter) => letter.toUpperCase());
const isPrintable = (c) => c > ' ' && c <= '~';
const isPlain = (word) => word !== '' && [...word].every((c) => isPrintable(c) && c !== ',' && c !== '"');
const inHex = (byte) => `\\x${byte.toString(16).toUpperCase().padStart(2, '0')}`;

// inCommon returns the length of the longest common substring.
function inCommon(one, other) {
  let longest = 0;
  for (let i = 0; i + longest < one.length; ++i) {
    while (i + longest < one.length && other.includes(one.slice(i, i + longest + 1))) ++longest;
  }
  return longest;
}

function countOf(datum) {
  if (typeof datum === 'number') return datum;
  return datum?.members?.length ?? (Array.isArray(datum) ? datum.length : 1);
}

export function bytesOf(text, encoding = 'utf-8') {
  let bytes = 0;
  for (const character of text) {
    const c = character.codePointAt(0);
    if (encoding === 'latin1' || c < 0x80) bytes += 1;
    else if (c < 0x800) bytes += 2;
    else bytes += c < 0x10000 ? 3 : 4;
  }
  return bytes;
}

// After the last byte, the character that placeOf returns is empty.
export function placeOf(text, offset, encoding) {
  let bytes = 0;
  let index = 0;
  let number = 0;
  for (const character of text) {
    bytes += bytesOf(character, encoding);
    if (bytes > offset) return {character, index, number};
    index += character.length;
    ++number;
  }
  return {character: '', index, number};
}

// Teller describes one reason. Each character in a reason's strings stands for one byte. The strings are decoded if an
// encoding is given.
class Teller {
  constructor(reason, language, {subject = '', text, encoding}) {
    Object.assign(this, {reason, language, subject, encoding});
    const isMapped = text !== undefined && reason.offset !== undefined && !reason.conversion;
    this.place = isMapped ? placeOf(text, reason.offset, encoding) : null;
  }

  // escaped returns the beginning of a string, with escapes for invisible characters.
  escaped(bytes) {
    let text = bytes.slice(0, kLongest);
    if (this.encoding === 'utf-8') {
      text = new TextDecoder().decode(Uint8Array.from(text, (c) => c.charCodeAt(0)));
    }
    const kept = this.encoding === undefined ? /[^ -~]/g : /[\0-\x1f\x7f-\xa0]/g;
    text = text.replace(/["\\]/g, '\\$&').replace(kept, (c) => inHex(c.charCodeAt(0)));
    return text + (bytes.length > kLongest ? '...' : '');
  }

  quoted(bytes) {
    return filledIn(this.language.quoted, () => this.escaped(bytes));
  }

  // shown returns a character in the form used in a sentence. If isByte is true, only one byte of it is known.
  shown(character, isByte) {
    if (character === ' ') return this.phrased('a space');
    if (character === '"') return this.phrased('a quotation mark');
    if (isPrintable(character) || (!isByte && character > '\xa0' && character !== '\xad')) {
      return filledIn(this.language.quoted, () => character);
    }
    return inHex(character.codePointAt(0));
  }

  // byte returns the offending character, or only the offending byte if the value is unknown.
  byte() {
    const {found} = this.reason;
    if (this.place?.character) return this.shown(this.place.character, false);
    return typeof found === 'string' && found !== '' ? this.shown(found, true) : '';
  }

  // phrased translates the fixed phrases in the names of parts and sets.
  phrased(text) {
    const known = Object.keys(this.language.phrases).sort((a, b) => b.length - a.length);
    if (known.length === 0) return text;
    const any = new RegExp(known.map((phrase) => phrase.replace(/[^\w ]/g, '\\$&')).join('|'), 'g');
    return text.replace(any, (phrase) => this.language.phrases[phrase]);
  }

  words(datum) {
    if (datum === undefined) return this.language.hidden;
    if (typeof datum === 'number') return String(datum);
    if (typeof datum === 'string') return this.quoted(datum);
    if (datum.members?.length === 1) return this.shown(datum.members, true);
    if (!Array.isArray(datum)) return this.phrased(datum.text);
    if (datum.length <= kMostWords) {
      return datum.map((word) => (typeof word === 'number' || isPlain(word) ? word : this.quoted(word))).join(', ');
    }
    const {found} = this.reason;
    const judged = typeof found === 'string' ? found.slice(0, kLongest).toLowerCase() : '';
    const alike = datum.map((word) => inCommon(judged, word.toLowerCase()));
    const nearest = datum[alike.indexOf(Math.max(...alike))];
    return filledIn(this.language.nearest, (name) => (name === 'count' ? datum.length : this.quoted(nearest)));
  }

  // form selects a plural form of the language.
  form(datum, forms) {
    const rules = new Intl.PluralRules(this.language.locale);
    const categories = kCategories.filter((one) => rules.resolvedOptions().pluralCategories.includes(one));
    return forms[categories.indexOf(rules.select(Math.max(0, countOf(datum))))] ?? forms.at(-1);
  }

  parameter(name) {
    const {reason, language} = this;
    const colon = name.indexOf(':');
    if (colon >= 0) return this.form(reason[name.slice(0, colon)], name.slice(colon + 1).split('|'));
    switch (name) {
      case 'found':
        return reason.id === 'number_beyond_int' ? this.escaped(reason.found) : this.words(reason.found);
      case 'allowed':
        return this.words(reason.allowed);
      case 'byte':
        return this.byte();
      case 'position':
        return reason.offset + 1;
      case 'character':
        return (this.place?.number ?? reason.offset) + 1;
      case 'form':
        return this.phrased(reason.allowed);
      case 'range':
        return filledIn(language.range, (end) => (end === 'low' ? reason.allowed[0] : reason.allowed.at(-1)));
      case 'read':
        return reason.read_as === undefined ? '' : language.read;
      case 'read_as':
        return reason.read_as;
      case 'limit': {
        const limit = language.sentences[reason.limit] ?? '';
        return limit.includes(';') ? this.filled(limit.slice(limit.indexOf(';'))) : '';
      }
      default:
        throw new Error(`there is no parameter ${name}`);
    }
  }

  filled(template) {
    return filledIn(template, (name) => (name === 'subject' ? this.subject : this.parameter(name)));
  }

  item() {
    const {item, item_text: text} = this.reason;
    const template = text ? this.language.item_text : this.language.item;
    return filledIn(template, (name) => (name === 'item' ? item + 1 : this.quoted(text)));
  }

  tell() {
    const {reason, language} = this;
    const template = language.sentences[reason.id];
    if (template === undefined) return '';
    const speaksOfIt = template.includes('{subject}');
    const part = reason.part && this.phrased(reason.part);
    const item = reason.item === undefined ? '' : this.item();
    this.subject = part ?? (item || this.subject);
    let said = this.filled(template).trimStart();
    if (part && !speaksOfIt) said = filledIn(language.within, (name) => (name === 'part' ? part : said));
    if (reason.conversion) said += ` (${this.phrased(reason.conversion)})`;
    return item && (part || !speaksOfIt) ? `${item}: ${said}` : said;
  }
}

export const clause = (reason, language, options = {}) => new Teller(reason, language, options).tell();

export function sentence(reason, language, options = {}) {
  const said = clause(reason, language, {subject: language.subject, ...options});
  return said === '' ? language.refused : `${capital(said)}.`;
}
