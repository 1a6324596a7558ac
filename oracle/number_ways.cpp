// Ways to follow reasons about numbers.

#include <algorithm>
#include <limits>

#include "oracle/ways.h"

namespace ostrel::oracle {

namespace {

void add(const Refusal& refusal, std::vector<Values>& calls, long long number)
{
    if (refusal.takes(number)) calls.push_back(refusal.with_number(number));
}

bool has(const std::vector<long long>& numbers, long long number)
{
    return std::ranges::find(numbers, number) != numbers.end();
}

}  // namespace

void raise_number(const Refusal& refusal, Advice& advice)
{
    const long long least = refusal.allowed_numbers().at(0);
    add(refusal, advice.followed, least);
    add(refusal, advice.less, least - 1);
}

void lower_number(const Refusal& refusal, Advice& advice)
{
    const long long most = refusal.allowed_numbers().at(0);
    add(refusal, advice.followed, most);
    add(refusal, advice.less, most + 1);
}

// "0" selects the automatic channel, which is accepted although the driver does not list it.
void take_number(const Refusal& refusal, Advice& advice)
{
    const std::vector<long long> numbers = refusal.allowed_numbers();
    for (const long long number : refusal.some(numbers)) {
        add(refusal, advice.followed, number);
        for (const long long near : {number - 1, number + 1}) {
            if (!has(numbers, near)) add(refusal, near == 0 ? advice.attempts : advice.less, near);
        }
    }
}

void leave_number(const Refusal& refusal, Advice& advice)
{
    const std::vector<long long> numbers = refusal.allowed_numbers();
    for (const long long number : refusal.some(numbers)) {
        add(refusal, advice.less, number);
        for (const long long near : {number - 1, number + 1}) {
            if (!has(numbers, near)) add(refusal, advice.followed, near);
        }
    }
}

void go_into_range(const Refusal& refusal, Advice& advice)
{
    const std::vector<long long> limits = refusal.allowed_numbers();
    for (const long long limit : limits) add(refusal, advice.followed, limit);
    add(refusal, advice.less, limits.at(0) - 1);
    add(refusal, advice.less, limits.at(1) + 1);
}

void leave_range(const Refusal& refusal, Advice& advice)
{
    const std::vector<long long> limits = refusal.allowed_numbers();
    for (const long long limit : limits) add(refusal, advice.less, limit);
    add(refusal, advice.followed, limits.at(0) - 1);
    add(refusal, advice.followed, limits.at(1) + 1);
}

// A number that does not fit in an int is read as a different number, which is refused too.
void fit_int(const Refusal& refusal, Advice& advice)
{
    for (const long long number : refusal.some(refusal.allowed_numbers()))
        add(refusal, advice.followed, number);
    add(refusal, advice.followed, std::numeric_limits<int>::max());
    add(refusal, advice.followed, std::numeric_limits<int>::min());
    add(refusal, advice.less, refusal.reason().read_as.value());
}

// No number is allowed, so each is refused again.
void any_number(const Refusal& refusal, Advice& advice)
{
    for (const long long number : {1, 6, 11}) add(refusal, advice.less, number);
}

}  // namespace ostrel::oracle
