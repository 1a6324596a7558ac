// Dates, times of day and time-zone offsets.
#include "fuzz/model/rule.h"

namespace ostrel::model {

namespace {

// has_layout compares a text with a layout in which "d" stands for a digit, "~" for a sign, and everything else
// for itself.
bool has_layout(const std::string& value, std::string_view layout)
{
    if (value.size() != layout.size()) return false;
    for (std::size_t i = 0; i < layout.size(); ++i) {
        const char c = value[i];
        const bool digit = c >= '0' && c <= '9';
        switch (layout[i]) {
            case 'd':
                if (!digit) return false;
                break;
            case '~':
                if (c != '+' && c != '-') return false;
                break;
            default:
                if (c != layout[i]) return false;
        }
    }
    return true;
}

// field reads digits in place, of which has_layout has made sure.
int field(const std::string& value, std::size_t position, std::size_t digits = 2)
{
    return std::stoi(value.substr(position, digits));
}

// moment_fits reads the time of day at the position clock. Hour 24 is let through.
bool moment_fits(const std::string& value, std::size_t clock, int year, int month, int day)
{
    const int hour = field(value, clock);
    const int minute = field(value, clock + 3);
    const int second = field(value, clock + 6);
    return hour <= 24 && minute <= 59 && second <= 59 &&
           rule::day_fits(year, static_cast<unsigned>(month), day);
}

Answer day(Arguments arguments)
{
    const auto month = static_cast<unsigned>(std::get<long long>(arguments[1]));
    return silent(rule::day_fits(number(arguments[0]), month, number(arguments[2])) ? 0 : -1);
}

Answer date_time(const std::string& value) { return silent(rule::is_date_time(value) ? 0 : -1); }
Answer switch_over(const std::string& value) { return silent(rule::is_switch_over(value) ? 0 : -1); }
Answer zone_offset(const std::string& value) { return silent(rule::is_zone_offset(value) ? 0 : -1); }

}  // namespace

namespace rule {

// day_fits has no lower bound for the day.
bool day_fits(int year, unsigned month, int day)
{
    const bool leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
    switch (month) {
        case 1:
        case 3:
        case 5:
        case 7:
        case 8:
        case 10:
        case 12:
            return day <= 31;
        case 4:
        case 6:
        case 9:
        case 11:
            return day <= 30;
        case 2:
            return day <= (leap ? 29 : 28);
        default:
            return false;
    }
}

bool is_date_time(const std::string& value)
{
    if (has_layout(value, "ddddddddTdd:dd:dd")) {
        const int year = field(value, 0, 4);
        return year >= 1970 && moment_fits(value, 9, year, field(value, 4), field(value, 6));
    }
    const bool with_offset = has_layout(value, "dddd-dd-ddTdd:dd:dd~dd:dd");
    if (!with_offset && !has_layout(value, "dddd-dd-ddTdd:dd:dd")) return false;
    // The hours of the offset have the bound of minutes.
    if (with_offset && (field(value, 20) > 59 || field(value, 23) > 59)) return false;
    const int year = field(value, 0, 4);
    return year >= 1970 && moment_fits(value, 11, year, field(value, 5), field(value, 8));
}

// is_switch_over takes the forms without a year for year 0, which is a leap year.
bool is_switch_over(const std::string& value)
{
    if (is_date_time(value)) return true;
    if (has_layout(value, "ddddTdd:dd:dd")) return moment_fits(value, 5, 0, field(value, 0), field(value, 2));
    if (has_layout(value, "dd-ddTdd:dd:dd"))
        return moment_fits(value, 6, 0, field(value, 0), field(value, 3));
    return false;
}

bool is_zone_offset(const std::string& value)
{
    return has_layout(value, "~dd:dd") && field(value, 1) <= 12 && field(value, 4) <= 59;
}

}  // namespace rule

void add_dates(Models& models)
{
    models["ValidateDay"] = day;
    models["TcmValidateTime"] = on_text<date_time>;
    models["TcmValidateDaylightSavingsTime"] = on_text<switch_over>;
    models["TcmValidateTimeZoneFormate"] = on_text<zone_offset>;
}

}  // namespace ostrel::model
