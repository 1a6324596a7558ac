"""Tests that a batch passes members of its input through to the results, and that every JSON line matches the schema.

usage: results_test.py OSTREL_CHECK SOURCE_DIR
"""

import csv
import io
import json
import pathlib
import subprocess
import sys
import unittest

import jsonschema

TROUBLE = ("PARAM_check_port 1\nPARAM_check_port 99999\nPARAM_check_port @null\nPARAM_check_ui2_value 1\ncountChar a,b 44\n"
           "TcmValidatePPPUsername \"caf\\xE9 1\"\nPARAM_check_bool_value \\xFF\\n\nnonesuch\n\n# nothing\n"
           "GUESTACCESS_check_max_allowed_number abc\nTcmValidateDataTransmitRates 1,2,7\n"
           "WLAN_check_wepkeys \"\\x01\" \"\" 0123456789 xx\nPARAM_check_MACAddress 00-11-22-33-44-55\n"
           '{"check":"PARAM_check_port","args":["70000"],"id":{"a":[1]},"line":5,"x":null}\n')


def run(text, *options):
    result = subprocess.run([PROGRAM, "batch", "--limit-time", "0.3", *options], input=text.encode(), capture_output=True,
                            check=False)
    return result.stdout.decode()


class Schema(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        text = subprocess.run([PROGRAM, "list", "--schema", "result"], capture_output=True, text=True, check=True).stdout
        schema = SOURCE / "tools" / "ostrel-check" / "write" / "result.schema.json"
        assert json.loads(text) == json.loads(schema.read_text())
        jsonschema.Draft202012Validator.check_schema(json.loads(text))
        cls.validator = jsonschema.Draft202012Validator(json.loads(text))

    def test_real_output_of_every_kind(self):
        verdicts = set()
        for options in (("--json",), ("--stream",), ("--json", "--with-args"), ("--json", "--encoding", "latin-1", "--with-args"),
                        ("--format-out", "ndjson", "--only-refused"), ("--json", "--strict")):
            for line in run(TROUBLE, *options).splitlines():
                if line:
                    self.validator.validate(json.loads(line))
                    verdicts.add(json.loads(line).get("verdict"))
        self.assertEqual({"accepted", "refused", "answer", "malformed", "ended", "no_return", None}, verdicts)

    def test_of_the_conformance_vectors(self):
        files = [SOURCE / "vectors/wireless.ndjson", *sorted((SOURCE / "vectors/wlan_check").iterdir())]
        lines = "".join(path.read_text() for path in files)
        # A vector stores the expected output in members whose names a result also uses.
        rows = [json.loads(line) for line in run(lines, "--json", "--channels", "1 6 11").splitlines()]
        for row in rows:
            self.validator.validate(row)
        self.assertGreater(sum("given" in row for row in rows), 1000)

    def test_it_rejects_other_objects(self):
        row = json.loads(run("PARAM_check_port 99999\n", "--json").splitlines()[0])
        self.validator.validate(row)
        for change in ({"verdict": "good"}, {"code": None}, {"line": 0}, {"reason": {"id": "x"}}, {"out": {"base64": "a"}},
                       {"args": "1"}, {"given": {}}):
            self.assertFalse(self.validator.is_valid(row | change), change)
        for name in ("line", "verdict", "code", "meaning", "check", "out", "after"):
            self.assertFalse(self.validator.is_valid({key: row[key] for key in row if key != name}), name)


class Passed(unittest.TestCase):
    LINE = ('{"id": 12345678901234567890, "check":"PARAM_check_port","parameter":"a.b","args":["1"],"site": {"x" : [ 1.10, "\\u00e9" ] },'
            '"code":7,"file":null,"n":1e3,"b":true}\n')

    def test_tokens_are_passed_through(self):
        line = run(self.LINE, "--json").splitlines()[0]
        for token in ('"id":12345678901234567890,', '"parameter":"a.b",', '"site":{"x" : [ 1.10, "\\u00e9" ] },', '"n":1e3,', '"b":true,',
                      '"given":{"code":7,"file":null}'):
            self.assertIn(token, line)
        self.assertEqual(0, json.loads(line)["code"])

    def test_the_last_of_duplicate_members_counts(self):
        row = json.loads(run('{"id":1,"check":"x","id":2,"args":["x"],"check":"PARAM_check_port","args":["1"],"id":3}', "--json")
                         .splitlines()[0])
        self.assertEqual((3, "accepted"), (row["id"], row["verdict"]))

    def test_a_table_names_the_record(self):
        table = run("id,parameter,check,value\n7,A.1.B,PARAM_check_port,1\n,A.2,PARAM_check_port,99999\n8,,PARAM_check_port,x\n"
                    "9\x01,A.3,none,1\n,,PARAM_check_port,2\n")
        self.assertEqual(["      2  accepted      0  7 A.1.B: PARAM_check_port 1",
                          "      3  refused     601  A.2: PARAM_check_port 99999",
                          "      4  accepted      0  8: PARAM_check_port x",
                          "      6  accepted      0  PARAM_check_port 2"],
                         [line for line in table.splitlines() if line[:7].strip().isdigit() and "malformed" not in line
                          and "case" not in line])
        self.assertIn("      5  malformed       9\\x01 A.3: there is no check", table)
        table = run('{"id": {"a": [1]}, "parameter": "a\\u00e9", "check": "PARAM_check_port", "args": ["1"]}\n')
        self.assertTrue(table.startswith('      1  accepted      0  {"a": [1]} a\\xC3\\xA9: PARAM_check_port 1\n'), table)

    def test_columns_are_passed_through(self):
        row = json.loads(run('id,check,value,Straße,code\n007,PARAM_check_port,1,"a ""ß""\n",\n', "--json").splitlines()[0])
        self.assertEqual(("007", 'a "ß"\n', {"code": ""}), (row["id"], row["Straße"], row["given"]))

    def test_stream_has_line_numbers_and_no_file(self):
        rows = [json.loads(line) if line else None for line in run("PARAM_check_port 1\n\n" + self.LINE, "--stream").split("\n")]
        self.assertEqual([1, 3], [rows[0]["line"], rows[2]["line"]])
        self.assertEqual([None, None], [rows[1], rows[3]])
        self.assertNotIn("file", rows[0])
        self.assertEqual({"code": 7, "file": None}, rows[2]["given"])

    def test_only_refused(self):
        text = "PARAM_check_port 80\nPARAM_check_bool_value 2\nPARAM_check_prot 1\n"
        self.assertEqual([2, 3], [json.loads(line)["line"] for line in run(text, "--json", "--only-refused").splitlines()[:-1]])
        table = run(text, "--only-refused")
        self.assertTrue(table.startswith("      2  refused     402  PARAM_check_bool_value 2\n"), table)
        self.assertTrue(table.endswith("2 cases: 1 accepted, 1 refused; 1 malformed line\n"), table)

    def test_as_csv(self):
        text = run(self.LINE + TROUBLE, "--format-out", "csv", "--with-args")
        rows = list(csv.DictReader(io.StringIO(text)))
        self.assertEqual("file,line,id,parameter,check,verdict,code,meaning,reason_id,argument,offset,reason,others,args",
                         text.splitlines()[0])
        lines = [json.loads(line) for line in run(self.LINE + TROUBLE, "--json", "--with-args").splitlines()][:-1]
        self.assertEqual(len(lines), len(rows))
        self.assertEqual({None}, {row.get(None) for row in rows})
        for line, row in zip(lines, rows):
            reason = line.get("reason", {})
            expected = (line["file"], line["line"], line.get("check", ""), line["verdict"], line["code"], line["meaning"],
                        reason.get("id", ""), reason.get("argument", ""), reason.get("offset", ""), reason.get("text", ""))
            names = ("file", "line", "check", "verdict", "code", "meaning", "reason_id", "argument", "offset", "reason")
            self.assertEqual(["" if value is None else str(value) for value in expected], [row[name] for name in names])
            self.assertEqual(line.get("args"), json.loads(row["args"]) if row["args"] else None)
        self.assertEqual(("12345678901234567890", "a.b"), (rows[0]["id"], rows[0]["parameter"]))
        self.assertEqual({"site": {"x": [1.1, "é"]}, "code": 7, "file": None, "n": 1000.0, "b": True}, json.loads(rows[0]["others"]))
        self.assertEqual('{"a":[1]}', rows[-1]["id"])

    def test_csv_to_csv_keeps_any_text(self):
        texts = ["", "a", 'a"b', "a,b", "a\nb", "ß", "\\"]
        file = io.StringIO()
        csv.writer(file).writerows([("id", "check", "value"), *((text, "PARAM_check_port", "1") for text in texts)])
        rows = list(csv.DictReader(io.StringIO(run(file.getvalue(), "--format-out", "csv"), newline="")))
        self.assertEqual(texts, [row["id"] for row in rows])


if __name__ == "__main__":
    PROGRAM = sys.argv[1]
    SOURCE = pathlib.Path(sys.argv[2])
    unittest.main(argv=sys.argv[:1])
