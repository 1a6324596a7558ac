import type {Ostrel} from './index.js';
import type {Language} from './sentences/language.js';

export interface FormOptions {
  /** The language of the sentences: a file of `ostrel/sentences/`. The default is English. */
  sentences?: Language;
}

/**
 * Has the fields of a form that name a check judged while people type.
 * Returns a function that ends it.
 */
export function attach(form: HTMLFormElement, ostrel: Ostrel, options?: FormOptions): () => void;
