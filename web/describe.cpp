// Prints as JSON the data that generate.js needs from the descriptions.

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
using ostrel::rules::Check;
using ostrel::rules::NullOutcome;

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

// json_of returns the data that is missing from the command line's catalogue.
std::string json_of(const Check& check)
{
    std::string out = "{\"name\":";
    append_json_text(out, check.name);
    out += ",\"module\":";
    append_json_text(out, check.module);
    out += ",\"nulls\":";
    for (std::size_t i = 0; i < check.arguments.size(); ++i) {
        out += i == 0 ? '[' : ',';
        if (check.arguments[i].is_number()) {
            out += "null";
        } else {
            append_json_text(out, name_of(null_outcome(check, i, ostrel::rules::Build())));
        }
    }
    return out + "]}";
}

// Phrases collects the fixed phrases for parts, forms, conversions and sets, which each language translates.
class Phrases {
 public:
    Phrases()
    {
        for (const std::string_view words : ostrel::rules::set_words()) add(words);
        // The const_cast is safe, because no field is changed.
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

    // The phrases of another check are collected when that check is processed.
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
