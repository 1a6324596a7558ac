"""Tests that a function's module has the same path under include/ostrel/, src/, rules/ and vectors/.

usage: paths_test.py SOURCE_DIR VECTORS_TEST OSTREL_CHECK
"""

import json
import pathlib
import re
import subprocess
import sys
import unittest

SOURCE = pathlib.Path(sys.argv[1])
TESTS, TOOL = sys.argv[2:]
# This data table cannot be called and has no description.
TABLE = "ostrel_ctype"

NAMES = re.findall(r"^    (\w+);$", (SOURCE / "abi/exports.map").read_text(), re.MULTILINE)


def declared(text):
    return re.findall(r"\b(\w+)(?:\([^)]*\)|\[\d+\]);", re.sub(r"/\*.*?\*/", "", text, flags=re.DOTALL))


def defined(text):
    return re.findall(r"^(?:const )?(?:unsigned )?\w+ (\w+)(?:\([^;{]*\)\s*\{|\[\d+\] = )", text, re.MULTILINE)


def described(text):
    return re.findall(r'(?<!refused_by\()"(\w+)"', text)


def judged(text):
    return {json.loads(line)["check"] for line in text.split("\n") if line}


TREES = {"include/ostrel": (".h", declared), "src": (".cpp", defined), "rules": (".cpp", described),
         "vectors": (".ndjson", judged)}


def places(tree):
    """places maps each name to the modules in a tree whose files contain it."""
    ending, names_in = TREES[tree]
    found = {}
    for path in sorted((SOURCE / tree).rglob("*" + ending)):
        module = str(path.relative_to(SOURCE / tree).with_suffix(""))
        for name in set(names_in(path.read_text(encoding="utf-8"))) & set(NAMES):
            found.setdefault(name, []).append(module)
    return found


class Paths(unittest.TestCase):
    def test_each_name_is_in_one_file_of_each_tree_and_all_have_one_path(self):
        headers = places("include/ostrel")
        self.assertEqual({name: 1 for name in NAMES}, {name: len(modules) for name, modules in headers.items()})
        self.assertEqual(headers, places("src"))
        del headers[TABLE]
        self.assertEqual(headers, places("rules"))
        self.assertEqual(headers, places("vectors"))

    def test_each_function_has_a_test_in_the_suite_of_its_module(self):
        listed = subprocess.run([TESTS, "--gtest_list_tests"], check=True, stdout=subprocess.PIPE, text=True).stdout
        suite, tests = "", {}
        for line in listed.splitlines():
            if line.startswith("  "):
                tests.setdefault(line.strip(), []).append(suite)
            else:
                suite = line.removesuffix(".")
        self.assertEqual(places("vectors"), tests)

    def test_the_family_of_a_function_is_the_first_component_of_its_path(self):
        listed = subprocess.run([TOOL, "list", "--json"], check=True, stdout=subprocess.PIPE, text=True).stdout
        families = {check["name"]: [check["family"]] for check in json.loads(listed)["checks"]}
        modules = {name: [module.split("/")[0] for module in found] for name, found in places("vectors").items()}
        self.assertEqual(modules, families)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
