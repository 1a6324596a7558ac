#include "rules/rules.h"
#include "rules/words.h"

namespace ostrel::rules {

namespace {

// Bytes that the list of allowed addresses may have, with its terminator.
constexpr int kAllowedList = 160;

Check add_allowed_address()
{
    return check(
        "LAN_check_add_allowedMACAddress",
        {text("macAddress", "the MAC addresses that are added"),
         buffer("allowedList", "the allowed MAC addresses")
             .needs(larger({kAllowedList, sum({length("macAddress"), 1})}))},
        {refuse(-1, null("macAddress")), refuse(-1, null("allowedList")),
         accept(empty("allowedList"), Write{"allowedList", "macAddress"}),
         refuse(-1, contains("allowedList", "macAddress"),
                line("Error in LAN_check_add_allowedMACAddress: Add existed mac address: <macAddress> to "
                     "<allowedList>\n\n")),
         refuse(-1,
                because("not_mac_addresses_in_length", not_(multiple(sum({length("macAddress"), 1}), 18))),
                line("Error in LAN_check_add_allowedMACAddress: Add mac address invalid length: "
                     "<macAddress>\n\n")),
         remember("sum", sum({length("macAddress"), length("allowedList")})),
         refuse(-1, because("list_full", above("sum", kAllowedList - 1)),
                line("Error in LAN_check_add_allowedMACAddress: Add mac address length <sum> will out of "
                     "buffer size 160\n\n")),
         write("allowedList", joined({"allowedList", literal(","), "macAddress"}))});
}

Step refuse_repeated(const char* added, const char* existing)
{
    return refuse(701, because("already_listed", equal(added, existing)));
}

// A single new server is compared with the existing list as a whole.
Check add_dns_servers()
{
    const auto has_two = [](const char* list) { return contains(list, literal(",")); };
    const auto split = [](const char* list, const char* first, const char* second) {
        return std::vector<Step>{remember(first, before_first(list, ",")),
                                 remember(second, after_first(list, ","))};
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
                         {refuse_repeated("second_new", "first"), refuse_repeated("second_new", "second"),
                          refuse_repeated("first_new", "first"), refuse_repeated("first_new", "second")},
                         {refuse_repeated("second_new", "existingServers"),
                          refuse_repeated("first_new", "existingServers")})}}),
              {refuse_repeated("newServers", "existingServers")})});
}

Check address_range()
{
    return check(
        "LAN_check_dhcp_addr_range",
        {text("startAddress", "the first address of the pool"),
         text("endAddress", "the last address of the pool"),
         text("lanAddress", "the gateway's own address on the LAN")},
        {print(line("Info in LAN_check_dhcp_addr_range: Check dhcp addr range: start ip<startAddress>, end "
                    "ip:<endAddress>, lan ip:<lanAddress>\n\n")),
         refuse(402, refused_by("TcmValidateAddressRange", {"startAddress", "endAddress", "lanAddress"}),
                line("Error in LAN_check_dhcp_addr_range: Error dhcp addr range: start ip<startAddress>, end "
                     "ip:<endAddress>\n\n"))});
}

}  // namespace

std::vector<Check> lan_checks()
{
    return {
        address_range(),
        add_allowed_address(),
        add_dns_servers(),
    };
}

}  // namespace ostrel::rules
