"""Makes small changes to rules/, one at a time, and lists those that no test of the descriptions notices.

README.md in this folder describes the method.
"""

import itertools
import pathlib
import re
import sys

import mutators
from changed_rules import Workshop
from literals import callee, strings
from mutate import ROOT, Results, arguments, conduct, folder_of
from mutators import numbers, operators
from tokens import closing

# The files that evaluate descriptions and produce reasons. Descriptions are in the files that list checks.
EVALUATION = {"build", "character_references", "condition_words", "conditions", "evaluate", "expression_words", "lists",
              "number_conditions", "operands", "register", "sentences", "set", "shared", "step_words",
              "text_conditions"}

# Either word of a pair can replace the other.
PAIRS = [("below", "above"), ("shorter_than", "longer_than"), ("one_of", "none_of"), ("empty", "not_empty"),
         ("length_is", "length_not"), ("among", "not_among"), ("equal", "not_equal"), ("has_shape", "lacks_shape"),
         ("all_of", "any_of"), ("before_first", "before_last"), ("after_first", "after_last"),
         ("line", "unflushed"), ("account_realm", "setup_realm")]
SETS = ["kDigits", "kUpper", "kLower", "kLetters", "kAlnum", "kHex", "kPrintable", "kLatin1", "kBlank",
        "kAccountDigits", "kIpv4", "kHostLabel", "kUrl", "kNameSet", "kMail", "kHostPort", "kRouterName", "kDeviceName"]
PHRASES = [("at least", "at most"), ("needed", "allowed"), ("first", "last"), ("end", "start"), ("is", "are"),
           ("one of", "none of"), ("byte", "bytes"), ("is", "is not")]
# The functions whose string arguments describe an argument of a check. No refusal contains these strings.
NOT_REPORTED = {"text", "buffer", "blocks", "integer", "natural", "integer_out", "in"}
# Steps of this kind have the same reason, so their order makes no difference.
ALIKE = {"refuse_repeated"}
# No value is refused by two steps that match different patterns, so the order of such steps makes no difference.
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


def reported(found):
    return [token for i, token in enumerate(found) if token.kind != "string" or callee(found, i) not in NOT_REPORTED]


def phrases(found, text):
    for token in reported(found):
        for one, other in PHRASES if token.kind == "string" else []:
            for old, new in ((one, other), (other, one)):
                for match in re.finditer(r"(?<!\w)%s(?!\w)" % old, token.text):
                    yield token.offset + match.start(), token.offset + match.end(), new


def texts(found, text):
    yield from strings(reported(found), text)


def steps(found):
    """steps yields the indices of the first and the last token of each refusing step in a list."""
    for i, token in enumerate(found[:-1]):
        if token.text.startswith("refuse") and token.text != "refused_by" and found[i + 1].text == "(" and \
                found[i - 1].text in (",", "{"):
            yield i, closing(found, i + 1)


def orders(found, text):
    """orders yields changes that swap two adjacent refusing steps, and changes that remove one refusing step."""
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


MUTATORS = (operators, numbers, texts, words, phrases, orders)


def mutants(file, text):
    return list(mutators.mutants(file, text, MUTATORS))


TOGETHER = 250  # at most this many mutants are compiled into one program


def try_all(waiting, texts, workshop, jobs):
    """try_all yields each mutant with its status. Mutants that no quick test notices come last."""
    unknown = []
    for file, mutants_of in itertools.groupby(waiting, lambda mutant: mutant.file):
        left = list(mutants_of)
        while left:
            for mutant, status in workshop.judged(file, texts[file], left[:TOGETHER], jobs):
                if status == "unknown":
                    unknown.append(mutant)
                else:
                    yield mutant, status, ""
            del left[:TOGETHER]
    for mutant in unknown:
        yield mutant, workshop.alone(mutant, texts[mutant.file]), ""


def main():
    given = arguments("scripts/mutate rules", __doc__.splitlines()[0], "rules/")
    texts = {str(path.relative_to(ROOT)): path.read_text() for path in sorted((ROOT / "rules").rglob("*.cpp"))}
    texts = {file: text for file, text in texts.items()
             if pathlib.Path(file).stem in EVALUATION or "std::vector<Check> " in text}
    build = (ROOT / given.build).resolve()
    folder = folder_of(given, build, "mutate_rules")
    workshop = Workshop(ROOT, build, folder)
    results = Results(folder / "results.json", texts, [workshop.program])
    every = [mutant for file, text in texts.items() for mutant in mutants(file, text)]
    return conduct(given, every, "equivalent_rules.txt", results, 100.0,
                   lambda waiting: try_all(waiting, texts, workshop, given.jobs))


if __name__ == "__main__":
    sys.exit(main())
