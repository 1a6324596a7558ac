"""Reads lists of exceptions in which each exception has a reason."""

import fnmatch

OPTIONAL = ("in", "above")


class Entry:
    def __init__(self, text, path, keys):
        self.values = {key: [] for key in (*keys, "why")}
        self.used = set()
        name = ""
        for row in text.splitlines():
            if row.startswith("#"):
                continue
            if not row.startswith(" "):
                name, _, row = row.partition(":")
            if name not in self.values:
                raise SystemExit("%s: cannot read: %s" % (path.name, name))
            self.values[name].append(row.strip())
        for needed in self.values:
            if needed not in OPTIONAL and not self.values[needed]:
                raise SystemExit("%s: an entry has no %s: %s" % (path.name, needed, text))

    def covers(self, facts):
        """covers returns whether the entry applies, and records which of its lines matched."""
        facts = {key: "*" if "*" in self.values[key] else fact for key, fact in facts.items()
                 if self.values[key]}
        if any(fact not in self.values[key] for key, fact in facts.items()):
            return False
        self.used |= set(facts.items())
        return True

    def unused(self):
        return [(key, value) for key, values in self.values.items() if key != "why" for value in values
                if (key, value) not in self.used]


class Listed:
    """Listed contains entries that are separated by empty lines. A line that begins with "#" is a comment.

        file: src/support/text.cpp
        in: the function, if the line's text is ambiguous
        above: the text of the line above, if the function is ambiguous too
        line: the text of the source line
        why: the reason, on one or more lines

    keys maps the keys of an entry, except "why", to the fields of an item with which they are compared. A key may occur
    several times, and "*" matches anything. An entry applies to the items that match one value of each key.
    """

    def __init__(self, path, items, keys):
        texts = path.read_text().split("\n\n") if path.exists() else []
        self.entries = [Entry(text, path, keys) for text in texts
                        if any(not row.startswith("#") for row in text.splitlines())]
        self.known = {item for item in items
                      if [entry for entry in self.entries
                          if entry.covers({key: getattr(item, field) for key, field in keys.items()})]}

    def __contains__(self, item):
        return item in self.known

    def stale(self, patterns):
        return ["%s: %s: %s" % (entry.values["file"][0], *unused) for entry in self.entries
                for unused in entry.unused()
                if any(fnmatch.fnmatch(entry.values["file"][0], pattern) for pattern in patterns)]
