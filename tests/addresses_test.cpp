// Small spaces of addresses in full, each against the description.

#include <gtest/gtest.h>
#include <ostrel/addresses.h>

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "calling/capture.h"
#include "tests/support/described.h"

namespace ostrel::tests {

namespace {

void expect_as_described(const std::string& text)
{
    ASSERT_EQ(described_code("TcmValidateIPAddress", {text}), TcmValidateIPAddress(text.c_str())) << text;
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
                expect_as_described(text);
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
            expect_as_described(text);
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
            expect_as_described(text);
            expect_as_described(address.substr(0, place) + static_cast<char>(byte) + address.substr(place));
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

class MacAddress : public testing::Test {
 protected:
    void expect_as_described(const std::string& text)
    {
        EXPECT_EQ(described_verdict("TcmValidateMACaddress", text), verdict(TcmValidateMACaddress, text))
            << text;
        EXPECT_EQ(described_verdict("isValidOrdinaryMACAddress", text),
                  verdict(isValidOrdinaryMACAddress, text))
            << text;
    }

 private:
    static Verdict described_verdict(const char* name, const std::string& text)
    {
        const rules::Answer answer = described(name, {text});
        return {answer.code, answer.out};
    }

    Verdict verdict(int (*check)(const char*), const std::string& text)
    {
        const int code = check(text.c_str());
        const calling::Printed printed = capture_.take();
        EXPECT_EQ(0U, printed.flushed) << "nothing is flushed";
        return {code, printed.out};
    }

    calling::Capture capture_;
};

TEST_F(MacAddress, EveryByteInEveryPosition)
{
    for (const std::string address : {"00:1a:2B:3c:4D:5e", "ff:ff:ff:ff:ff:ff", "FE:DC:BA:98:76:54"}) {
        for (std::size_t place = 0; place < address.size(); ++place) {
            for (int byte = 0x01; byte <= 0xFF; ++byte) {
                std::string text = address;
                text[place] = static_cast<char>(byte);
                expect_as_described(text);
            }
            expect_as_described(address.substr(0, place));
        }
        expect_as_described(address);
        expect_as_described(address + "0");
    }
}

TEST_F(MacAddress, EveryFirstOctetInEitherCase)
{
    constexpr std::string_view kDigits = "0123456789ABCDEFabcdef";
    for (const char high : kDigits) {
        for (const char low : kDigits) {
            expect_as_described(std::string{high, low} + ":00:00:00:00:00");
            expect_as_described(std::string{high, low} + "-00-00-00-00-00");
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
            expect_as_described(text);
        }
    }
}

}  // namespace

}  // namespace ostrel::tests
