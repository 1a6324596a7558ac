"""Tests the fixture of the pytest plugin and its failure messages."""

import pathlib
import sys
import tempfile
import unittest

import support

TESTS = '''
import pytest


def test_good(ostrel):
    assert ostrel.judge("PARAM_check_port", "80")
    assert ostrel.accepts("PARAM_check_port", "80").code == 0
    assert ostrel.refuses("PARAM_check_port", "65536", code=601, reason="number_too_high").lines


def test_judge(ostrel):
    assert ostrel.judge("PARAM_check_port", "65536")


def test_accepts(ostrel):
    ostrel.accepts("PARAM_check_port", "65536")


def test_ended(ostrel):
    ostrel.accepts("PARAM_check_port", None)


def test_refuses(ostrel):
    ostrel.refuses("PARAM_check_port", "80")


def test_code(ostrel):
    ostrel.refuses("PARAM_check_port", "65536", code=402)


def test_reason(ostrel):
    ostrel.refuses("PARAM_check_port", "65536", reason="empty")


def test_typing_error(ostrel):
    with pytest.raises(ValueError, match="did you mean PARAM_check_port\\?"):
        ostrel.accepts("PARAM_check_prot", "80")


@pytest.mark.parametrize("size", [6, 7])
def test_encoding(ostrel, size):
    ostrel.accepts("PARAM_check_string_len", "Straße", size, size)
'''

TOLD = [
    "E       AssertionError: assert <Verdict refused with 601, out of range: is 65536; at most 65535 is allowed>",
    "E       AssertionError: PARAM_check_port('65536') should have been accepted\n"
    "E         it was refused with 601, out of range: is 65536; at most 65535 is allowed\n"
    "E         it printed 'Error in PARAM_check_port: The port shoud be between 0~65535\\n'\n",
    "E       AssertionError: PARAM_check_port(None) should have been accepted\n"
    "E         it was ended: an assertion ended the process (SIGABRT): is NULL, which fails an assertion in the check\n"
    "E         it wrote \"ostrel-check: parameter_check:",
    "E       AssertionError: PARAM_check_port('80') should have been refused\n"
    "E         it was accepted\n",
    "E       AssertionError: PARAM_check_port('65536') should have been refused with 402\n",
    "E       AssertionError: PARAM_check_port('65536') should have been refused for empty, not for number_too_high\n",
]


class Plugin(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.scratch = pathlib.Path(scratch.name)
        (self.scratch / "gateway_test.py").write_text(TESTS)

    def pytest(self, *arguments, **variables):
        return support.run(sys.executable, "-m", "pytest", "-p", "ostrel.pytest_plugin", "-p", "no:cacheprovider",
                           *arguments, cwd=self.scratch, env={**support.ENVIRONMENT, **variables})

    def test_failures_tell_why(self):
        status, output = self.pytest()
        self.assertEqual(1, status, output)
        self.assertIn("7 failed, 3 passed", output)
        for text in TOLD:
            self.assertIn(text, output)
        self.assertNotIn("pytest_plugin.py", output, "a failure is shown where the test is")

    def test_the_program_and_the_encoding_can_be_named(self):
        (self.scratch / "pytest.ini").write_text("[pytest]\nostrel_encoding = latin-1\n")
        status, output = self.pytest(f"--ostrel-check={support.PROGRAM}", "-k", "good or encoding",
                                     OSTREL_CHECK="/nowhere")
        self.assertEqual(1, status, output)
        self.assertIn("1 failed, 2 passed", output)
        self.assertIn("FAILED gateway_test.py::test_encoding[7]", output)
        status, output = self.pytest("-k", "good", OSTREL_CHECK="/nowhere")
        self.assertIn("MissingProgram: there is no program /nowhere", output)


if __name__ == "__main__":
    support.main()
