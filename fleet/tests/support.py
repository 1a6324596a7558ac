"""Helpers for the tests of the runner. Each test takes the arguments OSTREL_CHECK and SOURCE_DIR."""

import contextlib
import json
import os
import pathlib
import signal
import socket
import subprocess
import sys
import tempfile
import time
import unittest

PROGRAM, SOURCE = (pathlib.Path(path).resolve() for path in sys.argv[1:3])
RUNNER = SOURCE / "fleet" / "ostrel-fleet"
PATH = f"{PROGRAM.parent}:/usr/bin:/bin"
ENVIRONMENT = {**os.environ, "PATH": PATH, "PYTHONDONTWRITEBYTECODE": "1"}

# A program that delays reading a part, so that a test can interfere in the meantime.
SLOW = f"""#!/bin/sh
[ "$1" != batch ] || [ ! -p /dev/stdin ] || while [ -e "$SLOW_WHILE" ]; do sleep 0.02; done
exec {PROGRAM} "$@"
"""


def wait_until(condition, seconds=60):
    end = time.monotonic() + seconds
    while not (value := condition()):
        if time.monotonic() > end:
            raise AssertionError("the condition did not become true")
        time.sleep(0.02)
    return value


class Processes(unittest.TestCase):
    """Processes is the base class of tests that need a scratch folder and start processes, which end with the test."""

    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.scratch = pathlib.Path(scratch.name)

    def start(self, *words, **options):
        process = subprocess.Popen(list(map(str, words)), stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                                   stderr=subprocess.STDOUT, text=True, **{"env": ENVIRONMENT, **options})
        self.addCleanup(self.end, process)
        return process

    def end(self, process):
        process.kill()
        process.communicate()


class Folder(Processes):
    PARTS = 4
    ROWS = 300

    def setUp(self):
        super().setUp()
        self.out = self.scratch / "out"
        self.hold = self.scratch / "hold"
        self.files = [self.make(number) for number in range(self.PARTS)]

    def make(self, number):
        path = self.scratch / f"cases {number}.ndjson"
        path.write_text("".join(
            f'{{"id": "gateway {number}", "check": "PARAM_check_port", "args": ["{64000 + row * 10 + number}"]}}\n'
            for row in range(self.ROWS)))
        return path

    def make_fleet(self):
        """make_fleet writes the same cases as CSV rows and, for a map, as CSV rows without checks and as nested JSON.
        It returns the paths of the three files."""
        subprocess.run([SOURCE / "examples/fleet.py", "--rows", "400", self.scratch], check=True)
        return self.scratch / "fleet.csv", self.scratch / "fleet-dump.csv", self.scratch / "fleet.json"

    def slow_program(self):
        """slow_program returns a program that judges nothing while the hold file exists, and the environment for it."""
        self.hold.touch()
        slow = self.scratch / "slow"
        slow.write_text(SLOW)
        slow.chmod(0o755)
        return slow, {**ENVIRONMENT, "SLOW_WHILE": str(self.hold)}

    def fleet(self, *words, **options):
        process = self.start(RUNNER, *words, **options)
        said, _ = process.communicate(timeout=120)
        return process.returncode, said

    def judged(self, *words):
        """judged runs a single batch, and returns its output and the summary that it writes."""
        summary = self.scratch / "summary"
        result = subprocess.run([PROGRAM, "batch", "--stream", "--summary-file", summary, *words], check=False,
                                stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        return result.stdout, summary.read_bytes()

    def joined(self):
        return b"".join(path.read_bytes() for path in sorted((self.out / "results").glob("*.ndjson")))

    def summary(self):
        return json.loads((self.out / "summary.json").read_bytes())

    def assert_whole(self, files, *options):
        """assert_whole asserts that the results and summary equal those of one batch, and that no .tmp file is left."""
        results, summary = self.judged(*options, *files)
        self.assertGreater(len(results), 0)
        self.assertTrue(results == self.joined())
        given = self.summary()
        given.pop("missing", None)
        expected = json.loads(summary)
        expected["summary"]["unreadable_files"] = given["summary"]["unreadable_files"]
        self.assertEqual(expected, given)
        self.assert_nothing_is_left()

    def assert_nothing_is_left(self):
        self.assertEqual([], sorted(self.out.rglob(".*")))
        self.assertEqual([], sorted(self.out.rglob("*.tmp")))

    def at_work(self, process=None):
        """at_work returns the files that are being written by the given process, or by any process."""
        number = "*" if process is None else f"*-{process.pid}-*"
        return sorted((self.out / "results").glob(f".{number}.tmp"))


class Cluster(Folder):
    def setUp(self):
        super().setUp()
        with contextlib.closing(socket.create_server(("127.0.0.1", 0))) as free:
            self.address = f"tcp://127.0.0.1:{free.getsockname()[1]}"
        self.scheduler = self.start("/usr/bin/dask-scheduler", "--host", "127.0.0.1", "--port",
                                    self.address.rpartition(":")[2], "--no-dashboard")
        self.workers = []

    def start_worker(self, **environment):
        """start_worker starts a worker, and returns it when it has registered with the scheduler."""
        log = self.scratch / f"worker {len(self.workers)}"
        with open(log, "wb") as output:
            worker = subprocess.Popen(
                ["/usr/bin/dask-worker", "--no-nanny", "--nthreads", "1", "--no-dashboard", "--host", "127.0.0.1",
                 "--local-directory", self.scratch / "dask", self.address], env={**ENVIRONMENT, **environment},
                stdin=subprocess.DEVNULL, stdout=output, stderr=output)
        self.addCleanup(worker.wait)
        self.addCleanup(worker.kill)
        wait_until(lambda: "Starting established connection" in log.read_text() or worker.poll())
        self.workers.append(worker)
        return worker

    def on_cluster(self, *words, **options):
        return self.fleet("--scheduler", self.address, *words, **options)



def interrupt(process, number=signal.SIGINT):
    process.send_signal(number)
    said, _ = process.communicate(timeout=60)
    return process.returncode, said


def main():
    unittest.main(argv=sys.argv[:1])
