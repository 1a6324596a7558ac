#include "command_line/options.h"

#include <string_view>

#include "catalogue/catalogue.h"
#include "command_line/choice.h"
#include "command_line/formatter.h"
#include "command_line/help.h"
#include "command_line/reading_options.h"

namespace ostrel::tool {

namespace {

CLI::App& add_command(CLI::App& app, const char* name, const char* what, std::string_view help)
{
    CLI::App* command = app.add_subcommand(name, what);
    command->prefix_command(false);
    command->footer(std::string(help));
    return *command;
}

CLI::Option* add_positional(CLI::App& command, const char* name, std::vector<std::string>& target,
                            const char* what)
{
    return command.add_option(name, target, what)->type_name("");
}

void exclude_each_other(const std::vector<CLI::Option*>& options)
{
    for (CLI::Option* option : options) {
        for (CLI::Option* other : options) {
            if (other != option) option->excludes(other);
        }
    }
}

void add_explain(CLI::App& app, Options& options)
{
    CLI::App& explain = add_command(app, "explain", "Explain what a check accepts", explain_help());
    explain.add_option("NAME", options.name, "The check to explain")->required()->type_name("");
    explain.add_flag("--json", options.json, "Print JSON in the format of list --json");
}

void add_list(CLI::App& app, Options& options)
{
    CLI::App& list = add_command(app, "list", "Search the checks, or list them all", list_help());
    CLI::Option* patterns =
        add_positional(list, "PATTERN", options.patterns, "Text in a check's name, rule or arguments");
    CLI::Option* family = list.add_option("--family", options.family, "List only the checks of this family");
    refuse_others(family, catalogue::families())->type_name("FAMILY");
    CLI::Option* json = list.add_flag("--json", options.json, "Print the catalogue in JSON");
    CLI::Option* schema =
        list.add_option("--schema", options.schema, "Print the JSON Schema of this format (catalogue)");
    choose_from(schema->expected(0, 1)->default_str("catalogue"), {"catalogue", "result", "summary", "map"});
    CLI::Option* json_schema =
        list.add_flag("--json-schema", options.json_schema, "Print a JSON Schema of what the checks accept");
    CLI::Option* reference =
        list.add_flag("--reference", options.reference, "Print the reference in Markdown");
    CLI::Option* hazards =
        list.add_flag("--hazards", options.hazards, "Print in Markdown what accepted values may contain");
    exclude_each_other({json, schema, json_schema, reference, hazards});
    for (CLI::Option* whole : {schema, json_schema, hazards}) whole->excludes(patterns)->excludes(family);
}

void add_batch(CLI::App& app, Options& options)
{
    CLI::App& batch = add_command(app, "batch", "Judge cases from files or standard input", batch_help());
    CLI::Option* json =
        batch.add_flag("--json", options.json, "Print a line of JSON per case and for the summary");
    CLI::Option* stream =
        batch.add_flag("--stream", options.stream, "Print a line of JSON per record, and no summary");
    batch.add_flag("--only-refused", options.rules.style.only_refused, "Omit accepted cases")
        ->excludes(stream);
    add_reading(batch, options.rules.reading);
    batch.add_flag("--with-args", options.rules.style.with_args, "Include arguments in JSON and CSV");
    CLI::Option* format = add_choice<Format, Format>(
        batch, "--format-out", options.rules.style.format,
        {{"text", Format::kTable}, {"ndjson", Format::kJson}, {"csv", Format::kCsv}},
        "Write results in this format (text)");
    exclude_each_other({json, stream, format});
    add_call_options(batch, options.manner, options.channels);
    add_ending_options(batch, options.ending, options.rules);
    batch.add_option("--map", options.map, "Judge gateway dumps with this map")
        ->excludes(batch.get_option("--check"))
        ->excludes(batch.get_option("--strict"))
        ->type_name("FILE");
    batch.add_option("--jobs", options.jobs, "Use this many worker processes (1)")
        ->check(CLI::Range(1, 64).description(""))
        ->type_name("N");
    add_positional(batch, "FILE", options.rules.files, "Files to read; - is standard input");
}

void add_compare(CLI::App& app, Options& options)
{
    CLI::App& compare = add_command(app, "compare", "Compare a data model with the checks", compare_help());
    compare.add_option("FILE", options.name, "The map of the model's parameters")->required()->type_name("");
    CLI::Option* json = compare.add_flag("--json", options.json, "Print the comparison in JSON");
    compare.add_flag("--markdown", options.markdown, "Print a page in Markdown")->excludes(json);
}

}  // namespace

std::unique_ptr<CLI::App> make_command_line(Options& options)
{
    auto app = std::make_unique<CLI::App>("Judges configuration values of a home gateway.");
    app->name("ostrel-check");
    app->footer(std::string(main_help()));
    app->set_help_flag("-h,--help", "Show this help, or that of a command");
    app->set_version_flag("--version", "ostrel-check " OSTREL_VERSION, "Show the version");
    app->formatter(std::make_shared<Formatter>());
    app->prefix_command();
    app->require_subcommand(0, 1);  // at most one, because a file after a command may be called "list"

    app->add_flag("-e,--escapes", options.with_escapes, "Interpret escapes in values");
    app->add_flag("--json", options.json, "Print the verdict as a line of JSON");
    add_call_options(*app, options.manner, options.channels);
    add_explain(*app, options);
    add_list(*app, options);
    add_batch(*app, options);
    CLI::App& summarise =
        add_command(*app, "summarise", "Add up the results of several batches", summarise_help());
    add_summarise_options(summarise, options.ending);
    add_compare(*app, options);
    CLI::App& complete = add_command(*app, "complete", "Print completions for a shell", complete_help());
    complete.group("");
    complete.add_flag("--described", options.described, "Add a tab and a description to each candidate");
    add_positional(complete, "WORD", options.words, "The words after ostrel-check");
    return app;
}

}  // namespace ostrel::tool
