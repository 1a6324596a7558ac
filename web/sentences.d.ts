import type {Reason} from './index.js';
import type {Language} from './sentences/language.js';

export interface SentenceOptions {
  /** The value of the argument. If it is given, characters are shown and counted instead of bytes. */
  text?: string;
  encoding?: 'utf-8' | 'latin1';
  /** The subject of the sentence. The default is the language's "the value". */
  subject?: string;
}

/** Returns a sentence that explains why a value was refused. */
export function sentence(reason: Reason, language: Language, options?: SentenceOptions): string;

/** Returns the same sentence without the initial capital, the full stop and the default subject. */
export function clause(reason: Reason, language: Language, options?: SentenceOptions): string;

/** Returns the number of bytes that a string occupies on the gateway. */
export function bytesOf(text: string, encoding?: 'utf-8' | 'latin1'): number;

/** Returns the character that contains the byte at an offset, its number (from 0), and its index in the string. */
export function placeOf(text: string, offset: number, encoding?: 'utf-8' | 'latin1'):
    {character: string; number: number; index: number};
