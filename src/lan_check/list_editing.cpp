#include <ostrel/addresses.h>
#include <ostrel/lan_check/list_editing.h>
#include <ostrel/result_code.h>

#include <cstring>
#include <string_view>

#include "src/support/report.h"
#include "src/support/text.h"

using namespace ostrel;

namespace {

constexpr std::size_t kAllowedListCapacity = 160;     // characters, without the terminator
constexpr std::size_t kMacAddressWithSeparator = 18;  // 17 characters and the separator after them

// ServerList is a list of DNS servers, split at its first ",". If there is no ",", there is no second server,
// and the first is the whole list.
struct ServerList {
    std::string_view first;
    const char* second;
};

ServerList split(const char* list)
{
    const char* comma = std::strchr(list, ',');
    if (comma == nullptr) return {list, nullptr};
    return {std::string_view(list, static_cast<std::size_t>(comma - list)), comma + 1};
}

bool is_one_of(std::string_view server, const ServerList& list)
{
    return equals(server, list.first) || (list.second != nullptr && equals(server, list.second));
}

}  // namespace

int LAN_check_add_allowedMACAddress(const char* macAddress, char* allowedList)
{
    if (macAddress == nullptr || allowedList == nullptr) return OSTREL_INVALID;
    const std::size_t added = std::strlen(macAddress);
    if (allowedList[0] == '\0') {
        // The caller's zeros terminate the list, so nothing beyond the address is written.
        std::memcpy(allowedList, macAddress, added);
        return OSTREL_VALID;
    }
    if (std::strstr(allowedList, macAddress) != nullptr) {
        return refuse(OSTREL_INVALID, "Error in %s: Add existed mac address: %s to %s\n\n", __func__,
                      macAddress, allowedList);
    }
    if ((added + 1) % kMacAddressWithSeparator != 0) {
        return refuse(OSTREL_INVALID, "Error in %s: Add mac address invalid length: %s\n\n", __func__,
                      macAddress);
    }
    const std::size_t present = std::strlen(allowedList);
    if (added + present >= kAllowedListCapacity) {
        return refuse(OSTREL_INVALID, "Error in %s: Add mac address length %d will out of buffer size %d\n\n",
                      __func__, static_cast<int>(added + present), static_cast<int>(kAllowedListCapacity));
    }
    allowedList[present] = ',';
    std::memcpy(allowedList + present + 1, macAddress, added + 1);
    return OSTREL_VALID;
}

int LAN_check_add_dns_servers(const char* newServers, const char* existingServers)
{
    if (existingServers == nullptr || existingServers[0] == '\0') return OSTREL_VALID;
    const ServerList existing = split(existingServers);
    if (existing.second != nullptr) {
        inform("Error in %s: Existed dns servers: %s and %.*s\n\n", __func__, existing.second,
               static_cast<int>(existing.first.size()), existing.first.data());
    }
    const ServerList added = split(newServers);
    // A single new server is compared with the whole existing list, even if that list contains two.
    if (added.second == nullptr) {
        return equals(existingServers, newServers) ? OSTREL_REPEATED : OSTREL_VALID;
    }
    inform("Error in %s: New dns servers: %s and %.*s\n\n", __func__, added.second,
           static_cast<int>(added.first.size()), added.first.data());
    return is_one_of(added.second, existing) || is_one_of(added.first, existing) ? OSTREL_REPEATED
                                                                                 : OSTREL_VALID;
}

int LAN_check_delete_dns_server(const char* serverAddress, const char* existingServers)
{
    if (TcmValidateIPAddress(serverAddress) != OSTREL_VALID) {
        return refuse(OSTREL_INVALID_VALUE, "Error in %s: Not a valid IP addr: %s\n\n", __func__,
                      serverAddress);
    }
    const ServerList existing = split(existingServers);
    if (existing.second != nullptr && equals(serverAddress, existing.second)) return OSTREL_VALID;
    // The test is inverted: a server of the same length as the first one may be deleted if the two differ.
    const std::string_view server = serverAddress;
    if (server.size() == existing.first.size() && !equals(server, existing.first)) return OSTREL_VALID;
    return refuse(OSTREL_NOT_IN_LIST, "Error in %s: Can't find the IP addr: %s in existed servers:%s\n\n",
                  __func__, serverAddress, existingServers);
}
