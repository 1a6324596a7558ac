"""Tests sessions whose program is killed, sessions in forked processes, and sessions that threads share."""

import itertools
import multiprocessing
import os
import signal
import threading
import time
import unittest
from unittest import mock

import support

import ostrel
from ostrel import _process


def cases(count, first=0):
    """cases returns the given number of cases. Every second case is refused, each with a different line."""
    return [("LAN_check_interface_addr_type", "Static" if number % 2 else f"{number}")
            for number in range(first, first + count)]


def expected(count, first=0):
    line = "Error in LAN_check_interface_addr_type: Error ip interface addressing type:%d\n"
    return [() if number % 2 else (line % number, "\n") for number in range(first, first + count)]


def lines_of(verdicts):
    return [verdict.lines for verdict in verdicts]


def count_in_child(session):
    child = os.fork()
    if child == 0:
        status = 1
        try:
            status = 0 if lines_of(session.judge_many(cases(1000))) == expected(1000) else 2
            session.close()
        finally:
            os._exit(status)
    return os.waitstatus_to_exitcode(os.waitpid(child, 0)[1])


class Killed(unittest.TestCase):
    def setUp(self):
        self.session = ostrel.Session()
        self.addCleanup(self.session.close)

    def test_between_two_calls(self):
        self.assertTrue(self.session.judge("PARAM_check_port", "80"))
        for number in (signal.SIGKILL, signal.SIGSEGV):
            pid = self.session.pid
            os.kill(pid, number)
            self.assertTrue(self.session.judge("PARAM_check_port", "80"))
            self.assertNotEqual(pid, self.session.pid)

    def test_in_the_middle_of_a_block(self):
        """The program is killed after its first answers in each of the first blocks."""
        killed = []

        def kill_then_read(lines):
            if len(killed) < 5 and self.session.pid not in killed:
                killed.append(self.session.pid)
                os.kill(killed[-1], signal.SIGKILL)
            return read(lines)

        read = _process._verdicts_of
        count = 30000
        with mock.patch.object(_process, "_verdicts_of", kill_then_read):
            verdicts = list(self.session.judge_many(cases(count), block=20000))
        self.assertEqual(5, len(killed))
        self.assertEqual(expected(count), lines_of(verdicts))

    def test_at_any_time(self):
        """Each program is killed once, some time after its first answer."""
        stop = threading.Event()
        answered, killed = set(), set()
        read = _process._verdicts_of

        def notice(lines):
            answered.add(self.session.pid)
            return read(lines)

        def kill():
            while not stop.is_set():
                for pid in answered - killed:
                    time.sleep(0.001 * len(killed))
                    killed.add(pid)
                    os.kill(pid, signal.SIGKILL)
                time.sleep(0.001)

        thread = threading.Thread(target=kill)
        thread.start()
        try:
            with mock.patch.object(_process, "_verdicts_of", notice):
                for start in itertools.count(step=5000):
                    self.assertEqual(expected(5000, start), lines_of(self.session.judge_many(cases(5000, start))))
                    if len(killed) >= 10:
                        break
        finally:
            stop.set()
            thread.join()

    def test_the_worker_ends_with_the_program(self):
        self.session.judge("PARAM_check_port", "80")
        with open(f"/proc/{self.session.pid}/task/{self.session.pid}/children", encoding="ascii") as file:
            (worker,) = file.read().split()
        os.kill(self.session.pid, signal.SIGKILL)
        self.session.judge("PARAM_check_port", "80")
        for _ in range(100):
            if not os.path.exists(f"/proc/{worker}"):
                return
            time.sleep(0.05)
        self.fail("the worker is still there")


class Forked(unittest.TestCase):
    def test_a_child_makes_its_own(self):
        with ostrel.Session() as session:
            session.judge("PARAM_check_port", "80")
            pid = session.pid
            self.assertEqual(0, count_in_child(session))
            self.assertEqual(pid, session.pid)
            self.assertEqual(expected(1000), lines_of(session.judge_many(cases(1000))))
            self.assertEqual(pid, session.pid, "the child has not ended the program of its parent")

    def test_in_the_middle_of_many(self):
        with ostrel.Session() as session:
            verdicts = session.judge_many(cases(3000), block=100)
            begun = [next(verdicts) for _ in range(50)]
            child = os.fork()
            if child == 0:
                status = 1
                try:
                    status = 0 if lines_of(begun + list(verdicts)) == expected(3000) else 2
                finally:
                    os._exit(status)
            self.assertEqual(expected(3000), lines_of(begun + list(verdicts)))
            self.assertEqual(0, os.waitstatus_to_exitcode(os.waitpid(child, 0)[1]))

    def test_while_another_thread_judges(self):
        with ostrel.Session() as session:
            stop = threading.Event()

            def judge():
                while not stop.is_set():
                    self.assertEqual(expected(4000), lines_of(session.judge_many(cases(4000))))

            thread = threading.Thread(target=judge)
            thread.start()
            try:
                self.assertEqual([0] * 10, [count_in_child(session) for _ in range(10)])
            finally:
                stop.set()
                thread.join()

    def test_the_program_of_the_parent_ends_while_a_child_lives(self):
        with ostrel.Session() as session:
            session.judge("PARAM_check_port", "80")
            reading, writing = os.pipe()
            child = os.fork()
            if child == 0:
                os.close(writing)
                os.read(reading, 1)
                os._exit(0)
            started = time.monotonic()
            session.close()
            self.assertLess(time.monotonic() - started, 4)
            os.close(writing)
            os.close(reading)
            os.waitpid(child, 0)

    def test_a_pool_of_processes(self):
        with multiprocessing.get_context("fork").Pool(2) as pool:
            verdicts = pool.starmap(ostrel.judge, cases(200))
        self.assertEqual(expected(200), lines_of(verdicts))


class Threads(unittest.TestCase):
    def test_share_a_session(self):
        with ostrel.Session() as session:
            wrong = []

            def judge(first):
                for number in range(first, first + 100):
                    (case,), (lines,) = cases(1, number), expected(1, number)
                    if session.judge(*case).lines != lines:
                        wrong.append(number)
                if lines_of(session.judge_many(cases(5000, first), block=700)) != expected(5000, first):
                    wrong.append(first)

            threads = [threading.Thread(target=judge, args=(10000 * number,)) for number in range(8)]
            for thread in threads:
                thread.start()
            pids = {session.pid for _ in iter(lambda: any(thread.is_alive() for thread in threads), False)}
            for thread in threads:
                thread.join()
            self.assertEqual([], wrong)
            self.assertLessEqual(len(pids - {None}), 1)

    def test_cases_may_be_judged_while_cases_are_made(self):
        with ostrel.Session() as session:
            made = (("PARAM_check_port", "80") for _ in range(10) if session.judge("PARAM_check_port", "80"))
            judged = [session.judge("PARAM_check_port", "65536").code for verdict in session.judge_many(made, block=3)
                      if verdict]
            self.assertEqual([601] * 10, judged)


if __name__ == "__main__":
    support.main()
