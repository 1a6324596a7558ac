#include "command_line/help.h"

namespace ostrel::tool {

std::string_view main_help()
{
    return R"(Everything after NAME is a value and is passed as it is, even with a leading
"-". The word @null passes NULL, and @@null passes the text "@null". With
--escapes, values may contain \xNN, \n, \r, \t and \\. Arguments marked :number
take a decimal number, or a hexadecimal one after 0x. Options come before NAME.
A line after "library:" is one that the library itself printed.

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

Exit code: 0 accepted (or the answer is a number), 1 refused, 2 wrong usage,
3 the check ended the process or did not return. Colours are used at terminals,
unless NO_COLOR is set.)";
}

std::string_view batch_help()
{
    return R"(A file is in one of five formats. --format names it; otherwise the name of the
file decides (.ndjson, .jsonl, .json, .csv, .tsv), then its first bytes. Files
are in UTF-8. With --encoding latin-1 the characters of texts become bytes of
Latin-1, in every format.

words: each line is a case. Empty lines and comments (#) are skipped. Words are
quoted as for a shell, and may contain the escapes \xNN, \n, \r, \t, \\ outside
'single quotes'. @null is NULL, and "@null" is the text. A line may also be a
JSON object:

  PARAM_check_port 8080             # a comment
  TcmValidatePPPPassword "two words"
  TcmValidatePPPPassword caf\xE9

ndjson: each line is a JSON object. Numbers, true and false are passed as they
are written. {"base64": "..."} passes any bytes. Results repeat all other
members:

  {"id": 1, "check": "PARAM_check_num_range", "args": ["15", 1, 20]}
  {"check": "PARAM_check_port", "args": [null]}

json: an array of such objects, or a sequence of them, on any number of lines.

csv, tsv: a header, then a row for each case, with the columns "check" and
"value" (or "value_1", "value_2", ...), or those of --check and --value. Results
repeat all other columns.

With --map, files are dumps of gateways in csv, tsv, ndjson or json: rows of a
path ("parameter", "path", "name" or --parameter) and a "value", or nested JSON,
in which an object on its own, an element of an array, or a line is a gateway.
The map says which check judges which parameter. --group names the column that
identifies the gateway of a row. The rows of a gateway must be adjacent: if they
are in several places, each place is judged as a gateway. Where a check needs
other parameters, they come from the same gateway, and the result comes at its
end. Parameters without a check are counted and listed in the summary.

A line ends in a line feed, or in a carriage return and a line feed. A line, a
row or an element is at most 16 MiB long.

With --stream each record has exactly one line of results, in order. It depends
only on the record and its line number (it is empty for a line without a case),
so a file can be judged in pieces.

--summary counts by check, parameter and reason, with an example of each.
Instance numbers in a parameter's path count as {i}. The summary follows the
results or goes to --summary-file; with --stream and no such file it goes to
standard error.

SIGINT and SIGTERM stop a batch after the current record, and so does a full
disk. Standard error names the last line, and --start-line resumes after it.
With --map a batch stops after the current gateway, and --start-line resumes
with the first gateway that begins on that line or later.

A call that is known not to return is made only with --try. A channel that has
to be looked up with the wireless driver is not judged (no driver) if the driver
returns no list.

Examples:
  ostrel-check batch settings.txt
  ostrel-check batch --only-refused settings.txt
  some-program | ostrel-check batch --json --jobs 4
  ostrel-check batch --map examples/maps/tr-098.json --group serial fleet.csv
  ostrel-check batch --check PARAM_check_port --value Port --json ports.csv
  ostrel-check batch --summary-only --redact settings.txt
  ostrel-check batch --stream --start-line 120001 cases >>results
  parallel --pipe --keep-order ostrel-check batch --stream < cases

Exit code (the highest that applies): 0 all were accepted, 1 something was
refused, 2 lines were malformed, files were unreadable, the results could not be
written or a driver returned no list, 3 a check ended its process or did not
return. With --exit-zero verdicts do not count. After SIGINT 130, after SIGTERM
143.)";
}

std::string_view summarise_help()
{
    return R"(Adds up the output of batches that judged pieces of one input: summaries of
--summary json, or results of --json or --stream. Summaries are small, and their
examples include the arguments. If the files are named in the order of the
pieces, the sum is the summary of the whole, examples included.

A line that is neither is reported on standard error and omitted. Exit code: 0,
or 2 if something was omitted.

Examples:
  ostrel-check batch --stream --summary-file 1.json part1 >results1
  ostrel-check summarise 1.json 2.json 3.json
  ostrel-check summarise --summary json results1 results2)";
}

std::string_view list_help()
{
    return R"(Lists the checks with each PATTERN in their name, in what they accept, or in the
name or the description of an argument. Case does not matter.

--json prints the catalogue: arguments, rules, codes, steps with the lines that
they print, what an accepted value may contain, and the constraints of each
argument for programs and forms. --schema prints its JSON Schema, --schema
result that of a line of batch --json, and --schema map that of maps.
--json-schema prints a schema for values: a definition for each check of a
single text, marked x-ostrel-exact if a validator accepts the same values as
the check. --reference and --hazards print pages in Markdown.

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
codes, its steps in order with the condition and the lines of each, what it
writes into buffers, and what an accepted value may contain. In a printed line,
\n is a line end and <name> is an argument, a part of one, or what a step keeps
under that name.

Examples:
  ostrel-check explain PARAM_check_port
  ostrel-check explain --json WLAN_check_wepkeys)";
}

std::string_view compare_help()
{
    return R"(Compares what a data model allows for each parameter of a map with what the
check accepts: same, narrower, wider or other, with a value for each difference,
which the library has judged. The map names a file of facts, which has the types
and limits of the model.

Examples:
  ostrel-check compare examples/maps/tr-098.json
  ostrel-check compare --json examples/maps/tr-181.json)";
}

std::string_view complete_help()
{
    return R"(For shell completion: prints the candidates for the last WORD, one on each line;
@files means any path. The words are those after "ostrel-check".

Examples:
  ostrel-check complete -- PARAM_check_p
  ostrel-check complete -- WLAN_check_beacon_type "")";
}

}  // namespace ostrel::tool
