// Renders the HTML of the reference, which contains an article for each check in the catalogue.

export const escaped = (text) => String(text).replace(/[&<>"]/g, (c) => `&#${c.charCodeAt(0)};`);
const code = (text) => `<code>${escaped(text)}</code>`;
const codes = (texts) => `<ul class="words">${texts.map((text) => `<li>${code(text === '' ? '""' : text)}</li>`).join('')}</ul>`;

// visible returns a visible form of a character, which stands for a byte. An invisible byte is shown in hexadecimal.
function visible(c) {
  if (c === ' ') return 'blank';
  return c > ' ' && c <= '~' ? c : `\\x${c.charCodeAt(0).toString(16).toUpperCase().padStart(2, '0')}`;
}

// runs describes a set of characters as ranges, for example "A to Z".
export function runs(members) {
  const result = [];
  for (let i = 0; i < members.length; ++i) {
    const begin = i;
    while (members.charCodeAt(i + 1) === members.charCodeAt(i) + 1) ++i;
    if (i - begin >= 3) result.push(`${visible(members[begin])} to ${visible(members[i])}`);
    else result.push(...[...members.slice(begin, i + 1)].map(visible));
  }
  return result;
}

function span(low, high, unit = '') {
  if (low === high) return `${low}${unit}`;
  if (low === undefined) return `at most ${high}${unit}`;
  return high === undefined ? `at least ${low}${unit}` : `${low} to ${high}${unit}`;
}

const shapeOf = (groups) => groups.map(({characters, least, most}) => {
  const set = characters.length === 1 ? characters : `[${runs(characters).join(' ')}]`;
  if (least === 1 && most === 1) return set;
  return `${set}{${least === most ? least : `${least},${most}`}}`;
}).join(' ');

// rowsOf lists the limits of a value as pairs of a term and its HTML.
function rowsOf(form) {
  const rows = [];
  const add = (term, html) => rows.push([term, html]);
  if (form.lengths) add('Length', `${form.lengths.join(', ')} bytes`);
  else if (form.min_length || form.max_length !== undefined) {
    add('Length', span(form.min_length, form.max_length, ' bytes'));
  }
  if (form.characters) add('Bytes', codes(runs(form.characters)));
  if (form.keywords) add(form.case_sensitive ? 'One of' : 'One of, in any case', codes(form.keywords));
  if (form.prefixes) add('Begins with', codes(form.prefixes));
  if (form.shape) add('Shape', codes(form.shape.map(shapeOf)));
  if (form.minimum !== undefined || form.maximum !== undefined) add('Number', span(form.minimum, form.maximum));
  if (form.separator) {
    const items = form.min_items || form.max_items ? `${span(form.min_items, form.max_items)} items` : 'items';
    add('List', `${items}, separated by ${code(form.separator)}`);
  }
  if (form.item) for (const [term, html] of rowsOf(form.item)) add(`Each item: ${term.toLowerCase()}`, html);
  if (form.pattern) add('Pattern', code(form.pattern));
  return rows;
}

const list = (rows) => `<dl>${rows.map(([term, html]) => `<div><dt>${term}</dt><dd>${html}</dd></div>`).join('')}</dl>`;

function constraintsOf(said) {
  if (!said) return '';
  const rows = rowsOf(said);
  for (const [limit, argument] of Object.entries(said.limits ?? {})) {
    rows.push([limit.replace('_', ' ').replace(/^./, (c) => c.toUpperCase()), `the value of ${code(argument)}`]);
  }
  if (said.depends_on) rows.push(['Depends on', said.depends_on.map(code).join(', ')]);
  if (rows.length === 0) return '';
  const claim = said.exact ? 'Exactly these values are accepted'
    : said.necessary ? 'Every accepted value is within these limits; others within them may be refused' : 'Every value within these limits is accepted';
  const offered = said.recommended ? rowsOf(said.recommended) : [];
  return `<h4>Constraints</h4>${list(rows)}<p class="claim">${claim}${said.reads_number ? ', except for numbers that do not fit in 32 bits' : ''}.</p>${
    offered.length > 0 ? `<h4>What a form should offer</h4>${list(offered)}` : ''}`;
}

function argumentOf(argument) {
  const rows = [];
  const add = (term, text) => text && rows.push([term, escaped(text)]);
  add('Unit', argument.unit);
  add('Secret', argument.secret && 'must not be shown or logged');
  add('Room', argument.room);
  add('Texts', argument.blocks && `${argument.blocks}, ${argument.block_size} bytes apart`);
  add('Afterwards', argument.written);
  add('NULL', argument.null);
  return `<section class="argument"><h3><code>${argument.name}</code> <span>${escaped(argument.what)}</span></h3>${
    rows.length > 0 ? list(rows) : ''}${constraintsOf(argument.constraints)}</section>`;
}

const printed = ({line, to, when}) =>
  `<p class="prints">${when ? `<span>${escaped(when)}</span> ` : ''}${to === 'stderr' ? '<span>standard error</span> ' : ''}${code(line)}</p>`;

function stepsOf(steps) {
  return `<ol>${steps.map((step) => `<li class="${step.step}"><p>${escaped(step.text)}</p>${
    (step.writes ?? []).map((text) => `<p class="writes">${escaped(text)}</p>`).join('')}${
    (step.prints ?? []).map(printed).join('')}${step.uses ? stepsOf(step.uses) : ''}${
    step.steps ? stepsOf(step.steps) : ''}${
    step.otherwise ? `<p class="otherwise">otherwise</p>${stepsOf(step.otherwise)}` : ''}</li>`).join('')}</ol>`;
}

const tableOf = ({columns, rows}) => `<details><summary>Table of ${rows.length} rows</summary><div class="scrolls" tabindex="0" role="region" aria-label="Table"><table>
<tr>${columns.map((name) => `<th scope="col">${escaped(name)}</th>`).join('')}</tr>
${rows.map((row) => `<tr>${row.map((cell) => `<td>${escaped(cell)}</td>`).join('')}</tr>`).join('\n')}</table></div></details>`;

function fieldsOf(check) {
  return check.arguments.filter((argument) => !argument.output_only).flatMap((argument) =>
    Array.from({length: argument.blocks ?? 1}, (_, i) => {
      const label = argument.blocks ? `${argument.name} ${i + 1}` : argument.name;
      const isNumber = ['integer', 'unsigned'].includes(argument.kind);
      return `<label><code>${label}</code><input name="${argument.name}" autocomplete="off" autocapitalize="off" spellcheck="false"${
        isNumber ? ' inputmode="numeric" value="0"' : ''}></label>`;
    })).join('');
}

export function articleOf(check) {
  const answers = check.codes.map(({code: number, name, meaning}) =>
    `<tr><td>${number}</td><td>${code(name)}</td><td>${escaped(meaning)}</td></tr>`).join('');
  return `<article id="${check.name}" aria-labelledby="${check.name}-name">
<p class="family">${check.family}</p>
<h1 id="${check.name}-name" tabindex="-1">${check.name.replace(/_/g, '_<wbr>')}</h1>
<p class="rule">${escaped(check.rule)}</p>
<pre class="declaration">${escaped(check.declaration)}</pre>
<form class="try" data-name="${check.name}" aria-label="Try ${check.name}" hidden>${fieldsOf(check)}<output></output></form>
<h2 class="part">Arguments</h2>${check.arguments.map(argumentOf).join('')}
${answers ? `<h2 class="part">Codes</h2><table class="codes">${answers}</table>` : '<h2 class="part">Return value</h2><p>A number, not a result code.</p>'}
${check.steps.length > 0 ? `<h2 class="part">Steps and printed lines</h2><div class="steps">${stepsOf(check.steps)}</div>` : ''}
${(check.tables ?? []).map(tableOf).join('')}
</article>`;
}

export function indexOf(checks) {
  const families = new Map();
  for (const check of checks) families.set(check.family, [...(families.get(check.family) ?? []), check]);
  return [...families].map(([family, members]) => `<section><h2>${family}</h2><ul>${members.map((check) =>
    `<li><a href="#${check.name}"><b>${check.name.replace(/_/g, '_<wbr>')}</b> <span>${escaped(check.rule)}</span></a></li>`)
    .join('\n')}</ul></section>`).join('\n');
}
