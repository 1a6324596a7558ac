// Compares the constraints of each argument with the values that the library accepts.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <map>

#include "oracle/library.h"
#include "rules/rules.h"
#include "tests/rules/experiment.h"

namespace ostrel::tests {

using calling::Capture;
using rules::Check;
using rules::Constraints;
using rules::NullOutcome;
using rules::Set;

namespace {

class OfEachCheck : public testing::TestWithParam<const Check*> {
 protected:
    static const Check& check() { return *GetParam(); }
    static Experiment experiment() { return {*catalogue::find(check().name), check()}; }
};

TEST_P(OfEachCheck, AcceptedValuesObey)
{
    const char* given = std::getenv("OSTREL_TEST_RUNS");
    Experiment tried = experiment();
    {
        Capture capture;
        tried.change(given == nullptr ? 500 : std::strtoul(given, nullptr, 10), capture);
    }
    EXPECT_EQ(tried.difference, "");
}

TEST_P(OfEachCheck, ObeyingValuesAreAccepted)
{
    for (std::size_t i = 0; i < check().arguments.size(); ++i) {
        Experiment tried = experiment();
        const Constraints* said = tried.constraints(i);
        if (said == nullptr) continue;
        {
            Capture capture;
            tried.vary(i, capture);
        }
        EXPECT_EQ(tried.difference, "");
        if (said->is_sufficient) {
            EXPECT_GT(tried.accepted, 1) << "no value that obeys was tried";
        }
    }
}

TEST_P(OfEachCheck, NullDoesWhatIsSaid)
{
    for (std::size_t i = 0; i < check().arguments.size(); ++i) {
        Experiment tried = experiment();
        const Constraints* constraints = tried.constraints(i);
        if (constraints == nullptr || !constraints->null) continue;
        const NullOutcome said = *constraints->null;
        std::set<NullOutcome> outcomes;
        {
            Capture capture;
            outcomes = tried.pass_null(i, capture);
        }
        if (said == NullOutcome::kDepends) continue;
        EXPECT_EQ(outcomes, std::set<NullOutcome>{said}) << check().arguments[i].name;
    }
}

std::vector<const Check*> described_checks()
{
    std::vector<const Check*> result;
    for (const Check& check : rules::checks()) result.push_back(&check);
    return result;
}

INSTANTIATE_TEST_SUITE_P(Rules, OfEachCheck, testing::ValuesIn(described_checks()),
                         [](const auto& tested) { return std::string(tested.param->name); });

Constraints constraints_of(const char* name, std::size_t argument = 0)
{
    return rules::constraints_of(*rules::find(name), argument, oracle::library_build());
}

bool is_exact(const Constraints& constraints)
{
    return constraints.is_necessary && constraints.is_sufficient;
}

TEST(ConstraintsTest, NumberIsReadAsAtoiReadsIt)
{
    const Constraints port = constraints_of("PARAM_check_port");
    EXPECT_TRUE(is_exact(port));
    EXPECT_EQ(port.form.minimum, 0);
    EXPECT_EQ(port.form.maximum, 65535);
    EXPECT_FALSE(port.form.min_length) << "the empty text is 0";
    EXPECT_EQ(port.null, NullOutcome::kAssertion);
    Obedience obedience;
    for (const char* text : {"", "x", " \t80", "+80x", "-0", "65535.5", "000000065535"})
        EXPECT_EQ(obedience.fault(port.form, text), "") << text;
    for (const char* text : {"65536", "-1", " -1", "+65536"})
        EXPECT_NE(obedience.fault(port.form, text), "") << text;
    ASSERT_EQ(port.form.recommended.size(), 1);
    for (const char* text : {"0", "80", "65535"})
        EXPECT_EQ(obedience.fault(port.form.recommended.front(), text), "") << text;
    for (const char* text : {"", "x", " 80", "080", "+80", "80x"})
        EXPECT_NE(obedience.fault(port.form.recommended.front(), text), "") << text;
}

TEST(ConstraintsTest, WhatIsNotNecessaryIsNotSaid)
{
    EXPECT_FALSE(rules::has_constraints(*rules::find("WLAN_check_wepkeys"), 0)) << "four texts";
    const Constraints key = constraints_of("WLAN_check_keys");
    EXPECT_FALSE(key.is_necessary) << "with RADIUS a key is not looked at, and an empty WEP key passes";
    EXPECT_FALSE(key.is_sufficient);
    EXPECT_EQ(key.depends_on, (std::vector<std::size_t>{1, 2}));
    const Constraints type = constraints_of("WLAN_check_keys", 1);
    EXPECT_TRUE(type.is_necessary);
    EXPECT_EQ(type.form.keywords.value_or(std::vector<std::string>()).size(), 9);
    EXPECT_FALSE(type.is_sufficient);
}

TEST(ConstraintsTest, LimitsOfOtherArguments)
{
    const Constraints value = constraints_of("PARAM_check_password");
    EXPECT_TRUE(is_exact(value));
    EXPECT_TRUE(value.is_secret);
    ASSERT_EQ(value.limits.size(), 2);
    EXPECT_EQ(value.limits[0], (rules::Limit{rules::Limit::Kind::kMinLength, 1}));
    EXPECT_EQ(value.limits[1], (rules::Limit{rules::Limit::Kind::kMaxLength, 2}));
    EXPECT_EQ(value.form.characters, Set::range('0', '9') | Set::range('A', 'Z') | Set::range('a', 'z'));
}

TEST(ConstraintsTest, ListsAndShapes)
{
    const Constraints address = constraints_of("TcmValidateIPAddress");
    EXPECT_TRUE(is_exact(address));
    EXPECT_EQ(address.form.separator, '.');
    EXPECT_EQ(address.form.min_items, 4);
    EXPECT_EQ(address.form.max_items, 4);
    EXPECT_EQ(address.form.item.front().maximum, 255);
    const Constraints servers = constraints_of("TcmValidateofferDNS");
    EXPECT_TRUE(is_exact(servers));
    EXPECT_EQ(servers.form.trimmed, Set(" "));
    EXPECT_EQ(servers.form.max_items, 2);
    EXPECT_EQ(servers.form.item.front().separator, '.');
    EXPECT_EQ(constraints_of("TcmValidateMACaddress").form.shapes.size(), 1);
}

TEST(ConstraintsTest, KeywordsInAnyCaseAreOfferedAsTheyAreWritten)
{
    const Constraints protocol = constraints_of("PARAM_check_transport_protocol");
    EXPECT_TRUE(is_exact(protocol));
    EXPECT_TRUE(protocol.form.ignores_case);
    EXPECT_EQ(protocol.form.keywords, (std::vector<std::string>{"TCP", "UDP"}));
    EXPECT_FALSE(protocol.form.recommended.front().ignores_case);
}

// Prints which arguments have exact constraints, only necessary ones, or none.
TEST(ConstraintsTest, HowMuchIsSaid)
{
    std::map<std::string, std::string> names;
    for (const Check& check : rules::checks()) {
        for (std::size_t i = 0; i < check.arguments.size(); ++i) {
            if (!rules::has_constraints(check, i)) continue;
            const Constraints one = rules::constraints_of(check, i, oracle::library_build());
            names[is_exact(one)      ? "exact"
                  : one.is_necessary ? "necessary"
                                     : "neither"]
                .append(" ")
                .append(check.name)
                .append(".")
                .append(check.arguments[i].name);
        }
    }
    for (const auto& [how, which] : names) std::printf("%s:%s\n", how.c_str(), which.c_str());
    EXPECT_GE(std::ranges::count(names["exact"], ' '), 130);
}

}  // namespace

}  // namespace ostrel::tests
