// Checks that do not test for NULL, and what is written into the caller's buffer.

#include <gtest/gtest.h>
#include <ostrel/mgtserver_check.h>

#include <sys/wait.h>

#include <array>
#include <csignal>
#include <string>

#include "calling/capture.h"

namespace ostrel::tests {

namespace {

// died_without_assertion holds for a memory fault, also for one that a sanitizer reports.
bool died_without_assertion(int status)
{
    return WIFSIGNALED(status) ? WTERMSIG(status) != SIGABRT : WEXITSTATUS(status) != 0;
}

constexpr std::size_t kBufferSize = 64;

struct Answer {
    int code;
    std::string buffer;
};

Answer timezone_of(const char* value)
{
    Answer answer{0, std::string(kBufferSize, '\xAA')};
    answer.code = HNAPCORE_check_timezone(value, answer.buffer.data());
    return answer;
}

// written is a buffer that holds the text, its terminator and nothing else.
std::string written(const std::string& text)
{
    std::string buffer(kBufferSize, '\xAA');
    buffer.replace(0, text.size() + 1, text.c_str(), text.size() + 1);
    return buffer;
}

}  // namespace

TEST(GuestAccessAndHnap, DoNotTestForNull)
{
    std::array<char, 8> buffer{};
    EXPECT_EXIT(GUESTACCESS_check_max_allowed_number(nullptr), died_without_assertion, "");
    EXPECT_EXIT(GUESTACCESS_check_password(nullptr), died_without_assertion, "");
    EXPECT_EXIT(HNAPCORE_check_username(nullptr), died_without_assertion, "");
    EXPECT_EXIT(HNAPCORE_check_timezone(nullptr, buffer.data()), died_without_assertion, "");
    EXPECT_EXIT(HNAPCORE_check_locale(nullptr), died_without_assertion, "");
}

TEST(HnapTimezone, WritesTheTextAndItsTerminatorAlone)
{
    for (const char* utc : {"UTC", "utc", "uTc"}) {
        const Answer bare = timezone_of(utc);
        EXPECT_EQ(0, bare.code);
        EXPECT_EQ(written("+00:00"), bare.buffer);
        for (std::size_t length = 1; length < kBufferSize; ++length) {
            const std::string offset(length, '7');
            const Answer answer = timezone_of((utc + offset).c_str());
            EXPECT_EQ(0, answer.code);
            EXPECT_EQ(written(offset), answer.buffer);
        }
    }
}

TEST(HnapTimezone, LeavesTheBufferAsItWasOnFailure)
{
    for (const char* value : {"", "U", "UT", "GMT", "GMT+1", " UTC", "UTX"}) {
        const Answer answer = timezone_of(value);
        EXPECT_EQ(-1, answer.code) << value;
        EXPECT_EQ(std::string(kBufferSize, '\xAA'), answer.buffer) << value;
    }
}

// Only the letters of ASCII have another case; every other byte in the place of a letter is a difference.
TEST(HnapKeywords, IgnoreTheCaseOfAsciiLettersAlone)
{
    for (const bool is_locale : {false, true}) {
        const std::string keyword = is_locale ? "th-th" : "UTC";
        std::array<char, 8> buffer{};
        for (std::size_t i = 0; i < keyword.size(); ++i) {
            for (int byte = 0; byte < 256; ++byte) {
                std::string value = keyword;
                value[i] = static_cast<char>(byte);
                const bool same = byte == keyword[i] || (keyword[i] != '-' && byte == (keyword[i] ^ 0x20));
                const int code = is_locale ? HNAPCORE_check_locale(value.c_str())
                                           : HNAPCORE_check_timezone(value.c_str(), buffer.data());
                EXPECT_EQ(same ? 0 : -1, code) << keyword << " " << i << " " << byte;
            }
        }
    }
}

TEST(GuestNumber, EveryNumberOfUpToThreeDigits)
{
    const calling::Capture capture;
    for (int number = 0; number < 1000; ++number) {
        const std::string text = std::to_string(number);
        const int long_text = number > 99 ? 802 : 0;
        EXPECT_EQ(number == 0 ? 402 : long_text, GUESTACCESS_check_max_allowed_number(text.c_str())) << text;
    }
}

}  // namespace ostrel::tests
