"""Lists the conditions in src/ that no test has shown to decide.

usage: llvm-cov export … | conditions.py

A condition decides if two calls differ in the value of this condition and in the outcome of the decision, but in the
value of no other evaluated condition. A condition that is not shown to decide must be listed in mcdc.txt, with the
reason why no call can show it. mcdc.txt must not list any other conditions.
"""

import json
import pathlib
import sys
from typing import NamedTuple

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.append(str(ROOT / "tests/mutation"))

from listed import Listed  # noqa: E402  (sys.path must be set first)
from tokens import tokens, without_comments  # noqa: E402

NAMED = {"file": "file", "line": "line", "condition": "text"}


class Condition(NamedTuple):
    file: str
    number: int  # the number of the line on which the condition begins
    line: str    # the text of that line, without indentation or comments
    text: str
    shown: bool


class Source:
    """Source is a file in src/. As in llvm-cov, lines and columns are counted from 1, and ranges exclude their end."""

    def __init__(self, root, path):
        self.file = str(path.relative_to(root))
        self.code = without_comments(path.read_text())
        self.rows = self.code.split("\n")

    def condition(self, place, shown):
        first, left, last, right = place
        rows = self.rows[first - 1:last]
        rows[-1] = rows[-1][:right - 1]
        rows[0] = rows[0][left - 1:]
        return Condition(self.file, first, self.rows[first - 1].strip(), " ".join(" ".join(rows).split()), shown)

    def operators(self):
        """operators returns the position of each operator whose operands are conditions."""
        for token in tokens(self.code):
            if token.text in ("&&", "||"):
                line = self.code.count("\n", 0, token.offset) + 1
                column = token.offset - self.code.rfind("\n", 0, token.offset)
                yield line, column, line, column + 2


def within(place, decision):
    return tuple(decision[:2]) <= place[:2] and place[2:] <= tuple(decision[2:4])


def conditions(exported, root):
    """conditions yields the conditions of each decision. A template's decisions occur once for each instantiation. The
    compiler omits decisions that it cannot analyse, such as nested ones. For these, each operator is returned as a
    condition that has not been shown to decide."""
    files = {pathlib.Path(file["filename"]).resolve(): file for file in exported["data"][0]["files"]}
    for path in sorted(path for path in (root / "src").rglob("*") if path.suffix in (".cpp", ".h")):
        source = Source(root, path)
        file = files.get(path, {"branches": [], "mcdc_records": []})
        decisions = file["mcdc_records"]
        branches = sorted({tuple(branch[:4]) for branch in file["branches"]})
        for decision in decisions:
            inside = [place for place in branches if within(place, decision)]
            shown = decision[-1]  # one flag for each condition, in source order
            if len(inside) != len(shown):
                raise SystemExit("%s:%d: %d conditions, but %d branches" %
                                 (source.file, decision[0], len(shown), len(inside)))
            yield from map(source.condition, inside, shown)
        for place in source.operators():
            if not any(within(place, decision) for decision in decisions):
                yield source.condition(place, False)


def report(found, path):
    """report prints the faults and returns whether there are none."""
    missing = {condition for condition in found if not condition.shown}
    listed = Listed(path, missing, NAMED)
    wrong = ["%s:%d: not shown to decide: %s\n    %s" %
             (condition.file, condition.number, condition.text, condition.line)
             for condition in sorted(missing) if condition not in listed]
    wrong += ["%s: already shown, or no longer present: %s" % (path.name, entry) for entry in listed.stale(["*"])]
    print(*wrong, sep="\n", end="\n" if wrong else "")
    print("%d of %d conditions shown to decide, %d listed" %
          (sum(condition.shown for condition in found), len(found), len(listed.known)))
    return not wrong


if __name__ == "__main__":
    sys.exit(0 if report(list(conditions(json.load(sys.stdin), ROOT)), ROOT / "tests/coverage/mcdc.txt") else 1)
