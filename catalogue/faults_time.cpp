// Faults of date-times and time-zone offsets.

#include <array>

#include "catalogue/conditions.h"

namespace ostrel::catalogue {

namespace {

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

// read compares a text with a form, in which a letter other than T stands for a digit of that field and "+"
// for either sign, and fills in the fields.
Fault read(std::string_view text, std::string_view form, Fields& fields)
{
    fields = Fields();
    for (std::size_t i = 0; i < form.size(); ++i) {
        if (i == text.size()) return "it has " + in_words(i, "byte") + " and ends too early";
        const char c = text[i];
        int* field = nullptr;
        switch (form[i]) {
            case 'Y':
                field = &fields.year;
                break;
            case 'M':
                field = &fields.month;
                break;
            case 'D':
                field = &fields.day;
                break;
            case 'h':
                field = &fields.hour;
                break;
            case 'm':
                field = &fields.minute;
                break;
            case 's':
                field = &fields.second;
                break;
            case 'O':
                field = &fields.offset_hours;
                break;
            case 'o':
                field = &fields.offset_minutes;
                break;
            case '+':
                if (c != '+' && c != '-') return byte_at(text, i) + ", where a sign belongs";
                continue;
            default:
                if (c != form[i]) return byte_at(text, i) + ", where \"" + form[i] + "\" belongs";
                continue;
        }
        if (c < '0' || c > '9') return byte_at(text, i) + ", where a digit belongs";
        *field = *field * 10 + (c - '0');
    }
    if (text.size() > form.size()) return byte_at(text, form.size()) + ", behind the end";
    return std::nullopt;
}

int days_of(int year, int month)
{
    constexpr std::array<int, 13> kDays = {0, 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool is_leap = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
    return month == 2 && is_leap ? 29 : kDays.at(static_cast<std::size_t>(month));
}

Fault field_fault(const Fields& fields)
{
    const auto above = [](std::string_view what, int number, int limit) -> Fault {
        if (number <= limit) return std::nullopt;
        return "the " + std::string(what) + " " + std::to_string(number) + " is above " +
               std::to_string(limit);
    };
    if (Fault fault = above("hour", fields.hour, 24)) return fault;
    if (Fault fault = above("minute", fields.minute, 59)) return fault;
    if (Fault fault = above("second", fields.second, 59)) return fault;
    if (Fault fault = above("offset's hours", fields.offset_hours, 59)) return fault;
    if (Fault fault = above("offset's minutes", fields.offset_minutes, 59)) return fault;
    if (fields.month < 1 || fields.month > 12)
        return "the month " + std::to_string(fields.month) + " is not 1 to 12";
    return above("day", fields.day, days_of(fields.year, fields.month));
}

Fault judge_fields(const Fields& fields)
{
    if (fields.year < 1970) return "the year " + std::to_string(fields.year) + " is before 1970";
    return field_fault(fields);
}

}  // namespace

Fault date_time_fault(std::string_view text)
{
    Fields fields;
    const bool is_extended = text.size() > 4 && text[4] == '-';
    if (!is_extended) {
        if (Fault fault = read(text, "YYYYMMDDThh:mm:ss", fields)) return fault;
        return judge_fields(fields);
    }
    const bool has_offset = text.size() > 19 && (text[19] == '+' || text[19] == '-');
    if (Fault fault = read(text, has_offset ? "YYYY-MM-DDThh:mm:ss+OO:oo" : "YYYY-MM-DDThh:mm:ss", fields)) {
        return fault;
    }
    return judge_fields(fields);
}

Fault switch_over_fault(std::string_view text)
{
    Fields fields;
    Fault full = date_time_fault(text);
    if (!full) return std::nullopt;
    // Only a "T" or a "-" in these places can make it a form without a year.
    const bool is_compact = text.size() > 4 && text[4] == 'T';
    const bool is_extended = text.size() > 5 && text[2] == '-' && text[5] == 'T';
    if (!is_compact && !is_extended) return full;
    if (Fault fault = read(text, is_extended ? "MM-DDThh:mm:ss" : "MMDDThh:mm:ss", fields)) return fault;
    return field_fault(fields);
}

Fault zone_offset_fault(std::string_view text)
{
    Fields fields;
    if (Fault fault = read(text, "+OO:oo", fields)) return fault;
    if (fields.offset_hours > 12) return "the hours " + std::to_string(fields.offset_hours) + " are above 12";
    if (fields.offset_minutes > 59)
        return "the minutes " + std::to_string(fields.offset_minutes) + " are above 59";
    return std::nullopt;
}

}  // namespace ostrel::catalogue
