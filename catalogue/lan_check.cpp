#include <ostrel/character_sets.h>
#include <ostrel/lan_check.h>

#include <algorithm>

#include "catalogue/entry.h"

namespace ostrel::catalogue {

std::vector<Function> lan_checks()
{
    return {
        check<LAN_check_ipinterface_enabled>("LAN_check_ipinterface_enabled",
                                             {{"value_p", "a truth value, of which one passes", {"1"}}}, "1",
                                             {{402, "any other value, 0 included"}}),
        check<LAN_check_ip_router>("LAN_check_ip_router", {{"value_p", "an IPv4 address, 7 to 15 bytes"}},
                                   "an IPv4 address that begins with \"192.168.\", last number from 1 to 254",
                                   {{402, "no address for the gateway on its LAN", fails(router_fault)}}),
        check<LAN_check_interface_subnet_mask>("LAN_check_interface_subnet_mask",
                                               {{"value_p", "a subnet mask", {"255.255.255.0"}}},
                                               "255.255.255.0", {{402, "any other value"}}),
        check<LAN_check_interface_addr_type>("LAN_check_interface_addr_type",
                                             {{"value_p", "an addressing type", {"Static"}}}, "Static",
                                             {{402, "any other value"}}),
        check<LAN_check_domain_name>(
            "LAN_check_domain_name", {{"value_p", "a name, 1 to 22 bytes"}},
            "1 to 22 characters: letters, digits and ! ( ) * - / ; ? _",
            {{801, "empty"},
             {802, "more than 22 characters"},
             {803, "another character, such as a blank or \".\"", outside(CHARSET_ROUTER_NAME)}}),
        check<LAN_check_dhcp_addr_range>(
            "LAN_check_dhcp_addr_range",
            {{"startAddress", "the first address of the pool"},
             {"endAddress", "the last address of the pool"},
             {"lanAddress",
              "the gateway's own address on the LAN; what stands up to its last \".\" is the subnet"}},
            "two IPv4 addresses in the LAN's subnet, last numbers from 1 to 254, the start not above the end",
            {{402, "no pool of the LAN", range_fault()}}),
        check<LAN_check_dns_servers>(
            "LAN_check_dns_servers",
            {{"value_p", "one or two IPv4 addresses between \",\"; blanks around them are not part of them"}},
            "one or two IPv4 addresses separated by \",\", with or without blanks",
            {{402, "not one or two IPv4 addresses", fails(offered_dns_fault)}}),
        check<LAN_check_dhcp_reserved_addr>(
            "LAN_check_dhcp_reserved_addr",
            {{"reservedList",
              "a list of addresses between \",\", of any length; blanks around an item are not part of it"},
             {"lanAddress",
              "the gateway's own address on the LAN; what stands up to its last \".\" is the subnet"}},
            "items separated by \",\", each in the LAN's subnet and none repeated as 701 has it",
            {{402, "an item in another subnet", reserved_subnet_fault()},
             {701,
              "an item's text stands again in the rest, and the rest ends or has a \",\" where an equally "
              "long item ends",
              reserved_repeat_fault()}}),
        check<LAN_check_config_password>(
            "LAN_check_config_password", {{"value_p", "a password, 4 to 12 bytes"}},
            "4 to 12 characters: letters, digits and - . _",
            {{801, "fewer than 4 characters"},
             {802, "more than 12 characters"},
             {803, "a character that is no letter, digit, - . or _", outside(CHARSET_NAME)}}),
        check<LAN_check_dhcp_lease_time>("LAN_check_dhcp_lease_time",
                                         {{"value_p", "a lease time, never looked at"}}, "every value",
                                         {{-1, "the value stands at the address whose bits are all set"}}),
        check<LAN_check_use_allocated_wan>(
            "LAN_check_use_allocated_wan", {{"value_p", "a text of any length"}},
            "anything but the keywords Normal, UseAllocatedSubnet, Passthrough",
            {{-1, "one of the three keywords"}}),
        check<LAN_check_associated_connection>("LAN_check_associated_connection",
                                               {{"value_p", "a text, at most 255 bytes"}},
                                               "at most 255 bytes", {{-1, "more than 255 bytes"}}),
        check<LAN_check_passthrough_lease>(
            "LAN_check_passthrough_lease",
            {{"value_p", "a number, 0 to 65535; its unit is the host's affair"}},
            "the leading number is from 0 to 65535; text without one is 0",
            {{-1, "the number is below 0 or above 65535"}}),
        check<LAN_check_passthrough_MAC_address>("LAN_check_passthrough_MAC_address",
                                                 {{"value", "a text, never looked at"}},
                                                 "every value, NULL included", {}),
        check<LAN_check_subnet_mask>(
            "LAN_check_subnet_mask",
            {{"value_p",
              "a subnet mask",
              {"255.255.255.0", "255.255.255.128", "255.255.255.192", "255.255.255.224", "255.255.255.240",
               "255.255.255.248", "255.255.255.252"}}},
            "255.255.255. and 0, 128, 192, 224, 240, 248 or 252", {{402, "any other value"}}),
        check<LAN_check_cis_dev_name>(
            "LAN_check_cis_dev_name", {{"value_p", "a name, 1 to 15 bytes"}},
            "1 to 15 letters, digits, blanks and \"-\", the first one a letter",
            {{801, "empty"},
             {802, "more than 15 characters"},
             {803, "a character that is no letter, digit, blank or -", outside(CHARSET_CIS_NAME)},
             {-1, "the first character is a blank, a digit or \"-\"",
              begins_outside(CHARSET_IDENT_LETTERS)}}),
        check<LAN_check_add_allowedMACAddress>(
            "LAN_check_add_allowedMACAddress",
            {{"macAddress",
              "one or several MAC addresses, 17 bytes each and 1 between them; only the length is judged"},
             list_buffer("allowedList",
                         "the list, in a buffer of 161 bytes or more, filled with zeros behind the list", 161)
                 .writes("when accepted: the address, without a terminator when the list was empty; "
                         "otherwise a comma, the address and a terminator behind the list")},
            "17 characters (35, 53, ...) that the list does not hold and has room for; anything if it is "
            "empty",
            {{-1, "NULL", when([](std::span<const Value> values) {
                  return std::ranges::any_of(values, [](const Value& value) {
                      return std::holds_alternative<std::nullptr_t>(value);
                  });
              })},
             {-1, "the text stands in the list", when([](std::span<const Value> values) {
                  return text_of(values, 1).find(text_of(values, 0)) != std::string_view::npos;
              })},
             {-1, "the length is not 17, 35, 53 and so on",
              when([](std::span<const Value> values) { return (text_of(values, 0).size() + 1) % 18 != 0; })},
             {-1, "address and list have 160 characters or more", when([](std::span<const Value> values) {
                  return text_of(values, 0).size() + text_of(values, 1).size() >= 160;
              })}}),
        check<LAN_check_add_dns_servers>(
            "LAN_check_add_dns_servers",
            {{"newServers", "one DNS server, or two between \",\"; not validated"},
             {"existingServers", "the list of one or two DNS servers between \",\"; empty: none yet"}},
            "the existing list is empty or NULL, or nothing is repeated as 701 has it",
            {{701, "one of two new servers is an existing one", when([](std::span<const Value> values) {
                  return text_of(values, 0).find(',') != std::string_view::npos;
              })},
             {701, "the single new server is the whole list", when([](std::span<const Value> values) {
                  return text_of(values, 0).find(',') == std::string_view::npos;
              })}}),
        check<LAN_check_delete_dns_server>(
            "LAN_check_delete_dns_server",
            {{"serverAddress", "the IPv4 address to delete, 7 to 15 bytes"},
             {"existingServers", "the list of one or two DNS servers between \",\"; empty: none yet"}},
            "an IPv4 address: the one behind the \",\", or as long as the first one and different from it",
            {{402, "no IPv4 address", fails(ipv4_fault)},
             {702, "it is the first server itself", when([](std::span<const Value> values) {
                  const auto list = text_of(values, 1);
                  return list.substr(0, list.find(',')) == text_of(values, 0);
              })},
             {702, "it is not the second server, and not as long as the first",
              when([](std::span<const Value> values) {
                  const auto list = text_of(values, 1);
                  return list.substr(0, list.find(',')) != text_of(values, 0);
              })}}),
    };
}

}  // namespace ostrel::catalogue
