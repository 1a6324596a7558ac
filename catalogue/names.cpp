#include <ostrel/names.h>

#include "catalogue/catalogue.h"

namespace ostrel::catalogue {

std::vector<Function> names()
{
    return {
        check<TcmValidatePortMappingProtocol>("TcmValidatePortMappingProtocol", {"value"},
                                              "TCP or UDP, in upper case", {{-1, "any other value"}}),
        check<TcmValidatePortMappingDescription>(
            "TcmValidatePortMappingDescription", {"value"}, "1 to 32 printable ASCII characters",
            {{801, "empty"}, {802, "more than 32 characters"}, {803, "a byte that is not printable ASCII"}}),
        check<TCM_validate_device_name>("TCM_validate_device_name", {"value", "maxLength"},
                                        "1 to maxLength printable ASCII characters",
                                        {{801, "empty"},
                                         {802, "more than maxLength characters"},
                                         {803, "a byte that is not printable ASCII"}}),
        check<TcmValidateRouterName>("TcmValidateRouterName", {"value"},
                                     "1 to 22 characters: letters, digits and ! ( ) * - / ; ? _",
                                     {{801, "empty"},
                                      {802, "more than 22 characters"},
                                      {803, "another character, such as a blank or \".\""}}),
    };
}

}  // namespace ostrel::catalogue
