#!/usr/bin/python3
"""Generates the saved configurations of a fleet of gateways for ostrel-check batch. The same values are written in four
forms. Two of them, CSV and lines of JSON, name a check for each value. The other two are for the TR-098 map and
name no checks: a CSV dump with a row for each value, and nested JSON with an object for each gateway.

usage: fleet.py [--rows N] [--seed N] [--refused SHARE] FOLDER

The files are fleet.csv, fleet.ndjson, fleet-dump.csv and fleet.json in FOLDER. Each gateway has 20 values, in the same
order in each file, and each value has the gateway's name as its id. --refused is the share of values that are refused
(default: 0.1), for reasons that are common in practice. The same seed generates the same files.

  examples/fleet.py --rows 2000 /tmp
  ostrel-check batch --summary-only /tmp/fleet.ndjson
  ostrel-check batch --summary-only --map examples/maps/tr-098.json /tmp/fleet.json
  ostrel-check batch --summary-only --map examples/maps/tr-098.json --group id /tmp/fleet-dump.csv
"""

import argparse
import contextlib
import csv
import io
import json
import os
import random

GATEWAY = 20  # values per gateway
LAN = "LANDevice.1.LANHostConfigManagement."
WLAN = "LANDevice.1.WLANConfiguration.1."
PPP = "WANDevice.1.WANConnectionDevice.1.WANPPPConnection.1."


def numbers(low, high):
    return lambda dice: str(dice.randint(low, high))


def words(*choices):
    return lambda dice: dice.choice(choices)


def address(dice):
    return f"192.168.{dice.randint(0, 255)}.{dice.randint(1, 254)}"


def servers(dice):
    return ",".join(f"192.0.2.{dice.randint(1, 254)}" for _ in range(dice.randint(1, 2)))


def network(dice):
    return dice.choice(("home", "Smith, Jones & Co", 'the "guests"', "FLAT")) + f" {dice.randint(1, 9999)}"


def password(dice):
    return "".join(dice.choices("abcdefghijkmnpqrstuvwxyzACDEFHJKLMNPRTUVWXY2345679!.-,\"", k=dice.randint(10, 20)))


def key(dice):
    return f"{dice.getrandbits(256):064x}"


# Each row contains a path below InternetGatewayDevice, a check, a generator of accepted values, and refused values. The
# parameters are in the order of the data model, so those of one folder are adjacent.
PARAMETERS = [
    ("ManagementServer.PeriodicInformInterval", "MGTSERVER_check_periodic_inform_interval", numbers(60, 86400),
     ["0", "", "-60"]),
    ("Time.NTPServer1", "TIME_check_NTP_server", lambda dice: f"ntp{dice.randint(1, 99)}.example.net",
     ["ntp1 example", "192.0.2.300", "", "http://ntp.example.net"]),
    ("Time.LocalTimeZone", "TIME_check_local_time_zone", words("+01:00", "+02:00", "-05:00"), ["CET", "+1:00"]),
    ("Layer3Forwarding.Forwarding.1.MTU", "L3FORWARDING_check_MTU", numbers(1280, 1540), ["1541", "9000", "0"]),
    (LAN + "SubnetMask", "LAN_check_subnet_mask", words("255.255.255.0", "255.255.255.128"),
     ["255.255.255.1", "/24", "255.255.0.0"]),
    (LAN + "DNSServers", "LAN_check_dns_servers", servers, ["dns.example.net", "192.0.2.53;192.0.2.54"]),
    (LAN + "DomainName", "LAN_check_domain_name", words("home", "home_lan", "lan"), ["home.example", "home lan"]),
    (LAN + "IPInterface.1.IPInterfaceIPAddress", "LAN_check_ip_router", address, ["192.168.1.256", "192.168.1"]),
    (LAN + "IPInterface.1.IPInterfaceAddressingType", "LAN_check_interface_addr_type", words("Static"),
     ["DHCP", "static"]),
    (WLAN + "SSID", "WLAN_check_ssid", network,
     ["a name of more than thirty-two bytes", "Caf\u00e9 Müller", "two\nlines"]),
    (WLAN + "BeaconType", "WLAN_check_beacon_type", words("11i", "WPAand11i", "WPA"), ["WPA2", "wpa", "WPA/WPA2"]),
    (WLAN + "BasicEncryptionModes", "WLAN_check_basic_encryption_modes", words("None", "WEPEncryption"),
     ["none", "AES"]),
    (WLAN + "WPAEncryptionModes", "WLAN_check_wpa_encryption_modes", words("AESEncryption", "TKIPandAESEncryption"),
     ["AES", "CCMP"]),
    (WLAN + "WEPKeyIndex", "WLAN_check_default_wep_key_index", numbers(0, 3), ["4", "-1"]),
    (WLAN + "MaxBitRate", "WLAN_check_max_bit_rate", words("Auto", "54", "11"), ["55", "300", "auto"]),
    (WLAN + "PreSharedKey.1.PreSharedKey", "WLAN_check_preshared_key", key, ["correct horse battery", "0123456789"]),
    (PPP + "ConnectionType", "PPP_check_connection_type", words("IP_Routed"), ["IP_Bridged", "PPPoE"]),
    (PPP + "Password", "PPP_check_non_tonline_password", password, ["Geheimstra\u00dfe", "cl\u00e9 secr\u00e8te 42"]),
    (PPP + "ConnectionTrigger", "PPP_check_connection_trigger", words("AlwaysOn", "OnDemand"), ["always", "Manual"]),
    (PPP + "PortMapping.1.PortMappingProtocol", "TcmValidatePortMappingProtocol", words("TCP", "UDP"),
     ["tcp", "both", "TCP/UDP"]),
]

# The number of accepted values that are generated for each parameter; a larger fleet repeats them.
VARIETY = 4096


def as_csv(value):
    text = io.StringIO()
    csv.writer(text, lineterminator="\n").writerow(["", value])
    return text.getvalue()[1:-1]


def as_json(value):
    return json.dumps(value, ensure_ascii=False)


def tree_of(cells):
    """tree_of returns the configuration of one gateway as nested dictionaries, with the given cells as its values."""
    tree = {}
    for (path, *_), cell in zip(PARAMETERS, cells):
        *folders, name = path.split(".")
        place = tree
        for folder in folders:
            place = place.setdefault(folder, {})
        place[name] = cell
    return tree


def forms():
    """forms returns the contents of each file for one gateway, with %s as a placeholder for its name and each value."""
    csv_lines = "".join(f"%s,InternetGatewayDevice.{path},{check},%s\r\n" for path, check, *_ in PARAMETERS)
    dump_lines = "".join(f"%s,InternetGatewayDevice.{path},%s\r\n" for path, *_ in PARAMETERS)
    json_lines = "".join(
        f'{{"id": "%s", "parameter": "InternetGatewayDevice.{path}", "check": "{check}", "args": [%s]}}\n'
        for path, check, *_ in PARAMETERS)
    nested = json.dumps({"id": "%s", "InternetGatewayDevice": tree_of(["%s"] * GATEWAY)}, indent=1)
    nested = nested.replace('"%s"', "%s")
    return csv_lines, dump_lines, json_lines, nested


def write(folder, rows, seed, refused):
    dice = random.Random(seed)
    pools = []
    for _, _, good, faults in PARAMETERS:
        values = [good(dice) for _ in range(VARIETY)] + faults
        weights = [(1 - refused) / VARIETY] * VARIETY + [refused / len(faults)] * len(faults)
        pools.append(([(as_csv(value), as_json(value)) for value in values], weights))
    csv_lines, dump_lines, json_lines, nested = forms()
    gateways = -(-rows // GATEWAY)
    with contextlib.ExitStack() as files:
        as_rows, as_dump, as_lines, as_tree = (
            files.enter_context(open(os.path.join(folder, name), "w", encoding="utf-8", newline=""))
            for name in ("fleet.csv", "fleet-dump.csv", "fleet.ndjson", "fleet.json"))
        as_rows.write("id,parameter,check,value\r\n")
        as_dump.write("id,parameter,value\r\n")
        as_tree.write("[\n")
        block = 2048  # the number of gateways that are generated at a time
        for begin in range(0, gateways, block):
            names = [f"gateway-{number:07}" for number in range(begin, min(begin + block, gateways))]
            columns = [dice.choices(values, weights, k=len(names)) for values, weights in pools]
            for name, cells in zip(names, zip(*columns)):
                rows_of_one = [part for cell in cells for part in (name, cell[0])]
                lines_of_one = [part for cell in cells for part in (name, cell[1])]
                as_rows.write(csv_lines % tuple(rows_of_one))
                as_dump.write(dump_lines % tuple(rows_of_one))
                as_lines.write(json_lines % tuple(lines_of_one))
                separator = "" if name.endswith("-0000000") else ",\n"
                as_tree.write(separator + nested % (f'"{name}"', *(cell[1] for cell in cells)))
        as_tree.write("\n]\n")


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--rows", type=int, default=1000,
                        help="the number of values (default: 1000), rounded up to whole gateways")
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--refused", type=float, default=0.1,
                        help="the share of values that are refused (default: 0.1)")
    parser.add_argument("folder", metavar="FOLDER")
    arguments = parser.parse_args()
    if arguments.rows < 0 or not 0 <= arguments.refused <= 1:
        parser.error("--rows is a number of values, --refused a share from 0 to 1")
    os.makedirs(arguments.folder, exist_ok=True)
    write(arguments.folder, arguments.rows, arguments.seed, arguments.refused)


if __name__ == "__main__":
    main()
