"""Tests the reasons for refusals in batch --json over the vectors, and in single verdicts.

usage: reasons_test.py OSTREL_CHECK SOURCE_DIR
"""

import json
import pathlib
import re
import subprocess
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[3] / "vectors"))
import vectors  # noqa: E402  (sys.path must be set first)


def batch(lines, *options):
    result = subprocess.run([PROGRAM, "batch", "--json", *options], input=lines, capture_output=True, text=True,
                            check=False)
    return [row for row in map(json.loads, result.stdout.splitlines()) if "check" in row]


LONGEST = 100000  # longer values have the same reasons


def judged(name, *values):
    return batch(json.dumps({"check": name, "args": values}) + "\n")[0]


def said(*words):
    result = subprocess.run([PROGRAM, *words], capture_output=True, text=True, check=False)
    return result.stdout.splitlines()[-1]


class Vectors(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        lines = []
        for _, row in vectors.rows():
            line = json.dumps({"check": row["check"], "args": vectors.text_of(row["args"])}) + "\n"
            if len(line) <= LONGEST:
                lines.append(line)
        cls.rows = batch("".join(lines), "--encoding", "latin-1", "--channels", "1 6 11")
        assert len(lines) == len(cls.rows)

    def reasons(self):
        for row in self.rows:
            for reason in [row.get("reason")] + row.get("remarks", []):
                if reason:
                    yield row, reason

    def test_each_refusal_has_one(self):
        refused = [row for row in self.rows if row["verdict"] == "refused"]
        self.assertGreater(len(refused), 3000)
        for row in refused:
            self.assertRegex(row["reason"]["id"], "^[a-z]+(_[a-z]+)*$", row["check"])
            self.assertNotIn("any other", row["reason"]["text"])
            self.assertNotIn("{", row["reason"]["text"].replace('"{"', ""), row["check"])
            self.assertLess(len(row["reason"]["text"]), 700, row["check"])

    def test_only_what_was_accepted_or_answered_has_none(self):
        for row in self.rows:
            self.assertEqual(row["verdict"] in ("accepted", "answer"), "reason" not in row, row["check"])

    def test_members_are_those_of_the_manual_page(self):
        members = {"id", "argument", "part", "conversion", "item", "item_text", "offset", "found", "allowed",
                   "read_as", "limit", "text"}
        manual = (SOURCE / "docs" / "ostrel-check.1").read_text()
        met = set()
        for _, reason in self.reasons():
            met.update(reason)
        self.assertEqual(members, met)
        for member in members:
            self.assertIn(".It Cm " + member, manual)

    def test_ids_are_those_of_the_manual_page(self):
        manual = (SOURCE / "docs" / "ostrel-check.1").read_text()
        listed = set(re.findall(r"^\.Li (\w+)(?: ,)?$", manual, re.MULTILINE))
        sentences = (SOURCE / "rules" / "sentences.cpp").read_text().split("kSentences[] = {")[1].split("\n};")[0]
        table = set(re.findall(r'^    \{"(\w+)",', sentences, re.MULTILINE))
        self.assertEqual(table, listed)
        self.assertLessEqual({reason["id"] for _, reason in self.reasons()}, listed)

    def test_offsets_are_where_the_byte_is(self):
        met = 0
        for row, reason in self.reasons():
            if reason["id"] != "not_in_set" or "conversion" in reason:
                continue
            self.assertNotIn(reason["found"], reason["allowed"]["members"], row["check"])
            self.assertIn("byte %d is " % (reason["offset"] + 1), reason["text"], row["check"])
            met += 1
        self.assertGreater(met, 1000)


class Told(unittest.TestCase):
    def test_keywords_and_limits_are_named(self):
        self.assertIn("is not one of en-us, fr-ca, fr-fr, de-de, es-es, it-it, nl-nl, sv-se, ar-sa, pl-pl, th-th)",
                      said("HNAPCORE_check_locale", "de"))
        self.assertIn("(mode is not one of 802.11b, 802.11g, 802.11n, 802.11bg, 802.11bgn)",
                      said("WLAN_check_IEEE11_mode", "802.11a", "RADIO_2.4GHz"))
        self.assertIn("(has 0 bytes; at least 4 are needed)", said("TcmValidateLANConfigPassword", ""))

    def test_an_item_is_named(self):
        row = judged("TcmValidateDataTransmitRates", "1,2,7")
        self.assertEqual((2, "7"), (row["reason"]["item"], row["reason"]["item_text"]))
        self.assertTrue(row["reason"]["text"].startswith('item 3 ("7") is not one of 1, 2, 5.5, '))

    def test_the_reason_is_that_of_the_step_that_decided(self):
        row = judged("GUESTACCESS_check_max_allowed_number", "abc")
        self.assertEqual((402, "number_too_low", 1), (row["code"], row["reason"]["id"], row["reason"]["allowed"]))
        self.assertEqual(["too_long"], [remark["id"] for remark in row["remarks"]])
        row = judged("WLAN_check_wepkeys", ["\x01", "", "0123456789", "xx"])
        self.assertEqual([0, 1], [remark["item"] for remark in row["remarks"]])
        self.assertEqual(3, row["reason"]["item"])

    def test_numbers_that_an_int_does_not_hold(self):
        for name, limit in [("MGTSERVER_check_periodic_inform_interval", 1), ("PPP_check_shaping_rate", -1),
                            ("GUESTACCESS_check_max_allowed_number", 1)]:
            reason = judged(name, "4294967290")["reason"]
            self.assertEqual(("number_beyond_int", limit, "number_too_low"),
                             (reason["id"], reason["allowed"], reason["limit"]))
            self.assertIn("4294967290, which does not fit in an int; ", reason["text"])
            self.assertTrue(reason["text"].endswith("; at least %d is needed" % limit), reason["text"])

    def test_a_long_list_is_not_listed(self):
        reason = judged("Time_validate_tzone_and_tzone_name", "", "Tokio")["reason"]
        self.assertEqual(75, len(reason["allowed"]))
        self.assertEqual('tzone_name does not occur in any of 75 values; the closest is "Osaka, Sapporo, Tokyo"',
                         reason["text"])


if __name__ == "__main__":
    PROGRAM = sys.argv[1]
    SOURCE = pathlib.Path(sys.argv[2])
    unittest.main(argv=sys.argv[:1])
