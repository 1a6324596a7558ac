"""Compiles, links and runs rules_test with changed descriptions."""

import concurrent.futures
import os
import pathlib
import re
import resource
import subprocess

from library import Build, run
from schemata import owners, with_all

EACH = pathlib.Path(__file__).resolve().parent / "each.cpp"
OBJECTS = "rules/CMakeFiles/ostrel_rules.dir/"
PROGRAM = "bin/rules_test"
SECONDS = 60
UNCHANGED = 0
QUICK = ["--gtest_break_on_failure", "--gtest_brief=1"]
SHORT = {"OSTREL_LONGEST_TEXT": "9000"}
# These tests start processes and take longer than all other tests together.
SLOW = "Checks/NullTest.*"


class Workshop:
    def __init__(self, root, folder, scratch):
        self.build = Build(root, folder, OBJECTS)
        self.folder = scratch
        self.program = folder / PROGRAM
        self.build.bring_up_to_date(PROGRAM)
        self.link = self.build.link_command(PROGRAM)
        self.each = None

    def compile(self, file, text, *options):
        """compile returns the path of the object file, and the compiler's errors."""
        source = self.folder / pathlib.Path(file).name
        source.write_text(text)
        made = source.with_suffix(".cpp.o")
        done = run([*self.build.commands[file], *options, "-o", str(made), "-c", str(source)], cwd=self.build.folder,
                   env=dict(os.environ, LC_ALL="C"))
        return made, done.stderr if done.returncode != 0 else ""

    def linked(self, made, *others):
        program = self.folder / "rules_test"
        command = list(self.link)
        command[command.index("-o") + 1] = str(program)
        # Objects must precede the archives; otherwise, the linker would take the unchanged object from an archive.
        command[command.index("-o") + 2:command.index("-o") + 2] = map(str, (made, *others))
        done = run(command, cwd=self.build.folder)
        if done.returncode != 0:
            raise SystemExit(done.stderr)
        return program

    def main_of_each(self):
        """main_of_each returns the object file whose main function runs the tests once for each change."""
        if self.each is None:
            self.each = self.folder / "each.o"
            words = next(iter(self.build.commands.values()))
            done = run([*words, "-o", str(self.each), "-c", str(EACH)], cwd=self.build.folder)
            if done.returncode != 0:
                raise SystemExit(done.stderr)
        return self.each

    def with_all(self, file, text, numbered):
        """with_all builds the program with all of these mutants. It returns the program, the numbers of the mutants
        that do not compile, and the numbers of those that cannot be combined with others."""
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
                # Some code needs a compile-time constant, but the constant is now a function.
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
        def limit():
            resource.setrlimit(resource.RLIMIT_CPU, (SECONDS, SECONDS))
            resource.setrlimit(resource.RLIMIT_CORE, (0, 0))

        return subprocess.run([str(program), *QUICK, *options], cwd=self.folder, preexec_fn=limit, check=False,
                              env=self.environment(file, **more), stdin=subprocess.DEVNULL,
                              stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL).returncode != 0

    def noticed(self, program, file, numbers):
        """noticed returns the numbers of the changes that the quick tests notice. They read only short rows."""
        done = subprocess.run([str(program), *QUICK, "--gtest_filter=-" + SLOW], cwd=self.folder, text=True,
                              input="\n".join(map(str, [UNCHANGED, *numbers])), stdout=subprocess.PIPE,
                              stderr=subprocess.PIPE, check=False, env=self.environment(file, **SHORT))
        answers = {int(number): answer == "1" for number, answer in map(str.split, done.stdout.splitlines())}
        if len(answers) != 1 + len(numbers) or answers[UNCHANGED]:
            raise SystemExit("the tests fail without a change, or ended early: " + done.stderr)
        return {number for number, is_noticed in answers.items() if is_noticed}

    def judged(self, file, text, some, jobs):
        """judged yields each of these mutants of a file with its status: "broken", "killed" or "unknown"."""
        numbered = dict(enumerate(some, 1))
        program, broken, others = self.with_all(file, text, numbered)
        yield from ((numbered[number], "broken") for number in broken)
        tried = [number for number in numbered if number not in broken and number not in others]
        with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
            shares = [tried[i::jobs] for i in range(jobs)]
            noticed = set().union(*pool.map(lambda share: self.noticed(program, file, share), shares))
        yield from ((numbered[number], "killed" if number in noticed else "unknown") for number in [*tried, *others])

    def alone(self, mutant, text):
        """alone judges a mutant in a separate build, with every test. The slow tests skip rows with long strings."""
        text = text[:mutant.offset] + mutant.replacement + text[mutant.end:]
        made, errors = self.compile(mutant.file, text)
        if errors:
            return "broken"
        if made.read_bytes() == self.build.object_of(mutant.file).read_bytes():
            return "same"
        program = self.linked(made)
        noticed = self.notices(program, mutant.file, SHORT) or \
            self.notices(program, mutant.file, {}, "--gtest_filter=-" + SLOW)
        return "killed" if noticed else "survived"
