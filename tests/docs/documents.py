"""Reads the commands that a document tells its reader to run."""

import collections
import re

# Command is a command as it stands there, with the output that stands below it; None where none does.
Command = collections.namedtuple("Command", "number text output")

SHELL = ("", "sh")
FENCE = re.compile(r"^```(\w*)$")


class UnknownLanguage(Exception):
    pass


def blocks(text):
    """blocks gives the language, the first line's number and the lines of each fenced block."""
    language, first, lines = None, 0, []
    for number, line in enumerate(text.splitlines(), 1):
        fence = FENCE.match(line)
        if language is None and fence:
            language, first, lines = fence[1], number + 1, []
        elif language is not None and fence:
            yield language, first, lines
            language = None
        elif language is not None:
            lines.append(line)


def in_console(first, lines):
    """in_console reads a block in which each command stands after "$ ", and what it prints stands below."""
    found = []
    for number, line in enumerate(lines, first):
        if line.startswith("$ "):
            found.append(Command(number, line[2:], None))
        else:
            last = found[-1]
            found[-1] = last._replace(output=(last.output or "") + line + "\n")
    return found


def in_blocks(text):
    """in_blocks gives all commands of the fenced blocks."""
    for language, first, lines in blocks(text):
        if language not in SHELL:
            continue
        if lines and lines[0].startswith("$ "):
            yield from in_console(first, lines)
        else:
            for number, line in enumerate(lines, first):
                if line.strip():
                    yield Command(number, line, None)


def code(text):
    """code gives what the blocks of C hold; a block of any other language is a reason to look here."""
    found = []
    for language, first, lines in blocks(text):
        if language == "c":
            found += lines
        elif language not in SHELL:
            raise UnknownLanguage("line %d: nobody has decided what to do with %s" % (first, language))
    return found


def spans(text):
    """spans gives the number of the line and the words of each piece of code within the text."""
    outside = re.sub(r"(?ms)^```.*?^```", lambda block: "\n" * block[0].count("\n"), text)
    for match in re.finditer(r"`([^`]+)`", outside):
        yield outside.count("\n", 0, match.start()) + 1, " ".join(match[1].split())
