#include "catalogue/names.h"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <tuple>
#include <utility>

namespace ostrel::catalogue {

namespace {

// No name is longer than kLongestName. Longer words are truncated, because the time needed to count typos
// grows with the square of the length.
constexpr std::size_t kLongestName = 64;
constexpr std::size_t kMostShown = 3;
// Shorter words are ignored, because a single letter occurs in nearly every name.
constexpr std::size_t kShortest = 2;

bool is_letter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }
bool is_capital(char c) { return c >= 'A' && c <= 'Z'; }

bool begins_word(std::string_view name, std::size_t at)
{
    if (at == 0 || !is_letter(name[at - 1])) return true;
    return is_capital(name[at]) && !is_capital(name[at - 1]);
}

std::vector<std::string_view> words_of(std::string_view name)
{
    std::vector<std::string_view> words;
    for (std::size_t begin = 0; begin < name.size();) {
        std::size_t end = begin + 1;
        while (end < name.size() && name[end] != '_' && !begins_word(name, end)) ++end;
        if (is_letter(name[begin])) words.push_back(name.substr(begin, end - begin));
        begin = end;
    }
    return words;
}

// typing_errors counts typos: bytes that were omitted, added, changed, or swapped with the next byte.
std::size_t typing_errors(std::string_view a, std::string_view b)
{
    std::vector<std::size_t> row(b.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    std::vector<std::size_t> above;
    std::vector<std::size_t> above_that;
    for (std::size_t i = 1; i <= a.size(); ++i) {
        above_that = std::exchange(above, row);
        row[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t change = above[j - 1] + (a[i - 1] == b[j - 1] ? 0 : 1);
            row[j] = std::min({above[j] + 1, row[j - 1] + 1, change});
            const bool is_swapped = i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1];
            if (is_swapped) row[j] = std::min(row[j], above_that[j - 2] + 1);
        }
    }
    return row.back();
}

// Similar is a name with its sort keys. The first key is the number of typos or, if the name contains the
// word, 0 if it is a whole word there and 1 if not. The second key is the length of the name.
using Similar = std::tuple<std::size_t, std::size_t, std::string_view>;

std::vector<std::string_view> first_ones(std::vector<Similar> found)
{
    std::ranges::sort(found);
    std::vector<std::string_view> names;
    for (const Similar& one : found) {
        if (names.size() < kMostShown) names.push_back(std::get<2>(one));
    }
    return names;
}

std::vector<Similar> names_with(std::string_view word, const std::vector<std::string_view>& names)
{
    std::vector<Similar> found;
    for (const std::string_view name : names) {
        const std::size_t at = in_lower_case(name).find(word);
        if (at == std::string::npos) continue;
        const std::size_t end = at + word.size();
        const bool is_word =
            begins_word(name, at) && (end == name.size() || begins_word(name, end) || name[end] == '_');
        found.emplace_back(is_word ? 0 : 1, name.size(), name);
    }
    return found;
}

std::vector<Similar> names_like(std::string_view word, const std::vector<std::string_view>& names)
{
    const std::size_t most = std::max<std::size_t>(1, (word.size() + 1) / 4);
    std::vector<Similar> found;
    std::size_t fewest = most;
    const auto errors = [&](std::string_view other) {
        const std::size_t difference =
            std::max(word.size(), other.size()) - std::min(word.size(), other.size());
        return difference > most ? most + 1 : typing_errors(word, in_lower_case(other));
    };
    for (const std::string_view name : names) {
        std::size_t least = errors(name);
        for (const std::string_view part : words_of(name)) least = std::min(least, errors(part));
        if (least > most) continue;
        fewest = std::min(fewest, least);
        found.emplace_back(least, name.size(), name);
    }
    std::erase_if(found, [&](const Similar& one) { return std::get<0>(one) > fewest; });
    return found;
}

}  // namespace

std::string in_lower_case(std::string_view text)
{
    std::string result(text);
    for (char& c : result) {
        if (is_capital(c)) c = static_cast<char>(c - 'A' + 'a');
    }
    return result;
}

const Function* find_in_any_case(std::string_view name)
{
    if (const Function* same = find(name)) return same;
    const Function* found = nullptr;
    const std::string wanted = in_lower_case(name);
    for (const Function& function : functions()) {
        if (in_lower_case(function.name) != wanted) continue;
        if (found != nullptr) return nullptr;
        found = &function;
    }
    return found;
}

std::vector<std::string_view> similar_names(std::string_view word, const std::vector<std::string_view>& names)
{
    const std::string wanted = in_lower_case(word.substr(0, kLongestName));
    if (wanted.size() < kShortest) return {};
    std::vector<Similar> found = names_with(wanted, names);
    if (found.empty()) found = names_like(wanted, names);
    return first_ones(std::move(found));
}

std::string did_you_mean(std::string_view word, const std::vector<std::string_view>& names)
{
    const std::vector<std::string_view> similar = similar_names(word, names);
    std::string question;
    for (std::size_t i = 0; i < similar.size(); ++i) {
        std::string_view before = "; did you mean ";
        if (i > 0) before = i + 1 == similar.size() ? " or " : ", ";
        question.append(before).append(similar[i]);
    }
    return question.empty() ? question : question + "?";
}

std::string unknown_function(std::string_view name)
{
    static const std::vector<std::string_view> names = [] {
        std::vector<std::string_view> all;
        for (const Function& function : functions()) all.push_back(function.name);
        return all;
    }();
    return "there is no check \"" + std::string(name.substr(0, kLongestName)) + "\"" +
           did_you_mean(name, names);
}

}  // namespace ostrel::catalogue
