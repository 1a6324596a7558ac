// Passes NULL for each pointer of each function. Exactly the listed checks must fail an assertion, and they
// must print nothing else. All other checks return, or end with a memory fault.

#include <gtest/gtest.h>

#include <csignal>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "tests/support/child.h"
#include "tests/support/hostile.h"

namespace ostrel::tests {

using calling::Caller;
using catalogue::Function;
using catalogue::Kind;
using catalogue::Value;

namespace {

constexpr char kUsual[] = "value_p != ((void *)0)";
constexpr int kAnyLine = 0;

struct Asserting {
    std::string_view function;
    std::string module;
    std::string reporting;  // the function that the report names
    int line = kAnyLine;
    std::string condition = kUsual;
};

// own returns a check that reports its own name and a line that no other check reports.
Asserting own(std::string_view function, const char* module)
{
    return {function, module, std::string(function)};
}

std::vector<Asserting> asserting_checks()
{
    std::vector<Asserting> all = {
        {"Param_check_string_len", "parameter_check", "Param_check_string_len", kAnyLine,
         "((void *)0) != value_p"},
        {"WLAN_check_wepkeys", "wlan_check", "WLAN_check_wepkeys", 500, "value != ((void *)0)"},
        {"MGTSERVER_check_server_url", "mgtserver_check", "MGTSERVER_check_server_url", 41},
        {"MGTSERVER_check_firmware_url", "mgtserver_check", "MGTSERVER_check_firmware_url", 75},
        {"MGTSERVER_check_server_password", "mgtserver_check", "MGTSERVER_check_server_password", 105},
        {"MGTSERVER_check_conn_request_username", "mgtserver_check", "MGTSERVER_check_server_password", 105},
        {"MGTSERVER_check_conn_request_password", "mgtserver_check", "MGTSERVER_check_server_password", 105},
        {"MGTSERVER_check_periodic_inform", "mgtserver_check", "MGTSERVER_check_periodic_inform", 135},
        {"MGTSERVER_check_periodic_inform_time", "mgtserver_check", "MGTSERVER_check_periodic_inform_time",
         210},
        {"MGTSERVER_check_periodic_inform_interval", "mgtserver_check",
         "MGTSERVER_check_periodic_inform_interval", 240},
        {"PORTMAPPING_check_port_available", "port_mapping_check", "is_port_reserved"},
        {"PORTMAPPING_check_port_available", "port_mapping_check", "is_wan_udp_port_available"},
    };
    for (const std::string_view name :
         {"PARAM_check_port", "PARAM_check_hexa_string", "PARAM_check_ui2_value", "PARAM_check_ui4_value",
          "PARAM_check_bool_value", "PARAM_check_bool_value_use_str", "PARAM_check_string_prefix"}) {
        all.push_back(own(name, "parameter_check"));
    }
    for (const std::string_view name :
         {"LAN_check_ipinterface_enabled", "LAN_check_ip_router", "LAN_check_interface_subnet_mask",
          "LAN_check_interface_addr_type", "LAN_check_domain_name", "LAN_check_dns_servers",
          "LAN_check_config_password", "LAN_check_dhcp_lease_time", "LAN_check_use_allocated_wan",
          "LAN_check_associated_connection", "LAN_check_passthrough_lease", "LAN_check_subnet_mask",
          "LAN_check_cis_dev_name"}) {
        all.push_back(own(name, "lan_check"));
    }
    return all;
}

// Reports are failure messages without the program's name, and with "*" for a line number that is not fixed.
using Reports = std::multiset<std::string>;

// Places maps a module and a line to the functions that the reports name.
using Places = std::map<std::string, std::set<std::string>>;

Reports promised()
{
    Reports reports;
    for (const Asserting& one : asserting_checks()) {
        reports.insert(std::string(one.function) + " says " + one.module + ":" +
                       (one.line == kAnyLine ? "*" : std::to_string(one.line)) + ": " + one.reporting +
                       ": Assertion `" + one.condition + "' failed.\n");
    }
    return reports;
}

// asserted calls the function and returns the report of the failed assertion, or an empty string.
std::string asserted(const Function& function, const std::vector<Value>& values, Places& places)
{
    const ChildEnd end = run_in_child(std::chrono::seconds(60), [&] {
        Caller caller;
        caller.load(function, values);
        caller.call();
        return 0;
    });
    EXPECT_FALSE(end.timed_out) << function.name;
    // A sanitizer that detects a memory fault may also end the process with SIGABRT.
    static const std::regex form(": ([a-z_]+):([0-9]+): ((.*): Assertion `.*\n)$");
    std::smatch parts;
    if (end.signal != SIGABRT || !std::regex_search(end.err, parts, form)) return "";
    EXPECT_EQ("", end.out) << function.name;
    places[parts[1].str() + ":" + parts[2].str()].insert(parts[4]);
    const bool fixed = parts[1] == "mgtserver_check" || parts[1] == "wlan_check";
    return parts[1].str() + ":" + (fixed ? parts[2].str() : "*") + ": " + parts[3].str();
}

// numbers_of returns the numbers to try, since some checks test the protocol before they read the value.
std::vector<long long> numbers_of(const Function& function)
{
    for (const catalogue::Argument& argument : function.arguments) {
        if (argument.kind == Kind::kInteger || argument.kind == Kind::kUnsigned) return {0, 1, 2};
    }
    return {0};
}

void add_reports(const Function& function, Reports& reports, Places& places)
{
    std::set<std::string> seen;
    for (std::size_t i = 0; i < function.arguments.size(); ++i) {
        const Kind kind = function.arguments[i].kind;
        if (kind == Kind::kInteger || kind == Kind::kUnsigned) continue;
        for (const long long number : numbers_of(function)) {
            std::vector<Value> values;
            values.reserve(function.arguments.size());
            for (const catalogue::Argument& argument : function.arguments) {
                values.push_back(neutral(argument, number));
            }
            values[i] = nullptr;
            seen.insert(asserted(function, values, places));
        }
    }
    for (const std::string& report : seen) {
        if (!report.empty()) reports.insert(std::string(function.name) + " says " + report);
    }
}

TEST(Assertions, ExactlyTheseChecksAssertAndSaySo)
{
#if !defined(__GLIBC__) || defined(__UCLIBC__)
    GTEST_SKIP() << "the report has another form";
#endif
    Reports reports;
    Places places;
    for (const Function& function : catalogue::functions()) add_reports(function, reports, places);
    EXPECT_EQ(promised(), reports);
    for (const auto& [place, functions] : places) {
        EXPECT_EQ(1, functions.size()) << place << " is reported by " << testing::PrintToString(functions);
    }
}

}  // namespace

}  // namespace ostrel::tests
