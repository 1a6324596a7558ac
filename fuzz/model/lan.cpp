// The gateway's interface on the LAN and its DHCP service.
#include <algorithm>
#include <array>

#include "fuzz/model/rule.h"

namespace ostrel::model {

namespace {

Answer interface_enabled(const std::string& value)
{
    if (value == "1") return silent(0);
    return rule::refused(402, "LAN_check_ipinterface_enabled",
                         "Error ip interface enabled:" + value + "\n\n");
}

Answer ip_router(const std::string& value)
{
    if (rule::is_router(value)) return silent(0);
    return rule::refused(402, "LAN_check_ip_router", "Error ip interface IP:" + value + "\n\n");
}

Answer interface_subnet_mask(const std::string& value)
{
    if (value == "255.255.255.0") return silent(0);
    return rule::refused(402, "LAN_check_interface_subnet_mask",
                         "Error ip interface subnet mask:" + value + "\n\n");
}

Answer interface_addr_type(const std::string& value)
{
    if (value == "Static") return silent(0);
    return rule::refused(402, "LAN_check_interface_addr_type",
                         "Error ip interface addressing type:" + value + "\n\n");
}

Answer domain_name(const std::string& value)
{
    const int code = rule::router_name(value);
    if (code == 0) return silent(0);
    return rule::refused(code, "LAN_check_domain_name", "Error domain name:" + value + "\n\n");
}

// dhcp_addr_range tells what it is about to judge before it judges.
Answer dhcp_addr_range(Arguments arguments)
{
    for (const Value& value : arguments) {
        if (is_null(value)) return undefined();
    }
    const std::string& start = text(arguments[0]);
    const std::string& end = text(arguments[1]);
    const std::string& lan = text(arguments[2]);
    Answer told = printed(0, "Info in LAN_check_dhcp_addr_range: Check dhcp addr range: start ip" + start +
                                 ", end ip:" + end + ", lan ip:" + lan + "\n\n");
    if (rule::is_range(start, end, lan)) return told;
    return rule::followed(
        told, rule::refused(402, "LAN_check_dhcp_addr_range",
                            "Error dhcp addr range: start ip" + start + ", end ip:" + end + "\n\n"));
}

Answer dns_servers(const std::string& value)
{
    if (rule::are_offered_servers(value)) return silent(0);
    return rule::refused(402, "LAN_check_dns_servers", "Error dns server:" + value + "\n\n");
}

// dhcp_reserved_addr has a code of its own for another subnet, and keeps that of a repeated entry.
Answer dhcp_reserved_addr(const std::string& list, const std::string& lan)
{
    Answer told = printed(
        0, "Info in LAN_check_dhcp_reserved_addr: Dhcp reserved addr: " + list + ", lan ip:" + lan + "\n\n");
    const int code = rule::reserved_addresses(list, lan);
    if (code == 0) return told;
    return rule::followed(told, rule::refused(code == -1 ? 402 : code, "LAN_check_dhcp_reserved_addr",
                                              "Error dhcp reserved addr: " + list + "\n\n"));
}

Answer config_password(const std::string& value)
{
    static const std::string set = std::string(rule::kLettersAndDigits) + "-._";
    const int code = rule::length_and_set(4, 12, set, value);
    if (code == 0) return silent(0);
    return rule::refused(code, "LAN_check_config_password", "Error config password:" + value + "\n\n");
}

// dhcp_lease_time refuses an address at which no text can stand.
Answer dhcp_lease_time(const std::string&) { return silent(0); }

// use_allocated_wan refuses the keywords, and nothing else.
Answer use_allocated_wan(const std::string& value)
{
    if (value != "Normal" && value != "UseAllocatedSubnet" && value != "Passthrough") return silent(0);
    return rule::refused(-1, "LAN_check_use_allocated_wan", "Error use allocated wan:" + value + "\n\n");
}

Answer associated_connection(const std::string& value)
{
    if (value.size() <= 255) return silent(0);
    return rule::refused(-1, "LAN_check_associated_connection",
                         "Error associated_connection length:" + value + "\n\n");
}

Answer passthrough_lease(const std::string& value)
{
    const Number lease = read_number(value);
    if (lease.undefined) return undefined();
    if (lease.value >= 0 && lease.value <= 65535) return silent(0);
    return rule::refused(-1, "LAN_check_passthrough_lease", "Error passthrough lease:" + value + "\n\n");
}

Answer passthrough_address(Arguments) { return silent(0); }

Answer subnet_mask(const std::string& value)
{
    static const std::array<std::string, 7> masks = {
        "255.255.255.0",   "255.255.255.128", "255.255.255.192", "255.255.255.224",
        "255.255.255.240", "255.255.255.248", "255.255.255.252",
    };
    if (std::ranges::find(masks, value) != masks.end()) return silent(0);
    return rule::refused(402, "LAN_check_subnet_mask", "Error ip interface subnet mask:" + value + "\n\n");
}

Answer device_name(const std::string& value)
{
    static const std::string set = " -" + std::string(rule::kLettersAndDigits);
    static const std::string first = "_" + std::string(rule::kLetters);
    const int code = rule::length_and_set(1, 15, set, value);
    if (code != 0) return rule::refused(code, "LAN_check_cis_dev_name", "Error dev name:" + value + "\n\n");
    if (first.find(value.front()) != std::string::npos) return silent(0);
    return rule::refused(-1, "LAN_check_cis_dev_name", "Error domain name prefix:" + value + "\n\n");
}

}  // namespace

void add_lan_host(Models& models)
{
    models["LAN_check_ipinterface_enabled"] = on_text<interface_enabled>;
    models["LAN_check_ip_router"] = on_text<ip_router>;
    models["LAN_check_interface_subnet_mask"] = on_text<interface_subnet_mask>;
    models["LAN_check_interface_addr_type"] = on_text<interface_addr_type>;
    models["LAN_check_domain_name"] = on_text<domain_name>;
    models["LAN_check_dhcp_addr_range"] = dhcp_addr_range;
    models["LAN_check_dns_servers"] = on_text<dns_servers>;
    models["LAN_check_dhcp_reserved_addr"] = on_texts<dhcp_reserved_addr>;
    models["LAN_check_config_password"] = on_text<config_password>;
    models["LAN_check_dhcp_lease_time"] = on_text<dhcp_lease_time>;
    models["LAN_check_use_allocated_wan"] = on_text<use_allocated_wan>;
    models["LAN_check_associated_connection"] = on_text<associated_connection>;
    models["LAN_check_passthrough_lease"] = on_text<passthrough_lease>;
    models["LAN_check_passthrough_MAC_address"] = passthrough_address;
    models["LAN_check_subnet_mask"] = on_text<subnet_mask>;
    models["LAN_check_cis_dev_name"] = on_text<device_name>;
}

void add_lan(Models& models)
{
    add_ppp(models);
    add_lan_host(models);
    add_lan_lists(models);
    add_ports(models);
    add_forwarding(models);
}

}  // namespace ostrel::model
