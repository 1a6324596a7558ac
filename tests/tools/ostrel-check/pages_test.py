"""Tests the catalogue in JSON, the manual page, help, and a batch that is split into pieces.

usage: pages_test.py OSTREL_CHECK SOURCE_DIR
"""

import json
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

import jsonschema


def output_of(*command, text="", status=(0,)):
    result = subprocess.run(command, input=text, capture_output=True, text=True, check=False)
    assert result.returncode in status, result.stderr
    return result.stdout


class Catalogue(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.catalogue = json.loads(output_of(PROGRAM, "list", "--json"))
        cls.checks = {check["name"]: check for check in cls.catalogue["checks"]}

    def test_suits_its_schema(self):
        schema = json.loads(output_of(PROGRAM, "list", "--schema"))
        self.assertEqual(schema, json.loads((SOURCE / "catalogue" / "catalogue.schema.json").read_text()))
        jsonschema.Draft202012Validator.check_schema(schema)
        jsonschema.Draft202012Validator(schema).validate(self.catalogue)
        del self.checks["PARAM_check_port"]["arguments"][0]["may_contain"]["shell"]
        with self.assertRaises(jsonschema.ValidationError):
            jsonschema.Draft202012Validator(schema).validate(self.catalogue)

    def test_is_whole(self):
        exported = re.findall(r"^    (\w+);", (SOURCE / "abi" / "exports.map").read_text(), re.MULTILINE)
        self.assertGreater(len(exported), 100)
        self.assertEqual(set(exported) - {"ostrel_ctype"}, set(self.checks))

    def test_characters_are_bytes(self):
        self.assertIn("\u00e9 is the two bytes 0xC3 and 0xA9, here \u00c3\u00a9", self.catalogue["texts"])
        form = self.checks["TcmValidatePPPPassword"]["arguments"][0]["constraints"]
        self.assertIn("\u00e9", form["characters"])
        for encoding in ("utf-8", "latin-1"):
            for c in "\u00e9\u00df\u00a0\u0100":
                line = json.dumps({"check": "TcmValidatePPPPassword", "args": [c]})
                verdict = json.loads(output_of(PROGRAM, "batch", "--json", "--encoding", encoding, text=line,
                                               status=(0, 1, 2)).splitlines()[0])["verdict"]
                if encoding == "latin-1" and c > "\xff":
                    self.assertEqual("malformed", verdict)
                else:
                    is_allowed = all(chr(byte) in form["characters"] for byte in c.encode(encoding))
                    self.assertEqual("accepted" if is_allowed else "refused", verdict, (encoding, c))

    def test_explain_has_what_the_catalogue_has(self):
        for name in ("PARAM_check_port", "WLAN_check_wepkeys", "countChar"):
            self.assertEqual(self.checks[name], json.loads(output_of(PROGRAM, "explain", "--json", name)))

    def test_declarations_are_those_of_the_headers(self):
        declared = set()
        for header in (SOURCE / "include").rglob("*.h"):
            text = header.read_text()
            for match in re.finditer(r"^OSTREL_API (int \w+\([^;]*\));", text, re.MULTILINE):
                declared.add(re.sub(r"\s+", " ", match.group(1)))
        self.assertEqual(declared, {check["declaration"] for check in self.checks.values()})

    def where(self, name, kind, argument=0):
        return list(self.checks[name]["arguments"][argument]["may_contain"][kind])

    def bytes(self, name, kind, place, argument=0):
        return self.checks[name]["arguments"][argument]["may_contain"][kind].get(place, {"bytes": ""})["bytes"]

    def test_hazards_that_are_known(self):
        anywhere = ["first", "inside", "last"]
        self.assertEqual(anywhere, self.where("WLAN_check_ssid", "blanks"))
        self.assertEqual(anywhere, self.where("WLAN_check_ssid", "markup"))
        self.assertEqual([], self.where("WLAN_check_ssid", "high"))
        self.assertEqual([], self.where("WLAN_check_ssid", "line_ends"))
        for kind in ("blanks", "quotes", "shell", "line_ends", "controls", "markup", "percent", "high"):
            self.assertEqual([], self.where("TcmValidateIPAddress", kind))
            self.assertEqual(anywhere, self.where("MGTSERVER_check_server_password", kind))
        self.assertEqual(["inside", "last"], self.where("TcmValidateServerURL", "shell"))
        self.assertEqual("?", self.bytes("TcmValidateServerURL", "shell", "inside"))
        self.assertEqual([], self.where("TcmValidateServerURL", "percent"))
        self.assertEqual(95, len(self.bytes("TcmValidatePPPPassword", "high", "last")))
        self.assertEqual("!()*;?", "".join(sorted(self.bytes("TcmValidateRouterName", "shell", "first"))))
        self.assertEqual(["inside", "last"], self.where("LAN_check_cis_dev_name", "blanks"))



class Surroundings(unittest.TestCase):
    def test_manual_page_is_clean(self):
        page = str(SOURCE / "docs" / "ostrel-check.1")
        self.assertEqual("", output_of("mandoc", "-T", "lint", "-W", "style", page))

    def test_manual_page_knows_every_option(self):
        page = re.sub(".\b", "", output_of("mandoc", "-T", "ascii", str(SOURCE / "docs" / "ostrel-check.1")))
        for command in ([], ["explain"], ["list"], ["batch"], ["summarise"], ["compare"], ["complete"]):
            options = re.findall(r"^  (?:-\w,)?(--[a-z-]+)", output_of(PROGRAM, *command, "--help"), re.MULTILINE)
            self.assertIn("--help", options)
            for option in options:
                self.assertRegex(page, r"(?m)%s(?![a-z-])" % option)

    def test_help_that_cannot_be_written_fails(self):
        for option in ("--help", "--version"):
            with open("/dev/full", "w", encoding="utf-8") as full:
                result = subprocess.run([PROGRAM, option], stdout=full, stderr=subprocess.PIPE, text=True, check=False)
            self.assertEqual(2, result.returncode)
            self.assertIn("No space left on device", result.stderr)

    def test_help_has_no_brackets_of_the_parser(self):
        for command in ("explain", "list", "batch", "summarise", "compare", "complete"):
            options = output_of(PROGRAM, command, "--help").partition("Options:")[2].partition("\n\n")[0]
            self.assertIn("--help", options)
            self.assertNotRegex(options, r"[][{}]|Excludes|FLOAT|INT")

    def test_doxygen_has_no_warning(self):
        with tempfile.TemporaryDirectory() as folder:
            text = (SOURCE / "docs" / "Doxyfile").read_text() + f"\nOUTPUT_DIRECTORY = {folder}\n"
            result = subprocess.run(["doxygen", "-"], input=text, capture_output=True, text=True, cwd=SOURCE,
                                    check=False)
            self.assertEqual((0, ""), (result.returncode, result.stderr))
            self.assertTrue((pathlib.Path(folder) / "html" / "index.html").exists())


class Pieces(unittest.TestCase):
    @staticmethod
    def without_lines(text):
        """Removes line numbers, which are relative to the piece."""
        return re.sub(r'^{"line":[0-9]+,', "{", text, flags=re.MULTILINE)

    def test_parallel_results_are_those_of_one_run(self):
        lines = []
        for number in range(20000):
            lines.append(f"PARAM_check_port {number * 7}\n" if number % 5 else "\n")
        text = "".join(lines)
        whole = output_of(PROGRAM, "batch", "--stream", text=text, status=(1,))
        self.assertEqual(20000, whole.count("\n"))
        pieces = output_of("parallel", "--will-cite", "--pipe", "--keep-order", "--jobs", "4", "--block", "20k",
                           PROGRAM, "batch", "--stream", text=text, status=range(102))
        self.assertNotEqual(whole, pieces)
        self.assertEqual(self.without_lines(whole), self.without_lines(pieces))
        self.assertEqual(whole, output_of(PROGRAM, "batch", "--stream", "--jobs", "3", text=text, status=(1,)))


if __name__ == "__main__":
    PROGRAM = sys.argv[1]
    SOURCE = pathlib.Path(sys.argv[2])
    unittest.main(argv=sys.argv[:1])
