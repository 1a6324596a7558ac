// Every arrangement of "#" in the local part of a PPP user name, against the forms written out one by one.

#include <gtest/gtest.h>
#include <ostrel/accounts.h>

#include <algorithm>
#include <string>
#include <vector>

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

Answer accepted_as(int type) { return {0, type}; }
constexpr Answer kRefused = {402, kUntouched};
constexpr Answer kAcceptedWithoutType = {0, kUntouched};

Answer obvious_account(const std::string& local)
{
    const std::size_t length = local.size();
    if (length < 18) return {801, kUntouched};
    if (length > 30) return {802, kUntouched};
    const auto separators = std::count(local.begin(), local.end(), '#');
    if (separators >= 3) return kAcceptedWithoutType;
    if (separators == 0) return length == 28 ? accepted_as(1) : kRefused;
    const std::size_t first = local.find('#');
    if (separators == 1) {
        if (length < 29 && first >= 13 && length - first - 1 == 4) return accepted_as(2);
        if (length == 29 && first == 24) return accepted_as(2);
        if (length == 29 && first == 12) return accepted_as(3);
        return kRefused;
    }
    const std::size_t last = local.rfind('#');
    return first == 12 && last == length - 5 && length >= 19 ? accepted_as(4) : kRefused;
}

Answer obvious_setup(const std::string& local)
{
    if (local.size() < 16) return {801, kUntouched};
    if (local.size() > 17) return {802, kUntouched};
    const auto separators = std::count(local.begin(), local.end(), '#');
    if (separators >= 3) return kAcceptedWithoutType;
    if (separators == 0 && local.size() == 16) return accepted_as(5);
    if (separators == 1 && local.size() == 17 && local.find('#') == 12) return accepted_as(6);
    return kRefused;
}

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
        ASSERT_EQ(obvious_account(local), answer(local + "@example.net")) << local;
        ASSERT_EQ(obvious_setup(local), answer(local + "@setup.example.net")) << local;
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
