// Hosts, URLs and mail addresses over small alphabets, against second versions that copy, cut and compare as
// one would on paper.

#include <gtest/gtest.h>
#include <ostrel/addresses.h>
#include <ostrel/character_sets.h>
#include <ostrel/hosts.h>
#include <ostrel/strings.h>

#include <cstdlib>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace ostrel::tests {

namespace {

bool is_of(int min, int max, const char* set, const std::string& text)
{
    return ValidateString(min, max, set, text.c_str()) == 0;
}

// pieces splits as strtok does: empty pieces are left out.
std::vector<std::string> pieces(const std::string& text, char separator)
{
    std::vector<std::string> result;
    std::string piece;
    for (const char c : text + separator) {
        if (c != separator) {
            piece += c;
        } else if (!piece.empty()) {
            result.push_back(piece);
            piece.clear();
        }
    }
    return result;
}

bool slow_domain_name(const std::string& name)
{
    if (name.ends_with('.') || name.starts_with('.') || name.find("..") != std::string::npos) return false;
    if (is_of(0, 255, CHARSET_IPV4, name)) return false;
    const std::vector<std::string> labels = pieces(name, '.');
    for (const std::string& label : labels) {
        if (!is_of(1, 20, CHARSET_HOST, label)) return false;
    }
    return !labels.empty() && labels.size() <= 6;
}

bool slow_host(const std::string& host)
{
    return slow_domain_name(host) || TcmValidateIPAddress(host.c_str()) == 0;
}

bool slow_url(const std::string& url, const std::string& scheme, const std::string& secure_scheme)
{
    if (!is_of(0, 256, CHARSET_URL, url)) return false;
    std::string rest;
    if (url.starts_with(scheme)) {
        rest = url.substr(scheme.size());
    } else if (url.starts_with(secure_scheme)) {
        rest = url.substr(secure_scheme.size());
    } else {
        return false;
    }
    const std::size_t colon = rest.find(':');
    if (colon == std::string::npos) return slow_host(rest.substr(0, rest.find('/')));
    if (!slow_host(rest.substr(0, colon))) return false;
    std::string port = rest.substr(colon + 1);
    port = port.substr(0, port.find('/'));
    if (port.find_first_not_of("0123456789") != std::string::npos) return false;
    const int number = std::atoi(port.c_str());
    return number >= 0 && number <= 65535;
}

bool slow_email(const std::string& mail)
{
    const auto length = static_cast<long>(mail.size());
    if (length < 5) return false;
    const std::size_t at = mail.find('@');
    const std::size_t dot = mail.rfind('.');
    if (at == std::string::npos || dot == std::string::npos) return false;
    const long behind_at = length - static_cast<long>(at) - 1;
    const long behind_dot = length - static_cast<long>(dot) - 1;
    if (length - behind_at < 2 || behind_dot < 1) return false;
    return behind_dot + 2 <= behind_at;
}

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

void expect_host(const std::string& text)
{
    ASSERT_EQ(slow_domain_name(text) ? 0 : -1, TcmValidateDomainName(text.c_str())) << text;
    ASSERT_EQ(slow_host(text) ? 0 : -1, ValidateURL(text.c_str())) << text;
}

void expect_url(const std::string& rest)
{
    for (const char* scheme : {"x-dslf_cwmp://", "x-dslf_cwmps://", "http://", "https://"}) {
        const std::string url = scheme + rest;
        ASSERT_EQ(slow_url(url, "x-dslf_cwmp://", "x-dslf_cwmps://") ? 0 : -1,
                  TcmValidateServerURL(url.c_str()))
            << url;
        ASSERT_EQ(slow_url(url, "http://", "https://") ? 0 : 600, TcmValidatefirmwareURL(url.c_str())) << url;
    }
}

}  // namespace

TEST(Hosts, EveryShortTextAgreesWithTheSlowVersion) { for_each_text("a1.-_", 7, expect_host); }

TEST(Hosts, RandomLabelsAgreeWithTheSlowVersion)
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

TEST(Urls, EveryShortTextBehindASchemeAgreesWithTheSlowVersion) { for_each_text("a1.:/", 6, expect_url); }

TEST(Urls, RandomTextsBehindASchemeAgreeWithTheSlowVersion)
{
    const std::vector<std::string> parts = {
        "a", "acs.lan", "10.0.0.1", "1.2.3", ".",  "/",          ":",          ":", "/",    "?",  "_",
        "-", "65535",   "65536",    "0",     "80", "4294967376", "2147483648", "=", "http", "//", "%"};
    Texts texts;
    for (int i = 0; i < 50000; ++i) expect_url(texts.text(parts, 8));
}

TEST(Urls, EveryLengthUpToBeyondTheLimitAgreesWithTheSlowVersion)
{
    for (std::size_t length = 0; length <= 260; ++length) {
        expect_url("a/" + std::string(length, 'x'));
        expect_url("a:" + std::string(length, '0'));
        expect_url("a:" + std::string(length, '9'));
        expect_url(std::string(length, 'a'));
    }
}

TEST(Mail, EveryShortTextAgreesWithTheSlowVersion)
{
    for_each_text("a@.", 9, [](const std::string& text) {
        ASSERT_EQ(slow_email(text) ? 0 : -1, isEmail(text.c_str())) << text;
    });
}

TEST(Mail, EveryShortAddressAgreesWithTheSlowVersion)
{
    for_each_text("a@._", 7, [](const std::string& text) {
        int expected = ValidateString(5, 64, CHARSET_MAIL, text.c_str());
        if (expected == 0 && !slow_email(text)) expected = 600;
        ASSERT_EQ(expected, TcmValidateEmailAddress(text.c_str())) << text;
    });
}

TEST(VoipServers, EveryShortTextAgreesWithTheSlowVersion)
{
    for_each_text("a1.:_", 7, [](const std::string& text) {
        int expected = ValidateString(3, 64, CHARSET_NAME, text.c_str());
        if (expected == 0 && !slow_host(text)) expected = 600;
        ASSERT_EQ(expected, TcmValidateVoIPRegistrar(text.c_str())) << text;
        expected = ValidateString(0, 64, CHARSET_HOSTPORT, text.c_str());
        if (expected == 0 && !text.empty() && !slow_host(text)) expected = 600;
        ASSERT_EQ(expected, TcmValidateVoIPSTUNServer(text.c_str())) << text;
    });
}

}  // namespace ostrel::tests
