"""Helpers for the tests of the Python package. Each test takes the arguments OSTREL_CHECK and SOURCE_DIR."""

import os
import pathlib
import subprocess
import sys
import unittest

PROGRAM, SOURCE = (pathlib.Path(path).resolve() for path in sys.argv[1:3])
PACKAGE = SOURCE / "python"
ENVIRONMENT = {**os.environ, "OSTREL_CHECK": str(PROGRAM), "PYTHONPATH": str(PACKAGE), "PYTHONDONTWRITEBYTECODE": "1"}

os.environ["OSTREL_CHECK"] = str(PROGRAM)
sys.path[:0] = [str(PACKAGE), str(SOURCE / "vectors")]


def run(*command, **options):
    result = subprocess.run(list(map(str, command)), stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                            stderr=subprocess.STDOUT, check=False, text=True, **{"env": ENVIRONMENT, **options})
    return result.returncode, result.stdout


def python(text):
    return run(sys.executable, "-W", "error", "-c", text)


def main():
    unittest.main(argv=sys.argv[:1])
