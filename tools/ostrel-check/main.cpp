// ostrel-check: judges values of a home gateway's configuration with the library's checks.

#include <unistd.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <csignal>
#include <exception>
#include <memory>
#include <optional>
#include <span>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "batch/one_case.h"
#include "catalogue/names.h"
#include "catalogue/texts.h"
#include "command_line/complete.h"
#include "command_line/formatter.h"
#include "command_line/options.h"
#include "explain/constraints.h"
#include "explain/explain.h"
#include "explain/schemas.h"
#include "explain/select.h"
#include "judge/driver.h"
#include "judge/single.h"
#include "map/map.h"
#include "map/report.h"
#include "map/unmapped.h"
#include "read/words.h"
#include "summary/summarise.h"
#include "system/process.h"
#include "terminal/pager.h"
#include "terminal/style.h"
#include "write/show.h"

namespace ostrel::tool {

namespace {

constexpr std::string_view kAdviceOnNames =
    "ostrel-check list WORD finds checks by a word of their names or rules.\n";

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

// complain_of_name asks what was meant by a word that is neither a command nor a check.
int complain_of_name(const CLI::App& app, const std::string& name)
{
    std::vector<std::string_view> names;
    for (const CLI::App* command : commands_of(app)) names.emplace_back(command->get_name());
    for (const catalogue::Function& function : catalogue::functions()) names.push_back(function.name);
    return complain(
        "there is no check and no command \"" + name + "\"" + catalogue::did_you_mean(name, names),
        kAdviceOnNames);
}

// find_meant returns the check of that name. It says so where the name has another case.
const catalogue::Function* find_meant(const std::string& name)
{
    const catalogue::Function* function = catalogue::find_in_any_case(name);
    if (function != nullptr && function->name != name)
        say("ostrel-check: \"" + name + "\" is taken as " + std::string(function->name) + "\n");
    return function;
}

// rules_of returns what the options say of judging.
Rules& rules_of(Options& options)
{
    Rules& rules = options.rules;
    rules.style.tries_known = options.manner.tries_known;
    rules.style.encoding = rules.reading.encoding;
    rules.style.driver_problem = options.manner.driver_problem;
    rules.limit = options.manner.limit;
    return rules;
}

int judge_words(const CLI::App& app, Options& options)
{
    std::vector<std::string> words = app.remaining();
    if (!words.empty() && words.front() == "--") words.erase(words.begin());
    if (words.empty()) return complain_of_usage("the NAME of a check, or a command, is missing");
    if (words.front().starts_with('-') && words.front() != "-") {
        return complain_of_usage("there is no option " + words.front());
    }
    if (options.with_escapes) {
        for (std::string& word : words) word = read_escapes(word);
    }
    const catalogue::Function* function = find_meant(words.front());
    if (function == nullptr) return complain_of_name(app, words.front());
    const std::span<const std::string> values = std::span(words).subspan(1);
    if (options.json) return judge_in_json(*function, values, rules_of(options));
    try {
        return judge_one(*function, values, options.manner);
    } catch (const std::invalid_argument& error) {
        return complain(error.what(),
                        "ostrel-check explain " + std::string(function->name) + " says what it takes.\n");
    }
}

// run_batch_of judges what is in files as the options say.
int run_batch_of(Options& options)
{
    Rules& rules = rules_of(options);
    if (rules.files.empty()) rules.files.emplace_back("-");
    if (options.json) rules.style.format = Format::kJson;
    if (options.stream) rules.style.format = Format::kStream;
    rules.style.columns = columns_of(STDOUT_FILENO, kAnyWidth);
    if (isatty(STDIN_FILENO) == 1 && std::ranges::count(rules.files, "-") > 0)
        say("Reading cases from the terminal: NAME VALUE... on each line; Ctrl-D ends them.\n");
    const Closing closing = closing_of(options.ending, rules.style);
    if (options.map.empty()) return run_batch(rules, closing, options.jobs);
    std::optional<Map> map;
    try {
        map = load_map(options.map);
    } catch (const std::invalid_argument& error) {
        return complain(error.what(), "ostrel-check list --schema map prints the schema of maps.\n");
    }
    SplitGateways split;
    rules.reading.map = &*map;
    rules.reading.split = &split;
    return run_batch(rules, closing, options.jobs);
}

int show_comparison(const Options& options)
{
    ReportFormat format = options.json ? ReportFormat::kJson : ReportFormat::kText;
    if (options.markdown) format = ReportFormat::kMarkdown;
    try {
        write_all(STDOUT_FILENO, report_of(options.name, format));
    } catch (const std::invalid_argument& error) {
        return complain(error.what(), "ostrel-check list --schema map prints the schema of maps.\n");
    }
    return kExitAccepted;
}

std::string_view schema_of(std::string_view what)
{
    if (what == "map") return map_schema();
    if (what == "result") return result_schema();
    return what == "summary" ? summary_schema() : catalogue::schema();
}

int show_list(const Options& options)
{
    const Selection selection = select(options.family, options.patterns);
    if (selection.empty()) {
        std::string words;
        for (const std::string& pattern : options.patterns) words += " " + pattern;
        return complain("no check matches" + words, "ostrel-check list shows every check.\n");
    }
    if (options.json) {
        write_all(STDOUT_FILENO, list_json(selection));
    } else if (options.schema) {
        write_all(STDOUT_FILENO, schema_of(*options.schema));
    } else if (options.json_schema) {
        write_all(STDOUT_FILENO, json_schema());
    } else if (options.reference) {
        write_all(STDOUT_FILENO, reference(selection));
    } else if (options.hazards) {
        write_all(STDOUT_FILENO, hazards_page());
    } else {
        show_page(list_checks(selection, look_of(STDOUT_FILENO)));
    }
    return kExitAccepted;
}

int show_explanation(const Options& options)
{
    const catalogue::Function* function = find_meant(options.name);
    if (function == nullptr) return complain(catalogue::unknown_function(options.name), kAdviceOnNames);
    if (options.json) {
        write_all(STDOUT_FILENO, explain_json(*function));
    } else {
        show_page(explain(*function, look_of(STDOUT_FILENO)));
    }
    return kExitAccepted;
}

int show_candidates(const CLI::App& app, const Options& options)
{
    std::string text;
    for (const Candidate& candidate : complete(app, options.words)) {
        text += candidate.word;
        if (options.described) text.append("\t").append(candidate.what);
        text += '\n';
    }
    write_all(STDOUT_FILENO, text);
    return kExitAccepted;
}

// show_help shows what was asked for: help or the version.
int show_help(const CLI::App& app, const CLI::Success& success)
{
    std::ostringstream text;
    app.exit(success, text);
    write_all(STDOUT_FILENO, text.str());
    return kExitAccepted;
}

int run(int argc, char** argv)
{
    Options options;
    const std::unique_ptr<CLI::App> app = make_command_line(options);
    if (argc < 2) {
        say(usage_of(*app) + "ostrel-check --help says more.\n");
        return kExitUsage;
    }
    try {
        app->parse(argc, argv);
    } catch (const CLI::Success& success) {
        return show_help(*app, success);
    } catch (const CLI::ParseError& error) {
        return complain_of_usage(error.what());
    }
    if (app->got_subcommand("list")) return show_list(options);
    if (app->got_subcommand("explain")) return show_explanation(options);
    if (app->got_subcommand("compare")) return show_comparison(options);
    if (app->got_subcommand("complete")) return show_candidates(*app, options);
    if (app->got_subcommand("summarise"))
        return summarise(options.ending.files, options.ending.summary == "json");
    std::optional<StandIn> driver;
    if (options.channels) {
        driver.emplace(*options.channels);
        options.manner.driver_problem = driver->problem();
    }
    if (app->got_subcommand("batch")) return run_batch_of(options);
    return judge_words(*app, options);
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
        return ostrel::tool::complain(error.what(),
                                      "Nothing more was judged; put that right and run it again.\n");
    }
}
