import type {Ostrel} from './index.js';
import type {Language} from './sentences/language.js';

export interface FormOptions {
  /** The language of the sentences: a file of `ostrel/sentences/`. The default is English. */
  sentences?: Language;
}

/** Judges the fields of a form that name a check while the user types. Returns a function that stops this. */
export function attach(form: HTMLFormElement, ostrel: Ostrel, options?: FormOptions): () => void;
