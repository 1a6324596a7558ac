import type {Reason} from './index.js';
import type {Language} from './sentences/language.js';

export interface SentenceOptions {
  /** The value of the argument, so that characters are shown and counted instead of bytes. */
  text?: string;
  encoding?: 'utf-8' | 'latin1';
  /** What the sentence speaks of. By default the language's "the value". */
  subject?: string;
}

/** Says why a value was refused, as a sentence. */
export function sentence(reason: Reason, language: Language, options?: SentenceOptions): string;

/** The same without a capital letter, a full stop, and a subject of its own. */
export function clause(reason: Reason, language: Language, options?: SentenceOptions): string;

/** The bytes of a text as the gateway stores it. */
export function bytesOf(text: string, encoding?: 'utf-8' | 'latin1'): number;

/** The character that has the byte, which one it is (from 0), and where it begins in the text. */
export function placeOf(text: string, offset: number, encoding?: 'utf-8' | 'latin1'):
    {character: string; number: number; index: number};
