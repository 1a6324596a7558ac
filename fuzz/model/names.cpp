// Names and descriptions.
#include "fuzz/model/rule.h"

namespace ostrel::model {

namespace {

Answer protocol(const std::string& value) { return silent(value == "TCP" || value == "UDP" ? 0 : -1); }

Answer port_mapping_description(const std::string& value) { return silent(rule::description(value)); }

Answer device_name(Arguments arguments)
{
    if (is_null(arguments[0])) return undefined();
    return silent(rule::length_and_set(1, number(arguments[1]), rule::printable_ascii(), text(arguments[0])));
}

Answer router(const std::string& value) { return silent(rule::router_name(value)); }

}  // namespace

namespace rule {

int description(const std::string& value) { return length_and_set(1, 32, printable_ascii(), value); }

int router_name(const std::string& value)
{
    static const std::string set = std::string(kLettersAndDigits) + "!()*-/;?_";
    return length_and_set(1, 22, set, value);
}

}  // namespace rule

void add_names(Models& models)
{
    models["TcmValidatePortMappingProtocol"] = on_text<protocol>;
    models["TcmValidatePortMappingDescription"] = on_text<port_mapping_description>;
    models["TCM_validate_device_name"] = device_name;
    models["TcmValidateRouterName"] = on_text<router>;
}

}  // namespace ostrel::model
