// Options for calls, and for a batch's first line, secrets, summary and exit code.
#ifndef OSTREL_TOOLS_COMMAND_LINE_ENDING_OPTIONS_H
#define OSTREL_TOOLS_COMMAND_LINE_ENDING_OPTIONS_H

#include <CLI/CLI.hpp>
#include <optional>
#include <string>
#include <vector>

#include "batch/batch.h"
#include "judge/single.h"

namespace ostrel::tool {

struct EndingOptions {
    std::string summary;  // format of the summary, or empty if none was chosen
    Closing closing;
    std::vector<std::string> files;  // summaries or results to add up
};

// add_call_options adds the options for calls, which apply to a single verdict and to a batch.
void add_call_options(CLI::App& app, Manner& manner, std::optional<std::string>& channels);

// add_ending_options adds options to batch. --stream must already exist, because --summary-only excludes it.
void add_ending_options(CLI::App& batch, EndingOptions& options, Rules& rules);

void add_summarise_options(CLI::App& summarise, EndingOptions& options);

// closing_of also sets style.with_rows.
Closing closing_of(const EndingOptions& options, Style& style);

}  // namespace ostrel::tool

#endif
