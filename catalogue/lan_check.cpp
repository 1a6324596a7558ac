#include <ostrel/lan_check.h>

#include "catalogue/catalogue.h"

namespace ostrel::catalogue {

std::vector<Function> lan_checks()
{
    return {
        check<LAN_check_ipinterface_enabled>("LAN_check_ipinterface_enabled", {"value_p"}, "1",
                                             {{402, "any other value, 0 included"}}),
        check<LAN_check_ip_router>("LAN_check_ip_router", {"value_p"},
                                   "an IPv4 address that begins with \"192.168.\", last number from 1 to 254",
                                   {{402, "any other value"}}),
        check<LAN_check_interface_subnet_mask>("LAN_check_interface_subnet_mask", {"value_p"},
                                               "255.255.255.0", {{402, "any other value"}}),
        check<LAN_check_interface_addr_type>("LAN_check_interface_addr_type", {"value_p"}, "Static",
                                             {{402, "any other value"}}),
        check<LAN_check_domain_name>("LAN_check_domain_name", {"value_p"},
                                     "1 to 22 characters: letters, digits and ! ( ) * - / ; ? _",
                                     {{801, "empty"},
                                      {802, "more than 22 characters"},
                                      {803, "another character, such as a blank or \".\""}}),
        check<LAN_check_dhcp_addr_range>(
            "LAN_check_dhcp_addr_range", {"startAddress", "endAddress", "lanAddress"},
            "two IPv4 addresses in the LAN's subnet, last numbers from 1 to 254, the start not above the end",
            {{402,
              "an end is no address or lies in another subnet, a last number is 0 or 255, the start is "
              "above the end, or the LAN address has no \".\""}}),
        check<LAN_check_dns_servers>("LAN_check_dns_servers", {"value_p"},
                                     "one or two IPv4 addresses separated by \",\", with or without blanks",
                                     {{402, "an item is no address, or there are more than two"}}),
        check<LAN_check_dhcp_reserved_addr>(
            "LAN_check_dhcp_reserved_addr", {"reservedList", "lanAddress"},
            "items separated by \",\", each in the LAN's subnet and none repeated as 701 has it",
            {{402, "an item in another subnet"},
             {701,
              "an item's text stands again in the rest, and the rest ends or has a \",\" where an equally "
              "long item ends"}}),
        check<LAN_check_config_password>(
            "LAN_check_config_password", {"value_p"}, "4 to 12 characters: letters, digits and - . _",
            {{801, "fewer than 4 characters"}, {802, "more than 12 characters"}, {803, "another character"}}),
        check<LAN_check_dhcp_lease_time>("LAN_check_dhcp_lease_time", {"value_p"}, "every value",
                                         {{-1, "the value stands at the address whose bits are all set"}}),
        check<LAN_check_use_allocated_wan>(
            "LAN_check_use_allocated_wan", {"value_p"},
            "anything but the keywords Normal, UseAllocatedSubnet, Passthrough",
            {{-1, "one of the three keywords"}}),
        check<LAN_check_associated_connection>("LAN_check_associated_connection", {"value_p"},
                                               "at most 255 bytes", {{-1, "more than 255 bytes"}}),
        check<LAN_check_passthrough_lease>("LAN_check_passthrough_lease", {"value_p"},
                                           "the leading number is from 0 to 65535; text without one is 0",
                                           {{-1, "the number is below 0 or above 65535"}}),
        check<LAN_check_passthrough_MAC_address>("LAN_check_passthrough_MAC_address", {"value"},
                                                 "every value, NULL included", {}),
        check<LAN_check_subnet_mask>("LAN_check_subnet_mask", {"value_p"},
                                     "255.255.255. and 0, 128, 192, 224, 240, 248 or 252",
                                     {{402, "any other value"}}),
        check<LAN_check_cis_dev_name>("LAN_check_cis_dev_name", {"value_p"},
                                      "1 to 15 letters, digits, blanks and \"-\", the first one a letter",
                                      {{801, "empty"},
                                       {802, "more than 15 characters"},
                                       {803, "another character"},
                                       {-1, "the first character is a blank, a digit or \"-\""}}),
        check<LAN_check_add_allowedMACAddress>(
            "LAN_check_add_allowedMACAddress", {"macAddress", list_buffer("allowedList", 161)},
            "17 characters (35, 53, ...) that the list does not hold and has room for; anything if it is "
            "empty",
            {{-1, "NULL, the text stands in the list, a wrong length, or 160 characters or more in all"}}),
        check<LAN_check_add_dns_servers>(
            "LAN_check_add_dns_servers", {"newServers", "existingServers"},
            "the existing list is empty or NULL, or nothing is repeated as 701 has it",
            {{701, "one of two new servers is an existing one, or a single new one is the whole list"}}),
        check<LAN_check_delete_dns_server>(
            "LAN_check_delete_dns_server", {"serverAddress", "existingServers"},
            "an IPv4 address: the one behind the \",\", or as long as the first one and different from it",
            {{402, "not an IPv4 address"},
             {702, "the first server itself, or of another length than it and not the second"}}),
    };
}

}  // namespace ostrel::catalogue
