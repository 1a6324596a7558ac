// Prints the descriptions as JSON, for what is generated when the package is built.

#include <cstdio>
#include <optional>
#include <set>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "rules/null.h"
#include "rules/reason_json.h"
#include "rules/rules.h"
#include "rules/sentences.h"
#include "rules/set.h"
#include "web/reasons/fields.h"

namespace {

using ostrel::rules::append_json_text;
using ostrel::rules::Argument;
using ostrel::rules::Check;
using ostrel::rules::NullOutcome;

std::string_view name_of(Argument::Kind kind)
{
    switch (kind) {
        case Argument::Kind::kText:
            return "text";
        case Argument::Kind::kBuffer:
            return "buffer";
        case Argument::Kind::kBlocks:
            return "blocks";
        case Argument::Kind::kInteger:
            return "integer";
        case Argument::Kind::kUnsigned:
            return "unsigned";
        case Argument::Kind::kIntegerOut:
            return "integer_out";
    }
    return "";
}

std::string_view name_of(NullOutcome outcome)
{
    switch (outcome) {
        case NullOutcome::kAccepted:
        case NullOutcome::kRefused:
            return "always";
        case NullOutcome::kAssertion:
            return "asserted";
        case NullOutcome::kFault:
            return "read";
        case NullOutcome::kDepends:
            return "sometimes";
    }
    return "";
}

void append_member(std::string& out, std::string_view name, std::string_view text)
{
    out.append(",\"").append(name).append("\":");
    append_json_text(out, text);
}

std::string json_of(const Check& check, std::size_t index)
{
    const Argument& argument = check.arguments[index];
    std::string out = "{\"name\":";
    append_json_text(out, argument.name);
    append_member(out, "kind", name_of(argument.kind));
    append_member(out, "what", argument.what);
    if (!argument.unit.empty()) append_member(out, "unit", argument.unit);
    if (argument.is_secret) out += ",\"secret\":true";
    if (argument.is_output || argument.kind == Argument::Kind::kIntegerOut) out += ",\"output\":true";
    if (argument.blocks > 1) {
        out += ",\"blocks\":" + std::to_string(argument.blocks);
        out += ",\"block_size\":" + std::to_string(argument.block_size);
    }
    const bool is_number =
        argument.kind == Argument::Kind::kInteger || argument.kind == Argument::Kind::kUnsigned;
    if (!is_number) append_member(out, "null", name_of(null_outcome(check, index, ostrel::rules::Build())));
    return out + "}";
}

std::string json_of(const Check& check)
{
    std::string out = "{\"name\":";
    append_json_text(out, check.name);
    append_member(out, "module", check.module.substr(0, check.module.find('/')));
    append_member(out, "answers", check.is_verdict ? "code" : "number");
    out += ",\"arguments\":[";
    for (std::size_t i = 0; i < check.arguments.size(); ++i) {
        if (i > 0) out += ',';
        out += json_of(check, i);
    }
    return out + "]}";
}

// Phrases collects the fixed phrases of sentences for parts, forms, conversions and sets, which languages translate.
class Phrases {
 public:
    Phrases()
    {
        for (const std::string_view words : ostrel::rules::set_words()) add(words);
        // The fields are visited and not changed.
        for (const Check& check : ostrel::rules::checks())
            ostrel::web::fields(*this, const_cast<Check&>(check));
    }

    template <typename... Fields>
    void operator()(Fields&... fields)
    {
        (field(fields), ...);
    }

    [[nodiscard]] const std::set<std::string>& all() const { return all_; }

 private:
    void add(std::string_view phrase)
    {
        if (!phrase.empty()) all_.emplace(phrase);
    }

    void field(const ostrel::rules::Grammar* grammar)
    {
        if (grammar != nullptr) add(grammar->what);
    }

    void field(const ostrel::rules::Conversion* conversion)
    {
        if (conversion != nullptr) add(conversion->what);
    }

    template <typename T>
    void field(std::vector<T>& parts)
    {
        for (T& part : parts) field(part);
    }

    template <typename T>
    void field(std::optional<T>& part)
    {
        if (part) field(*part);
    }

    // The phrases of another check are collected there.
    void field(const Check* /*check*/) {}
    void field(const ostrel::rules::Table* /*table*/) {}
    void field(std::string_view /*text*/) {}
    void field(ostrel::rules::Set& /*set*/) {}
    void field(std::pair<int, int> /*numbers*/) {}

    template <typename T>
    void field(T& part)
    {
        using ostrel::rules::Expression;
        using ostrel::rules::List;
        if constexpr (std::is_same_v<T, Expression> || std::is_same_v<T, List>) add(part.part);
        if constexpr (std::is_class_v<T>) ostrel::web::fields(*this, part);
    }

    std::set<std::string> all_;
};

// subject_first writes what a sentence speaks of into it, where it does not name that itself.
std::string subject_first(const ostrel::rules::Sentence& sentence)
{
    return (sentence.has_subject ? "" : "{subject} ") + std::string(sentence.text);
}

}  // namespace

int main()
{
    std::string out;
    for (const Check& check : ostrel::rules::checks())
        out += (out.empty() ? "{\"checks\":[" : ",\n") + json_of(check);
    out += "],\"sentences\":{";
    bool is_first = true;
    for (const ostrel::rules::Sentence& sentence : ostrel::rules::sentences()) {
        if (!std::exchange(is_first, false)) out += ",\n";
        append_json_text(out, sentence.id);
        out += ':';
        append_json_text(out, subject_first(sentence));
    }
    out += "},\"phrases\":[";
    is_first = true;
    const Phrases phrases;
    for (const std::string& phrase : phrases.all()) {
        if (!std::exchange(is_first, false)) out += ",\n";
        append_json_text(out, phrase);
    }
    std::puts((out + "]}").c_str());
    return 0;
}
