"""What the tests of the Python package share. The arguments of each are OSTREL_CHECK and SOURCE_DIR."""

import json
import os
import pathlib
import subprocess
import sys
import unittest

PROGRAM, SOURCE = (pathlib.Path(path).resolve() for path in sys.argv[1:3])
PACKAGE = SOURCE / "python"
ENVIRONMENT = {**os.environ, "OSTREL_CHECK": str(PROGRAM), "PYTHONPATH": str(PACKAGE), "PYTHONDONTWRITEBYTECODE": "1"}

os.environ["OSTREL_CHECK"] = str(PROGRAM)
sys.path.insert(0, str(PACKAGE))


def run(*command, **options):
    """run returns the exit code of a command and all that it printed."""
    result = subprocess.run(list(map(str, command)), stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                            stderr=subprocess.STDOUT, check=False, text=True, **{"env": ENVIRONMENT, **options})
    return result.returncode, result.stdout


def python(text):
    return run(sys.executable, "-W", "error", "-c", text)


def text_of(value):
    """text_of returns an argument of a vector, in which each character is a byte."""
    if isinstance(value, dict):
        return text_of(value["repeat"]) * value["times"] if "repeat" in value else "".join(map(text_of, value["join"]))
    return [text_of(text) for text in value] if isinstance(value, list) else value


def vectors():
    for path in sorted((SOURCE / "vectors").glob("*.ndjson")):
        for number, line in enumerate(path.read_text(encoding="utf-8").split("\n"), 1):
            if line:
                yield f"{path.name}:{number}", json.loads(line)


def main():
    unittest.main(argv=sys.argv[:1])
