// The catalogue against the vectors: codes, conditions, what is printed and what is written.

#include "catalogue/catalogue.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <string>

#include "catalogue/caller.h"
#include "catalogue/capture.h"
#include "catalogue/conditions.h"
#include "catalogue/rows.h"

namespace ostrel::catalogue {

namespace {

// is_beyond_vectors tells the one code that no text brings about; the test LeaseTime does.
bool is_beyond_vectors(const Function& function, int code)
{
    return function.name == "LAN_check_dhcp_lease_time" && code == -1;
}

// needs_more_than_text tells conditions that depend on the driver, the model, or how atoi overflows.
bool needs_more_than_text(const Code& code)
{
    return std::ranges::any_of(
        std::array{"driver", "2.4 GHz", "model M2840", "overflows"},
        [&](const char* mark) { return code.condition.find(mark) != std::string_view::npos; });
}

class Entry : public testing::TestWithParam<const Function*> {
 protected:
    const Function& function_ = *GetParam();
    const std::vector<Row> rows_ = rows_of(function_);
};

TEST_P(Entry, ListsTheCodesThatVectorsReach)
{
    ASSERT_FALSE(rows_.empty());
    if (!function_.is_verdict) return;
    std::set<int> reached;
    std::set<int> listed = {0};
    for (const Row& row : rows_) reached.insert(row.code);
    for (const Code& code : function_.codes) {
        if (!is_beyond_vectors(function_, code.code)) listed.insert(code.code);
    }
    EXPECT_EQ(listed, reached);
}

TEST_P(Entry, NamesTheConditionOfEachRefusal)
{
    std::set<const Code*> met;
    std::map<int, int> conditions;
    for (const Code& code : function_.codes) ++conditions[code.code];
    for (const Code& code : function_.codes) {
        EXPECT_TRUE(code.test || conditions[code.code] == 1) << code.condition;
        EXPECT_FALSE(code.condition.empty());
    }
    if (!function_.is_verdict) return;
    for (const Row& row : rows_) {
        if (row.code == 0) continue;
        std::vector<Value> values = row.values;
        if (function_.arguments[0].kind == Kind::kBuffer && !row.after.empty()) values[0] = row.after[0];
        const Finding finding = condition_of(function_, values, row.code);
        ASSERT_NE(nullptr, finding.condition) << row.code << " " << row.out << text_of(values, 0);
        met.insert(finding.condition);
    }
    for (const Code& code : function_.codes) {
        if (is_beyond_vectors(function_, code.code)) continue;
        if (needs_more_than_text(code)) continue;
        EXPECT_TRUE(met.contains(&code)) << code.code << " " << code.condition;
    }
}

TEST_P(Entry, SaysWhatEachArgumentIsAndWhatIsWritten)
{
    std::set<std::size_t> changed;
    for (const Row& row : rows_) {
        std::size_t output = 0;
        for (std::size_t i = 0; i < function_.arguments.size(); ++i) {
            const Argument& argument = function_.arguments[i];
            const bool is_written = argument.kind == Kind::kBuffer || argument.kind == Kind::kBlocks ||
                                    argument.kind == Kind::kIntegerOut;
            if (!is_written) continue;
            if (output < row.after.size() && (i >= row.values.size() || row.after[output] != row.values[i])) {
                changed.insert(i);
            }
            ++output;
        }
    }
    for (std::size_t i = 0; i < function_.arguments.size(); ++i) {
        const Argument& argument = function_.arguments[i];
        EXPECT_FALSE(argument.what.empty()) << argument.name;
        EXPECT_EQ(changed.contains(i), !argument.written.empty()) << argument.name;
    }
}

TEST_P(Entry, PrintsMessagesOfTheLibraryAlone)
{
    const std::vector<std::string> unexplained = unexplained_of(function_, rows_);
    EXPECT_TRUE(unexplained.empty()) << unexplained.front();
}

TEST_P(Entry, KeywordsAreThoseOfTheCheck)
{
    for (std::size_t i = 0; i < function_.arguments.size(); ++i) {
        for (const std::string_view keyword : function_.arguments[i].keywords) {
            if (function_.arguments.size() == 1 && function_.is_verdict) {
                const Capture capture;
                Caller caller;
                caller.load(function_, {std::string(keyword)});
                EXPECT_EQ(0, caller.call()) << keyword;
            } else {
                const auto holds = [&](const Row& row) { return text_of(row.values, i) == keyword; };
                EXPECT_TRUE(std::ranges::any_of(rows_, holds)) << keyword;
            }
        }
    }
}

std::vector<const Function*> entries()
{
    std::vector<const Function*> all;
    for (const Function& function : functions()) all.push_back(&function);
    return all;
}

INSTANTIATE_TEST_SUITE_P(Catalogue, Entry, testing::ValuesIn(entries()),
                         [](const auto& instance) { return std::string(instance.param->name); });

// A rule that finds a fault in an accepted value would find others where there are none.
TEST(Faults, AreFoundInRefusedValuesAlone)
{
    const std::map<std::string_view, Fault (*)(std::string_view)> rules = {
        {"TcmValidateIPAddress", ipv4_fault},
        {"TcmValidateMACaddress", mac_fault},
        {"isValidOrdinaryMACAddress", station_fault},
        {"TcmValidateDomainName", domain_fault},
        {"ValidateURL", host_fault},
        {"TcmValidateServerURL", server_url_fault},
        {"TcmValidatefirmwareURL", firmware_url_fault},
        {"isEmail", email_fault},
        {"TcmValidateProvisioningCode", provisioning_fault},
        {"TcmValidateTime", date_time_fault},
        {"TcmValidateDaylightSavingsTime", switch_over_fault},
        {"TcmValidateTimeZoneFormate", zone_offset_fault},
        {"TcmValidateDataTransmitRates", rates_fault},
        {"TcmValidateIPRouter", router_fault},
        {"TcmValidateofferDNS", offered_dns_fault},
        {"WLAN_check_regulatory_domain", regulatory_fault},
    };
    for (const auto& [name, rule] : rules) {
        for (const Row& row : rows_of(*find(name))) {
            if (std::holds_alternative<std::nullptr_t>(row.values[0])) continue;
            const Fault fault = rule(text_of(row.values, 0));
            EXPECT_EQ(row.code != 0, fault.has_value())
                << name << " " << text_of(row.values, 0) << fault.value_or("");
        }
    }
    const std::map<std::string_view, catalogue::Test> tests = {
        {"TcmValidateAddressRange", range_fault()},
        {"isInSameSubnet", subnet_fault()},
    };
    for (const auto& [name, test] : tests) {
        for (const Row& row : rows_of(*find(name))) {
            EXPECT_EQ(row.code != 0, test(row.values).has_value()) << name << " " << text_of(row.values, 0);
        }
    }
    for (const Row& row : rows_of(*find("TcmValidateReservedAddress"))) {
        if (row.code != 0) continue;
        EXPECT_FALSE(reserved_subnet_fault()(row.values));
        EXPECT_FALSE(reserved_repeat_fault()(row.values));
    }
}

}  // namespace

}  // namespace ostrel::catalogue
