"""Makes small changes to the library, one at a time, and lists those that no test notices.

README.md in this folder describes the method.
"""

import argparse
import concurrent.futures
import ctypes
import fnmatch
import hashlib
import json
import multiprocessing
import os
import pathlib
import random
import shutil
import signal
import sys
import time

from library import LIBRARY, LibraryBuild, Sources, Workshop
from listed import Listed
from mutators import NAMED, mutants
from suites import Suites

ROOT = pathlib.Path(__file__).resolve().parents[2]
LEAST_SCORE = 98.0


def digest(data):
    return hashlib.sha256(data).hexdigest()[:16]


class Results:
    """Results stores the status of each mutant until its source file or, for a survivor, a test is edited."""

    def __init__(self, path, texts, programs):
        self.path = path
        self.sources = {file: digest(text.encode()) for file, text in texts.items()}
        tests = [*sorted((ROOT / "vectors").rglob("*.ndjson")), *programs]
        self.tests = digest(b"".join(digest(test.read_bytes()).encode() for test in tests))
        self.known = json.loads(path.read_text()) if path.exists() else {}
        self.saved = time.monotonic()

    def key(self, mutant):
        return "%s:%d:%d:%s:%s" % (mutant.file, mutant.offset, mutant.end, mutant.replacement,
                                   self.sources[mutant.file])

    def of(self, mutant):
        """of returns "killed", "survived", "same", "broken", or None for a mutant that must be tried."""
        result = self.known.get(self.key(mutant))
        if result is None or (result["status"] == "survived" and result["tests"] != self.tests):
            return None
        return result["status"]

    def add(self, mutant, status, by):
        self.known[self.key(mutant)] = {"status": status, "by": by, "tests": self.tests}
        if time.monotonic() - self.saved > 5:
            self.save()

    def save(self):
        beside = self.path.with_suffix(".new")
        beside.write_text(json.dumps(self.known, indent=0, sort_keys=True))
        beside.replace(self.path)
        self.saved = time.monotonic()


class Worker:
    def __init__(self, suites, folder):
        self.suites = suites
        self.workshop = Workshop(suites.build, folder)
        self.limits = {}
        self.hide_var()

    @staticmethod
    def hide_var():
        """hide_var mounts an empty /var for this process only, if permitted, because a check writes a file there."""
        libc = ctypes.CDLL(None, use_errno=True)
        new_mounts, private = 0x00020000, 0x44000
        if os.geteuid() == 0 and libc.unshare(new_mounts) == 0:
            libc.mount(b"none", b"/", None, ctypes.c_ulong(private), None)
            libc.mount(b"none", b"/var", b"tmpfs", ctypes.c_ulong(0), None)

    def judge(self, mutant):
        text = self.suites.sources.text[mutant.file]
        made = self.workshop.make(mutant.file, text[:mutant.offset] + mutant.replacement + text[mutant.end:])
        if made != "made":
            return made, ""
        for suite in self.suites.nearest(mutant) + self.suites.of(mutant.file):
            if suite not in self.limits:
                self.limits[suite] = self.suites.measure(suite, self.workshop)
            if not self.suites.passes(suite, self.workshop, self.limits[suite]):
                return "killed", "%s %s" % suite
        return "survived", ""


def start_worker(suites, folder):
    signal.signal(signal.SIGTERM, signal.SIG_DFL)
    work.judge = Worker(suites, folder / str(os.getpid())).judge


def work(mutant):
    return work.judge(mutant)


def try_all(waiting, suites, jobs, folder):
    """try_all yields each mutant with its status and the suite that noticed it."""
    shutil.rmtree(folder, ignore_errors=True)
    pool = concurrent.futures.ProcessPoolExecutor(jobs, multiprocessing.get_context("fork"), start_worker,
                                                  (suites, folder))
    try:
        for mutant, result in zip(waiting, pool.map(work, waiting)):
            yield mutant, *result
    finally:
        pool.shutdown(cancel_futures=True)


def shown(mutant):
    return "%s:%d: %s\n    %s" % (mutant.file, mutant.number, mutant.change, mutant.line)


def arguments(command, what, folder):
    parser = argparse.ArgumentParser(prog=command, description=what)
    parser.add_argument("--build", default="build/gcc", help="build folder, with tests (default: %(default)s)")
    parser.add_argument("--files", nargs="+", default=["*"], metavar="PATTERN",
                        help='files of %s to change, such as "*/hosts.cpp"' % folder)
    parser.add_argument("--sample", type=int, metavar="N", help="try only N of the mutants")
    parser.add_argument("--seed", type=int, default=1, help="seed of the choice of N (default: %(default)s)")
    parser.add_argument("--jobs", type=int, default=1, help="mutants tried at the same time (default: %(default)s)")
    parser.add_argument("--list", action="store_true", help="list the mutants and their known results; try none")
    parser.add_argument("--equivalents", action="store_true",
                        help="try the mutants that are listed as equivalent: no test may notice one")
    return parser.parse_args()


def folder_of(given, build, name):
    """folder_of creates the work folder. A sample and a full run use different ones, so they can run concurrently."""
    folder = (build if given.sample is not None else build.parent) / name
    folder.mkdir(parents=True, exist_ok=True)
    return folder


def conduct(given, every, listed, results, least, try_all):
    """conduct tries the chosen mutants that have no known result, and reports on all chosen mutants."""
    signal.signal(signal.SIGTERM, lambda number, frame: sys.exit(128 + number))
    if given.sample is not None:
        results.known = {}
    equivalents = Listed(ROOT / "tests/mutation" / listed, every, NAMED)
    chosen = [mutant for mutant in every if any(fnmatch.fnmatch(mutant.file, pattern) for pattern in given.files)]
    if given.equivalents:
        chosen = [mutant for mutant in chosen if mutant in equivalents]
    elif given.sample is not None:
        chosen = [mutant for mutant in chosen if mutant not in equivalents]
        chosen = sorted(random.Random(given.seed).sample(chosen, min(given.sample, len(chosen))))
    if given.list:
        for mutant in chosen:
            status = "equivalent" if mutant in equivalents else results.of(mutant) or "untried"
            print("%-10s %s" % (status, shown(mutant)))
        return 0

    waiting = [mutant for mutant in chosen if results.of(mutant) is None
               and (given.equivalents or mutant not in equivalents)]
    started = time.monotonic()
    try:
        for done, (mutant, status, by) in enumerate(try_all(waiting), 1):
            results.add(mutant, status, by)
            if status == "survived":
                print("[%d/%d] survived %s" % (done, len(waiting), shown(mutant)), flush=True)
    finally:
        results.save()
    if given.equivalents:
        noticed = [mutant for mutant in chosen if results.of(mutant) == "killed"]
        for mutant in noticed:
            print("listed as equivalent, but noticed: " + shown(mutant))
        print("%d listed as equivalent, %d of them noticed" % (len(chosen), len(noticed)))
        return 1 if noticed else 0
    return report(chosen, results, equivalents, len(waiting), time.monotonic() - started, given, least)


def main():
    given = arguments("scripts/mutate", __doc__.splitlines()[0], "src/")
    sources = Sources(ROOT)
    build = LibraryBuild((ROOT / given.build).resolve(), sources)
    suites = Suites(build, sources)
    build.bring_up_to_date("lib/" + LIBRARY, *("bin/" + name for name in suites.programs))
    folder = folder_of(given, build.folder, "mutate")
    programs = sorted(build.folder / "bin" / name for name in suites.programs)
    results = Results(folder / "results.json", sources.text, programs)
    every = [mutant for file in sources.files for mutant in mutants(file, sources.text[file])]
    return conduct(given, every, "equivalent.txt", results, LEAST_SCORE,
                   lambda waiting: try_all(waiting, suites, given.jobs, folder / "workers"))


def report(chosen, results, equivalents, tried, seconds, given, least):
    counts = {}
    survivors = []
    for mutant in chosen:
        status = "equivalent" if mutant in equivalents else results.of(mutant)
        counts[status] = counts.get(status, 0) + 1
        if status == "survived":
            survivors.append(mutant)
    killed = counts.get("killed", 0)
    counted = killed + len(survivors)
    score = 100.0 * killed / counted if counted else 100.0
    if survivors:
        print("Survivors:")
    for mutant in survivors:
        print(shown(mutant))
    print("%d mutants (%d tried now, in %.0f s): %d do not build, %d have the same object code, %d are listed as "
          "equivalent" % (len(chosen), tried, seconds, counts.get("broken", 0), counts.get("same", 0),
                          counts.get("equivalent", 0)))
    print("killed %d of %d: %.2f %%" % (killed, counted, score))
    if given.sample is not None:
        return 1 if survivors else 0
    stale = equivalents.stale(given.files)
    for entry in stale:
        print("fits no mutant: " + entry)
    return 1 if score < least or stale else 0


if __name__ == "__main__":
    sys.exit(main())
