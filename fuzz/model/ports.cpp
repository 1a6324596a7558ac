// Port mappings.
#include <algorithm>
#include <array>

#include "fuzz/model/rule.h"

namespace ostrel::model {

namespace {

constexpr std::array kTcpPorts = {80, 161, 443, 1723, 1728, 6667, 7547};
constexpr std::array kUdpPorts = {161, 5060};

Answer remote_host(Arguments arguments)
{
    if (is_null(arguments[0]) || text(arguments[0]).empty()) return silent(0);
    return rule::refused(726, "PORTMAPPING_check_remote_host", "The remote host should be empty\n");
}

// external_port speaks of the remote host where the port is missing.
Answer external_port(Arguments arguments)
{
    if (is_null(arguments[0]) || text(arguments[0]).empty()) {
        return rule::refused(716, "PORTMAPPING_check_external_port",
                             "The remote host should not be wildcard\n");
    }
    const Number port = read_number(text(arguments[0]));
    if (port.undefined) return undefined();
    if (port.value >= 0 && port.value <= 65535) return silent(0);
    return rule::refused(601, "PARAM_check_port", "The port shoud be between 0~65535\n");
}

// port_available takes every port, and no port at all, where the protocol is neither TCP (0) nor UDP (1).
Answer port_available(Arguments arguments)
{
    const int protocol = number(arguments[1]);
    if (protocol != 0 && protocol != 1) return silent(0);
    if (is_null(arguments[0])) return undefined();
    const std::string& value = text(arguments[0]);
    const Number port = read_number(value);
    if (port.undefined) return undefined();

    const bool reserved = protocol == 0 ? std::ranges::find(kTcpPorts, port.value) != kTcpPorts.end()
                                        : std::ranges::find(kUdpPorts, port.value) != kUdpPorts.end();
    const bool media = protocol == 1 && port.value >= 54000 && port.value <= 54999;
    if (!reserved && !media) return silent(0);
    const Answer lookup = reserved
                              ? rule::refused(-1, "is_port_reserved", "The port:" + value + " is reserved\n")
                              : rule::refused(-1, "is_wan_udp_port_available",
                                              "The udp port:" + value + " is reserved sip rtp ports\n");
    return rule::followed(lookup, rule::refused(402, "PORTMAPPING_check_port_available",
                                                "Error port mapping external port:" + value + "\n\n"));
}

Answer description(const std::string& value)
{
    if (rule::description(value) == 0) return silent(0);
    return rule::refused(402, "PORTMAPPING_check_description",
                         "Error port mapping description:" + value + "\n\n");
}

Answer lease_duration(const std::string& value)
{
    const Number lease = read_number(value);
    if (lease.undefined) return undefined();
    if (lease.value == 0) return silent(0);
    return rule::refused(725, "PORTMAPPING_check_lease_duration", "The port mapping lease should be zero\n");
}

}  // namespace

void add_ports(Models& models)
{
    models["PORTMAPPING_check_remote_host"] = remote_host;
    models["PORTMAPPING_check_external_port"] = external_port;
    models["PORTMAPPING_check_port_available"] = port_available;
    models["PORTMAPPING_check_description"] = on_text<description>;
    models["PORTMAPPING_check_lease_duration"] = on_text<lease_duration>;
}

}  // namespace ostrel::model
