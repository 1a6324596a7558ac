#include "primitives/subnets.h"

#include <ostrel/result_code.h>
#include <ostrel/subnets.h>

#include <cstdlib>
#include <cstring>

#include "primitives/addresses.h"
#include "support/search.h"
#include "support/text.h"

namespace ostrel {

namespace {

constexpr int kMostOfferedServers = 2;

// subnet_of gives the text up to and including the last ".", or the empty text.
std::string_view subnet_of(std::string_view address)
{
    while (!address.empty() && address[address.size() - 1] != '.') address.remove_suffix(1);
    return address;
}

// host_number reads what follows the last "."; the address has been found valid.
int host_number(std::string_view address)
{
    const std::string_view subnet = subnet_of(address);
    return std::atoi(subnet.data() + subnet.size());
}

bool is_host_number(int number) { return number >= 1 && number <= 254; }

std::string_view skip_blanks(std::string_view text)
{
    while (!text.empty() && text[0] == ' ') text.remove_prefix(1);
    return text;
}

std::string_view trim(std::string_view text)
{
    text = skip_blanks(text);
    while (!text.empty() && text[text.size() - 1] == ' ') text.remove_suffix(1);
    return text;
}

// Split is a list parted at its first ",": the item before it without its blanks, and the rest behind it
// without its leading ones. The last item of a list has no "," behind it; an empty rest is one more, empty
// item.
struct Split {
    std::string_view item;
    std::string_view rest;
    bool is_last;
};

Split split(std::string_view list)
{
    const std::string_view item = before(list, ',');
    if (item.size() == list.size()) return {trim(item), std::string_view(), true};
    list.remove_prefix(item.size() + 1);
    return {trim(item), skip_blanks(list), false};
}

// is_repeated looks at the character where the next item ends if it is as long as this one, and only then
// searches the rest: that one character spares most lists a search for each of their items. The match may
// stand anywhere, not only before that character.
bool is_repeated(std::string_view item, std::string_view rest)
{
    if (rest.size() < item.size()) return false;
    if (rest.size() > item.size() && rest[item.size()] != ',') return false;
    return contains(rest, item);
}

}  // namespace

bool is_address_range(const char* start_address, const char* end_address, const char* lan_address)
{
    if (!is_ipv4_address(start_address) || !is_ipv4_address(end_address)) return false;
    const std::string_view subnet = subnet_of(lan_address);
    if (subnet.empty()) return false;
    if (!starts_with(start_address, subnet) || !starts_with(end_address, subnet)) return false;
    const int start = host_number(start_address);
    const int end = host_number(end_address);
    return start <= end && is_host_number(start) && is_host_number(end);
}

int validate_reserved_addresses(std::string_view list, std::string_view lan_address)
{
    const std::string_view subnet = subnet_of(lan_address);
    for (;;) {
        const Split next = split(list);
        if (!starts_with(next.item, subnet)) return OSTREL_INVALID;
        if (next.is_last) return OSTREL_VALID;
        if (is_repeated(next.item, next.rest)) return OSTREL_REPEATED;
        list = next.rest;
    }
}

bool is_router_address(const char* address)
{
    return is_ipv4_address(address) && starts_with(address, "192.168.") &&
           is_host_number(host_number(address));
}

bool is_offered_dns(std::string_view list)
{
    for (int servers = 1; servers <= kMostOfferedServers; ++servers) {
        const Split next = split(list);
        if (!is_ipv4_address(next.item)) return false;
        if (next.is_last) return true;
        list = next.rest;
    }
    return false;
}

}  // namespace ostrel

using namespace ostrel;

int isInSameSubnet(const char* reference, const char* address)
{
    const std::string_view subnet = subnet_of(reference);
    return std::strncmp(address, subnet.data(), subnet.size()) == 0 ? OSTREL_VALID : OSTREL_INVALID;
}

int TcmValidateAddressRange(const char* startAddress, const char* endAddress, const char* lanAddress)
{
    return is_address_range(startAddress, endAddress, lanAddress) ? OSTREL_VALID : OSTREL_INVALID;
}

int TcmValidateReservedAddress(const char* reservedList, const char* lanAddress)
{
    return validate_reserved_addresses(reservedList, lanAddress);
}

int TcmValidateIPRouter(const char* address)
{
    return is_router_address(address) ? OSTREL_VALID : OSTREL_INVALID;
}

int TcmValidateofferDNS(const char* dnsList)
{
    return is_offered_dns(dnsList) ? OSTREL_VALID : OSTREL_INVALID;
}
