import type {Ostrel} from './index.js';
import type {Language} from './sentences/language.js';

export interface FormOptions {
  /** The language of the sentences, imported from `ostrel/sentences/`. The default is English. */
  sentences?: Language;
}

/** Judges each field that names a check while the user types. Returns a function that detaches the checks. */
export function attach(form: HTMLFormElement, ostrel: Ostrel, options?: FormOptions): () => void;
