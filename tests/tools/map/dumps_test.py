#!/usr/bin/python3
"""Tests the summary's counts for dumps, and dumps that are judged in pieces.

usage: dumps_test.py OSTREL_CHECK SOURCE_DIR
"""

import json
import pathlib
import re
import resource
import signal
import subprocess
import sys
import tempfile
import unittest

import jsonschema

sys.path.insert(0, str(pathlib.Path(__file__).parent))
import gateways  # noqa: E402
from forms import as_csv, as_rows, as_trees  # noqa: E402

program, source = sys.argv[1:3]
tr_098 = pathlib.Path(source) / "examples/maps/tr-098.json"
COUNT = 100


def matches(pattern, path):
    """matches returns whether a pattern of the map, in which {i} stands for an instance number, matches a path."""
    names, of_path = pattern.split("."), path.split(".")
    return len(names) == len(of_path) and all(
        one == other or (one == "{i}" and other.isdigit()) for one, other in zip(names, of_path))


class Unmapped(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.fleet = list(gateways.gateways(COUNT))

    def run_batch(self, text, *options, code=1):
        run = subprocess.run([program, "batch", "--map", tr_098, "--format", "csv", "--group", "gateway", *options],
                             input=text, capture_output=True, text=True)
        self.assertEqual(run.returncode, code, run.stderr)
        return run.stdout, run.stderr

    def expected(self):
        entries = json.loads(tr_098.read_text())
        of_map = {entries["root"] + one["path"] for one in entries["parameters"]}
        of_map |= {entries["root"] + path for one in entries["parameters"] for source in one.get("with", {}).values()
                   for path in ([source["path"]] if isinstance(source.get("path"), str) else source.get("path", []))}
        because = {entries["root"] + one["path"]: one["because"] for one in entries["not_mapped"]}
        counts = {}
        for _, parameters, _ in self.fleet:
            for path in parameters:
                general = ".".join("{i}" if name.isdigit() else name for name in path.split("."))
                if not any(matches(one, path) for one in of_map):
                    counts[general] = counts.get(general, 0) + 1
        return counts, because

    def test_in_the_summary(self):
        text = as_csv(self.fleet)
        summary = json.loads(self.run_batch(text, "--summary-only", "--summary", "json", code=2)[0])
        schema = json.loads(subprocess.run([program, "list", "--schema", "summary"], capture_output=True).stdout)
        jsonschema.Draft202012Validator(schema).validate(summary)
        dumps = summary["map"]
        counts, because = self.expected()
        self.assertEqual({one["path"]: one["count"] for one in dumps["unmapped"]["paths"]}, counts)
        self.assertGreater(len(counts), 3)
        for one in dumps["unmapped"]["paths"]:
            self.assertEqual(one.get("because"), because.get(one["path"]))
        self.assertEqual((dumps["gateways"], dumps["parameters"], dumps["unmapped"]["parameters"]),
                         (COUNT, sum(len(parameters) for _, parameters, _ in self.fleet), sum(counts.values())))
        shown, _ = self.run_batch(text, "--summary-only", code=2)
        self.assertIn(f"{dumps['parameters']} parameters of {COUNT} gateways; the map has no check for "
                      f"{sum(counts.values())}:\n", shown)
        for path, count in counts.items():
            why = f": {because[path]}" if path in because else ""
            self.assertRegex(shown, rf"(?m)^ +{count}  {re.escape(path + why)}$")
        for options in ((), ("--stream",), ("--stream", "--summary", "text"), ("--format-out", "csv")):
            out, err = self.run_batch(text, *options, code=2)
            self.assertEqual(1, (out + err).count("; the map has no check for "), options)
        self.assertNotIn("no check is known", self.run_batch(text, "--json", code=2)[1])

    def test_unmapped_parameters_are_not_faults(self):
        name, parameters, _ = self.fleet[0]
        _, good, faults = next(one for one in self.fleet if not one[2])
        self.assertFalse(faults)
        summary = json.loads(self.run_batch(as_csv([(name, good, [])]), "--summary-only", "--summary", "json", code=0)[0])
        self.assertEqual(0, summary["summary"]["malformed"])
        self.assertGreater(summary["map"]["unmapped"]["parameters"], 0)

    def test_sums_of_pieces(self):
        whole = self.run_batch(as_csv(self.fleet), "--summary-only", "--summary", "json", code=2)[0]
        files = []
        for i in range(0, COUNT, 13):
            files.append(self.folder / str(i))
            files[-1].write_text(self.run_batch(as_csv(self.fleet[i:i + 13]), "--summary-only", "--summary", "json",
                                                "--exit-zero", code=0)[0])
        added = subprocess.run([program, "summarise", "--summary", "json", *files], capture_output=True, text=True)
        self.assertEqual((added.stdout, added.stderr), (whole, ""))

    def test_very_many_paths(self):
        rows = "".join(f"a,x{number:06d},1\n" for number in range(30000))
        for jobs in "1", "4":
            text = "gateway,parameter,value\n" + rows + rows.replace("a,", "b,")
            dumps = json.loads(self.run_batch(text, "--summary-only", "--summary", "json", "--jobs", jobs, code=0)[0])["map"]
            self.assertEqual((60000, 2), (dumps["unmapped"]["parameters"], dumps["gateways"]))
            self.assertEqual([{"path": f"x{number:06d}", "count": 2} for number in range(10000)],
                             dumps["unmapped"]["paths"])
        self.assertIn("40000 parameters with other paths\n", self.run_batch(text, "--summary-only", code=0)[0])


class Stopped(unittest.TestCase):
    """A batch that is stopped ends after a gateway and resumes with the next one."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        fleet = list(gateways.gateways(300))
        forms = {"dump.csv": as_csv(fleet), "rows.ndjson": as_rows(fleet), "trees.json": json.dumps(as_trees(fleet), indent=1),
                 "trees.ndjson": "".join(json.dumps(one) + "\n" for one in as_trees(fleet))}
        for name, text in forms.items():
            (self.folder / name).write_text(text)
        self.forms = list(forms)

    def command(self, name, *options):
        group = () if name.startswith("trees") else ("--group", "gateway")
        return [program, "batch", "--stream", "--map", tr_098, *group, *options, self.folder / name]

    def test_by_a_full_disk(self):
        def limit():
            signal.signal(signal.SIGXFSZ, signal.SIG_IGN)
            resource.setrlimit(resource.RLIMIT_FSIZE, (400_001, 400_001))
        for name in self.forms:
            with self.subTest(name):
                files = [self.folder / f"{name}.{part}" for part in range(3)]
                whole = subprocess.run(self.command(name, "--summary-file", files[0]), capture_output=True)
                first = self.folder / "results"
                with open(first, "wb") as results:
                    full = subprocess.run(self.command(name, "--jobs", "2", "--summary-file", files[1]), stdout=results,
                                          stderr=subprocess.PIPE, preexec_fn=limit)
                where = re.search(rb"stopped after line (\d+); resume with --start-line (\d+)\n", full.stderr)
                self.assertTrue(where, full.stderr)
                self.assertGreater(int(where.group(1)), 1)
                rest = subprocess.run(self.command(name, "--start-line", where.group(2), "--summary-file", files[2]),
                                      capture_output=True)
                self.assertTrue(whole.stdout == first.read_bytes() + rest.stdout)
                added = subprocess.run([program, "summarise", "--summary", "json", *files[1:]], capture_output=True)
                self.assertEqual(added.stdout, files[0].read_bytes())

    def test_within_a_gateway_the_next_one_begins(self):
        name, second = "dump.csv", "gw-000001"
        lines = (self.folder / name).read_text().splitlines()
        begin = next(number for number, line in enumerate(lines, 1) if line.startswith(second))
        for line in (3, begin - 1, begin):
            run = subprocess.run(self.command(name, "--start-line", str(line)), capture_output=True, text=True)
            first = json.loads(run.stdout.splitlines()[0])
            self.assertEqual((second, begin), (first["gateway"], min(first["line"], begin)))
            self.assertIn(" of 299 gateways;", run.stderr)

    def test_where_gateways_share_a_line(self):
        file = self.folder / "one-line.json"
        file.write_text(json.dumps(as_trees(gateways.gateways(300))))
        with open("/dev/full", "wb") as full:
            run = subprocess.run(self.command(file.name), stdout=full, stderr=subprocess.PIPE)
        self.assertIn(b"stopped after line 0; resume with --start-line 1\n", run.stderr)
        process = subprocess.Popen(self.command(file.name), stdout=subprocess.PIPE, stderr=subprocess.PIPE, bufsize=0)
        process.stdout.read(1)
        process.send_signal(signal.SIGINT)
        out, err = process.communicate()
        self.assertRegex(err, rb"stopped within the gateways of line 1, after \d+ records in total\n")
        self.assertEqual(130, process.returncode)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
