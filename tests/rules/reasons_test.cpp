// Tests the sentences for values that the service checks refuse.

#include <gtest/gtest.h>

#include "tests/rules/told.h"

namespace ostrel::rules {

namespace {

// said returns the argument's name and the sentence about it.
std::string said(std::string_view name, const std::vector<Value>& values)
{
    const Answer answer = answer_of(name, values);
    return std::string(answer.reason.name) + " " + told(answer);
}

TEST(KeywordTest, NamesAll)
{
    EXPECT_EQ(
        "value is not one of en-us, fr-ca, fr-fr, de-de, es-es, it-it, nl-nl, sv-se, ar-sa, pl-pl, th-th",
        said("HNAPCORE_check_locale", {"de"}));
    EXPECT_EQ("value_p is not Static", said("LAN_check_interface_addr_type", {"static"}));
    EXPECT_EQ("value_p is \"Normal\"; Normal, UseAllocatedSubnet, Passthrough are not allowed",
              said("LAN_check_use_allocated_wan", {"Normal"}));
}

TEST(KeywordTest, NamesThoseOfAnyCaseAsTheyAreWritten)
{
    EXPECT_EQ("value_p is not one of TCP, UDP", said("PARAM_check_transport_protocol", {"x"}));
    EXPECT_EQ("value is not one of Default, Network, Host", said("L3FORWARDING_check_ForwardingType", {"x"}));
}

TEST(PreSharedKeyTest, LengthIsToldFirst)
{
    const auto said_of = [](const std::string& key) {
        return said("WLAN_check_keys", {key, "WPA2-PSK", "AES"});
    };
    EXPECT_EQ("key has 7 bytes; at least 8 are needed", said_of("123456\x01"));
    EXPECT_EQ("key has 65 bytes; at most 64 are allowed", said_of(std::string(65, 'a')));
}

TEST(KeywordTest, PrefixInAnyCaseSaysHowFarItGoes)
{
    const Answer answer = answer_of("HNAPCORE_check_timezone", {"uTD+1", ""});
    EXPECT_EQ("wrong_prefix", answer.reason.id);
    EXPECT_EQ(2U, answer.reason.offset);
    EXPECT_EQ("value does not begin with UTC", said("HNAPCORE_check_timezone", {"UT", ""}));
}

TEST(AddressTest, OfWhatWouldBeOneTheLastOctetIsLower)
{
    const char* const kRouter = "TcmValidateIPRouter";
    EXPECT_EQ("value octet 4 is 256; at most 255 is allowed",
              said("TcmValidateIPAddress", {"192.168.100.256"}));
    EXPECT_EQ("address the last octet is 256; at most 254 is allowed", said(kRouter, {"192.168.100.256"}));
    EXPECT_EQ("address has 16 bytes; at most 15 are allowed", said(kRouter, {"192.168.1000.256"}));
    EXPECT_EQ("address does not begin with 192.168.", said(kRouter, {"10.0.0.1"}));
    EXPECT_EQ("startAddress byte 1 is \"x\"; digits and . are allowed",
              said("TcmValidateAddressRange", {"x", "192.168.1.256", "192.168.1.1"}));
}

TEST(NumberTest, TextIsReadAsANumber)
{
    EXPECT_EQ("value is 0; at least 1 is needed", said("L3FORWARDING_check_MTU", {"0"}));
    EXPECT_EQ("value is read as 0; at least 1 is needed", said("L3FORWARDING_check_MTU", {"abc"}));
    EXPECT_EQ("value is read as 1541; at most 1540 is allowed", said("L3FORWARDING_check_MTU", {" 1541x"}));
    EXPECT_EQ(
        "value contains the number 4294967295, which does not fit in an int; this gateway reads it as -1; at "
        "least "
        "1 is needed",
        said("L3FORWARDING_check_MTU", {"4294967295 bytes"}));
    EXPECT_EQ(
        "value contains the number 4294967295, which does not fit in an int; this gateway reads it as -1; at "
        "least "
        "1 is needed",
        said("L3FORWARDING_check_MTU", {" 4294967295 bytes"}));
    EXPECT_EQ(1541, answer_of("L3FORWARDING_check_MTU", {"1541 bytes"}).reason.read_as);
    for (const char* number : {"1541", "01541", "+1541", "-1"}) {
        EXPECT_EQ(std::nullopt, answer_of("L3FORWARDING_check_MTU", {number}).reason.read_as) << number;
    }
    for (const char* text : {"", "-", " 1541", "1541 "}) {
        EXPECT_NE(std::nullopt, answer_of("L3FORWARDING_check_MTU", {text}).reason.read_as) << text;
    }
}

TEST(NumberTest, ReasonIsOfTheStepThatDecided)
{
    const Answer answer = answer_of("GUESTACCESS_check_max_allowed_number", {"abc"});
    EXPECT_EQ(402, answer.code);
    EXPECT_EQ("is read as 0; at least 1 is needed", sentence(answer.reason));
    ASSERT_EQ(1U, answer.printed.size());
    EXPECT_EQ("has 3 bytes; at most 2 are allowed", sentence(answer.printed[0]));
    EXPECT_EQ("value has 3 bytes; at most 2 are allowed",
              said("GUESTACCESS_check_max_allowed_number", {"100"}));
    EXPECT_EQ("value byte 2 is \"a\"; digits are allowed",
              said("GUESTACCESS_check_max_allowed_number", {"5a"}));
    EXPECT_TRUE(answer_of("GUESTACCESS_check_max_allowed_number", {"0"}).printed.empty());
}

TEST(NumberTest, ReservedPorts)
{
    EXPECT_EQ("port is 443; 80, 161, 443, 1723, 1728, 6667, 7547 are not allowed",
              said("PORTMAPPING_check_port_available", {"443", 0LL}));
    EXPECT_EQ("port is 54000; numbers from 54000 to 54999 are not allowed",
              said("PORTMAPPING_check_port_available", {"54000", 1LL}));
    EXPECT_EQ(" accepted", said("PORTMAPPING_check_port_available", {"53999", 1LL}));
    EXPECT_EQ(" accepted", said("PORTMAPPING_check_port_available", {"55000", 1LL}));
    const Answer answer = answer_of("PORTMAPPING_check_port_available", {"54999", 1LL});
    EXPECT_EQ("number_in_range", answer.reason.id);
    EXPECT_EQ(Datum(std::vector<long long>{54000, 54999}), answer.reason.allowed);
}

TEST(NullTest, IsAssertedAgainstWhereItIsRead)
{
    EXPECT_EQ(Outside::kAssertion, answer_of("PORTMAPPING_check_port_available", {nullptr, 0LL}).outside);
    EXPECT_EQ(Outside::kAssertion, answer_of("PORTMAPPING_check_port_available", {nullptr, 1LL}).outside);
    EXPECT_EQ(Outside::kNo, answer_of("PORTMAPPING_check_port_available", {nullptr, 2LL}).outside);
    EXPECT_EQ(Outside::kAssertion, answer_of("MGTSERVER_check_conn_request_username", {nullptr}).outside);
    EXPECT_EQ(Outside::kNull, answer_of("LAN_check_dhcp_reserved_addr", {"", nullptr}).outside);
    EXPECT_EQ(Outside::kNull, answer_of("HNAPCORE_check_timezone", {"UTC", nullptr}).outside);
    EXPECT_EQ(Outside::kNo, answer_of("HNAPCORE_check_timezone", {"GMT", nullptr}).outside);
}

TEST(NameTest, FirstByteIsALetter)
{
    EXPECT_EQ("value_p byte 1 is \"1\"; letters are allowed", said("LAN_check_cis_dev_name", {"1Router"}));
    EXPECT_EQ("value_p byte 1 is \"_\"; letters are allowed", said("LAN_check_cis_dev_name", {"_Router"}));
    EXPECT_EQ("value_p byte 7 is \"_\"; letters, digits, spaces and - are allowed",
              said("LAN_check_cis_dev_name", {"Router_1"}));
}

TEST(ListTest, AddedAddresses)
{
    const std::string longest(143, 'l');
    const auto told_of = [](const char* address, std::string list) {
        return said("LAN_check_add_allowedMACAddress", {address, std::move(list)});
    };
    EXPECT_EQ("macAddress is empty", told_of("", "l"));
    EXPECT_EQ("macAddress is \"l\", which is already in the list", told_of("l", "l"));
    EXPECT_EQ("macAddress has 1 byte; one of 17, 35, 53, 71, 89, 107, 125, 143 is needed", told_of("a", "l"));
    EXPECT_EQ("macAddress needs 160 bytes together with the list; at most 159 are allowed",
              told_of("00:11:22:33:44:55", longest));
}

TEST(ListTest, AddedAndDeletedServers)
{
    const auto added = [](const char* servers, const char* list) {
        return said("LAN_check_add_dns_servers", {servers, list});
    };
    EXPECT_EQ("newServers the second server is \"1.1.1.1\", which is already in the list",
              added("8.8.8.8,1.1.1.1", "1.1.1.1,9.9.9.9"));
    EXPECT_EQ("newServers is \"8.8.8.8\", which is already in the list", added("8.8.8.8", "8.8.8.8"));
    EXPECT_EQ("newServers the second server is empty, and the list already has an empty entry",
              added("8.8.8.8,", "1.1.1.1,"));
    const auto deleted = [](const char* server, const char* list) {
        return said("LAN_check_delete_dns_server", {server, list});
    };
    EXPECT_EQ("serverAddress is the first server, which cannot be deleted",
              deleted("8.8.8.8", "8.8.8.8,1.1.1.1"));
    EXPECT_EQ("serverAddress is not one of the current servers", deleted("10.0.0.1", "8.8.8.8"));
    EXPECT_EQ("serverAddress is not one of the current servers", deleted("1.1.1.1", ""));
}

TEST(AddressTest, Pools)
{
    const auto pool = [](const char* start, const char* end) {
        return said("LAN_check_dhcp_addr_range", {start, end, "192.168.1.1"});
    };
    EXPECT_EQ("startAddress the last octet is 0; at least 1 is needed", pool("192.168.1.0", "192.168.1.9"));
    EXPECT_EQ("endAddress the last octet is 8; it must be at least 9, the last octet of the start address",
              pool("192.168.1.9", "192.168.1.8"));
    EXPECT_EQ("endAddress the last octet is 256; at most 254 is allowed",
              pool("192.168.1.9", "192.168.1.256"));
}

TEST(AddressTest, OtherSubnets)
{
    EXPECT_EQ("endAddress does not begin with \"192.168.1.\", the prefix of the subnet",
              said("LAN_check_dhcp_addr_range", {"192.168.1.100", "192.168.2.200", "192.168.1.1"}));
    EXPECT_EQ("value begins with 0.0, which is not allowed",
              said("L3FORWARDING_check_IP_address_and_mask", {"0.0.0.0"}));
}

}  // namespace

}  // namespace ostrel::rules
