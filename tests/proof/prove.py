"""Runs the long form of every proof and prints one table. scripts/prove calls it and documents its use.

A proof consists of a name, a promise, a measure, the builds that it needs, and steps, which are commands that must all
succeed. Its figure is the last match of each step's pattern in the output of the step's command.
"""

import collections
import os
import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
REPORTS = ROOT / "build" / "prove"
GCC = ROOT / "build" / "gcc"
CLANG = ROOT / "build" / "clang"
TSAN = ROOT / "build" / "tsan"
VALGRIND = "valgrind"
LOCALES = ["tr_TR.ISO-8859-9", "tr_TR.UTF-8", "ja_JP.EUC-JP", "ja_JP.SHIFT_JIS", "zh_TW.BIG5"]

Step = collections.namedtuple("Step", "command figure environment", defaults=[{}])
Proof = collections.namedtuple("Proof", "name promise measure presets steps")


def ctest(preset, pattern):
    """ctest runs the tests that match the pattern. The figure is the number of failed tests out of the total."""
    return Step(["ctest", "--test-dir", str(preset), "--output-on-failure", "--no-tests=error", "-R", pattern],
                r"(\d+ tests failed out of \d+)")


def script(name, *arguments):
    """script runs another proof of the project. The figure is its last line, and the result is its exit status."""
    return Step([str(ROOT / "scripts" / name), *arguments], r"(?m)^(.+)$")


def proofs():
    replay = str(GCC / "bin" / "replay")
    yield Proof("memory", "nothing is allocated", "malloc and its family interposed", ["gcc"], [
        Step([str(GCC / "bin" / "allocation_test")], r"(vectors: \d+ calls, no allocation)"),
        ctest(GCC, r"(^|\.)allocation_test(\.|$)")])
    yield Proof("memory", "no invalid use of memory", "memcheck over every vector", ["gcc"], [
        Step([VALGRIND, "--leak-check=full", "--errors-for-leak-kinds=all", "--error-exitcode=9", replay],
             r"(\d+ rows)|ERROR SUMMARY: (\d+ errors)")])
    yield Proof("stack", "less than 2048 bytes of stack", "painted stack, deepest function", ["gcc"], [
        Step([str(GCC / "bin" / "stack_test")], r"deepest: (.*)",
             {"OSTREL_STACK_TABLE": str(REPORTS / "stack-table.txt")}),
        ctest(GCC, r"(^|\.)stack_test\.")])
    yield Proof("time", "time proportional to the length", "callgrind, 1 kB to 1 MB", ["gcc"], [
        Step([sys.executable, "tests/proof/instructions_test.py", VALGRIND, str(GCC / "bin" / "instructions"),
              "each", "1000", "10000", "100000", "1000000"], r"growth: (at most [0-9.]+)")])
    # The sanitizer is very slow on strings of a megabyte, so only the build without it judges them.
    lines = r"(\d+ threads, \d+ calls each: [1-9]\d* lines \w+ \w+)"
    yield Proof("threads", "threads judge concurrently", "every vector, and thread sanitizer", ["gcc", "tsan"], [
        Step([str(TSAN / "bin" / "threads_test")], lines, {"OSTREL_LONGEST_TEXT": "9000"}),
        Step([str(GCC / "bin" / "threads_test")], lines)])
    yield Proof("locale", "the same verdicts in any locale", "every vector", ["gcc"], [
        Step([replay, name], r"(?m)^locale (\S+):", {"LOCPATH": str(GCC / "locales")}) for name in LOCALES])
    for folder in (GCC, CLANG):
        preset = folder.name
        yield Proof("assertions", "assertions and endless calls", preset + ", each variant", ["gcc", preset], [
            ctest(folder, r"(^|\.)(assertions|parameter_check)_test(\.|$)")])
        yield Proof("file", "the finished shared object", preset + ", each variant", ["gcc", preset],
                    [ctest(folder, r"(^|\.)shared_object(\.|$)")])
    yield Proof("coverage", "every line and branch is tested", "coverage", [], [script("coverage")])
    yield Proof("coverage", "every condition decides", "modified condition/decision", [], [
        Step([str(ROOT / "scripts" / "coverage"), "--mcdc"], r"(\d+ of \d+ conditions shown to decide, \d+ listed)")])
    yield Proof("fuzzing", "library and descriptions agree", "fuzzing", [], [script("fuzz")])
    yield Proof("fuzzing", "every step of every rule is met", "counted, with sanitizers", [],
                [script("fuzz", "--table")])
    yield Proof("reasons", "every refusal has a reason", "a million random refusals", ["gcc"], [
        Step([str(GCC / "bin" / "fuzz_replay"), "--refusals", "1000000"],
             r"(\d+ refused, each with an id and a sentence)")])
    yield Proof("mutation", "tests notice every change", "mutation", [], [script("mutate")])
    yield Proof("mutation", "tests notice every change", "mutation of descriptions", ["gcc"],
                [script("mutate", "rules")])


def build(preset):
    subprocess.run(["cmake", "--preset", preset], cwd=ROOT, check=True, stdout=subprocess.DEVNULL)
    subprocess.run(["cmake", "--build", "--preset", preset], cwd=ROOT, check=True, stdout=sys.stderr)


def figure_of(output, pattern):
    """figure_of joins the last match of each group of the pattern, in the order of the groups."""
    last = {}
    for match in re.finditer(pattern, output):
        last.update({i: text for i, text in enumerate(match.groups()) if text})
    return ", ".join(last[i] for i in sorted(last))


def run(proof, report):
    """run returns the figures, and whether every step succeeded."""
    figures = []
    for step in proof.steps:
        # CI is set so that a skipped test fails, because it proves nothing.
        environment = dict(os.environ, CI="1", **step.environment)
        result = subprocess.run(step.command, cwd=ROOT, env=environment, check=False, text=True, errors="replace",
                                stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
        report.write("$ " + " ".join(step.command) + "\n" + result.stdout + "\n")
        figures.append(figure_of(result.stdout, step.figure) or "exit status %d" % result.returncode)
        if result.returncode != 0:
            return figures, False
    return figures, True


def main(names):
    chosen = [proof for proof in proofs() if not names or proof.name in names]
    if not chosen:
        sys.exit("no proof has that name")
    REPORTS.mkdir(parents=True, exist_ok=True)
    for preset in dict.fromkeys(preset for proof in chosen for preset in proof.presets):
        build(preset)
    for name in {proof.name for proof in chosen}:
        (REPORTS / (name + ".txt")).unlink(missing_ok=True)
    held = True
    row = "%-32s | %-34s | %-7s | %s"
    print(row % ("promise", "measure", "", "figure"), flush=True)
    for proof in chosen:
        with open(REPORTS / (proof.name + ".txt"), "a", encoding="utf-8") as report:
            figures, holds = run(proof, report)
        print(row % (proof.promise, proof.measure, "holds" if holds else "FAILS", "; ".join(figures)), flush=True)
        held = held and holds
    print("The output of each proof is in %s." % REPORTS.relative_to(ROOT))
    sys.exit(0 if held else 1)


if __name__ == "__main__":
    main(sys.argv[1:])
