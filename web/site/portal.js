// Starts the specimen portal, whose form fields are judged while the user types.

import {load} from './ostrel/index.js';
import {attach} from './ostrel/form.js';
import english from './ostrel/sentences/en.js';
import german from './ostrel/sentences/de.js';

const kChannels = [1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 36, 40, 44, 48];

// chosen reads the gateway's properties and the language from a query such as ?encoding=latin1&long=64&lang=de.
function chosen() {
  const given = new URLSearchParams(location.search);
  return {
    isGerman: given.get('lang') === 'de',
    encoding: given.get('encoding') ?? 'utf-8',
    long: Number(given.get('long') ?? 32),
  };
}

function translate(root) {
  document.documentElement.lang = 'de';
  root.querySelectorAll('[data-de]').forEach((one) => {
    one.textContent = one.dataset.de;
  });
}

export async function startPortal(root, sources = {}) {
  const {isGerman, encoding, long} = chosen();
  const [current] = root.querySelectorAll(`.languages [lang=${isGerman ? 'de' : 'en'}]`);
  current.setAttribute('aria-current', 'true');
  if (isGerman) translate(root);
  let ostrel;
  try {
    ostrel = await load({encoding, long, channels: kChannels, ...sources});
  } catch (error) {
    const failed = root.querySelector('.failed');
    failed.textContent = error.message;
    failed.hidden = false;
    throw error;
  }
  const saved = isGerman ? 'Gespeichert.' : 'Saved.';
  for (const form of root.querySelectorAll('form')) {
    attach(form, ostrel, {sentences: isGerman ? german : english});
    const status = form.querySelector('.saved');
    form.addEventListener('submit', (event) => {
      event.preventDefault();
      status.textContent = saved;
    });
    form.addEventListener('input', () => {
      status.textContent = '';
    });
  }
  root.dataset.ready = 'true';
}
