// Every arrangement of "#" in the local part of a PPP user name, against the description.

#include <gtest/gtest.h>
#include <ostrel/accounts.h>

#include <string>
#include <vector>

#include "tests/support/described.h"

namespace ostrel::tests {

namespace {

constexpr int kUntouched = 77;

// Answer is a code and the account type after the call.
struct Answer {
    int code;
    int type;
    bool operator==(const Answer&) const = default;
};

void PrintTo(const Answer& answer, std::ostream* stream)
{
    *stream << "code " << answer.code << " type " << answer.type;
}

Answer answer(const std::string& name)
{
    int type = kUntouched;
    const int code = TcmValidatePPPUsername(name.c_str(), &type);
    return {code, type};
}

Answer described_answer(const std::string& name)
{
    const rules::Answer answer =
        described("TcmValidatePPPUsername", {name, static_cast<long long>(kUntouched)});
    return {answer.code, static_cast<int>(std::get<long long>(answer.after.at(0)))};
}

Answer accepted_as(int type) { return {0, type}; }

// locals gives the local parts of up to 33 characters with none to three "#", in every place.
std::vector<std::string> locals()
{
    std::vector<std::string> result;
    for (std::size_t length = 1; length <= 33; ++length) {
        const std::string digits(length, '7');
        result.push_back(digits);
        for (std::size_t a = 0; a < length; ++a) {
            std::string one = digits;
            one[a] = '#';
            result.push_back(one);
            for (std::size_t b = a + 1; b < length; ++b) {
                std::string two = one;
                two[b] = '#';
                result.push_back(two);
                for (std::size_t c = b + 1; c < length; ++c) {
                    std::string three = two;
                    three[c] = '#';
                    result.push_back(three);
                }
            }
        }
    }
    return result;
}

TEST(PppUserName, EveryArrangementOfSeparatorsInEitherRealm)
{
    for (const std::string& local : locals()) {
        for (const char* realm : {"@example.net", "@setup.example.net"}) {
            const std::string name = local + realm;
            ASSERT_EQ(described_answer(name), answer(name)) << name;
        }
        ASSERT_EQ(accepted_as(0), answer(local)) << local;
    }
}

TEST(PppUserName, EveryLengthOfAnOrdinaryName)
{
    EXPECT_EQ((Answer{801, kUntouched}), answer(""));
    for (std::size_t length = 1; length <= 131; ++length) {
        EXPECT_EQ(accepted_as(0), answer(std::string(length, 'x')));
    }
    EXPECT_EQ((Answer{802, kUntouched}), answer(std::string(132, 'x')));
}

// Any one character of a realm changed makes an ordinary name of it.
TEST(PppUserName, EveryByteOfARealmCounts)
{
    for (const std::string realm : {"@example.net", "@setup.example.net"}) {
        for (std::size_t i = 0; i < realm.size(); ++i) {
            std::string other = realm;
            other[i] = '~';
            EXPECT_EQ(accepted_as(0), answer("1234567890123456" + other)) << other;
        }
        EXPECT_EQ(accepted_as(0), answer(realm)) << "the realm alone";
        EXPECT_EQ(801, answer("1" + realm).code);
    }
}

TEST(ProvisioningCode, EveryDigitInEveryPosition)
{
    const std::string valid = "000.000.000.000";
    for (std::size_t place = 0; place < valid.size(); ++place) {
        int accepted = 0;
        for (char digit = '0'; digit <= '9'; ++digit) {
            std::string code = valid;
            code[place] = digit;
            testing::internal::CaptureStdout();
            if (TcmValidateProvisioningCode(code.c_str()) == 0) ++accepted;
            testing::internal::GetCapturedStdout();
        }
        const bool dot = place % 4 == 3;
        const bool any = place >= 12;
        const bool up_to_four = place == 6 || place == 10;
        EXPECT_EQ(dot ? 0 : any ? 10 : up_to_four ? 5 : 1, accepted) << "position " << place;
    }
}

}  // namespace

}  // namespace ostrel::tests
