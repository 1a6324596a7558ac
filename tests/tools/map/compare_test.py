#!/usr/bin/python3
"""Tests that each difference that "compare" reports is real, and that "same" has no exceptions.

usage: compare_test.py OSTREL_CHECK SOURCE_DIR

standard.py judges values for the model, and the library judges them for the gateway.
"""

import functools
import json
import pathlib
import subprocess
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).parent))
import standard  # noqa: E402  (sys.path must be set first)

program, source = sys.argv[1:3]
maps = pathlib.Path(source) / "examples/maps"


@functools.cache  # a comparison takes seconds
def compare(path, *options):
    return subprocess.run([program, "compare", *options, path], capture_output=True, text=True)


def judge(cases):
    """judge returns the code of each call, or None for a call that has no code."""
    lines = [json.dumps({"check": check, "args": args}) for check, args in cases]
    batch = subprocess.run([program, "batch", "--stream"], input="\n".join(lines) + "\n", capture_output=True,
                           text=True)
    return [json.loads(line)["code"] for line in batch.stdout.splitlines()]


def call_of(entry, value, others):
    """call_of returns the check and the arguments of a call, in the order of the check's parameters."""
    given = [one for one in catalogue[entry["check"]] if not one.get("output_only")]
    args = []
    for one in given:
        name = one["name"]
        source_of = entry.get("with", {}).get(name)
        if source_of is None:
            args.append(value)
        elif "paths" in source_of:
            args.append([value] + [others[name]] * (len(source_of["paths"]) - 1))
        else:
            args.append(int(others[name]) if one["kind"] in ("integer", "natural") else others[name])
    return entry["check"], args


# Values of many forms with which "same" is tested.
TRIED = ["", "0", "1", "-1", "-2", "2", "4", "10", "1540", "1541", "65535", "65536", "2147483647", "true", "false",
         "a", "A", "Off", "None", "tcp", "TCP", "UDP", "2026-11-22T12:00:00", "2026-02-29T12:00:00",
         "2026-11-22T12:00:00.5Z", "192.168.1.1", "0.0.0.0", "255.255.255.255", "02:00:00:00:00:01", "a" * 8,
         "a" * 32, "a" * 64, "a" * 256, "0123456789ABCDEF", "00ff00", "PSKAuthentication", "WEPEncryption",
         "EAPAuthentication", "AESEncryption", "WEPandTKIPandAESEncryption"]

with_json = subprocess.run([program, "list", "--json"], capture_output=True, text=True, check=True)
catalogue = {one["name"]: one["arguments"] for one in json.loads(with_json.stdout)["checks"]}


class Comparison(unittest.TestCase):
    def check_map(self, name):
        map_file = json.loads((maps / name).read_text())
        facts = standard.read_facts(maps / map_file["facts"])
        entries = {(map_file["root"] + one["path"], one["check"]): one for one in map_file["parameters"]}
        told = json.loads(compare(maps / name, "--json").stdout)
        self.assertEqual({(one["path"], one["check"]) for one in told["parameters"]}, set(entries))
        cases, expected = [], []
        for one in told["parameters"]:
            entry, fact = entries[one["path"], one["check"]], facts[one["path"]]
            kinds = set()
            for found in one["differences"]:
                value, kind = found["value"], found["kind"]
                kinds.add(kind)
                where = f"{one['path']}: {value[:80]!r} of {len(value)}"
                self.assertEqual(fact.allows(value), kind == "allowed and refused", where)
                if kind != "allowed and refused":
                    self.assertEqual(fact.has_form(value), kind == "not allowed and accepted", where)
                self.assertEqual(found["code"] != 0, kind == "allowed and refused", where)
                cases.append(call_of(entry, value, found.get("with", {})))
                expected.append((where, found["code"]))
            refused, accepted = "allowed and refused" in kinds, "not allowed and accepted" in kinds
            relation = {(True, True): "other", (True, False): "narrower", (False, True): "wider"}.get(
                (refused, accepted), "same" if one["proved"] else "unknown")
            self.assertEqual(one["relation"], relation, one["path"])
            if one["relation"] == "same":
                for value in filter(fact.has_form, TRIED):
                    cases.append(call_of(entry, value, {}))
                    expected.append((f"{one['path']}: {value!r}", 0 if fact.allows(value) else None))
        self.assertEqual(len(cases), len(expected))
        for (where, code), given in zip(expected, judge(cases), strict=True):
            if code is None:
                self.assertNotEqual(given, 0, where)
            else:
                self.assertEqual(given, code, where)
        return told

    def test_tr_098(self):
        told = self.check_map("tr-098.json")
        self.assertGreaterEqual(len({one["path"] for one in told["parameters"]}), 60)
        by_path = {one["path"].rsplit(".", 1)[1]: one for one in told["parameters"]}
        self.assertEqual(by_path["DistanceFromRoot"]["relation"], "other")
        self.assertEqual(by_path["MTU"]["relation"], "same")

    def test_tr_181(self):
        self.check_map("tr-181.json")

    def test_every_relation_is_documented(self):
        relations = {one["relation"] for name in ("tr-098.json", "tr-181.json")
                     for one in json.loads(compare(maps / name, "--json").stdout)["parameters"]}
        self.assertEqual({"same", "narrower", "wider", "other", "unknown"}, relations)
        told = subprocess.run([program, "compare", "--help"], capture_output=True, text=True).stdout
        manual = (pathlib.Path(source) / "docs/ostrel-check.1").read_text()
        page = compare(maps / "tr-098.json", "--markdown").stdout
        for relation in relations:
            self.assertRegex(told, rf"(?m)^  {relation} +\w")
            self.assertRegex(manual, rf"(?m)^\.Cm {relation}( ,)?$")
            self.assertRegex(page, rf"(?m)^- \*\*{relation}\*\*: ")

    def test_values_without_the_form_of_the_type_are_outside_the_relation(self):
        told = json.loads(compare(maps / "tr-098.json", "--json").stdout)["parameters"]
        kinds = [found["kind"] for one in told for found in one["differences"]]
        page = compare(maps / "tr-098.json", "--markdown").stdout
        self.assertEqual(kinds.count("not of the form and accepted"), page.count("; outside the relation: `"))
        self.assertIn("| value\\_p is not empty | **same**; outside the relation: `\"1x\"` is accepted, although it does",
                      page)

    def test_page_is_fresh(self):
        page = compare(maps / "tr-098.json", "--markdown").stdout
        kept = (pathlib.Path(source) / "docs/tr-098.md").read_text()
        self.assertEqual(page, kept, "docs/tr-098.md is stale: run scripts/compare")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
