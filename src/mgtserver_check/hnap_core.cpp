#include <ostrel/mgtserver_check.h>
#include <ostrel/result_code.h>

#include <cstring>

#include "primitives/strings.h"
#include "support/char_set.h"
#include "support/report.h"
#include "support/text.h"

using namespace ostrel;

namespace {

constexpr char kUtc[] = "UTC";

constexpr char kLocales[][6] = {"en-us", "fr-ca", "fr-fr", "de-de", "es-es", "it-it",
                                "nl-nl", "sv-se", "ar-sa", "pl-pl", "th-th"};

}  // namespace

int HNAPCORE_check_username(const char* value)
{
    const int code = validate_string(1, 16, kLatin1Printable, value);
    if (code == OSTREL_VALID) return OSTREL_VALID;
    return refuse(code, "Error in %s: Error max allowed number:%s\n\n", __func__, value);
}

int HNAPCORE_check_timezone(const char* value, char* offset_out)
{
    if (!starts_with_ignoring_case(value, kUtc)) return OSTREL_INVALID;
    const char* offset = value + std::strlen(kUtc);
    if (*offset == '\0') offset = "+00:00";
    std::memcpy(offset_out, offset, std::strlen(offset) + 1);
    return OSTREL_VALID;
}

int HNAPCORE_check_locale(const char* value)
{
    for (const auto& locale : kLocales) {
        if (equals_ignoring_case(value, locale)) return OSTREL_VALID;
    }
    return OSTREL_INVALID;
}
