import type {Reason} from './index.js';
import type {Language} from './sentences/language.js';

export interface SentenceOptions {
  /** The value of the argument, so that characters are shown and counted instead of bytes. */
  text?: string;
  encoding?: 'utf-8' | 'latin1';
  /** The subject of the sentence. The default is the language's "the value". */
  subject?: string;
}

/** Says why a value was refused, as a sentence. */
export function sentence(reason: Reason, language: Language, options?: SentenceOptions): string;

/** The same without an initial capital, a full stop and an added subject. */
export function clause(reason: Reason, language: Language, options?: SentenceOptions): string;

/** The bytes of a text as the gateway stores it. */
export function bytesOf(text: string, encoding?: 'utf-8' | 'latin1'): number;

/** The character that contains the byte, its number (from 0), and its offset in the text. */
export function placeOf(text: string, offset: number, encoding?: 'utf-8' | 'latin1'):
    {character: string; number: number; index: number};
