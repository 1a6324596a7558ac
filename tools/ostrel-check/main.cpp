// ostrel-check: judges values of a home gateway's configuration with the library's checks.

#include <unistd.h>

#include <CLI/CLI.hpp>
#include <csignal>
#include <exception>
#include <map>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "catalogue/case.h"
#include "catalogue/texts.h"
#include "command_line/complete.h"
#include "command_line/ending_options.h"
#include "command_line/help.h"
#include "command_line/reading_options.h"
#include "explain/constraints.h"
#include "explain/explain.h"
#include "explain/schemas.h"
#include "judge/driver.h"
#include "judge/single.h"
#include "map/map.h"
#include "map/report.h"
#include "map/unmapped.h"
#include "read/words.h"
#include "summary/summarise.h"
#include "system/process.h"
#include "terminal/style.h"
#include "write/show.h"

namespace ostrel::tool {

namespace {

// Formatter says what can be given; the parser knows nothing of NAME and VALUE.
class Formatter : public CLI::Formatter {
 public:
    std::string make_usage(const CLI::App* app, std::string name) const override
    {
        if (app->get_parent() != nullptr) return CLI::Formatter::make_usage(app, std::move(name));
        return "Usage: ostrel-check [OPTIONS] NAME VALUE...\n"
               "       ostrel-check explain NAME\n"
               "       ostrel-check list [OPTIONS]\n"
               "       ostrel-check batch [OPTIONS] [FILE...]\n"
               "       ostrel-check summarise [OPTIONS] FILE...\n"
               "       ostrel-check compare [OPTIONS] MAP\n\n";
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

int judge_words(std::vector<std::string> words, bool with_escapes, const Manner& manner)
{
    if (!words.empty() && words.front() == "--") words.erase(words.begin());
    if (words.empty()) return complain_of_usage("a check's NAME, explain, list or batch is missing");
    if (words.front().starts_with('-') && words.front() != "-") {
        return complain_of_usage("there is no option " + words.front());
    }
    if (with_escapes) {
        for (std::string& word : words) word = read_escapes(word);
    }
    try {
        return judge_one(words.front(), std::span(words).subspan(1), manner);
    } catch (const std::invalid_argument& error) {
        return complain(error.what(), advice_for(words.front()));
    }
}

// Options are what can be given.
struct Options {
    Manner manner;
    std::string map;
    bool with_escapes = false;
    std::optional<std::string> channels;
    std::string name;
    bool json = false;
    std::optional<std::string> schema;
    bool markdown = false;
    bool json_schema = false;
    bool reference = false;
    bool hazards = false;
    bool stream = false;
    unsigned jobs = 1;
    EndingOptions ending;
    Rules rules;
    std::vector<std::string> words;
};

CLI::App* add_command(CLI::App& app, const char* name, const char* what, std::string_view help)
{
    CLI::App* command = app.add_subcommand(name, what);
    command->prefix_command(false);
    command->footer(std::string(help));
    return command;
}

CLI::App* add_list(CLI::App& app, Options& options)
{
    CLI::App* list =
        add_command(app, "list", "Show every check with its arguments and its rule", list_help());
    CLI::Option_group* forms = list->add_option_group("Forms");
    forms->add_flag("--json", options.json, "The catalogue in JSON");
    forms->add_option("--schema", options.schema, "JSON Schema of it, or of what is named")
        ->expected(0, 1)
        ->default_str("catalogue")
        ->check(CLI::IsMember({"catalogue", "result", "summary", "map"}))
        ->type_name("OF");
    forms->add_flag("--json-schema", options.json_schema, "A JSON Schema for what the checks accept");
    forms->add_flag("--reference", options.reference, "The reference in Markdown");
    forms->add_flag("--hazards", options.hazards, "What accepted values may hold, in Markdown");
    forms->require_option(0, 1);
    return list;
}

CLI::App* add_batch(CLI::App& app, Options& options)
{
    const std::map<std::string, Format> formats = {
        {"text", Format::kTable}, {"ndjson", Format::kJson}, {"csv", Format::kCsv}};
    CLI::App* batch =
        add_command(app, "batch", "Judge the cases of files, or of standard input", batch_help());
    CLI::Option* json =
        batch->add_flag("--json", options.json, "A line of JSON for each case, one for the summary");
    CLI::Option* stream =
        batch->add_flag("--stream", options.stream, "A line of JSON for each record, no summary");
    stream->excludes(json);
    batch->add_flag("--only-refused", options.rules.style.only_refused, "Leave out what was accepted")
        ->excludes(stream);
    add_reading(*batch, options.rules.reading);
    batch->add_flag("--with-args", options.rules.style.with_args, "Repeat the arguments in JSON and CSV");
    batch->add_option("--format-out", options.rules.style.format, "How results are written (text)")
        ->transform(CLI::Transformer(formats).description(""))
        ->type_name("text|ndjson|csv")
        ->excludes(json)
        ->excludes(stream);
    add_call_options(*batch, options.manner, options.channels);
    add_ending_options(*batch, options.ending, options.rules);
    batch->add_option("--map", options.map, "Dumps of gateways, judged by this map")
        ->excludes(batch->get_option("--check"))
        ->type_name("FILE");
    batch->add_option("--jobs", options.jobs, "Processes that judge side by side (1)")
        ->check(CLI::Range(1, 64))
        ->type_name("N");
    batch->add_option("FILE", options.rules.files, "Files to read; - is standard input")->type_name("");
    return batch;
}

// run_batch_of judges what is in files as the options say.
int run_batch_of(Options& options)
{
    Rules& rules = options.rules;
    if (rules.files.empty()) rules.files.emplace_back("-");
    if (options.json) rules.style.format = Format::kJson;
    if (options.stream) rules.style.format = Format::kStream;
    rules.style.tries_known = options.manner.tries_known;
    rules.style.encoding = rules.reading.encoding;
    rules.style.driver_problem = options.manner.driver_problem;
    rules.limit = options.manner.limit;
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

CLI::App* add_compare(CLI::App& app, Options& options)
{
    CLI::App* compare = add_command(app, "compare", "Put a data model beside the checks", compare_help());
    compare->add_option("MAP", options.name, "The map of its parameters")->required()->type_name("");
    CLI::Option* json = compare->add_flag("--json", options.json, "The comparison in JSON");
    compare->add_flag("--markdown", options.markdown, "A page in Markdown")->excludes(json);
    return compare;
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
    std::string text;
    if (options.json) {
        text = list_json();
    } else if (options.schema) {
        text = schema_of(*options.schema);
    } else if (options.json_schema) {
        text = json_schema();
    } else if (options.reference) {
        text = reference();
    } else {
        text = options.hazards ? hazards_page() : list_checks(wants_colours(STDOUT_FILENO));
    }
    write_all(STDOUT_FILENO, text);
    return kExitAccepted;
}

int show_explanation(const std::string& name)
{
    const catalogue::Function* function = catalogue::find(name);
    if (function == nullptr) return complain(catalogue::unknown_function(name), advice_for(name));
    write_all(STDOUT_FILENO, explain(*function, wants_colours(STDOUT_FILENO)));
    return kExitAccepted;
}

int show_candidates(const std::vector<std::string>& words)
{
    std::string text;
    for (const std::string& candidate : complete(words)) text += candidate + "\n";
    write_all(STDOUT_FILENO, text);
    return kExitAccepted;
}

int run(int argc, char** argv)
{
    CLI::App app("Judges values of a home gateway's configuration.");
    app.name("ostrel-check");
    app.footer(std::string(main_help()));
    app.set_version_flag("--version", "ostrel-check " OSTREL_VERSION);
    app.formatter(std::make_shared<Formatter>());
    app.prefix_command();
    app.require_subcommand(0, 1);  // a file may be called "list"

    Options options;
    app.add_flag("-e,--escapes", options.with_escapes, "Read escapes in the values");
    add_call_options(app, options.manner, options.channels);
    CLI::App* explained = add_command(app, "explain", "Say what a check wants", explain_help());
    explained->add_option("NAME", options.name, "The check")->required()->type_name("");
    CLI::App* list = add_list(app, options);
    CLI::App* batch = add_batch(app, options);
    CLI::App* summarised = add_command(app, "summarise", "Add up the summaries of batches", summarise_help());
    add_summarise_options(*summarised, options.ending);
    CLI::App* compared = add_compare(app, options);
    CLI::App* completed = add_command(app, "complete", "Complete a word, for a shell", complete_help());
    completed->add_option("WORD", options.words, "The words behind the program's name")->type_name("");

    try {
        app.parse(argc, argv);
    } catch (const CLI::Success& success) {
        return app.exit(success);
    } catch (const CLI::ParseError& error) {
        return complain_of_usage(error.what());
    }
    if (*list) return show_list(options);
    if (*explained) return show_explanation(options.name);
    if (*compared) return show_comparison(options);
    if (*completed) return show_candidates(options.words);
    if (*summarised) return summarise(options.ending.files, options.ending.summary == "json");
    std::optional<StandIn> driver;
    if (options.channels) {
        driver.emplace(*options.channels);
        options.manner.driver_problem = driver->problem();
    }
    if (*batch) return run_batch_of(options);
    return judge_words(app.remaining(), options.with_escapes, options.manner);
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
