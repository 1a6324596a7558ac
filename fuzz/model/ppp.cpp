// The WAN's PPP connection.
#include "fuzz/model/generic.h"

namespace ostrel::model {

namespace {

Answer connection_type(const std::string& value)
{
    if (value == "IP_Routed") return silent(0);
    return rule::refused(402, "PPP_check_connection_type", "Error wan connection type:" + value + "\n\n");
}

Answer user_name(const std::string& value)
{
    const int code = rule::user_name_code(value);
    if (code == 0) return silent(0);
    return rule::refused(code, "PPP_check_user_name", "Error ppp user name:" + value + "\n\n");
}

Answer tonline_password(const std::string& value)
{
    const int code = rule::length_and_set(1, 8, rule::printable_latin1(), value);
    if (code == 0) return silent(0);
    return rule::refused(code, "PPP_check_tonline_password", "Error ppp T-Online password:" + value + "\n\n");
}

Answer non_tonline_password(const std::string& value)
{
    const int code = rule::length_and_set(1, 67, rule::printable_latin1(), value);
    if (code == 0) return silent(0);
    return rule::refused(code, "PPP_check_non_tonline_password",
                         "Error none T-Online ppp password:" + value + "\n\n");
}

Answer service_name(const std::string& value)
{
    if (!value.empty()) return silent(0);
    return rule::refused(501, "PPP_check_pppoe_service_name", "Error ppp service name:" + value + "\n\n");
}

Answer connection_trigger(const std::string& value)
{
    if (value == "OnDemand" || value == "AlwaysOn") return silent(0);
    return rule::refused(value.empty() ? 501 : 402, "PPP_check_connection_trigger",
                         "Error connection trigger:" + value + "\n\n");
}

// idle_disconnect_time reads no number.
Answer idle_disconnect_time(const std::string& value)
{
    if (!value.empty()) return silent(0);
    return rule::refused(501, "PPP_check_idle_disconnect_time", "Error disconnect time:" + value + "\n\n");
}

Answer route_protocol_rx(const std::string& value)
{
    if (value == "Off") return silent(0);
    return rule::refused(402, "PPP_check_route_protocol_rx", "Error Rx route protocol:" + value + "\n\n");
}

// shaping_rate takes -1, which shaping_burst_size does not.
Answer shaping_rate(const std::string& value)
{
    const Number rate = read_number(value);
    if (rate.undefined) return undefined();
    if (rate.value >= -1) return silent(0);
    return rule::refused(402, "PPP_check_shaping_rate", "Error shaping rate:" + value + "\n\n");
}

Answer shaping_burst_size(const std::string& value)
{
    const Number size = read_number(value);
    if (size.undefined) return undefined();
    if (size.value >= 0) return silent(0);
    return rule::refused(402, "PPP_check_shaping_burst_size", "Error shaping burst size:" + value + "\n\n");
}

}  // namespace

void add_ppp(Models& models)
{
    models["PPP_check_connection_type"] = on_text<connection_type>;
    models["PPP_check_user_name"] = on_text<user_name>;
    models["PPP_check_tonline_password"] = on_text<tonline_password>;
    models["PPP_check_non_tonline_password"] = on_text<non_tonline_password>;
    models["PPP_check_pppoe_service_name"] = on_text<service_name>;
    models["PPP_check_connection_trigger"] = on_text<connection_trigger>;
    models["PPP_check_idle_disconnect_time"] = on_text<idle_disconnect_time>;
    models["PPP_check_route_protocol_rx"] = on_text<route_protocol_rx>;
    models["PPP_check_shaping_rate"] = on_text<shaping_rate>;
    models["PPP_check_shaping_burst_size"] = on_text<shaping_burst_size>;
}

}  // namespace ostrel::model
