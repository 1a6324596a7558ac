#include <ostrel/addresses.h>
#include <ostrel/subnets.h>

#include <cstring>
#include <string_view>

#include "src/addresses.h"
#include "src/support/judge.h"
#include "src/support/number.h"
#include "src/support/text.h"

using namespace ostrel;

namespace {

constexpr int kMostOfferedServers = 2;

const char* after_last_dot(const char* text)
{
    const char* dot = std::strrchr(text, '.');
    return dot == nullptr ? text : dot + 1;
}

// subnet_of includes the last "."; the result is empty if the address contains no ".".
std::string_view subnet_of(const char* address)
{
    return {address, static_cast<std::size_t>(after_last_dot(address) - address)};
}

bool is_in(const char* address, std::string_view subnet)
{
    return std::strncmp(address, subnet.data(), subnet.size()) == 0;
}

// host_number reads the number after the last "."; the address must be valid.
int host_number(const char* address) { return leading_number(after_last_dot(address)); }

bool is_host_number(int number) { return number >= 1 && number <= 254; }

const char* skip_blanks(const char* text)
{
    while (*text == ' ') ++text;
    return text;
}

std::string_view trim(std::string_view text)
{
    while (!text.empty() && text[0] == ' ') text.remove_prefix(1);
    while (!text.empty() && text[text.size() - 1] == ' ') text.remove_suffix(1);
    return text;
}

// is_repeated returns whether the item occurs anywhere in the rest of the list, provided that the rest has
// the item's length or has a "," at that offset.
//
// The search compares the last byte of a possible match first, because the items of most lists differ there.
// At a ",", it advances by the item's length, because no match contains a ",".
bool is_repeated(std::string_view item, std::string_view rest)
{
    const std::size_t length = item.size();
    if (rest.size() < length || (rest.size() > length && rest[length] != ',')) return false;
    if (length == 0) return true;
    for (std::size_t last = length - 1; last < rest.size(); last += rest[last] == ',' ? length : 1) {
        if (rest[last] != item[length - 1]) continue;
        if (std::strncmp(rest.data() + last + 1 - length, item.data(), length) == 0) return true;
    }
    return false;
}

}  // namespace

int isInSameSubnet(const char* reference, const char* address)
{
    return judge(is_in(address, subnet_of(reference)));
}

int TcmValidateAddressRange(const char* start_address, const char* end_address, const char* lan_address)
{
    if (TcmValidateIPAddress(start_address) != OSTREL_VALID) return OSTREL_INVALID;
    if (TcmValidateIPAddress(end_address) != OSTREL_VALID) return OSTREL_INVALID;
    const std::string_view subnet = subnet_of(lan_address);
    if (subnet.empty() || !is_in(start_address, subnet) || !is_in(end_address, subnet)) return OSTREL_INVALID;
    const int start = host_number(start_address);
    const int end = host_number(end_address);
    return judge(start <= end && is_host_number(start) && is_host_number(end));
}

int TcmValidateReservedAddress(const char* list, const char* lan_address)
{
    const std::string_view subnet = subnet_of(lan_address);
    std::string_view rest = list;
    for (;;) {
        const std::string_view untrimmed = before(rest, ',');
        const std::string_view item = trim(untrimmed);
        if (!starts_with(item, subnet)) return OSTREL_INVALID;
        if (untrimmed.size() == rest.size()) return OSTREL_VALID;
        rest.remove_prefix(untrimmed.size() + 1);
        while (!rest.empty() && rest[0] == ' ') rest.remove_prefix(1);
        if (is_repeated(item, rest)) return OSTREL_REPEATED;
    }
}

int TcmValidateIPRouter(const char* address)
{
    return judge(TcmValidateIPAddress(address) == OSTREL_VALID && is_in(address, "192.168.") &&
                 is_host_number(host_number(address)));
}

int TcmValidateofferDNS(const char* list)
{
    for (int servers = 1; servers <= kMostOfferedServers; ++servers) {
        const char* end = skip_ipv4_address(skip_blanks(list));
        if (end == nullptr) return OSTREL_INVALID;
        end = skip_blanks(end);
        if (*end == '\0') return OSTREL_VALID;
        if (*end != ',') return OSTREL_INVALID;
        list = end + 1;
    }
    return OSTREL_INVALID;
}
