#include "command_line/help.h"

namespace ostrel::tool {

std::string_view main_help()
{
    return R"(A value is passed as it stands, with everything after NAME, a leading "-"
included. The word @null passes NULL, and @@null passes the text "@null". With
--escapes, \xNN, \n, \r, \t and \\ are read in values. Arguments marked :number
take a decimal number, or a hexadecimal one after 0x. Options stand before
NAME. A line after "library:" is one that the library itself printed.

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
3 the check ended the process or did not return. Colours are for terminals, and
never with NO_COLOR.)";
}

std::string_view batch_help()
{
    return R"(A file is in one of five formats: that of --format, or of its name (.ndjson,
.jsonl, .json, .csv, .tsv), or of its first bytes. It is in UTF-8. With
--encoding latin-1 the characters of its texts become bytes of Latin-1, in every
format.

words: each line is a case. Empty lines and comments (#) are passed over. Words
are quoted as for a shell, with the escapes \xNN, \n, \r, \t, \\ outside of
'single quotes'. @null is NULL, and "@null" the text. A line may also be an
object of JSON:

  PARAM_check_port 8080             # a comment
  TcmValidatePPPPassword "two words"
  TcmValidatePPPPassword caf\xE9

ndjson: each line is an object of JSON. Numbers, true and false are taken as
they are written. {"base64": "..."} is any bytes. Results repeat all other
members:

  {"id": 1, "check": "PARAM_check_num_range", "args": ["15", 1, 20]}
  {"check": "PARAM_check_port", "args": [null]}

json: an array of such objects, or objects one after the other, on any lines.

csv, tsv: a header, then a row for each case, with the columns "check" and
"value" (or "value_1", "value_2", ...), or those of --check and --value. Results
repeat all other columns.

With --map, files are dumps of gateways in csv, tsv, ndjson or json: rows of a
path ("parameter", "path", "name" or --parameter) and a "value", or nested JSON,
in which an object on its own, an element of an array, or a line is a gateway.
The map says which check judges which parameter. Rows of several gateways need
--group, the column that tells them apart, and the rows of a gateway must be
together: of one whose rows are in several places, each place is judged by
itself. What the check needs of other parameters comes from the same gateway;
results that do come at its end. Parameters without a check are counted and
listed in the summary.

A line ends in a line feed, or in a carriage return and a line feed. A line, a
row or an element is at most 16 MiB long.

With --stream each record has exactly one line of results, in order, which
depends on nothing but that record and its line number (an empty line for a
line without a case), so that lines can be judged in pieces.

--summary counts by check, parameter and reason, with an example of each.
Numbers of instances in a parameter's path count as {i}. The summary follows the
results, or is written to --summary-file; with --stream and without such a file
it goes to standard error.

SIGINT and SIGTERM end a batch after the record that it is at, and so does a
full disk: standard error says after which line, and --start-line goes on. With
--map it is the gateway that is finished, and --start-line begins with the first
one that begins there or later.

A call that is known not to return is not made, except with --try. A channel
that is to be looked up with the wireless driver is not judged (no driver) where
the driver gives no list.

Examples:
  ostrel-check batch settings.txt
  ostrel-check batch --only-refused settings.txt
  some-program | ostrel-check batch --json --jobs 4
  ostrel-check batch --map examples/maps/tr-098.json --group serial fleet.csv
  ostrel-check batch --check PARAM_check_port --value Port --json ports.csv
  ostrel-check batch --summary-only --redact settings.txt
  ostrel-check batch --stream --start-line 120001 cases >>results
  parallel --pipe --keep-order ostrel-check batch --stream < cases

Exit code, of which the highest wins: 0 all were accepted, 1 something was
refused, 2 there were malformed lines or unreadable files, the results could not
be written or a driver gave no list, 3 a check ended its process or did not
return. With --exit-zero verdicts count for nothing. After SIGINT 130, after
SIGTERM 143.)";
}

std::string_view summarise_help()
{
    return R"(Adds up what batches wrote that judged pieces of one input: summaries of
--summary json, or results of --json or --stream. Summaries are small, and the
examples in them have their arguments. Where the files are given in the order of
the pieces, their sum is the summary of the whole, examples included.

A line that is neither is named on standard error and left out. Exit code: 0,
or 2 when something was left out.

Examples:
  ostrel-check batch --stream --summary-file 1.json part1 >results1
  ostrel-check summarise 1.json 2.json 3.json
  ostrel-check summarise --summary json results1 results2)";
}

std::string_view list_help()
{
    return R"(Each PATTERN must be in the name of a check, in what it accepts, or in the name
or the description of an argument; case does not matter.

With --json the catalogue: arguments, rules, codes, steps with what is
printed, what an accepted value may contain, and the constraints of each
argument for programs and forms. --schema prints the JSON Schema of that, and
--schema result that of a line of batch --json, --schema map that of maps.
--json-schema prints a schema for values: a definition for each check of a
single text, marked x-ostrel-exact where a validator accepts the same values as
the check.
--reference and --hazards print pages in Markdown.

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
    return R"(Says what the check accepts, what its arguments are and what NULL does, its
result codes, its steps in their order with the condition and the lines of each,
what is written into buffers, and what an accepted value may contain. In a line
that is printed, \n is a line end and <name> stands for an argument, for a part
of one, or for what a step keeps under that name.

Examples:
  ostrel-check explain PARAM_check_port
  ostrel-check explain --json WLAN_check_wepkeys)";
}

std::string_view compare_help()
{
    return R"(Puts what a data model allows for each parameter of a map beside what the check
accepts, and says: same, narrower, wider or other, with a value for each
difference that the library has judged. The map names a file of facts, which has
the types and limits of the model.

Examples:
  ostrel-check compare examples/maps/tr-098.json
  ostrel-check compare --json examples/maps/tr-181.json)";
}

std::string_view complete_help()
{
    return R"(For the completion of a shell: prints what the last WORD may become, a line
each, or @files for any path. The words are those after "ostrel-check".

Examples:
  ostrel-check complete -- PARAM_check_p
  ostrel-check complete -- WLAN_check_beacon_type "")";
}

}  // namespace ostrel::tool
