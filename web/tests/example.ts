// The line after a comment with "@ts-expect-error" must not compile.

import {FailedAssertion, NeverReturns, load} from 'ostrel';
import type {CheckName, CodeName, Reason, Verdict} from 'ostrel';
import {attach} from 'ostrel/form';
import {bytesOf, clause, placeOf, sentence} from 'ostrel/sentences';
import german from 'ostrel/sentences/de';
import english from 'ostrel/sentences/en';

const ostrel = await load({encoding: 'latin1', long: 64, channels: [1, 6, 11]});

const port: Verdict<'PARAM_check_port'> = ostrel.judge('PARAM_check_port', '65536');
const valid: boolean = port.valid;
const name: CodeName = port.name;
const reason: Reason | null = await port.reason;
const names: readonly CheckName[] = ostrel.checks.map((check) => check.name);

// @ts-expect-error there is no such check
ostrel.judge('PARAM_check_prot', '65536');
// @ts-expect-error its argument is missing
ostrel.judge('PARAM_check_port');
// @ts-expect-error it takes one argument
ostrel.judge('PARAM_check_port', '1', '2');
// @ts-expect-error it takes a string
ostrel.judge('PARAM_check_port', 65536);
// @ts-expect-error NULL fails an assertion
ostrel.judge('PARAM_check_port', null);
// @ts-expect-error NULL is read
ostrel.judge('PARAM_check_ip_addr', null);

// The contract allows NULL and numbers here.
ostrel.judge('PORTMAPPING_check_port_available', null, 2);
ostrel.judge('Param_check_string_len', 'x', 0, 5);
// @ts-expect-error lengths are numbers
ostrel.judge('Param_check_string_len', 'x', '0', 5);

// Write-only arguments may be omitted.
const account: number | null = ostrel.judge('TcmValidatePPPUsername', 'x').after.account_type;
const offset: string | null = ostrel.judge('HNAPCORE_check_timezone', 'UTC', '').after.offset_out;
const keys: readonly string[] = ostrel.judge('WLAN_check_wepkeys', ['', '', '', '']).after.keys;
// @ts-expect-error there must be four strings
ostrel.judge('WLAN_check_wepkeys', ['', '', '']);
// @ts-expect-error this check writes nothing
port.after.value_p;

// A number is not a verdict.
const counted: null = ostrel.judge('countChar', 'a.b', 46).valid;

// @ts-expect-error there is no such encoding
await load({encoding: 'utf-16'});
// @ts-expect-error a long cannot have this size
await load({long: 16});

try {
  ostrel.judge('PARAM_check_ui2_value', '8080');
} catch (error) {
  if (error instanceof FailedAssertion) console.log(error.condition, error.line);
  if (error instanceof NeverReturns) console.log(error.message);
}

// This is how a portal uses reasons and forms.
if (reason) {
  const said: string = sentence(reason, german, {text: '65536', encoding: ostrel.encoding});
  console.log(said, clause(reason, english), placeOf('65536', reason.offset ?? 0).character, bytesOf('65536'));
}
const longest: number | undefined = (await ostrel.checks[0].constraints)[0]?.max_length;
const detach: () => void = attach(document.forms[0], ostrel, {sentences: {...german, subject: 'das Feld'}});
detach();
// @ts-expect-error it must be a form
attach(document.body, ostrel);
// @ts-expect-error a language has more members
attach(document.forms[0], ostrel, {sentences: {locale: 'fr'}});

console.log(longest, valid, name, reason?.text, names, account, offset, keys, counted, ostrel.build.model);
