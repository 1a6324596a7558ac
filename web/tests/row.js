// Reads the rows of vectors/*.ndjson, which vectors/README.md explains. Each character of a string is one byte.

function textOf(json) {
  if (typeof json === 'string') return json;
  if ('repeat' in json) return textOf(json.repeat).repeat(json.times);
  return json.join.map(textOf).join('');
}

function valueOf(json) {
  if (json === null || typeof json === 'number') return json;
  return Array.isArray(json) ? json.map(textOf) : textOf(json);
}

// answerOf returns the result for a long of the given size in bits, or null if the row has no result for it.
function answerOf(row, long) {
  if (row.overflow && long === 32) return null;
  const answer = (long === 32 && row.long32) || row;
  return {
    code: answer.code,
    out: textOf(answer.out ?? ''),
    flushed: answer.flushed ?? true,
    err: textOf(answer.err ?? ''),
    after: answer.after?.map(valueOf),
    reason: answer.reason,
  };
}

export const rowsOf = (name, lines) => lines.split('\n').filter(Boolean).map((line, i) => {
  const row = JSON.parse(line);
  return {
    place: `${name}:${i + 1}`,
    check: row.check,
    values: row.args.map(valueOf),
    depends: row.overflow || row.long32 !== undefined,  // whether the row depends on the size of a long
    answers: {32: answerOf(row, 32), 64: answerOf(row, 64)},
  };
});
