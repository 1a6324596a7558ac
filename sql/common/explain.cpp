// Derives buffer sizes and reasons from the descriptions. ostrel_room and ostrel_explain are called from C,
// so no exception may escape from them.

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "rules/evaluate.h"
#include "rules/reason_json.h"
#include "rules/rules.h"
#include "rules/sentences.h"
#include "sql/common/call.h"

namespace {

using ostrel::rules::Answer;
using ostrel::rules::append_json_text;
using ostrel::rules::Build;
using ostrel::rules::Check;
using ostrel::rules::Value;

Build this_build()
{
    return {OSTREL_MODEL, OSTREL_ACCOUNT_REALM, OSTREL_SETUP_REALM, ostrel::rules::atoi_here(), std::nullopt};
}

std::string text_of(const OstrelText& given) { return {given.bytes, given.size}; }

std::vector<Value> values_of(const OstrelCheck& check, const OstrelText* given, const OstrelSlot* slots)
{
    std::vector<Value> values;
    for (unsigned i = 0; i < check.count; ++i) {
        std::vector<std::string> texts;
        switch (check.arguments[i].kind) {
            case kText:
            case kBuffer:
                values.emplace_back(text_of(*given++));
                break;
            case kBlocks:
                for (unsigned block = 0; block < check.arguments[i].blocks; ++block)
                    texts.push_back(text_of(*given++));
                values.emplace_back(std::move(texts));
                break;
            case kInteger:
                values.emplace_back(static_cast<long long>(slots[i].integer));
                ++given;
                break;
            case kUnsigned:
                values.emplace_back(static_cast<long long>(slots[i].natural));
                ++given;
                break;
            case kOutputText:
                values.emplace_back(std::string());
                break;
            case kOutputInteger:
                values.emplace_back(static_cast<long long>(OSTREL_UNWRITTEN));
                break;
        }
    }
    return values;
}

std::string after(const OstrelCheck& check, const OstrelSlot* slots)
{
    std::string out;
    for (unsigned i = 0; i < check.count; ++i) {
        const OstrelArgument& argument = check.arguments[i];
        if (argument.kind == kText || argument.kind == kInteger || argument.kind == kUnsigned) continue;
        out += out.empty() ? '[' : ',';
        if (argument.kind == kOutputInteger) {
            out += slots[i].integer == OSTREL_UNWRITTEN ? "null" : std::to_string(slots[i].integer);
        } else if (argument.kind == kBlocks) {
            for (unsigned block = 0; block < argument.blocks; ++block) {
                out += block == 0 ? '[' : ',';
                append_json_text(out, slots[i].buffer + block * argument.block_size);
            }
            out += ']';
        } else {
            append_json_text(out, slots[i].buffer);
        }
    }
    return out.empty() ? "[]" : out + "]";
}

// lengths lists the length of each secret value in a call. Nothing else about a secret may be shown.
std::string lengths(const OstrelCheck& check, const OstrelText* given)
{
    std::string out;
    for (unsigned i = 0; i < check.count; ++i) {
        const OstrelArgument& argument = check.arguments[i];
        const bool is_given = argument.kind != kOutputText && argument.kind != kOutputInteger;
        const unsigned texts = !is_given ? 0 : argument.kind == kBlocks ? argument.blocks : 1;
        for (unsigned text = 0; text < texts; ++text, ++given) {
            if (!argument.is_secret) continue;
            if (!out.empty()) out += ", ";
            out += argument.name;
            if (texts > 1) out += " " + std::to_string(text + 1);
            out += " has " + std::to_string(given->size) + (given->size == 1 ? " byte" : " bytes");
        }
    }
    return out;
}

// reason returns an empty sentence or JSON object if finding the reason would take too long.
std::string reason(const OstrelCheck& called, const OstrelText* given, const OstrelSlot* slots,
                   OstrelWish wish, int code)
{
    const Check& check = *ostrel::rules::find(called.name);
    Answer told;
    ostrel::rules::explain_within(ostrel::rules::kMostWork, check, values_of(called, given, slots),
                                  this_build(), told);
    const bool is_explained = told.is_refusal && told.code == code;
    std::string out;
    if (wish == kReason) {
        if (is_explained) append_json_reason(out, std::move(told.reason), check);
        return is_explained ? out : "{}";
    }
    return is_explained ? full_sentence(without_secret(std::move(told.reason), check), check) : out;
}

}  // namespace

size_t ostrel_room(const OstrelCheck* check, const OstrelText* given, const OstrelSlot* slots,
                   unsigned argument)
{
    try {
        const auto values = values_of(*check, given, slots);
        const auto room = ostrel::rules::room(*ostrel::rules::find(check->name), argument, values);
        return std::max(room.value_or(0), std::get<std::string>(values[argument]).size() + 1);
    } catch (const std::exception&) {
        return 0;
    }
}

bool ostrel_explain(const OstrelCheck* check, const OstrelText* given, const OstrelSlot* slots,
                    OstrelWish wish, OstrelAnswer* answer)
{
    try {
        const bool is_secret =
            wish == kSentence &&
            std::ranges::any_of(std::span(check->arguments, check->count), &OstrelArgument::is_secret);
        const std::string text = wish == kAfter ? after(*check, slots)
                                 : is_secret    ? lengths(*check, given)
                                                : reason(*check, given, slots, wish, answer->code);
        answer->text = static_cast<char*>(std::malloc(text.size() + 1));
        if (answer->text == nullptr) return false;
        std::memcpy(answer->text, text.c_str(), text.size() + 1);
        answer->size = text.size();
        return true;
    } catch (const std::exception&) {
        return false;
    }
}
