#include "reason.h"

#include "rules/evaluate.h"
#include "rules/reason_json.h"
#include "rules/sentences.h"

namespace ostrel::tool {

using rules::Answer;
using rules::Build;
using rules::Reason;

namespace {

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

void append_utf8(std::string& out, std::string_view bytes) { append_bytes(out, bytes, Encoding::kUtf8); }

}  // namespace

Build& gateway()
{
    static Build build = {OSTREL_MODEL, OSTREL_ACCOUNT_REALM, OSTREL_SETUP_REALM, rules::atoi_here(),
                          std::nullopt};
    return build;
}

Why why(const Result& result)
{
    Why why;
    const bool has_reason = result.verdict == Verdict::kRefused || result.verdict == Verdict::kEnded ||
                            result.verdict == Verdict::kNoReturn;
    if (!has_reason || result.function == nullptr || result.values == nullptr) return why;
    const rules::Check* check = result.function->check;
    Answer answer = rules::evaluate_within(rules::kMostWork, *check,
                                           catalogue::completed(*result.function, *result.values), gateway());
    if (!is_explained(result, answer)) return why;
    why.reason = rules::without_secret(std::move(answer.reason), *check);
    why.text = rules::full_sentence(why.reason, *check);
    for (Reason& remark : answer.printed) {
        if (!rules::sentence(remark).empty())
            why.remarks.push_back(rules::without_secret(std::move(remark), *check));
    }
    return why;
}

void write_reasons(JsonWriter& json, const Result& result, Encoding encoding)
{
    const Why why = tool::why(result);
    if (why.text.empty()) return;
    const rules::Check& check = *result.function->check;
    const rules::AppendBytes append = encoding == Encoding::kUtf8 ? append_utf8 : rules::append_json_text;
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
