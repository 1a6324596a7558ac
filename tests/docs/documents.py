"""Reads the commands that a document contains."""

import collections
import re

# Command is the line number and the text of a command, and the output that the document shows below it, or None.
Command = collections.namedtuple("Command", "number text output")

SHELL = ("", "sh")
FENCE = re.compile(r"^```(\w*)$")


class UnknownLanguage(Exception):
    pass


def blocks(text):
    """blocks yields the language, the number of the first line, and the lines of each fenced block."""
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
    """in_console parses a block in which the first line of each command begins with "$ " and its other lines with "> ",
    followed by the command's output."""
    found = []
    for number, line in enumerate(lines, first):
        if line.startswith("$ "):
            found.append(Command(number, line[2:], None))
        elif line.startswith(">"):
            found[-1] = found[-1]._replace(text=found[-1].text + "\n" + line[2:])
        else:
            last = found[-1]
            found[-1] = last._replace(output=(last.output or "") + line + "\n")
    return found


def in_blocks(text):
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
    """code returns the lines of the C blocks. A block in an unknown language is an error."""
    found = []
    for language, first, lines in blocks(text):
        if language == "c":
            found += lines
        elif language not in SHELL:
            raise UnknownLanguage("line %d: unknown language %s" % (first, language))
    return found


def spans(text):
    """spans yields the line number and the words of each code span in the text."""
    outside = re.sub(r"(?ms)^```.*?^```", lambda block: "\n" * block[0].count("\n"), text)
    for match in re.finditer(r"`([^`]+)`", outside):
        yield outside.count("\n", 0, match.start()) + 1, " ".join(match[1].split())
