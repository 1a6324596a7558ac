"""Tests the generated file that contains all changes, and the selection of one change."""

import re
import unittest

from descriptions import mutants
from schemata import PRELUDE, owners, with_all

TEXT = """namespace a {

constexpr int kMost = 3;
bool is_long(int length) { return length > kMost; }

std::vector<Check> checks()
{
    return {
        check("one", below(1)),
        made(),
    };
}

}  // namespace a
"""


def numbered(text):
    return dict(enumerate(mutants("rules/a.cpp", text), 1))


class Schemata(unittest.TestCase):
    def made(self, text, kept=()):
        source, others = with_all(text, numbered(text), set(kept))
        self.assertTrue(source.startswith(PRELUDE))
        return source[len(PRELUDE):], others

    def test_each_change_is_a_case_and_the_text_the_default(self):
        source, others = self.made(TEXT)
        self.assertEqual([], others)
        cases = dict(re.findall(r"case (\d+):\n//@\d+\n(.*?)\n//@\nbreak;", source, re.DOTALL))
        self.assertEqual(set(map(str, numbered(TEXT))), set(cases))
        self.assertIn("{ static constexpr int kMost = 4; return kMost; }", cases.values())
        self.assertIn("{ return length >= kMost; }", cases.values())
        self.assertIn('return check("one", below(2));', cases.values())
        self.assertIn('return check("one", above(1));', cases.values())
        # Without the cases, the original text remains.
        plain = re.sub(r"\ncase \d+:\n//@.*?\n//@\nbreak;", "", source, flags=re.DOTALL)
        self.assertIn("default: { return length > kMost; }", plain)
        self.assertIn('default: return check("one", below(1));', plain)
        self.assertIn("        made(),\n", plain)
        self.assertIn("#define kMost mutated_kMost()\n", plain)

    def test_a_constant_may_stay(self):
        source, others = self.made(TEXT, ["kMost"])
        self.assertIn("constexpr int kMost = 3;\nbool is_long", source)
        self.assertEqual(2, len(others))

    def test_lines_belong_to_their_changes(self):
        source, _ = with_all(TEXT, numbered(TEXT), set())
        owner = owners(source)
        self.assertEqual({0, *numbered(TEXT)}, set(owner))
        [line] = [number for number, line in enumerate(source.splitlines(), 1) if "below(2)" in line]
        self.assertEqual("2", numbered(TEXT)[owner[line]].replacement)


if __name__ == "__main__":
    unittest.main()
