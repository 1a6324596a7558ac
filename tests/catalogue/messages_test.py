"""catalogue/messages.txt holds each text that the library prints, and nothing else.

usage: messages_test.py SOURCE_DIR
"""

import pathlib
import re
import sys
import unittest

LITERAL = r'"((?:[^"\\]|\\.)*)"'


def printed_by(text):
    """printed_by gives the literals that a source file passes on to be printed."""
    text = re.sub(r'"\s*\n\s*"', "", text)
    for match in re.finditer(r"\b(?:refuse|inform|line|remark|fprintf)\([^;]*?" + LITERAL, text):
        yield match.group(1)
    for match in re.finditer(r"\bputs\(" + LITERAL, text):
        yield match.group(1) + "\\n"
    if "putchar(" in text:
        yield "%c"


class Messages(unittest.TestCase):
    def test_are_those_of_the_sources(self):
        printed = set()
        for path in (SOURCE / "src").rglob("*.cpp"):
            printed.update(printed_by(path.read_text(encoding="utf-8")))
        listed = (SOURCE / "catalogue" / "messages.txt").read_text(encoding="utf-8").splitlines()
        self.assertGreater(len(listed), 100)
        self.assertEqual(sorted(printed), listed)


if __name__ == "__main__":
    SOURCE = pathlib.Path(sys.argv[1])
    unittest.main(argv=sys.argv[:1])
