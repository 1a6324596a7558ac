"""Tests the output of each command on a terminal.

usage: terminal_test.py OSTREL_CHECK
"""

import fcntl
import json
import os
import pty
import re
import signal
import struct
import subprocess
import sys
import tempfile
import termios
import time
import unittest

COLOUR = re.compile(r"\x1b\[[0-9]*m")


def at_terminal(*arguments, text=(), columns=80, keys=(), **environment):
    """at_terminal runs the program on a terminal and returns the status and the complete output. Each element of
    keys is a pair: once its text has appeared, its keys are typed."""
    # The program starts after the terminal's width is set.
    start, starting = os.pipe()
    child, terminal = pty.fork()
    if child == 0:
        os.read(start, 1)
        os.environ.pop("NO_COLOR", None)
        os.environ.pop("LESS", None)
        os.environ["TERM"] = "xterm"
        os.environ["PAGER"] = ""
        os.environ.update(environment)
        if text:
            reading, writing = os.pipe()
            if os.fork() == 0:
                signal.signal(signal.SIGINT, signal.SIG_IGN)
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
    fcntl.ioctl(terminal, termios.TIOCSWINSZ, struct.pack("HHHH", 24, columns, 0, 0))
    os.write(starting, b"s")
    os.close(starting)
    shown = b""
    waiting = list(keys)
    while True:
        try:
            part = os.read(terminal, 65536)
        except OSError:
            break
        if not part:
            break
        shown += part
        while waiting and waiting[0][0].encode() in shown:
            os.write(terminal, waiting.pop(0)[1].encode())
    os.close(terminal)
    return os.waitstatus_to_exitcode(os.waitpid(child, 0)[1]), shown.decode("latin-1").replace("\r\n", "\n")


class Terminal(unittest.TestCase):
    def assert_fits(self, shown, columns=80):
        for line in COLOUR.sub("", shown).splitlines():
            self.assertLessEqual(len(line), columns, line)

    def test_verdicts_are_in_colour(self):
        self.assertEqual((0, "\x1b[32maccepted\x1b[0m: 0, valid\n"), at_terminal("PARAM_check_port", "1"))
        status, shown = at_terminal("PARAM_check_port", "65536")
        self.assertEqual(1, status)
        self.assertEqual("library: Error in PARAM_check_port: The port shoud be between 0~65535\n"
                         "\x1b[31mrefused\x1b[0m: 601, out of range (is 65536; at most 65535 is allowed)\n", shown)

    def test_no_colour_if_disabled(self):
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
        self.assert_fits(shown)
        self.assertTrue(shown.startswith("\x1b[1mWLAN_check_wepkeys (wlan_check)\x1b[0m\n"))
        for part in ("the four WEP keys", "NULL: ends the process (failed assertion", 'may become: "";',
                     "803: a character outside the allowed set, OSTREL_FORBIDDEN_CHARACTER", "731:", "402:",
                     "2.1. skips the key if PARAM_check_printable_ascii_string refuses the",
                     "library prints: ", "The previons valid",
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
            self.assert_fits(shown)

    def test_help_and_list_fit(self):
        for command in ([], ["explain"], ["list"], ["batch"], ["summarise"], ["complete"]):
            status, shown = at_terminal(*command, "--help")
            self.assertEqual(0, status)
            self.assertIn("Examples:\n  ostrel-check ", shown)
            self.assert_fits(shown)
        status, shown = at_terminal("list")
        self.assertEqual(0, status)
        self.assert_fits(shown)

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


class Width(unittest.TestCase):
    def width(self, *arguments, columns, **more):
        shown = COLOUR.sub("", at_terminal(*arguments, columns=columns, **more)[1])
        return max(len(line) for line in shown.splitlines()), shown

    def test_pages_have_that_of_the_terminal(self):
        for page in (["list"], ["explain", "WLAN_check_wepkeys"]):
            narrow, of_narrow = self.width(*page, columns=60)
            self.assertLessEqual(narrow, 72 if page == ["list"] else 60)  # a check's usage is a single line
            wide, of_wide = self.width(*page, columns=200)
            self.assertTrue(100 < wide <= 200, wide)
            self.assertLess(of_wide.count("\n"), of_narrow.count("\n"))
            piped = subprocess.check_output([PROGRAM, *page], text=True)
            self.assertEqual(self.width(*page, columns=80)[1], piped)

    def test_a_refusal_is_wrapped(self):
        width, shown = self.width("PARAM_check_port", "65536", columns=50)
        self.assertLessEqual(width, 50)
        self.assertEqual("library: Error in PARAM_check_port: The port shoud\n"
                         "  be between 0~65535\n"
                         "refused: 601, out of range (is 65536; at most\n"
                         "  65535 is allowed)\n", shown)

    def test_a_table_is_wrapped(self):
        line = "WLAN_check_beacon_type WPA3-and-something-that-is-long\n"
        width, shown = self.width("batch", columns=60, text=[line])
        self.assertLessEqual(width, 72)  # the name and the value are on one line
        self.assertEqual("      1  refused     402  WLAN_check_beacon_type\n"
                         "           WPA3-and-something-that-is-long\n"
                         "         invalid value: is not one of None, Basic, WPA, 11i,\n"
                         "           WPAand11i\n"
                         "         library: Error in WLAN_check_beacon_type: Error\n"
                         "           beacon type:WPA3-and-something-that-is-long\n",
                         shown[:shown.index("1 case")])
        piped = subprocess.run([PROGRAM, "batch"], input=line, stdout=subprocess.PIPE, text=True, check=False).stdout
        self.assertIn("\n         library: Error in WLAN_check_beacon_type: Error beacon type:WPA3", piped)


class Pager(unittest.TestCase):
    def test_shows_pages_at_a_terminal(self):
        for page in (["list", "port"], ["explain", "PARAM_check_port"]):
            status, shown = at_terminal(*page, PAGER="sed 's/^/[paged] /'", NO_COLOR="1")
            self.assertEqual(0, status)
            self.assertEqual("".join("[paged] " + line + "\n" for line in at_terminal(*page, NO_COLOR="1")[1].splitlines()),
                             shown)
        self.assertNotIn("paged", at_terminal("list", "--json", "port", PAGER="sed 's/^/[paged] /'")[1])
        self.assertNotIn("paged", at_terminal("PARAM_check_port", "1", PAGER="sed 's/^/[paged] /'")[1])

    def test_is_not_used_elsewhere(self):
        shown = subprocess.run([PROGRAM, "list", "port"], env={"PAGER": "false", "TERM": "xterm"}, check=True,
                               stdout=subprocess.PIPE, text=True).stdout
        self.assertIn("PARAM_check_port", shown)

    def test_that_is_missing(self):
        self.assertIn("PARAM_check_port", at_terminal("list", "port", PAGER="/nowhere/pager")[1])

    def test_that_ends_early(self):
        status, shown = at_terminal("list", PAGER="head -n 2", NO_COLOR="1")
        self.assertEqual((0, 2), (status, shown.count("\n")))


class Waiting(unittest.TestCase):
    def test_batch_says_what_it_waits_for(self):
        shown = at_terminal("batch", keys=[("ends the input.", "PARAM_check_port 80\n"), ("accepted", "\x04")])[1]
        self.assertTrue(shown.startswith("Reading cases from the terminal: NAME VALUE... on each line; Ctrl-D ends the input.\n"),
                        shown)
        self.assertIn("1 case: 1 accepted, 0 refused\n", shown)
        self.assertNotIn("Reading cases", at_terminal("batch", text=["PARAM_check_port 1\n"])[1])

    def test_an_interrupted_batch_leaves_no_partial_line(self):
        slow = ["PARAM_check_port 1\n", 1.6, "PARAM_check_port 70000\n", 60.0]
        status, shown = at_terminal("batch", text=slow, keys=[("between 0~65535", "\x03")])
        self.assertEqual(130, status)
        # The text that remains on the terminal after carriage returns and erasures.
        lines = [re.split(r"\r(?:\x1b\[K)?", line)[-1].replace("\x1b[K", "") for line in COLOUR.sub("", shown).split("\n")]
        self.assertEqual(["      1  accepted      0  PARAM_check_port 1",
                          "      2  refused     601  PARAM_check_port 70000",
                          "         out of range: is 70000; at most 65535 is allowed",
                          "         library: Error in PARAM_check_port: The port shoud be between 0~65535",
                          "By family and code:",
                          "  parameter_check  accepted: 1, refused 601: 1",
                          "2 cases: 1 accepted, 1 refused",
                          "stopped after line 2; resume with --start-line 3",
                          ""], lines)


if __name__ == "__main__":
    PROGRAM = sys.argv[1]
    unittest.main(argv=sys.argv[:1])
