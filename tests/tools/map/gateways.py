#!/usr/bin/python3
"""Writes the configurations of COUNT gateways as CSV, and the injected faults as JSON.

usage: gateways.py COUNT

As a module, it generates the same gateways for tests, in any form.
"""

import csv
import json
import random
import sys

ROOT = "InternetGatewayDevice."
LAN = "LANDevice.1.LANHostConfigManagement."
WLAN = "LANDevice.1.WLANConfiguration."
PPP = "WANDevice.1.WANConnectionDevice.1.WANPPPConnection.1."
IP = "WANDevice.1.WANConnectionDevice.2.WANIPConnection.1."


def port_mapping(base, number, port, protocol):
    base = f"{base}PortMapping.{number}."
    return {
        base + "PortMappingEnabled": "1",
        base + "ExternalPort": str(port),
        base + "InternalPort": str(port),
        base + "PortMappingProtocol": protocol,
        base + "RemoteHost": "",
        base + "PortMappingDescription": f"game {number}",
        base + "PortMappingLeaseDuration": "0",
    }


def wlan(number, standard, channel, name):
    base = f"{WLAN}{number}."
    keys = {f"{base}WEPKey.{key}.WEPKey": f"{key}123456789" for key in range(1, 5)}
    return {
        base + "Enable": "1",
        base + "SSID": name,
        base + "Standard": standard,
        base + "Channel": channel,
        base + "BeaconType": "WPAand11i",
        base + "BasicEncryptionModes": "None",
        base + "BasicAuthenticationMode": "None",
        base + "WPAEncryptionModes": "TKIPEncryption",
        base + "WPAAuthenticationMode": "PSKAuthentication",
        base + "IEEE11iEncryptionModes": "AESEncryption",
        base + "AuthenticationServiceMode": "none",
        base + "KeyPassphrase": "a pass phrase",
        base + "PreSharedKey.1.PreSharedKey": "0123456789abcdef" * 4,
        base + "PreSharedKey.1.KeyPassphrase": "",
        **keys,
        base + "WEPKeyIndex": "1",
        base + "MaxBitRate": "Auto",
        base + "BasicDataTransmitRates": "1,2,5.5,11",
        base + "OperationalDataTransmitRates": "1,2,5.5,6,9,11,12,18,24,36,48,54",
        base + "LocationDescription": "hall",
        base + "RegulatoryDomain": "49O",
        base + "DistanceFromRoot": "-1",
    }


def good_gateway(number):
    net = f"192.168.{number % 250}."
    colours = {f"UserInterface.{name}Color": "00a0ff" for name in ("Text", "Background", "Button", "ButtonText")}
    servers = {f"Time.NTPServer{n}": f"ntp{n}.example.net" for n in range(1, 6)}
    gateway = {
        "DeviceInfo.Manufacturer": "Example",
        "DeviceInfo.SerialNumber": f"{number:012d}",
        "DeviceInfo.ProvisioningCode": "000.001.002.345",
        "ManagementServer.URL": "x-dslf_cwmps://acs.example.net:7547/inform",
        "ManagementServer.Username": f"gateway-{number}",
        "ManagementServer.Password": "secret" if number % 2 else "",
        "ManagementServer.ConnectionRequestUsername": "acs",
        "ManagementServer.ConnectionRequestPassword": "secret",
        "ManagementServer.PeriodicInformEnable": "true",
        "ManagementServer.PeriodicInformInterval": "86400",
        "ManagementServer.PeriodicInformTime": "2026-11-22T04:00:00+01:00",
        **servers,
        "Time.LocalTimeZone": "+01:00",
        "Time.LocalTimeZoneName": "Berlin",
        "Time.DaylightSavingsStart": "2026-03-29T02:00:00",
        "Time.DaylightSavingsEnd": "2026-10-25T03:00:00",
        "LANConfigSecurity.ConfigPassword": "Zugang-1",
        "Layer3Forwarding.Forwarding.1.Type": "Network",
        "Layer3Forwarding.Forwarding.1.DestIPAddress": "198.51.100.0",
        "Layer3Forwarding.Forwarding.1.DestSubnetMask": "255.255.255.0",
        "Layer3Forwarding.Forwarding.1.SourceIPAddress": "0.0.0.0",
        "Layer3Forwarding.Forwarding.1.Interface": ROOT + PPP,
        "Layer3Forwarding.Forwarding.1.ForwardingMetric": "-1",
        "Layer3Forwarding.Forwarding.1.ForwardingPolicy": "-1",
        "Layer3Forwarding.Forwarding.1.MTU": "1492",
        LAN + "MinAddress": net + "20",
        LAN + "MaxAddress": net + "200",
        LAN + "ReservedAddresses": f"{net}30,{net}31",
        LAN + "SubnetMask": "255.255.255.0",
        LAN + "DNSServers": "192.0.2.1,192.0.2.2",
        LAN + "DomainName": "home",
        LAN + "DHCPLeaseTime": "864000",
        LAN + "UseAllocatedWAN": "",
        LAN + "AssociatedConnection": "",
        LAN + "PassthroughLease": "600",
        LAN + "PassthroughMACAddress": "02:00:00:00:00:01",
        LAN + "IPInterface.1.Enable": "1",
        LAN + "IPInterface.1.IPInterfaceIPAddress": net + "1",
        LAN + "IPInterface.1.IPInterfaceSubnetMask": "255.255.255.0",
        LAN + "IPInterface.1.IPInterfaceAddressingType": "Static",
        **wlan(1, "a", "36", "kitchen window"),
        **wlan(2, "a", "0", f"home {number}"),
        PPP + "ConnectionType": "IP_Routed",
        PPP + "Username": "subscriber",
        PPP + "Password": "secret",
        PPP + "PPPoEServiceName": "internet",
        PPP + "ConnectionTrigger": "AlwaysOn",
        PPP + "IdleDisconnectTime": "0",
        PPP + "RouteProtocolRx": "Off",
        PPP + "ShapingRate": "-1",
        PPP + "ShapingBurstSize": "0",
        **port_mapping(PPP, 1, 8080, "TCP"),
        **port_mapping(PPP, 2, 5061, "UDP"),
        **port_mapping(IP, 1, 2222, "TCP"),
        "UserInterface.ISPName": "Example Net",
        "UserInterface.ISPHelpDesk": "0800 000000",
        "UserInterface.ISPHomePage": "www.example.net",
        "UserInterface.ISPHelpPage": "help.example.net",
        "UserInterface.ISPLogo": "aGVsbG8=",
        "UserInterface.ISPLogoSize": "5",
        "UserInterface.ISPMailServer": "mail.example.net",
        "UserInterface.ISPNewsServer": "news.example.net",
        "UserInterface.AutoUpdateServer": "update.example.net",
        "UserInterface.UserUpdateServer": "update.example.net",
        **colours,
        "UserInterface.PasswordRequired": "1",
        "UserInterface.PasswordUserSelectable": "0",
        "UserInterface.UpgradeAvailable": "0",
        "UserInterface.WarrantyDate": "2028-01-01T00:00:00",
        "UserInterface.ExampleLogin": "admin",
        "UserInterface.ExamplePassword": "example",
    }
    return {ROOT + path: value for path, value in gateway.items()}


# Each fault is a parameter, its bad value (None if missing), the check, the offending argument, and the reason.
FAULTS = [
    ("DeviceInfo.ProvisioningCode", "TLCO.GRP2", "PARAM_check_provisioning_code", "value_p", "wrong_length"),
    ("ManagementServer.URL", "https://acs.example.net/", "MGTSERVER_check_server_url", "value_p", "wrong_prefix"),
    ("ManagementServer.PeriodicInformInterval", "0", "MGTSERVER_check_periodic_inform_interval", "value_p",
     "number_too_low"),
    ("ManagementServer.PeriodicInformTime", "0001-01-01T00:00:00Z", "MGTSERVER_check_periodic_inform_time", "value_p",
     "wrong_shape_or_end"),
    ("Time.NTPServer3", "", "TIME_check_NTP_server", "value", "empty"),
    ("Time.LocalTimeZone", "+13:00", "TIME_check_local_time_zone", "value", "number_too_high"),
    ("Time.DaylightSavingsEnd", "", "TIME_check_sync_daylight_saving_time", "end", "only_other_set"),
    ("Layer3Forwarding.Forwarding.1.MTU", "1541", "L3FORWARDING_check_MTU", "value", "number_too_high"),
    ("Layer3Forwarding.Forwarding.1.DestIPAddress", "0.0.0.0", "L3FORWARDING_check_IP_address_and_mask", "value",
     "forbidden_prefix"),
    (LAN + "MinAddress", "10.0.0.20", "LAN_check_dhcp_addr_range", "startAddress", "another_subnet"),
    (LAN + "MaxAddress", "10.0.0.200", "LAN_check_dhcp_addr_range", "endAddress", "another_subnet"),
    (LAN + "MaxAddress", None, "LAN_check_dhcp_addr_range", "endAddress", "missing_sibling"),
    (LAN + "ReservedAddresses", "10.1.1.1", "LAN_check_dhcp_reserved_addr", "reservedList", "another_subnet"),
    (LAN + "UseAllocatedWAN", "Normal", "LAN_check_use_allocated_wan", "value_p", "forbidden_keyword"),
    (LAN + "IPInterface.1.Enable", "true", "LAN_check_ipinterface_enabled", "value_p", "not_a_keyword"),
    (WLAN + "1.SSID", "Café", "WLAN_check_ssid", "value", "not_in_set"),
    (WLAN + "1.Channel", "100", "WLAN_check_channel", "channel", "number_not_allowed"),
    (WLAN + "2.Standard", "n", "WLAN_check_channel", "radio", "no_word"),
    (WLAN + "2.WEPKey.3.WEPKey", "abcde", "WLAN_check_wepkeys", "keys", "too_short"),
    (WLAN + "1.WEPKeyIndex", "4", "WLAN_check_default_wep_key_index", "value",
     "number_out_of_range"),
    (WLAN + "2.DistanceFromRoot", "0", "WLAN_check_DistanceFromRoot", "value", "number_too_high"),
    (WLAN + "1.PreSharedKey.1.PreSharedKey", "0123", "WLAN_check_preshared_key", "value", "wrong_length"),
    (PPP + "ConnectionTrigger", "Manual", "PPP_check_connection_trigger", "value", "not_a_keyword"),
    (PPP + "PortMapping.1.ExternalPort", "7547", "PORTMAPPING_check_port_available", "port", "number_forbidden"),
    (PPP + "PortMapping.2.ExternalPort", "65536", "PORTMAPPING_check_external_port", "value_p", "number_too_high"),
    (IP + "PortMapping.1.RemoteHost", "192.0.2.1", "PORTMAPPING_check_remote_host", "value_p", "not_empty"),
    (IP + "PortMapping.1.PortMappingProtocol", None, "PORTMAPPING_check_port_available", "protocol",
     "missing_sibling"),
    ("UserInterface.TextColor", "00a0fg", "Param_check_color_value", "value", "not_in_set"),
    ("UserInterface.ISPName", "N" * 32, "Param_check_ispname_value", "value", "too_long"),
]


def gateways(count, seed=1):
    """gateways yields an id, the parameters and the faults of each gateway. Most have one fault, and some have none."""
    chance = random.Random(seed)
    order = [FAULTS[i % len(FAULTS)] for i in range(count)]
    chance.shuffle(order)
    for number in range(count):
        parameters = good_gateway(number)
        faults = [] if number % 7 == 3 and number > len(FAULTS) else [order[number]]
        for path, value, *_ in faults:
            if value is None:
                del parameters[ROOT + path]
            else:
                parameters[ROOT + path] = value
        yield f"gw-{number:06d}", parameters, [(ROOT + path, *rest) for path, _, *rest in faults]


def nested(parameters):
    tree = {}
    for path, value in parameters.items():
        *names, last = path.split(".")
        here = tree
        for name in names:
            here = here.setdefault(name, {})
        here[last] = value
    return tree


def main():
    writer = csv.writer(sys.stdout, lineterminator="\n")
    writer.writerow(["gateway", "parameter", "value"])
    planted = []
    for name, parameters, faults in gateways(int(sys.argv[1])):
        writer.writerows([name, path, value] for path, value in parameters.items())
        planted += [[name, *fault] for fault in faults]
    json.dump(planted, sys.stderr)


if __name__ == "__main__":
    main()
