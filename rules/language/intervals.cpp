#include "rules/language/intervals.h"

#include <algorithm>

namespace ostrel::rules {

Intervals::Intervals(long long low, long long high)
{
    if (low <= high) parts_.push_back({low, high});
}

Intervals Intervals::of(std::span<const long long> numbers)
{
    Intervals result;
    for (const long long number : numbers) result = result | Intervals(number, number);
    return result;
}

Intervals Intervals::operator|(const Intervals& other) const
{
    std::vector<Interval> all = parts_;
    all.insert(all.end(), other.parts_.begin(), other.parts_.end());
    std::ranges::sort(all, {}, &Interval::low);
    Intervals result;
    for (const Interval& one : all) {
        const bool touches = !result.empty() && (result.high() == kHighest || one.low <= result.high() + 1);
        if (touches) {
            result.parts_.back().high = std::max(result.high(), one.high);
        } else {
            result.parts_.push_back(one);
        }
    }
    return result;
}

Intervals Intervals::operator~() const
{
    Intervals result;
    long long next = kLowest;
    for (const Interval& one : parts_) {
        if (one.low > next) result.parts_.push_back({next, one.low - 1});
        if (one.high == kHighest) return result;
        next = one.high + 1;
    }
    result.parts_.push_back({next, kHighest});
    return result;
}

Intervals Intervals::operator&(const Intervals& other) const { return ~(~*this | ~other); }

Intervals Intervals::moved(long long by) const
{
    Intervals result = *this;
    for (Interval& one : result.parts_) {
        if (one.low != kLowest) one.low += by;
        if (one.high != kHighest) one.high += by;
    }
    return result;
}

bool Intervals::contains(long long number) const
{
    return std::ranges::any_of(parts_,
                               [&](const Interval& one) { return one.low <= number && number <= one.high; });
}

}  // namespace ostrel::rules
