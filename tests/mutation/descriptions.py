"""Changes rules/ one small thing at a time and lists what no test of the descriptions notices.

See README.md beside this file.
"""

import argparse
import fnmatch
import json
import pathlib
import random
import re
import shlex
import shutil
import subprocess
import sys
import time

from literals import callee, strings
from mutators import numbers, operators, shown, without_comments
from tokens import closing, tokens

ROOT = pathlib.Path(__file__).resolve().parents[2]
LEAST_SCORE = 98.0
OBJECTS = "rules/CMakeFiles/ostrel_rules.dir/"
PROGRAM = "bin/rules_test"
SECONDS = 120

# What evaluates descriptions and tells reasons. The descriptions themselves are the files that list checks.
EVALUATION = {"build", "character_references", "condition_words", "conditions", "evaluate", "expression_words", "lists",
              "number_conditions", "operands", "register", "sentences", "set", "step_words", "text_conditions"}

# Words of which each stands where the other could.
PAIRS = [("below", "above"), ("shorter_than", "longer_than"), ("one_of", "none_of"), ("empty", "not_empty"),
         ("length_is", "length_not"), ("among", "not_among"), ("equal", "not_equal"), ("has_shape", "lacks_shape"),
         ("all_of", "any_of"), ("before_first", "before_last"), ("after_first", "after_last"),
         ("line", "unflushed"), ("account_realm", "setup_realm")]
SETS = ["kDigits", "kUpper", "kLower", "kLetters", "kAlnum", "kHex", "kPrintable", "kLatin1", "kBlank",
        "kAccountDigits", "kIpv4", "kHostLabel", "kUrl", "kNameSet", "kMail", "kHostPort", "kRouterName", "kDeviceName"]
PHRASES = [("at least", "at most"), ("needed", "allowed"), ("first", "last"), ("end", "start"), ("is", "are"),
           ("one of", "none of"), ("byte", "bytes"), ("is", "is not")]
# What an argument is in the user's words is not said of a refusal.
SAID_ELSEWHERE = {"text", "buffer", "blocks", "integer", "natural", "integer_out", "in"}
# These tell the same, so that their order is not told.
ALIKE = {"refuse_repeated"}
# Two of which a value meets at most one may stand in either order.
TOO_LITTLE = re.compile(r'(?:below|shorter_than)\((?:.*, )?-?\d+\)|empty\(\)')
TOO_MUCH = re.compile(r'(?:above|longer_than)\((?:.*, )?-?\d+\)|refuse_above|outside\(k\w+\)')


def words(found, text):
    others = {one: other for pair in PAIRS for one, other in (pair, pair[::-1])}
    for i, token in enumerate(found[:-1]):
        if token.kind != "name":
            continue
        if token.text in others and found[i + 1].text == "(":
            yield token.offset, token.end, others[token.text]
        if token.text == "not_" and found[i + 1].text == "(":
            yield token.offset, token.end, ""
        if token.text in SETS and found[i - 1].text != "Set":
            yield token.offset, token.end, SETS[(SETS.index(token.text) + 1) % len(SETS)]


def phrases(found, text):
    for token in found:
        for one, other in PHRASES if token.kind == "string" else []:
            for old, new in ((one, other), (other, one)):
                for match in re.finditer(r"(?<!\w)%s(?!\w)" % old, token.text):
                    yield token.offset + match.start(), token.offset + match.end(), new


def texts(found, text):
    heard = [token for i, token in enumerate(found)
             if token.kind != "string" or callee(found, i) not in SAID_ELSEWHERE]
    yield from strings(heard, text)


def steps(found):
    """steps gives the first and the last index of each refusing step in a list."""
    for i, token in enumerate(found[:-1]):
        if token.text.startswith("refuse") and token.text != "refused_by" and found[i + 1].text == "(" and \
                found[i - 1].text in (",", "{"):
            yield i, closing(found, i + 1)


def orders(found, text):
    """orders swaps refusing steps that stand next to each other, and leaves each of them out."""
    every = list(steps(found))
    for (first, end), (second, last) in zip(every, every[1:]):
        one, other = (text[found[a].offset:found[b].end] for a, b in ((first, end), (second, last)))
        are_alike = found[first].text in ALIKE and found[second].text in ALIKE
        exclude = any(TOO_LITTLE.search(a) and TOO_MUCH.search(b) for a, b in ((one, other), (other, one)))
        if second == end + 2 and not are_alike and not exclude:
            yield found[first].offset, found[last].end, other + text[found[end].end:found[second].offset] + one
    for first, last in every:
        if found[last + 1].text == ",":
            yield found[first].offset, found[last + 1].end, ""
        elif found[first - 1].text == ",":
            yield found[first - 1].offset, found[last].end, ""


MUTATORS = [operators, numbers, texts, words, phrases, orders]


def mutants(file, text):
    found = tokens(text)
    made = {}
    for mutator in MUTATORS:
        for start, end, replacement in mutator(found, text):
            if text[start:end] != replacement:
                made.setdefault((start, end, replacement), None)
    return [(file, *change) for change in sorted(made)]


def described(mutant, text):
    file, start, end, replacement = mutant
    first = text.rfind("\n", 0, start) + 1
    line = without_comments(text)[first:text.find("\n", start)].strip()
    return "%s:%d: %s -> %s\n    %s" % (file, text.count("\n", 0, start) + 1, shown(text[start:end]),
                                        shown(replacement), line)


class Workshop:
    """Workshop builds rules_test with one changed file, and runs it."""

    def __init__(self, build):
        self.build = build
        self.folder = build / "mutate_rules"
        shutil.rmtree(self.folder, ignore_errors=True)
        self.folder.mkdir()
        self.commands = {}
        for entry in json.loads((build / "compile_commands.json").read_text()):
            words_of = shlex.split(entry["command"])
            output = words_of[words_of.index("-o") + 1]
            if output.startswith(OBJECTS):
                kept = [word for word in words_of[:words_of.index("-o")] if not word.startswith("-W")]
                file = str(pathlib.Path(entry["file"]).relative_to(ROOT))
                self.commands[file] = (kept[1:] if "ccache" in kept[0] else kept) + ["-w"]
        subprocess.run(["ninja", "-C", str(build), PROGRAM], check=True, stdout=subprocess.DEVNULL)
        listed = subprocess.run(["ninja", "-C", str(build), "-t", "commands", PROGRAM], check=True,
                                capture_output=True, text=True).stdout.splitlines()[-1]
        self.link = [word for word in shlex.split(listed) if word not in (":", "&&")]

    def run(self, command, seconds=None):
        try:
            return subprocess.run(command, cwd=self.build, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                                  stderr=subprocess.DEVNULL, timeout=seconds, check=False).returncode
        except subprocess.TimeoutExpired:
            return -1

    def judge(self, file, text):
        """judge gives "killed", "survived", "same" (the object code is as before) or "broken"."""
        changed = self.folder / pathlib.Path(file).name
        changed.write_text(text)
        made = self.folder / (changed.name + ".o")
        if self.run([*self.commands[file], "-o", str(made), "-c", str(changed)]) != 0:
            return "broken"
        if made.read_bytes() == (self.build / OBJECTS / (changed.name + ".o")).read_bytes():
            return "same"
        program = self.folder / "rules_test"
        command = list(self.link)
        command[command.index("-o") + 1] = str(program)
        command.insert(command.index("-o") + 2, str(made))  # before the archive, which then has nothing to add
        if self.run(command) != 0:
            return "broken"
        noticed = self.run([str(program), "--gtest_fail_fast", "--gtest_brief=1"], SECONDS)
        return "killed" if noticed != 0 else "survived"


def arguments():
    parser = argparse.ArgumentParser(prog="scripts/mutate rules", description=__doc__.splitlines()[0])
    parser.add_argument("--build", default="build/gcc", help="build folder, with tests (default: %(default)s)")
    parser.add_argument("--files", nargs="+", default=["*"], metavar="PATTERN", help="files of rules/ to change")
    parser.add_argument("--sample", type=int, metavar="N", help="try N of the mutants only")
    parser.add_argument("--seed", type=int, default=1, help="which N (default: %(default)s)")
    parser.add_argument("--list", action="store_true", help="list the mutants, try none")
    return parser.parse_args()


def main():
    given = arguments()
    sources = {str(path.relative_to(ROOT)): path.read_text() for path in sorted((ROOT / "rules").glob("*.cpp"))}
    sources = {file: text for file, text in sources.items()
               if pathlib.Path(file).stem in EVALUATION or "std::vector<Check> " in text}
    chosen = [mutant for file, text in sources.items() for mutant in mutants(file, text)
              if any(fnmatch.fnmatch(file, pattern) for pattern in given.files)]
    if given.sample is not None:
        chosen = sorted(random.Random(given.seed).sample(chosen, min(given.sample, len(chosen))))
    if given.list:
        print("\n".join(described(mutant, sources[mutant[0]]) for mutant in chosen))
        return 0
    workshop = Workshop((ROOT / given.build).resolve())
    started = time.monotonic()
    counts = dict.fromkeys(("killed", "survived", "same", "broken"), 0)
    for number, mutant in enumerate(chosen):
        file, start, end, replacement = mutant
        text = sources[file]
        status = workshop.judge(file, text[:start] + replacement + text[end:])
        counts[status] += 1
        if status == "survived":
            print("[%d/%d] survived %s" % (number + 1, len(chosen), described(mutant, text)), flush=True)
    counted = counts["killed"] + counts["survived"]
    score = 100.0 * counts["killed"] / counted if counted else 100.0
    print("%d mutants (in %.0f s): %d do not build, %d give the same object code" %
          (len(chosen), time.monotonic() - started, counts["broken"], counts["same"]))
    print("killed %d of %d: %.2f %%" % (counts["killed"], counted, score))
    return 1 if score < LEAST_SCORE else 0


if __name__ == "__main__":
    sys.exit(main())
