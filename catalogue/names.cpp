#include <ostrel/character_sets.h>
#include <ostrel/names.h>

#include "catalogue/entry.h"

namespace ostrel::catalogue {

std::vector<Function> names()
{
    return {
        check<TcmValidatePortMappingProtocol>("TcmValidatePortMappingProtocol",
                                              {{"value", "a protocol", {"TCP", "UDP"}}},
                                              "TCP or UDP, in upper case", {{-1, "any other value"}}),
        check<TcmValidatePortMappingDescription>(
            "TcmValidatePortMappingDescription", {{"value", "a description, 1 to 32 bytes"}},
            "1 to 32 printable ASCII characters",
            {{801, "empty"},
             {802, "more than 32 characters"},
             {803, "a byte that is not printable ASCII", outside(CHARSET_DESCRIPTION)}}),
        check<TCM_validate_device_name>(
            "TCM_validate_device_name",
            {{"value", "a name, 1 to maxLength bytes"}, {"maxLength", "the greatest length in bytes"}},
            "1 to maxLength printable ASCII characters",
            {{801, "empty"},
             {802, "more than maxLength characters"},
             {803, "a byte that is not printable ASCII", outside(CHARSET_DEVICE_NAME)}}),
        check<TcmValidateRouterName>(
            "TcmValidateRouterName", {{"value", "a name, 1 to 22 bytes"}},
            "1 to 22 characters: letters, digits and ! ( ) * - / ; ? _",
            {{801, "empty"},
             {802, "more than 22 characters"},
             {803, "another character, such as a blank or \".\"", outside(CHARSET_ROUTER_NAME)}}),
    };
}

}  // namespace ostrel::catalogue
