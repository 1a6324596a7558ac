"""Tests that no output of a batch with --redact contains the value of a secret argument.

usage: redact_test.py OSTREL_CHECK SOURCE_DIR

The test calls every check that has a secret argument with the rows in vectors/, and puts a marker into each secret: in
place of the value, before it, after it and around it. This reaches each step of the check.
"""

import json
import os
import pathlib
import random
import subprocess
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[3] / "vectors"))
from vectors import rows, text_of  # noqa: E402  (sys.path must be set first)

# No piece of a marker that is this long may appear in the output.
PIECE = 6
DICE = random.Random(20261122)
MARKERS = ["".join(DICE.choices(letters, k=24))
           for letters in ("ghjkmnpqrstuvwxyzGHJKMNPQRSTUVWXYZ", "0123456789", "0123456789abcdef", "ABCDEFGH01234567")]
FORMS = [[], ["--json"], ["--stream"], ["--only-refused"], ["--stream", "--summary", "text"],
         ["--with-args"], ["--json", "--with-args"], ["--format-out", "csv", "--with-args"], ["--encoding", "latin-1"],
         ["--json", "--with-args", "--encoding", "latin-1"], ["--summary-only"], ["--summary", "json"], ["--summary-only", "--summary", "json"], ["--json", "--jobs", "3"]]


def variants(value):
    """variants replaces a secret with strings that contain a marker."""
    if isinstance(value, list):
        for marker in MARKERS:
            yield [marker] * len(value)
            yield [text_of(part) if i else marker for i, part in enumerate(value)]
            yield [marker[:len(text_of(part))] for part in value]
        return
    text = text_of(value)
    if not isinstance(text, str) or len(text) > 1000:
        return
    for marker in MARKERS:
        long = marker * (len(text) // len(marker) + 1)
        yield from (marker, text + marker, marker + text, marker + text + marker, long[:len(text)],
                    marker + " \u00e9\"\\" + marker)


class Redaction(unittest.TestCase):
    def setUp(self):
        checks = json.loads(subprocess.run([PROGRAM, "list", "--json"], capture_output=True, check=True).stdout)
        self.secrets = {}
        for check in checks["checks"]:
            places = [i for i, argument in enumerate(check["arguments"]) if argument.get("secret")]
            if places:
                self.secrets[check["name"]] = places

    def batch(self, lines, *options):
        with tempfile.TemporaryDirectory() as folder:
            file = os.path.join(folder, "summary")
            result = subprocess.run([PROGRAM, "batch", "--limit-time", "5", *options, "--summary-file", file],
                                    input="\n".join(lines).encode("utf-8"), capture_output=True, check=False)
            with open(file, encoding="utf-8") as summary:
                text = result.stdout.decode("utf-8") + result.stderr.decode("utf-8") + summary.read()
            return text

    def assert_hidden(self, lines, *options):
        shown = self.batch(lines, "--redact", *options)
        self.assertTrue(shown)
        for marker in MARKERS:
            for begin in range(len(marker) - PIECE + 1):
                piece = marker[begin:begin + PIECE]
                at = shown.find(piece)
                self.assertLess(at, 0, f"{options}: {shown[max(0, at - 300):at + 100]}")
        return shown

    def lines(self):
        met = set()
        for _, row in rows():
            for place in self.secrets.get(row["check"], ()):
                for secret in variants(row["args"][place]) if place < len(row["args"]) else ():
                    args = text_of(row["args"])
                    args[place] = secret
                    met.add(row["check"])
                    yield json.dumps({"check": row["check"], "args": args}, ensure_ascii=False)
        self.assertEqual(set(self.secrets), met)

    def test_every_secret_of_every_check(self):
        self.assertGreater(len(self.secrets), 15)
        lines = list(self.lines())
        self.assertGreater(len(lines), 2000)
        self.assert_hidden(lines, "--json", "--jobs", "2")
        for options in FORMS:
            self.assert_hidden(lines[::17], *options)

    def test_the_test_would_see_it(self):
        shown = self.batch([json.dumps({"check": "PPP_check_non_tonline_password", "args": [MARKERS[0] * 4]})],
                           "--summary", "text")
        self.assertIn(MARKERS[0][:PIECE], shown)

    def test_the_length_is_shown(self):
        shown = self.assert_hidden([json.dumps({"check": "TcmValidatePSK", "args": [MARKERS[0]]})])
        self.assertIn("TcmValidatePSK \"<24 bytes>\"", shown)

    def test_malformed_lines_are_not_quoted(self):
        marker = MARKERS[0]
        lines = [marker, f"TcmValidatePSK '{marker}", f"TcmValidatePSK {marker} {marker}", f"{{{marker}",
                 f'{{"check": "{marker}", "args": []}}', f'{{"check": "TcmValidatePSK", "args": ["{marker}}}',
                 f'{{"check": "TcmValidatePSK", "args": ["{marker}\\q"]}}',
                 f'{{"check": "TcmValidatePSK", "args": {{"a": "{marker}"}}}}',
                 f'{{"check": "TcmValidatePSK", "args": [{marker}]}}',
                 f'{{"check": "TcmValidatePSK", "args": [{{"repeat": "{marker}"}}]}}',
                 f'{{"check": "PARAM_check_pwd", "args": ["{marker}", "{marker}", "{marker}"]}}',
                 f'TcmValidatePSK "\\x{marker}"', f"PARAM_check_password {marker} {marker} {marker}",
                 f'{{"check": "TcmValidatePSK", "{marker}": 1, "args": ["{marker}", 1]}}']
        for options in FORMS:
            shown = self.assert_hidden(lines, *options)
            self.assertIn("not shown", shown)

    def test_members_that_are_passed_through(self):
        """The member may repeat the value plainly, inside a string, with escapes, as a number, or in a list."""
        lines = []
        for marker in MARKERS:
            number = marker if marker.isdigit() and marker[0] != "0" else f'"{marker}"'
            escaped = "".join(f"\\u{ord(c):04x}" for c in marker)
            lines += [f'{{"id": {text}, "parameter": "A.{marker}", "value": {text}, "note": [{{"{marker}": {text}}}], '
                      f'"check": "{check}", "args": ["{marker}"{more}]}}'
                      for text in (f'"{marker}"', f'"x{marker}y"', f'"{escaped}"', number)
                      for check, more in (("TcmValidatePSK", ""), ("TcmValidatePSK", ", 1, 2"),
                                          ("TcmValidateKPP", ""), ("WLAN_check_radius_sec", ""))]
        for options in FORMS:
            self.assert_hidden(lines, *options)

    def test_other_members_stay(self):
        line = '{"id": 7, "parameter": "A.1.B", "site": "north", "check": "TcmValidatePSK", "args": ["hunter2hunter2"]}'
        row = json.loads(self.batch([line], "--redact", "--json", "--with-args").splitlines()[0])
        self.assertEqual([7, "A.1.B", "north", ["<14 bytes>"]], [row[name] for name in ("id", "parameter", "site", "args")])

    def test_lengths_are_those_of_the_values(self):
        rows = self.batch(['{"id": "hunter2hunter2", "note": "\\u0068unter2hunter2", "check": "TcmValidatePSK", '
                           '"args": ["hunter2hunter2"]}'], "--redact", "--json", "--with-args").splitlines()
        row = json.loads(rows[0])
        self.assertEqual(["<14 bytes>", "<14 bytes>", ["<14 bytes>"]], [row[name] for name in ("id", "note", "args")])

    def test_values_that_a_map_does_not_translate(self):
        """The value may belong to a parameter other than the judged one, and may be secret there."""
        with tempfile.NamedTemporaryFile("w", suffix=".json") as file:
            json.dump({"parameters": [
                {"path": "Band", "check": "WLAN_check_radio_id", "words": {"2.4GHz": "RADIO_2.4GHz"}},
                {"path": "Key", "check": "TcmValidatePSK", "words": {"none": ""}}]}, file)
            file.flush()
            lines = [json.dumps({"id": 7, "parameter": path, "value": marker}) for marker in MARKERS for path in ("Band", "Key")]
            for options in FORMS:
                shown = self.assert_hidden(lines, "--map", file.name, "--format", "ndjson", *options)
                if "--json" in options:
                    self.assertTrue(all("found" not in one["reason"] and one["reason"]["allowed"]
                                        for one in map(json.loads, shown.splitlines()) if "reason" in one))
                if options != ["--summary-only"]:
                    self.assertIn("Key has a value that the map does not translate: (the content of the line is not shown)", shown)

    def test_ends_of_processes_hide_it_too(self):
        lines = [json.dumps({"check": "WLAN_check_preshared_key2", "args": args})
                 for args in ([MARKERS[0], None], [None, MARKERS[1]])]
        for options in FORMS:
            self.assert_hidden(lines, *options)


if __name__ == "__main__":
    PROGRAM, SOURCE = sys.argv[1:]
    unittest.main(argv=sys.argv[:1])
