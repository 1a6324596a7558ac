#include "vectors/rows.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <nlohmann/json.hpp>
#include <ostream>
#include <set>
#include <stdexcept>

#include "catalogue/value_json.h"

namespace ostrel::vectors {

using calling::Written;
using catalogue::Value;
using nlohmann::json;

namespace {

void require_known_members(const json& object, const std::set<std::string>& known)
{
    for (const auto& member : object.items()) {
        if (!known.contains(member.key())) throw std::invalid_argument("unknown member " + member.key());
    }
}

RowReason reason_from_json(const json& reason)
{
    require_known_members(reason, {"id", "argument", "part", "item", "offset"});
    RowReason result;
    result.id = reason.at("id").get<std::string>();
    result.argument = reason.value("argument", "");
    result.part = reason.value("part", "");
    if (reason.contains("item")) result.item = reason["item"].get<std::size_t>();
    if (reason.contains("offset")) result.offset = reason["offset"].get<std::size_t>();
    return result;
}

Promise promise_from(const json& row)
{
    require_known_members(row, {"check", "args", "code", "reason", "out", "err", "after", "flushed", "why"});
    if (!row.contains("code")) throw std::invalid_argument("no code");
    Promise promise;
    promise.result.code = row["code"].get<int>();
    promise.result.out = catalogue::text_from_json(row.value("out", json("")));
    promise.result.err = catalogue::text_from_json(row.value("err", json("")));
    promise.result.flushed = row.value("flushed", true);
    promise.is_written = row.contains("after");
    if (!promise.is_written) return promise;
    for (const json& value : row["after"]) {
        promise.result.after.push_back(catalogue::value_from_json(value));
    }
    return promise;
}

void read(const json& json_row, Row& row)
{
    row.given = calling::case_from_json(json_row);
    row.promise = promise_from(answered(json_row, Atoi::kLong64));
    if (json_row.contains("reason")) row.reason = reason_from_json(json_row["reason"]);
    if (row.reason && row.promise.result.code == 0)
        throw std::invalid_argument("a reason, and nothing is refused");
    for (const Atoi atoi : kAtois) {
        if (has_answer_for(json_row, atoi)) row.elsewhere[atoi] = promise_from(answered(json_row, atoi));
    }
}

std::size_t limit_of_texts()
{
    const char* const limit = std::getenv("OSTREL_LONGEST_TEXT");  // NOLINT(concurrency-mt-unsafe)
    return limit != nullptr ? std::stoul(limit) : std::string::npos;
}

constexpr char kFolder[] = OSTREL_SOURCE_DIR "/vectors";

std::string module_of(const std::filesystem::path& path)
{
    return path.lexically_relative(kFolder).replace_extension().string();
}

void append_file(std::vector<Row>& rows, const std::filesystem::path& path)
{
    const std::size_t longest = limit_of_texts();
    std::ifstream file(path);
    std::string line;
    std::set<std::string> seen;
    const std::size_t before = rows.size();
    for (int number = 1; std::getline(file, line); ++number) {
        if (line.empty()) continue;
        Row& row = rows.emplace_back();
        row.file = path;
        row.module = module_of(path);
        row.line = number;
        row.text = line;
        try {
            const json read_row = json::parse(line);
            read(read_row, row);
            const std::string call = read_row["check"].dump() + read_row["args"].dump();
            if (!seen.insert(call).second) row.fault = "an earlier line has the same call";
        } catch (const std::exception& error) {
            row.fault = error.what();
        }
        if (longest_text(row.given) > longest) rows.pop_back();
    }
    if (rows.size() == before) throw std::invalid_argument("no row in " + path.string());
}

}  // namespace

std::vector<Row> read_rows(const std::set<std::string>& modules)
{
    std::set<std::filesystem::path> files;
    for (const std::string& module : modules) {
        if (!std::filesystem::is_directory(std::filesystem::path(kFolder) / module))
            files.insert(std::filesystem::path(kFolder) / (module + ".ndjson"));
    }
    for (const auto& entry : std::filesystem::recursive_directory_iterator(kFolder)) {
        const std::string folder = entry.path().parent_path().lexically_relative(kFolder).string();
        if (entry.path().extension() == ".ndjson" && (modules.empty() || modules.contains(folder)))
            files.insert(entry.path());
    }
    // This module comes first, so that faults in it are reported before any other rows run.
    const char* const first = std::getenv("OSTREL_TEST_FIRST");  // NOLINT(concurrency-mt-unsafe)
    const auto comes_first = [&](const std::filesystem::path& file) {
        return first != nullptr && module_of(file) == first;
    };
    std::vector<std::filesystem::path> ordered(files.begin(), files.end());
    // NOLINTNEXTLINE(modernize-use-ranges): clang 14 cannot compile std::ranges::stable_partition
    std::stable_partition(ordered.begin(), ordered.end(), comes_first);
    std::vector<Row> rows;
    for (const auto& file : ordered) append_file(rows, file);
    return rows;
}

std::vector<Row> read_cases()
{
    std::vector<Row> rows = read_rows();
    for (const Row& row : rows) {
        if (row.fault.empty()) continue;
        throw std::invalid_argument(row.file.string() + ":" + std::to_string(row.line) + ": " + row.fault);
    }
    return rows;
}

std::size_t longest_text(const calling::Case& given)
{
    std::size_t longest = 0;
    for (const catalogue::Value& value : given.values) {
        const auto* text = std::get_if<std::string>(&value);
        if (text != nullptr) longest = std::max(longest, text->size());
    }
    return longest;
}

void PrintTo(const RowReason& reason, std::ostream* stream)
{
    *stream << reason.id << " " << reason.argument;
    if (!reason.part.empty()) *stream << ", " << reason.part;
    if (reason.item) *stream << ", item " << *reason.item;
    if (reason.offset) *stream << ", offset " << *reason.offset;
}

CallResult expected_result(const Row& row, const std::vector<Written>& before, Atoi atoi)
{
    const auto other = row.elsewhere.find(atoi);
    const Promise& promise = other != row.elsewhere.end() ? other->second : row.promise;
    CallResult expected = promise.result;
    if (!promise.is_written) expected.after = values_of(before);
    return expected;
}

}  // namespace ostrel::vectors
