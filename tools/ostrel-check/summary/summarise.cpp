#include "summary/summarise.h"

#include <unistd.h>

#include <cerrno>
#include <deque>
#include <fstream>
#include <iostream>
#include <nlohmann/json.hpp>
#include <optional>
#include <stdexcept>
#include <system_error>

#include "read/json_tree.h"
#include "summary/summary_form.h"
#include "system/process.h"
#include "write/show.h"

namespace ostrel::tool {

namespace {

using nlohmann::ordered_json;

// Rows is the content of one line. The views in its rows refer to the strings in texts.
struct Rows {
    std::vector<CountedRow> counted;
    Unmapped unmapped;
    std::deque<std::string> texts;

    std::string_view keep(std::string text) { return texts.emplace_back(std::move(text)); }
};

[[noreturn]] void refuse(const std::string& problem) { throw std::invalid_argument(problem); }

std::optional<std::string> text_of(const ordered_json& object, const char* name)
{
    const auto found = object.find(name);
    if (found == object.end() || found->is_null()) return {};
    return found->is_string() ? found->get<std::string>() : found->dump();
}

Verdict verdict_of(const ordered_json& row)
{
    const std::string name = text_of(row, "verdict").value_or("");
    for (std::size_t i = 0; i < kVerdicts; ++i) {
        if (json_name(static_cast<Verdict>(i)) == name) return static_cast<Verdict>(i);
    }
    refuse("unknown verdict \"" + name + "\"");
}

std::uint16_t check_of(const ordered_json& row, Verdict verdict)
{
    const std::optional<std::string> name = text_of(row, "check");
    const catalogue::Function* function = name ? catalogue::find(*name) : nullptr;
    if (function != nullptr) return static_cast<std::uint16_t>(function - catalogue::functions().data());
    if (name && verdict != Verdict::kMalformed) refuse("there is no check \"" + *name + "\"");
    if (!name && verdict != Verdict::kMalformed) refuse("\"check\" is missing");
    return kNoCheck;
}

std::uint64_t number_of(const ordered_json& object, const char* name)
{
    const auto found = object.find(name);
    if (found == object.end() || !found->is_number_unsigned())
        refuse(std::string("\"") + name + "\" is not a count");
    return found->get<std::uint64_t>();
}

// common_of reads the members that rows of a summary and results have in common.
SummaryRow common_of(const ordered_json& given)
{
    SummaryRow row;
    row.verdict = verdict_of(given);
    row.check = check_of(given, row.verdict);
    if (!is_code(row.verdict)) return row;
    const auto code = given.find("code");
    if (code == given.end() || !code->is_number_integer()) refuse("\"code\" is not a number");
    row.code = code->get<int>();
    if ((row.code == 0) != (row.verdict == Verdict::kAccepted)) refuse("\"code\" does not match \"verdict\"");
    return row;
}

void read_row(Rows& rows, const ordered_json& given)
{
    if (!given.is_object()) refuse("a row is not an object");
    CountedRow counted;
    counted.row = common_of(given);
    counted.is_others = given.contains("other_parameters");
    counted.row.reason = rows.keep(text_of(given, "reason").value_or(""));
    counted.row.parameter = rows.keep(text_of(given, "parameter").value_or(""));
    if (given.contains("example")) counted.row.example = rows.keep(given["example"].dump());
    counted.count = number_of(given, "count");
    rows.counted.push_back(counted);
}

// read_map reads the counts that a summary contains if dumps were judged.
void read_map(Unmapped& unmapped, const ordered_json& given)
{
    if (!given.is_object()) refuse("\"map\" is not an object");
    const auto found = given.find("unmapped");
    if (found == given.end() || !found->is_object() || !found->contains("paths") ||
        !(*found)["paths"].is_array())
        refuse("\"map\" does not list what is unmapped");
    unmapped.use_map();
    unmapped.add({number_of(given, "gateways"), number_of(given, "parameters"), number_of(given, "skipped"),
                  number_of(given, "repeated"), number_of(given, "split_gateways")});
    std::uint64_t others = number_of(*found, "parameters");
    for (const ordered_json& row : (*found)["paths"]) {
        if (!row.is_object()) refuse("a path is not an object");
        const std::uint64_t count = number_of(row, "count");
        if (count > others) refuse("the paths do not add up to \"parameters\"");
        others -= count;
        unmapped.add(text_of(row, "path").value_or(""), count, text_of(row, "because").value_or(""));
    }
    unmapped.add_others(others);
}

// read_result counts a result as the batch that wrote it would have counted it.
void read_result(Rows& rows, const ordered_json& result)
{
    CountedRow counted{common_of(result), false, 1};
    SummaryRow& row = counted.row;
    std::string parameter;
    append_counted_parameter(parameter, text_of(result, "parameter").value_or(""));
    row.parameter = rows.keep(parameter);
    std::optional<std::string> text =
        row.verdict == Verdict::kRefused ? std::nullopt : text_of(result, "meaning");
    if (const auto reason = result.find("reason"); reason != result.end() && reason->is_object()) {
        row.reason = rows.keep(text_of(*reason, "id").value_or(""));
        text = text_of(*reason, "text");
    }
    if (exit_code(row.verdict) != kExitAccepted) {
        ordered_json example = ordered_json::object();
        if (const auto id = text_of(result, "id")) example["id"] = *id;
        if (result.contains("args") && row.verdict != Verdict::kMalformed) example["args"] = result["args"];
        if (text) example["text"] = *text;
        row.example = rows.keep(example.dump());
    }
    rows.counted.push_back(counted);
}

ordered_json read_line(std::string_view line)
{
    try {
        return json_tree(line);
    } catch (const std::invalid_argument& error) {
        refuse(std::string(error.what()) + "; each line must be a summary or a result in JSON");
    }
}

void complain(const std::string& file, std::uint64_t line, std::string_view problem)
{
    std::string message = "ostrel-check: ";
    append_escaped(message, file, 2000);
    if (line > 0) message += ":" + std::to_string(line);
    message += ": ";
    append_escaped(message, problem, 500);
    say(message + "\n");
}

void add_rows(Summary& summary, const Rows& rows)
{
    for (const CountedRow& counted : rows.counted) summary.add(counted);
    summary.unmapped().add(rows.unmapped);
}

// FileSum adds up the lines of a file. The results of a batch may be followed by its summary, which counts
// them too.
class FileSum {
 public:
    explicit FileSum(Summary& sum) : sum_(&sum) {}

    // add_line adds the content of a line, which is either a summary or a result, in JSON. For any other line,
    // it adds nothing and throws std::invalid_argument with a message for the user.
    void add_line(const std::string& line)
    {
        const ordered_json given = read_line(line);
        if (given.is_object() && given.contains("summary")) {
            add_summary(given);
        } else if (given.is_object() && given.contains("verdict")) {
            Rows rows;
            read_result(rows, given);
            // Results with the name of their file are from batch --json, which also writes a summary.
            add_rows(given.contains("file") ? results_ : *sum_, rows);
        } else {
            refuse("neither a summary nor a result");
        }
    }

    // add_results adds the results that no summary follows.
    void add_results()
    {
        results_.for_each([&](const CountedRow& counted) { sum_->add(counted); });
        results_ = Summary();
    }

 private:
    void add_summary(const ordered_json& given)
    {
        const ordered_json& total = given["summary"];
        if (!total.is_object()) refuse("\"summary\" is not an object");
        const std::uint64_t unreadable_files = number_of(total, "unreadable_files");
        const bool has_rows = given.contains("rows") && given["rows"].is_array();
        Rows rows;
        if (has_rows) {
            for (const ordered_json& row : given["rows"]) read_row(rows, row);
        }
        if (given.contains("map")) read_map(rows.unmapped, given["map"]);
        Tally tally;
        for (const CountedRow& counted : rows.counted) tally.add(counted.row.verdict, counted.count);
        bool counts_results = true;
        for (std::size_t i = 0; i < kVerdicts; ++i) {
            const std::string name(json_name(static_cast<Verdict>(i)));
            const std::uint64_t count = number_of(total, name.c_str());
            const std::uint64_t of_results = results_.tally().counts.at(i);
            if (has_rows && count != tally.counts.at(i)) refuse("the rows do not add up to \"" + name + "\"");
            if (!has_rows && count != of_results)
                refuse(
                    "the summary has no \"rows\", and not all results precede it; batch --summary json "
                    "writes rows");
            counts_results = counts_results && count >= of_results;
        }
        if (has_rows && counts_results) results_ = Summary();
        add_results();
        add_rows(*sum_, rows);
        sum_->add_unreadable_files(unreadable_files);
    }

    Summary* sum_;
    Summary results_;  // the results that a summary may follow
};

// add_file returns whether the whole file was read.
bool add_file(Summary& summary, const std::string& file)
{
    std::ifstream opened;
    if (file != "-") opened.open(file, std::ios::binary);
    std::istream& lines = file == "-" ? std::cin : opened;
    if (!lines) {
        complain(file, 0, "cannot be read: " + std::generic_category().message(errno));
        return false;
    }
    FileSum sum(summary);
    bool is_good = true;
    std::uint64_t number = 0;
    for (std::string line; std::getline(lines, line);) {
        ++number;
        if (line.find_first_not_of(" \t\r") == std::string::npos) continue;
        try {
            sum.add_line(line);
        } catch (const std::invalid_argument& error) {
            complain(file, number, error.what());
            is_good = false;
        }
    }
    sum.add_results();
    return is_good;
}

}  // namespace

int summarise(const std::vector<std::string>& files, bool as_json)
{
    Summary summary;
    int status = kExitAccepted;
    for (const std::string& file : files) {
        if (!add_file(summary, file)) status = kExitUsage;
    }
    write_all(STDOUT_FILENO, as_json ? summary_json(summary, true) : summary_text(summary, true));
    return status;
}

}  // namespace ostrel::tool
