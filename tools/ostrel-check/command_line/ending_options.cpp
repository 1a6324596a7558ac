#include "command_line/ending_options.h"

#include <cstdint>
#include <limits>

#include "command_line/choice.h"

namespace ostrel::tool {

namespace {

void add_summary(CLI::App& app, EndingOptions& options)
{
    choose_from(app.add_option("--summary", options.summary, "Count by check, parameter and reason"),
                {"text", "json"});
}

}  // namespace

void add_call_options(CLI::App& app, Manner& manner, std::optional<std::string>& channels)
{
    app.add_option("--limit-time", manner.limit, "Limit the time of each call (2)")
        ->check(CLI::Range(0.001, 86400.0).description(""))
        ->type_name("SECONDS");
    app.add_option("--channels", channels, "Replace the wireless driver's channel list")->type_name("LIST");
    app.add_flag("--try", manner.tries_known, "Make calls even if they are known not to return");
}

void add_ending_options(CLI::App& batch, EndingOptions& options, Rules& rules)
{
    add_summary(batch, options);
    batch.add_flag("--summary-only", rules.style.no_results, "Write only the summary")->excludes("--stream");
    batch.add_option("--summary-file", options.closing.file, "Write the summary to this file")
        ->type_name("FILE");
    batch.add_flag("--exit-zero", options.closing.exits_with_zero, "Ignore verdicts in the exit code");
    batch.add_flag("--redact", rules.style.redacts, "Replace secret values with their length");
    batch.add_option("--start-line", rules.start_line, "Start at this line of the first file (1)")
        ->check(CLI::Range(std::uint64_t{1}, std::numeric_limits<std::uint64_t>::max()).description(""))
        ->type_name("N");
    batch.add_option("--number-lines-from", rules.first_number, "Number the first file's lines from N (1)")
        ->check(CLI::Range(std::uint64_t{1}, std::numeric_limits<std::uint64_t>::max()).description(""))
        ->type_name("N");
}

void add_summarise_options(CLI::App& summarise, EndingOptions& options)
{
    add_summary(summarise, options);
    summarise.add_option("FILE", options.files, "Summaries or results in JSON; - is standard input")
        ->required()
        ->type_name("");
}

Closing closing_of(const EndingOptions& options, Style& style)
{
    Closing closing = options.closing;
    style.with_rows = !options.summary.empty() || style.no_results || !closing.file.empty();
    closing.has_summary = style.with_rows || style.format != Format::kStream;
    const bool results_are_json = style.format == Format::kJson || style.format == Format::kStream;
    closing.as_json = options.summary.empty() ? results_are_json : options.summary == "json";
    return closing;
}

}  // namespace ostrel::tool
