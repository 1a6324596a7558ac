"""Counts with callgrind how many instructions each function takes for long values.

usage: instructions_test.py VALGRIND PROGRAM together|each BYTES...

README.md describes the bounds. The bound on growth does not apply to calls that take only a few instructions per byte,
since a length limit may decide whether they print the value, and a call that prints would be compared with one that
does not.
"""

import collections
import subprocess
import sys
import tempfile
import unittest

GROWTH = 1.1  # relative to proportional growth
CHEAP = 4  # instructions per byte
# Instructions per byte. strstr takes 219 for long strings that are nearly alike, and the table of character references
# takes 302.
MOST = 400
MOST_SEARCHING = 30  # instructions per item and byte
CALL = 2000  # instructions that a call may take for any value
FEW_PARTS = 8  # calls that "together" adds up

MARK = "desc: Trigger: Client Request: "

Call = collections.namedtuple("Call", "function shape argument")
Count = collections.namedtuple("Count", "instructions items calls")


def counted():
    counts = collections.defaultdict(dict)
    with tempfile.NamedTemporaryFile("r", encoding="ascii", errors="replace") as output:
        subprocess.run([VALGRIND, "--quiet", "--tool=callgrind", "--combine-dumps=yes", "--collect-atstart=no",
                        "--callgrind-out-file=" + output.name, PROGRAM, MODE, *SIZES], check=True)
        with open(output.name, encoding="utf-8", errors="replace") as lines:
            name = None
            for line in lines:
                if line.startswith(MARK):
                    name = line[len(MARK):].split()
                elif line.startswith("summary: ") and name:
                    function, shape, argument, items, size = name
                    counts[Call(function, shape, argument)][int(size)] = Count(
                        int(line.split()[1]), int(items), FEW_PARTS if shape == "parts" else 1)
                    name = None
    return counts


def per_byte(count, size):
    return max(0, count.instructions - CALL * count.calls) / (size * count.calls)


class Instructions(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.counts = counted()
        cls.linear = {call: by_size for call, by_size in cls.counts.items()
                      if not any(count.items for count in by_size.values())}
        cls.searching = {call: by_size for call, by_size in cls.counts.items() if call not in cls.linear}

    def test_every_size_is_counted(self):
        self.assertGreater(len({call.function for call in self.linear}), 150)
        for call, by_size in self.linear.items():
            self.assertEqual([int(size) for size in SIZES], sorted(by_size), call)
        self.assertEqual(3, len(self.searching))

    def test_growth_is_at_most_in_proportion(self):
        worst = (0, None)
        for call, by_size in self.linear.items():
            sizes = sorted(by_size)
            for size, next_size in zip(sizes, sizes[1:]):
                first, second = by_size[size], by_size[next_size]
                if per_byte(second, next_size) <= CHEAP:
                    continue
                growth = second.instructions / first.instructions / (next_size / size)
                worst = max(worst, (growth, call))
                self.assertLessEqual(growth, GROWTH, (call, size, next_size, first, second))
        print("growth: at most %.3f of proportion, %s" % (worst[0], " ".join(worst[1])))

    def test_no_byte_takes_more_than_a_fixed_number(self):
        worst = (0, None)
        for call, by_size in self.linear.items():
            for size, count in by_size.items():
                worst = max(worst, (per_byte(count, size), call))
                self.assertLessEqual(per_byte(count, size), MOST, (call, size, count))
        print("instructions a byte: at most %.1f, %s" % (worst[0], " ".join(worst[1])))

    def test_lists_that_are_searched_for_each_item(self):
        worst = 0
        for call, by_size in self.searching.items():
            self.assertGreaterEqual(len(by_size), 2, call)
            if call.shape == "alike-items":
                continue
            for size, count in by_size.items():
                worst = max(worst, (count.instructions - CALL) / (count.items * size))
                self.assertLessEqual(count.instructions, MOST_SEARCHING * count.items * size + CALL, (call, size))
        print("instructions for each item and byte of a searched list: at most %.1f" % worst)

    def test_alike_items_take_no_more_than_short_ones(self):
        alike = [call for call in self.searching if call.shape == "alike-items"]
        self.assertTrue(alike)
        for call in alike:
            short = self.counts[call._replace(shape="equal-neighbours")]
            for size, count in self.counts[call].items():
                self.assertLess(count.instructions, short[size].instructions, (call, size))


if __name__ == "__main__":
    VALGRIND, PROGRAM, MODE = sys.argv[1:4]
    SIZES = sys.argv[4:]
    unittest.main(argv=sys.argv[:1])
