"""Tests conditions.py with inputs that it must accept and inputs that it must reject."""

import contextlib
import io
import pathlib
import sys
import tempfile
import unittest

import conditions

SOURCE = "bool f(int a)\n{\n    return a > 1 &&  // why\n           (a < 5 || a == 7);\n}\n"
PLACES = [[3, 12, 3, 17], [4, 13, 4, 18], [4, 22, 4, 28]]
ENTRY = "file: src/a.cpp\nline: %s\ncondition: %s\nwhy: so it is\n"


class Gate(unittest.TestCase):
    def judge(self, shown, listed, decisions=1):
        with tempfile.TemporaryDirectory() as folder:
            root = pathlib.Path(folder).resolve()
            (root / "src").mkdir()
            (root / "src/a.cpp").write_text(SOURCE)
            (root / "mcdc.txt").write_text(listed)
            file = {"filename": str(root / "src/a.cpp"), "branches": [[*place, 1, 1, 0, 0, 6] for place in PLACES],
                    "mcdc_records": [[3, 12, 4, 29, 0, 5, shown]] * decisions}
            other = dict(file, filename="/usr/include/a.h")
            found = list(conditions.conditions({"data": [{"files": [file, other]}]}, root))
            with contextlib.redirect_stdout(io.StringIO()) as out:
                passed = conditions.report(found, root / "mcdc.txt")
            return passed, out.getvalue()

    def test_all_are_seen(self):
        self.assertEqual((True, "3 of 3 conditions shown to decide, 0 listed\n"), self.judge([True] * 3, ""))

    def test_one_is_not_seen(self):
        passed, printed = self.judge([True, False, True], "")
        self.assertFalse(passed)
        self.assertIn("src/a.cpp:4: not shown to decide: a < 5\n    (a < 5 || a == 7);\n", printed)
        self.assertIn("2 of 3 conditions", printed)

    def test_the_one_that_is_not_seen_is_listed(self):
        passed, printed = self.judge([False, True, True], ENTRY % ("return a > 1 &&", "a > 1"))
        self.assertEqual((True, "2 of 3 conditions shown to decide, 1 listed\n"), (passed, printed))

    def test_another_is_listed(self):
        passed, printed = self.judge([False, True, True], ENTRY % ("(a < 5 || a == 7);", "a == 7"))
        self.assertFalse(passed)
        self.assertIn("not shown to decide: a > 1\n", printed)
        self.assertIn("mcdc.txt: already shown, or no longer present: src/a.cpp: condition: a == 7\n", printed)

    def test_what_is_listed_is_shown_by_now(self):
        self.assertFalse(self.judge([True] * 3, ENTRY % ("return a > 1 &&", "a > 1"))[0])

    def test_of_a_template_each_use_counts(self):
        self.assertIn("6 of 6 conditions", self.judge([True] * 3, "", decisions=2)[1])

    def test_what_the_compiler_left_out_is_not_seen(self):
        passed, printed = self.judge([], "", decisions=0)
        self.assertFalse(passed)
        self.assertIn("src/a.cpp:3: not shown to decide: &&\n", printed)
        self.assertIn("src/a.cpp:4: not shown to decide: ||\n", printed)

    def test_the_order_of_the_conditions_is_known(self):
        with self.assertRaises(SystemExit):
            self.judge([True] * 2, "")


if __name__ == "__main__":
    sys.exit(unittest.main())
