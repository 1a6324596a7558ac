// Tests every value in small spaces of hosts, URLs, mail, IP and MAC addresses, address lists, and ports.

#include <string>

#include "tests/small_spaces/spaces.h"

namespace ostrel::tests {

namespace {

std::string numbered(int first, int second, int third, int fourth)
{
    return std::to_string(first) + '.' + std::to_string(second) + '.' + std::to_string(third) + '.' +
           std::to_string(fourth);
}

}  // namespace

TEST_F(SmallSpaces, Hosts)
{
    const Texts hosts = texts_of("a1.-_", 7);
    expect_each({"TcmValidateDomainName", "ValidateURL"}, hosts);
    const Texts labels = {".", "-", "256", std::string(19, 'a'), std::string(20, 'a'), "a.b", "1.2.3.4"};
    expect_each({"TcmValidateDomainName", "ValidateURL"}, texts_of(labels, 6));
    expect_each({"TcmValidateVoIPRegistrar", "TcmValidateVoIPSTUNServer"}, texts_of("a1.:_", 7));
    Texts digits;
    for (std::size_t length = 0; length <= 300; ++length) digits.emplace_back(length, '1');
    expect_each({"TcmValidateDomainName", "ValidateURL"}, digits);
}

TEST_F(SmallSpaces, Urls)
{
    Texts rests = texts_of("a1.:/", 6);
    const Texts parts = {"a", "10.0.0.1", ":", "/", "65535", "65536", "4294967376", "=", "%"};
    for (const std::string& text : texts_of(parts, 5)) rests.push_back(text);
    for (std::size_t length = 0; length <= 260; ++length) {
        rests.push_back("a/" + std::string(length, 'x'));
        rests.push_back("a:" + std::string(length, '0'));
        rests.push_back("a:" + std::string(length, '9'));
    }
    for (const std::string& rest : rests) {
        for (const char* scheme : {"x-dslf_cwmp://", "x-dslf_cwmps://"})
            expect("TcmValidateServerURL", {scheme + rest});
        for (const char* scheme : {"http://", "https://"}) expect("TcmValidatefirmwareURL", {scheme + rest});
    }
}

TEST_F(SmallSpaces, MailAddresses)
{
    expect_each({"isEmail"}, texts_of("a@.", 9));
    expect_each({"TcmValidateEmailAddress"}, texts_of("a@._", 7));
}

TEST_F(SmallSpaces, Addresses)
{
    expect_each({"TcmValidateIPAddress"}, texts_of(".25", 10));
    Texts octets;
    for (int number = 0; number <= 999; ++number) {
        for (std::size_t zeros = 0; zeros <= 9; ++zeros) {
            const std::string octet = std::string(zeros, '0') + std::to_string(number);
            for (const char* before : {"", "1.", "1.2.", "1.2.3."})
                octets.push_back(before + octet + std::string(".2.3.4").substr(std::string(before).size()));
        }
    }
    // If three octets have one digit, the fourth may have nine: 0 to 9 after 0 to 8 zeros, and so on.
    EXPECT_EQ(4 * (10 * 9 + 90 * 8 + 156 * 7), expect_each({"TcmValidateIPAddress"}, octets)[0]);

    Texts stations;
    for (const std::string& octet : texts_of("0123456789ABCDEFabcdef", 2)) {
        stations.push_back(octet + ":00:00:00:00:00");
        stations.push_back(octet + "-00-00-00-00-00");
    }
    for (std::size_t first = 0; first < 17; ++first) {
        for (std::size_t second = 0; second < 17; ++second) {
            std::string& text = stations.emplace_back("00:11:22:33:44:55");
            text[first] = 'x';
            text[second] = 'y';
        }
    }
    expect_each({"TcmValidateMACaddress", "isValidOrdinaryMACAddress"}, stations);
}

TEST_F(SmallSpaces, Subnets)
{
    for (const std::string& reference : texts_of("1.2", 5)) {
        for (const std::string& address : texts_of("1.2", 4)) expect("isInSameSubnet", {reference, address});
    }
    for (int one = 0; one <= 256; ++one) {
        for (int other = 0; other <= 256; ++other) {
            expect("TcmValidateAddressRange",
                   {numbered(192, 168, 1, one), numbered(192, 168, 1, other), "192.168.1.1"});
            expect("TcmValidateIPRouter", {numbered(192, 168, one, other)});
            expect("TcmValidateIPRouter", {numbered(one, other, 1, 1)});
        }
    }
}

TEST_F(SmallSpaces, Lists)
{
    int repeated = 0;
    for (const char* lan_address : {"", "1", ".", "1.", "1.2"}) {
        for (const std::string& list : texts_of("1., 2", 6))
            repeated += expect("TcmValidateReservedAddress", {list, lan_address}) == 701 ? 1 : 0;
    }
    for (const std::string& list : texts_of(Texts{"1.1", "1.12", "2.1", "1.", ",", " ", "\t"}, 6))
        repeated += expect("TcmValidateReservedAddress", {list, "1.9"}) == 701 ? 1 : 0;
    EXPECT_GT(repeated, 1000);
    const Texts servers = {"1.1.1.1", "255.8.8.8", "1.1.1.256", ",", " ", "\t"};
    EXPECT_GT(expect_each({"TcmValidateofferDNS"}, texts_of(servers, 6))[0], 100);
    for (const std::string& one : texts_of(Texts{"1.1.1.1", "8.8.8.8", "10.0.0.1", ",", " "}, 3)) {
        for (const std::string& other : texts_of(Texts{"1.1.1.1", "8.8.8.8", "10.0.0.1", ",", " "}, 3)) {
            expect("LAN_check_add_dns_servers", {one, other});
            expect("LAN_check_delete_dns_server", {one, other});
        }
    }
}

TEST_F(SmallSpaces, Ports)
{
    for (int port = -1; port <= 65536; ++port) {
        for (const long long protocol : {0, 1})
            expect("PORTMAPPING_check_port_available", {std::to_string(port), protocol});
    }
}

}  // namespace ostrel::tests
