// ostrel-check: judges values of a home gateway's configuration with the library's checks.

#include <unistd.h>

#include <CLI/CLI.hpp>
#include <csignal>
#include <exception>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "batch.h"
#include "driver.h"
#include "process.h"
#include "show.h"
#include "single.h"
#include "words.h"

namespace ostrel::tool {

namespace {

constexpr char kExamples[] =
    R"(A value is passed as it stands, with everything behind NAME, a leading "-" included.
The word @null passes NULL, and @@null passes the text "@null". With --escapes,
\xNN, \n, \r, \t and \\ are read in values. Arguments marked :number take a
decimal number, or a hexadecimal one behind 0x. Options stand before NAME.

Examples:
  ostrel-check PARAM_check_port 8080
  ostrel-check PARAM_check_port -1
  ostrel-check PARAM_check_port @null
  ostrel-check --escapes TcmValidatePPPPassword 'caf\xE9'
  ostrel-check PARAM_check_num_range 15 1 20
  ostrel-check --channels "1 6 11" WLAN_check_channel 6 RADIO_2.4GHz
  ostrel-check list
  ostrel-check batch settings.txt
  some-program | ostrel-check batch --json

Exit code: 0 accepted (or the answer is a number), 1 refused, 2 wrong usage,
3 the check ended the process or did not return.)";

constexpr char kBatchHelp[] =
    R"(Each line is a case. Empty lines and comments (#) are passed over. Either words,
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

Exit code, of which the highest wins: 0 all were accepted, 1 something was
refused, 2 there were malformed lines or unreadable files, 3 a check ended its
process or did not return.)";

// Formatter says what can be given; the parser knows nothing of NAME and VALUE.
class Formatter : public CLI::Formatter {
 public:
    std::string make_usage(const CLI::App* app, std::string name) const override
    {
        if (app->get_parent() != nullptr) return CLI::Formatter::make_usage(app, std::move(name));
        return "Usage: ostrel-check [OPTIONS] NAME VALUE...\n"
               "       ostrel-check list\n"
               "       ostrel-check batch [OPTIONS] [FILE...]\n\n";
    }
};

int complain(std::string_view problem, std::string_view advice)
{
    std::string message = "ostrel-check: ";
    append_escaped(message, problem, 2000);
    say(message.append("\n").append(advice));
    return kExitUsage;
}

int complain_of_usage(std::string_view problem)
{
    return complain(problem, "ostrel-check --help shows how to use it.\n");
}

int judge_words(std::vector<std::string> words, bool with_escapes, double limit)
{
    if (!words.empty() && words.front() == "--") words.erase(words.begin());
    if (words.empty()) return complain_of_usage("a check's NAME, list or batch is missing");
    if (words.front().starts_with('-') && words.front() != "-") {
        return complain_of_usage("there is no option " + words.front());
    }
    if (with_escapes) {
        for (std::string& word : words) word = read_escapes(word);
    }
    return judge_one(words.front(), std::span(words).subspan(1), limit);
}

int run(int argc, char** argv)
{
    CLI::App app("Judges values of a home gateway's configuration.");
    app.name("ostrel-check");
    app.footer(kExamples);
    app.set_version_flag("--version", "ostrel-check " OSTREL_VERSION);
    app.formatter(std::make_shared<Formatter>());
    app.prefix_command();
    app.require_subcommand(0, 1);  // a file may be called "list"

    const CLI::Range seconds(0.001, 86400.0);
    double limit = 2;
    bool with_escapes = false;
    app.add_flag("-e,--escapes", with_escapes, "Read escapes in the values");
    app.add_option("--limit-time", limit, "Time that a call may take (2)")
        ->check(seconds)
        ->type_name("SECONDS");
    std::optional<std::string> channels;
    app.add_option("--channels", channels, "Answer in the driver's place when it is asked for its channels")
        ->type_name("LIST");

    CLI::App* list = app.add_subcommand("list", "Show every check with its arguments and its rule");
    list->prefix_command(false);

    CLI::App* batch = app.add_subcommand("batch", "Judge the cases of files, or of standard input");
    batch->prefix_command(false);
    batch->footer(kBatchHelp);
    Rules rules;
    bool is_json = false;
    unsigned jobs = 1;
    batch->add_flag("--json", is_json, "Write a line of JSON for each case, and one for the summary");
    batch->add_option("--limit-time", limit, "Time that a call may take (2)")
        ->check(seconds)
        ->type_name("SECONDS");
    batch
        ->add_option("--channels", channels, "Answer in the driver's place when it is asked for its channels")
        ->type_name("LIST");
    batch->add_option("--jobs", jobs, "Processes that judge side by side (1)")
        ->check(CLI::Range(1, 64))
        ->type_name("N");
    batch->add_option("FILE", rules.files, "Files to read; - is standard input")->type_name("");

    try {
        app.parse(argc, argv);
    } catch (const CLI::Success& success) {
        return app.exit(success);
    } catch (const CLI::ParseError& error) {
        return complain_of_usage(error.what());
    }
    if (*list) {
        write_all(STDOUT_FILENO, list_checks());
        return kExitAccepted;
    }
    std::optional<StandIn> driver;
    if (channels) driver.emplace(*channels);
    if (*batch) {
        if (rules.files.empty()) rules.files.emplace_back("-");
        rules.format = is_json ? Format::kJson : Format::kTable;
        rules.limit = limit;
        return run_batch(rules, jobs);
    }
    return judge_words(app.remaining(), with_escapes, limit);
}

}  // namespace

}  // namespace ostrel::tool

int main(int argc, char** argv)
{
    ostrel::tool::occupy_standard_descriptors();
    // A reader that goes away is noticed when writing.
    std::signal(SIGPIPE, SIG_IGN);
    try {
        return ostrel::tool::run(argc, argv);
    } catch (const std::invalid_argument& error) {
        return ostrel::tool::complain_of_usage(error.what());
    } catch (const std::exception& error) {
        return ostrel::tool::complain(error.what(), "");
    }
}
