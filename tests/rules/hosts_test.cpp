// Tests the sentences for refused hosts, URLs and e-mail addresses.

#include <gtest/gtest.h>

#include "tests/rules/told.h"

namespace ostrel::rules {

namespace {

TEST(HostsTest, Names)
{
    const auto said = [](const std::string& value) { return told("TcmValidateDomainName", {value}); };
    EXPECT_EQ("accepted", said("a.b.c.d.e.abcdefghij0123456789"));
    EXPECT_EQ("is empty", said(""));
    EXPECT_EQ("byte 3 is \"_\"; letters, digits and - . are allowed", said("my_host"));
    EXPECT_EQ("contains only digits and dots; a letter or \"-\" is needed", said("192.168.1.1"));
    EXPECT_EQ("has 7 labels; at most 6 are allowed", said("a.b.c.d.e.f.g"));
    EXPECT_EQ("label 2 is empty", said("a..b"));
    EXPECT_EQ("label 3 is empty", said("a.lan."));
    EXPECT_EQ("label 1 is empty", said(".a"));
    EXPECT_EQ("label 2 has 21 bytes; at most 20 are allowed", said("a.abcdefghij0123456789x"));
}

// A host is treated as an address if it cannot be a name.
TEST(HostsTest, NamesOrAddresses)
{
    const auto said = [](const std::string& value) { return told("ValidateURL", {value}); };
    EXPECT_EQ("accepted", said("192.168.1.1"));
    EXPECT_EQ("accepted", said("1.2.3.a"));
    EXPECT_EQ("is empty", said(""));
    EXPECT_EQ("the IPv4 address has 3 parts; 4 are needed", said("1.2.3"));
    EXPECT_EQ("the IPv4 address has 1 part; 4 are needed", said("7"));
    EXPECT_EQ("the IPv4 address has 6 bytes; at least 7 are needed", said("1.2.3."));
    EXPECT_EQ("the IPv4 address has 17 bytes; at most 15 are allowed", said("1.2.0003.00000004"));
    EXPECT_EQ("octet 3 is 256; at most 255 is allowed", said("1.2.256.4"));
    EXPECT_EQ("byte 10 is \"_\"; letters, digits and - . are allowed", said("1.2.256.x_"));
    EXPECT_EQ("is empty", told("TcmValidateIPAddress", {""}));
    EXPECT_EQ("byte 1 is \"a\"; digits and . are allowed", told("TcmValidateIPAddress", {"a.lan"}));
}

TEST(HostsTest, Urls)
{
    const auto said = [](const std::string& value) { return told("TcmValidatefirmwareURL", {value}); };
    EXPECT_EQ("accepted", said("https://a.lan:80/a:b"));
    EXPECT_EQ("accepted", said("http://a.lan:/"));
    EXPECT_EQ("has 257 bytes; at most 256 are allowed", said("http://" + std::string(250, 'a')));
    EXPECT_EQ("in the host, byte 9 is \"@\"; letters, digits and - . are allowed", said("http://u@a"));
    EXPECT_EQ("byte 10 is \"@\"; letters, digits and - . / : ? _ are allowed", said("http://a/@"));
    EXPECT_EQ("does not begin with any of http://, https://", said("ftp://a.lan"));
    EXPECT_EQ("does not begin with any of x-dslf_cwmp://, x-dslf_cwmps://",
              told("TcmValidateServerURL", {"http://a.lan"}));
    EXPECT_EQ("the host is empty", said("http:///x"));
    EXPECT_EQ("the host is empty", said("http://:80"));
    EXPECT_EQ("in the host, byte 9 is \"?\"; letters, digits and - . are allowed", said("http://a?b"));
    EXPECT_EQ("the host has 7 labels; at most 6 are allowed", said("http://a.b.c.d.e.f.g:1"));
    EXPECT_EQ("the IPv4 address has 3 parts; 4 are needed", said("http://1.2.3/"));
    EXPECT_EQ("has a \":\" in the path that begins at byte 13; this is allowed only after a port",
              said("http://a.lan/b:80"));
    EXPECT_EQ("in the port, byte 11 is \"x\"; digits are allowed", said("http://a:8x"));
    EXPECT_EQ("the port is 65536; at most 65535 is allowed", said("http://a:65536/"));
    EXPECT_EQ(
        "the port contains the number 4294967295, which does not fit in an int; this gateway reads it as -1; "
        "at "
        "least 0 is needed",
        said("http://a:4294967295/"));
}

TEST(HostsTest, WhereTheHostIs)
{
    const Answer answer = answer_of("TcmValidatefirmwareURL", {"http://a.b_c:80/"});
    EXPECT_EQ(600, answer.code);
    EXPECT_EQ("not_in_set", answer.reason.id);
    EXPECT_EQ("the host", answer.reason.part);
    EXPECT_EQ(10, answer.reason.offset);
}

TEST(HostsTest, MailAddresses)
{
    const auto said = [](const std::string& value) { return told("isEmail", {value}); };
    EXPECT_EQ("accepted", said("a@@.b"));
    EXPECT_EQ("accepted", said("a@.b.c"));
    EXPECT_EQ("has 4 bytes; at least 5 are needed", said("a@b."));
    EXPECT_EQ("does not contain \"@\"", said("abc.d"));
    EXPECT_EQ("the part before the \"@\" is empty", said("@a@b.c"));
    EXPECT_EQ("the part after the first \"@\" does not contain \".\"", said("a.b@c"));
    EXPECT_EQ("the part between the first \"@\" and the last \".\" is empty", said("ab@.c"));
    EXPECT_EQ("the part after the last \".\" is empty", said("a@b.c."));
    EXPECT_EQ("the part after the first \"@\" does not contain \".\"",
              told("TcmValidateEmailAddress", {"a.b@c"}));
}

// The sentence lists the bytes that a host may contain, although the first set also includes "_" and ":".
TEST(HostsTest, OfTelephony)
{
    const char* const registrar = "TcmValidateVoIPRegistrar";
    EXPECT_EQ("has 2 bytes; at least 3 are needed", told(registrar, {"ab"}));
    EXPECT_EQ("byte 2 is \"@\"; letters, digits and - . are allowed", told(registrar, {"s@p"}));
    EXPECT_EQ(803, answer_of(registrar, {"s@p"}).code);
    EXPECT_EQ("byte 2 is \"_\"; letters, digits and - . are allowed", told(registrar, {"s_p"}));
    EXPECT_EQ(600, answer_of(registrar, {"s_p"}).code);
    EXPECT_EQ("byte 2 is \"_\"; letters, digits and - . are allowed", told(registrar, {"s_p@"}));
    EXPECT_EQ(803, answer_of(registrar, {"s_p@"}).code);
    const char* const server = "TcmValidateVoIPSTUNServer";
    EXPECT_EQ("accepted", told(server, {""}));
    EXPECT_EQ("byte 6 is \":\"; letters, digits and - . are allowed", told(server, {"a.lan:3478"}));
    EXPECT_EQ("byte 1 is a space; letters, digits and - . are allowed", told(server, {" "}));
}

}  // namespace

}  // namespace ostrel::rules
