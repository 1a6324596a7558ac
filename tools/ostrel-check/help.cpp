#include "help.h"

#include "catalogue/catalogue.h"

namespace ostrel::tool {

std::string_view main_help()
{
    return R"(A value is passed as it stands, with everything behind NAME, a leading "-"
included. The word @null passes NULL, and @@null passes the text "@null". With
--escapes, \xNN, \n, \r, \t and \\ are read in values. Arguments marked :number
take a decimal number, or a hexadecimal one behind 0x. Options stand before
NAME.

Examples:
  ostrel-check PARAM_check_port 8080
  ostrel-check PARAM_check_port -1
  ostrel-check PARAM_check_port @null
  ostrel-check --escapes TcmValidatePPPPassword 'caf\xE9'
  ostrel-check PARAM_check_num_range 15 1 20
  ostrel-check --channels "1 6 11" WLAN_check_channel 6 RADIO_2.4GHz
  ostrel-check explain PARAM_check_port
  ostrel-check list
  ostrel-check batch settings.txt
  some-program | ostrel-check batch --json

Exit code: 0 accepted (or the answer is a number), 1 refused, 2 wrong usage,
3 the check ended the process or did not return. Colours are for terminals, and
never with NO_COLOR.)";
}

std::string_view batch_help()
{
    return R"(Each line is a case. Empty lines and comments (#) are passed over. Either words,
as a shell would quote them, with the escapes \xNN, \n, \r, \t, \\ outside of
'single quotes', and @null for NULL:

  PARAM_check_port 8080             # a comment
  TcmValidatePPPPassword "two words"
  TcmValidatePPPPassword caf\xE9

or an object of JSON, in which a byte above 0x7F is the code point of the same
number:

  {"check": "PARAM_check_num_range", "args": ["15", 1, 20]}
  {"check": "PARAM_check_port", "args": [null]}

A line ends in a line feed, or in a carriage return and a line feed, and is at
most 16 MiB long.

With --stream each line gives exactly one line, in order, that depends on
nothing but that line (an empty line for one without a case), so that a batch
can be cut anywhere and judged in pieces.

Examples:
  ostrel-check batch settings.txt
  ostrel-check batch --only-refused settings.txt
  some-program | ostrel-check batch --json --jobs 4
  parallel --pipe --keep-order ostrel-check batch --stream < cases

Exit code, of which the highest wins: 0 all were accepted, 1 something was
refused, 2 there were malformed lines or unreadable files, 3 a check ended its
process or did not return.)";
}

std::string_view list_help()
{
    return R"(With --json the whole catalogue: arguments, rules, codes, steps with what is
printed, what an accepted value may contain, and the constraints of each
argument for programs and forms. --schema prints the JSON Schema of that.
--json-schema prints a schema for values: a definition for each check of a
single text, marked x-ostrel-exact where a validator accepts the same values as
the check.
--reference and --hazards print pages in Markdown.

Examples:
  ostrel-check list
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
  ostrel-check explain WLAN_check_wepkeys | less)";
}

std::string_view complete_help()
{
    return R"(For the completion of a shell: prints what the last WORD may become, a line
each. The words are those behind "ostrel-check".

Examples:
  ostrel-check complete -- PARAM_check_p
  ostrel-check complete -- WLAN_check_beacon_type "")";
}

std::string advice_for(std::string_view name)
{
    if (catalogue::find(name) == nullptr) return "ostrel-check list shows every check.\n";
    return "ostrel-check explain " + std::string(name) + " says what it takes.\n";
}

}  // namespace ostrel::tool
