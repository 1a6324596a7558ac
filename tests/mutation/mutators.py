"""Mutators, each of which changes one place in a source file.

A mutator yields each change as the offset of its start, the offset after its end, and the replacement.
"""

import re
from typing import NamedTuple

from literals import characters, strings
from tokens import closing, statement_end, tokens, without_comments

OPERATORS = {
    "<": ["<=", ">="], "<=": ["<", ">"], ">": [">=", "<="], ">=": [">", "<"],
    "==": ["!="], "!=": ["=="], "&&": ["||"], "||": ["&&"],
    "+": ["-"], "-": ["+"], "*": ["/"], "/": ["*"], "%": ["/"],
    "+=": ["-="], "-=": ["+="], "*=": ["/="], "|=": ["&="], "&=": ["|="],
    "<<": [">>"], ">>": ["<<"], "&": ["|"], "|": ["&"],
}
UNARY = {"++": "--", "--": "++"}
WORDS = {"true": "false", "false": "true", "nullptr": None, "__func__": '"nobody"'}
# FUNCTION matches the name of a function that is defined in the first column and, after its end, an empty name.
FUNCTION = re.compile(r"^(?:[a-z\[][^=;]*?(\w+)\(|\}\n|namespace)", re.MULTILINE)
CODE = re.compile(r"OSTREL_[A-Z_]+$")
CODES = ["OSTREL_VALID", "OSTREL_INVALID", "OSTREL_INVALID_VALUE", "OSTREL_OUT_OF_RANGE"]
NOT_CODES = {"OSTREL_MODEL", "OSTREL_ACCOUNT_REALM", "OSTREL_SETUP_REALM"}
FLAGS = ["CT_UPPER", "CT_LOWER", "CT_DIGIT", "CT_CNTRL", "CT_PUNCT", "CT_SPACE", "CT_XLETTER", "CT_BLANK"]
SETS = ["kDigits", "kAlnum", "kPppDigits", "kHexDigits", "kAsciiPrintable", "kLatin1Printable", "kIpv4",
        "kHost", "kUrl", "kHostPort", "kName", "kMail", "kDescription", "kDeviceName", "kRouterName", "kCisName"]
# A statement that begins with one of these words cannot be removed.
DECLARING = {"const", "constexpr", "static", "using", "namespace", "struct", "class", "enum", "extern",
             "inline", "explicit", "public", "private", "protected", "template", "typedef", "auto", "bool",
             "char", "int", "unsigned", "signed", "long", "short", "void", "double", "float", "return", "if",
             "else", "for", "while", "do", "switch", "case", "default", "break", "continue", "asm"}


class Mutant(NamedTuple):
    file: str
    offset: int
    end: int
    replacement: str
    line: str      # the text of the line on which it begins, without indentation or comments
    change: str    # as displayed: "27 -> 28", and "27 -> 28 #2" for the second such change in the line
    number: int    # the number of that line
    function: str  # the function that contains it
    above: str     # the text of the nearest line above that contains code


# NAMED maps the keys of an entry in equivalent.txt to the fields with which they are compared.
NAMED = {"file": "file", "in": "function", "above": "above", "line": "line", "change": "change"}


def operators(found, text):
    for i, token in enumerate(found):
        if token.kind != "mark":
            continue
        if token.spaced:
            for other in OPERATORS.get(token.text, []):
                yield token.offset, token.end, other
        if token.text in UNARY:
            yield token.offset, token.end, UNARY[token.text]
        if token.text == "!":
            yield token.offset, token.end, ""
        if token.text == "-" and not token.spaced and found[i + 1].kind == "number":
            yield token.offset, token.end, ""


def numbers(found, text):
    for token in found:
        if token.kind != "number":
            continue
        plain = token.text.replace("'", "")
        match = re.fullmatch(r"(0x[0-9A-Fa-f]+|\d+)([uUlLzZ]*)", plain)
        if match is None:
            continue
        value = int(match.group(1), 0)
        form = "0x%X" if plain.lower().startswith("0x") else "%d"
        for other in (value + 1, value - 1):
            written = form % other if other >= 0 else "(-1)"
            yield token.offset, token.end, written + match.group(2)


def words(found, text):
    for token in found:
        if token.kind == "name" and WORDS.get(token.text) is not None:
            yield token.offset, token.end, WORDS[token.text]


def neighbours(found, names, both):
    for i, token in enumerate(found):
        if token.kind != "name" or token.text not in names or found[i - 1].text in ("CharSet", "char"):
            continue
        at = names.index(token.text)
        yield token.offset, token.end, names[(at + 1) % len(names)]
        if both:
            yield token.offset, token.end, names[at - 1]


def constants(found, text):
    yield from neighbours(found, SETS, True)
    yield from neighbours(found, FLAGS, False)
    yield from neighbours(found, re.findall(r"constexpr unsigned char (\w+) =", text), False)
    sets = sorted({token.text for token in found if token.text.startswith("CHARSET_")})
    yield from neighbours(found, sets, False)


def limits(found, text):
    """limits changes single uses of a named number that is used several times."""
    named = re.findall(r"constexpr (?:int|unsigned|std::size_t) (k\w+) =", text)
    for name in named:
        uses = [token for token in found if token.kind == "name" and token.text == name]
        if len(uses) < 3:
            continue
        for use in uses[1:]:
            yield use.offset, use.end, "(%s + 1)" % name


def codes(found, text):
    for token in found:
        if not CODE.match(token.text) or token.text in NOT_CODES:
            continue
        others = [code for code in CODES if code != token.text]
        for other in others[:1 if token.text == "OSTREL_VALID" else 2]:
            yield token.offset, token.end, other


def is_comparison(found, first, last):
    """is_comparison returns whether the tokens are a comparison or a negation. Changing its operator negates it."""
    if found[first].text == "!":
        return not any(token.text in ("&&", "||") for token in found[first:last])
    depth = 0
    compares = False
    for token in found[first:last]:
        if token.text in "([{":
            depth += 1
        elif token.text in ")]}":
            depth -= 1
        elif depth == 0 and token.text in ("&&", "||"):
            return False
        elif depth == 0 and token.spaced and token.text in ("==", "!=", "<", "<=", ">", ">="):
            compares = True
    return compares


def conditions(found, text):
    for i, token in enumerate(found):
        if token.text not in ("if", "while") or found[i + 1].text != "(":
            continue
        last = closing(found, i + 1)
        first = i + 2
        for j in range(first, last):  # skips the init-statement
            if found[j].text == ";":
                first = j + 1
        if is_comparison(found, first, last):
            continue
        yield found[first].offset, found[last].offset, "!(%s)" % text[found[first].offset:found[last].offset]


def results(found, text):
    for i, token in enumerate(found):
        if token.text != "return" or found[i + 1].text in ("refuse", "{", ";", "*"):
            continue
        last = statement_end(found, i + 1)
        if last is None or (last == i + 2 and found[i + 1].kind != "name") or \
                found[i + 1].text in ("true", "false") or CODE.match(found[i + 1].text):
            continue
        if is_comparison(found, i + 1, last) or any(token.text == "?" for token in found[i + 1:last]):
            continue
        start, end = found[i + 1].offset, found[last].offset
        yield start, end, "!(%s)" % text[start:end]


def is_effect(found, at):
    """is_effect returns whether a call, an assignment or a jump begins at the given index."""
    token = found[at]
    if token.text in ("++", "--", "*", "continue", "break"):
        return True
    if token.kind != "name" or token.text in DECLARING:
        return False
    i = at + 1
    while found[i].text in ("::", ".", "->") and found[i + 1].kind == "name":
        i += 2
    return found[i].text in ("(", "[", "=", "+=", "-=", "*=", "|=", "++", "--")


def deletions(found, text):
    brackets = []  # for each open "(", whether it begins a condition
    guarded = False
    for i, token in enumerate(found):
        if token.text == "(":
            brackets.append(found[i - 1].text in ("if", "for", "while"))
        elif token.text == ")":
            guarded = brackets.pop()
        before = found[i - 1].text
        after_condition = before == ")" and guarded
        begins = (before in (";", "{", "}", "else") and True not in brackets) or after_condition
        if not begins or not (is_effect(found, i) or (token.text == "return" and after_condition)):
            continue
        last = statement_end(found, i)
        if last is not None:
            yield token.offset, found[last].offset, ""


MUTATORS = [operators, numbers, words, constants, limits, codes, characters, strings, conditions, results,
            deletions]


def shown(text):
    return re.sub(r"\s+", " ", text) or "nothing"


def mutants(file, text, mutators=tuple(MUTATORS)):
    found = tokens(text)
    made = {}
    for mutator in mutators:
        for start, end, replacement in mutator(found, text):
            if text[start:end] != replacement:
                made.setdefault((start, end, replacement), None)
    seen = {}
    code = without_comments(text)
    functions = [(match.group(1) or "", match.start()) for match in FUNCTION.finditer(text)]
    for start, end, replacement in sorted(made):
        first = text.rfind("\n", 0, start) + 1
        line = code[first:code.find("\n", start)].strip()
        above = code[:first].rstrip().rpartition("\n")[2].strip()
        number = text.count("\n", 0, start) + 1
        change = "%s -> %s" % (shown(text[start:end]), shown(replacement))
        count = seen[number, change] = seen.get((number, change), 0) + 1
        if count > 1:
            change += " #%d" % count
        opened = [name for name, at in functions if at <= start]
        yield Mutant(file, start, end, replacement, line, change, number, opened[-1] if opened else "", above)
