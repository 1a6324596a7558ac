"""What each command shows at a terminal of 80 columns.

usage: terminal_test.py OSTREL_CHECK
"""

import fcntl
import json
import os
import pty
import re
import struct
import subprocess
import sys
import tempfile
import termios
import time
import unittest

COLOUR = re.compile(r"\x1b\[[0-9]*m")


def at_terminal(*arguments, text=(), **environment):
    """at_terminal runs the program at a terminal and gives its status and all that appears."""
    child, terminal = pty.fork()
    if child == 0:
        os.environ.pop("NO_COLOR", None)
        os.environ["TERM"] = "xterm"
        os.environ.update(environment)
        if text:
            reading, writing = os.pipe()
            if os.fork() == 0:
                os.close(reading)
                for line in text:
                    if isinstance(line, float):
                        time.sleep(line)
                    else:
                        os.write(writing, line.encode())
                os._exit(0)
            os.close(writing)
            os.dup2(reading, 0)
        if environment.get("OUT"):
            os.dup2(os.open(environment["OUT"], os.O_WRONLY), 1)
        os.execv(PROGRAM, [PROGRAM, *arguments])
    fcntl.ioctl(terminal, termios.TIOCSWINSZ, struct.pack("HHHH", 24, 80, 0, 0))
    shown = b""
    while True:
        try:
            part = os.read(terminal, 65536)
        except OSError:
            break
        if not part:
            break
        shown += part
    os.close(terminal)
    return os.waitstatus_to_exitcode(os.waitpid(child, 0)[1]), shown.decode("latin-1").replace("\r\n", "\n")


class Terminal(unittest.TestCase):
    def assert_fits(self, shown, exceptions=()):
        for line in COLOUR.sub("", shown).splitlines():
            if not line.lstrip().startswith(exceptions or "\0"):
                self.assertLessEqual(len(line), 80, line)

    def test_verdicts_are_in_colour(self):
        self.assertEqual((0, "\x1b[32maccepted\x1b[0m: 0, valid\n"), at_terminal("PARAM_check_port", "1"))
        status, shown = at_terminal("PARAM_check_port", "65536")
        self.assertEqual(1, status)
        self.assertEqual("Error in PARAM_check_port: The port shoud be between 0~65535\n"
                         "\x1b[31mrefused\x1b[0m: 601, out of range (is 65536; at most 65535 is allowed)\n", shown)

    def test_no_colour_where_none_is_wanted(self):
        plain = (0, "accepted: 0, valid\n")
        self.assertEqual(plain, at_terminal("PARAM_check_port", "1", NO_COLOR="1"))
        self.assertEqual(plain, at_terminal("PARAM_check_port", "1", TERM="dumb"))
        for command in (["list"], ["explain", "PARAM_check_port"], ["--help"], ["PARAM_check_prot"]):
            self.assertNotIn("\x1b", at_terminal(*command, NO_COLOR="1")[1])

    def test_control_bytes_are_escaped(self):
        shown = at_terminal("PARAM_check_bool_value", "\x1b[1m", NO_COLOR="1")[1]
        self.assertNotIn("\x1b", shown)
        self.assertIn("The value \\x1B[1m out of range", shown)

    def test_explain(self):
        status, shown = at_terminal("explain", "WLAN_check_wepkeys")
        self.assertEqual(0, status)
        self.assert_fits(shown, ("prints", "standard error"))
        self.assertTrue(shown.startswith("\x1b[1mWLAN_check_wepkeys (wlan)\x1b[0m\n"))
        for part in ("the four WEP keys", "NULL: ends the process, by a failed assertion", 'may become: "";',
                     "803: a character outside the allowed set, OSTREL_FORBIDDEN_CHARACTER", "731:", "402:",
                     "2.1. skips the key where PARAM_check_printable_ascii_string refuses the",
                     "The previons valid key length is <common> and now <length> for: <key>\\n\\n",
                     "What an accepted value may contain"):
            self.assertIn(part, shown)

    def test_every_explanation_fits(self):
        names = [line.split()[0] for line in at_terminal("list", NO_COLOR="1")[1].splitlines()
                 if line.startswith("  ") and not line.startswith("   ")]
        listed = json.loads(subprocess.check_output([PROGRAM, "list", "--json"]))
        self.assertEqual([check["name"] for check in listed["checks"]], names)
        for name in names[::17]:
            status, shown = at_terminal("explain", name)
            self.assertEqual(0, status, name)
            self.assert_fits(shown, ("prints", "standard error"))

    def test_help_and_list_fit(self):
        for command in ([], ["explain"], ["list"], ["batch"], ["summarise"], ["complete"]):
            status, shown = at_terminal(*command, "--help")
            self.assertEqual(0, status)
            self.assertIn("Examples:\n  ostrel-check ", shown)
            self.assert_fits(shown)
        status, shown = at_terminal("list")
        self.assertEqual(0, status)
        self.assert_fits(shown)

    def test_errors_say_what_to_do(self):
        for command, advice in ((["PARAM_check_prot", "1"], "ostrel-check list shows every check."),
                                (["explain", "x"], "ostrel-check list shows every check."),
                                (["PARAM_check_port"], "ostrel-check explain PARAM_check_port says what it takes."),
                                ([], "ostrel-check --help shows how to use it."),
                                (["--nothing"], "ostrel-check --help shows how to use it."),
                                (["batch", "--jobs", "0"], "ostrel-check --help shows how to use it.")):
            status, shown = at_terminal(*command)
            self.assertEqual(2, status)
            self.assertEqual(advice, shown.splitlines()[-1])

    def test_batch_shows_progress_after_a_second(self):
        slow = ["PARAM_check_port 1\n", 1.6, "PARAM_check_port 70000\n", 0.6, "PARAM_check_port 3\n"]
        shown = at_terminal("batch", text=slow, OUT="/dev/null")[1]
        self.assertRegex(shown, r"\r[0-9]+ cases?, [0-9]+ refused, [0-9]+ a second, [0-9]+ s\x1b\[K")
        self.assertTrue(shown.endswith("\r\x1b[K"), repr(shown))

    def test_progress_knows_the_size_of_files(self):
        with tempfile.NamedTemporaryFile("w") as file:
            file.write("PARAM_check_port 70000\n" + "PARAM_check_ui2_value 1\n" * 3)
            file.flush()
            shown = at_terminal("batch", "--try", "--limit-time", "0.7", file.name, OUT="/dev/null")[1]
        self.assertRegex(shown, r"\r(49|74)%, [23] cases, 1 refused, [0-9]+ a second, [0-9]+ s left\x1b\[K")

    def test_quick_batch_shows_none(self):
        status, shown = at_terminal("batch", text=["PARAM_check_port 1\n"])
        self.assertEqual((0, "      1  accepted      0  PARAM_check_port 1\n1 case: 1 accepted, 0 refused\n"),
                         (status, shown))


if __name__ == "__main__":
    PROGRAM = sys.argv[1]
    unittest.main(argv=sys.argv[:1])
