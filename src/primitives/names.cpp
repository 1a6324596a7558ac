#include "primitives/names.h"

#include <ostrel/names.h>
#include <ostrel/result_code.h>

#include "primitives/strings.h"
#include "support/char_set.h"
#include "support/text.h"

namespace ostrel {

int validate_port_mapping_description(std::string_view value)
{
    return validate_string(1, 32, kDescription, value);
}

int validate_router_name(std::string_view value) { return validate_string(1, 22, kRouterName, value); }

}  // namespace ostrel

using namespace ostrel;

int TcmValidatePortMappingProtocol(const char* value)
{
    return equals(value, "TCP") || equals(value, "UDP") ? OSTREL_VALID : OSTREL_INVALID;
}

int TcmValidatePortMappingDescription(const char* value) { return validate_port_mapping_description(value); }

int TCM_validate_device_name(const char* value, int maxLength)
{
    return validate_string(1, maxLength, kDeviceName, value);
}

int TcmValidateRouterName(const char* value) { return validate_router_name(value); }
