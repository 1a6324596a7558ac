#include "time_check/time_zones.h"

#include <ostrel/result_code.h>

#include <cstring>

#include "support/report.h"
#include "support/text.h"
#include "time_check/time_zone_table.h"

namespace ostrel {

namespace {

constexpr std::size_t kOffsetSize = 7;  // of an offset and its terminator

// A row begins with its offset, so that a pointer to it is the offset's text.
const char* name_of(const char* row) { return row + kOffsetSize; }

const char* row_after(const char* row)
{
    const char* name = name_of(row);
    return name + std::strlen(name) + 1;
}

}  // namespace

// The analyzer does not know that an empty row ends the table.
// NOLINTBEGIN(clang-analyzer-security.ArrayBound)

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

}  // namespace ostrel
