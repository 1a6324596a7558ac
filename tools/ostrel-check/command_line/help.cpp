#include "command_line/help.h"

namespace ostrel::tool {

std::string_view main_help()
{
    return R"(Everything after NAME is a value and is passed unchanged, even with a leading
"-". The word @null passes NULL, and @@null passes the string "@null". With
--escapes, values may contain \xNN, \n, \r, \t and \\. Arguments marked :number
must be decimal numbers, or hexadecimal ones that begin with 0x. Options come
before NAME. Text after "library:" was printed by the library itself.

Examples:
  ostrel-check PARAM_check_port 8080
  ostrel-check PARAM_check_port -1
  ostrel-check PARAM_check_port @null
  ostrel-check --escapes TcmValidatePPPPassword 'caf\xE9'
  ostrel-check PARAM_check_num_range 15 1 20
  ostrel-check --channels "1 6 11" WLAN_check_channel 6 RADIO_2.4GHz
  ostrel-check --json PARAM_check_port 65536
  ostrel-check explain PARAM_check_port
  ostrel-check list port
  ostrel-check batch settings.txt
  some-program | ostrel-check batch --json

Exit code: 0 accepted (or the check returns a number), 1 refused, 2 wrong usage,
3 the check ended the process or did not return. Output on a terminal is in
colour unless NO_COLOR is set.)";
}

std::string_view batch_help()
{
    return R"(There are five file formats. Without --format, the extension of a file decides
(.ndjson, .jsonl, .json, .csv, .tsv), or else its first bytes. Files are in
UTF-8. With --encoding latin-1, values are converted to Latin-1, whatever the
format.

words: each line is a case. Empty lines and comments (#) are skipped. Words are
quoted as in a shell, and may contain the escapes \xNN, \n, \r, \t, \\ outside
'single quotes'. @null is NULL, and "@null" is that string. A line may also be a
JSON object:

  PARAM_check_port 8080             # a comment
  TcmValidatePPPPassword "two words"
  TcmValidatePPPPassword caf\xE9

ndjson: each line is a JSON object. Numbers, true and false are passed as they
are written. {"base64": "..."} passes arbitrary bytes. Results repeat all other
members of the object:

  {"id": 1, "check": "PARAM_check_num_range", "args": ["15", 1, 20]}
  {"check": "PARAM_check_port", "args": [null]}

json: an array of such objects, or a sequence of them, on any number of lines.

csv, tsv: a header, then a row for each case. The columns are "check" and
"value" (or "value_1", "value_2", ...), or those that --check and --value name.
Results repeat all other columns.

With --map, files are gateway dumps in csv, tsv, ndjson or json. A dump has rows
with a path ("parameter", "path", "name" or --parameter) and a "value", or it is
nested JSON with a gateway per top-level object, array element or line. The map
assigns checks to parameters. --group names the column that identifies the
gateway of a row. The rows of a gateway must be adjacent: otherwise each group
of adjacent rows is judged as a separate gateway. If a check needs other
parameters, they are taken from the same gateway, and the result follows at its
end. Parameters without a check are counted and listed in the summary.

A line ends in a line feed, or in a carriage return and a line feed. A line, a
row or an element may be at most 16 MiB long.

With --stream, each record has exactly one line of results, in order. The line
depends only on the record and its line number (it is empty for a line without a
case), so a file can be judged in pieces.

--summary counts cases by check, parameter and reason, with an example of each
combination. Instance numbers and aliases in a parameter's path are replaced by
{i}. The summary follows the results or is written to --summary-file; with
--stream and without --summary-file, it is written to standard error.

SIGINT, SIGTERM and a full disk stop a batch after the current record. A message
on standard error names the last line, and --start-line resumes after it. With
--map, a batch stops after the current gateway, and --start-line resumes at the
first gateway that begins on that line or later.

A call that is known not to return is made only with --try. If a channel must be
looked up in the wireless driver's list and the driver returns none, the channel
is not judged (no driver).

Examples:
  ostrel-check batch settings.txt
  ostrel-check batch --only-refused settings.txt
  some-program | ostrel-check batch --json --jobs 4
  ostrel-check batch --map examples/maps/tr-098.json --group serial fleet.csv
  ostrel-check batch --check PARAM_check_port --value Port --json ports.csv
  ostrel-check batch --summary-only --redact settings.txt
  ostrel-check batch --stream --start-line 120001 cases >>results
  parallel --pipe --keep-order ostrel-check batch --stream < cases

Exit code (the highest that applies): 0 all cases were accepted, 1 a case was
refused, 2 a line was malformed, a file was unreadable, the results could not be
written or the driver returned no list, 3 a check ended its process or did not
return. --exit-zero ignores verdicts and malformed lines. After SIGINT the exit
code is 130, after SIGTERM 143.)";
}

std::string_view summarise_help()
{
    return R"(Adds up the output of batches that judged pieces of one input: summaries from
--summary json, or results from --json or --stream. Summaries are small, and
their examples include the arguments. If the files are named in the order of the
pieces, the sum equals the summary of the whole input, including the examples.

A line that is neither a summary nor a result is reported on standard error and
omitted. Exit code: 0, or 2 if a line was omitted.

Examples:
  ostrel-check batch --stream --summary-file 1.json part1 >results1
  ostrel-check summarise 1.json 2.json 3.json
  ostrel-check summarise --summary json results1 results2)";
}

std::string_view list_help()
{
    return R"(Lists the checks that have each PATTERN in their name, in what they accept, or
in the name or description of an argument. Case does not matter.

--json prints the catalogue: arguments, rules, codes, steps with the lines that
they print, what an accepted value may contain, and the constraints on each
argument for programs and forms. --schema prints the JSON Schema of the
catalogue, --schema result that of a line of batch --json, --schema summary that
of a summary, and --schema map that of maps. --json-schema prints a schema with
a definition of the accepted values for each check that has a single string
argument; the definition is marked x-ostrel-exact if it accepts the same values
as the check. --reference and --hazards print pages in Markdown.

Examples:
  ostrel-check list
  ostrel-check list port
  ostrel-check list --family wlan_check key
  ostrel-check list --json >catalogue.json
  ostrel-check list --schema >catalogue.schema.json
  ostrel-check list --json-schema >values.schema.json)";
}

std::string_view explain_help()
{
    return R"(Prints what the check accepts, its arguments and the effect of NULL, its result
codes, its steps in order with their conditions and printed lines, what it
writes into buffers, and what an accepted value may contain. In a printed line,
\n is a line ending, and <name> is an argument, a part of one, or a value that a
step keeps under that name.

Examples:
  ostrel-check explain PARAM_check_port
  ostrel-check explain --json WLAN_check_wepkeys)";
}

std::string_view compare_help()
{
    return R"(Compares what a data model allows for each parameter of a map with what the
check accepts. The map names a file of facts with the types and limits of the
model. The relation compares only values that have the form of the parameter's
type, such as decimal numbers, because a management server does not send others:

  same      the check accepts exactly the values that the model allows
  narrower  it refuses some of them
  wider     it accepts others
  other     both
  unknown   no difference is known, but it is not proved that there is none

Each difference is shown with a value that the library has judged. If the check
also accepts values that do not have the form of the type, one is shown as a
remark outside the relation. In JSON, "proved" is true if differences that were
not found cannot change the relation, and "tried" is the number of values for
which the outcome was predicted from the check's description.

Examples:
  ostrel-check compare examples/maps/tr-098.json
  ostrel-check compare --json examples/maps/tr-181.json)";
}

std::string_view complete_help()
{
    return R"(Prints the candidates for the last WORD, one per line, for shell completion.
The line @files stands for any path. Pass all the words that follow
"ostrel-check" on the command line.

Examples:
  ostrel-check complete -- PARAM_check_p
  ostrel-check complete -- WLAN_check_beacon_type "")";
}

}  // namespace ostrel::tool
