"""The values of a fleet: in each form, interrupted and resumed, and summed from pieces.

usage: fleet_test.py OSTREL_CHECK SOURCE_DIR [ROWS]
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
import unittest

PIECES = 8


class Fleet(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.mkdtemp()
        cls.addClassCleanup(shutil.rmtree, cls.folder)
        subprocess.run([os.path.join(SOURCE, "examples", "fleet.py"), "--rows", str(ROWS), cls.folder], check=True)
        cls.lines = cls.path("fleet.ndjson")
        cls.whole = cls.judge("whole", cls.lines)
        cls.total = cls.path("whole.summary")

    @classmethod
    def path(cls, name):
        return os.path.join(cls.folder, name)

    @classmethod
    def judge(cls, name, *words):
        """judge writes the results and the summary to files and returns the name of that of the results."""
        with open(cls.path(name), "wb") as results:
            subprocess.run([PROGRAM, "batch", "--stream", "--exit-zero", "--summary-file", cls.path(name + ".summary"),
                            *words], stdout=results, check=True)
        return cls.path(name)

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
        for name in "fleet.csv", "fleet.ndjson", "fleet.json":
            self.same(self.path(name), os.path.join(again, name))
        shutil.rmtree(again)

    def test_each_form_is_judged_the_same(self):
        """The rows of CSV have the lines of the JSON before them, and the header."""
        self.judge("rows", self.path("fleet.csv"))
        self.same(self.total, self.path("rows.summary"))
        number = re.compile(rb'"line":\d+,')
        with open(self.whole, "rb") as whole, open(self.path("rows"), "rb") as rows:
            for one, other in zip(whole, rows, strict=True):
                self.assertEqual(number.sub(b"", one, count=1), number.sub(b"", other, count=1))

    def test_any_number_of_processes_judges_the_same(self):
        self.same(self.whole, self.judge("side by side", "--jobs", "4", self.lines))
        self.same(self.total, self.path("side by side.summary"))

    def test_interrupted_and_resumed_is_the_whole(self):
        begin, summaries = "1", []
        with open(self.path("resumed"), "wb") as results:
            for part in range(20):
                summaries.append(self.path(f"part{part}"))
                process = subprocess.Popen([PROGRAM, "batch", "--stream", "--jobs", "2", "--start-line", begin,
                                            "--summary-file", summaries[-1], self.lines], stdout=subprocess.PIPE,
                                           stderr=subprocess.PIPE, bufsize=0)
                results.write(process.stdout.read(100))
                if part < 3:
                    process.send_signal((signal.SIGINT, signal.SIGTERM)[part % 2])
                out, err = process.communicate()
                results.write(out)
                if part == 3:
                    self.assertEqual((1, b""), (process.returncode, err))
                    break
                self.assertIn(process.returncode, (130, 143))
                begin = re.fullmatch(rb"stopped after line \d+; go on with --start-line (\d+)\n", err).group(1).decode()
        self.same(self.whole, self.path("resumed"))
        self.same(self.total, self.summarise(*summaries))

    def test_pieces_add_up_to_the_whole(self):
        with open(self.lines, "rb") as file:
            lines = file.readlines()
        size = -(-len(lines) // PIECES)
        results = []
        for i in range(PIECES):
            with open(self.path("piece"), "wb") as piece:
                piece.writelines(lines[i * size:(i + 1) * size])
            results.append(self.judge(f"piece{i}", self.path("piece")))
        self.same(self.total, self.summarise(*[name + ".summary" for name in results]))
        # Lines are numbered in the piece.
        number = re.compile(rb'"line":\d+,')
        with open(self.whole, "rb") as whole:
            for name in results:
                with open(name, "rb") as part:
                    for line in part:
                        self.assertEqual(number.sub(b"", next(whole), count=1), number.sub(b"", line, count=1))
            self.assertEqual(b"", whole.read(1))


if __name__ == "__main__":
    PROGRAM, SOURCE = sys.argv[1:3]
    ROWS = int(sys.argv[3]) if len(sys.argv) > 3 else 20000
    unittest.main(argv=sys.argv[:1])
