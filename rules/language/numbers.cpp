// Languages of the strings that atoi reads as given numbers.
#include "rules/language/language.h"
#include "rules/sets.h"

namespace ostrel::rules {

namespace {

const Set kWhite = Set::range('\t', '\r') | kBlank;  // skipped by atoi

}  // namespace

// direct_number handles numbers other than 0, for which a string must contain digits.
Language Languages::direct_number(const Intervals& numbers)
{
    const Language zeros = repeated(Set("0"));
    const Language rest = either({no_byte_, joined(byte(kEveryByte - kDigits), any_)});
    std::vector<Language> parts;
    const auto add = [&](Language sign, const Interval& one) {
        parts.push_back(joined({repeated(kWhite), sign, zeros, decimals(one.low, one.high), rest}));
    };
    for (const Interval& one : numbers.parts()) {
        const Language plus = either({no_byte_, text("+")});
        if (one.low > 0) {
            add(plus, one);
        } else {
            add(text("-"), {-one.high, one.low == Intervals::kLowest ? Intervals::kHighest : -one.low});
        }
    }
    return either(parts);
}

Language Languages::of_number(const Intervals& numbers)
{
    if (numbers.empty()) return nothing_;
    if ((~numbers).empty()) return any_;
    const bool has_zero = numbers.contains(0);
    const Language same = has_zero ? negated(direct_number(~numbers)) : direct_number(numbers);
    Leaf leaf{Leaf::Kind::kNumber};
    leaf.numbers = numbers;
    return keep_leaf(std::move(leaf), same);
}

Language Languages::leap_years()
{
    const Language digits = repeated(kDigits);
    const Set even("02468");
    const Language zero = text("0");
    // The last two digits of a multiple of 4, except 00.
    const Language last =
        either({joined({byte(even - Set("0")), zero}), joined({byte(even), byte(Set("48"))}),
                joined({byte(kDigits - even), byte(Set("26"))})});
    const Language divisible = either({byte(Set("048")), joined(digits, last)});
    const Language century =
        joined({either({no_byte_, divisible, joined({digits, text("00")})}), text("00")});
    const Language sign = either({no_byte_, byte(Set("+-"))});
    const Language rest = either({no_byte_, joined(byte(kEveryByte - kDigits), any_)});
    return either({of_number({0, 0}), joined({repeated(kWhite), sign, either({divisible, century}), rest})});
}

// decimals_of_length returns the numbers from low to high. low and high must have the same number of digits.
Language Languages::decimals_of_length(std::string low, const std::string& high)
{
    if (low.empty()) return no_byte_;
    const std::size_t rest = low.size() - 1;
    const auto digits = [](char first, char last) {
        return Set::range(static_cast<unsigned char>(first), static_cast<unsigned char>(last));
    };
    if (low.front() == high.front())
        return joined({text(low.substr(0, 1)), decimals_of_length(low.substr(1), high.substr(1))});
    std::vector<Language> parts;
    char first = low.front();
    char last = high.front();
    if (low.substr(1) != std::string(rest, '0')) {
        parts.push_back(
            joined({text(low.substr(0, 1)), decimals_of_length(low.substr(1), std::string(rest, '9'))}));
        ++first;
    }
    if (high.substr(1) != std::string(rest, '9')) {
        parts.push_back(
            joined({text(high.substr(0, 1)), decimals_of_length(std::string(rest, '0'), high.substr(1))}));
        --last;
    }
    if (first <= last)
        parts.push_back(joined({byte(digits(first, last)), repeated(byte(kDigits), rest, rest)}));
    return either(parts);
}

Language Languages::decimals(long long low, long long high)
{
    const std::string last = high == Intervals::kHighest ? "" : std::to_string(high);
    std::vector<Language> parts;
    std::string first = std::to_string(low);
    while (last.empty() || first.size() < last.size()) {
        const std::size_t rest = first.size() - 1;
        if (first == "1" + std::string(rest, '0')) {
            // The range contains all numbers that have from rest + 1 to most + 1 digits.
            const std::size_t most = last.empty() ? kMany : last.size() - 2;
            parts.push_back(joined({byte(kDigits - Set("0")), repeated(byte(kDigits), rest, most)}));
            if (last.empty()) return either(parts);
            first = "1" + std::string(last.size() - 1, '0');
        } else {
            parts.push_back(decimals_of_length(first, std::string(first.size(), '9')));
            first = "1" + std::string(first.size(), '0');
        }
    }
    parts.push_back(decimals_of_length(first, last));
    return either(parts);
}

}  // namespace ostrel::rules
