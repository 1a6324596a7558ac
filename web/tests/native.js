// Returns the results of the native ostrel-check. OSTREL_CHECK names the program.

import {spawnSync} from 'node:child_process';

// judgedNatively judges calls as if the wireless driver listed the given channels. As in the vectors, each character of
// a string stands for one byte.
export function judgedNatively(calls, channels = []) {
  const input = calls.map((call) => JSON.stringify(call)).join('\n');
  const words = ['batch', '--json', '--encoding', 'latin-1', '--jobs', '2', '--channels', channels.join(' ')];
  const {stdout, stderr} = spawnSync(process.env.OSTREL_CHECK, words,
                                     {input, encoding: 'utf8', maxBuffer: 2 ** 30});
  if (stdout === '') throw new Error(stderr);
  const results = stdout.trim().split('\n').map((line) => JSON.parse(line)).filter(({check}) => check !== undefined);
  if (results.length !== calls.length) throw new Error(`${results.length} answers to ${calls.length} calls: ${stderr}`);
  return results;
}
