#include "rules/rules.h"
#include "rules/words.h"

namespace ostrel::rules {

namespace {

Shape joined_shapes(std::initializer_list<Shape> shapes)
{
    Shape result;
    for (const Shape& shape : shapes) result.insert(result.end(), shape.begin(), shape.end());
    return result;
}

struct Forms {
    Shape compact_date_time;
    Shape date_time;
    Shape date_time_with_offset;
    Shape compact_switch_over;
    Shape switch_over;
    Shape offset;
};

Forms forms()
{
    const Group two = some(kDigits, 2);
    const Group hyphen = one("-");
    const Group colon = one(":");
    const Shape compact_day = {two, two};
    const Shape day = {two, hyphen, two};
    const Shape time = {one("T"), two, colon, two, colon, two};
    const Shape offset = {one("+-"), two, colon, two};
    const Shape date_time = joined_shapes({{some(kDigits, 4), hyphen}, day, time});
    return {joined_shapes({{some(kDigits, 4)}, compact_day, time}),
            date_time,
            joined_shapes({date_time, offset}),
            joined_shapes({compact_day, time}),
            joined_shapes({day, time}),
            offset};
}

constexpr int kLeapYear = 2000;  // used if there is no year, so that 29 February is valid

Step refuse_above(std::string_view field, Expression limit, int offset)
{
    return refuse(-1, above(called(field, slice(it, offset, 2)), std::move(limit)));
}

// Day 0 is accepted, and so is hour 24 with any minute. month, day and time are the offsets of these fields.
std::vector<Step> judge_day_and_time(Expression year, int month, int day, int time)
{
    return {refuse(-1, below(called("the month", slice(it, month, 2)), 1)),
            refuse_above("the month", 12, month),
            refuse_above("the day", days(std::move(year), slice(it, month, 2)), day),
            refuse_above("the hour", 24, time),
            refuse_above("the minute", 59, time + 3),
            refuse_above("the second", 59, time + 6)};
}

}  // namespace

std::vector<Check> date_time()
{
    const Forms of = forms();
    return {
        check("ValidateDay",
              {integer("year", "a year"), natural("month", "a month"), integer("day", "a day of the month")},
              {refuse(-1, below("month", 1)), refuse(-1, above("month", 12)),
               refuse(-1, above("day", days("year", "month")))}),
        check("TcmValidateTime", {text("value", "a date and a time")},
              {refuse(-1, lacks_shape({of.compact_date_time, of.date_time, of.date_time_with_offset})),
               refuse(-1, below(called("the year", slice(it, 0, 4)), 1970)),
               when(length_is({17}), judge_day_and_time(slice(it, 0, 4), 4, 6, 9),
                    judge_day_and_time(slice(it, 0, 4), 5, 8, 11)),
               when(length_is({25}), {refuse_above("the hour of the offset", 59, 20),
                                      refuse_above("the minute of the offset", 59, 23)})}),
        check("TcmValidateDaylightSavingsTime", {text("value", "when daylight saving starts or ends")},
              {refuse(-1, lacks_shape({of.compact_switch_over, of.switch_over, of.compact_date_time,
                                       of.date_time, of.date_time_with_offset})),
               when(length_is({13}), judge_day_and_time(kLeapYear, 0, 2, 5)),
               when(length_is({14}), judge_day_and_time(kLeapYear, 0, 3, 6)),
               when(length_is({17, 19, 25}), {refuse(-1, refused_by("TcmValidateTime"))})}),
        check("TcmValidateTimeZoneFormate", {text("value", "the offset of a time zone")},
              {refuse(-1, lacks_shape({of.offset})), refuse_above("the hour", 12, 1),
               refuse_above("the minute", 59, 4)}),
    };
}

}  // namespace ostrel::rules
