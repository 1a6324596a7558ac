"""Tests runs on a separate scheduler, with workers that die, are missing, or have another version of the program."""

import signal
import unittest

import support


class Killed(support.Cluster):
    PARTS = 16
    ROWS = 60_000

    def test_a_killed_worker_and_an_unreadable_file(self):
        self.start_worker()
        victim = self.start_worker()
        self.files[3].unlink()
        self.files[3].mkdir()
        readable = [file for file in self.files if file.is_file()]
        process = self.start(support.RUNNER, "--scheduler", self.address, self.out, *self.files)
        support.wait_until(lambda: len(list((self.out / "done").glob("*.json"))) > 3)
        support.wait_until(lambda: self.at_work(victim))
        victim.kill()
        self.assertEqual(-signal.SIGKILL, victim.wait())
        left_behind = self.at_work(victim)
        said, _ = process.communicate(timeout=120)
        self.assertEqual(4, process.returncode, said)
        self.assertEqual(1, len(left_behind), "it was killed while it judged nothing")
        self.assertIn(f"missing: {self.files[3]}: cannot be read: Is a directory\n", said)
        self.assertEqual([str(self.files[3])], [one["file"] for one in self.summary()["missing"]])
        self.assert_whole(readable)


class Programs(support.Cluster):
    def test_a_worker_without_the_program_stops_the_run(self):
        self.start_worker()
        self.start_worker(PATH="/usr/bin:/bin")
        code, said = self.on_cluster(self.out, *self.files)
        self.assertEqual(4, code, said)
        self.assertRegex(said, r"ostrel-fleet: tcp://127.0.0.1:\d+: there is no program ostrel-check\n"
                               "0 of 4 parts are done")
        self.assertEqual([], list((self.out / "results").iterdir()))
        self.workers[1].terminate()
        self.workers[1].wait()
        self.assertEqual(1, self.on_cluster("--resume", self.out)[0])
        self.assert_whole(self.files)

    def test_another_program_stops_the_run(self):
        """The first worker has another version. The second worker has another catalogue, and joins after the run has
        begun."""
        changes = "s/^ostrel-check .*/ostrel-check 9.9.9/", "s/PARAM_check_port/PARAM_check_prot/"
        for number, change in enumerate(changes):
            folder = self.scratch / str(number)
            folder.mkdir()
            program = folder / "ostrel-check"
            program.write_text(f"#!/bin/sh\n{support.PROGRAM} \"$@\" | sed '{change}'\n")
            program.chmod(0o755)
        other = self.start_worker(PATH=f"{self.scratch / '0'}:/usr/bin:/bin")
        code, said = self.on_cluster(self.out, *self.files)
        self.assertEqual(4, code, said)
        self.assertRegex(said, r"tcp://127.0.0.1:\d+: ostrel-check is ostrel-check 9.9.9 with .*, "
                               r"not ostrel-check \d")
        self.assertEqual([], list((self.out / "results").iterdir()))
        other.terminate()
        other.wait()

        _, environment = self.slow_program()
        (self.scratch / "2").mkdir()
        (self.scratch / "slow").rename(self.scratch / "2" / "ostrel-check")
        self.start_worker(PATH=f"{self.scratch / '2'}:/usr/bin:/bin", SLOW_WHILE=str(self.hold))
        process = self.start(support.RUNNER, "--scheduler", self.address, "--resume", self.out, env=environment)
        support.wait_until(self.at_work)
        self.start_worker(PATH=f"{self.scratch / '1'}:/usr/bin:/bin")
        said, _ = process.communicate(timeout=60)
        self.assertEqual(4, process.returncode, said)
        self.assertRegex(said, r"cases \d.ndjson was not judged on .*: ostrel-check is .*, not ")
        self.assert_nothing_is_left()


class Scheduler(support.Cluster):
    def test_there_is_none(self):
        self.scheduler.terminate()
        self.scheduler.wait()
        code, said = self.on_cluster(self.out, *self.files)
        self.assertEqual(4, code, said)
        self.assertIn(f"the scheduler at {self.address} cannot be reached: ", said)
        self.assertIn("0 of 4 parts are done; resume with\n", said)
        self.assertEqual(1, self.fleet("--resume", self.out)[0])
        self.assert_whole(self.files)

    def test_it_has_no_worker(self):
        code, said = self.on_cluster(self.out, *self.files)
        self.assertEqual((4, True), (code, "the scheduler has no workers" in said), said)

    def test_it_is_lost(self):
        slow, environment = self.slow_program()
        self.start_worker(SLOW_WHILE=str(self.hold))
        process = self.start(support.RUNNER, "--scheduler", self.address, "--program", slow, self.out, *self.files,
                             env=environment)
        support.wait_until(self.at_work)
        self.scheduler.kill()
        said, _ = process.communicate(timeout=60)
        self.assertEqual(4, process.returncode, said)
        self.assertIn("the connection to the scheduler was lost\n", said)
        self.assert_nothing_is_left()
        self.hold.unlink()
        self.assertEqual(1, self.fleet("--resume", "--program", slow, self.out, env=environment)[0])
        self.assert_whole(self.files)


class Interruption(support.Cluster):
    def test_the_workers_stop_too(self):
        slow, environment = self.slow_program()
        worker = self.start_worker(SLOW_WHILE=str(self.hold))
        process = self.start(support.RUNNER, "--scheduler", self.address, "--program", slow, self.out, *self.files,
                             env=environment)
        support.wait_until(lambda: self.at_work(worker))
        code, said = support.interrupt(process)
        self.assertEqual(130, code, said)
        self.assertIn("interrupted\n0 of 4 parts are done; resume with\n", said)
        self.assert_nothing_is_left()
        self.hold.unlink()
        self.assertEqual(1, self.on_cluster("--resume", "--program", slow, self.out)[0])
        self.assert_whole(self.files)


if __name__ == "__main__":
    support.main()
