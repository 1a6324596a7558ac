#include "judge/redact.h"

#include <algorithm>

#include "judge/reason.h"
#include "read/json_parser.h"
#include "rules/datum.h"
#include "rules/evaluate.h"
#include "rules/sentences.h"
#include "write/json_writer.h"

namespace ostrel::tool {

using catalogue::Value;
using rules::length_shown;

namespace {

// A shorter secret would occur by chance in too many strings.
constexpr std::size_t kShortestSought = 4;

// arguments_of returns the argument for each value of a case. A case may omit output-only arguments.
std::vector<const rules::Argument*> arguments_of(const Result& result)
{
    const catalogue::Function& function = *result.function;
    const bool all_given = result.values->size() == function.arguments.size();
    std::vector<const rules::Argument*> arguments;
    for (const rules::Argument& argument : function.arguments) {
        if (all_given || !argument.is_only_written()) arguments.push_back(&argument);
    }
    return arguments;
}

// Strings is a SAX handler that collects strings, names and numbers.
struct Strings : rapidjson::BaseReaderHandler<rapidjson::UTF8<>, Strings> {
    std::vector<std::string> all;
    // NOLINTBEGIN(bugprone-derived-method-shadowing-base-method)
    bool String(const char* begin, rapidjson::SizeType size, bool /*copy*/)
    {
        all.emplace_back(begin, size);
        return true;
    }
    bool Key(const char* begin, rapidjson::SizeType size, bool copy) { return String(begin, size, copy); }
    bool RawNumber(const char* begin, rapidjson::SizeType size, bool copy)
    {
        return String(begin, size, copy);
    }
    // NOLINTEND(bugprone-derived-method-shadowing-base-method)
};

}  // namespace

std::string without_quotations(std::string_view problem)
{
    constexpr std::string_view kMembers[] = {"check", "args",      "repeat", "times", "join", "base64",
                                             "id",    "parameter", "path",   "name",  "value"};
    std::size_t end = 0;
    while (true) {
        const std::size_t begin = problem.find_first_of("\"'", end);
        if (begin == std::string_view::npos) return std::string(problem);
        const std::size_t closing = problem.find(problem[begin], begin + 1);
        const std::string_view quoted =
            closing == std::string_view::npos ? "" : problem.substr(begin + 1, closing - begin - 1);
        if (std::ranges::find(kMembers, quoted) == std::end(kMembers))
            return std::string(problem.substr(0, begin)) + "(the content of the line is not shown)";
        end = closing + 1;
    }
}

void Redactor::find_secrets(const Result& result, Encoding encoding)
{
    secrets_.clear();
    const std::vector<const rules::Argument*> arguments = arguments_of(result);
    for (std::size_t i = 0; i < std::min(arguments.size(), result.values->size()); ++i) {
        if (!arguments[i]->is_secret) continue;
        const Value& value = (*result.values)[i];
        if (const auto* text = std::get_if<std::string>(&value)) secrets_.push_back(*text);
        if (const auto* texts = std::get_if<std::vector<std::string>>(&value))
            secrets_.insert(secrets_.end(), texts->begin(), texts->end());
    }
    std::erase_if(secrets_, [](const std::string& secret) { return secret.empty(); });
    if (encoding == Encoding::kUtf8) return;
    // Members that are passed through are in UTF-8, so the secrets are also sought in UTF-8.
    const std::size_t count = secrets_.size();
    for (std::size_t i = 0; i < count; ++i) secrets_.push_back(utf8_of(secrets_[i], encoding));
}

bool Redactor::mentions_secret(std::string_view text) const
{
    return std::ranges::any_of(secrets_, [&](const std::string& secret) {
        return text == secret ||
               (secret.size() >= kShortestSought && text.find(secret) != std::string_view::npos);
    });
}

bool Redactor::holds_secret(const Member& member) const
{
    if (secrets_.empty()) return false;
    if (!member.is_json) return mentions_secret(member.value);
    Strings strings;
    JsonParser().parse(member.value, strings);
    return std::ranges::any_of(strings.all, [&](const std::string& text) { return mentions_secret(text); });
}

Value Redactor::shown(const Value& value, bool is_secret) const
{
    const auto show = [&](const std::string& text) {
        return is_secret || mentions_secret(text) ? length_shown(text.size()) : text;
    };
    if (const auto* text = std::get_if<std::string>(&value)) return show(*text);
    const auto* texts = std::get_if<std::vector<std::string>>(&value);
    if (texts == nullptr) return value;
    std::vector<std::string> result;
    std::ranges::transform(*texts, std::back_inserter(result), show);
    return result;
}

void Redactor::redact_lines(Result& result)
{
    const catalogue::Function& function = *result.function;
    const std::vector<Value> values = catalogue::completed(function, *result.values);
    const rules::Check& check = *function.check;
    const rules::Answer told = rules::evaluate_within(rules::kMostWork, check, values, gateway());
    rules::Answer hidden = rules::evaluate_hiding(rules::kMostWork, check, values, gateway());
    const auto choose = [&](std::string_view& printed, const std::string& expected, std::string& shown) {
        if (printed != expected || mentions_secret(shown)) shown = length_shown(printed.size());
        if (printed.empty()) shown.clear();
        printed = shown;
    };
    // The C library's report of an assertion contains only the condition, not the values.
    const bool is_assertion = result.verdict == Verdict::kEnded && told.err.empty() &&
                              result.printed.err.find("Assertion `") != std::string_view::npos &&
                              !mentions_secret(result.printed.err);
    const bool is_flushed = result.printed.flushed == result.printed.out.size();
    out_ = std::move(hidden.out);
    err_ = std::move(hidden.err);
    choose(result.printed.out, told.out, out_);
    if (!is_assertion) choose(result.printed.err, told.err, err_);
    result.printed.flushed = is_flushed ? result.printed.out.size() : 0;
}

void Redactor::redact_reasons(Result& result)
{
    if (result.why.text.empty()) return;
    const rules::Check& check = *result.function->check;
    result.why.reason = rules::without_trace_of_secret(std::move(result.why.reason), check);
    result.why.text = rules::full_sentence(result.why.reason, check);
    for (rules::Reason& remark : result.why.remarks)
        remark = rules::without_trace_of_secret(std::move(remark), check);
}

void Redactor::redact_members(Result& result)
{
    if (result.record == nullptr || result.record->members.empty()) return;
    record_ = *result.record;
    members_.clear();
    if (result.verdict == Verdict::kMalformed) {
        std::erase_if(record_.members,
                      [](const Member& member) { return member.name != "id" && member.name != "parameter"; });
    }
    for (Member& member : record_.members) {
        if (!holds_secret(member)) continue;
        std::string memory;
        member.value = members_.emplace_back(length_shown(text_of(member, memory).size()));
        member.is_json = false;
    }
    result.record = &record_;
}

void Redactor::redact(Result& result, Encoding encoding)
{
    secrets_.clear();
    if (result.verdict == Verdict::kMalformed) {
        result.problem = without_quotations(result.problem);
        result.why.text = without_quotations(result.why.text);
        result.why.reason.found = std::monostate();
        // Any value of a malformed record may be a secret.
        if (result.record != nullptr) {
            for (const Item& item : result.record->items) {
                if (!item.text.empty()) secrets_.emplace_back(item.text);
            }
        }
        redact_members(result);
        return;
    }
    if (std::ranges::none_of(result.function->arguments, &rules::Argument::is_secret)) return;
    find_secrets(result, encoding);
    if (!result.printed.out.empty() || !result.printed.err.empty()) redact_lines(result);
    for (calling::Written& written : result.after)
        written.value = shown(written.value, written.argument->is_secret);
    if (result.verdict != Verdict::kNoDriver) redact_reasons(result);
    const std::vector<const rules::Argument*> arguments = arguments_of(result);
    values_.clear();
    for (std::size_t i = 0; i < std::min(arguments.size(), result.values->size()); ++i)
        values_.push_back(shown((*result.values)[i], arguments[i]->is_secret));
    result.values = &values_;
    redact_members(result);
}

}  // namespace ostrel::tool
