"""Selects the tests that judge a changed library, starting with those that are most likely to notice the change."""

import ctypes
import os
import pathlib
import re
import resource
import signal
import subprocess
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "vectors"))
import vectors  # noqa: E402  (sys.path must be set first)

LIBC = ctypes.CDLL(None)
DIE_WITH_PARENT = 1

# Files whose test programs have different names.
PROGRAMS = {"char_set": "character_sets_test", "radio": "channel_test", "rules": "host_test"}
# This program compares times. A limit on processor time would make the clock coarse, and a busy machine can make the
# program fail, so only repeated failures count.
TIMED = {"subnets_test"}
EVERY_VECTOR = ("vectors_test", "*")


class Suites:
    """Suites selects test suites. A suite is a pair of a program and a filter for its tests."""

    def __init__(self, build, sources):
        self.build = build
        self.sources = sources
        self.vectors = {}
        for place, row in vectors.rows():
            self.vectors.setdefault(place.split(":")[0], set()).add(row["check"])
        self.programs = {path.name for path in (build.folder / "bin").glob("*_test")}
        self.programs &= {program for file in sources.files for program in self.programs_of(file)}
        self.programs.add("vectors_test")

    def programs_of(self, file):
        path = pathlib.PurePath(file)
        programs = [path.stem + "_test", path.parent.name + "_test", "small_spaces_test"]
        if path.stem in PROGRAMS:
            programs.insert(0, PROGRAMS[path.stem])
        if path.parent.name == "wlan_check":
            programs.append("host_test")
        if re.search("require_value|fail_assertion", self.sources.text[file]):
            programs.append("assertions_test")
        return programs

    def own(self, file):
        """own returns the suites of the module and of the modules in the same folder under src/."""
        module = pathlib.PurePath(file).relative_to("src").with_suffix("")
        names = [str(module), *(name for name in self.vectors if name.startswith(f"{module.parent}/"))]
        found = [("vectors_test", name + ".*") for name in names if name in self.vectors]
        found.extend((name, "*") for name in self.programs_of(file) if name in self.programs)
        return list(dict.fromkeys(found))

    def nearest(self, mutant):
        """nearest returns the vectors of the exported function that contains the change."""
        return [("vectors_test", f"{module}.{mutant.function}") for module, checks in self.vectors.items()
                if mutant.function in checks]

    def of(self, file):
        """of returns the suites that can notice a change in the file."""
        found = self.own(file)
        users = self.sources.dependent(file)
        if len(users) > 12:
            found.append(EVERY_VECTOR)
            found.extend((name, "*") for name in sorted(self.programs) if (name, "*") not in found)
        for user in users:
            for suite in self.own(user):
                if suite not in found and (suite[0] != "vectors_test" or EVERY_VECTOR not in found):
                    found.append(suite)
        return found

    def passes(self, suite, workshop, seconds, library=None):
        tries = 3 if suite[0] in TIMED else 1
        return any(self.run(suite, workshop, seconds, library) for _ in range(tries))

    def run(self, suite, workshop, seconds, library):
        program, tests = suite
        own = workshop.folder / "bin" / program
        path = own if own.exists() else self.build.folder / "bin" / program
        environment = dict(os.environ, LD_LIBRARY_PATH=str(library or workshop.folder / "lib"))

        def limit():
            LIBC.prctl(DIE_WITH_PARENT, signal.SIGKILL)
            if program not in TIMED:
                resource.setrlimit(resource.RLIMIT_CPU, (seconds, seconds + 1))
            resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
            resource.setrlimit(resource.RLIMIT_FSIZE, (1 << 29, 1 << 29))

        module = [tests.split(".")[0]] if program == "vectors_test" and tests != "*" else []
        process = subprocess.Popen(
            [str(path), *module, "--gtest_fail_fast", "--gtest_brief=1", "--gtest_filter=" + tests],
            stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, env=environment,
            cwd=workshop.folder / "cwd", start_new_session=True, preexec_fn=limit)
        try:
            return process.wait(timeout=20 + 10 * seconds) == 0
        except subprocess.TimeoutExpired:
            return False
        finally:
            try:
                os.killpg(process.pid, signal.SIGKILL)
            except ProcessLookupError:
                pass
            process.wait()

    def measure(self, suite, workshop):
        """measure returns the limit for a suite: five times its processor time with the unchanged library, plus 2 s."""
        before = resource.getrusage(resource.RUSAGE_CHILDREN)
        if not self.passes(suite, workshop, 300, self.build.folder / "lib"):
            raise SystemExit("%s %s fails with the unchanged library" % suite)
        after = resource.getrusage(resource.RUSAGE_CHILDREN)
        used = after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime
        return 2 + int(5 * used)
