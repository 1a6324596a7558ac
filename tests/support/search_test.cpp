// The search for a piece in a text, against std::string's on every small text, and its time on texts that
// repeat themselves.

#include "support/search.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <vector>

namespace {

using ostrel::contains;

// all_texts gives every text of that length over the first letters of the alphabet.
std::vector<std::string> all_texts(std::size_t length, char last_letter)
{
    std::vector<std::string> texts = {""};
    for (std::size_t i = 0; i < length; ++i) {
        std::vector<std::string> longer;
        for (const std::string& text : texts) {
            for (char letter = 'a'; letter <= last_letter; ++letter) longer.push_back(text + letter);
        }
        texts = std::move(longer);
    }
    return texts;
}

void expect_agreement(std::size_t longest_text, std::size_t longest_part, char last_letter)
{
    for (std::size_t text_length = 0; text_length <= longest_text; ++text_length) {
        const auto texts = all_texts(text_length, last_letter);
        for (std::size_t part_length = 0; part_length <= longest_part; ++part_length) {
            for (const std::string& part : all_texts(part_length, last_letter)) {
                for (const std::string& text : texts) {
                    ASSERT_EQ(text.find(part) != std::string::npos, contains(text, part))
                        << part << " in " << text;
                }
            }
        }
    }
}

TEST(Search, AgreesOnEveryTextOfTwoLetters) { expect_agreement(11, 7, 'b'); }

TEST(Search, AgreesOnEveryTextOfThreeLetters) { expect_agreement(7, 5, 'c'); }

TEST(Search, ComparesBytesOfEitherSign)
{
    EXPECT_TRUE(contains("\x7F\x80\xFF\x01", "\x80\xFF"));
    EXPECT_FALSE(contains("\x7F\x80\xFF\x01", "\xFF\x80"));
}

// hostile_texts repeat themselves, so that a plain search would compare most of the part at most places.
std::vector<std::string> hostile_texts(std::size_t size)
{
    std::string pairs;
    std::string blocks;
    std::string fibonacci = "ab";
    for (std::string previous = "a"; fibonacci.size() < size;) {
        const std::string next = fibonacci + previous;
        previous = std::exchange(fibonacci, next);
    }
    while (pairs.size() < size) pairs += "ab";
    while (blocks.size() < size) blocks += std::string(size / 50, 'a') + "b";
    return {std::string(size, 'a'), pairs, blocks, fibonacci};
}

TEST(Search, TakesLinearTimeOnHostileTexts)
{
    constexpr std::size_t kSize = 1 << 20;
    const auto start = std::chrono::steady_clock::now();
    for (const std::string& text : hostile_texts(kSize)) {
        const std::string half = text.substr(0, kSize / 2);
        for (const std::string& part :
             {half + "c", half + "A", "c" + half, half.substr(1) + "c" + half.substr(0, 9)}) {
            EXPECT_FALSE(contains(text, part));
        }
        EXPECT_TRUE(contains(text + "c", text.substr(text.size() - kSize / 2) + "c"));
    }
    // Linear time takes well under a second, also under a sanitizer; comparing at each place would take
    // hours.
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
}

}  // namespace
