#include <ostrel/date_time.h>
#include <ostrel/hosts.h>
#include <ostrel/parameter_check.h>
#include <ostrel/result_code.h>
#include <ostrel/time_check.h>

#include <cstring>

#include "src/support/report.h"
#include "src/support/text.h"
#include "src/time_zone_table.h"
#include "src/verdict.h"

using namespace ostrel;

namespace {

constexpr std::size_t kOffsetSize = 7;  // an offset with its terminator

// A row begins with its offset, so a pointer to the row is also a pointer to the offset.
const char* name_of(const char* row) { return row + kOffsetSize; }

const char* row_after(const char* row)
{
    const char* name = name_of(row);
    return name + std::strlen(name) + 1;
}

// The three lookups compare byte by byte, stop at the first row that matches, and print a line if none does.
// Any substring of a name matches. The analyzer cannot see that an empty row ends the table.
// NOLINTBEGIN(clang-analyzer-security.ArrayBound)

// get_tzone_name_by_tzone copies the name of the first row whose offset contains tzone, at most 55 bytes
// including the terminator. A substring of an offset is sufficient: "01:00" finds "-01:00".
int get_tzone_name_by_tzone(const char* tzone, char* name_out)
{
    for (const char* row = kTimeZones; *row != '\0'; row = row_after(row)) {
        if (std::strstr(row, tzone) == nullptr) continue;
        const char* name = name_of(row);
        std::memcpy(name_out, name, std::strlen(name) + 1);
        return OSTREL_VALID;
    }
    return refuse(OSTREL_WRONG_FORM, "Error in %s: Error Time Zone:%s\n\n", __func__, tzone);
}

// get_tzone_by_tzone_name copies the offset, 7 bytes including the terminator, of the first row whose name
// contains name.
int get_tzone_by_tzone_name(char* tzone_out, const char* name)
{
    for (const char* row = kTimeZones; *row != '\0'; row = row_after(row)) {
        if (std::strstr(name_of(row), name) == nullptr) continue;
        std::memcpy(tzone_out, row, kOffsetSize);
        return OSTREL_VALID;
    }
    return refuse(OSTREL_WRONG_FORM, "Error in %s: Error Time Zone Name:%s\n\n", __func__, name);
}

int is_tzone_consistent_with_tz_name(const char* tzone, const char* name)
{
    for (const char* row = kTimeZones; *row != '\0'; row = row_after(row)) {
        if (equals(row, tzone) && std::strstr(name_of(row), name) != nullptr) return OSTREL_VALID;
    }
    return refuse(OSTREL_WRONG_FORM, "Error in %s: Time Zone:%s and Time Zone Name:%s is not consistent\n",
                  __func__, tzone, name);
}

// NOLINTEND(clang-analyzer-security.ArrayBound)

constexpr Limits kZoneNameLength{0, 63};
constexpr Limits kServerLength{1, 64, OSTREL_OUT_OF_RANGE};

bool is_empty(const char* value) { return value[0] == '\0'; }

int check_timezone_formate(const char* value)
{
    return rule_or_refuse(TcmValidateTimeZoneFormate(value), value,
                          line("Error in %s: %s is not validate timezone formate\n", __func__, value));
}

int check_daylight_saving_time(const char* value)
{
    return rule_or_refuse(TcmValidateDaylightSavingsTime(value), value,
                          line("Error in %s: %s is not validate daylight saving time\n", __func__, value));
}

}  // namespace

int Time_validate_tzone_and_tzone_name(char* tzone, char* tzone_name)
{
    if (is_empty(tzone) && is_empty(tzone_name)) return OSTREL_VALID;
    if (is_empty(tzone_name)) {
        if (get_tzone_name_by_tzone(tzone, tzone_name) == OSTREL_VALID) return OSTREL_VALID;
        return refuse(OSTREL_INVALID_VALUE, "Error in %s: NOT get timezone name from timezone:%s\n\n",
                      __func__, tzone);
    }
    if (is_empty(tzone)) {
        if (get_tzone_by_tzone_name(tzone, tzone_name) == OSTREL_VALID) return OSTREL_VALID;
        return refuse(OSTREL_INVALID_VALUE, "Error in %s: NOT get timezone from timezone name:%s\n\n",
                      __func__, tzone_name);
    }
    if (is_tzone_consistent_with_tz_name(tzone, tzone_name) == OSTREL_VALID) return OSTREL_VALID;
    return refuse(OSTREL_INVALID_VALUE, "Error in %s: Timezone:%s and timezone name:%s aren't consistent\n",
                  __func__, tzone, tzone_name);
}

int TIME_check_sync_daylight_saving_time(const char* start, const char* end)
{
    if (is_empty(start) == is_empty(end)) return OSTREL_VALID;
    return refuse(
        OSTREL_WRONG_FORM,
        "Error in %s: DaylightSavingsStart :%s and DaylightSavingsEnd :%s should be set none or both\n",
        __func__, start, end);
}

// The next three checks accept a value that is empty or not printable, because the value may be unset.

int TIME_check_local_time_zone(const char* value)
{
    if (TIME_check_ascii_string(value) != OSTREL_VALID) return OSTREL_VALID;
    if (check_timezone_formate(value) == OSTREL_VALID) return OSTREL_VALID;
    return refuse(OSTREL_INVALID_VALUE, "Error in %s: Failed check local timezone.\n\n", __func__);
}

int TIME_check_local_time_zone_name(const char* value)
{
    if (TIME_check_ascii_string(value) != OSTREL_VALID) return OSTREL_VALID;
    return length_or_refuse(value, kZoneNameLength,
                            line("Error in %s: Failed check local timezone name.\n\n", __func__));
}

int TIME_check_daylight_saving_start_or_end(const char* value)
{
    if (TIME_check_ascii_string(value) != OSTREL_VALID) return OSTREL_VALID;
    if (check_daylight_saving_time(value) == OSTREL_VALID) return OSTREL_VALID;
    return refuse(OSTREL_INVALID_VALUE, "Error in %s: Failed check daylight saving time.\n\n", __func__);
}

int TIME_check_ntpserver_length(const char* value)
{
    return length_or_refuse(
        value, kServerLength,
        line("Error in %s: %s is out of range for the value of NTPServer\n", __func__, value));
}

int TIME_check_url(const char* value)
{
    return rule_or_refuse(ValidateURL(value), value,
                          line("Error in %s: %s is not validate URL\n", __func__, value));
}

int TIME_check_ascii_string(const char* value)
{
    if (PARAM_check_printable_ascii_string(value) == OSTREL_VALID) return OSTREL_VALID;
    return refuse(OSTREL_INVALID, "Error in %s: %s is not printable ascii string\n", __func__, value);
}

int TIME_check_NTP_server(const char* value)
{
    if (const int code = TIME_check_ntpserver_length(value); code != OSTREL_VALID) return code;
    return TIME_check_url(value);
}
