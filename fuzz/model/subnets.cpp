// Subnets: which addresses fit the gateway's own LAN.
#include "fuzz/model/rule.h"

namespace ostrel::model {

namespace {

// trimmed takes away blanks at both ends, and no other white space.
std::string trimmed(const std::string& item)
{
    const std::size_t first = item.find_first_not_of(' ');
    if (first == std::string::npos) return "";
    return item.substr(first, item.find_last_not_of(' ') - first + 1);
}

// network is the text up to and including the last dot; empty where there is none.
std::string network(const std::string& address) { return address.substr(0, address.rfind('.') + 1); }

// last_number is what stands behind the last dot of a valid address.
int last_number(const std::string& address)
{
    return read_number(address.substr(address.rfind('.') + 1)).value;
}

bool is_station(int octet) { return octet >= 1 && octet <= 254; }

Answer subnet(const std::string& reference, const std::string& address)
{
    return silent(rule::same_subnet(reference, address) ? 0 : -1);
}

Answer range(Arguments arguments)
{
    for (const Value& value : arguments) {
        if (is_null(value)) return undefined();
    }
    return silent(rule::is_range(text(arguments[0]), text(arguments[1]), text(arguments[2])) ? 0 : -1);
}

Answer reserved(const std::string& list, const std::string& lan)
{
    return silent(rule::reserved_addresses(list, lan));
}

Answer router(const std::string& address) { return silent(rule::is_router(address) ? 0 : -1); }

Answer offered_servers(const std::string& list) { return silent(rule::are_offered_servers(list) ? 0 : -1); }

}  // namespace

namespace rule {

bool same_subnet(const std::string& reference, const std::string& address)
{
    return address.starts_with(network(reference));
}

// is_range has no network to compare with where the LAN address has no dot, and refuses.
bool is_range(const std::string& start, const std::string& end, const std::string& lan)
{
    if (!is_address(start) || !is_address(end)) return false;
    if (network(lan).empty()) return false;
    if (!same_subnet(lan, start) || !same_subnet(lan, end)) return false;
    const int from = last_number(start);
    const int to = last_number(end);
    return from <= to && is_station(from) && is_station(to);
}

// reserved_addresses looks for an item's repetition anywhere in the rest, but for the end of a repetition only
// as far from the start of the rest as the item is long.
int reserved_addresses(const std::string& list, const std::string& lan)
{
    std::string_view rest = list;
    for (;;) {
        const std::size_t comma = rest.find(',');
        const std::string item = trimmed(std::string(rest.substr(0, comma)));
        if (!same_subnet(lan, item)) return -1;
        if (comma == std::string_view::npos) return 0;
        rest.remove_prefix(comma + 1);
        while (!rest.empty() && rest.front() == ' ') rest.remove_prefix(1);
        if (rest.size() < item.size()) continue;
        const bool item_ends_there = rest.size() == item.size() || rest[item.size()] == ',';
        if (item_ends_there && rest.find(item) != std::string_view::npos) return 701;
    }
}

bool is_router(const std::string& address)
{
    return is_address(address) && address.starts_with("192.168.") && is_station(last_number(address));
}

bool are_offered_servers(const std::string& list)
{
    const std::vector<std::string> items = split(list, ',');
    if (items.size() > 2) return false;
    for (const std::string& item : items) {
        if (!is_address(trimmed(item))) return false;
    }
    return true;
}

}  // namespace rule

void add_subnets(Models& models)
{
    models["isInSameSubnet"] = on_texts<subnet>;
    models["TcmValidateAddressRange"] = range;
    models["TcmValidateReservedAddress"] = on_texts<reserved>;
    models["TcmValidateIPRouter"] = on_text<router>;
    models["TcmValidateofferDNS"] = on_text<offered_servers>;
}

}  // namespace ostrel::model
