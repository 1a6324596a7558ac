// Sets of integers, stored as intervals.
#ifndef OSTREL_RULES_LANGUAGE_INTERVALS_H
#define OSTREL_RULES_LANGUAGE_INTERVALS_H

#include <limits>
#include <span>
#include <vector>

namespace ostrel::rules {

struct Interval {
    long long low;
    long long high;

    bool operator==(const Interval&) const = default;
};

class Intervals {
 public:
    // These bounds mean that there is no limit.
    static constexpr long long kLowest = std::numeric_limits<long long>::min();
    static constexpr long long kHighest = std::numeric_limits<long long>::max();

    Intervals() = default;
    Intervals(long long low, long long high);
    static Intervals of(std::span<const long long> numbers);

    Intervals operator|(const Intervals& other) const;
    Intervals operator&(const Intervals& other) const;
    Intervals operator~() const;
    bool operator==(const Intervals&) const = default;

    // moved returns the set with a number added to each member.
    [[nodiscard]] Intervals moved(long long by) const;

    [[nodiscard]] bool contains(long long number) const;
    [[nodiscard]] bool empty() const { return parts_.empty(); }

    // parts returns the intervals in ascending order, with a gap between any two.
    [[nodiscard]] const std::vector<Interval>& parts() const { return parts_; }
    [[nodiscard]] long long low() const { return parts_.front().low; }
    [[nodiscard]] long long high() const { return parts_.back().high; }

 private:
    std::vector<Interval> parts_;
};

}  // namespace ostrel::rules

#endif
