#include "tests/support/vectors.h"

#include <algorithm>
#include <fstream>
#include <ostream>
#include <set>
#include <stdexcept>

namespace ostrel::tests {

using catalogue::Written;
using nlohmann::json;

namespace {

std::string fault_of(const json& row)
{
    static const std::set<std::string> kKnown = {"check", "args",    "code",     "out", "err",
                                                 "after", "flushed", "overflow", "why"};
    for (const auto& member : row.items()) {
        if (!kKnown.contains(member.key())) return "unknown member " + member.key();
    }
    if (!row.contains("code")) return "no code";
    catalogue::case_from_json(row);
    return "";
}

void append_file(std::vector<Row>& rows, const std::filesystem::path& path)
{
    std::ifstream file(path);
    std::string line;
    std::set<std::string> seen;
    for (int number = 1; std::getline(file, line); ++number) {
        if (line.empty()) continue;
        Row row{path, number, line, {}, ""};
        try {
            row.json = json::parse(line);
            row.fault = fault_of(row.json);
            const std::string call = row.json["check"].dump() + row.json["args"].dump();
            if (!seen.insert(call).second) row.fault = "the same call stands in an earlier line";
        } catch (const std::exception& error) {
            row.fault = error.what();
        }
        rows.push_back(std::move(row));
    }
}

json after_of(const std::vector<Written>& written)
{
    json after = json::array();
    for (const Written& one : written) after.push_back(catalogue::json_from_value(one.value));
    return after;
}

}  // namespace

std::vector<Row> read_rows(const std::set<std::string>& modules)
{
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(OSTREL_SOURCE_DIR "/vectors")) {
        if (entry.path().extension() != ".ndjson") continue;
        if (modules.empty() || modules.contains(entry.path().stem().string())) files.push_back(entry.path());
    }
    std::ranges::sort(files);
    std::vector<Row> rows;
    for (const auto& file : files) append_file(rows, file);
    return rows;
}

bool applies_here(const Row& row)
{
#if defined(__GLIBC__) && !defined(__UCLIBC__)
    return !row.json.value("overflow", false) || sizeof(long) == 8;
#else
    return !row.json.value("overflow", false);
#endif
}

std::vector<VectorCase> read_cases(const std::vector<Row>& rows)
{
    std::vector<VectorCase> cases;
    for (const Row& row : rows) {
        if (!row.fault.empty()) {
            throw std::invalid_argument(row.file.string() + ":" + std::to_string(row.line) + ": " +
                                        row.fault);
        }
        if (applies_here(row)) cases.push_back({&row, catalogue::case_from_json(row.json)});
    }
    return cases;
}

std::size_t longest_text(const catalogue::Case& given)
{
    std::size_t longest = 0;
    for (const catalogue::Value& value : given.values) {
        const auto* text = std::get_if<std::string>(&value);
        if (text != nullptr) longest = std::max(longest, text->size());
    }
    return longest;
}

std::string shown(const std::string& text)
{
    using catalogue::utf8_from_bytes;
    constexpr std::size_t kEnds = 200;
    if (text.size() <= 2 * kEnds) return json(utf8_from_bytes(text)).dump();
    return json(utf8_from_bytes(text.substr(0, kEnds))).dump() + "...(" + std::to_string(text.size()) +
           " bytes)..." + json(utf8_from_bytes(text.substr(text.size() - kEnds))).dump();
}

void PrintTo(const Outcome& outcome, std::ostream* stream)
{
    *stream << "\n  code    " << outcome.code << "\n  out     " << shown(outcome.out) << "\n  flushed "
            << std::boolalpha << outcome.flushed << "\n  err     " << shown(outcome.err) << "\n  after   "
            << shown(outcome.after.dump()) << "\n";
}

Outcome expected_outcome(const Row& row, const std::vector<Written>& before)
{
    const json& given = row.json;
    Outcome expected;
    expected.code = given.at("code").get<int>();
    if (given.contains("out")) expected.out = catalogue::text_from_json(given["out"]);
    if (given.contains("err")) expected.err = catalogue::text_from_json(given["err"]);
    expected.flushed = given.value("flushed", true);
    expected.after = after_of(before);
    if (given.contains("after")) {
        expected.after = json::array();
        for (const json& value : given["after"]) {
            expected.after.push_back(catalogue::json_from_value(catalogue::value_from_json(value)));
        }
    }
    return expected;
}

Outcome actual_outcome(catalogue::Caller& caller, catalogue::Capture& capture)
{
    Outcome outcome;
    outcome.code = caller.call();
    catalogue::Printed printed = capture.take();
    outcome.flushed = printed.flushed == printed.out.size();
    outcome.out = std::move(printed.out);
    outcome.err = std::move(printed.err);
    outcome.after = after_of(caller.written());
    return outcome;
}

}  // namespace ostrel::tests
