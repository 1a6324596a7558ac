"""Tests batches of a fleet's values in each form: uninterrupted, resumed, and in pieces whose summaries are added up.

usage: fleet_test.py OSTREL_CHECK SOURCE_DIR [ROWS]

With a million rows or more, it prints the rate and the memory use for each form.
"""

import filecmp
import json
import os
import re
import signal
import shutil
import subprocess
import sys
import tempfile
import time
import unittest

PIECES = 8
GATEWAY = 20  # values per gateway
# The memory limit in bytes for the program and each of its workers, independent of the number of values.
MOST_MEMORY = 64 << 20

FORMS = {"fleet.ndjson": "ndjson", "fleet.csv": "csv", "fleet-dump.csv": "csv", "fleet.json": "json"}
LINE = re.compile(rb'"line":\d+,')


def without_line(result):
    """without_line returns a result without its line number, which depends on the form."""
    return LINE.sub(b"", result, count=1)


def is_mapped(name):
    return name in ("fleet.json", "fleet-dump.csv")


def options_of(name):
    options = ["--map", os.path.join(SOURCE, "examples", "maps", "tr-098.json")] if is_mapped(name) else []
    return options + (["--group", "id"] if name == "fleet-dump.csv" else [])


def ends_row(name, line):
    """ends_row returns whether a row of a form, or a gateway in nested JSON, ends with that line."""
    if name == "fleet.json":
        return line.startswith(b"}")
    return line.endswith(b"\r\n") or not name.endswith(".csv")  # a CSV value may contain the other line ending


def write_pieces(name, whole, piece):
    """write_pieces splits a form between gateways, writes the pieces to files and yields their names. It keeps only one
    line in memory: if this process held all lines, its peak memory would be attributed to programs started later."""
    gateways = -(-ROWS // (PIECES * GATEWAY))
    is_tree = name == "fleet.json"
    with open(whole, "rb") as lines:
        header = next(lines) if is_tree or name.endswith(".csv") else b""
        for number in range(PIECES):
            rows = 0
            with open(f"{piece}{number}", "wb") as file:
                file.write(header)
                while rows < gateways * (1 if is_tree else GATEWAY):
                    line = next(lines, b"]\n")
                    if line == b"]\n":
                        break
                    rows += ends_row(name, line)
                    is_last = is_tree and line.startswith(b"}") and rows == gateways
                    file.write(b"}\n" if is_last else line)
                file.write(b"]\n" if is_tree else b"")
            yield f"{piece}{number}"


class Fleet(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.mkdtemp()
        cls.addClassCleanup(shutil.rmtree, cls.folder)
        subprocess.run([os.path.join(SOURCE, "examples", "fleet.py"), "--rows", str(ROWS), cls.folder], check=True)
        cls.lines = cls.path("fleet.ndjson")
        cls.wholes = {name: cls.judge(name + ".whole", cls.path(name), *options_of(name)) for name in FORMS}
        cls.whole = cls.wholes["fleet.ndjson"]
        cls.total = cls.path("fleet.ndjson.whole.summary")

    @classmethod
    def path(cls, name):
        return os.path.join(cls.folder, name)

    @classmethod
    def judge(cls, name, *words):
        """judge writes the results and the summary to files and returns the name of the results file. On a busy
        machine, a worker may wait for the processor longer than the usual time limit of a call."""
        begin = time.monotonic()
        with open(cls.path(name), "wb") as results:
            process = subprocess.Popen([PROGRAM, "batch", "--stream", "--exit-zero", "--limit-time", "60", "--summary-file",
                                        cls.path(name + ".summary"), *words], stdout=results)
            _, process.returncode, usage = os.wait4(process.pid, 0)
        if process.returncode != 0 or usage.ru_maxrss << 10 > MOST_MEMORY:
            raise AssertionError(f"{words}: ended with {process.returncode}, {usage.ru_maxrss} KiB")
        if ROWS >= 1_000_000 and name.endswith(".whole"):
            print(f"{name}: {ROWS / (time.monotonic() - begin):.0f} rows a second, {usage.ru_maxrss >> 10} MiB",
                  file=sys.stderr)
        return cls.path(name)

    @classmethod
    def summary(cls, name):
        """summary returns the summary without its "map" member, and that member separately."""
        with open(cls.path(name + ".summary"), encoding="utf-8") as file:
            summary = json.load(file)
        return summary, summary.pop("map", None)

    def summarise(self, *files):
        with open(self.path("sum"), "wb") as added:
            subprocess.run([PROGRAM, "summarise", "--summary", "json", *files], stdout=added, check=True)
        return self.path("sum")

    def same(self, one, other):
        self.assertTrue(filecmp.cmp(one, other, shallow=False), (one, other))

    def test_one_in_ten_is_refused(self):
        with open(self.total, encoding="utf-8") as file:
            total = json.load(file)["summary"]
        self.assertEqual(ROWS, total["cases"])
        self.assertEqual(ROWS, total["accepted"] + total["refused"])
        self.assertAlmostEqual(0.1, total["refused"] / ROWS, delta=0.02)

    def test_is_the_same_with_the_same_seed(self):
        again = tempfile.mkdtemp(dir=self.folder)
        subprocess.run([os.path.join(SOURCE, "examples", "fleet.py"), "--rows", str(ROWS), again], check=True)
        for name in FORMS:
            self.same(self.path(name), os.path.join(again, name))
        shutil.rmtree(again)

    def test_each_form_is_judged_the_same(self):
        expected, _ = self.summary("fleet.ndjson.whole")
        for name in FORMS:
            with self.subTest(name):
                summary, dumps = self.summary(name + ".whole")
                self.assertEqual(expected, summary)
                self.assertEqual({"gateways": ROWS // GATEWAY, "parameters": ROWS, "skipped": 0, "repeated": 0,
                                  "split_gateways": 0,
                                  "unmapped": {"parameters": 0, "paths": []}} if is_mapped(name) else None, dumps)
                with open(self.whole, "rb") as whole, open(self.wholes[name], "rb") as results:
                    for one, other in zip(whole, results, strict=True):
                        if without_line(one) != without_line(other):
                            self.assertEqual(one, other)

    def test_any_number_of_processes_judges_the_same(self):
        for name in FORMS:
            with self.subTest(name):
                self.same(self.wholes[name],
                          self.judge("side by side", "--jobs", "4", self.path(name), *options_of(name)))
                self.same(self.path(name + ".whole.summary"), self.path("side by side.summary"))

    def test_interrupted_and_resumed_is_the_whole(self):
        for name in FORMS:
            with self.subTest(name):
                self.interrupt_and_resume(name)

    def interrupt_and_resume(self, name):
        begin, summaries = "1", []
        with open(self.path("resumed"), "wb") as results:
            for part in range(20):
                summaries.append(self.path(f"part{part}"))
                process = subprocess.Popen([PROGRAM, "batch", "--stream", "--jobs", "2", "--limit-time", "60", "--start-line",
                                            begin, "--summary-file", summaries[-1], self.path(name), *options_of(name)],
                                           stdout=subprocess.PIPE, stderr=subprocess.PIPE, bufsize=0)
                results.write(process.stdout.read(100))
                if part < 3:
                    process.send_signal((signal.SIGINT, signal.SIGTERM)[part % 2])
                # The output is copied in pieces to keep this process small, as in write_pieces.
                shutil.copyfileobj(process.stdout, results)
                err = process.stderr.read()
                process.stdout.close()
                process.stderr.close()
                process.wait()
                if part == 3:
                    self.assertIn((process.returncode, err), ((0, b""), (1, b"")))  # the rest may contain no refusal
                    break
                self.assertIn(process.returncode, (130, 143))
                begin = re.fullmatch(rb"stopped after line \d+; resume with --start-line (\d+)\n", err).group(1).decode()
        self.assertGreater(len(summaries), 2)
        self.same(self.wholes[name], self.path("resumed"))
        self.same(self.path(name + ".whole.summary"), self.summarise(*summaries))

    def test_pieces_add_up_to_the_whole(self):
        for name in FORMS:
            with self.subTest(name):
                self.add_up(name)

    def add_up(self, name):
        pieces = write_pieces(name, self.path(name), self.path("piece-"))
        results = [self.judge(f"piece{i}", piece, *options_of(name), "--format", FORMS[name])
                   for i, piece in enumerate(pieces)]
        self.same(self.path(name + ".whole.summary"), self.summarise(*[result + ".summary" for result in results]))
        # Line numbers are relative to the piece.
        with open(self.whole, "rb") as whole:
            for result in results:
                with open(result, "rb") as part:
                    for line in part:
                        expected = next(whole)
                        if without_line(expected) != without_line(line):
                            self.assertEqual(expected, line)
            self.assertEqual(b"", whole.read(1))


if __name__ == "__main__":
    PROGRAM, SOURCE = sys.argv[1:3]
    ROWS = int(sys.argv[3]) if len(sys.argv) > 3 else 20000
    unittest.main(argv=sys.argv[:1])
