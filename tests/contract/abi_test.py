"""Tests that the library's interface matches the committed baseline, and that a change is detected.

usage: abi_test.py LIBRARY SOURCE_DIR
"""

import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest


class Abi(unittest.TestCase):
    def setUp(self):
        """Copies the files that scripts/abi reads into a temporary folder, where a test can change the baseline."""
        self.tree = pathlib.Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.tree)
        for name in ("scripts/abi", "abi/ostrel_check.abi"):
            (self.tree / name).parent.mkdir()
            shutil.copy(SOURCE_DIR / name, self.tree / name)
        (self.tree / "include").symlink_to(SOURCE_DIR / "include")
        self.baseline = self.tree / "abi/ostrel_check.abi"

    def abi(self, *arguments):
        return subprocess.run([self.tree / "scripts/abi", *arguments, LIBRARY], capture_output=True, text=True,
                              check=False)

    def assert_noticed(self, pattern, replacement, report):
        text, count = re.subn(pattern, replacement, self.baseline.read_text(), flags=re.DOTALL)
        self.assertGreater(count, 0)
        self.baseline.write_text(text)
        result = self.abi()
        self.assertNotEqual(0, result.returncode, result.stdout)
        self.assertIn(report, result.stdout)
        self.assertIn("scripts/abi --accept", result.stderr)

    def test_the_interface_is_the_committed_one(self):
        result = self.abi()
        self.assertEqual(0, result.returncode, result.stdout + result.stderr)

    def test_another_soname_is_noticed(self):
        self.assert_noticed("soname='libostrel_check.so'", "soname='libostrel_check.so.1'", "SONAME changed")

    def test_a_new_name_is_noticed(self):
        self.assert_noticed(r"<elf-symbol name='isEmail'[^>]*>|<function-decl name='isEmail'.*?</function-decl>", "",
                            "isEmail")

    def test_a_name_that_is_gone_is_noticed(self):
        self.assert_noticed("isEmail", "isMail", "isMail")

    def test_another_type_of_an_argument_is_noticed(self):
        declaration = r"(<function-decl name='countChar'.*?<parameter type-id=')[^']*('.*?<parameter type-id=')([^']*)"
        self.assert_noticed(declaration, r"\1\3\2\3", "countChar")

    def test_what_is_accepted_is_the_interface_from_then_on(self):
        before = self.baseline.read_text()
        self.baseline.write_text("")
        self.assertEqual(0, self.abi("--accept").returncode)
        self.assertEqual(0, self.abi().returncode)
        self.assertNotIn(str(SOURCE_DIR), self.baseline.read_text())
        self.assertTrue(before)


if __name__ == "__main__":
    LIBRARY, SOURCE_DIR = sys.argv[1], pathlib.Path(sys.argv[2])
    unittest.main(argv=sys.argv[:1])
