// The limits for the day of a month.

#include "rules/acceptance.h"

namespace ostrel::rules {

Claim Acceptance::in_leap_year(const Term& year)
{
    if (year.kind == Term::Kind::kNumber) {
        const long long number = year.number;
        const bool is_leap_year = number % 4 == 0 && (number % 100 != 0 || number % 400 == 0);
        return is_leap_year ? claims_.always() : claims_.never();
    }
    return text_in(year, languages_.leap_years());
}

// above_days returns the claim that a day is after the end of its month. An invalid month has no days.
Claim Acceptance::above_days(const Term& judged, const Term& days)
{
    const Term& month = days.of[1];
    const auto above = [&](long long limit) { return number_in(judged, {limit + 1, Intervals::kHighest}); };
    const auto is_month = [&](const Intervals& numbers) { return number_in(month, numbers); };
    const Intervals february(2, 2);
    const Intervals short_months = Intervals(4, 4) | Intervals(6, 6) | Intervals(9, 9) | Intervals(11, 11);
    const Intervals long_months = Intervals(1, 12) & ~(february | short_months);
    const auto beyond_where = [&](const Claim& month_or_year, long long limit) {
        const Claim is_above = above(limit);
        return claims_.both(month_or_year, is_above);
    };
    const Claim leap = in_leap_year(days.of[0]);
    const Claim beyond_29 = beyond_where(leap, 29);
    const Claim in_february = claims_.either(beyond_29, beyond_where(claims_.negated(leap), 28));
    Claim claim = claims_.both(is_month(february), in_february);
    claim = claims_.either(claim, beyond_where(is_month(short_months), 30));
    claim = claims_.either(claim, beyond_where(is_month(long_months), 31));
    claim = claims_.either(claim, beyond_where(is_month(~Intervals(1, 12)), 0));
    // Even if the month is unknown, days above 31 are after its end, and days below 1 are not.
    claim = claims_.either(claim, above(31));
    return claims_.both(claim, above(0));
}

}  // namespace ostrel::rules
