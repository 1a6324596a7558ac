#include "src/names.h"

#include <ostrel/names.h>
#include <ostrel/result_code.h>

#include "src/support/judge.h"
#include "src/support/keywords.h"

using namespace ostrel;

namespace {

constexpr auto kProtocols = keywords("TCP|UDP");

}  // namespace

int TcmValidatePortMappingProtocol(const char* value) { return judge(is_one_of(value, kProtocols)); }

int TcmValidatePortMappingDescription(const char* value)
{
    return validate_string(value, kPortMappingDescription);
}

int TCM_validate_device_name(const char* value, int maxLength)
{
    return validate_string(value, 1, maxLength, kDeviceName);
}

int TcmValidateRouterName(const char* value) { return validate_string(value, kRouterNameText); }
