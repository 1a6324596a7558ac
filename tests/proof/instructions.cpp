// Calls every function with long values of several shapes and sizes under callgrind, which counts the
// instructions and writes each count to its output file under the name
//
//   FUNCTION SHAPE ARGUMENT ITEMS BYTES
//
// ARGUMENT is the index of the long argument, from 0, or "all". If the value is a list in which the contract
// requires a search for each item, ITEMS is the number of items; otherwise, it is 0. instructions_test.py
// checks the growth.
//
// usage: instructions together|each BYTES...
//
// The sizes must be in ascending order. Writing a count takes longer than a call, so "together" counts
// several shapes of a function as one. If the count for one shape grows too fast, it soon dominates the sum.

#include <valgrind/callgrind.h>

#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

#include "tests/support/hostile.h"

namespace {

using namespace ostrel::calling;
using namespace ostrel::catalogue;
using namespace ostrel::tests;

// kParts are repeated to build long values: single characters of every set and of none, items of every kind
// of list, and fragments of the strings that the rules search for. The first ones differ the most.
constexpr std::string_view kParts[] = {
    "a",      "0",    ",",       "192.168.1.1,",
    ".",      "\xff", "1.",      "&#65;",
    " ",      ":",    "a@a.",    "00:11:22:33:44:55,",
    "1",      "F",    "-",       "@",
    "/",      "#",    "1,",      "5.5,",
    "a.",     "aa:",  " ,",      "192.168.1.1,192.168.1.22,",
    "&amp;",  "&#",   "http://", "2010-01-01T",
    "-01:00", "%s",
};
constexpr std::size_t kFewParts = 8;

struct LongCase {
    std::string_view function;
    std::string_view shape;
    std::vector<Value> (*make)(std::size_t size);
    bool searches_for_each_item = false;
};

std::string list_of_distinct_items(std::size_t size)
{
    std::string list;
    for (int i = 10'000; list.size() < size; ++i) list += std::to_string(i) + ',';
    return list;
}

// kCases are long values that pass all conditions that precede the one that reads the whole value.
constexpr LongCase kCases[] = {
    {"TcmValidateReservedAddress", "accepted",
     [](std::size_t size) -> std::vector<Value> {
         return {repeated("192.168.1.5,192.168.1.66,", size) + " ", "192.168.1.1"};
     }},
    {"LAN_check_dhcp_reserved_addr", "accepted",
     [](std::size_t size) -> std::vector<Value> {
         return {repeated("192.168.1.5,192.168.1.66,", size) + " ", "192.168.1.1"};
     }},
    {"TcmValidateReservedAddress", "long-items",
     [](std::size_t size) -> std::vector<Value> {
         const std::string same(size / 4 - 2, 'a');
         return {same + "b," + same + "c," + same + same + "d,d", "nodot"};
     }},
    {"TcmValidateReservedAddress", "equal-neighbours",
     [](std::size_t size) -> std::vector<Value> {
         return {list_of_distinct_items(size), "nodot"};
     },
     true},
    {"TcmValidateReservedAddress", "alike-items",
     [](std::size_t size) -> std::vector<Value> {
         const std::string half(size / 8, 'a');
         return {half + "b" + half + "," + half + "c" + half + "," + half + half + half + half + ",d",
                 "nodot"};
     },
     true},
    {"LAN_check_dhcp_reserved_addr", "equal-neighbours",
     [](std::size_t size) -> std::vector<Value> {
         return {list_of_distinct_items(size), "nodot"};
     },
     true},
    {"LAN_check_add_allowedMACAddress", "nearly-in-the-list",
     [](std::size_t size) -> std::vector<Value> {
         return {std::string(size / 2, 'a') + "b", std::string(size, 'a')};
     }},
    {"LAN_check_add_allowedMACAddress", "often-nearly-in-the-list",
     [](std::size_t size) -> std::vector<Value> {
         return {std::string(16, 'a') + "b", std::string(size, 'a')};
     }},
    {"LAN_check_delete_dns_server", "long-first",
     [](std::size_t size) -> std::vector<Value> {
         return {"1.2.3.4", std::string(size, '1') + ",1.2.3.5"};
     }},
    {"LAN_check_delete_dns_server", "long-second",
     [](std::size_t size) -> std::vector<Value> {
         return {"1.2.3.4", "1.2.3.4," + std::string(size, '1')};
     }},
    {"LAN_check_add_dns_servers", "two-and-two",
     [](std::size_t size) -> std::vector<Value> {
         const std::string half(size / 2, '1');
         return {half + "a," + half + "b", half + "c," + half + "d"};
     }},
    {"PARAM_check_string_prefix", "last-of-many",
     [](std::size_t size) -> std::vector<Value> {
         return {"b", std::string(size, 'a') + "b"};
     }},
    {"ValidateString", "accepted-of-many",
     [](std::size_t size) -> std::vector<Value> {
         return {0LL, 0x7FFFFFFFLL, std::string(size, 'a') + "b", std::string(size, 'b')};
     }},
    {"ValidateNum", "accepted-of-many",
     [](std::size_t size) -> std::vector<Value> {
         return {0LL, 0x7FFFFFFFLL, "01", std::string(size, '0') + "1"};
     }},
    {"TcmValidateDataTransmitRates", "accepted",
     [](std::size_t size) -> std::vector<Value> { return {repeated("54,5.5,", size) + "48"}; }},
    {"WLAN_check_basic_data_transmit_rate", "accepted",
     [](std::size_t size) -> std::vector<Value> { return {repeated("54,5.5,", size) + "48"}; }},
    {"isEmail", "accepted",
     [](std::size_t size) -> std::vector<Value> { return {"a@" + std::string(size, 'a') + ".b"}; }},
    {"WLAN_check_keys", "psk",
     [](std::size_t size) -> std::vector<Value> {
         return {std::string(size, '0'), "WPA2-PSK", "AES"};
     }},
    {"WLAN_check_keys", "radius",
     [](std::size_t size) -> std::vector<Value> {
         return {std::string(size, '0'), "WPA2-RADIUS", "AES"};
     }},
    {"WLAN_check_keys", "wep",
     [](std::size_t size) -> std::vector<Value> {
         return {std::string(size, '0'), "WEP-OPEN", "WEP-64"};
     }},
    {"WLAN_check_HNAP_SecurityType", "encryption",
     [](std::size_t size) -> std::vector<Value> {
         return {"1", "1", "WPA2-PSK", std::string(size, 'A')};
     }},
    {"WLAN_check_HNAP_KeyRenewal", "interval",
     [](std::size_t size) -> std::vector<Value> {
         return {"true", std::string(size, '7'), "WPA2-PSK"};
     }},
    {"WLAN_check_channel", "5-GHz",
     [](std::size_t size) -> std::vector<Value> {
         return {std::string(size, '0') + "36", "RADIO_5GHz"};
     }},
    {"WLAN_check_ssid", "references",
     [](std::size_t size) -> std::vector<Value> { return {repeated("&yuml;&nothing&#255;&", size)}; }},
    {"HNAPCORE_check_timezone", "accepted",
     [](std::size_t size) -> std::vector<Value> { return {"UTC" + std::string(size, '7')}; }},
    {"TcmValidateAddressRange", "lan",
     [](std::size_t
            size) -> std::
                      vector<Value> {
                          return {"192.168.1.2", "192.168.1.9", "192.168.1." + std::string(size, '1')};
                      }},
    {"MGTSERVER_check_server_url", "host",
     [](std::size_t size) -> std::vector<Value> { return {"x-dslf_cwmp://" + std::string(size, 'a')}; }},
    {"TcmValidatePPPUsername", "account",
     [](std::size_t size)
         -> std::vector<Value> { return {"1234567890123#" + std::string(size, '4') + "@example.net"}; }},
};

// long_text returns the repeated part. Strings are cached because building one takes longer than most calls.
const std::string& long_text(std::size_t part, std::size_t size)
{
    static std::string texts[std::size(kParts)];
    std::string& text = texts[part];
    if (text.size() < size) text = repeated(kParts[part], size);
    return text;
}

// add runs the call while callgrind counts its instructions.
void add(const Function& function, const std::vector<Value>& values)
{
    static Caller caller;
    if (never_returns(function, values)) return;
    caller.load(function, values);
    CALLGRIND_TOGGLE_COLLECT;
    caller.call();
    CALLGRIND_TOGGLE_COLLECT;
}

void write_down(const std::string& name)
{
    CALLGRIND_DUMP_STATS_AT(name.c_str());
    CALLGRIND_ZERO_STATS;
}

void count_case(const LongCase& one, std::size_t size, bool each)
{
    if (one.searches_for_each_item) {
        // The time for these cases grows quadratically with the length of the list.
        size /= 10;
        const std::size_t longest = each ? 10'000 : 1'000;
        if (size > longest) return;
    }
    const std::vector<Value> values = one.make(size);
    std::size_t items = 0;
    if (one.searches_for_each_item) {
        for (const char c : std::get<std::string>(values[0])) items += c == ',' ? 1 : 0;
    }
    add(*find(one.function), values);
    write_down(std::string(one.function) + ' ' + std::string(one.shape) + " all " + std::to_string(items) +
               ' ' + std::to_string(size));
}

// count_argument passes long values for the given argument or, if it is one past the last, for all texts.
void count_argument(const Function& function, std::size_t argument, std::size_t size, bool each)
{
    const bool all = argument == function.arguments.size();
    const auto name = [&](const std::string& shape) {
        return std::string(function.name) + ' ' + shape + ' ' + (all ? "all" : std::to_string(argument)) +
               " 0 " + std::to_string(size);
    };
    for (std::size_t shape = 0; shape < (each ? std::size(kParts) : kFewParts); ++shape) {
        const std::string& text = long_text(shape, size);
        std::vector<Value> values = widest(function);
        for (std::size_t i = 0; i < values.size(); ++i) {
            if (is_text(function.arguments[i]) && (all || i == argument)) values[i] = text;
        }
        add(function, values);
        if (each) write_down(name("part-" + std::to_string(shape)));
    }
    if (!each) write_down(name("parts"));
}

void count_function(const Function& function, std::size_t size, bool each)
{
    std::size_t texts = 0;
    for (std::size_t i = 0; i < function.arguments.size(); ++i) {
        if (!is_text(function.arguments[i])) continue;
        ++texts;
        count_argument(function, i, size, each);
    }
    if (texts > 1) count_argument(function, function.arguments.size(), size, each);
}

}  // namespace

int main(int argc, char** argv)
{
    const bool devoured = std::freopen("/dev/null", "w", stdout) != nullptr &&
                          std::freopen("/dev/null", "w", stderr) != nullptr;
    if (!devoured || argc < 3) return 2;
    const bool each = std::string_view(argv[1]) == "each";
    for (int i = 2; i < argc; ++i) {
        const std::size_t size = std::stoul(argv[i]);
        for (const LongCase& one : kCases) count_case(one, size, each);
        for (const Function& function : functions()) count_function(function, size, each);
    }
}
