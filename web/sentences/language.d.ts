/** The texts of one language. README.md explains how to add another. */
export interface Language {
  /** For plural forms: 'en'. */
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
  /** Keyed by the id of the reason. */
  readonly sentences: Readonly<Record<string, string>>;
  /** Keyed by their English form. */
  readonly phrases: Readonly<Record<string, string>>;
}

declare const language: Language;
export default language;
