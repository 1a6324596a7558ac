"""Generates a variant of a source file that contains all changes; the program selects one of them at run time.

In the generated file, a function has a separate body for each change inside it. Each check in a list and each constant
at namespace scope becomes a function, which is called in its place.
"""

import re
from typing import NamedTuple

from tokens import closing, tokens

PRELUDE = "int ostrel_mutant_in_force = 0;  // each.cpp sets it\n"
CHECKS = ["std", "::", "vector", "<", "Check", ">"]
MARK = re.compile(r"//@(\d*)$")
KINDS = {
    "body": ("%s", "{ switch (ostrel_mutant_in_force) {%s} }"),
    "check": ("return %s;", "[&]() -> Check { switch (ostrel_mutant_in_force) {%s} }()"),
    "constant": ("{ static %s return {name}; }",
                 "static const auto& mutated_{name}() { switch (ostrel_mutant_in_force) {%s} }\n"
                 "#define {name} mutated_{name}()\n"),
}


class Region(NamedTuple):
    """Region is a piece of source text that the generated file contains once for each change inside it."""
    kind: str
    start: int
    end: int
    name: str = ""  # the name of a constant


def first_of(found, texts):
    """first_of returns the index of the first token that is outside brackets and has one of these texts."""
    i = 0
    while i < len(found):
        if found[i].text in texts:
            return i
        i = closing(found, i) + 1 if found[i].text in "([{" else i + 1
    return None


def checks(found, at, last):
    """checks yields the elements of the list of checks that a function returns."""
    while at < last and (found[at].text != "return" or found[at + 1].text != "{"):
        at += 1
    if at < last:
        last = closing(found, at + 1)
        at += 2
    while at < last:
        comma = first_of(found[at:last], ",")
        end = last if comma is None else at + comma
        yield Region("check", found[at].offset, found[end - 1].end)
        at = end + 1


def constant(head, end):
    """constant returns a list that contains the constant that the declaration defines, or an empty list."""
    at = first_of(head, "=[{(")
    if not head or head[0].text not in ("const", "constexpr") or at is None or \
            head[at].text == "(" and head[at + 1].kind != "string":
        return []
    return [Region("constant", head[0].offset, end, head[at - 1].text)]


def regions(found):
    i = first = 0  # the current token, and the first one of its declaration
    inside = []    # for each open bracket, whether it opens a namespace
    while i < len(found):
        text, head = found[i].text, found[first:i]
        if text in "([":
            i = closing(found, i)
        elif text == "{":
            words = {token.text for token in head}
            if words & {"namespace", "class", "struct"} and "(" not in words:
                inside.append("namespace" in words)
                first = i + 1
            else:
                end = closing(found, i)
                if "(" in words and first_of(head, "=") is None:
                    yield Region("body", found[i].offset, found[end].end)
                    first = end + 1
                    if [token.text for token in head[:6]] == CHECKS:
                        yield from checks(found, i, end)
                i = end
        elif text == "}":
            inside.pop()
            first = i + 1
        elif text == ";":
            if all(inside):
                yield from constant(head, found[i].end)
            first = i + 1
        elif text == ":" and found[i - 1].text in ("public", "private"):
            first = i + 1
        i += 1


def with_all(text, numbered, kept):
    """with_all returns the text with all of these mutants, and the numbers of the mutants that no region contains. The
    constants in kept remain constants."""
    # Static assertions are removed because the constants that they need become functions.
    text = re.sub(r"static_assert\([^;]*;", lambda found: " " * len(found.group()), text)
    mutants_of = {region: [] for region in regions(tokens(text)) if region.name not in kept}
    others = []
    for number, mutant in numbered.items():
        around = [region for region in mutants_of if region.start <= mutant.offset and mutant.end <= region.end]
        if around:
            mutants_of[min(around, key=lambda region: region.end - region.start)].append(number)
        else:
            others.append(number)

    def expanded(start, end):
        made, at = "", start
        for region in sorted(mutants_of, key=lambda region: region.start):
            if at <= region.start and region.end <= end and region[1:3] != (start, end):
                made += text[at:region.start] + every(region)
                at = region.end
        return made + text[at:end]

    def every(region):
        original = expanded(region.start, region.end)
        if not mutants_of[region]:
            return original
        one, whole = (form.replace("{name}", region.name) for form in KINDS[region.kind])
        cases = ""
        for number in mutants_of[region]:
            mutant = numbered[number]
            changed = text[region.start:mutant.offset] + mutant.replacement + text[mutant.end:region.end]
            cases += "\ncase %d:\n//@%d\n%s\n//@\nbreak;" % (number, number, one % changed)
        return whole % (cases + "\ndefault: " + one % original + "\n")

    return PRELUDE + expanded(0, len(text)), others


def owners(text):
    """owners returns, for each line, the number of the mutant to which it belongs, or 0 if there is none."""
    number, made = 0, [0]
    for line in text.splitlines():
        match = MARK.match(line)
        number = int(match.group(1) or 0) if match else number
        made.append(number)
    return made
