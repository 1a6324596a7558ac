// Small spaces of addresses in full, each against a slow and obvious second version.

#include <gtest/gtest.h>
#include <ostrel/addresses.h>

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/capture.h"
#include "tests/support/byte_ranges.h"

namespace ostrel::tests {

namespace {

std::vector<std::string> split(const std::string& text, char separator)
{
    std::vector<std::string> parts(1);
    for (const char c : text) {
        if (c == separator) {
            parts.emplace_back();
        } else {
            parts.back() += c;
        }
    }
    return parts;
}

bool obviously_ipv4(const std::string& text)
{
    if (text.size() < 7 || text.size() > 15) return false;
    const std::vector<std::string> octets = split(text, '.');
    if (octets.size() != 4) return false;
    for (const std::string& octet : octets) {
        if (octet.empty() || octet.find_first_not_of("0123456789") != std::string::npos) return false;
        if (std::stoll(octet) > 255) return false;
    }
    return true;
}

void expect_as_obvious(const std::string& text)
{
    ASSERT_EQ(obviously_ipv4(text) ? 0 : -1, TcmValidateIPAddress(text.c_str())) << text;
}

TEST(IpAddress, EveryOctetWithEveryNumberOfLeadingZerosInEveryPlace)
{
    int accepted = 0;
    for (int number = 0; number <= 999; ++number) {
        for (std::size_t zeros = 0; zeros <= 9; ++zeros) {
            const std::string octet = std::string(zeros, '0') + std::to_string(number);
            for (std::size_t place = 0; place < 4; ++place) {
                std::array<std::string, 4> octets = {"1", "2", "3", "4"};
                octets.at(place) = octet;
                const std::string text = octets[0] + "." + octets[1] + "." + octets[2] + "." + octets[3];
                expect_as_obvious(text);
                if (TcmValidateIPAddress(text.c_str()) == 0) ++accepted;
            }
        }
    }
    // With three other octets of one digit there is room for nine: 0 to 9 with 0 to 8 zeros, and so on.
    EXPECT_EQ(4 * (10 * 9 + 90 * 8 + 156 * 7), accepted);
}

TEST(IpAddress, EveryTextOfDigitsAndDotsUpToTenCharacters)
{
    constexpr std::string_view kAlphabet = ".25";
    std::vector<std::string> texts = {""};
    for (std::size_t length = 0; length <= 10; ++length) {
        std::vector<std::string> longer;
        for (const std::string& text : texts) {
            expect_as_obvious(text);
            for (const char c : kAlphabet) longer.push_back(text + c);
        }
        texts = std::move(longer);
    }
}

TEST(IpAddress, EveryByteInEveryPlace)
{
    const std::string address = "10.20.30.255";
    for (std::size_t place = 0; place < address.size(); ++place) {
        for (int byte = 0x01; byte <= 0xFF; ++byte) {
            std::string text = address;
            text[place] = static_cast<char>(byte);
            expect_as_obvious(text);
            expect_as_obvious(address.substr(0, place) + static_cast<char>(byte) + address.substr(place));
        }
    }
}

// Verdict is what a MAC address check says and prints.
struct Verdict {
    int code = 0;
    std::string out;
    bool operator==(const Verdict&) const = default;
};

void PrintTo(const Verdict& verdict, std::ostream* stream)
{
    *stream << verdict.code << " " << testing::PrintToString(verdict.out);
}

Verdict obvious_verdict(const std::string& text, bool station_only)
{
    if (text.size() != 17) return {-1, ""};
    for (std::size_t i = 0; i < 17; ++i) {
        if (i == 2 || i == 5 || i == 8 || i == 11 || i == 14) {
            if (text[i] != ':') return {-1, std::string(1, text[i])};
            continue;
        }
        if (!in_ranges(kHexRanges, static_cast<unsigned char>(text[i]))) return {-1, ""};
        const bool group = std::stoi(text.substr(i, 1), nullptr, 16) % 2 == 1;
        if (station_only && i == 1 && group) return {-1, "Broadcasting MAC address, invalid.\n"};
    }
    return {0, ""};
}

class MacAddress : public testing::Test {
 protected:
    void expect_as_obvious(const std::string& text)
    {
        EXPECT_EQ(obvious_verdict(text, false), verdict(TcmValidateMACaddress, text)) << text;
        EXPECT_EQ(obvious_verdict(text, true), verdict(isValidOrdinaryMACAddress, text)) << text;
    }

 private:
    Verdict verdict(int (*check)(const char*), const std::string& text)
    {
        const int code = check(text.c_str());
        const catalogue::Printed printed = capture_.take();
        EXPECT_EQ(0U, printed.flushed) << "nothing is flushed";
        return {code, printed.out};
    }

    catalogue::Capture capture_;
};

TEST_F(MacAddress, EveryByteInEveryPosition)
{
    for (const std::string address : {"00:1a:2B:3c:4D:5e", "ff:ff:ff:ff:ff:ff", "FE:DC:BA:98:76:54"}) {
        for (std::size_t place = 0; place < address.size(); ++place) {
            for (int byte = 0x01; byte <= 0xFF; ++byte) {
                std::string text = address;
                text[place] = static_cast<char>(byte);
                expect_as_obvious(text);
            }
            expect_as_obvious(address.substr(0, place));
        }
        expect_as_obvious(address);
        expect_as_obvious(address + "0");
    }
}

TEST_F(MacAddress, EveryFirstOctetInEitherCase)
{
    constexpr std::string_view kDigits = "0123456789ABCDEFabcdef";
    for (const char high : kDigits) {
        for (const char low : kDigits) {
            expect_as_obvious(std::string{high, low} + ":00:00:00:00:00");
            expect_as_obvious(std::string{high, low} + "-00-00-00-00-00");
        }
    }
}

TEST_F(MacAddress, EveryPairOfFaultsReportsTheFirst)
{
    for (std::size_t first = 0; first < 17; ++first) {
        for (std::size_t second = first + 1; second < 17; ++second) {
            std::string text = "00:11:22:33:44:55";
            text[first] = 'x';
            text[second] = 'y';
            expect_as_obvious(text);
        }
    }
}

}  // namespace

}  // namespace ostrel::tests
