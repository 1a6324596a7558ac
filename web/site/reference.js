// Starts the reference, with its articles, its search, and the fields for trying checks.

import english from './ostrel/sentences/en.js';
import {sentence} from './ostrel/sentences.js';

const escapes = {'\n': '\\n', '\t': '\\t', '\r': '\\r'};
const visible = (text) => text.replace(/[\n\t\r]/g, (c) => escapes[c]);

function shown(name, className, text) {
  const made = document.createElement(name);
  made.className = className;
  made.textContent = text;
  return made;
}

const articleOf = (hash) => document.getElementById(hash)?.closest('main > *');

function route() {
  const hash = decodeURIComponent(location.hash.slice(1));
  const article = articleOf(hash) ?? document.getElementById('about');
  for (const one of document.querySelectorAll('main > *')) one.hidden = one !== article;
  document.body.classList.toggle('chosen', article.id !== 'about');
  for (const link of document.querySelectorAll('.index a')) {
    if (link.hash === `#${article.id}`) link.setAttribute('aria-current', 'page');
    else link.removeAttribute('aria-current');
  }
  return article;
}

function search() {
  const field = document.getElementById('search');
  const items = [...document.querySelectorAll('.index li')].map((item) => {
    const {hash} = item.querySelector('a');
    return {item, text: document.querySelector(hash).textContent.toLowerCase(), name: hash.slice(1).toLowerCase()};
  });
  field.addEventListener('input', () => {
    const words = field.value.toLowerCase().split(/\s+/).filter(Boolean);
    let hits = 0;
    for (const {item, text, name} of items) {
      item.hidden = !words.every((word) => text.includes(word) || name.includes(word));
      if (!item.hidden) ++hits;
    }
    for (const section of document.querySelectorAll('.index section')) {
      section.hidden = section.querySelector('li:not([hidden])') === null;
    }
    document.getElementById('hits').textContent =
      words.length === 0 ? '' : `${hits || 'No'} ${hits === 1 ? 'check' : 'checks'}`;
  });
  field.form.addEventListener('submit', (event) => {
    event.preventDefault();
    document.querySelector('.index li:not([hidden]) a')?.click();
  });
}

function valuesOf(form, check) {
  return check.arguments.filter(({output}) => !output).map(({name, kind}) => {
    const inputs = [...form.elements].filter((input) => input.name === name);
    if (kind === 'blocks') return inputs.map(({value}) => value);
    return kind === 'integer' || kind === 'unsigned' ? Number(inputs[0].value) : inputs[0].value;
  });
}

function verdictOf({valid, code, name, lines, stderr, after}) {
  const parts = [];
  if (valid === null) parts.push(shown('p', 'verdict', `Returns ${code}`));
  else parts.push(shown('p', `verdict ${valid ? 'good' : 'bad'}`, valid ? 'Accepted' : `Refused: ${code} ${name}`));
  for (const line of [...lines, ...stderr]) parts.push(shown('code', 'line', visible(line)));
  for (const [argument, held] of Object.entries(after)) {
    parts.push(shown('p', 'after', `${argument} becomes ${JSON.stringify(held)}`));
  }
  return parts;
}

function tryOut(form, ostrel) {
  const check = ostrel.checks.find(({name}) => name === form.dataset.name);
  const output = form.querySelector('output');
  let turn = 0;
  form.hidden = false;
  form.addEventListener('submit', (event) => event.preventDefault());
  form.addEventListener('input', async () => {
    const now = ++turn;
    try {
      const values = valuesOf(form, check);
      const verdict = ostrel.judge(check.name, ...values);
      output.replaceChildren(...verdictOf(verdict));
      const reason = await verdict.reason;
      if (!reason || now !== turn) return;
      const at = check.arguments.findIndex(({name}) => name === reason.argument);
      const value = Array.isArray(values[at]) ? values[at][reason.item] : values[at];
      const text = typeof value === 'string' ? value : undefined;
      output.querySelector('.verdict').after(
        shown('p', 'reason', sentence(reason, english, {text, encoding: ostrel.encoding})));
    } catch (error) {
      output.replaceChildren(shown('p', 'verdict bad', error.message));
    }
  });
}

export function startReference(ostrel) {
  document.querySelectorAll('form.try').forEach((form) => tryOut(form, ostrel));
  search();
  route();
  window.addEventListener('hashchange', () => {
    const article = route();
    window.scrollTo(0, 0);
    article.querySelector('h1').focus();
  });
  document.body.dataset.ready = 'true';
}
