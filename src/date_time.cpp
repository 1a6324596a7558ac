#include <ostrel/date_time.h>

#include "src/support/judge.h"
#include "src/support/number.h"

using namespace ostrel;

namespace {

constexpr unsigned kNoNumber = 100;  // above every limit
constexpr unsigned kLastHour = 24;
constexpr unsigned kLastMinute = 59;
constexpr unsigned kLastSecond = 59;
constexpr unsigned kLastOffsetHour = 59;  // the hours of an offset have the same limit as its minutes
constexpr unsigned kLastZoneHour = 12;

// Reader reads a value from left to right. Each function returns either the number that it has read, or
// whether the value continues as required. None of them moves past the terminator, which is neither a digit
// nor a separator.
class Reader {
 public:
    explicit Reader(const char* value) : at_(value) {}

    // two_digits returns kNoNumber, and does not advance, if the next two characters are not both digits.
    unsigned two_digits()
    {
        const unsigned tens = digit(at_[0]);
        if (tens > kLargestDigit) return kNoNumber;
        const unsigned ones = digit(at_[1]);
        if (ones > kLargestDigit) return kNoNumber;
        at_ += 2;
        return tens * 10 + ones;
    }

    bool separator(char c)
    {
        if (*at_ != c) return false;
        ++at_;
        return true;
    }

    // sign has no branch, because a branch on the sign would often be mispredicted.
    bool sign()
    {
        const bool is_sign = (*at_ == '+') | (*at_ == '-');
        at_ += is_sign;
        return is_sign;
    }

    bool at_end() const { return *at_ == '\0'; }

 private:
    const char* at_;
};

struct Date {
    unsigned year = 0;
    unsigned month = 0;
    unsigned day = 0;
};

// read_day_and_time reads "DDThh:mm:ss", which all forms share. Inlining this function and read_offset cuts
// the time to check a date-time by a fifth.
inline bool read_day_and_time(Reader& reader, Date& date)
{
    date.day = reader.two_digits();
    return reader.separator('T') && reader.two_digits() <= kLastHour && reader.separator(':') &&
           reader.two_digits() <= kLastMinute && reader.separator(':') && reader.two_digits() <= kLastSecond;
}

// read_offset reads "+HH:MM" or "-HH:MM".
inline bool read_offset(Reader& reader, unsigned last_hour)
{
    return reader.sign() && reader.two_digits() <= last_hour && reader.separator(':') &&
           reader.two_digits() <= kLastMinute && reader.at_end();
}

// read_date_time reads "YYYYMMDDThh:mm:ss", "YYYY-MM-DDThh:mm:ss" or the latter with an offset.
bool read_date_time(Reader reader, Date& date)
{
    const unsigned century = reader.two_digits();
    const unsigned year = reader.two_digits();  // also kNoNumber if the century is missing
    if (year == kNoNumber) return false;
    date.year = century * 100 + year;
    const bool extended = reader.separator('-');
    date.month = reader.two_digits();
    if (extended && !reader.separator('-')) return false;
    if (!read_day_and_time(reader, date)) return false;
    return reader.at_end() || (extended && read_offset(reader, kLastOffsetHour));
}

// read_yearless reads "MMDDThh:mm:ss" or "MM-DDThh:mm:ss".
bool read_yearless(Reader reader, Date& date)
{
    date.month = reader.two_digits();
    reader.separator('-');
    return read_day_and_time(reader, date) && reader.at_end();
}

constexpr int kDaysOfMonth[] = {0, 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};

bool is_leap_year(int year) { return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0); }

// is_day has no lower limit, so day 0 and negative days are valid in every month.
bool is_day(int year, unsigned month, int day)
{
    if (month < 1 || month > 12) return false;
    return day <= kDaysOfMonth[month] || (month == 2 && day == 29 && is_leap_year(year));
}

bool is_date(const Date& date)
{
    return is_day(static_cast<int>(date.year), date.month, static_cast<int>(date.day));
}

}  // namespace

int ValidateDay(int year, unsigned month, int day) { return judge(is_day(year, month, day)); }

int TcmValidateTime(const char* value)
{
    Date date;
    return judge(read_date_time(Reader(value), date) && date.year >= 1970 && is_date(date));
}

int TcmValidateDaylightSavingsTime(const char* value)
{
    if (TcmValidateTime(value) == OSTREL_VALID) return OSTREL_VALID;
    Date date;  // year 0 is a leap year, so 29 February is valid in every form without a year
    return judge(read_yearless(Reader(value), date) && is_date(date));
}

int TcmValidateTimeZoneFormate(const char* value)
{
    Reader reader(value);
    return judge(read_offset(reader, kLastZoneHour));
}
