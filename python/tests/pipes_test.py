"""Tests closed pipes, interrupts, and more output than a pipe can hold."""

import os
import unittest
from unittest import mock

import support

import ostrel
from life_test import cases, expected, lines_of
from ostrel import _process


class Pipes(unittest.TestCase):
    def test_a_caller_who_dies_of_closed_pipes_does_not_die(self):
        self.assertEqual((0, ""), support.python("""
import os, signal, ostrel
signal.signal(signal.SIGPIPE, signal.SIG_DFL)
session = ostrel.Session()
for _ in range(20):
    assert session.judge("PARAM_check_port", "80")
    os.kill(session.pid, signal.SIGKILL)
    os.waitid(os.P_PID, session.pid, os.WEXITED | os.WNOWAIT)
assert len(list(session.judge_many([("PARAM_check_port", "80")] * 50000))) == 50000
session.close()
"""))

    def test_a_program_that_closes_its_input(self):
        with ostrel.Session() as session:
            session.judge("PARAM_check_port", "80")
            session._owner.process._socket.shutdown(2)
            self.assertTrue(session.judge("PARAM_check_port", "80"))

    def test_an_interrupt_leaves_no_answers(self):
        with ostrel.Session() as session:
            read = _process._verdicts_of
            with mock.patch.object(_process, "_verdicts_of", side_effect=KeyboardInterrupt):
                with self.assertRaises(KeyboardInterrupt):
                    list(session.judge_many(cases(5000)))
            self.assertIs(read, _process._verdicts_of)
            self.assertEqual(expected(5000), lines_of(session.judge_many(cases(5000))))

    def test_the_terminals_interrupt_does_not_reach_the_program(self):
        with ostrel.Session() as session:
            session.judge("PARAM_check_port", "80")
            self.assertEqual(session.pid, os.getpgid(session.pid))

    def test_large_values_both_ways(self):
        """Neither side blocks the other when both write more than a pipe can hold."""
        value = "x" * (1 << 20)
        with ostrel.Session() as session:
            verdicts = list(session.judge_many([("LAN_check_interface_addr_type", value)] * 30))
            line = f"Error in LAN_check_interface_addr_type: Error ip interface addressing type:{value}\n"
            self.assertEqual([(line, "\n")] * 30, lines_of(verdicts))
            self.assertFalse(session.judge("PARAM_check_port", "9" * (15 << 20)))
            with self.assertRaisesRegex(ostrel.MalformedCall, "16 MiB"):
                session.judge("PARAM_check_port", "9" * (17 << 20))
            self.assertTrue(session.judge("PARAM_check_port", "80"))


if __name__ == "__main__":
    support.main()
