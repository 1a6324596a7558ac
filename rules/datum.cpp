#include "rules/datum.h"

#include <algorithm>

namespace ostrel::rules {

namespace {

// Lists with more words are too long for a sentence.
constexpr std::size_t kMostWords = 40;

template <typename T, typename F>
std::string joined(const std::vector<T>& values, F shown)
{
    std::string result;
    for (const T& value : values) {
        if (!result.empty()) result += ", ";
        result += shown(value);
    }
    return result;
}

bool same_letter(char a, char b)
{
    const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
    return lower(a) == lower(b);
}

// in_common returns the length of the longest common substring, ignoring case, or longest if that is greater.
std::size_t in_common(std::string_view one, std::string_view other, std::size_t longest)
{
    for (std::size_t i = 0; i + longest < one.size(); ++i) {
        for (std::size_t j = 0; j + longest < other.size(); ++j) {
            if (i + longest == one.size()) return longest;
            // Offsets at which no match can be longer than the longest one so far are skipped.
            if (!same_letter(one[i + longest], other[j + longest])) continue;
            const std::string_view rest = other.substr(j);
            const auto differing = std::ranges::mismatch(one.substr(i), rest, same_letter);
            longest = std::max(longest, static_cast<std::size_t>(differing.in2 - rest.begin()));
        }
    }
    return longest;
}

std::string in_words(const std::vector<std::string_view>& words, const Datum& found)
{
    if (words.size() <= kMostWords) return joined(words, keyword_in_words);
    constexpr std::size_t kLongest = 64;
    const auto* text = std::get_if<std::string>(&found);
    const std::string_view judged = text == nullptr ? std::string_view() : *text;
    std::string_view nearest = words.front();
    std::size_t longest = 0;
    for (const std::string_view word : words) {
        const std::size_t common = in_common(judged.substr(0, kLongest), word, longest);
        if (common > longest) nearest = word;
        longest = common;
    }
    return std::to_string(words.size()) + " values; the closest is " + quoted(nearest);
}

}  // namespace

std::string in_words(const Datum& datum, const Datum& found)
{
    if (std::holds_alternative<std::monostate>(datum)) return "a value that is not shown";
    if (const auto* number = std::get_if<long long>(&datum)) return std::to_string(*number);
    if (const auto* text = std::get_if<std::string>(&datum)) return quoted(*text);
    if (const auto* set = std::get_if<Set>(&datum)) return in_words(*set);
    if (const auto* words = std::get_if<std::vector<std::string_view>>(&datum))
        return in_words(*words, found);
    return joined(std::get<std::vector<long long>>(datum),
                  [](long long number) { return std::to_string(number); });
}

bool is_one(const Datum& datum)
{
    if (const auto* number = std::get_if<long long>(&datum)) return *number == 1;
    if (const auto* set = std::get_if<Set>(&datum)) return set->size() == 1;
    if (const auto* words = std::get_if<std::vector<std::string_view>>(&datum)) return words->size() == 1;
    if (const auto* numbers = std::get_if<std::vector<long long>>(&datum)) return numbers->size() == 1;
    return true;
}

std::string keyword_in_words(std::string_view word)
{
    const bool is_plain = !word.empty() && std::ranges::all_of(word, [](char c) {
        return c > ' ' && c <= '~' && c != ',' && c != '"';
    });
    return is_plain ? std::string(word) : quoted(word);
}

std::string quoted(std::string_view text)
{
    constexpr std::size_t kLongest = 64;
    const std::string_view shown = text.substr(0, kLongest);
    std::string result;
    result.reserve(shown.size() + 5);
    result += '"';
    for (const char c : shown) {
        if (c == '"' || c == '\\') result += '\\';
        if (c >= ' ' && c <= '~') {
            result += c;
        } else {
            result += bare(c);
        }
    }
    return result.append(text.size() > kLongest ? "...\"" : "\"");
}

std::string length_shown(std::size_t size)
{
    return "<" + std::to_string(size) + (size == 1 ? " byte>" : " bytes>");
}

}  // namespace ostrel::rules
