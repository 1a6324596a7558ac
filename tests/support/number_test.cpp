// Compares the library's own number parser with atoi.

#include "src/support/number.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

namespace {

using ostrel::leading_number;
using ostrel::read_number;

// for_each_text visits all strings over the alphabet, up to the given length, each preceded by the prefix.
template <typename Visit>
void for_each_text(const std::string& prefix, const std::string& alphabet, int longest, const Visit& visit)
{
    visit(prefix);
    if (longest == 0) return;
    for (const char c : alphabet) for_each_text(prefix + c, alphabet, longest - 1, visit);
}

void expect_the_number_of_atoi(const std::string& text)
{
    ASSERT_EQ(std::atoi(text.c_str()), leading_number(text.c_str())) << '"' << text << '"';
    const char* rest = text.c_str();
    ASSERT_EQ(std::atoi(text.c_str()), read_number(rest)) << '"' << text << '"';
    ASSERT_EQ(text.c_str() + std::string(text + "x").find_first_not_of("0123456789"), rest)
        << '"' << text << '"';
}

TEST(Number, IsThatOfAtoiForEveryShortText)
{
    for_each_text("", "019+- \t.a\xB2", 6, expect_the_number_of_atoi);
}

TEST(Number, IsThatOfAtoiForEveryNumberOfFourDigits)
{
    for_each_text("", "0123456789", 4, expect_the_number_of_atoi);
}

TEST(Number, IsThatOfAtoiWhereAnIntEnds)
{
    for (const char* const prefix : {"99999", "21474", "42949", "00000", "9223372036854"}) {
        for_each_text(prefix, "089 ", 6, expect_the_number_of_atoi);
    }
}

TEST(Number, IsThatOfAtoiBeforeEveryByte)
{
    for (int byte = 1; byte < 256; ++byte) {
        const std::string end(1, static_cast<char>(byte));
        expect_the_number_of_atoi(end + "7");
        expect_the_number_of_atoi("7" + end + "8");
        expect_the_number_of_atoi("123456789" + end);
    }
}

}  // namespace
