// Shows an excerpt of a value in which the offending character is marked.

import {placeOf} from './sentences.js';

const kAround = 16;  // the number of characters shown on each side
const kHidden = '\u2022';

// excerptOf returns an element that shows the excerpt. If the value is secret, only the offending character is legible.
export function excerptOf(value, offset, encoding, isSecret) {
  const {character, index} = placeOf(value, offset, encoding);
  const shown = (part) => [...(isSecret ? kHidden.repeat([...part].length) : part)];
  const before = shown(value.slice(0, index));
  const after = shown(value.slice(index + character.length));
  const excerpt = document.createElement('code');
  excerpt.className = 'ostrel-excerpt';
  excerpt.setAttribute('aria-hidden', 'true');
  const mark = document.createElement('mark');
  mark.textContent = character.replace(' ', '\u2423') || '\u00a0';
  excerpt.append(before.length > kAround ? '\u2026' : '', before.slice(-kAround).join(''), mark,
                 after.slice(0, kAround).join(''), after.length > kAround ? '\u2026' : '');
  return excerpt;
}
