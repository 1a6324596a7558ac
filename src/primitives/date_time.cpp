#include "primitives/date_time.h"

#include <ostrel/date_time.h>
#include <ostrel/result_code.h>

#include <string_view>

namespace ostrel {

namespace {

// The forms of a date-time. A letter that has a field below stands for one of that field's digits, "+" for
// either sign; every other character stands for itself.
constexpr char kCompact[] = "YYYYMMDDThh:mm:ss";
constexpr char kExtended[] = "YYYY-MM-DDThh:mm:ss";
constexpr char kExtendedWithOffset[] = "YYYY-MM-DDThh:mm:ss+pp:qq";
constexpr char kCompactWithoutYear[] = "MMDDThh:mm:ss";
constexpr char kExtendedWithoutYear[] = "MM-DDThh:mm:ss";
constexpr char kOffset[] = "+pp:qq";

struct Fields {
    int year = 0;
    int month = 0;
    int day = 0;
    int hour = 0;
    int minute = 0;
    int second = 0;
    int offset_hours = 0;
    int offset_minutes = 0;
};

int* field_of(char letter, Fields& fields)
{
    switch (letter) {
        case 'Y':
            return &fields.year;
        case 'M':
            return &fields.month;
        case 'D':
            return &fields.day;
        case 'h':
            return &fields.hour;
        case 'm':
            return &fields.minute;
        case 's':
            return &fields.second;
        case 'p':
            return &fields.offset_hours;
        case 'q':
            return &fields.offset_minutes;
        default:
            return nullptr;
    }
}

// read takes the fields from a value that has the form, and tells whether it has. Nothing is written for a
// value of another length.
bool read(std::string_view value, std::string_view form, Fields& fields)
{
    if (value.size() != form.size()) return false;
    for (std::size_t i = 0; i < form.size(); ++i) {
        const char c = value[i];
        if (int* field = field_of(form[i], fields); field != nullptr) {
            if (c < '0' || c > '9') return false;
            *field = *field * 10 + (c - '0');
        } else if (c != form[i] && !(form[i] == '+' && c == '-')) {
            return false;
        }
    }
    return true;
}

constexpr int kDaysOfMonth[] = {0, 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};

bool is_leap_year(int year) { return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0); }

// is_day has no lower bound: day 0 and days below are days of any month.
bool is_day(int year, unsigned month, int day)
{
    if (month < 1 || month > 12) return false;
    return day <= kDaysOfMonth[month] || (month == 2 && day == 29 && is_leap_year(year));
}

// is_possible judges the fields together; those that a form lacks are 0. Hour 24 is possible at any minute,
// and the hours of an offset go as far as the minutes.
bool is_possible(const Fields& fields)
{
    return fields.hour <= 24 && fields.minute <= 59 && fields.second <= 59 && fields.offset_hours <= 59 &&
           fields.offset_minutes <= 59 &&
           is_day(fields.year, static_cast<unsigned>(fields.month), fields.day);
}

}  // namespace

bool is_date_time(const char* value)
{
    const std::string_view text = value;
    Fields fields;
    return (read(text, kCompact, fields) || read(text, kExtended, fields) ||
            read(text, kExtendedWithOffset, fields)) &&
           fields.year >= 1970 && is_possible(fields);
}

bool is_switch_over(const char* value)
{
    if (is_date_time(value)) return true;
    const std::string_view text = value;
    Fields fields;  // year 0 is a leap year: 29 February is a day of every form without a year
    return (read(text, kCompactWithoutYear, fields) || read(text, kExtendedWithoutYear, fields)) &&
           is_possible(fields);
}

bool is_zone_offset(const char* value)
{
    Fields fields;
    return read(value, kOffset, fields) && fields.offset_hours <= 12 && fields.offset_minutes <= 59;
}

}  // namespace ostrel

using namespace ostrel;

int ValidateDay(int year, unsigned month, int day)
{
    return is_day(year, month, day) ? OSTREL_VALID : OSTREL_INVALID;
}

int TcmValidateTime(const char* value) { return is_date_time(value) ? OSTREL_VALID : OSTREL_INVALID; }

int TcmValidateDaylightSavingsTime(const char* value)
{
    return is_switch_over(value) ? OSTREL_VALID : OSTREL_INVALID;
}

int TcmValidateTimeZoneFormate(const char* value)
{
    return is_zone_offset(value) ? OSTREL_VALID : OSTREL_INVALID;
}
