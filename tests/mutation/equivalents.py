"""The list of mutants that change nothing that can be noticed, each with the reason."""

import fnmatch


class Entry:
    """Entry is one reason and the changes that it holds for."""

    def __init__(self, text):
        self.values = {"file": [], "in": [], "above": [], "line": [], "change": [], "why": []}
        self.used = set()
        name = ""
        for row in text.splitlines():
            if row.startswith("#"):
                continue
            if not row.startswith(" "):
                name, _, row = row.partition(":")
            if name not in self.values:
                raise SystemExit("equivalent.txt: cannot read: " + name)
            self.values[name].append(row.strip())
        for needed in ("file", "line", "change", "why"):
            if not self.values[needed]:
                raise SystemExit("equivalent.txt: an entry has no %s: %s" % (needed, text))

    def covers(self, mutant):
        """covers notes which lines of the entry have been of use."""
        change = "*" if "*" in self.values["change"] else mutant.change
        if mutant.file not in self.values["file"] or mutant.line not in self.values["line"] or \
                change not in self.values["change"] or \
                (self.values["in"] and mutant.function not in self.values["in"]) or \
                (self.values["above"] and mutant.above not in self.values["above"]):
            return False
        self.used |= {("file", mutant.file), ("in", mutant.function), ("above", mutant.above),
                      ("line", mutant.line), ("change", change)}
        return True

    def unused(self):
        return [(name, value) for name in ("file", "in", "above", "line", "change") for value in self.values[name]
                if (name, value) not in self.used]


class Equivalents:
    """Equivalents are entries parted by empty lines; "#" begins a comment.

        file: src/support/text.cpp
        in: the function, where the line's text is not enough
        above: the text of the line above, where that is not enough either
        line: the text of the source line
        change: what it says before -> what it says then; or "*" for every change of the line
        why: the reason, one line or several

    There may be several of each. An entry holds for every one of its changes in any of its lines.
    """

    def __init__(self, path, mutants):
        texts = path.read_text().split("\n\n") if path.exists() else []
        self.entries = [Entry(text) for text in texts
                        if any(not row.startswith("#") for row in text.splitlines())]
        self.known = {mutant for mutant in mutants
                      if [entry for entry in self.entries if entry.covers(mutant)]}

    def __contains__(self, mutant):
        return mutant in self.known

    def stale(self, patterns):
        """stale gives what fits no mutant any more."""
        return ["%s: %s: %s" % (entry.values["file"][0], *unused) for entry in self.entries
                for unused in entry.unused()
                if any(fnmatch.fnmatch(entry.values["file"][0], pattern) for pattern in patterns)]
