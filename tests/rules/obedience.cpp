#include "tests/rules/obedience.h"

#include <algorithm>

namespace ostrel::tests {

using catalogue::Value;
using rules::Constraints;
using rules::Form;
using rules::Limit;
using rules::Set;

namespace {

std::string folded(std::string text, bool ignores_case)
{
    if (!ignores_case) return text;
    for (char& c : text) {
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    }
    return text;
}

bool has_shape(const rules::Runs& shape, std::string_view text)
{
    for (const rules::Run& run : shape) {
        std::size_t count = 0;
        while (count < run.most && count < text.size() && run.characters.contains(text[count])) ++count;
        if (count < run.least) return false;
        text.remove_prefix(count);
    }
    return text.empty();
}

long long number_in(const std::string& text)
{
    return rules::read_number(text, rules::Build::Atoi::kLong64).value;
}

std::vector<std::string> split(const std::string& text, char separator)
{
    std::vector<std::string> items(1);
    for (const char c : text) {
        if (c == separator) {
            items.emplace_back();
        } else {
            items.back() += c;
        }
    }
    return items;
}

std::string trimmed(const std::string& text, const Set& set)
{
    const auto is_kept = [&](char c) { return !set.contains(c); };
    const auto begin = std::ranges::find_if(text, is_kept);
    const auto end = std::find_if(text.rbegin(), std::make_reverse_iterator(begin), is_kept).base();
    return {begin, end};
}

std::string limit_fault(const Limit& limit, const Value& value, const Value& other)
{
    const auto* text = std::get_if<std::string>(&value);
    const auto* bound = std::get_if<long long>(&other);
    switch (limit.kind) {
        case Limit::Kind::kMinLength:
            return static_cast<long long>(text->size()) < *bound ? "min_length of limits" : "";
        case Limit::Kind::kMaxLength:
            return static_cast<long long>(text->size()) > *bound ? "max_length of limits" : "";
        case Limit::Kind::kMinimum:
            return number_in(*text) < *bound ? "minimum of limits" : "";
        case Limit::Kind::kMaximum:
            return number_in(*text) > *bound ? "maximum of limits" : "";
        case Limit::Kind::kCharacters:
            break;
    }
    return text->find_first_not_of(std::get<std::string>(other)) == std::string::npos
               ? ""
               : "characters of limits";
}

}  // namespace

bool Obedience::matches(const std::string& pattern, const std::string& text)
{
    const auto wide = [](const std::string& narrow) {
        std::wstring result;
        for (const char c : narrow) result += static_cast<wchar_t>(static_cast<unsigned char>(c));
        return result;
    };
    auto known = patterns_.find(pattern);
    if (known == patterns_.end()) known = patterns_.emplace(pattern, std::wregex(wide(pattern))).first;
    return std::regex_search(wide(text), known->second);
}

std::string Obedience::list_fault(const Form& form, char separator, const std::string& text)
{
    const std::vector<std::string> items = split(text, separator);
    if (items.size() < form.min_items.value_or(0)) return "min_items";
    if (form.max_items && items.size() > *form.max_items) return "max_items";
    for (const std::string& item : items) {
        const std::string problem = fault(form.item.front(), trimmed(item, form.trimmed));
        if (!problem.empty()) return "item, " + problem;
    }
    return "";
}

std::string Obedience::fault(const Form& form, const std::string& text)
{
    if (text.size() < form.min_length.value_or(0)) return "min_length";
    if (form.max_length && text.size() > *form.max_length) return "max_length";
    const auto size = static_cast<long long>(text.size());
    if (!form.lengths.empty() && std::ranges::find(form.lengths, size) == form.lengths.end())
        return "lengths";
    if (form.characters && form.characters->find_outside(text) != std::string_view::npos) return "characters";
    const std::string same = folded(text, form.ignores_case);
    const auto is_same = [&](const std::string& word) { return folded(word, form.ignores_case) == same; };
    const auto begins = [&](const std::string& word) {
        return same.starts_with(folded(word, form.ignores_case));
    };
    if (form.keywords && std::ranges::none_of(*form.keywords, is_same)) return "keywords";
    if (!form.prefixes.empty() && std::ranges::none_of(form.prefixes, begins)) return "prefixes";
    const auto suits = [&](const rules::Runs& shape) { return has_shape(shape, text); };
    if (!form.shapes.empty() && std::ranges::none_of(form.shapes, suits)) return "shape";
    if (form.minimum && number_in(text) < *form.minimum) return "minimum";
    if (form.maximum && number_in(text) > *form.maximum) return "maximum";
    if (form.separator) {
        const std::string problem = list_fault(form, *form.separator, text);
        if (!problem.empty()) return problem;
    }
    return form.pattern.empty() || matches(form.pattern, text) ? "" : "pattern";
}

std::string Obedience::fault_of(const Constraints& constraints, const std::vector<Value>& values,
                                std::size_t argument)
{
    const Value& value = values[argument];
    if (const auto* number = std::get_if<long long>(&value)) {
        const Form& form = constraints.form;
        if (form.minimum && *number < *form.minimum) return "minimum";
        return form.maximum && *number > *form.maximum ? "maximum" : "";
    }
    const auto* text = std::get_if<std::string>(&value);
    if (text == nullptr) return "";
    std::string problem = fault(constraints.form, *text);
    for (const Limit& limit : constraints.limits) {
        if (problem.empty()) problem = limit_fault(limit, value, values[limit.argument]);
    }
    return problem;
}

}  // namespace ostrel::tests
