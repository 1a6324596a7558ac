"""Tests the search for checks by a word, and the suggestions for mistyped names.

usage: find_test.py OSTREL_CHECK SOURCE_DIR
"""

import json
import subprocess
import sys
import unittest

ADVICE = "ostrel-check list WORD searches the names and rules of all checks.\n"


def run(*arguments):
    return subprocess.run([PROGRAM, *arguments], capture_output=True, text=True, check=False)


def names_in(text):
    return [line.split()[0] for line in text.splitlines() if line.startswith("  ") and not line.startswith("   ")]


class Listed(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.checks = json.loads(run("list", "--json").stdout)["checks"]

    def list(self, *arguments):
        result = run("list", *arguments)
        self.assertEqual((0, ""), (result.returncode, result.stderr))
        return names_in(result.stdout)

    def test_without_patterns_all_of_them(self):
        self.assertEqual([check["name"] for check in self.checks], self.list())

    def test_a_name_in_any_case(self):
        for pattern in ("port", "PORT", "pOrT"):
            found = self.list(pattern)
            self.assertIn("PARAM_check_port", found)
            self.assertIn("TcmValidatePort", found)
            self.assertNotIn("isEmail", found)

    def test_a_rule(self):
        found = self.list("hexadecimal digit")
        self.assertTrue(found)
        rules = {check["name"]: check["rule"].lower() for check in self.checks}
        self.assertTrue(any("hexadecimal digit" in rules[name] for name in found))
        self.assertFalse(any("hexadecimal digit" in name.lower() for name in found))

    def test_an_argument(self):
        wanted = {check["name"] for check in self.checks for argument in check["arguments"]
                  if "radio" in (argument["name"] + argument["what"]).lower()}
        self.assertTrue(wanted)
        self.assertLessEqual(wanted, set(self.list("radio")))

    def test_every_pattern_must_fit(self):
        found = self.list("port", "mapping", "description")
        self.assertIn("TcmValidatePortMappingDescription", found)
        self.assertEqual(set(self.list("port")) & set(self.list("mapping")) & set(self.list("description")), set(found))

    def test_a_family(self):
        families = {check["family"] for check in self.checks}
        for family in families:
            self.assertEqual([check["name"] for check in self.checks if check["family"] == family],
                             self.list("--family", family))
        found = self.list("--family", "wlan_check", "channel")
        self.assertEqual([name for name in self.list("channel") if name in self.list("--family", "wlan_check")], found)
        refused = run("list", "--family", "cars")
        self.assertEqual(2, refused.returncode)
        self.assertTrue(all(family in refused.stderr for family in families), refused.stderr)

    def test_other_forms(self):
        found = self.list("port")
        self.assertEqual(found, [check["name"] for check in json.loads(run("list", "--json", "port").stdout)["checks"]])
        self.assertEqual(found, [line[4:] for line in run("list", "--reference", "port").stdout.splitlines()
                                 if line.startswith("### ")])
        for form in ("--json-schema", "--hazards"):
            self.assertEqual(2, run("list", form, "port").returncode)

    def test_nothing(self):
        nothing = run("list", "port", "nowhere")
        self.assertEqual((2, "", "ostrel-check: no check matches port nowhere\nostrel-check list shows every check.\n"),
                         (nothing.returncode, nothing.stdout, nothing.stderr))


class Mistyped(unittest.TestCase):
    def assert_answer(self, command, answer):
        result = run(*command)
        self.assertEqual((2, "", "ostrel-check: " + answer + "\n" + ADVICE),
                         (result.returncode, result.stdout, result.stderr))

    def test_checks(self):
        for name, question in {
                "port": "; did you mean TcmValidatePort, PARAM_check_port or TcmValidateVoIPRegistrarPort?",
                "PARAM_check_prot": "; did you mean PARAM_check_port?",
                "mtu": "; did you mean L3FORWARDING_check_MTU?",
                "WLAN_check_wepkey": "; did you mean WLAN_check_wepkeys?",
                "channle": "; did you mean WLAN_check_channel, WLAN_check_wide_channel or "
                           "WLAN_check_second_channel?",
                "is_email": "; did you mean isEmail?",
                "wepkesy": "; did you mean WLAN_check_wepkeys?",
                "zzzzzzzz": "",
                "x": "",
                "": ""}.items():
            with self.subTest(name=name):
                self.assert_answer(["explain", name], 'there is no check "%s"%s' % (name, question))

    def test_commands(self):
        for name, question in {"lst": "; did you mean list?",
                               "explian": "; did you mean explain?",
                               "Batch": "; did you mean batch?",
                               "summarize": "; did you mean summarise?",
                               "t": ""}.items():
            with self.subTest(name=name):
                self.assert_answer([name, "lst"], 'there is no check or command "%s"%s' % (name, question))

    def test_names_in_another_case_are_accepted(self):
        for name in ("param_check_port", "PARAM_CHECK_PORT", "Param_Check_Port"):
            said = 'ostrel-check: "%s" is read as PARAM_check_port\n' % name
            result = run(name, "8080")
            self.assertEqual((0, "accepted: 0, valid\n", said), (result.returncode, result.stdout, result.stderr))
            result = run("--json", name, "65536")
            self.assertEqual((1, "PARAM_check_port", said),
                             (result.returncode, json.loads(result.stdout)["check"], result.stderr))
            result = run("explain", name)
            self.assertEqual((0, said), (result.returncode, result.stderr))
            self.assertTrue(result.stdout.startswith("PARAM_check_port (parameter_check)\n"))

    def test_case_that_two_checks_differ_in(self):
        names = [check["name"] for check in json.loads(run("list", "--json").stdout)["checks"]]
        twins = [name for name in names if [other.lower() for other in names].count(name.lower()) > 1]
        self.assertTrue(twins)
        for name in twins:
            self.assertEqual(0, run("explain", name).returncode)
            other = name.upper()
            result = run("explain", other)
            self.assertEqual(2, result.returncode)
            self.assertIn(name, result.stderr)


if __name__ == "__main__":
    PROGRAM = sys.argv[1]
    unittest.main(argv=sys.argv[:1])
