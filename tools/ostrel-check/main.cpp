// ostrel-check judges values of a home gateway's configuration with the library's checks.

#include <unistd.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <csignal>
#include <exception>
#include <memory>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

#include "batch/batch.h"
#include "batch/one_case.h"
#include "command_line/complain.h"
#include "command_line/formatter.h"
#include "command_line/options.h"
#include "command_line/show_commands.h"
#include "judge/driver.h"
#include "judge/single.h"
#include "map/load.h"
#include "map/unmapped.h"
#include "read/words.h"
#include "summary/summarise.h"
#include "system/process.h"
#include "terminal/style.h"

namespace ostrel::tool {

namespace {

// rules_of completes the batch rules with the options that control judging, and returns them.
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
    if (words.empty()) return complain_of_usage("a check or a command is required");
    if (words.front().starts_with('-') && words.front() != "-") {
        return complain_of_usage("unknown option " + words.front());
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
        return complain(error.what(), "ostrel-check explain " + std::string(function->name) +
                                          " describes its arguments.\n");
    }
}

int run_batch_of(Options& options)
{
    Rules& rules = rules_of(options);
    if (rules.files.empty()) rules.files.emplace_back("-");
    if (options.json) rules.style.format = Format::kJson;
    if (options.stream) rules.style.format = Format::kStream;
    rules.style.columns = columns_of(STDOUT_FILENO, kAnyWidth);
    rules.style.group = rules.reading.group;
    if (isatty(STDIN_FILENO) == 1 && std::ranges::count(rules.files, "-") > 0)
        say("Reading cases from the terminal: NAME VALUE... on each line; Ctrl-D ends the input.\n");
    const Closing closing = closing_of(options.ending, rules.style);
    if (options.map.empty()) return run_batch(rules, closing, options.jobs);
    std::optional<Map> map;
    try {
        map = load_map(options.map, rules.reading.encoding);
    } catch (const std::invalid_argument& error) {
        return complain(error.what(), "ostrel-check list --schema map prints the schema of maps.\n");
    }
    SplitGateways split;
    rules.reading.map = &*map;
    rules.reading.split = &split;
    return run_batch(rules, closing, options.jobs);
}

int run(int argc, char** argv)
{
    Options options;
    const std::unique_ptr<CLI::App> app = make_command_line(options);
    if (argc < 2) {
        say(usage_of(*app) + "ostrel-check --help shows more.\n");
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
    // Writing to a closed pipe must fail, not end the program.
    std::signal(SIGPIPE, SIG_IGN);
    try {
        return ostrel::tool::run(argc, argv);
    } catch (const std::invalid_argument& error) {
        return ostrel::tool::complain_of_usage(error.what());
    } catch (const std::exception& error) {
        return ostrel::tool::complain(
            error.what(), "The remaining input was not judged; fix the problem and run the command again.\n");
    }
}
