"""Compares explanations of checks (explain, list and the reference) with the sources, and tests for regressions.

usage: explain_test.py OSTREL_CHECK SOURCE_DIR
"""

import json
import pathlib
import re
import subprocess
import sys
import unittest

LITERAL = r'"((?:[^"\\]|\\.)*)"'

# These lines are never printed, as docs/decisions.md explains.
NEVER_PRINTED = [
    r"Error in %s: Error dhcp lease time:%s\n\n",
    r"Error in %s: The value %s should be between [0,4296967296)\n",
    r"Error in %s: The value %s should be between [0,65536)\n",
    r"Error in %s: skip wepkeys[%d] for empty string\n",
]


def output_of(*words):
    return subprocess.run([PROGRAM, *words], capture_output=True, text=True, check=True).stdout


def printed_by(text):
    """printed_by returns the literals that a source file passes to printing functions."""
    text = re.sub(r'"\s*\n\s*"', "", text)
    for match in re.finditer(r"\b(?:refuse|inform|line|remark|fprintf)\([^;]*?" + LITERAL, text):
        yield match.group(1)
    for match in re.finditer(r"\bputs\(" + LITERAL, text):
        yield match.group(1) + r"\n"


def as_pattern(literal):
    parts = re.split(r"%(?:\.\*)?[cds]", literal.replace(r"\"", '"'))
    return re.compile(".*".join(re.escape(part) for part in parts), re.DOTALL)


def all_steps(steps):
    for step in steps:
        yield step
        for inner in ("steps", "otherwise", "uses"):
            yield from all_steps(step.get(inner, []))


class Explained(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.checks = {check["name"]: check for check in json.loads(output_of("list", "--json"))["checks"]}
        cls.reference = output_of("list", "--reference")

    def lines(self, name):
        return [line for step in all_steps(self.checks[name]["steps"]) for line in step.get("prints", [])]

    def texts(self, name):
        return "\n".join(line["line"] for line in self.lines(name))

    def argument(self, name, argument):
        (found,) = [one for one in self.checks[name]["arguments"] if one["name"] == argument]
        return found

    def test_lines_are_those_of_the_sources(self):
        literals = set()
        for path in (SOURCE / "src").rglob("*.cpp"):
            literals.update(printed_by(path.read_text(encoding="utf-8")))
        self.assertGreater(len(literals), 100)
        explained = {line["line"] for name in self.checks for line in self.lines(name)}
        unprinted = set(literals)
        for line in explained:
            matching = {literal for literal in literals if as_pattern(literal).fullmatch(line)}
            # The MAC address checks print only the byte that is found where a ":" is expected.
            self.assertTrue(matching or line == "<byte>", line)
            unprinted -= matching
        self.assertEqual(NEVER_PRINTED, sorted(unprinted))

    def test_lines_name_the_arguments_that_they_hold(self):
        for name, text in [
                ("Param_check_string_len", "shoud not be less than <min_len>"),
                ("Param_check_string_len", "shoud not be more than <max_len>"),
                ("Time_validate_tzone_and_tzone_name", "Time Zone Name:<tzone_name>"),
                ("LAN_check_add_allowedMACAddress", "Add existed mac address: <macAddress> to <allowedList>"),
                ("LAN_check_dhcp_addr_range", "start ip<startAddress>, end ip:<endAddress>, lan ip:<lanAddress>"),
                ("LAN_check_delete_dns_server", "<serverAddress> in existed servers:<existingServers>"),
                ("LAN_check_add_dns_servers", "Existed dns servers: <second> and <first>"),
                ("WLAN_check_preshared_key2", "Error KeyPassphrase:<passphrase>"),
                ("WLAN_check_wepkeys", "length is <common> and now <length> for: <key>")]:
            self.assertIn(text, self.texts(name), name)
        self.assertNotIn("33", self.texts("WLAN_check_ssid"))

    def test_where_lines_are_printed(self):
        def steps_with(name, text):
            return [step for step in all_steps(self.checks[name]["steps"])
                    if any(text in line["line"] for line in step.get("prints", []))]

        for name in ("TIME_check_local_time_zone", "TIME_check_local_time_zone_name",
                     "TIME_check_daylight_saving_start_or_end"):
            (step,) = steps_with(name, "is not printable ascii string")
            self.assertEqual("prints and continues if PARAM_check_printable_ascii_string refuses value", step["text"])
        (step,) = steps_with("WLAN_check_wepkeys", "should not be empty or non printable")
        self.assertEqual("skips the key if PARAM_check_printable_ascii_string refuses the key", step["text"])
        (step,) = steps_with("WLAN_check_preshared_key2", "Error PreSharedKey:<psk>")[:1]
        self.assertEqual(2, len(step["prints"]))
        self.assertIn("refused with 402", step["text"])
        (case,) = [step for step in self.checks["LAN_check_add_dns_servers"]["steps"]
                   if any("Existed dns" in line["line"] for inner in step.get("steps", [])
                          for line in inner.get("prints", []))]
        self.assertEqual('if existingServers contains ","', case["text"])

    def test_streams_are_named(self):
        for name in self.checks:
            streams = {line["to"] for line in self.lines(name)}
            self.assertEqual({"stderr"} if name == "WLAN_check_keys" else streams - {"stderr"}, streams, name)
        self.assertIn("standard error: The key : <key>", output_of("explain", "WLAN_check_keys"))
        self.assertIn("standard error", output_of("explain", "WLAN_check_channel"))
        unflushed = {name for name in self.checks if not all(line.get("flushed", True) for line in self.lines(name))}
        self.assertEqual({"TcmValidateMACaddress", "isValidOrdinaryMACAddress", "PARAM_check_MACAddress",
                          "PARAM_check_Ordinary_MACAddress", "TcmValidateProvisioningCode",
                          "PARAM_check_provisioning_code"}, unflushed)

    def test_effect_of_null(self):
        for name, argument, parts in [
                ("TcmValidatePPPUsername", "account_type", ["accepted", "801", "memory fault"]),
                ("WLAN_check_channel", "radio", ["accepted if channel is 0", "otherwise ends the process"]),
                ("WLAN_check_HNAP_KeyRenewal", "type", ["accepted if renewal is false", "memory fault"]),
                ("WLAN_check_HNAP_SecurityType", "setting2", ["memory fault"]),
                ("LAN_check_dhcp_addr_range", "endAddress", ["depends on startAddress: ends", "or passed to the C"])]:
            for part in parts:
                self.assertIn(part, self.argument(name, argument)["null"], name)

    def test_room_of_buffers(self):
        room = self.argument("LAN_check_add_allowedMACAddress", "allowedList")["room"]
        self.assertIn("161", room)
        self.assertIn("the length of macAddress + 1", room)
        written = self.argument("LAN_check_add_allowedMACAddress", "allowedList")["written"]
        self.assertIn("macAddress (without a terminator or a bounds check)", written)
        room = self.argument("HNAPCORE_check_timezone", "offset_out")["room"]
        self.assertEqual("the larger of 7 and the length of value - 2, in bytes", room)

    def test_numbers_that_do_not_fit_in_an_int(self):
        for name in ("PARAM_check_port", "MGTSERVER_check_periodic_inform_interval", "PPP_check_shaping_rate",
                     "GUESTACCESS_check_max_allowed_number"):
            self.assertTrue(self.checks[name]["reads_numbers"], name)
            self.assertIn("a number that does not fit", output_of("explain", name))
        self.assertFalse(self.checks["TcmValidateMACaddress"]["reads_numbers"])

    def test_conditions_come_in_the_order_of_the_tests(self):
        for name in ("GUESTACCESS_check_password", "HNAPCORE_check_username", "TcmValidateVoIPUsername"):
            (use,) = [step for step in all_steps(self.checks[name]["steps"]) if step["text"] == "steps of ValidateString"]
            self.assertEqual(["801", "802", "803"], [step["text"].split()[2] for step in use["steps"]], name)

    def test_bytes_after_a_new_terminator_are_mentioned(self):
        self.assertIn("after a new terminator", output_of("list", "--hazards").replace("\n", " "))
        self.assertIn("are unchanged", self.argument("WLAN_check_wepkeys", "keys")["written"])


if __name__ == "__main__":
    PROGRAM = sys.argv[1]
    SOURCE = pathlib.Path(sys.argv[2])
    unittest.main(argv=sys.argv[:1])
