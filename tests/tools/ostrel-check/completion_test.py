"""Tests completion in bash and zsh as a user sees it after pressing Tab.

usage: completion_test.py OSTREL_CHECK SOURCE_DIR
"""

import os
import pathlib
import pty
import re
import select
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import unittest


class Shell:
    PROMPT = "ready> "
    LONGEST = 60.0

    def __init__(self, arguments, set_up, folder):
        child, self.terminal = pty.fork()
        if child == 0:
            os.chdir(folder)
            environment = {"PATH": os.path.dirname(PROGRAM) + ":/usr/bin:/bin", "TERM": "dumb", "HOME": folder,
                           "PS1": self.PROMPT, "LC_ALL": "C.UTF-8", "INPUTRC": "/dev/null"}
            os.execve(shutil.which(arguments[0]), arguments, environment)
        self.child = child
        self.shown = ""
        for line in set_up:
            self.send(line + "\n")
        self.at_prompt("echo set-$((40+2))\n", "set-42")

    def close(self):
        os.kill(self.child, signal.SIGKILL)
        os.waitpid(self.child, 0)
        os.close(self.terminal)

    def send(self, keys):
        os.write(self.terminal, keys.encode())

    def at_prompt(self, keys, wanted):
        """at_prompt sends the keys and returns the output up to the prompt that follows the wanted text. Keys typed
        before the prompt would go to the terminal instead of the shell."""
        self.shown = ""
        self.send(keys)
        end = time.monotonic() + self.LONGEST
        while not re.search("(?s)" + wanted + ".*" + self.PROMPT, self.shown):
            if time.monotonic() > end:
                raise AssertionError("%r is not shown, but %r" % (wanted, self.shown))
            if select.select([self.terminal], [], [], 1.0)[0]:
                self.shown += os.read(self.terminal, 65536).decode(errors="replace")
        return self.shown

    def completed(self, line):
        """completed returns the words of a line after Tab is pressed."""
        # ^A moves to the beginning of the line. The terminal shows the command line, then its output.
        shown = self.at_prompt(line + "\t\x01show_words \n", "<<.*?>>")
        return re.search(r"(?s)<<(.*?)>>", shown)[1].replace("\r", "").strip("\n").split("\n")

    def offered(self, line):
        """offered returns everything shown when Tab is pressed twice; ^U deletes the line."""
        return self.at_prompt(line + "\t\t\x15echo end-$((40+2))\n", "end-42")


class Completion:
    """Completion contains the tests that both shells share."""

    def setUp(self):
        self.folder = tempfile.mkdtemp()
        self.addCleanup(shutil.rmtree, self.folder)
        (pathlib.Path(self.folder) / "settings of lan.txt").touch()
        (pathlib.Path(self.folder) / "maps").mkdir()
        (pathlib.Path(self.folder) / "maps" / "model.json").touch()
        self.shell = self.start()
        self.addCleanup(self.shell.close)

    def complete(self, line):
        return self.shell.completed("ostrel-check " + line)[1:]

    def test_names_in_any_case(self):
        self.assertEqual(["PARAM_check_port"], self.complete("PARAM_check_po"))
        self.assertEqual(["PARAM_check_port"], self.complete("param_CHECK_po"))
        self.assertEqual(["explain", "WLAN_check_wepkeys"], self.complete("explain wlan_check_we"))

    def test_commands_and_options(self):
        self.assertEqual(["summarise"], self.complete("summ"))
        self.assertEqual(["batch", "--with-args"], self.complete("batch --with"))
        self.assertEqual(["--escapes"], self.complete("--esc"))

    def test_values_of_options(self):
        self.assertEqual(["batch", "--encoding", "latin-1"], self.complete("batch --encoding l"))
        self.assertEqual(["batch", "--encoding=latin-1"], self.complete("batch --encoding=l"))
        self.assertEqual(["list", "--family", "port_mapping_check"], self.complete("list --family por"))
        self.assertEqual(["list", "--schema", "summary"], self.complete("list --schema s"))

    def test_after_options_of_the_program(self):
        self.assertEqual(["--limit-time", "3", "batch", "--strict"],
                         self.complete("--limit-time 3 batch --stri"))
        self.assertEqual(["-e", "WLAN_check_beacon_type", "Basic"], self.complete("-e WLAN_check_beacon_type B"))

    def test_keywords(self):
        self.assertEqual(["WLAN_check_channel", "6", "RADIO_5GHz"], self.complete("WLAN_check_channel 6 radio_5"))

    def test_paths(self):
        self.assertEqual(["batch", "settings of lan.txt"], self.complete("batch sett"))
        self.assertEqual(["batch", "--map", "maps/model.json"], self.complete("batch --map maps/mo"))
        self.assertEqual(["batch", "--map=maps/model.json"], self.complete("batch --map=maps/mo"))
        self.assertEqual(["--limit-time", "3", "batch", "--strict", "settings of lan.txt"],
                         self.complete("--limit-time 3 batch --strict sett"))
        self.assertEqual(["summarise", "settings of lan.txt"], self.complete("summarise se"))

    def test_nothing_where_a_value_is_free(self):
        self.assertEqual(["PARAM_check_port", "sett"], self.complete("PARAM_check_port sett"))
        self.assertEqual(["--limit-time", "sett"], self.complete("--limit-time sett"))


class Bash(Completion, unittest.TestCase):
    def start(self):
        return Shell(["bash", "--norc", "--noprofile", "-i"],
                     [". '%s'" % (SOURCE / "packaging" / "completion" / "ostrel-check.bash"),
                      "show_words() { printf '<<'; printf '%s\\n' \"$@\"; printf '>>\\n'; }"], self.folder)

    def test_offers_what_fits(self):
        shown = self.shell.offered("ostrel-check WLAN_check_beacon_type WPA")
        self.assertRegex(shown, r"WPA +WPAand11i")


class Zsh(Completion, unittest.TestCase):
    def start(self):
        functions = pathlib.Path(self.folder) / ".functions"
        functions.mkdir()
        shutil.copy(SOURCE / "packaging" / "completion" / "_ostrel-check", functions)
        return Shell(["zsh", "-f", "-i"],
                     ["PS1='%s'; unsetopt zle_bracketed_paste; fpath=(%s $fpath)" % (Shell.PROMPT, functions),
                      "autoload -Uz compinit && compinit -u -D",
                      "show_words() { printf '<<'; printf '%s\\n' \"$@\"; printf '>>\\n'; }"], self.folder)

    def test_describes_what_fits(self):
        shown = self.shell.offered("ostrel-check batch --enc").replace("\r", "")
        self.assertIn("ostrel-check batch --encoding", shown)
        shown = self.shell.offered("ostrel-check batch --s")
        for option, what in (("--stream", "Print a line of JSON per record"),
                             ("--strict", "Refuse unknown and duplicate members"),
                             ("--summary-file", "Write the summary to this file")):
            self.assertRegex(shown, option + " +-- " + what)


class Candidates(unittest.TestCase):
    @staticmethod
    def complete(*words):
        return subprocess.run([PROGRAM, "complete", *words], capture_output=True, text=True, check=True).stdout

    def test_every_option_of_help_is_offered(self):
        for command in ([], ["explain"], ["list"], ["batch"], ["summarise"], ["compare"]):
            help_text = subprocess.run([PROGRAM, *command, "--help"], capture_output=True, text=True, check=True).stdout
            options = set(re.findall(r"^  (?:-\w,)?(--[a-z-]+)", help_text, re.MULTILINE))
            self.assertIn("--help", options)
            self.assertEqual(options, set(self.complete("--", *command, "--").split()))

    def test_says_what_each_is(self):
        for line in self.complete("--described", "--", "").splitlines():
            self.assertRegex(line, r"^\w+\t.")

    def test_words_that_only_look_like_options(self):
        self.assertEqual("", self.complete("--", "PARAM_check_port", "--j"))
        self.assertEqual("@files\n", self.complete("--", "batch", "--", "--j"))


if __name__ == "__main__":
    PROGRAM = sys.argv[1]
    SOURCE = pathlib.Path(sys.argv[2])
    unittest.main(argv=sys.argv[:1])
