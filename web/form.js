// Judges the fields of a form with the gateway's checks while the user types.

import {excerptOf} from './excerpt.js';
import english from './sentences/en.js';
import {bytesOf, sentence} from './sentences.js';

const kMostWide = 16;  // the maximum number of multi-byte characters that are listed

let ids = 0;

const filledIn = (template, values) => template.replace(/\{(\w+)\}/g, (_, name) => values[name]);

// parsed parses the data-with attribute, whose items have the form "argument=field" or "argument:constant".
function parsed(text = '') {
  return new Map(text.split(/\s+/).filter(Boolean).map((item) => {
    const [, name, sign, value] = item.match(/^(\w+)([=:])(.*)$/) ?? [];
    if (name === undefined) throw new SyntaxError(`data-with contains an invalid item: ${item}`);
    return [name, sign === '=' ? {fields: value.split(',')} : {constant: value}];
  }));
}

function element(name, className, parent) {
  const made = document.createElement(name);
  if (className) made.className = className;
  if (parent) parent.append(made);
  else made.id = `ostrel-${++ids}`;
  return made;
}

// Field is a form field that a check judges. Several fields of a form can be arguments of one call.
class Field {
  #turn = 0;
  #made = [];
  #reason;
  #bytes;
  #mostBytes;

  constructor(input, form, ostrel, words, all) {
    Object.assign(this, {input, form, ostrel, words, all});
    this.check = ostrel.checks.find(({name}) => name === input.dataset.check);
    if (!this.check) throw new RangeError(`there is no check ${input.dataset.check}`);
    this.with = parsed(input.dataset.with);
    const given = this.check.arguments.filter(({output}) => !output);
    this.argument = given.find(({name}) => name === (input.dataset.argument ?? given[0].name));
    if (!this.argument) throw new RangeError(`${this.check.name} has no argument ${input.dataset.argument}`);
    this.#values();
    this.#reason = this.#place('ostrel-reason');
    this.#reason.setAttribute('aria-live', 'polite');
    this.#bytes = this.#place('ostrel-bytes');
    this.#prepare().catch(() => {});  // if this fails, no keywords are offered
  }

  get #isSecret() {
    return this.argument.secret || this.input.type === 'password';
  }

  get isJudged() {
    return this.input.willValidate && (this.input.value !== '' || this.input.required);
  }

  // dependsOn returns whether the field must be judged again when the input changes.
  dependsOn(input) {
    return input === this.input || [...this.with.values()].some(({fields}) => fields?.includes(input.name));
  }

  judge() {
    const turn = ++this.#turn;
    const {input} = this;
    this.#showBytes();
    if (!this.isJudged) return this.#settle();
    const values = this.#values();
    let verdict;
    try {
      verdict = this.ostrel.judge(this.check.name, ...values);
    } catch (error) {
      if (error instanceof TypeError) return this.#refuse(this.words.refused);  // the value is not a number
      return this.#refuse(error instanceof RangeError ? this.words.cannot_be_stored : this.words.stops);
    }
    if (verdict.valid !== false) return this.#settle();
    // The form is blocked immediately. The reason is shown later, unless the user has typed more by then.
    input.setCustomValidity(this.words.refused);
    Promise.resolve().then(() => turn === this.#turn && verdict.reason).then(
      (reason) => turn === this.#turn && this.#tell(reason),
      () => turn === this.#turn && this.#refuse(this.words.refused));
  }

  // forget invalidates a pending reason.
  forget() {
    ++this.#turn;
  }

  detach() {
    this.forget();
    this.#settle();
    this.#made.forEach((made) => {
      made.remove();
      const described = (this.input.getAttribute('aria-describedby') ?? '').split(' ')
        .filter((id) => id && id !== made.id);
      if (described.length > 0) this.input.setAttribute('aria-describedby', described.join(' '));
      else this.input.removeAttribute('aria-describedby');
      if (this.input.getAttribute('list') === made.id) this.input.removeAttribute('list');
    });
  }

  #input(name) {
    const found = this.form.elements.namedItem(name);
    if (!found) throw new RangeError(`the form has no field ${name}`);
    return found;
  }

  #values() {
    const kinds = {blocks: (texts) => texts, integer: ([text]) => Number(text)};
    kinds.unsigned = kinds.integer;
    return this.check.arguments.filter(({output}) => !output).map((argument) => {
      const {fields, constant} = this.with.get(argument.name) ?? {};
      const isOwn = argument === this.argument;
      if (!isOwn && fields === undefined && constant === undefined) {
        throw new RangeError(`data-with of ${this.input.name} must name ${argument.name}`);
      }
      const texts = fields?.map((name) => this.#input(name).value) ?? [isOwn ? this.input.value : constant];
      return kinds[argument.kind]?.(texts) ?? texts[0];
    });
  }

  // #place adds an element that describes the field. It is placed after the field or after the label around it.
  #place(className) {
    const made = element('p', className);
    this.#made.push(made);
    made.hidden = className !== 'ostrel-reason';
    const {input} = this;
    (this.#reason ?? input.closest('label') ?? input).after(made);
    const described = input.getAttribute('aria-describedby');
    input.setAttribute('aria-describedby', described ? `${described} ${made.id}` : made.id);
    return made;
  }

  // #prepare offers keywords, and determines how many bytes are allowed.
  async #prepare() {
    const constraints = await this.check.constraints;
    const limits = constraints[this.check.arguments.indexOf(this.argument)];
    if (!limits) return;
    const keywords = limits.recommended?.keywords ?? limits.keywords;
    // The length is not shown for keywords, lists and values of a fixed shape.
    if (!keywords && !limits.shape && !limits.separator) this.#mostBytes = limits.max_length;
    this.#showBytes();
    const {input} = this;
    if (!keywords || input.list !== null || input.localName !== 'input') return;
    const list = element('datalist', 'ostrel-keywords');
    this.#made.push(list);
    list.append(...keywords.filter(Boolean).map((word) => new Option(word, word)));
    this.#reason.before(list);
    input.setAttribute('list', list.id);
  }

  #settle() {
    this.input.setCustomValidity('');
    this.input.removeAttribute('aria-invalid');
    this.#reason.replaceChildren();
  }

  #refuse(message) {
    this.input.setCustomValidity(message);
    this.input.setAttribute('aria-invalid', 'true');
    this.#reason.replaceChildren();
    element('span', 'ostrel-sentence', this.#reason).textContent = message;
  }

  #tell(reason) {
    if (!reason) return this.#refuse(this.words.refused);
    const {input, ostrel} = this;
    const other = this.#otherOf(reason);
    const isToldThere = ({input: one, check, isJudged}) => one === other && check === this.check && isJudged;
    if (this.all.some(isToldThere)) return this.#settle();
    const isOwn = !other && reason.argument === this.argument.name;
    const options = {encoding: ostrel.encoding};
    if (isOwn) options.text = input.value;
    if (other?.labels?.length) options.subject = `\u201c${other.labels[0].textContent.trim()}\u201d`;
    this.#refuse(sentence(reason, this.words, options));
    const tellsPlace = /\{(character|position)\}/.test(this.words.sentences[reason.id]);
    if (isOwn && tellsPlace && !reason.conversion) {
      this.#reason.append(excerptOf(input.value, reason.offset, ostrel.encoding, this.#isSecret));
    }
    const isWhole = isOwn && !reason.part && reason.item === undefined && !reason.conversion;
    if (isWhole && reason.id === 'too_long') this.#mostBytes = reason.allowed;
    this.#showBytes();
  }

  // #otherOf returns the other field to which the reason refers, or undefined if there is none.
  #otherOf({argument, item}) {
    const names = this.with.get(argument)?.fields;
    const other = names && this.#input(names[item] ?? names[0]);
    return other === this.input ? undefined : other;
  }

  // #showBytes shows the number of bytes if it is limited, and explains why some characters count more than once.
  #showBytes() {
    const {input, words, ostrel: {encoding}} = this;
    const most = this.#mostBytes;
    this.#bytes.hidden = !most || input.value === '';
    if (this.#bytes.hidden) return;
    const used = bytesOf(input.value, encoding);
    this.#bytes.replaceChildren();
    element('span', 'ostrel-count', this.#bytes).textContent = filledIn(words.bytes, {used, allowed: most});
    this.#bytes.classList.toggle('ostrel-full', used > most);
    const wide = [...new Set(input.value)].filter((character) => bytesOf(character, encoding) > 1);
    if (wide.length === 0) return;
    this.#bytes.append(' \u00b7 ');
    const note = this.#isSecret ? words.hidden_wide : wide.length === 1 ? words.one_wide : words.wide;
    element('span', 'ostrel-wide', this.#bytes).textContent = filledIn(note, {
      characters: wide.slice(0, kMostWide).join(' '), bytes: bytesOf(wide[0], encoding)});
  }
}

export function attach(form, ostrel, {sentences = english} = {}) {
  const fields = [];
  for (const input of form.elements) {
    if (input.dataset.check !== undefined) fields.push(new Field(input, form, ostrel, sentences, fields));
  }
  const judgeAll = () => fields.forEach((field) => field.judge());
  const of = (input) => fields.filter((field) => field.dependsOn(input));
  const listeners = {
    input: ({target, isComposing}) =>
      of(target).forEach((field) => (isComposing ? field.forget() : field.judge())),
    compositionend: ({target}) => of(target).forEach((field) => field.judge()),
    reset: () => setTimeout(judgeAll),
    // A script might have changed a field without firing an event.
    submit: (event) => {
      if (event.submitter?.formNoValidate) return;
      judgeAll();
      if (form.checkValidity()) return;
      event.preventDefault();
      event.stopImmediatePropagation();
      form.reportValidity();
    },
  };
  const names = Object.keys(listeners);
  names.forEach((name) => form.addEventListener(name, listeners[name], {capture: true}));
  judgeAll();
  return () => {
    names.forEach((name) => form.removeEventListener(name, listeners[name], {capture: true}));
    fields.forEach((field) => field.detach());
  };
}
