#include "rules/rules.h"
#include "rules/words.h"

namespace ostrel::rules {

std::vector<Check> names()
{
    return {
        check("TcmValidatePortMappingProtocol", {text("value", "the protocol of a port mapping")},
              {refuse(-1, none_of({"TCP", "UDP"}))}),
        check("TcmValidatePortMappingDescription", {text("value", "the description of a port mapping")},
              {refuse(its_code(), refused_by("ValidateString", {1, 32, kPrintable, it}))}),
        check("TCM_validate_device_name",
              {text("value", "the name of a device"), integer("maxLength", "the maximum length").in("bytes")},
              {refuse(its_code(), refused_by("ValidateString", {1, "maxLength", kPrintable, "value"}))}),
        check("TcmValidateRouterName", {text("value", "the name of the router")},
              {refuse(its_code(), refused_by("ValidateString", {1, 22, kRouterName, it}))}),
    };
}

}  // namespace ostrel::rules
