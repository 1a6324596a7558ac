"""Tests that the chart and the page show all families, beginning with those in which a peer is faster."""

import contextlib
import io
import json
import pathlib
import re
import tempfile
import unittest
from unittest import mock

import report

FAMILIES = {
    "ipv4": {"ours": 20, "reading": 15, "strlen": 5, "inet_pton": 40, "libyang": 1500},
    "number": {"ours": 20, "reading": 4, "strlen": 2, "strtol": 15, "PCRE2 JIT": 18, "RE2": 80},
    "own_digits_8": {"ours": 16, "reading": 5, "strlen": 2, "strspn": 5},
    "keyword": {"ours": 30, "reading": 6, "strlen": 2, "libyang": 180},
}


def measured(repetitions=3):
    """measured returns output like that of the benchmarks, with one slow repetition, which the report must ignore."""
    return {"benchmarks": [
        {"run_type": "iteration", "run_name": f"{family}/valid/{contender}", "values": 1000, "bytes_per_second": 1e9,
         "allocations": 0, "cpu_time": 1000 * time * (9 if repetition == 1 else 1)}
        for family, times in FAMILIES.items() for contender, time in times.items() for repetition in range(repetitions)]}


class Report(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.folder = pathlib.Path(scratch.name)
        (self.folder / "times.json").write_text(json.dumps(measured()))
        (self.folder / "instructions.json").write_text("{}")

    def made(self, page=None):
        if page is not None:
            (self.folder / "page.md").write_text(page)
        names = ("times.json", "instructions.json", "chart.svg", "page.md")
        with mock.patch("sys.argv", ["report.py", *(str(self.folder / name) for name in names)]), \
                contextlib.redirect_stdout(io.StringIO()):
            report.main()
        return (self.folder / "chart.svg").read_text(), (self.folder / "page.md").read_text()

    def test_chart_shows_all_families_the_lost_ones_first(self):
        chart, _ = self.made()
        self.assertEqual(["own_digits_8", "number", "ipv4", "keyword"], re.findall(r'class="f">(\w+)<', chart))
        # Each family has a bar for every contender except our rule and strlen. The bars of faster peers look different.
        self.assertEqual(11, chart.count('class="n"'))
        self.assertEqual(3, chart.count('class="w"/>'))
        self.assertIn('class="n">strtol</text>', chart)

    def test_page_lists_all_families_the_lost_ones_first(self):
        _, page = self.made()
        self.assertIn("In 2 of 4 families a peer is faster.", page)
        self.assertEqual([
            "| caller's own set of 10, 8 bytes | 16 | **`strspn` 5.0** | 5.0 |",
            "| number | 20 | **`strtol` 15**, **PCRE2 JIT 18**, RE2 80 | 4.0 |",
            "| IPv4 address | 20 | `inet_pton` 40, libyang 1500 | 15 |",
            "| keyword | 30 | libyang 180 | 6.0 |"], page.splitlines()[-4:])

    def test_page_keeps_the_text_around_the_table(self):
        _, page = self.made("# Before\n" + report.BEGIN + "an old table\n" + report.END + "after\n")
        self.assertTrue(page.startswith("# Before\n" + report.BEGIN + "In 2 of 4"))
        self.assertTrue(page.endswith("| 6.0 |\n" + report.END + "after\n"))
        self.assertNotIn("an old table", page)

    def test_a_page_without_a_place_is_not_overwritten(self):
        with self.assertRaises(SystemExit):
            self.made("# Another page\n")
        self.assertEqual("# Another page\n", (self.folder / "page.md").read_text())

    def test_every_family_has_a_name(self):
        source = (pathlib.Path(__file__).parent / "families.cpp").read_text()
        self.assertEqual(list(report.NAMES), re.findall(r'(?m)^        (?:\{|members\()"(\w+)",', source))


if __name__ == "__main__":
    unittest.main()
