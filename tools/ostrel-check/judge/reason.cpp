#include "judge/reason.h"

#include "rules/evaluate.h"
#include "rules/reason_json.h"
#include "rules/rules.h"
#include "rules/sentences.h"
#include "rules/walk.h"

namespace ostrel::tool {

using rules::Answer;
using rules::Build;
using rules::Reason;

namespace {

constexpr std::string_view kNoDriverList = "no_driver_list";

Answer answer_of(const catalogue::Function& function, const std::vector<catalogue::Value>& values)
{
    Answer answer;
    const auto explain = [&](std::span<const catalogue::Value> all) {
        rules::explain_within(rules::kMostWork, *function.check, all, gateway(), answer);
    };
    values.size() == function.arguments.size() ? explain(values)
                                               : explain(catalogue::completed(function, values));
    return answer;
}

std::vector<bool> checks_that(bool (*holds)(const rules::Check&))
{
    std::vector<bool> result;
    for (const rules::Check& check : rules::checks()) result.push_back(holds(check));
    return result;
}

// is_explained returns whether the description predicts the outcome of the call.
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

void append_utf8(std::string& out, std::string_view bytes) { append_bytes(out, bytes, Encoding::kUtf8); }

}  // namespace

Build& gateway()
{
    static Build build = {OSTREL_MODEL, OSTREL_ACCOUNT_REALM, OSTREL_SETUP_REALM, rules::atoi_here(),
                          std::nullopt};
    return build;
}

void explain(Result& result)
{
    result.why = Why();
    const bool has_reason = result.verdict == Verdict::kRefused || result.verdict == Verdict::kEnded ||
                            result.verdict == Verdict::kNoReturn;
    if (!has_reason || result.function == nullptr || result.values == nullptr) return;
    const rules::Check& check = *result.function->check;
    Answer answer = answer_of(*result.function, *result.values);
    if (!is_explained(result, answer)) return;
    result.why.reason = rules::without_secret(std::move(answer.reason), check);
    result.why.text = rules::full_sentence(result.why.reason, check);
    for (Reason& remark : answer.printed) {
        if (!rules::sentence(remark).empty())
            result.why.remarks.push_back(rules::without_secret(std::move(remark), check));
    }
}

bool is_known_not_to_return(const catalogue::Function& function, const std::vector<catalogue::Value>& values)
{
    static const std::vector<bool> may_not_return = checks_that(rules::may_not_return);
    return may_not_return[function.check->number] &&
           answer_of(function, values).outside == rules::Outside::kNeverReturns;
}

bool asks_driver(const catalogue::Function& function, const std::vector<catalogue::Value>& values)
{
    static const std::vector<bool> may_ask = checks_that(rules::asks_driver);
    return may_ask[function.check->number] && answer_of(function, values).outside == rules::Outside::kDriver;
}

void answer_at_once(Result& result)
{
    result.verdict = Verdict::kNoReturn;
    result.problem = "the check is known not to return and was not called";
    result.is_tried = false;
    explain(result);
}

void blame_driver(Result& result, std::string_view problem)
{
    result.verdict = Verdict::kNoDriver;
    result.problem = "the channel was not judged";
    result.why = Why();
    result.why.reason.id = kNoDriverList;
    result.why.text = "the driver returned no list: ";
    result.why.text += problem;
}

void explain_by_driver(Result& result, const Heard& heard)
{
    if (result.verdict != Verdict::kRefused) return;
    if (!heard.problem.empty()) {
        blame_driver(result, heard.problem);
        return;
    }
    gateway().channels = heard.channels;
    explain(result);
    gateway().channels.reset();
}

void explain_lack(Result& result, const Record& record)
{
    result.why = Why();
    if (record.problem_id.empty()) return;
    result.why.reason.id = record.problem_id;
    result.why.reason.name = record.problem_argument;
    result.why.reason.argument = 0;
    result.why.text = record.problem;
    if (record.problem_allowed.empty()) return;
    result.why.reason.found = std::string(record.problem_found);
    result.why.reason.allowed = std::vector(record.problem_allowed.begin(), record.problem_allowed.end());
}

namespace {

void write_lack(JsonWriter& json, const Result& result, rules::AppendBytes append)
{
    const Record& record = *result.record;
    const auto write = [&](std::string_view name, std::string_view text) {
        json.Key(name.data(), static_cast<rapidjson::SizeType>(name.size()));
        write_text(json, text);
    };
    const auto write_datum = [&](std::string_view name, const rules::Datum& datum) {
        if (std::holds_alternative<std::monostate>(datum)) return;
        std::string text;
        rules::append_json_datum(text, datum, append);
        json.plain(name);
        json.raw(text);
    };
    json.Key("reason");
    json.StartObject();
    write("id", record.problem_id);
    write("argument", record.problem_argument);
    write("parameter", record.problem_path);
    write_datum("found", result.why.reason.found);
    write_datum("allowed", result.why.reason.allowed);
    write("text", result.why.text);
    json.EndObject();
}

}  // namespace

void write_reasons(JsonWriter& json, const Result& result, Encoding encoding)
{
    const rules::AppendBytes append = encoding == Encoding::kUtf8 ? append_utf8 : rules::append_json_text;
    if (result.record != nullptr && !result.record->problem_id.empty()) {
        write_lack(json, result, append);
        return;
    }
    const Why& why = result.why;
    if (why.text.empty()) return;
    const rules::Check& check = *result.function->check;
    static std::string text;
    const auto write = [&](const Reason& reason, std::string_view sentence) {
        text.clear();
        rules::append_json_told(text, reason, sentence, append);
        json.raw(text);
    };
    json.plain("reason");
    write(why.reason, why.text);
    if (why.remarks.empty()) return;
    json.plain("remarks");
    json.StartArray();
    for (const Reason& remark : why.remarks) write(remark, rules::full_sentence(remark, check));
    json.EndArray();
}

}  // namespace ostrel::tool
