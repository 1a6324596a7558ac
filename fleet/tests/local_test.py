"""Tests that runs on this machine produce the same results as a single batch, even after faults and interruptions."""

import json
import os
import pathlib
import shutil
import signal
import subprocess
import unittest

import support


class Whole(support.Folder):
    def test_files_of_every_form(self):
        files = [*self.files, *self.make_fleet()]
        code, said = self.fleet(self.out, *files)
        self.assertEqual(2, code, said)  # the objects in the nested JSON are not cases
        self.assert_whole(files)

    def test_blocks_have_the_lines_of_their_file(self):
        words = self.scratch / "cases.words"
        words.write_text("# comment\n" + "PARAM_check_port 1 # good\n\nPARAM_check_port 99999\n" * 2000)
        marked = self.scratch / "marked.jsonl"
        marked.write_bytes(b"\xef\xbb\xbf" + self.files[0].read_bytes())
        files = [self.files[0], words, marked]
        code, said = self.fleet("--block", "4k", self.out, *files)
        self.assertEqual(1, code, said)
        self.assertGreater(len(list((self.out / "results").iterdir())), 20)
        self.assert_whole(files)

    def test_what_is_not_lines_is_not_cut(self):
        packed = self.scratch / "packed.ndjson"
        packed.write_bytes(subprocess.run(["gzip", "-c", self.files[0]], stdout=subprocess.PIPE, check=True).stdout)
        files = [*self.make_fleet(), packed]
        code, said = self.fleet("--block", "1k", self.out, *files)
        self.assertEqual(2, code, said)
        self.assertEqual(4, len(list((self.out / "results").iterdir())))
        self.assert_whole(files)

    def test_options_and_a_map_reach_the_program(self):
        files = self.make_fleet()[1:]
        options = ["--redact", "--with-args"]
        tr_098 = os.path.relpath(support.SOURCE / "examples/maps/tr-098.json")
        code, said = self.fleet("--map", tr_098, self.out, *files, "--", *options)
        self.assertIn(code, (1, 2), said)
        self.assert_whole(files, "--map", str(support.SOURCE / "examples/maps/tr-098.json"), *options)
        self.assertIn(b" bytes>", self.joined())

    def test_verdicts_make_the_exit_code(self):
        for number, (line, code) in enumerate((("PARAM_check_port 1", 0), ("PARAM_check_port x9999999", 0),
                                               ("PARAM_check_port 65536", 1), ("PARAM_check_prot 1", 2),
                                               ("PARAM_check_port @null", 3))):
            file = self.scratch / f"{number}.words"
            file.write_text(line + "\n")
            got = subprocess.run([support.PROGRAM, "batch", file], check=False, stdout=subprocess.PIPE).returncode
            self.assertEqual(code, got)
            with self.subTest(line=line):
                self.assertEqual(code, self.fleet(self.scratch / str(number), file)[0])
        self.assertEqual(0, self.fleet("--exit-zero", self.scratch / "zero", file)[0])


class Broken(support.Folder):
    def test_a_file_that_cannot_be_read_is_named_and_judged_later(self):
        lost, folder = self.scratch / "lost.ndjson", self.scratch / "folder.ndjson"
        folder.mkdir()
        code, said = self.fleet(self.out, lost, self.files[0], folder, self.files[1])
        self.assertEqual(4, code, said)
        for line in f"{lost}: cannot be read: No such file", f"{folder}: cannot be read: ", "2 unreadable files":
            self.assertIn(line, said)
        self.assertEqual([str(lost), str(folder)], [one["file"] for one in self.summary()["missing"]])
        self.assertEqual(2, self.summary()["summary"]["unreadable_files"])
        self.assert_whole(self.files[:2])
        folder.rmdir()
        for path, number in (lost, 2), (folder, 3):
            shutil.copy(self.files[number], path)
        before = self.times()
        code, said = self.fleet("--resume", self.out)
        self.assertEqual(1, code, said)
        self.assertNotIn("missing", self.summary())
        self.assert_whole([lost, self.files[0], folder, self.files[1]])
        self.assertEqual(before, {name: time for name, time in self.times().items() if name in before})

    def times(self):
        return {path.name: path.stat().st_mtime_ns for path in (self.out / "results").iterdir()}

    def test_a_file_that_was_cut_is_named_and_judged_later(self):
        whole = self.files[1].read_bytes()
        self.files[1].write_bytes(whole[:len(whole) // 2 // 100 * 100 + 7])
        lines = self.files[1].read_bytes().count(b"\n") + 1
        code, said = self.fleet("--block", "4k", self.out, *self.files)
        self.assertEqual(4, code, said)
        self.assertIn(f"{self.files[1]}: the file ends in the middle of line {lines}\n", said)
        self.assertIn("missing", self.summary())
        self.assert_whole(self.files)
        self.assertEqual(4, self.fleet("--resume", self.out)[0])
        self.files[1].write_bytes(whole)
        code, said = self.fleet("--resume", self.out)
        self.assertEqual(1, code, said)
        self.assertIn(f"{self.files[1]} has changed since it was judged; it will be judged again\n", said)
        self.assert_whole(self.files)

    def test_a_value_that_may_have_been_cut(self):
        words = self.scratch / "cases.words"
        words.write_text("PARAM_check_port 1\nPARAM_check_port 655")
        code, said = self.fleet(self.out, words)
        self.assertEqual(0, code)
        self.assertIn(f"{words}: line 2, the last one, has no line ending and may be incomplete\n", said)

    def test_results_that_were_cut_or_changed_are_made_again(self):
        self.assertEqual(1, self.fleet(self.out, *self.files)[0])
        results = sorted((self.out / "results").iterdir())
        os.truncate(results[0], 1000)
        results[1].unlink()
        mark = self.out / "done" / "000003.0001.json"
        mark.write_text(mark.read_text()[:100])
        code, said = self.fleet("--resume", self.out)
        self.assertEqual(1, code, said)
        self.assertIn(f"{results[0]} is incomplete; it will be judged again\n", said)
        self.assert_whole(self.files)

    def test_a_full_disk(self):
        room = self.scratch / "room"
        room.mkdir()
        self.out = room / "out"
        size = sum(len(self.judged(file)[0]) for file in self.files[:2])
        mount = f'mount -t tmpfs -o size={size} none {room} && "$@"; code=$?; ' \
                f'find {room} -name ".*" ; mount -o remount,size=1g {room} && "$@" --resume; ' \
                f'cat {room}/out/results/* >{self.scratch}/joined; exit $code'
        as_root = [] if os.geteuid() == 0 else ["--user", "--map-root-user"]
        script = ["unshare", *as_root, "--mount", "sh", "-c", mount, "sh", support.RUNNER, "--jobs", "1", self.out,
                  *self.files]
        process = self.start(*script)
        said, _ = process.communicate(timeout=60)
        if "unshare" in said:
            self.skipTest(said)
        self.assertEqual(4, process.returncode, said)
        self.assertRegex(said, "cases [0-9].ndjson was not judged on .*No space left on device")
        self.assertIn("resume with\n", said)
        self.assertNotIn(".tmp\n", said)
        self.assertTrue(self.judged(*self.files)[0] == (self.scratch / "joined").read_bytes())


class Interruption(support.Folder):
    def test_both_signals(self):
        slow, environment = self.slow_program()
        for number, code in (signal.SIGINT, 130), (signal.SIGTERM, 143):
            self.hold.touch()
            process = self.start(support.RUNNER, "--jobs", "2", "--program", slow, self.out, *self.files,
                                 env=environment)
            support.wait_until(lambda: len(self.at_work()) == 2)
            again = self.fleet("--resume", "--program", slow, self.out, env=environment)
            self.assertEqual((2, f"ostrel-fleet: another runner is already using {self.out}\n"), again)
            got, said = support.interrupt(process, number)
            self.assertEqual(code, got, said)
            self.assertIn("interrupted\n0 of 4 parts are done; resume with\n", said)
            self.assert_nothing_is_left()
            self.hold.unlink()
            self.assertEqual(1, self.fleet("--resume", "--program", slow, self.out, env=environment)[0])
            self.assert_whole(self.files)
            shutil.rmtree(self.out)

    def test_what_was_killed_leaves_nothing(self):
        slow, environment = self.slow_program()
        process = self.start(support.RUNNER, "--jobs", "2", "--program", slow, self.out, *self.files, env=environment)
        support.wait_until(lambda: len(self.at_work()) == 2)
        process.kill()
        process.wait()
        self.hold.unlink()
        self.assertEqual(2, len(self.at_work()))
        self.assertEqual(1, self.fleet("--resume", "--program", slow, self.out, env=environment)[0])
        self.assert_whole(self.files)


class Refusals(support.Folder):
    def assert_refused(self, problem, *words):
        code, said = self.fleet(*words)
        self.assertEqual(2, code, said)
        self.assertIn(problem, said)

    def test_usage(self):
        self.assert_refused("FILE is missing", self.out)
        self.assert_refused("--jobs must be at least 1", "--jobs", "0", self.out, "x")
        self.assert_refused("a size must be a number of bytes", "--block", "1T", self.out, "x")
        self.assert_refused("--stream cannot be passed to ostrel-check here", self.out, "x", "--", "--stream")
        self.assert_refused("--start-line=2 cannot be passed", self.out, "x", "--", "--start-line=2")
        self.assert_refused("--wrong", self.out, "x", "--", "--wrong")
        self.assert_refused("the options of ostrel-check must not name a file", self.out, "x", "--", self.files[0])
        self.assert_refused("there is no program nowhere", "--program", "nowhere", self.out, "x")
        self.assert_refused("No such file", "--map", "nowhere", self.out, "x")
        self.assertFalse(self.out.exists())
        self.assert_refused("contains no run to resume", "--resume", self.scratch)

    def test_another_run(self):
        self.assertEqual(1, self.fleet(self.out, *self.files)[0])
        self.assert_refused("already contains a run; use --resume to continue it", self.out, *self.files)
        self.assertEqual(1, self.fleet("--resume", self.out, *self.files)[0])
        self.assert_refused("started with files", "--resume", self.out, *self.files[1:])
        self.assert_refused("started with options", "--resume", self.out, "--", "--redact")
        other = self.scratch / "ostrel-check"
        other.write_text(f"#!/bin/sh\n{support.PROGRAM} \"$@\" | sed 's/^ostrel-check .*/ostrel-check 9.9.9/'\n")
        other.chmod(0o755)
        self.assert_refused("ostrel-check 9.9.9", "--resume", "--program", other, self.out)
        manifest = self.out / "run.json"
        manifest.write_text(json.dumps({"x": 1}))
        self.assert_refused("is not a valid manifest", "--resume", self.out)

    def test_types(self):
        modules = sorted(map(str, pathlib.Path(support.SOURCE, "fleet").glob("*.py")))
        result = subprocess.run(["mypy", "--strict", "--python-executable", "/usr/bin/python3", "--cache-dir",
                                 self.scratch / "mypy", *modules], check=False, capture_output=True, text=True,
                                cwd=support.SOURCE / "fleet")
        self.assertEqual(0, result.returncode, result.stdout)


if __name__ == "__main__":
    support.main()
