"""Tests that stale stubs are noticed, and that mypy, using the stubs, reports every misuse and nothing else."""

import pathlib
import re
import tempfile
import unittest

import support

WRONG = "  # wrong"
USES = '''
from typing import assert_type

import ostrel
from ostrel.pytest_plugin import Gateway

verdict = ostrel.judge("PARAM_check_port", "80")
assert_type(verdict, ostrel.Verdict)
if verdict.reason is not None:
    assert_type(verdict.reason.offset, int | None)
ostrel.judge("PARAM_check_port", b"80")
ostrel.judge("PARAM_check_port", None)
ostrel.judge("countChar", "banana", 97)
ostrel.judge("TcmValidatePPPUsername", "user")
ostrel.judge("TcmValidatePPPUsername", "user", 0)
ostrel.judge("WLAN_check_wepkeys", ["1", "2", "3", "4"])
ostrel.judge("WLAN_check_wepkeys", [b"1", b"2", b"3", b"4"])
ostrel.judge("PARAM_check_prot", "80")  # wrong
ostrel.judge("PARAM_check_port")  # wrong
ostrel.judge("PARAM_check_port", "80", "81")  # wrong
ostrel.judge("PARAM_check_port", 80)  # wrong
ostrel.judge("countChar", "banana", "a")  # wrong
ostrel.judge("WLAN_check_wepkeys", "1234")  # wrong
verdict.code = 3  # wrong
ostrel.Session(encoding="utf-16")  # wrong


def judge_all(names: list[str], values: list[str]) -> list[ostrel.Verdict]:
    ostrel.judge(names[0], values[0])  # wrong
    assert_type(ostrel.call(names[0], values), ostrel.Verdict)
    with ostrel.Session("ostrel-check", encoding="latin-1", limit_time=1, channels=[1, 6]) as session:
        assert_type(session.judge("PARAM_check_port", "80"), ostrel.Verdict)
        return list(session.judge_many(zip(names, values)))


def test_port(ostrel: Gateway) -> None:
    ostrel.accepts("PARAM_check_port", "80")
    ostrel.refuses("PARAM_check_port", "65536", code="601")  # wrong


for name, check in ostrel.checks.items():
    assert_type(check.arguments, tuple[ostrel.ArgumentOf, ...])
    ostrel.checks["PARAM_check_port"] = check  # wrong
'''


class Stubs(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.scratch = pathlib.Path(scratch.name)

    def mypy(self, *arguments):
        return support.run("mypy", "--strict", "--python-executable", "/usr/bin/python3", "--no-error-summary",
                           "--cache-dir", self.scratch / "cache", *arguments, cwd=self.scratch,
                           env={**support.ENVIRONMENT, "MYPYPATH": str(support.PACKAGE)})

    def test_another_catalogue_makes_other_stubs(self):
        program = self.scratch / "ostrel-check"
        program.write_text(f"#!/bin/sh\n'{support.PROGRAM}' \"$@\" | sed 's/PARAM_check_port/PARAM_check_prot/'\n")
        program.chmod(0o755)
        status, output = support.run(support.SOURCE / "scripts/stubs", "--check", program)
        self.assertEqual((1, "_calls.pyi of python/ostrel is stale: run scripts/stubs\n"), (status, output))

    def test_mypy_finds_what_is_wrong(self):
        (self.scratch / "uses.py").write_text(USES)
        _, output = self.mypy("uses.py", support.PACKAGE / "ostrel")
        self.assertEqual(re.findall(r"^(?!uses\.py:\d+: (?:error|note):).*", output, re.MULTILINE), [""], output)
        found = {int(number) for number in re.findall(r"^uses\.py:(\d+): error:", output, re.MULTILINE)}
        expected = {number for number, line in enumerate(USES.split("\n"), 1) if line.endswith(WRONG)}
        self.assertGreater(len(expected), 8)
        self.assertEqual(expected, found, output)


if __name__ == "__main__":
    support.main()
