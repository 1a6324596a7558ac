#!/usr/bin/python3
"""Tests the messages about faulty maps and about faulty rows of dumps.

usage: faults_test.py OSTREL_CHECK SOURCE_DIR
"""

import json
import pathlib
import subprocess
import sys
import tempfile
import unittest

import jsonschema

program, source = sys.argv[1:3]
maps = pathlib.Path(source) / "examples/maps"


def run(text, map_file, *options):
    return subprocess.run([program, "batch", "--json", "--map", map_file, *options], input=text, capture_output=True,
                          text=True)


class Rows(unittest.TestCase):
    def judge(self, text, *options, path="Port"):
        """judge returns the results and the counts of a dump. The map contains only one path."""
        with tempfile.NamedTemporaryFile("w", suffix=".json") as file:
            json.dump({"parameters": [{"path": path, "check": "PARAM_check_port"}]}, file)
            file.flush()
            lines = [json.loads(line) for line in run(text, file.name, *options).stdout.splitlines()]
        schema = json.loads(subprocess.run([program, "list", "--schema", "result"], capture_output=True).stdout)
        for line in lines:
            jsonschema.Draft202012Validator(schema).validate(line)
        return lines[:-1], lines[-1]["map"]

    def test_rows_without_a_path_or_a_value(self):
        rows = [({"path": "Port", "id": 1, "value": None}, '"value" is null'),
                ({"path": "Port", "id": 2}, 'there is no "value"'),
                ({"id": 3, "value": "1", "path": 5}, '"path" must be a string'),
                ({"id": 4, "value": "1", "path": None}, '"path" is null'),
                ({"id": 5, "value": "1", "path": ""}, '"path" is empty, so no parameter is named'),
                ({"path": "Port", "id": 6, "value": "1"}, None)]
        forms = [("ndjson", "".join(json.dumps(row) + "\n" for row, _ in rows)),
                 ("json", json.dumps([row for row, _ in rows], indent=1))]
        for form, text in forms:
            for options in (), ("--redact",):
                results, counted = self.judge(text, "--format", form, *options)
                for (row, why), result in zip(rows, results, strict=True):
                    self.assertEqual((row["id"], "malformed" if why else "accepted"), (result["id"], result["verdict"]))
                    self.assertEqual(row["path"] if row["path"] == "Port" else None, result.get("parameter"))
                    self.assertNotIn("value", result)
                    if why:
                        self.assertEqual(why, result["meaning"])
                self.assertEqual((1, []), (counted["parameters"], counted["unmapped"]["paths"]))

    def test_a_value_that_cannot_be_converted(self):
        (result,), _ = self.judge(json.dumps({"path": "Port", "value": "日"}), "--format", "ndjson", "--encoding", "latin-1")
        self.assertEqual(("malformed", "Port"), (result["verdict"], result["parameter"]))

    def test_what_is_a_row(self):
        """A gateway may have a name or a null, and a row may have a null beside its path."""
        for one in ({"name": "gw", "A": {"Port": "1"}}, {"name": None, "A": {"Port": "1"}},
                    {"parameter": None, "path": "A.Port", "value": "1", "extra": {"x": 1}},
                    {"path": "A.Port", "value": {"base64": "MQ=="}}):
            (result,), counted = self.judge(json.dumps(one), "--format", "ndjson", path="A.Port")
            self.assertEqual(("accepted", 1), (result["verdict"], counted["parameters"]), one)

    def test_faulty_rows_of_csv(self):
        rows = ["gateway,parameter,value", "a,Port,1", "a,Port", "a,Port,70000", "a,,1"]
        results, counted = self.judge("\n".join(rows) + "\n", "--format", "csv")
        self.assertEqual([(one["line"], one["verdict"]) for one in results],
                         [(2, "accepted"), (3, "malformed"), (4, "refused"), (5, "malformed")])
        self.assertEqual('"parameter" is empty, so no parameter is named', results[3]["meaning"])
        self.assertEqual([], counted["unmapped"]["paths"])


class Maps(unittest.TestCase):
    def complaint(self, text):
        with tempfile.NamedTemporaryFile("w", suffix=".json") as file:
            file.write(text)
            file.flush()
            failed = run("parameter,value\n", file.name)
            self.assertEqual(2, failed.returncode)
            self.assertIn(file.name, failed.stderr)
            return failed.stderr.replace(file.name, "MAP").splitlines()[0].removeprefix("ostrel-check: ")

    def test_errors_name_the_line_and_the_place(self):
        entry = '{"parameters": [\n {"path": "A", "check": "PARAM_check_port"},\n %s\n]}'
        pool = '"check": "LAN_check_dhcp_reserved_addr", "value": "reservedList"'
        cases = [
            ("{\n \"parameters\": [\n}", "MAP:3: invalid JSON: "),
            ("[]", "MAP:1: must be an object"),
            ("{}", 'MAP:1: "parameters" is missing'),
            ('{"parameters": []}', "MAP:1: /parameters: must not be empty"),
            (entry % '{"path": "B", "check": "PARAM_check_prot"}', 'MAP:3: /parameters/1/check: '),
            (entry % '{"check": "PARAM_check_port"}', 'MAP:3: /parameters/1: "path" is missing'),
            (entry % '{"path": "B",\n "check": 7}', "MAP:4: /parameters/1/check: must be a string"),
            (entry % '{"path": "B..C", "check": "PARAM_check_port"}',
             "MAP:3: /parameters/1/path: the path has an empty name"),
            (entry % '{"path": "B.{j}", "check": "PARAM_check_port"}', "MAP:3: /parameters/1/path: braces"),
            (entry % '{"path": "A", "check": "PARAM_check_port"}', "MAP:3: /parameters/1: the parameter already has"),
            (entry % '{"path": "B", "check": "PARAM_check_port", "words": {}}', "MAP:3: /parameters/1/words: must not be empty"),
            (entry % '{"path": "B", "check": "PARAM_check_port", "values": 1}',
             "MAP:3: /parameters/1/values: unknown member"),
            (entry % ('{"path": "B", ' + pool + "}"),
             'MAP:3: /parameters/1: no source is given for the argument "lanAddress"'),
            (entry % ('{"path": "B", ' + pool + ',\n "with": {"lanAddress": {"path": "C.{i}"}}}'),
             "MAP:4: /parameters/1/with/lanAddress/path: has more {i}"),
            (entry % ('{"path": "B", ' + pool + ', "with": {"lan": {"path": "C"}, "lanAddress": {"path": "C"}}}'),
             "MAP:3: /parameters/1/with/lan: LAN_check_dhcp_reserved_addr has no such argument; "
             "its arguments are reservedList"),
            (entry % ('{"path": "B", ' + pool + ', "with": {"lanAddress": {}}}'),
             "MAP:3: /parameters/1/with/lanAddress: exactly one of"),
        ]
        for text, expected in cases:
            with self.subTest(text):
                self.assertTrue(self.complaint(text).startswith(expected), self.complaint(text))

    def test_maps_obey_the_schema(self):
        schema = json.loads(subprocess.run([program, "list", "--schema", "map"], capture_output=True).stdout)
        for path in maps.glob("*.json"):
            jsonschema.validate(json.loads(path.read_text()), schema)

    def test_a_map_that_is_not_there(self):
        failed = run("parameter,value\n", "/nonexistent/map.json")
        self.assertEqual(2, failed.returncode)
        self.assertIn("cannot read /nonexistent/map.json: No such file or directory", failed.stderr)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
