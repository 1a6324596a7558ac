#include "command_line/show_commands.h"

#include <unistd.h>

#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>

#include "catalogue/names.h"
#include "catalogue/texts.h"
#include "command_line/complain.h"
#include "command_line/complete.h"
#include "explain/catalogue_json.h"
#include "explain/constraints.h"
#include "explain/explain.h"
#include "explain/hazards.h"
#include "explain/schemas.h"
#include "explain/select.h"
#include "judge/verdict.h"
#include "map/report.h"
#include "system/process.h"
#include "terminal/pager.h"
#include "terminal/style.h"

namespace ostrel::tool {

namespace {

std::string_view schema_of(std::string_view what)
{
    if (what == "map") return map_schema();
    if (what == "result") return result_schema();
    return what == "summary" ? summary_schema() : catalogue::schema();
}

}  // namespace

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

int show_help(const CLI::App& app, const CLI::Success& success)
{
    std::ostringstream text;
    app.exit(success, text);
    write_all(STDOUT_FILENO, text.str());
    return kExitAccepted;
}

}  // namespace ostrel::tool
