#include <ostrel/parameter_check.h>
#include <ostrel/port_mapping_check.h>
#include <ostrel/result_code.h>

#include "src/names.h"
#include "src/support/assertion.h"
#include "src/support/number.h"
#include "src/support/report.h"
#include "src/verdict.h"

using namespace ostrel;

namespace {

constexpr char kModule[] = "port_mapping_check";

constexpr Limits kPermanentLease{0, 0, OSTREL_LEASE_NOT_PERMANENT};

constexpr int kTcp = 0;
constexpr int kUdp = 1;

// The ports of the gateway's own services. Each list ends with -1.
constexpr int kReservedTcpPorts[] = {80, 161, 443, 1723, 1728, 6667, 7547, -1};
constexpr int kReservedUdpPorts[] = {161, 5060, -1};

// The UDP ports for voice media.
constexpr int kFirstMediaPort = 54000;
constexpr int kLastMediaPort = 54999;

// is_port_reserved and is_wan_udp_port_available print a line under their own names if a port is reserved.
// The calling check then prints a second line.
bool is_port_reserved(const char* value_p, const int* reserved)
{
    require_value(value_p, kModule);
    const int port = leading_number(value_p);
    for (; *reserved != -1; ++reserved) {
        if (*reserved != port) continue;
        inform("Error in %s: The port:%s is reserved\n", __func__, value_p);
        return true;
    }
    return false;
}

bool is_wan_tcp_port_available(const char* value_p) { return !is_port_reserved(value_p, kReservedTcpPorts); }

bool is_wan_udp_port_available(const char* value_p)
{
    require_value(value_p, kModule);
    if (is_port_reserved(value_p, kReservedUdpPorts)) return false;
    const int port = leading_number(value_p);
    if (port < kFirstMediaPort || port > kLastMediaPort) return true;
    inform("Error in %s: The udp port:%s is reserved sip rtp ports\n", __func__, value_p);
    return false;
}

bool is_wan_port_available(const char* value_p, int protocol)
{
    if (protocol == kTcp) return is_wan_tcp_port_available(value_p);
    return protocol != kUdp || is_wan_udp_port_available(value_p);
}

}  // namespace

int PORTMAPPING_check_remote_host(const char* value_p)
{
    if (value_p == nullptr || value_p[0] == '\0') return OSTREL_VALID;
    return refuse(OSTREL_REMOTE_HOST_NOT_WILDCARD, "Error in %s: The remote host should be empty\n",
                  __func__);
}

int PORTMAPPING_check_external_port(const char* value_p)
{
    if (value_p != nullptr && value_p[0] != '\0') return PARAM_check_port(value_p);
    return refuse(OSTREL_WILDCARD_EXTERNAL_PORT, "Error in %s: The remote host should not be wildcard\n",
                  __func__);
}

int PORTMAPPING_check_port_available(const char* port, int protocol)
{
    if (is_wan_port_available(port, protocol)) return OSTREL_VALID;
    return refuse(OSTREL_INVALID_VALUE, "Error in %s: Error port mapping external port:%s\n\n", __func__,
                  port);
}

int PORTMAPPING_check_description(const char* value_p)
{
    if (validate_string(value_p, kPortMappingDescription) == OSTREL_VALID) return OSTREL_VALID;
    return refuse(OSTREL_INVALID_VALUE, "Error in %s: Error port mapping description:%s\n\n", __func__,
                  value_p);
}

int PORTMAPPING_check_lease_duration(const char* value_p)
{
    return number_or_refuse(value_p, kPermanentLease,
                            line("Error in %s: The port mapping lease should be zero\n", __func__));
}
