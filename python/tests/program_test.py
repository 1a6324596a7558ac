"""Tests how a session finds its program, checks its version, and ends it."""

import gc
import os
import pathlib
import shutil
import signal
import stat
import sys
import tempfile
import unittest

import support

import ostrel


class Program(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.folder)

    def write(self, text):
        path = self.folder / "ostrel-check"
        path.write_text("#!/bin/sh\n" + text)
        path.chmod(path.stat().st_mode | stat.S_IXUSR)
        return str(path)

    def test_a_missing_program_is_named(self):
        for session in (ostrel.Session("/nowhere/ostrel-check"), ostrel.Session("no-such-program")):
            for ask in (lambda: session.judge("PARAM_check_port", "80"), lambda: len(session.checks)):
                with self.assertRaisesRegex(ostrel.MissingProgram, "no program (/nowhere|no-such).*OSTREL_CHECK"):
                    ask()
        path = self.folder / "ostrel-check"
        path.write_bytes(b"\x7fELF and no more")
        path.chmod(0o755)
        with self.assertRaisesRegex(ostrel.MissingProgram, "cannot be run: Exec format error"):
            ostrel.Session(str(path)).judge("PARAM_check_port", "80")

    def test_another_version_is_an_error_that_says_so(self):
        session = ostrel.Session(self.write("echo ostrel-check 9.9.9\n"))
        for ask in (lambda: session.judge("PARAM_check_port", "80"), lambda: len(session.checks)):
            with self.assertRaisesRegex(ostrel.OtherVersion, "this package and its stubs have version "
                                        f"{ostrel.__version__}, but .* reports ostrel-check 9.9.9; install the same"):
                ask()

    def answering(self, text):
        return ostrel.Session(self.write(f"[ $1 = --version ] && exec echo ostrel-check {ostrel.__version__}\n{text}"))

    def test_a_program_that_ends_again_and_again(self):
        with self.assertRaisesRegex(ostrel.ProgramFailed, "ended 3 times at .*PARAM_check_port.*status 7: no memory"):
            self.answering("echo no memory >&2; exit 7\n").judge("PARAM_check_port", "80")

    def test_a_program_that_answers_nonsense(self):
        for answer in ("what?", "{}", "[]", '{"verdict": "accepted", "code": 0}\\nand more', '{"reason": 1}'):
            with self.assertRaises(ostrel.ProgramFailed), self.answering(f"printf '{answer}\\n'; sleep 9") as session:
                session.judge("PARAM_check_port", "80")

    def test_the_program_is_found_on_the_path(self):
        code = "import ostrel; assert ostrel.judge('PARAM_check_port', '80')"
        environment = {name: value for name, value in support.ENVIRONMENT.items() if name != "OSTREL_CHECK"}
        command = (sys.executable, "-W", "error", "-c", code)
        path = f"{support.PROGRAM.parent}:/usr/bin:/bin"
        self.assertEqual((0, ""), support.run(*command, env={**environment, "PATH": path}))
        status, output = support.run(*command, env={**environment, "PATH": "/nowhere"})
        self.assertEqual(1, status)
        self.assertIn("ostrel._errors.MissingProgram: there is no program ostrel-check; install", output)


class Ends(unittest.TestCase):
    """No process, open file or warning remains after a session."""

    def test_the_context_manager_ends_the_program(self):
        with ostrel.Session() as session:
            self.assertIsNone(session.pid)
            session.judge("PARAM_check_port", "80")
            pid = session.pid
            os.kill(pid, 0)
        self.assertIsNone(session.pid)
        with self.assertRaises(ProcessLookupError):
            os.kill(pid, 0)
        self.assertTrue(session.judge("PARAM_check_port", "80"), "a later call starts another one")
        session.close()
        session.close()

    def test_a_forgotten_session_ends_its_program(self):
        session = ostrel.Session()
        session.judge("PARAM_check_port", "80")
        pid = session.pid
        del session
        gc.collect()
        with self.assertRaises(ProcessLookupError):
            os.kill(pid, 0)

    def test_no_file_is_left_open(self):
        with ostrel.Session() as session:
            session.judge("PARAM_check_port", "80")
            before = len(os.listdir("/proc/self/fd"))
            for _ in range(20):
                os.kill(session.pid, signal.SIGKILL)
                self.assertTrue(session.judge("PARAM_check_port", "80"))
            self.assertEqual(before, len(os.listdir("/proc/self/fd")))

    def test_nothing_is_said_at_the_end_of_python(self):
        self.assertEqual((0, ""), support.python("import ostrel; ostrel.judge('PARAM_check_port', '80')"))
        self.assertEqual((0, ""), support.python(
            "import ostrel; s = ostrel.Session(); next(s.judge_many([('PARAM_check_port', '80')] * 2))"))


if __name__ == "__main__":
    support.main()
