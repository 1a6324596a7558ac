// Faults of subnets, lists, user names and key blocks: rules in which several texts take part.

#include <ostrel/character_sets.h>
#include <ostrel/result_code.h>

#include <algorithm>
#include <cstdlib>

#include "catalogue/conditions.h"

namespace ostrel::catalogue {

namespace {

std::string_view subnet_of(std::string_view address)
{
    const std::size_t dot = address.rfind('.');
    return dot == std::string_view::npos ? std::string_view() : address.substr(0, dot + 1);
}

int host_number(std::string_view address)
{
    return std::atoi(std::string(address.substr(subnet_of(address).size())).c_str());
}

std::string_view trim(std::string_view text)
{
    while (text.starts_with(' ')) text.remove_prefix(1);
    while (text.ends_with(' ')) text.remove_suffix(1);
    return text;
}

// Item is one item of a list with what follows it.
struct Item {
    std::size_t number;
    std::string_view text;
    std::string_view rest;
    bool is_last;
};

// find_item gives the first item that the predicate holds for.
template <typename Predicate>
std::optional<Item> find_item(std::string_view list, Predicate predicate)
{
    for (std::size_t number = 1;; ++number) {
        const std::size_t comma = list.find(',');
        Item item{number, trim(list.substr(0, comma)), {}, comma == std::string_view::npos};
        if (!item.is_last) {
            item.rest = list.substr(comma + 1);
            while (item.rest.starts_with(' ')) item.rest.remove_prefix(1);
        }
        if (predicate(item)) return item;
        if (item.is_last) return std::nullopt;
        list = item.rest;
    }
}

bool is_repeated(const Item& item)
{
    if (item.is_last || item.rest.size() < item.text.size()) return false;
    if (item.rest.size() > item.text.size() && item.rest[item.text.size()] != ',') return false;
    return item.rest.find(item.text) != std::string_view::npos;
}

std::string host_fault_of(std::string_view which, int number)
{
    if (number >= 1 && number <= 254) return "";
    return "the last number of the " + std::string(which) + " is " + std::to_string(number) +
           ", not 1 to 254";
}

constexpr std::string_view kAccountRealm = OSTREL_ACCOUNT_REALM;
constexpr std::string_view kSetupRealm = OSTREL_SETUP_REALM;

bool has_realm(std::string_view name, std::string_view realm)
{
    return name.size() > realm.size() && name.ends_with(realm);
}

// UserName is a PPP user name with what its part before a realm may be.
struct UserName {
    explicit UserName(std::string_view name)
    {
        for (const std::string_view known : {kAccountRealm, kSetupRealm}) {
            if (!has_realm(name, known)) continue;
            part = name.substr(0, name.size() - known.size());
            realm = known;
            least = known == kAccountRealm ? 18 : 16;
            most = known == kAccountRealm ? 30 : 17;
            set = CHARSET_PPP_DIGITS;
            return;
        }
        part = name;
    }

    std::string_view part;
    std::string_view realm;
    std::size_t least = 1;
    std::size_t most = 131;
    std::string_view set = CHARSET_LATIN1_PRINTABLE;
};

}  // namespace

Test range_fault()
{
    return [](std::span<const Value> values) -> Fault {
        const std::string_view start = text_of(values, 0);
        const std::string_view end = text_of(values, 1);
        const std::string_view subnet = subnet_of(text_of(values, 2));
        if (Fault fault = ipv4_fault(start)) return "the start is no IPv4 address: " + *fault;
        if (Fault fault = ipv4_fault(end)) return "the end is no IPv4 address: " + *fault;
        if (subnet.empty()) return "the LAN address has no \".\"";
        for (const std::string_view address : {start, end}) {
            if (address.starts_with(subnet)) continue;
            return "the " + std::string(address.data() == start.data() ? "start" : "end") +
                   " does not begin with the LAN address up to its last \".\", " + quoted(subnet);
        }
        if (host_number(start) > host_number(end)) return "the start is above the end";
        const std::string fault = host_fault_of("start", host_number(start));
        std::string other = fault.empty() ? host_fault_of("end", host_number(end)) : fault;
        if (other.empty()) return std::nullopt;
        return other;
    };
}

Test reserved_subnet_fault()
{
    return [](std::span<const Value> values) -> Fault {
        const std::string_view subnet = subnet_of(text_of(values, 1));
        const auto item =
            find_item(text_of(values, 0), [&](const Item& one) { return !one.text.starts_with(subnet); });
        if (!item) return std::nullopt;
        return "item " + std::to_string(item->number) + " does not begin with " + quoted(subnet);
    };
}

Test reserved_repeat_fault()
{
    return [](std::span<const Value> values) -> Fault {
        const auto item = find_item(text_of(values, 0), is_repeated);
        if (!item) return std::nullopt;
        return "item " + std::to_string(item->number);
    };
}

Test subnet_fault()
{
    return [](std::span<const Value> values) -> Fault {
        const std::string_view subnet = subnet_of(text_of(values, 0));
        const std::string_view address = text_of(values, 1);
        if (address.starts_with(subnet)) return std::nullopt;
        const auto differs = std::ranges::mismatch(address, subnet);
        if (differs.in1 == address.end()) return "it ends too early";
        return byte_at(address, static_cast<std::size_t>(differs.in1 - address.begin()));
    };
}

Fault router_fault(std::string_view text)
{
    if (Fault fault = ipv4_fault(text)) return "no IPv4 address: " + *fault;
    if (!text.starts_with("192.168.")) return "it does not begin with 192.168.";
    std::string fault = host_fault_of("address", host_number(text));
    if (fault.empty()) return std::nullopt;
    return fault;
}

Fault offered_dns_fault(std::string_view text)
{
    Fault fault;
    const auto item = find_item(text, [&](const Item& one) {
        fault = one.number > 2 ? "it has more than two" : ipv4_fault(one.text);
        return fault.has_value();
    });
    if (!item) return std::nullopt;
    if (item->number > 2) return fault;
    return "item " + std::to_string(item->number) + " is no IPv4 address: " + fault.value();
}

Test user_name_fault(int code)
{
    return [code](std::span<const Value> values) -> Fault {
        const UserName name(text_of(values, 0));
        const std::string where = name.realm.empty() ? "" : "before " + std::string(name.realm) + " ";
        if (code == OSTREL_FORBIDDEN_CHARACTER) {
            if (Fault fault = outside_of(name.part, name.set)) return where + *fault;
            return std::nullopt;
        }
        if (code == OSTREL_INVALID_VALUE) {
            const auto marks = std::ranges::count(name.part, '#');
            return where + "stand " + in_words(name.part.size(), "character") + " with " +
                   std::to_string(marks) + " \"#\"";
        }
        return where + in_words(name.part.size(), "byte") + ", not " + std::to_string(name.least) + " to " +
               std::to_string(name.most);
    };
}

Test wep_key_fault(int code, int which)
{
    return [code, which](std::span<const Value> values) -> Fault {
        if (values.empty() || !std::holds_alternative<std::vector<std::string>>(values[0]))
            return std::nullopt;
        std::size_t kept_length = 0;
        std::size_t number = 0;
        for (const std::string& key : std::get<std::vector<std::string>>(values[0])) {
            ++number;
            if (key.empty() || outside_of(key, CHARSET_ASCII_PRINTABLE)) continue;
            const std::string name = "key " + std::to_string(number);
            if (Fault fault = outside_of(key, CHARSET_HEX)) {
                if (code != OSTREL_FORBIDDEN_CHARACTER) return std::nullopt;
                return name + ", " + *fault;
            }
            const std::string length = name + " has " + in_words(key.size(), "digit");
            int found = 0;
            if (key.size() > 26) found = OSTREL_TOO_LONG;
            if (key.size() < 10) found = OSTREL_TOO_SHORT;
            const bool is_between = key.size() > 10 && key.size() < 26;
            if (is_between) found = OSTREL_WEP_KEY_LENGTH;
            if (kept_length == 0) kept_length = key.size();
            const bool differs = found == 0 && key.size() != kept_length;
            if (differs) found = OSTREL_WEP_KEY_LENGTH;
            if (found == 0) continue;
            if (found != code || (which == 2) != differs) return std::nullopt;
            return differs ? length + ", an earlier one " + std::to_string(kept_length) : length;
        }
        return std::nullopt;
    };
}

}  // namespace ostrel::catalogue
