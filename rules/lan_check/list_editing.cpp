#include "rules/rules.h"
#include "rules/words.h"

namespace ostrel::rules {

namespace {

// A value of any length is added to an empty list, without a terminator. If the list is not empty, a comma
// and a terminator are also written, so 159 bytes of addresses need a buffer of 161 bytes.
Check add_allowed_address()
{
    const Line existed = line(
        "Error in LAN_check_add_allowedMACAddress: Add existed mac address: <macAddress> to "
        "<allowedList>\n\n");
    return check(
        "LAN_check_add_allowedMACAddress",
        {text("macAddress", "the MAC addresses to add"),
         buffer("allowedList", "the allowed MAC addresses; an empty list needs a zeroed buffer")
             .needs(larger({161, sum({length("macAddress"), 1})}))},
        {refuse(-1, null("macAddress")), refuse(-1, null("allowedList")),
         accept(empty("allowedList"), Write{"allowedList", "macAddress", false}),
         refuse(-1, empty("macAddress"), existed), refuse(-1, contains("allowedList", "macAddress"), existed),
         // These are the lengths of one to eight addresses. Nine do not fit, because the list has at least
         // one byte and so leaves room for at most 158.
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

// One of the two servers may be empty, but not if one of the servers in the list is also empty.
std::vector<Step> refuse_repeated_of_two(const char* added)
{
    return {refuse(701, all_of({any_of({equal(added, "first"), equal(added, "second")}),
                                because("empty_as_listed", empty(added))})),
            refuse_repeated(added, "first"), refuse_repeated(added, "second")};
}

// A single new server is compared with the whole existing list.
Check add_dns_servers()
{
    const auto has_two = [](const char* list) { return contains(list, literal(",")); };
    const auto split = [](const char* list, const char* first, const char* second) {
        return std::vector<Step>{remember(first, called("the first server", before_first(list, ","))),
                                 remember(second, called("the second server", after_first(list, ",")))};
    };
    return check(
        "LAN_check_add_dns_servers",
        {text("newServers", "the DNS servers to add"), text("existingServers", "the current DNS servers")},
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

// The comparison with the first server is inverted, so an address that has the same length as the first
// server but differs from it is accepted.
Check delete_dns_server()
{
    const Effects not_found = line(
        "Error in LAN_check_delete_dns_server: Can't find the IP addr: <serverAddress> in existed "
        "servers:<existingServers>\n\n");
    return check(
        "LAN_check_delete_dns_server",
        {text("serverAddress", "the DNS server to delete"),
         text("existingServers", "the current DNS servers")},
        {refuse(402, refused_by("TcmValidateIPAddress"),
                line("Error in LAN_check_delete_dns_server: Not a valid IP addr: <serverAddress>\n\n")),
         remember("first", before_first("existingServers", ",")),
         remember("second", after_first("existingServers", ",")), accept(equal("serverAddress", "second")),
         accept(
             all_of({equal(length("serverAddress"), length("first")), not_equal("serverAddress", "first")})),
         refuse(702, because("first_server", equal("serverAddress", "first")), not_found),
         refuse(702, because("neither_server", not_equal("serverAddress", "second")), not_found)});
}

}  // namespace

std::vector<Check> lan_check_list_editing()
{
    return {add_allowed_address(), add_dns_servers(), delete_dns_server()};
}

}  // namespace ostrel::rules
