#include "catalogue/conditions.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>

namespace ostrel::catalogue {

std::string_view text_of(std::span<const Value> values, std::size_t argument)
{
    if (argument >= values.size()) return {};
    const auto* text = std::get_if<std::string>(&values[argument]);
    if (text == nullptr) return {};
    return *text;
}

int number_of(std::span<const Value> values, std::size_t argument)
{
    if (argument >= values.size()) return 0;
    if (const auto* number = std::get_if<long long>(&values[argument])) return static_cast<int>(*number);
    return std::atoi(std::string(text_of(values, argument)).c_str());
}

std::string byte_at(std::string_view text, std::size_t index)
{
    std::array<char, 16> shown{};
    const auto byte = static_cast<unsigned char>(text[index]);
    std::snprintf(shown.data(), shown.size(), byte >= ' ' && byte <= '~' ? "\"%c\"" : "\\x%02X", byte);
    return "byte " + std::to_string(index + 1) + " of " + std::to_string(text.size()) + " is " + shown.data();
}

std::string in_words(std::size_t count, std::string_view unit)
{
    return std::to_string(count).append(" ").append(unit).append(count == 1 ? "" : "s");
}

Test is_null(std::size_t argument)
{
    return when([=](std::span<const Value> values) {
        return argument < values.size() && std::holds_alternative<std::nullptr_t>(values[argument]);
    });
}

Test is_empty(std::size_t argument)
{
    return when([=](std::span<const Value> values) {
        return argument < values.size() && std::holds_alternative<std::string>(values[argument]) &&
               text_of(values, argument).empty();
    });
}

Test shorter_than(std::size_t bytes, std::size_t argument)
{
    return fails(
        [=](std::string_view text) -> Fault {
            if (text.size() >= bytes) return std::nullopt;
            return "it has " + in_words(text.size(), "byte");
        },
        argument);
}

Test longer_than(std::size_t bytes, std::size_t argument)
{
    return fails(
        [=](std::string_view text) -> Fault {
            if (text.size() <= bytes) return std::nullopt;
            return "it has " + in_words(text.size(), "byte");
        },
        argument);
}

Fault outside_of(std::string_view text, std::string_view set)
{
    const std::size_t at = text.find_first_not_of(set);
    if (at == std::string_view::npos) return std::nullopt;
    return byte_at(text, at);
}

Test outside(std::string_view set, std::size_t argument)
{
    return fails([=](std::string_view text) { return outside_of(text, set); }, argument);
}

Test begins_outside(std::string_view set, std::size_t argument)
{
    return fails(
        [=](std::string_view text) -> Fault {
            if (text.empty() || set.find(text[0]) != std::string_view::npos) return std::nullopt;
            return byte_at(text, 0);
        },
        argument);
}

Test outside_argument(std::size_t set, std::size_t argument)
{
    return [=](std::span<const Value> values) {
        return outside_of(text_of(values, argument), text_of(values, set));
    };
}

Test fails(const Rule& rule, std::size_t argument)
{
    return [=](std::span<const Value> values) -> Fault {
        const bool is_text =
            argument < values.size() && std::holds_alternative<std::string>(values[argument]);
        return is_text ? rule(text_of(values, argument)) : std::nullopt;
    };
}

Test none_of(std::initializer_list<std::string_view> keywords, std::size_t argument)
{
    return when([words = std::vector(keywords), argument](std::span<const Value> values) {
        return std::ranges::find(words, text_of(values, argument)) == words.end();
    });
}

Test when(const std::function<bool(std::span<const Value> values)>& holds)
{
    return [=](std::span<const Value> values) -> Fault {
        if (!holds(values)) return std::nullopt;
        return "";
    };
}

Test both(const Test& first, const Test& second)
{
    return [=](std::span<const Value> values) -> Fault {
        if (!first(values)) return std::nullopt;
        return second(values);
    };
}

}  // namespace ostrel::catalogue
