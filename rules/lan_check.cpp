#include "rules/rules.h"
#include "rules/words.h"

namespace ostrel::rules {

namespace {

constexpr std::string_view kAssertion = "value_p != ((void *)0)";

// An empty list takes whatever is added, of any length and without a terminator. In another one a comma and a
// terminator are written as well, so that 159 bytes need 161.
Check add_allowed_address()
{
    const Line existed = line(
        "Error in LAN_check_add_allowedMACAddress: Add existed mac address: <macAddress> to "
        "<allowedList>\n\n");
    return check(
        "LAN_check_add_allowedMACAddress",
        {text("macAddress", "the MAC addresses that are added"),
         buffer("allowedList", "the allowed MAC addresses; the bytes after an empty list are zeros")
             .needs(larger({161, sum({length("macAddress"), 1})}))},
        {refuse(-1, null("macAddress")), refuse(-1, null("allowedList")),
         accept(empty("allowedList"), Write{"allowedList", "macAddress", false}),
         refuse(-1, empty("macAddress"), existed), refuse(-1, contains("allowedList", "macAddress"), existed),
         // A list of one byte leaves room for 158; the lengths named are all that can be added.
         refuse(-1,
                all_of({not_(multiple(sum({length("macAddress"), 1}), 18)),
                        length_not({17, 35, 53, 71, 89, 107, 125, 143})}),
                line("Error in LAN_check_add_allowedMACAddress: Add mac address invalid length: "
                     "<macAddress>\n\n")),
         remember("sum", sum({length("macAddress"), length("allowedList")})),
         refuse(-1, because("list_full", above("sum", 159)),
                line("Error in LAN_check_add_allowedMACAddress: Add mac address length <sum> will out of "
                     "buffer size 160\n\n")),
         write("allowedList", joined({"allowedList", literal(","), "macAddress"}))});
}

Step refuse_repeated(const char* added, const char* existing)
{
    return refuse(701, because("already_listed", equal(added, existing)));
}

// Of two servers one may be empty, and then repeats another that is.
std::vector<Step> refuse_repeated_of_two(const char* added)
{
    return {refuse(701, all_of({any_of({equal(added, "first"), equal(added, "second")}),
                                because("empty_as_listed", empty(added))})),
            refuse_repeated(added, "first"), refuse_repeated(added, "second")};
}

// A single new server is compared with the existing list as a whole.
Check add_dns_servers()
{
    const auto has_two = [](const char* list) { return contains(list, literal(",")); };
    const auto split = [](const char* list, const char* first, const char* second) {
        return std::vector<Step>{remember(first, called("the first server", before_first(list, ","))),
                                 remember(second, called("the second server", after_first(list, ",")))};
    };
    return check(
        "LAN_check_add_dns_servers",
        {text("newServers", "the DNS servers that are added"),
         text("existingServers", "the DNS servers so far")},
        {accept(null("existingServers")), accept(empty("existingServers")),
         when(has_two("existingServers"),
              joined_steps({split("existingServers", "first", "second"),
                            {print(line("Error in LAN_check_add_dns_servers: Existed dns servers: <second> "
                                        "and <first>\n\n"))}})),
         when(has_two("newServers"),
              joined_steps(
                  {split("newServers", "first_new", "second_new"),
                   {print(line("Error in LAN_check_add_dns_servers: New dns servers: <second_new> and "
                               "<first_new>\n\n")),
                    when(has_two("existingServers"),
                         joined_steps(
                             {refuse_repeated_of_two("second_new"), refuse_repeated_of_two("first_new")}),
                         {refuse_repeated("second_new", "existingServers"),
                          refuse_repeated("first_new", "existingServers")})}}),
              {refuse_repeated("newServers", "existingServers")})});
}

// The comparison with the first server is inverted: what is as long may be deleted, unless it is that server.
Check delete_dns_server()
{
    const Effects not_found = line(
        "Error in LAN_check_delete_dns_server: Can't find the IP addr: <serverAddress> in existed "
        "servers:<existingServers>\n\n");
    return check(
        "LAN_check_delete_dns_server",
        {text("serverAddress", "the DNS server that is deleted"),
         text("existingServers", "the DNS servers so far")},
        {refuse(402, refused_by("TcmValidateIPAddress"),
                line("Error in LAN_check_delete_dns_server: Not a valid IP addr: <serverAddress>\n\n")),
         remember("first", before_first("existingServers", ",")),
         remember("second", after_first("existingServers", ",")), accept(equal("serverAddress", "second")),
         accept(
             all_of({equal(length("serverAddress"), length("first")), not_equal("serverAddress", "first")})),
         refuse(702, because("first_server", equal("serverAddress", "first")), not_found),
         refuse(702, because("neither_server", not_equal("serverAddress", "second")), not_found)});
}

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
        check("LAN_check_dns_servers",
              {text("value_p", "the DNS servers that are offered").asserts(kAssertion)},
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
        check("LAN_check_dhcp_lease_time",
              {text("value_p", "how long a lease lasts; never looked at").asserts(kAssertion)}, {}),
        check("LAN_check_domain_name", {text("value_p", "the name of the LAN's domain").asserts(kAssertion)},
              {refuse(its_code(), refused_by("TcmValidateRouterName"),
                      line("Error in LAN_check_domain_name: Error domain name:<value_p>\n\n"))}),
    };
}

std::vector<Check> wan_subnet()
{
    return {
        check("LAN_check_use_allocated_wan",
              {text("value_p", "how a subnet that the WAN allocates is used").asserts(kAssertion)},
              {refuse(-1, one_of({"Normal", "UseAllocatedSubnet", "Passthrough"}),
                      line("Error in LAN_check_use_allocated_wan: Error use allocated wan:<value_p>\n\n"))}),
        check("LAN_check_associated_connection",
              {text("value_p", "the connection whose subnet is used").asserts(kAssertion)},
              {refuse(-1, longer_than(255),
                      line("Error in LAN_check_associated_connection: Error associated_connection "
                           "length:<value_p>\n\n"))}),
        check("LAN_check_passthrough_lease",
              {text("value_p", "the lease of a station that is passed through").asserts(kAssertion)},
              {refuse(-1, below(0),
                      line("Error in LAN_check_passthrough_lease: Error passthrough lease:<value_p>\n\n")),
               refuse(-1, above(65535),
                      line("Error in LAN_check_passthrough_lease: Error passthrough lease:<value_p>\n\n"))}),
        check("LAN_check_passthrough_MAC_address",
              {text("value", "the MAC address of a station that is passed through; never looked at")}, {}),
    };
}

// The first byte may be "_" as far as the prefix goes, but the set does not have it.
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

std::vector<Check> lan_checks()
{
    return joined_checks({interface(),
                          dhcp_service(),
                          wan_subnet(),
                          {configuration_password(), device_name(), add_allowed_address(), add_dns_servers(),
                           delete_dns_server()}});
}

}  // namespace ostrel::rules
