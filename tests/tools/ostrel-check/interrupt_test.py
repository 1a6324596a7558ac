"""Tests batches that are interrupted or run out of disk space, and are resumed later.

usage: interrupt_test.py OSTREL_CHECK
"""

import json
import os
import re
import resource
import signal
import subprocess
import sys
import tempfile
import time
import unittest

LINES = [text for i in range(40000)
         for text in (f"PARAM_check_port {i * 3}", "", f'{{"check": "PPP_check_user_name", "args": ["{i}"]}}')]
WHERE = re.compile(rb"stopped after line ([0-9]+); resume with --start-line ([0-9]+)\n")


def batch(*options, text=b"", **more):
    return subprocess.run([PROGRAM, "batch", *options], input=text, capture_output=True, check=False, **more)


class Cases(unittest.TestCase):
    def setUp(self):
        with tempfile.TemporaryDirectory() as folder:
            self.folder = folder
        os.mkdir(self.folder)
        self.addCleanup(subprocess.run, ["rm", "-rf", self.folder], check=True)
        self.cases = os.path.join(self.folder, "cases")
        with open(self.cases, "w", encoding="utf-8") as file:
            file.write("\n".join(LINES) + "\n")

    def go_on(self, err, *options):
        where = WHERE.search(err)
        self.assertTrue(where, err)
        self.assertEqual(int(where.group(1)) + 1, int(where.group(2)))
        return batch(*options, "--start-line", where.group(2).decode(), self.cases)


class Interruption(Cases):
    def interrupted(self, number, *options, slow=1000):
        """interrupted runs a batch whose results are read slowly at first, and sends a signal after some of them."""
        process = subprocess.Popen([PROGRAM, "batch", *options], bufsize=0, stdout=subprocess.PIPE,
                                   stderr=subprocess.PIPE)
        out = process.stdout.read(slow)
        process.send_signal(number)
        rest, err = process.communicate(timeout=60)
        return process.returncode, out + rest, err

    def test_both_parts_are_the_whole(self):
        for number, status in ((signal.SIGINT, 130), (signal.SIGTERM, 143)):
            for jobs in ("1", "4"):
                whole = batch("--stream", self.cases)
                got, out, err = self.interrupted(number, "--stream", "--jobs", jobs, self.cases)
                self.assertEqual(status, got)
                self.assertTrue(out.endswith(b"\n"))
                self.assertLess(len(out), len(whole.stdout))
                rest = self.go_on(err, "--stream", "--jobs", jobs)
                self.assertEqual(1, rest.returncode)
                self.assertTrue(whole.stdout == out + rest.stdout)

    def test_lines_keep_the_numbers_of_the_file(self):
        whole = batch("--json", self.cases).stdout.splitlines()
        _, out, err = self.interrupted(signal.SIGTERM, "--json", self.cases)
        parts = out.splitlines()[:-1] + self.go_on(err, "--json").stdout.splitlines()[:-1]
        self.assertTrue(whole[:-1] == parts)
        table = batch("--start-line", "7", "--summary", "text", self.cases).stdout.decode()
        self.assertTrue(table.startswith("      7  accepted"), table[:100])

    def test_summaries_add_up(self):
        files = [os.path.join(self.folder, name) for name in ("whole", "first", "second")]
        batch("--stream", "--summary-file", files[0], self.cases)
        _, _, err = self.interrupted(signal.SIGINT, "--stream", "--summary-file", files[1], self.cases)
        self.go_on(err, "--stream", "--summary-file", files[2])
        added = subprocess.run([PROGRAM, "summarise", "--summary", "json", *files[1:]], capture_output=True, check=True)
        with open(files[0], "rb") as whole:
            self.assertEqual(whole.read(), added.stdout)

    def test_while_it_waits_for_input(self):
        process = subprocess.Popen([PROGRAM, "batch"], stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                   stderr=subprocess.PIPE)
        process.stdin.write(b"PARAM_check_port 1\n")
        process.stdin.flush()
        self.assertIn(b"accepted", process.stdout.readline())
        process.send_signal(signal.SIGINT)
        self.assertEqual(b"1 case: 1 accepted, 0 refused\n", process.stdout.read())
        self.assertEqual(b"stopped after line 1; resume with --start-line 2\n", process.stderr.read())
        self.assertEqual(130, process.wait())
        process.stdin.close()
        process.stdout.close()
        process.stderr.close()

    def test_only_the_current_record_is_finished(self):
        process = subprocess.Popen([PROGRAM, "batch", "--try", "--limit-time", "0.5"], bufsize=0,
                                   stdin=subprocess.PIPE,
                                   stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        process.stdin.write(b"PARAM_check_ui2_value 1\n" * 50)
        process.stdin.flush()
        process.stdout.read(1)
        begin = time.monotonic()
        process.send_signal(signal.SIGINT)
        out, err = process.communicate(timeout=60)
        self.assertLess(time.monotonic() - begin, 10)
        self.assertRegex(out.decode(), r"\n[1-4] cases?: 0 accepted, 0 refused, [1-4] did not return\n$")
        self.assertTrue(WHERE.search(err), err)

    def test_the_second_signal_ends_it(self):
        process = subprocess.Popen([PROGRAM, "batch", self.cases], bufsize=0, stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        process.stdout.read(1)
        for _ in range(2):
            process.send_signal(signal.SIGINT)
            time.sleep(0.3)
        self.assertEqual(-signal.SIGINT, process.wait(timeout=20))
        process.stdout.close()
        process.stderr.close()

    def test_an_ignored_signal_stays_ignored(self):
        process = subprocess.Popen([PROGRAM, "batch", self.cases], bufsize=0, stdout=subprocess.PIPE,
                                   preexec_fn=lambda: signal.signal(signal.SIGINT, signal.SIG_IGN))
        process.stdout.read(1)
        process.send_signal(signal.SIGINT)
        self.assertIn(b"80000 cases: ", process.communicate(timeout=60)[0])

    def test_several_files(self):
        one, two = (os.path.join(self.folder, name) for name in "ab")
        for file in one, two:
            with open(file, "w", encoding="utf-8") as lines:
                lines.write("PARAM_check_port 1\nPARAM_check_port 2\n")
        rows = [json.loads(line) for line in batch("--json", "--start-line", "2", one, two).stdout.splitlines()]
        self.assertEqual([(one, 2), (two, 1), (two, 2)], [(row["file"], row["line"]) for row in rows[:-1]])
        table = batch("--start-line", "9", one, two).stdout.decode()
        self.assertTrue(table.startswith(two + ":\n      1  accepted"), table)

    def test_pieces_have_the_numbers_of_the_whole(self):
        with open(self.cases, "rb") as file:
            lines = file.readlines()
        one, two = (os.path.join(self.folder, name) for name in "ab")
        for name, part in (one, lines[:50000]), (two, lines[50000:]):
            with open(name, "wb") as file:
                file.writelines(part)
        whole = batch("--stream", self.cases).stdout
        second = batch("--stream", "--number-lines-from", "50001", two).stdout
        self.assertTrue(whole == batch("--stream", one).stdout + second)
        rest = batch("--stream", "--number-lines-from", "50001", "--start-line", "50003", two).stdout
        self.assertTrue(second.split(b"\n", 2)[2] == rest)
        rows = batch("--json", "--number-lines-from", "50001", two, one).stdout.splitlines()[:-1]
        self.assertEqual({one: 1, two: 50001}, {row["file"]: row["line"] for row in map(json.loads, reversed(rows))})


class FullDisk(Cases):
    def assert_goes_on(self, output, *options, room):
        """assert_goes_on resumes a batch that ran out of space, and compares both parts with an uninterrupted run."""
        with open(output, "wb") as file:
            full = subprocess.run([PROGRAM, "batch", *options, self.cases], stdout=file, stderr=subprocess.PIPE,
                                  check=False, preexec_fn=room)
        self.assertEqual(2, full.returncode)
        with open(output, "rb") as file:
            first = file.read()
        self.assertTrue(first.endswith(b"\n"))
        whole = batch(*options, self.cases).stdout
        rest = self.go_on(full.stderr, *options).stdout
        if "--json" in options:  # the summary at the end covers only its part
            whole, rest = (text[:text[:-1].rindex(b"\n")] for text in (whole, rest))
        self.assertTrue(whole == first + rest)
        return full.stderr

    def test_results_end_with_a_whole_line(self):
        def limit():
            signal.signal(signal.SIGXFSZ, signal.SIG_IGN)
            resource.setrlimit(resource.RLIMIT_FSIZE, (1000001, 1000001))
        for options in (["--stream"], ["--json"], ["--json", "--only-refused", "--jobs", "3"]):
            err = self.assert_goes_on(os.path.join(self.folder, "results"), *options, room=limit)
            self.assertIn(b"ostrel-check: cannot write the results: File too large\n", err)

    @unittest.skipIf(os.geteuid() != 0 and not os.path.exists("/proc/self/ns/user"), "no namespaces")
    def test_on_a_small_file_system(self):
        place = os.path.join(self.folder, "small")
        os.mkdir(place)
        mounted = subprocess.run(["mount", "-t", "tmpfs", "-o", "size=1m", "none", place], capture_output=True,
                                 check=False)
        if mounted.returncode != 0:
            self.skipTest("no tmpfs can be mounted")
        self.addCleanup(subprocess.run, ["umount", place], check=True)
        err = self.assert_goes_on(os.path.join(place, "results"), "--stream", room=None)
        self.assertIn(b"ostrel-check: cannot write the results: No space left on device\n", err)

    def test_of_which_nothing_could_be_written(self):
        with open("/dev/full", "wb") as full:
            result = subprocess.run([PROGRAM, "batch", self.cases], stdout=full, stderr=subprocess.PIPE, check=False)
        self.assertEqual(2, result.returncode)
        self.assertEqual(b"ostrel-check: cannot write the results: No space left on device\n"
                         b"0 cases: 0 accepted, 0 refused\n"
                         b"stopped after line 0; resume with --start-line 1\n", result.stderr)

    def test_for_the_summary_alone(self):
        result = batch("--stream", "--summary-file", "/dev/full", text=b"PARAM_check_port 1\n")
        self.assertEqual(2, result.returncode)
        self.assertEqual(b"ostrel-check: cannot write the summary: No space left on device\n", result.stderr)
        self.assertIn(b"accepted", result.stdout)
        result = batch("--summary-file", "/nonexistent/file", text=b"PARAM_check_port 1\n")
        self.assertEqual((2, True), (result.returncode, b"No such file" in result.stderr))


class ExitZero(unittest.TestCase):
    def test_verdicts_do_not_count(self):
        text = b"PARAM_check_port 65536\nx\nPARAM_check_port @null\n"
        self.assertEqual(3, batch(text=text).returncode)
        self.assertEqual(0, batch("--exit-zero", text=text).returncode)
        self.assertEqual(2, batch("--exit-zero", "/nonexistent/file").returncode)
        self.assertEqual(2, batch("--exit-zero", "--jobs", "0").returncode)


if __name__ == "__main__":
    PROGRAM = sys.argv[1]
    unittest.main(argv=sys.argv[:1])
