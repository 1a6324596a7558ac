import pathlib
import sys
import tempfile
import unittest

from listed import Listed
from mutators import NAMED, mutants


def changes(text):
    return [mutant.change for mutant in mutants("src/a.cpp", text)]


class Mutators(unittest.TestCase):
    def test_limits_are_moved_and_turned_round(self):
        self.assertEqual(["<= -> <", "<= -> >", "63 -> 62", "63 -> 64"], changes("bool b = a <= 63;"))

    def test_conditions_are_joined_otherwise_and_negated(self):
        self.assertEqual(["a && !b -> !(a && !b)", "&& -> ||", "! -> nothing", "f() -> nothing"],
                         changes("if (a && !b) f();"))

    def test_a_comparison_is_negated_once(self):
        self.assertEqual(["== -> !=", "f() -> nothing"], changes("if (a == b) f();"))

    def test_codes_are_replaced_and_guarded_returns_left_out(self):
        self.assertEqual(["a -> !(a)", "return OSTREL_TOO_LONG -> nothing", "OSTREL_TOO_LONG -> OSTREL_INVALID",
                          "OSTREL_TOO_LONG -> OSTREL_VALID"], changes("if (a) return OSTREL_TOO_LONG;"))

    def test_messages_lose_a_letter_and_a_line_end_but_no_conversion(self):
        made = changes(r'return refuse(c, "Bad: %s\n\n");')
        self.assertEqual(2, len(made))
        self.assertIn(r'"Bad: %s\n\n" -> "Bad: %s\n"', made)
        self.assertTrue(all("%s" in change.split(" -> ")[1] for change in made))

    def test_keywords_lose_a_letter_their_end_and_their_case(self):
        self.assertEqual(3, len(changes('equals(a, "Auto")')))
        self.assertEqual(2, len(changes('equals_ignoring_case(a, "Auto")')))

    def test_each_text_of_a_table_is_changed(self):
        made = changes(r'"-12:00\0West\0"')
        self.assertIn(r'"-12:00\0West\0" -> "-12:00\0WesT\0"', made)
        self.assertTrue(any(change.endswith(r':00\0West\0"') or r':01\0' in change or r':10\0' in change
                            for change in made))

    def test_characters_numbers_and_signs(self):
        self.assertEqual(["'a' -> 'A'", "'a' -> 'b'"], changes("char x = 'a';"))
        self.assertEqual(["0xA0 -> 0x9F", "0xA0 -> 0xA1"], changes("int a = 0xA0;"))
        self.assertEqual(["- -> nothing", "1 -> 0", "1 -> 2"], changes("int a = -1;"))

    def test_the_second_of_a_kind_in_a_line_is_numbered(self):
        self.assertEqual(["|| -> &&", "|| -> && #2"], changes("bool x = a || b || c;"))

    def test_comments_directives_assertions_and_attributes_are_left_alone(self):
        self.assertEqual([], changes("// 1 < 2\n/* 3 */\n#if A == 1\n#define B \\\n  2\n#endif\n"
                                     'static_assert(a == 12, "b");\n[[gnu::format(printf, 2, 3)]] int f();\n'))

    def test_declarations_are_no_calls(self):
        self.assertEqual([], changes("ServerList split(const char* list);\nstd::string_view text;"))


class ListOfEquivalents(unittest.TestCase):
    def read(self, text):
        with tempfile.TemporaryDirectory() as folder:
            path = pathlib.Path(folder) / "equivalent.txt"
            path.write_text(text)
            made = list(mutants("src/a.cpp", "bool b =\n    // why\n    a <= 63;  // because\n"))
            return made, Listed(path, made, NAMED)

    def test_entries_name_the_line_by_its_text(self):
        made, known = self.read("# a comment\n\nfile: src/a.cpp\nline: a <= 63;\nchange: 63 -> 62\n"
                                "change: 63 -> 64\nwhy: for a\n  reason\n")
        self.assertEqual([False, False, True, True], [mutant in known for mutant in made])
        self.assertEqual([], known.stale(["*"]))

    def test_entries_may_name_the_line_above(self):
        entry = "file: src/a.cpp\nabove: %s\nline: a <= 63;\nchange: *\nwhy: so it is\n"
        for above, expected in (("bool b =", True), ("bool c =", False)):
            made, known = self.read(entry % above)
            self.assertEqual([expected] * 4, [mutant in known for mutant in made])

    def test_an_entry_without_its_mutant_is_stale(self):
        _, known = self.read("file: src/a.cpp\nline: a <= 64;\nchange: 64 -> 63\nwhy: it was\n")
        self.assertEqual(3, len(known.stale(["*"])))
        self.assertEqual([], known.stale(["src/b.cpp"]))

    def test_an_entry_needs_a_reason(self):
        with self.assertRaises(SystemExit):
            self.read("file: src/a.cpp\nline: a <= 63;\nchange: 63 -> 62\n")


if __name__ == "__main__":
    sys.exit(unittest.main())
