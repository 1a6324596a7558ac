#include <ostrel/mgtserver_check/hnap_core.h>
#include <ostrel/result_code.h>

#include <cstring>

#include "src/strings.h"
#include "src/support/char_set.h"
#include "src/support/keywords.h"
#include "src/support/text.h"
#include "src/verdict.h"

using namespace ostrel;

namespace {

constexpr auto kLocales = keywords("en-us|fr-ca|fr-fr|de-de|es-es|it-it|nl-nl|sv-se|ar-sa|pl-pl|th-th");

constexpr Text kUserName = text(1, 16, kLatin1Printable);

constexpr char kUtc[] = "UTC";

}  // namespace

int HNAPCORE_check_username(const char* value)
{
    return text_or_refuse(value, kUserName,
                          line("Error in %s: Error max allowed number:%s\n\n", __func__, value));
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
    const bool is_locale = is_one_of_ignoring_case(value, kLocales);
    return is_locale ? OSTREL_VALID : OSTREL_INVALID;
}
