"""Tests that a value has the same verdict in each format that a batch reads.

usage: formats_test.py OSTREL_CHECK
"""

import base64
import bz2
import csv
import io
import json
import pathlib
import random
import subprocess
import sys
import tempfile
import unittest

FORMATS = ("words", "ndjson", "json", "csv", "tsv")
ENCODINGS = ("utf-8", "latin-1")


def run(data, *options):
    if isinstance(data, str):
        data = data.encode("utf-8")
    return subprocess.run([PROGRAM, "batch", *options], input=data, capture_output=True, check=False)


def judged(data, *options):
    rows = [json.loads(line) for line in run(data, "--json", *options).stdout.splitlines()]
    assert "summary" in rows[-1]
    return rows[:-1]


def in_words(text):
    quoted = "".join("\\" + c if c in '"\\' else c for c in text)
    for c, escape in (("\n", "\\n"), ("\r", "\\r"), ("\0", "\\x00")):
        quoted = quoted.replace(c, escape)
    return f'"{quoted}"'


def in_rows(rows, delimiter):
    file = io.StringIO()
    csv.writer(file, delimiter=delimiter).writerows(rows)
    return file.getvalue()


def write(form, cases):
    """Returns the contents of a file of that format. Each case is a pair of a check and its only value."""
    if form == "words":
        return "".join(f"{check} {in_words(text)}\n" for check, text in cases)
    objects = [{"check": check, "args": [text]} for check, text in cases]
    if form == "ndjson":
        return "".join(json.dumps(row, ensure_ascii=False) + "\n" for row in objects)
    if form == "json":
        return json.dumps(objects, indent=2)
    return in_rows([("check", "value"), *cases], "," if form == "csv" else "\t")


class OneText(unittest.TestCase):
    TEXTS = ("", "secret", "Straße", "日本", "naïve café", "a,b", 'a"b', '"', "a\tb", "a\nb", "a\r\nb", "#a", "{a}", "@null",
             "a\\b", "\\xE9", " a ", "é", "\x7f", "\x01", "\ufeff", "\u0080", "\u00ff", "0", "1.10", "'", "€" * 30, "ß" * 20,
             "a\0b")
    CHECKS = ("TcmValidatePPPPassword", "WLAN_check_ssid", "PARAM_check_printable_ascii_string",
              "MGTSERVER_check_server_password", "PARAM_check_bool_value")

    def test_same_verdict_in_every_format_and_encoding(self):
        cases = [(check, text) for check in self.CHECKS for text in self.TEXTS]
        verdicts = {}
        for encoding in ENCODINGS:
            results = {form: judged(write(form, cases), "--format", form, "--encoding", encoding, "--with-args")
                       for form in FORMATS}
            for form, rows in results.items():
                self.assertEqual(len(cases), len(rows), form)
                for case, row in zip(cases, rows):
                    is_known = "\0" not in case[1] and (encoding == "utf-8" or max(case[1], default="a") <= "\xff")
                    self.assertEqual(is_known, row["verdict"] != "malformed", (form, encoding, case, row))
                    if is_known:
                        self.assertEqual([case[1]], row["args"], (form, encoding))
            for form, rows in results.items():
                for row in rows:
                    del row["line"]
                    if row["verdict"] == "malformed":
                        row["meaning"] = ""
                self.assertEqual(results["words"], rows, (form, encoding))
            verdicts[encoding] = [row["verdict"] for row in results["words"]]
        self.assertNotEqual(verdicts["utf-8"], verdicts["latin-1"])
        self.assertEqual({"accepted", "refused", "malformed"}, set(verdicts["utf-8"]))

    def test_any_bytes_in_base64(self):
        for size in range(1, 20):
            value = random.Random(size).randbytes(size).replace(b"\0", b"1")
            rows = [{"check": "TcmValidatePPPPassword", "args": [{"base64": base64.b64encode(value).decode()}]}]
            words = "TcmValidatePPPPassword " + "".join(f"\\x{byte:02x}" for byte in value)
            for encoding in ENCODINGS:
                expected = judged(words, "--encoding", encoding, "--with-args")
                self.assertEqual(expected, judged(json.dumps(rows), "--encoding", encoding, "--with-args"))
                shown = expected[0]["args"][0]
                shown = base64.b64decode(shown["base64"]) if isinstance(shown, dict) else shown.encode(encoding)
                self.assertEqual(value, shown)
        for broken in ("a", "a===", "====", "YQ=a", "YR==", "Y Q=", "YQ==YQ==", "ä==="):
            row = judged(json.dumps({"check": "PARAM_check_port", "args": [{"base64": broken}]}))[0]
            self.assertEqual(("malformed", "the string in \"base64\" is not valid base64"), (row["verdict"], row["meaning"]), broken)

    def test_what_does_not_decode_is_written_in_base64(self):
        row = judged("PARAM_check_bool_value \\xE9", "--with-args")[0]
        self.assertEqual([{"base64": "6Q=="}], row["args"])
        self.assertIn(b"The value \xe9 out of range", base64.b64decode(row["out"]["base64"]))
        row = judged("PARAM_check_bool_value \\xE9", "--with-args", "--encoding", "latin-1")[0]
        self.assertEqual(["é"], row["args"])
        self.assertIn("The value é out of range", row["out"])

    def test_tokens_are_taken_as_they_are_written(self):
        tokens = ("1.10", "1e3", "true", "false", "-0", "0.0", "-1", "99999999999999999999", "1E+2", "1e999", "-1E999",
                  "9" * 400, "-1" + "0" * 400, "0." + "0" * 400 + "1", "9.99e+000999", "7e" + "9" * 400, "7e-" + "9" * 400)
        cases = ['{"check":"PARAM_check_bool_value","args":[%s],"n":%s}' % (token, token) for token in tokens]
        for text, options in (("\n".join(cases), ()), ("[" + ",\n".join(cases) + "]", ("--format", "json"))):
            result = run(text, "--json", "--with-args", *options)
            for token, line in zip(tokens, result.stdout.decode().splitlines()[:-1], strict=True):
                self.assertIn(f'"args":["{token}"]', line)
                self.assertIn(f'"n":{token},', line)
        for arguments in ('["15",1,20]', '["15","1","20"]', '[15,"0x1","+20"]'):
            row = judged('{"check":"PARAM_check_num_range","args":%s}' % arguments, "--with-args")[0]
            self.assertEqual(("accepted", ["15", 1, 20]), (row["verdict"], row["args"]))
        row = judged('{"check":"PARAM_check_num_range","args":["15",1.5,20]}')[0]
        self.assertRegex(row["meaning"], r'argument \w+ must be a number, but "1.5" is not one')


class Malformed(unittest.TestCase):
    """Malformed records are reported, and all other records are judged."""

    def test_numbers_are_those_of_json(self):
        for token in ("01", "-01", "00", "1.", "-", "--1", "+1", ".5", "1.e1", "1e", "1e+", "1e1.5", "1.5.5", "0x1", "1 2",
                      "Infinity", "NaN", "-Infinity", "1,", ",1", "9" * 400 + "."):
            with self.subTest(token):
                row = judged('{"check":"PARAM_check_bool_value","args":[%s]}' % token)[0]
                self.assertEqual("malformed", row["verdict"])
                self.assertIn("invalid JSON", row["meaning"])

    def test_reasons(self):
        for line, meaning in (
                (b'{"check":"PARAM_check_port","args":["\\u0000"]}',
                 "argument value_p contains U+0000 (NUL), which would end the value in C"),
                (b"PARAM_check_port 1\\x001", "argument value_p contains U+0000 (NUL), which would end the value in C"),
                (b'{"check":"PARAM_check_port","args":["\\ud800"]}', "a string contains a lone surrogate, which is not a character"),
                (b'{"check":"PARAM_check_port","args":["\\udc00x"]}', "a string contains a lone surrogate, which is not a character"),
                (b'{"check":"PARAM_check_port","args":["1"],"x":["\\udfff"]}',
                 "a string contains a lone surrogate, which is not a character"),
                (b'{"check":"PARAM_check_port","args":["\xed\xa0\x80"]}', "byte 38 is \\xED, which is not UTF-8"),
                (b'{"check":"PARAM_check_port","args":["\xff"]}', "byte 38 is \\xFF, which is not UTF-8"),
                (b'{"check":"PARAM_check_port","args":["\x00"]}', "invalid JSON: byte 38 is NUL"),
                (b"PARAM_check_port \x001", "byte 18 of the line is NUL"),
                (b'{"check":"PARAM_check_port","args":[{"repeat":"1","times":3}]}', '"repeat" is notation of the conformance'),
                (b'{"check":"PARAM_check_port","args":[{"join":["1"]}]}', '"join" is notation of the conformance vectors'),
                (b'{"check":"PARAM_check_port","args":[{}]}', "1 value"),
                (b'{"check":"PARAM_check_port","args":[[null]]}', "an array of strings must not contain null"),
                (b'{"check":"PARAM_check_port","args":["1"}', "invalid JSON: "),
                (b'{"check":"PARAM_check_port","x":' + b"[" * 100 + b"]" * 100 + b"}", "the JSON is nested too deeply"),
        ):
            result = run(line + b"\nPARAM_check_port 1\n", "--json")
            first, last, _ = [json.loads(row) for row in result.stdout.splitlines()]
            self.assertEqual(("malformed", 1, "accepted"), (first["verdict"], first["line"], last["verdict"]), line)
            if line.endswith(b"[{}]}"):
                continue
            self.assertIn(meaning, first["meaning"], line)

    def test_files_are_named_for_what_they_are(self):
        text = "PARAM_check_port 1\n"
        for data, meaning in ((b"\x1f\x8b\x08\x00" + b"x" * 100, "the file is compressed with gzip"),
                              (b"PK\x03\x04rest", "the file is a ZIP archive"),
                              (text.encode("utf-16"), "the file is UTF-16"),
                              (bz2.compress(text.encode()), "the file is compressed with bzip2"),
                              (text.encode("utf-16-le"), "the file is UTF-16LE"),
                              (text.encode("utf-16-be"), "the file is UTF-16BE"),
                              (b"\xfe\xff" + text.encode("utf-16-be"), "the file is UTF-16"),
                              (text.encode("utf-32"), "the file is UTF-32"),
                              (b"\0\0\xfe\xff" + text.encode("utf-32-be"), "the file is UTF-32")):
            for options in ((), ("--format", "csv"), ("--format", "json"), ("--jobs", "3")):
                rows = judged(data, *options)
                self.assertEqual([("malformed", 1)], [(row["verdict"], row["line"]) for row in rows])
                self.assertTrue(rows[0]["meaning"].startswith(meaning))

    def test_a_problem_keeps_the_id(self):
        row = judged('{"check":"PARAM_check_port","args":[["1","2"],{"x":[{}]},{"base64":7}],"id":7,"site":{"a": [1, 2]}}')[0]
        self.assertEqual(("malformed", 7, {"a": [1, 2]}), (row["verdict"], row["id"], row["site"]))

    def test_strict(self):
        for line, meaning in (('{"check":"PARAM_check_port","args":["1"],"id":1,"parameter":"p"}', None),
                              ('{"check":"PARAM_check_port","args":["1"],"site":1}', 'unknown member "site"'),
                              ('{"check":"PARAM_check_port","args":["1"],"id":1,"id":2}', 'duplicate member "id"'),
                              ('{"check":"PARAM_check_port","args":["9x"],"args":["1"]}', 'duplicate member "args"')):
            self.assertEqual("accepted", judged(line)[0]["verdict"])
            row = judged(line, "--strict")[0]
            self.assertEqual(("malformed", meaning) if meaning else ("accepted", "valid"), (row["verdict"], row["meaning"]))
        for header, meaning in (("check,value,id", None), ("check,value,site", 'unknown column "site"'),
                                ("check,id,value,id", 'duplicate column "id"')):
            rows = judged(f"{header}\nPARAM_check_port,1,1{',1' if header.count(',') == 3 else ''}\n", "--strict", "--format", "csv")
            self.assertEqual(meaning, rows[0]["meaning"] if meaning else None)
            self.assertEqual(1, len(rows))


class Csv(unittest.TestCase):
    def test_rows(self):
        rows = judged('\ufeffid,check,value\r\n'
                      '1,PARAM_check_port,80\r\n'
                      '"2","PARAM_check_bool_value","a\r\nb, ""c"""\r\n'
                      '\r\n'
                      '3,PARAM_check_port\r\n'
                      '4,PARAM_check_port,"80\r\n'
                      '5,PARAM_check_port,"80"x\r\n'
                      '6,PARAM_check_port,8"0\r\n'
                      '7,PARAM_check_port,80', "--format", "csv", "--with-args")
        self.assertEqual([(2, "accepted", "1"), (3, "refused", "2"), (6, "malformed", None), (7, "malformed", None),
                          (8, "malformed", None), (9, "malformed", None), (10, "accepted", "7")],
                         [(row["line"], row["verdict"], row.get("id")) for row in rows])
        self.assertEqual(['a\r\nb, "c"'], rows[1]["args"])
        self.assertEqual(["the row has 2 fields; the header has 3", "field 3 has no closing quotation mark",
                          "field 3 continues after its closing quotation mark",
                          "field 3 contains a quotation mark but is not quoted"],
                         [row["meaning"] for row in rows[2:6]])

    def test_columns(self):
        text = "port;site;low;high\n15;a;1;20\n25;b;1;20\n"
        options = ("--delimiter", ";", "--check", "PARAM_check_num_range", "--value", "port", "--value", "low", "--value", "high")
        rows = judged(text, "--format", "csv", *options)
        self.assertEqual([("accepted", "a"), ("refused", "b")], [(row["verdict"], row["site"]) for row in rows])
        self.assertEqual(rows, judged(text, *options))
        rows = judged("rule,v\nPARAM_check_port,1\n", "--check", "rule", "--value", "v", "--format", "csv")
        self.assertEqual("accepted", rows[0]["verdict"])
        with tempfile.NamedTemporaryFile("w", suffix=".csv") as file:
            file.write("v,w\n1,x\n")
            file.flush()
            for words in (("--value", "v", file.name), (file.name, "--value", "v"), ("--value=v", file.name)):
                self.assertEqual(["accepted"], [row["verdict"] for row in judged("", "--check", "PARAM_check_port", *words)])
        rows = judged("check,value_1,value_2,value_3\nPARAM_check_num_range,15,1,20\nPARAM_check_port,80,,\n"
                      "PARAM_check_port,80,1,\nTcmValidatePPPUsername,a,,\n")
        self.assertEqual(["accepted", "accepted", "malformed", "accepted"], [row["verdict"] for row in rows])
        rows = judged("a,b\nPARAM_check_port,1\nx,y\n", "--format", "csv")
        self.assertEqual([(1, 'the header has no column "check"; its columns are "a", "b"')],
                         [(row["line"], row["meaning"]) for row in rows])
        self.assertEqual(2, run("", "--delimiter", "ab").returncode)
        self.assertEqual(2, run("", "--delimiter", '"').returncode)
        rows = judged("check\x01value\nPARAM_check_port\x0180\n", "--format", "csv", "--delimiter", "\\x01")
        self.assertEqual("accepted", rows[0]["verdict"])

    def test_members_of_json_by_the_same_options(self):
        rows = judged('{"site":"a","v":80}\n{"v":"x","site":"b"}\n{"site":"c"}\n', "--format", "ndjson",
                      "--check", "PARAM_check_port", "--value", "v")
        self.assertEqual([("a", "accepted"), ("b", "accepted"), ("c", "malformed")],
                         [(row["site"], row["verdict"]) for row in rows])
        self.assertEqual('there is no member "v"', rows[2]["meaning"])

    def test_a_quotation_mark_that_is_never_closed_costs_one_row(self):
        text = "check,value\n" + 'PARAM_check_port,"1\n' + "PARAM_check_port,2\n" * 50000
        rows = judged(text, "--format", "csv")
        self.assertEqual(["malformed"] + ["accepted"] * 50000, [row["verdict"] for row in rows])
        self.assertEqual(list(range(2, 50003)), [row["line"] for row in rows])


class Json(unittest.TestCase):
    CASES = ({"check": "PARAM_check_port", "args": ["1"], "id": 1, "at": {"x": [1, "a  b"]}},
             {"check": "PARAM_check_port", "args": ["99999"], "id": 2})

    def test_an_array_in_any_layout(self):
        expected = [(1, "accepted", {"x": [1, "a  b"]}), (2, "refused", None)]
        for text in (json.dumps(self.CASES), json.dumps(self.CASES, indent=4), json.dumps(self.CASES, indent="\t") + "\n\n",
                     "\r\n".join(map(json.dumps, self.CASES)), "\n".join(json.dumps(case, indent=2) for case in self.CASES)):
            rows = judged(text, "--format", "json")
            self.assertEqual(expected, [(row["id"], row["verdict"], row.get("at")) for row in rows], text)
        self.assertEqual([], judged("[]", "--format", "json"))
        self.assertEqual([], judged(" [ \n ] \n", "--format", "json"))
        self.assertEqual([], judged("", "--format", "json"))
        rows = judged(json.dumps(self.CASES, indent=2), "--format", "json")
        self.assertEqual([2, 15], [row["line"] for row in rows])
        line = run(json.dumps(self.CASES, indent=2), "--format", "json", "--json").stdout.splitlines()[0]
        self.assertIn(b'"at":{"x":[1,"a  b"]}', line)

    def test_broken_syntax_stops_with_line_and_column(self):
        case = '{"check": "PARAM_check_port", "args": ["1"]}'
        for tail, line, column in ((f",\n  {case[:-1]}]", 2, 46), (f",\n  {case[:-1]} x}},\n{case}]", 2, 47), ("\n,,", 2, 2),
                                   ("", 1, 46), (f"\n{case}]", 2, 1), ("]\n x", 2, 2), (",\n]", 2, 1), (",\n é", 2, 2),
                                   (f',\n ["日", x, {case}]', 2, 8), (',\n"abc', 2, 5)):
            for jobs in ("1", "4"):
                rows = judged("[" + case + tail, "--format", "json", "--jobs", jobs)
                self.assertEqual("accepted", rows[0]["verdict"])
                self.assertEqual((2, "malformed", line), (len(rows), rows[1]["verdict"], rows[1]["line"]), tail)
                self.assertTrue(rows[1]["meaning"].startswith(f"column {column}: "), (tail, rows[1]["meaning"]))

    def test_a_malformed_element_does_not_affect_others(self):
        rows = judged('[1, "a", null, [], {"check": "PARAM_check_port", "args": ["1"]}, {}]', "--format", "json")
        self.assertEqual(["malformed"] * 4 + ["accepted", "malformed"], [row["verdict"] for row in rows])


class Choice(unittest.TestCase):
    def test_by_name_and_by_first_bytes(self):
        cases = [("PARAM_check_port", "1"), ("PARAM_check_bool_value", "x,y")]
        with tempfile.TemporaryDirectory() as folder:
            for form in FORMATS:
                path = pathlib.Path(folder) / ("cases." + form)
                path.write_text(write(form, cases), encoding="utf-8")
                unnamed = pathlib.Path(folder) / "cases"
                unnamed.write_text(write(form, cases), encoding="utf-8")
                for name in (path, unnamed):
                    rows = judged("", "--with-args", str(name))
                    self.assertEqual([("accepted", ["1"]), ("refused", ["x,y"])],
                                     [(row["verdict"], row["args"]) for row in rows], name)

    def test_objects_that_go_on_after_their_brace(self):
        for text in ("".join(json.dumps({"check": "PARAM_check_port", "args": [port]}, indent=2) + "\n" for port in "1x"),
                     '\r\n {\t\r\n"check": "PARAM_check_port", "args": ["1"]}{"check": "PARAM_check_port", "args": ["x"]}'):
            self.assertEqual(["accepted", "accepted"], [row["verdict"] for row in judged(text)])
        self.assertEqual("accepted", judged('{ "check": "PARAM_check_port", "args": [1]}\nPARAM_check_port 1\n')[1]["verdict"])

    def test_given_over_name(self):
        with tempfile.NamedTemporaryFile(suffix=".csv", mode="w", encoding="utf-8") as file:
            file.write("PARAM_check_port 1\n")
            file.flush()
            self.assertEqual("malformed", judged("", file.name)[0]["verdict"])
            self.assertEqual("accepted", judged("", "--format", "words", file.name)[0]["verdict"])


class Large(unittest.TestCase):
    """Records may cross chunk boundaries anywhere, with any number of jobs."""

    @classmethod
    def setUpClass(cls):
        dice = random.Random(17)
        pieces = ("a", '"', ",", "\n", "\r\n", "é", "日", "\\", "{", "[", "]}", "\t", "\ud83d\ude00", "'", "#", " ")
        cls.cases = []
        for number in range(4000):
            size = dice.choice((0, 1, 5, 20, 300)) if number % 500 else 200000
            cls.cases.append({"id": str(number), "check": "TcmValidatePPPPassword",
                              "value": "".join(dice.choice(pieces) for _ in range(size)).encode("utf-16", "surrogatepass").decode("utf-16")})

    def check(self, data, form):
        options = ("--format", form, "--check", "TcmValidatePPPPassword", "--value", "value", "--with-args")
        one = run(data, "--json", *options)
        rows = [json.loads(line) for line in one.stdout.splitlines()][:-1]
        self.assertTrue([(case["id"], case["value"]) for case in self.cases] == [(row["id"], row["args"][0]) for row in rows])
        self.assertTrue(one.stdout == run(data, "--json", "--jobs", "4", *options).stdout)
        return [(row["verdict"], row["code"], row["id"]) for row in rows]

    def test_every_format(self):
        file = io.StringIO()
        table = csv.DictWriter(file, ["id", "check", "value"])
        table.writeheader()
        table.writerows(self.cases)
        self.maxDiff = 1000
        expected = self.check(file.getvalue(), "csv")
        self.assertEqual(expected, self.check("".join(json.dumps(case) + "\n" for case in self.cases), "ndjson"))
        self.assertEqual(expected, self.check(json.dumps(self.cases, indent=1, ensure_ascii=False), "json"))
        self.assertEqual(expected, self.check(json.dumps(self.cases), "json"))


if __name__ == "__main__":
    PROGRAM = sys.argv[1]
    unittest.main(argv=sys.argv[:1])
