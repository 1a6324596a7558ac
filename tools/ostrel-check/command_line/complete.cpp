#include "command_line/complete.h"

#include <string>

#include "catalogue/catalogue.h"
#include "judge/reason.h"
#include "rules/walk.h"

namespace ostrel::tool {

using catalogue::Argument;
using catalogue::Function;

namespace {

using Words = std::vector<std::string>;

void add_names(Words& candidates)
{
    for (const Function& function : catalogue::functions()) candidates.emplace_back(function.name);
}

Words options_of(std::string_view command)
{
    if (command == "list")
        return {"--json", "--schema", "--json-schema", "--reference", "--hazards", "--help"};
    if (command == "batch") {
        return {"--json",       "--stream",    "--only-refused", "--format",       "--format-out",
                "--encoding",   "--delimiter", "--check",        "--value",        "--strict",
                "--with-args",  "--jobs",      "--limit-time",   "--channels",     "--try",
                "--summary",    "--redact",    "--summary-only", "--summary-file", "--exit-zero",
                "--start-line", "--map",       "--group",        "--parameter",    "--help"};
    }
    if (command == "summarise") return {"--summary", "--help"};
    if (command == "compare") return {"--json", "--markdown", "--help"};
    return {"--help"};
}

// after_option returns the values that an option takes, or else the options.
Words after_option(std::string_view option, std::string_view command)
{
    if (option == "--schema") return {"catalogue", "result", "summary", "map"};
    if (option == "--summary") return {"text", "json"};
    if (option == "--format") return {"words", "ndjson", "csv", "tsv", "json"};
    if (option == "--format-out") return {"text", "ndjson", "csv"};
    if (option == "--encoding") return {"utf-8", "latin-1"};
    return options_of(command);
}

// keywords_at gives the keywords of the argument that the value of that number belongs to.
Words keywords_at(const Function& function, std::size_t value)
{
    for (std::size_t i = 0; i < function.arguments.size(); ++i) {
        const Argument& argument = function.arguments[i];
        if (argument.output_only) continue;
        if (value < argument.blocks) return rules::keywords(*function.check, i, gateway());
        value -= argument.blocks;
    }
    return {};
}

Words candidates_for(std::span<const std::string> words)
{
    // Options of the program itself, of which some take a value.
    std::size_t first = 0;
    while (first + 1 < words.size() && words[first].starts_with('-')) {
        const bool takes_value = words[first] == "--limit-time" || words[first] == "--channels";
        first += takes_value ? 2 : 1;
    }
    if (first >= words.size()) return {};
    if (first + 1 == words.size()) {
        if (words[first].starts_with('-')) {
            return {"--escapes", "--limit-time", "--channels", "--try", "--version", "--help"};
        }
        Words candidates = {"explain", "list", "batch", "summarise", "compare"};
        add_names(candidates);
        return candidates;
    }
    const std::string& command = words[first];
    const bool has_options =
        command == "list" || command == "batch" || command == "summarise" || command == "compare";
    if (has_options) return after_option(words[words.size() - 2], command);
    if (command == "explain") {
        Words candidates;
        if (first + 2 == words.size()) add_names(candidates);
        return candidates;
    }
    const Function* function = catalogue::find(command);
    return function == nullptr ? Words() : keywords_at(*function, words.size() - first - 2);
}

}  // namespace

std::vector<std::string> complete(std::span<const std::string> words)
{
    std::vector<std::string> result;
    if (words.empty()) return result;
    for (std::string& candidate : candidates_for(words)) {
        if (candidate.starts_with(words.back())) result.push_back(std::move(candidate));
    }
    return result;
}

}  // namespace ostrel::tool
