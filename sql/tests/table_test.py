#!/usr/bin/python3
"""Compares the files that sql/generate.py generates with the list of checks that the program prints."""

import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

import shared

GENERATED = ("common/checks.inc", "postgresql/functions.inc", "postgresql/ostrel--1.0.sql")


class Generated(unittest.TestCase):
    def test_is_of_these_checks(self):
        with tempfile.TemporaryDirectory() as name:
            folder = pathlib.Path(name)
            (folder / "list.json").write_bytes(shared.LISTED)
            shutil.copytree(shared.SOURCE / "sql", folder / "sql")
            subprocess.run([sys.executable, shared.SOURCE / "sql/generate.py", folder / "list.json", folder / "sql"],
                           check=True)
            for file in GENERATED:
                self.assertEqual((folder / "sql" / file).read_text(), (shared.SOURCE / "sql" / file).read_text(),
                                 "stale: run ostrel-check list --json >list.json, sql/generate.py list.json sql")


if __name__ == "__main__":
    unittest.main()
