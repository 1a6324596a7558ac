"""Mutators for characters and strings."""

import re
import zlib


def units(literal):
    """units splits a literal into its characters, each with its offset in the literal."""
    return [(match.start() + 1, match.group()) for match in
            re.finditer(r"\\(?:x[0-9A-Fa-f]+|[0-7]{1,3}|.)|[^\\]", literal[1:-1])]


def another(character):
    """another returns the next letter or digit, or the previous one for "z", "Z" and "9"."""
    if character in "zZ9":
        return {"z": "y", "Z": "Y", "9": "8"}[character]
    return chr(ord(character) + 1)


def characters(found, text):
    for token in found:
        if token.kind != "char":
            continue
        inner = token.text[1:-1]
        if len(inner) == 1 and inner not in "&[":
            other = chr(ord(inner) + 1)
            yield token.offset, token.end, "'%s'" % ("\\" + other if other in "\\'" else other)
            if inner.isalpha():
                yield token.offset, token.end, "'%s'" % inner.swapcase()
        else:
            yield token.offset, token.end, "'A'"


def changed(literal, piece, at):
    offset, unit = piece[at]
    return literal[:offset] + another(unit) + literal[offset + len(unit):]


def callee(found, at):
    """callee returns the name of the function whose arguments contain the token at the given index."""
    depth = 0
    for i in range(at - 1, 0, -1):
        if found[i].text in (";", "{", "}"):
            break
        depth += {")": 1, "(": -1}.get(found[i].text, 0)
        if depth < 0:
            return found[i - 1].text
    return ""


def strings(found, text):
    for i, token in enumerate(found):
        if token.kind != "string":
            continue
        literal = token.text
        has_case = "%" not in literal and not callee(found, i).endswith("_ignoring_case")
        every = units(literal)
        pieces = [[]]
        separators = {"\\0", "|"} if callee(found, i) == "keywords" else {"\\0"}
        for unit in every:
            if unit[1] in separators:
                pieces.append([])
            else:
                pieces[-1].append(unit)
        for piece in pieces:
            # The byte after a "%" is a conversion, not a letter.
            letters = [place for place, (_, unit) in enumerate(piece)
                       if unit.isalnum() and unit.isascii() and (place == 0 or piece[place - 1][1] != "%")]
            if letters:
                at = letters[zlib.crc32(literal.encode()) % len(letters)]
                yield token.offset, token.end, changed(literal, piece, at)
                if has_case and len(piece) < 40 and any(piece[place][1].isalpha() for place in letters):
                    at = [place for place in letters if piece[place][1].isalpha()][-1]
                    offset, unit = piece[at]
                    yield token.offset, token.end, literal[:offset] + unit.swapcase() + literal[offset + 1:]
        if every and every[-1][1] != "\\0":
            yield token.offset, token.end, literal[:every[-1][0]] + '"'
        elif len(every) > 1:
            yield token.offset, token.end, literal[:every[-2][0]] + every[-1][1] + '"'
        elif not every:
            yield token.offset, token.end, '"A"'
