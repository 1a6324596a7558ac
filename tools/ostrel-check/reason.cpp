#include "reason.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

#include "rules/evaluate.h"
#include "rules/sentences.h"
#include "show.h"

namespace ostrel::tool {

using rules::Answer;
using rules::Build;
using rules::Reason;

namespace {

// A reason must not take longer than the call that it is for.
constexpr std::size_t kMostWork = std::size_t{128} << 20;

Build::Atoi atoi_here()
{
    const int read = std::atoi("99999999999999999999");
    if (read == -1) return Build::Atoi::kLong64;
    return read == std::numeric_limits<int>::max() ? Build::Atoi::kLong32 : Build::Atoi::kWrapping;
}

// is_explained tells that the description comes to the same end as the call did.
bool is_explained(const Result& result, const Answer& answer)
{
    using rules::Outside;
    const bool stays = answer.outside == Outside::kNeverReturns;
    const bool ends = answer.outside == Outside::kNull || answer.outside == Outside::kAssertion;
    switch (result.verdict) {
        case Verdict::kRefused:
            return !stays && (answer.outside != Outside::kNo || answer.code == result.code);
        case Verdict::kEnded:
            return ends;
        case Verdict::kNoReturn:
            return stays;
        default:
            return false;
    }
}

bool names_argument(const rules::Check& check)
{
    return std::ranges::count_if(check.arguments, [](const rules::Argument& argument) {
               return argument.kind != rules::Argument::Kind::kIntegerOut && !argument.is_output;
           }) > 1;
}

template <typename T, typename F>
void append_list(std::string& out, const std::vector<T>& values, F append)
{
    char before = '[';
    for (const T& value : values) {
        out += before;
        append(value);
        before = ',';
    }
    out += ']';
}

void append_json_datum(std::string& out, const rules::Datum& datum)
{
    if (const auto* number = std::get_if<long long>(&datum)) {
        out += std::to_string(*number);
    } else if (const auto* text = std::get_if<std::string>(&datum)) {
        append_json_text(out, *text);
    } else if (const auto* set = std::get_if<rules::Set>(&datum)) {
        out += "{\"text\":";
        append_json_text(out, rules::in_words(*set));
        out += ",\"members\":";
        append_json_text(out, set->members());
        out += '}';
    } else if (const auto* words = std::get_if<std::vector<std::string>>(&datum)) {
        append_list(out, *words, [&](const std::string& word) { append_json_text(out, word); });
    } else if (const auto* numbers = std::get_if<std::vector<long long>>(&datum)) {
        append_list(out, *numbers, [&](long long one) { out += std::to_string(one); });
    } else {
        out += "null";
    }
}

void append_json_reason(std::string& out, const Reason& reason, const std::string& text)
{
    const auto add_number = [&](std::string_view name, long long number) {
        out.append(",\"").append(name).append("\":").append(std::to_string(number));
    };
    const auto add_datum = [&](std::string_view name, const rules::Datum& datum) {
        if (std::holds_alternative<std::monostate>(datum)) return;
        out.append(",\"").append(name).append("\":");
        append_json_datum(out, datum);
    };
    out += "{\"id\":";
    append_json_text(out, reason.id);
    if (reason.argument) {
        out += ",\"argument\":";
        append_json_text(out, reason.name);
    }
    if (!reason.part.empty()) {
        out += ",\"part\":";
        append_json_text(out, reason.part);
    }
    if (!reason.conversion.empty()) {
        out += ",\"conversion\":";
        append_json_text(out, reason.conversion);
    }
    if (reason.item) add_number("item", static_cast<long long>(*reason.item));
    if (!reason.item_text.empty()) {
        out += ",\"item_text\":";
        append_json_text(out, reason.item_text);
    }
    if (reason.offset) add_number("offset", static_cast<long long>(*reason.offset));
    add_datum("found", reason.found);
    add_datum("allowed", reason.allowed);
    if (reason.read_as) add_number("read_as", *reason.read_as);
    if (!reason.limit.empty()) {
        out += ",\"limit\":";
        append_json_text(out, reason.limit);
    }
    out += ",\"text\":";
    append_json_text(out, text);
    out += '}';
}

}  // namespace

Build& gateway()
{
    static Build build = {OSTREL_MODEL, OSTREL_ACCOUNT_REALM, OSTREL_SETUP_REALM, atoi_here(), std::nullopt};
    return build;
}

Why why(const Result& result)
{
    Why why;
    const bool has_reason = result.verdict == Verdict::kRefused || result.verdict == Verdict::kEnded ||
                            result.verdict == Verdict::kNoReturn;
    if (!has_reason || result.function == nullptr || result.values == nullptr) return why;
    const rules::Check* check = result.function->check;
    Answer answer = rules::evaluate_within(kMostWork, *check,
                                           catalogue::completed(*result.function, *result.values), gateway());
    if (!is_explained(result, answer)) return why;
    why.reason = rules::without_secret(std::move(answer.reason), *check);
    why.text = rules::full_sentence(why.reason, names_argument(*check));
    for (Reason& remark : answer.printed) {
        if (!rules::sentence(remark).empty())
            why.remarks.push_back(rules::without_secret(std::move(remark), *check));
    }
    return why;
}

void append_json_reasons(std::string& out, const Result& result)
{
    const Why why = tool::why(result);
    if (why.text.empty()) return;
    out += ",\"reason\":";
    append_json_reason(out, why.reason, why.text);
    if (why.remarks.empty()) return;
    const bool is_named = names_argument(*result.function->check);
    out += ",\"remarks\":";
    append_list(out, why.remarks, [&](const Reason& remark) {
        append_json_reason(out, remark, rules::full_sentence(remark, is_named));
    });
}

}  // namespace ostrel::tool
