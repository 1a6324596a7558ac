"""Splits a C++ source file into the tokens that mutators may change."""

import re
from typing import NamedTuple

PATTERN = re.compile(r"""
    (?P<space>\s+)
  | (?P<comment>//[^\n]*|/\*.*?\*/)
  | (?P<string>"(?:\\.|[^"\\\n])*")
  | (?P<char>'(?:\\.|[^'\\\n])+')
  | (?P<number>\.?\d(?:[\w.]|'\w)*)
  | (?P<name>[A-Za-z_]\w*)
  | (?P<mark><<=|>>=|<=>|\.\.\.|->\*|->|::|\+\+|--|<<|>>|<=|>=|==|!=|&&|\|\||[-+*/%&|^]=|.)
""", re.VERBOSE | re.DOTALL)


class Token(NamedTuple):
    kind: str
    text: str
    offset: int
    spaced: bool  # has white space on both sides, as the formatter writes binary operators

    @property
    def end(self):
        return self.offset + len(self.text)


def without_directives(text):
    """without_directives replaces preprocessor lines with blanks, which preserves offsets."""
    pattern = re.compile(r"^[ \t]*#(?:[^\n\\]|\\.|\\\n)*", re.MULTILINE)
    return pattern.sub(lambda found: re.sub(r"[^\n]", " ", found.group()), text)


def without_comments(text):
    """without_comments replaces comments with blanks, which preserves offsets."""
    return PATTERN.sub(lambda found: re.sub(r"[^\n]", " ", found.group()) if found.lastgroup == "comment"
                       else found.group(), text)


def tokens(text):
    """tokens returns all tokens except comments, white space, attributes and static assertions."""
    text = without_directives(text)
    found = []
    for match in PATTERN.finditer(text):
        if match.lastgroup in ("space", "comment"):
            continue
        start, end = match.span()
        spaced = text[start - 1:start].isspace() and text[end:end + 1].isspace()
        found.append(Token(match.lastgroup, match.group(), start, spaced))
    return without_attributes(without_static_assertions(found))


def without_static_assertions(found):
    kept = []
    inside = False
    for token in found:
        inside = inside or token.text == "static_assert"
        if not inside:
            kept.append(token)
        elif token.text == ";":
            inside = False
    return kept


def without_attributes(found):
    kept = []
    depth = 0  # 0 outside attributes
    for i, token in enumerate(found):
        following = found[i + 1] if i + 1 < len(found) else token
        if depth == 0 and token.text == "[" and following.text == "[":
            depth = 1
        if depth == 0:
            kept.append(token)
        elif token.text == "]" and found[i - 1].text == "]":
            depth = 0
    return kept


def closing(found, at):
    """closing returns the index of the bracket that closes the one at the given index."""
    depth = 0
    for i in range(at, len(found)):
        if found[i].text in "([{":
            depth += 1
        elif found[i].text in ")]}":
            depth -= 1
            if depth == 0:
                return i
    raise ValueError("bracket without an end at offset %d" % found[at].offset)


def statement_end(found, at):
    """statement_end returns the index of the ";" that ends the statement at the given index, or None."""
    i = at
    while found[i].text != ";":
        i = closing(found, i) if found[i].text in "([{" else i
        i += 1
        if i >= len(found) or found[i].text in ")]}":
            return None
    return i
