/** The sentences and phrases of one language. README.md explains how to add a language. */
export interface Language {
  /** The locale whose plural forms are used, such as 'en'. */
  readonly locale: string;
  readonly subject: string;
  readonly item: string;
  readonly item_text: string;
  readonly within: string;
  readonly quoted: string;
  readonly hidden: string;
  readonly nearest: string;
  readonly range: string;
  readonly read: string;
  readonly refused: string;
  readonly cannot_be_stored: string;
  readonly stops: string;
  readonly bytes: string;
  readonly wide: string;
  readonly hidden_wide: string;
  readonly one_wide: string;
  /** The sentences, keyed by the id of the reason. */
  readonly sentences: Readonly<Record<string, string>>;
  /** The translations of phrases, keyed by the English phrase. */
  readonly phrases: Readonly<Record<string, string>>;
}

declare const language: Language;
export default language;
