"""Tests which parts of a description the mutators change."""

import unittest

from descriptions import mutants


def changes(text):
    return [(text[mutant.offset:mutant.end], mutant.replacement) for mutant in mutants("rules/a.cpp", text)]


class Descriptions(unittest.TestCase):
    def test_limits_and_words_are_changed(self):
        self.assertEqual([("402", "401"), ("402", "403"), ("below", "above"), ("1", "0"), ("1", "2")],
                         changes("{refuse(402, below(1))}"))
        self.assertIn(("kHex", "kPrintable"), changes("outside(kHex)"))
        self.assertIn(("not_", ""), changes("not_(empty())"))

    def test_neighbouring_refusals_are_swapped_and_left_out(self):
        made = changes("{refuse(1, empty()), refuse(2, null(it))}")
        self.assertIn(("refuse(1, empty()), refuse(2, null(it))", "refuse(2, null(it)), refuse(1, empty())"), made)
        self.assertIn(("refuse(1, empty()),", ""), made)
        self.assertIn((", refuse(2, null(it))", ""), made)

    def test_two_limits_keep_their_order(self):
        self.assertFalse([new for old, new in changes("{refuse(1, below(it, 1)), refuse(1, above(it, 9))}")
                          if new.startswith("refuse(1, above")])

    def test_phrases_of_a_sentence_are_turned_round(self):
        made = changes('{"too_long", "has 2 bytes; at most 1 is allowed"}')
        for change in [("at most", "at least"), ("allowed", "needed"), ("bytes", "byte"), ("is", "is not")]:
            self.assertIn(change, made)

    def test_what_an_argument_is_stays(self):
        self.assertEqual([], changes('text("value", "the first byte that is left").in("bytes")'))


if __name__ == "__main__":
    unittest.main()
