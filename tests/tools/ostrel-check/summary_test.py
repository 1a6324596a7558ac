"""Tests the summary of a batch, and the sum of the summaries of its pieces.

usage: summary_test.py OSTREL_CHECK SOURCE_DIR
"""

import json
import os
import random
import subprocess
import sys
import tempfile
import unittest

import jsonschema


def run(*words, text=""):
    return subprocess.run([PROGRAM, *words], input=text, capture_output=True, text=True, check=False)


def summary_of(lines, *options):
    return json.loads(run("batch", "--summary-only", "--summary", "json", *options, text=lines).stdout)


DUMPS = {"gateways": 1, "parameters": 1, "skipped": 0, "repeated": 0, "split_gateways": 0,
         "unmapped": {"parameters": 0, "paths": []}}


class Summary(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.schema = json.loads(run("list", "--schema", "summary").stdout)

    def test_suits_its_schema(self):
        path = os.path.join(SOURCE, "tools", "ostrel-check", "summary", "summary.schema.json")
        with open(path, encoding="utf-8") as file:
            self.assertEqual(json.load(file), self.schema)
        jsonschema.Draft202012Validator.check_schema(self.schema)
        validator = jsonschema.Draft202012Validator(self.schema)
        summary = summary_of("PARAM_check_port 1\nPARAM_check_port 65536\nPARAM_check_port @null\nx\n"
                             "PARAM_check_ui2_value 1\ncountChar a 97\nWLAN_check_channel 6 RADIO_2.4GHz\n")
        validator.validate(summary)
        del summary["summary"]["no_driver"]
        self.assertFalse(validator.is_valid(summary))

    def test_counts_by_check_parameter_and_reason(self):
        summary = summary_of("PARAM_check_port 65536\nPARAM_check_port 1\nPARAM_check_port -1\nPARAM_check_port 70000\n")
        self.assertEqual(
            [{"check": "PARAM_check_port", "verdict": "accepted", "code": 0, "count": 1},
             {"check": "PARAM_check_port", "verdict": "refused", "code": 601, "reason": "number_too_high", "count": 2,
              "example": {"args": ["65536"], "text": "is 65536; at most 65535 is allowed"}},
             {"check": "PARAM_check_port", "verdict": "refused", "code": 601, "reason": "number_too_low", "count": 1,
              "example": {"args": ["-1"], "text": "is -1; at least 0 is needed"}}], summary["rows"])
        self.assertEqual({"parameter_check": {"0": 1, "601": 3}}, summary["families"])
        self.assertEqual(3, summary["summary"]["refused"])

    def test_as_text(self):
        shown = run("batch", "--summary-only", text="PARAM_check_port 65536\nPARAM_check_port 1\n")
        self.assertEqual(1, shown.returncode)
        self.assertEqual("By check, parameter and reason:\n"
                         "  PARAM_check_port\n"
                         "          1  accepted\n"
                         "          1  refused 601 number_too_high\n"
                         "             [\"65536\"]: is 65536; at most 65535 is allowed\n"
                         "By family and code:\n"
                         "  parameter_check  accepted: 1, refused 601: 1\n"
                         "2 cases: 1 accepted, 1 refused\n", shown.stdout)

    def test_of_a_stream_is_apart_from_the_results(self):
        shown = run("batch", "--stream", "--summary", "text", text="PARAM_check_port 1\n")
        self.assertEqual(1, shown.stdout.count("\n"))
        self.assertIn("1 case: 1 accepted, 0 refused\n", shown.stderr)
        self.assertEqual("", run("batch", "--stream", text="PARAM_check_port 1\n").stderr)
        for option in "--summary-only", "--json", "--only-refused":
            self.assertEqual(2, run("batch", "--stream", option).returncode)

    def test_long_values_are_cut(self):
        row = summary_of('{"check": "TcmValidatePSK", "args": ["' + 100000 * "x" + '"]}\n')["rows"][0]
        self.assertEqual(["x" * 200 + "... (100000 bytes)"], row["example"]["args"])



class Sum(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.mkdtemp()
        self.addCleanup(subprocess.run, ["rm", "-rf", self.folder], check=True)

    def file(self, name, text):
        path = os.path.join(self.folder, name)
        with open(path, "w", encoding="utf-8") as file:
            file.write(text)
        return path

    def summarise(self, *texts, options=("--summary", "json")):
        return run("summarise", *options, *[self.file(str(i), text) for i, text in enumerate(texts)])

    def row(self, **members):
        row = {"check": "PARAM_check_port", "parameter": "a", "verdict": "accepted", "code": 0, "count": 1}
        row.update(members)
        return row

    def summary(self, *rows):
        total = dict.fromkeys(("accepted", "refused", "answer", "malformed", "ended", "no_return", "no_driver"), 0)
        for row in rows:
            total[row["verdict"]] += row["count"]
        return json.dumps({"summary": {"cases": 0, **total, "unreadable_files": 0}, "families": {},
                           "rows": list(rows)}) + "\n"

    def mapped(self, dumps):
        return json.dumps({**json.loads(self.summary(self.row())), "map": dumps}) + "\n"

    def test_of_dumps_is_added_too(self):
        """If there are too many paths, the first ones in byte order are kept, regardless of the order of the pieces."""
        random.seed(2)
        pieces = []
        for _ in range(8):
            paths = [{"path": f"p{number}", "count": 1 + number % 3} for number in random.sample(range(20000), 9000)]
            paths[0]["because"] = "it says nothing"
            count = sum(path["count"] for path in paths)
            pieces.append(self.mapped({"gateways": 2, "parameters": count + 5, "skipped": 1, "repeated": 2, "split_gateways": 0,
                                       "unmapped": {"parameters": count, "paths": paths}}))
        added = json.loads(self.summarise(*pieces).stdout)
        random.shuffle(pieces)
        self.assertEqual(added, json.loads(self.summarise("".join(pieces[:3]), *pieces[3:]).stdout))
        jsonschema.Draft202012Validator(json.loads(run("list", "--schema", "summary").stdout)).validate(added)
        dumps = added["map"]
        given = {}
        for path in (path for piece in pieces for path in json.loads(piece)["map"]["unmapped"]["paths"]):
            given[path["path"]] = given.get(path["path"], 0) + path["count"]
        self.assertEqual((16, 8, 16, sum(given.values()), sum(given.values()) + 40),
                         (dumps["gateways"], dumps["skipped"], dumps["repeated"], dumps["unmapped"]["parameters"], dumps["parameters"]))
        self.assertEqual({name: given[name] for name in sorted(given)[:10000]},
                         {path["path"]: path["count"] for path in dumps["unmapped"]["paths"]})
        text = self.summarise(*pieces, options=()).stdout
        self.assertIn(f"{dumps['parameters']} parameters of 16 gateways; the map has no check for {sum(given.values())}:\n",
                      text)
        self.assertIn(": it says nothing\n", text)

    def test_numbers_are_tokens(self):
        """An id keeps its spelling, even if its number does not fit in a double."""
        lines = "".join(f'{{"id":{token},"check":"PARAM_check_port","args":["{i}00000"]}}\n'
                        for i, token in enumerate(("1.10", "1e999", "9" * 400, "-7"), 1))
        results = run("batch", "--stream", "--with-args", text=lines).stdout.splitlines(keepends=True)
        for line, expected in zip(results, ("1.10", "1e999", "9" * 400, "-7")):
            row = json.loads(self.summarise(line).stdout)["rows"][0]
            self.assertEqual(expected, row["example"]["id"])
        self.assertEqual(summary_of(lines), json.loads(self.summarise(*results).stdout))

    def test_of_pieces_is_that_of_the_whole(self):
        lines = "".join(f"PARAM_check_port {i * 3}\nTcmValidateTime x{i}\nnothing\n" for i in range(4000))
        lines = lines.splitlines(keepends=True)
        whole = run("batch", "--summary-only", "--summary", "json", text="".join(lines)).stdout
        pieces = [run("batch", "--summary-only", "--summary", "json", text="".join(lines[i * 1500:(i + 1) * 1500]))
                  for i in range(8)]
        self.assertEqual(whole, self.summarise(*[piece.stdout for piece in pieces]).stdout)
        text = run("batch", "--summary-only", text="".join(lines)).stdout
        self.assertEqual(text, self.summarise(whole, options=()).stdout)

    def test_of_many_parameters_is_bounded_and_the_same(self):
        random.seed(1)
        rows = [self.row(parameter=f"p{random.randrange(5000)}", count=random.randrange(1, 9)) for _ in range(8000)]
        rows += [self.row(parameter=f"p{i}", verdict="refused", code=601, reason="empty") for i in range(5000)]
        random.shuffle(rows)
        whole = self.summarise(self.summary(*rows)).stdout
        pieces = [self.summarise(self.summary(*rows[i::8])).stdout for i in range(8)]
        self.assertEqual(whole, self.summarise(*pieces).stdout)
        random.shuffle(pieces)
        self.assertEqual(whole, self.summarise(*pieces).stdout)
        added = json.loads(whole)["rows"]
        names = {row["parameter"] for row in added if "parameter" in row}
        self.assertEqual(set(sorted({row["parameter"] for row in rows})[:1000]), names)
        self.assertEqual(sum(row["count"] for row in rows), sum(row["count"] for row in added))
        self.assertEqual(2, sum("other_parameters" in row for row in added))
        for row in added:
            if "parameter" in row and row["verdict"] == "accepted":
                self.assertEqual(row["count"], sum(given["count"] for given in rows if given["verdict"] == "accepted"
                                                   and given["parameter"] == row["parameter"]))

    def test_of_results_counts_them(self):
        lines = "PARAM_check_port 65536\nPARAM_check_port 1\nx\nPARAM_check_port @null\ncountChar a 97\n"
        expected = summary_of(lines)
        for row in expected["rows"]:
            row.get("example", {}).pop("args", None)
        for form in "--json", "--stream":
            results = [line for line in run("batch", form, text=lines).stdout.splitlines(keepends=True)
                       if "summary" not in line]
            self.assertEqual(expected, json.loads(self.summarise("".join(results[:2]), "".join(results[2:])).stdout))

    def test_of_results_with_their_summary_counts_them_once(self):
        lines = "PARAM_check_port 65536\nPARAM_check_port 1\nx\n"
        expected = summary_of(lines)
        whole, refused, plain = (run("batch", "--json", *options, text=lines).stdout for options in
                                 (("--summary", "json"), ("--only-refused", "--summary", "json"), ()))
        for output in whole, refused:
            shown = self.summarise(output)
            self.assertEqual((expected, 0), (json.loads(shown.stdout), shown.returncode))
        shown = self.summarise(plain)
        self.assertEqual((expected["summary"], 0), (json.loads(shown.stdout)["summary"], shown.returncode), shown.stderr)
        stream = run("batch", "--stream", text=lines).stdout
        several = json.loads(self.summarise(whole + plain + refused + stream + whole, plain).stdout)
        self.assertEqual([6 * row["count"] for row in expected["rows"]], [row["count"] for row in several["rows"]])
        incomplete = self.summarise("".join(plain.splitlines(keepends=True)[1:]))
        self.assertEqual((2, f"ostrel-check: {self.folder}/0:3: the summary has no \"rows\", and not all results precede it; "
                          "batch --summary json writes rows\n"), (incomplete.returncode, incomplete.stderr))
        self.assertEqual(1, json.loads(incomplete.stdout)["summary"]["accepted"])

    def test_the_first_example_stays(self):
        first, second = (self.row(verdict="refused", code=601, example={"args": [text]}) for text in "ab")
        added = json.loads(self.summarise(self.summary(first), self.summary(second)).stdout)
        self.assertEqual({"args": ["a"]}, added["rows"][0]["example"])

    def test_instances_are_counted_together(self):
        results = "".join(json.dumps({"check": "PARAM_check_port", "parameter": path, "verdict": "accepted", "code": 0})
                          + "\n" for path in ("A.1.B.2.C", "A.10.B.[x].C", "A.3.B.4.C", "A.1", "7.A.x1", "7"))
        rows = json.loads(self.summarise(results).stdout)["rows"]
        self.assertEqual([("7", 1), ("7.A.x1", 1), ("A.{i}", 1), ("A.{i}.B.{i}.C", 3)],
                         [(row["parameter"], row["count"]) for row in rows])

    def test_what_cannot_be_added_is_left_out_and_named(self):
        good = self.summary(self.row())
        for bad, why in (("nothing\n", "invalid JSON: Invalid value; each line must be a summary or a result in JSON"),
                         ("[]\n", "neither a summary nor a result"), ("1\n", "neither a summary nor a result"),
                         (good.replace('"rows"', '"x"'), 'the summary has no "rows", and not all results precede it; '
                          "batch --summary json writes rows"),
                         ('{"summary": {}}\n', '"unreadable_files" is not a count'),
                         ('{"summary": 1, "rows": []}\n', '"summary" is not an object'),
                         (self.summary(self.row(check="x")), 'there is no check "x"'),
                         (self.summary(self.row(code=1)), '"code" does not match "verdict"'),
                         (self.summary(self.row(code="0")), '"code" is not a number'),
                         ('{"verdict": "accepted", "code": 0}\n', '"check" is missing'),
                         ('{"verdict": "fine"}\n', 'unknown verdict "fine"'),
                         (good.replace('"accepted": 1', '"accepted": 2'), 'the rows do not add up to "accepted"'),
                         (good.replace('"count": 1', '"count": -1'), '"count" is not a count'),
                         (good.replace('"rows": [', '"rows": [1, '), "a row is not an object"),
                         ("[" * 100000 + "\n", "the JSON is nested too deeply; each line must be a summary or a result in JSON"),
                         ('{"verdict": "\x00"}\n',
                          "invalid JSON: byte 14 is NUL; each line must be a summary or a result in JSON"),
                         (self.mapped({}), '"map" does not list what is unmapped'),
                         (self.mapped(DUMPS | {"gateways": 1.5}), '"gateways" is not a count'),
                         (self.mapped(DUMPS | {"unmapped": {"parameters": 1, "paths": [{"path": "a", "count": 2}]}}),
                          'the paths do not add up to "parameters"')):
            shown = self.summarise(good, "\n" + bad + good)
            self.assertEqual(2, shown.returncode, bad[:100])
            self.assertEqual(f"ostrel-check: {self.folder}/1:2: {why}\n", shown.stderr)
            self.assertEqual(2, json.loads(shown.stdout)["summary"]["accepted"])
        shown = run("summarise", "/nonexistent/file", self.file("good", good))
        self.assertEqual((2, "ostrel-check: /nonexistent/file: cannot be read: No such file or directory\n"),
                         (shown.returncode, shown.stderr))
        self.assertIn("1 case: 1 accepted", shown.stdout)
        self.assertEqual(2, run("summarise").returncode)


if __name__ == "__main__":
    PROGRAM, SOURCE = sys.argv[1:]
    unittest.main(argv=sys.argv[:1])
