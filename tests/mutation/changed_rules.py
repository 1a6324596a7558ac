"""The program of the tests of rules/ with changes in it: compiled, linked and run."""

import concurrent.futures
import json
import os
import pathlib
import re
import resource
import shlex
import subprocess

from library import run
from schemata import owners, with_all

EACH = pathlib.Path(__file__).resolve().parent / "each.cpp"
OBJECTS = "rules/CMakeFiles/ostrel_rules.dir/"
PROGRAM = "bin/rules_test"
SECONDS = 60
UNCHANGED = 0
QUICK = ["--gtest_break_on_failure", "--gtest_brief=1"]
SHORT = {"OSTREL_LONGEST_TEXT": "9000"}
# The tests that start processes, which takes longer than all others together.
SLOW = "Checks/NullTest.*"


class Workshop:
    def __init__(self, build, folder):
        self.build = build
        self.folder = folder
        self.program = build / PROGRAM
        self.commands = {}
        for entry in json.loads((build / "compile_commands.json").read_text()):
            words = shlex.split(entry["command"])
            output = words[words.index("-o") + 1]
            if output.startswith(OBJECTS):
                kept = [word for word in words[:words.index("-o")] if not word.startswith("-W")]
                file = "rules/" + output.removeprefix(OBJECTS).removesuffix(".o")
                self.commands[file] = (kept[1:] if "ccache" in kept[0] else kept) + ["-w"]
        done = run(["ninja", "-C", str(build), PROGRAM])
        if done.returncode != 0:
            raise SystemExit(done.stdout + done.stderr)
        lines = run(["ninja", "-C", str(build), "-t", "commands", PROGRAM]).stdout.splitlines()
        self.link = [word for word in shlex.split(lines[-1]) if word not in (":", "&&")]
        self.each = None

    def compile(self, file, text, *options):
        """compile gives the object that is made, and what the compiler says where there is none."""
        source = self.folder / pathlib.Path(file).name
        source.write_text(text)
        made = source.with_suffix(".cpp.o")
        done = run([*self.commands[file], *options, "-o", str(made), "-c", str(source)], cwd=self.build,
                   env=dict(os.environ, LC_ALL="C"))
        return made, done.stderr if done.returncode != 0 else ""

    def linked(self, made, *others):
        program = self.folder / "rules_test"
        command = list(self.link)
        command[command.index("-o") + 1] = str(program)
        # Before the archives, which then have nothing to add.
        command[command.index("-o") + 2:command.index("-o") + 2] = map(str, (made, *others))
        done = run(command, cwd=self.build)
        if done.returncode != 0:
            raise SystemExit(done.stderr)
        return program

    def main_of_each(self):
        """main_of_each gives the object of a main that runs the tests with one change after the other."""
        if self.each is None:
            self.each = self.folder / "each.o"
            words = next(iter(self.commands.values()))
            done = run([*words, "-o", str(self.each), "-c", str(EACH)], cwd=self.build)
            if done.returncode != 0:
                raise SystemExit(done.stderr)
        return self.each

    def with_all(self, file, text, numbered):
        """with_all builds the program with all of these in it but those that do not build and others, whose numbers it
        gives."""
        left, kept, broken = dict(numbered), set(), []
        while True:
            source, others = with_all(text, left, kept)
            made, errors = self.compile(file, source, "-O0")
            if not errors:
                return self.linked(made, self.main_of_each()), broken, others
            owner = owners(source)
            told = re.findall(r"/%s:(\d+):\d+: +(error|required)" % pathlib.Path(file).name, errors)
            wrong = {owner[int(line)] for line, _ in told}
            if 0 in wrong:
                # Something asks for a constant that is a function now.
                named = set(re.findall(r"in expansion of macro '(\w+)'", errors)) - kept
                if not named:
                    raise SystemExit(errors)
                kept |= named
            else:
                broken += wrong
                left = {number: mutant for number, mutant in left.items() if number not in wrong}

    def environment(self, file, **more):
        return dict(os.environ, OSTREL_TEST_FIRST=file.removeprefix("rules/").removesuffix(".cpp"), **more)

    def notices(self, program, file, more, *options):
        """notices tells whether a test of the program fails."""
        def limit():
            resource.setrlimit(resource.RLIMIT_CPU, (SECONDS, SECONDS))
            resource.setrlimit(resource.RLIMIT_CORE, (0, 0))

        return subprocess.run([str(program), *QUICK, *options], cwd=self.folder, preexec_fn=limit, check=False,
                              env=self.environment(file, **more), stdin=subprocess.DEVNULL,
                              stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL).returncode != 0

    def noticed(self, program, file, numbers):
        """noticed gives those numbers whose changes a test notices that starts no processes, with short rows."""
        done = subprocess.run([str(program), *QUICK, "--gtest_filter=-" + SLOW], cwd=self.folder, text=True,
                              input="\n".join(map(str, [UNCHANGED, *numbers])), stdout=subprocess.PIPE,
                              stderr=subprocess.PIPE, check=False, env=self.environment(file, **SHORT))
        answers = {int(number): answer == "1" for number, answer in map(str.split, done.stdout.splitlines())}
        if len(answers) != 1 + len(numbers) or answers[UNCHANGED]:
            raise SystemExit("the tests fail without a change, or have ended early: " + done.stderr)
        return {number for number, is_noticed in answers.items() if is_noticed}

    def judged(self, file, text, some, jobs):
        """judged gives each of these mutants of a file with what becomes of it: "broken", "killed" or "unknown"."""
        numbered = dict(enumerate(some, 1))
        program, broken, others = self.with_all(file, text, numbered)
        yield from ((numbered[number], "broken") for number in broken)
        tried = [number for number in numbered if number not in broken and number not in others]
        with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
            parts = pool.map(lambda part: self.noticed(program, file, part), [tried[i::jobs] for i in range(jobs)])
            noticed = set().union(*parts)
        yield from ((numbered[number], "killed" if number in noticed else "unknown") for number in [*tried, *others])

    def alone(self, mutant, text):
        """alone judges a mutant as it would be in a build, by each test and each row; but the slow tests see no row with a
        long text, which makes them slower still."""
        text = text[:mutant.offset] + mutant.replacement + text[mutant.end:]
        made, errors = self.compile(mutant.file, text)
        if errors:
            return "broken"
        if made.read_bytes() == (self.build / OBJECTS / (mutant.file.removeprefix("rules/") + ".o")).read_bytes():
            return "same"
        program = self.linked(made)
        noticed = self.notices(program, mutant.file, SHORT) or \
            self.notices(program, mutant.file, {}, "--gtest_filter=-" + SLOW)
        return "killed" if noticed else "survived"
