"""Tests the output of scripts/footprint with invented figures.

usage: footprint_test.py SOURCE_DIR
"""

import contextlib
import importlib.machinery
import importlib.util
import io
import pathlib
import sys
import tempfile
import unittest


def load(path):
    loader = importlib.machinery.SourceFileLoader("footprint", str(path))
    module = importlib.util.module_from_spec(importlib.util.spec_from_loader("footprint", loader))
    loader.exec_module(module)
    return module


class Footprint(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.footprint = load(SOURCE / "scripts/footprint")
        self.footprint.ROOT = pathlib.Path(scratch.name)
        (self.footprint.ROOT / "docs").mkdir()
        self.page = self.footprint.ROOT / "docs/footprint.md"
        self.columns = len(self.footprint.COLUMNS) - 1

    def write(self, figure, *targets):
        self.footprint.measure = lambda target: [target] + [figure] * self.columns
        with contextlib.redirect_stdout(io.StringIO()):
            self.footprint.main(["--write", *targets])

    def test_writing_a_target_keeps_the_rows_of_others(self):
        self.write(7)
        everything = self.page.read_text()
        self.assertEqual([7] * self.columns, self.footprint.written()["mips"])
        self.write(8, "mips", "musl")
        rows = self.footprint.written()
        self.assertEqual(self.footprint.TARGETS, list(rows))
        for target, figures in rows.items():
            self.assertEqual([8 if target in ("mips", "musl") else 7] * self.columns, figures, target)
        self.write(7, "musl", "mips")
        self.assertEqual(everything, self.page.read_text())


if __name__ == "__main__":
    sys.dont_write_bytecode = True
    SOURCE = pathlib.Path(sys.argv[1])
    unittest.main(argv=sys.argv[:1])
