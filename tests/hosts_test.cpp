// Hosts, URLs and mail addresses over small alphabets, against their descriptions.

#include <gtest/gtest.h>
#include <ostrel/hosts.h>

#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "tests/support/described.h"

namespace ostrel::tests {

namespace {

// for_each_text gives every text over the alphabet of up to that length, the empty one first.
template <typename Visit>
void for_each_text(std::string_view alphabet, std::size_t longest, Visit visit)
{
    std::string text;
    for (;;) {
        visit(text);
        std::size_t i = 0;
        for (; i < text.size(); ++i) {
            const std::size_t next = alphabet.find(text[i]) + 1;
            text[i] = alphabet[next % alphabet.size()];
            if (next < alphabet.size()) break;
        }
        if (i < text.size()) continue;
        if (text.size() == longest) return;
        text.assign(text.size() + 1, alphabet[0]);
    }
}

// Texts makes random texts of parts, so that what is valid comes up as often as what is not.
class Texts {
 public:
    std::string text(const std::vector<std::string>& parts, std::size_t longest)
    {
        std::string result;
        for (std::size_t count = pick(longest + 1); count > 0; --count) result += parts[pick(parts.size())];
        return result;
    }

    std::size_t pick(std::size_t size) { return random_() % size; }

 private:
    std::mt19937 random_{1};  // NOLINT(bugprone-random-generator-seed): the same texts in every run
};

using Validate = int (*)(const char*);

void expect_as_described(const char* name, Validate validate, const std::string& text)
{
    ASSERT_EQ(described_code(name, {text}), validate(text.c_str())) << name << ' ' << text;
}

void expect_host(const std::string& text)
{
    expect_as_described("TcmValidateDomainName", TcmValidateDomainName, text);
    expect_as_described("ValidateURL", ValidateURL, text);
}

void expect_url(const std::string& rest)
{
    for (const char* scheme : {"x-dslf_cwmp://", "x-dslf_cwmps://", "http://", "https://"}) {
        const std::string url = scheme + rest;
        expect_as_described("TcmValidateServerURL", TcmValidateServerURL, url);
        expect_as_described("TcmValidatefirmwareURL", TcmValidatefirmwareURL, url);
    }
}

}  // namespace

TEST(Hosts, EveryShortTextIsAsDescribed) { for_each_text("a1.-_", 7, expect_host); }

TEST(Hosts, RandomLabelsAreAsDescribed)
{
    const std::vector<std::string> parts = {".",
                                            ".",
                                            ".",
                                            "a",
                                            "-",
                                            "0",
                                            "127",
                                            "256",
                                            "_",
                                            "abcdefghij012345678",
                                            "abcdefghij0123456789",
                                            "01234567890123456789",
                                            "a.b",
                                            "1.2.3.4",
                                            "\xE9"};
    Texts texts;
    for (int i = 0; i < 100000; ++i) expect_host(texts.text(parts, 13));
}

// The numeric text stops being a number at 256 characters, and has a label that is too long by then.
TEST(Hosts, NumericTextsOfEveryLengthAreNoDomainNames)
{
    for (std::size_t length = 0; length <= 300; ++length) {
        expect_host(std::string(length, '1'));
        std::string dotted(length, '1');
        for (std::size_t i = 20; i < length; i += 21) dotted[i] = '.';
        expect_host(dotted);
    }
}

TEST(Urls, EveryShortTextAfterASchemeIsAsDescribed) { for_each_text("a1.:/", 6, expect_url); }

TEST(Urls, RandomTextsAfterASchemeAreAsDescribed)
{
    const std::vector<std::string> parts = {
        "a", "acs.lan", "10.0.0.1", "1.2.3", ".",  "/",          ":",          ":", "/",    "?",  "_",
        "-", "65535",   "65536",    "0",     "80", "4294967376", "2147483648", "=", "http", "//", "%"};
    Texts texts;
    for (int i = 0; i < 50000; ++i) expect_url(texts.text(parts, 8));
}

TEST(Urls, EveryLengthUpToBeyondTheLimitIsAsDescribed)
{
    for (std::size_t length = 0; length <= 260; ++length) {
        expect_url("a/" + std::string(length, 'x'));
        expect_url("a:" + std::string(length, '0'));
        expect_url("a:" + std::string(length, '9'));
        expect_url(std::string(length, 'a'));
    }
}

TEST(Mail, EveryShortTextIsAsDescribed)
{
    for_each_text("a@.", 9, [](const std::string& text) { expect_as_described("isEmail", isEmail, text); });
}

TEST(Mail, EveryShortAddressIsAsDescribed)
{
    for_each_text("a@._", 7, [](const std::string& text) {
        expect_as_described("TcmValidateEmailAddress", TcmValidateEmailAddress, text);
    });
}

TEST(VoipServers, EveryShortTextIsAsDescribed)
{
    for_each_text("a1.:_", 7, [](const std::string& text) {
        expect_as_described("TcmValidateVoIPRegistrar", TcmValidateVoIPRegistrar, text);
        expect_as_described("TcmValidateVoIPSTUNServer", TcmValidateVoIPSTUNServer, text);
    });
}

}  // namespace ostrel::tests
