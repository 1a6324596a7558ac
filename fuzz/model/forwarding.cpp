// Static routes.
#include "fuzz/model/rule.h"

namespace ostrel::model {

namespace {

Answer interface_name(const std::string& value)
{
    if (!value.empty() && value.size() <= 256) return silent(0);
    return rule::refused(402, "L3FORWARDING_check_interface", "Invalid interface value\n\n");
}

// address_or_mask refuses more than the address of all zeros: whatever begins with its first three characters.
Answer address_or_mask(const std::string& value)
{
    if (!value.starts_with("0.0") && rule::is_address(value)) return silent(0);
    return rule::refused(402, "L3FORWARDING_check_IP_address_and_mask",
                         "Invalid destination IP address or subnet mask:" + value + "\n");
}

Answer type(const std::string& value)
{
    for (const char* keyword : {"Default", "Network", "Host"}) {
        if (rule::equal_ignoring_case(value, keyword)) return silent(0);
    }
    return rule::refused(402, "L3FORWARDING_check_ForwardingType", "Invalid type:" + value + "\n");
}

Answer metric(const std::string& value)
{
    const Number metric = read_number(value);
    if (metric.undefined) return undefined();
    if (metric.value >= -1) return silent(0);
    return rule::refused(402, "L3FORWARDING_check_ForwardingMetric",
                         "Invalid metric:" + value + ", RANGE >=-1\n");
}

Answer mtu(const std::string& value)
{
    const Number mtu = read_number(value);
    if (mtu.undefined) return undefined();
    if (mtu.value >= 1 && mtu.value <= 1540) return silent(0);
    return rule::refused(402, "L3FORWARDING_check_MTU", "Invalid MTU:" + value + ", RANGE[1, 1540]\n");
}

Answer policy(const std::string& value)
{
    const Number policy = read_number(value);
    if (policy.undefined) return undefined();
    if (policy.value >= -1) return silent(0);
    return rule::refused(402, "L3FORWARDING_check_forwarding_policy",
                         "Invalid forwarding policy:" + value + ", RANGE >= -1\n");
}

}  // namespace

void add_forwarding(Models& models)
{
    models["L3FORWARDING_check_interface"] = on_text<interface_name>;
    models["L3FORWARDING_check_IP_address_and_mask"] = on_text<address_or_mask>;
    models["L3FORWARDING_check_ForwardingType"] = on_text<type>;
    models["L3FORWARDING_check_ForwardingMetric"] = on_text<metric>;
    models["L3FORWARDING_check_MTU"] = on_text<mtu>;
    models["L3FORWARDING_check_forwarding_policy"] = on_text<policy>;
}

}  // namespace ostrel::model
