#include "rules/rules.h"
#include "rules/words.h"

namespace ostrel::rules {

namespace {

constexpr std::string_view kAssertion = "value_p != ((void *)0)";

std::vector<Check> interface()
{
    return {
        check("LAN_check_ipinterface_enabled",
              {text("value_p", "whether the interface is enabled").asserts(kAssertion)},
              {refuse(402, none_of({"1"}),
                      line("Error in LAN_check_ipinterface_enabled: Error ip interface "
                           "enabled:<value_p>\n\n"))}),
        check("LAN_check_ip_router",
              {text("value_p", "the gateway's own address on the LAN").asserts(kAssertion)},
              {refuse(402, refused_by("TcmValidateIPRouter"),
                      line("Error in LAN_check_ip_router: Error ip interface IP:<value_p>\n\n"))}),
        check("LAN_check_interface_subnet_mask",
              {text("value_p", "the subnet mask of the LAN").asserts(kAssertion)},
              {refuse(402, none_of({"255.255.255.0"}),
                      line("Error in LAN_check_interface_subnet_mask: Error ip interface subnet "
                           "mask:<value_p>\n\n"))}),
        check("LAN_check_interface_addr_type",
              {text("value_p", "how the interface gets its address").asserts(kAssertion)},
              {refuse(402, none_of({"Static"}),
                      line("Error in LAN_check_interface_addr_type: Error ip interface addressing "
                           "type:<value_p>\n\n"))}),
        check("LAN_check_subnet_mask", {text("value_p", "a subnet mask").asserts(kAssertion)},
              {refuse(402,
                      none_of({"255.255.255.0", "255.255.255.128", "255.255.255.192", "255.255.255.224",
                               "255.255.255.240", "255.255.255.248", "255.255.255.252"}),
                      line("Error in LAN_check_subnet_mask: Error ip interface subnet "
                           "mask:<value_p>\n\n"))}),
    };
}

std::vector<Check> dhcp_service()
{
    return {
        check(
            "LAN_check_dhcp_addr_range",
            {text("startAddress", "the first address of the pool"),
             text("endAddress", "the last address of the pool"),
             text("lanAddress", "the gateway's own address on the LAN")},
            {print(line("Info in LAN_check_dhcp_addr_range: Check dhcp addr range: start "
                        "ip<startAddress>, end ip:<endAddress>, lan ip:<lanAddress>\n\n")),
             refuse(402, refused_by("TcmValidateAddressRange", {"startAddress", "endAddress", "lanAddress"}),
                    line("Error in LAN_check_dhcp_addr_range: Error dhcp addr range: start "
                         "ip<startAddress>, end ip:<endAddress>\n\n"))}),
        check("LAN_check_dns_servers", {text("value_p", "the DNS servers to offer").asserts(kAssertion)},
              {refuse(402, refused_by("TcmValidateofferDNS"),
                      line("Error in LAN_check_dns_servers: Error dns server:<value_p>\n\n"))}),
        check("LAN_check_dhcp_reserved_addr",
              {text("reservedList", "the reserved addresses"),
               text("lanAddress", "the gateway's own address on the LAN")},
              {print(line("Info in LAN_check_dhcp_reserved_addr: Dhcp reserved addr: <reservedList>, lan "
                          "ip:<lanAddress>\n\n")),
               refuse(its_code({{-1, 402}}),
                      refused_by("TcmValidateReservedAddress", {"reservedList", "lanAddress"}),
                      line("Error in LAN_check_dhcp_reserved_addr: Error dhcp reserved addr: "
                           "<reservedList>\n\n"))}),
        check("LAN_check_dhcp_lease_time", {text("value_p", "the lease time; ignored").asserts(kAssertion)},
              {}),
        check("LAN_check_domain_name", {text("value_p", "the name of the LAN's domain").asserts(kAssertion)},
              {refuse(its_code(), refused_by("TcmValidateRouterName"),
                      line("Error in LAN_check_domain_name: Error domain name:<value_p>\n\n"))}),
    };
}

std::vector<Check> wan_subnet()
{
    return {
        check("LAN_check_use_allocated_wan",
              {text("value_p", "how a subnet allocated by the WAN is used").asserts(kAssertion)},
              {refuse(-1, one_of({"Normal", "UseAllocatedSubnet", "Passthrough"}),
                      line("Error in LAN_check_use_allocated_wan: Error use allocated wan:<value_p>\n\n"))}),
        check("LAN_check_associated_connection",
              {text("value_p", "the connection whose subnet is used").asserts(kAssertion)},
              {refuse(-1, longer_than(255),
                      line("Error in LAN_check_associated_connection: Error associated_connection "
                           "length:<value_p>\n\n"))}),
        check("LAN_check_passthrough_lease",
              {text("value_p", "the lease of a passthrough station").asserts(kAssertion)},
              {refuse(-1, below(0),
                      line("Error in LAN_check_passthrough_lease: Error passthrough lease:<value_p>\n\n")),
               refuse(-1, above(65535),
                      line("Error in LAN_check_passthrough_lease: Error passthrough lease:<value_p>\n\n"))}),
        check("LAN_check_passthrough_MAC_address",
              {text("value", "the MAC address of a passthrough station; ignored")}, {}),
    };
}

// The library also allows "_" as a prefix, but not in the name, so the first byte must be a letter.
Check device_name()
{
    const Effects wrong_name = line("Error in LAN_check_cis_dev_name: Error dev name:<value_p>\n\n");
    const Expression first = slice("value_p", 0, 1);
    return check("LAN_check_cis_dev_name", {text("value_p", "the name of the device").asserts(kAssertion)},
                 {refuse(801, shorter_than(1), wrong_name), refuse(802, longer_than(15), wrong_name),
                  refuse(803, all_of({outside(first, kDeviceName), outside(first, kLetters)}), wrong_name),
                  refuse(803, outside(kDeviceName), wrong_name),
                  refuse(-1, outside(first, kLetters),
                         line("Error in LAN_check_cis_dev_name: Error domain name prefix:<value_p>\n\n"))});
}

Check configuration_password()
{
    return check("LAN_check_config_password",
                 {text("value_p", "the password of the configuration pages").secret().asserts(kAssertion)},
                 {refuse(its_code(), refused_by("TcmValidateLANConfigPassword"),
                         line("Error in LAN_check_config_password: Error config password:<value_p>\n\n"))});
}

}  // namespace

std::vector<Check> lan_check_host_configuration()
{
    return joined_checks(
        {interface(), dhcp_service(), wan_subnet(), {configuration_password(), device_name()}});
}

}  // namespace ostrel::rules
