"""Follows CONTRIBUTING.md to add a range check to a copy of the repository, builds the copy and runs its tests.

usage: recipe_test.py BUILD_FOLDER SOURCE_FOLDER

Only files that CONTRIBUTING.md names may change, at most eight of them by hand. Objects that the new check does not
affect are taken from BUILD_FOLDER.
"""

import json
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import time
import unittest

NAME = "L3FORWARDING_check_preference"
MOST_FILES = 8
SKIPPED = 77
# The new check has no rows with long strings, and those of other checks would dominate the run time.
LIMITS = {"OSTREL_LONGEST_TEXT": "9000"}
PRINTED = "Error in L3FORWARDING_check_preference: Invalid preference:%s, RANGE[1, 255]\n"

# The tests of the gcc preset that read every check or a file generated from all checks, and their build targets.
TESTS = ("vectors_test|paths|exports_test|misuse_test|abi|headers|shared_object|rules_test|constraints_test|json_schema|"
         "assertions_test|pages|terminal|explain|reasons|examples_test|packed_vectors|sql.table")
TARGETS = ["ostrel_check", "ostrel_check_O0", "ostrel_empty", "ostrel-check", "find_hazards", "fuzz_replay", "vectors_test",
           "exports_test", "misuse_test", "rules_test", "constraints_test", "assertions_test", "examples_test",
           "packed_vectors_test", "packed_vectors"]


def row(value, reason=None):
    made = {"check": NAME, "args": [value], "code": 402 if reason else 0}
    if reason:
        made["reason"] = {"id": reason, "argument": "value", "offset": 0}
        made["out"] = PRINTED % value
    return json.dumps(made) + "\n"


# The manual edits. Each file is mapped to an anchor and the text that is inserted before that anchor.
EDITS = {
    "vectors/l3forwarding_check.ndjson": ("", "".join([
        row("1"), row("2"), row("254"), row("255"), row("12 ms"),
        row("0", "number_too_low"), row("-1", "number_too_low"), row("", "number_too_low"),
        row("256", "number_too_high"), row("257", "number_too_high"), row("abc", "number_too_low")])),
    "include/ostrel/l3forwarding_check.h": ("#endif\n", """/*
 * L3FORWARDING_check_preference: a number of 1 to 255.
 *
 * Refuses with "Error in %s: Invalid preference:%s, RANGE[1, 255]\\n" (the value).
 */
OSTREL_API int L3FORWARDING_check_preference(const char* value);

"""),
    "src/l3forwarding_check.cpp": ("", """
int L3FORWARDING_check_preference(const char* value)
{
    return number_or_refuse(
        value, {1, 255}, line("Error in %s: Invalid preference:%s, RANGE[1, 255]\\n", __func__, value));
}
"""),
    "abi/exports.map": ("    L3FORWARDING_check_MTU;\n", "    L3FORWARDING_check_preference;\n"),
    "rules/l3forwarding_check.cpp": ("""        check("L3FORWARDING_check_MTU",""", """        check("L3FORWARDING_check_preference", {text("value", "the preference of the route")},
              {refuse(402, below(1),
                      line("Error in L3FORWARDING_check_preference: Invalid preference:<value>, RANGE[1, 255]\\n")),
               refuse(402, above(255),
                      line("Error in L3FORWARDING_check_preference: Invalid preference:<value>, RANGE[1, 255]\\n"))}),
"""),
    "catalogue/catalogue.cpp": ("    list.add<L3FORWARDING_check_MTU>", """    list.add<L3FORWARDING_check_preference>("L3FORWARDING_check_preference");
"""),
    "examples/routes.txt": ("", """
L3FORWARDING_check_preference 1
L3FORWARDING_check_preference 256
"""),
    "CHANGELOG.md": ("\n## ", "\n- `L3FORWARDING_check_preference`.\n"),
}
# The generators, by their names in CONTRIBUTING.md, except scripts/footprint: no test above reads docs/footprint.md.
GENERATORS = {
    "scripts/hazards": "scripts/hazards",
    "scripts/stubs": "scripts/stubs",
    "scripts/abi --accept": "scripts/abi --accept",
    "sql/generate.py": "build/gcc/bin/ostrel-check list --json >build/list.json && sql/generate.py build/list.json sql",
}


def run(command, folder, **environment):
    print(time.strftime("%X"), *command, flush=True)
    done = subprocess.run(command, cwd=folder, check=False, text=True, errors="replace", stdin=subprocess.DEVNULL,
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT, env={**os.environ, **environment})
    if done.returncode != 0:
        raise AssertionError("%s\n%s" % (" ".join(map(str, command)), done.stdout[-8000:]))
    return done.stdout


class Copy:
    """Copy is a copy of the repository, with a build folder that reuses unchanged objects of another build."""

    def __init__(self, folder):
        self.folder = folder
        listed = run(["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"], SOURCE).split("\0")
        self.files = [name for name in listed if name and (SOURCE / name).exists()]
        for name in self.files:
            (folder / name).parent.mkdir(parents=True, exist_ok=True)
            shutil.copy2(SOURCE / name, folder / name, follow_symlinks=False)
        self.files = [name for name in self.files if (folder / name).is_file()]
        self.before = {name: (folder / name).read_bytes() for name in self.files}

    def edit(self, name, anchor, text):
        path = self.folder / name
        before = path.read_text(encoding="utf-8")
        at = before.rindex(anchor) if anchor else len(before)
        path.write_text(before[:at] + text + before[at:], encoding="utf-8")

    def touched(self):
        return {name for name, before in self.before.items() if (self.folder / name).read_bytes() != before}

    def keep(self, made):
        """keep links the objects of the other build that depend neither on changed files nor on the path of SOURCE."""
        commands = json.loads((BUILD / "compile_commands.json").read_text())
        places = {name for command in commands
                  for name in re.findall(r"-D(\w+)=\S*%s" % re.escape(str(SOURCE)), command["command"])}
        others = {str(SOURCE / name) for name in self.touched()}
        for name in self.files:
            if re.search(r"\.(cpp|c|h)$", name):
                text = (SOURCE / name).read_text(encoding="utf-8")
                if any(place in text for place in places):
                    others.add(str(SOURCE / name))
        for part in run(["ninja", "-C", str(BUILD), "-t", "deps"], SOURCE).strip().split("\n\n"):
            name, *lines = part.splitlines()
            needed = {os.path.normpath(BUILD / line.strip()) for line in lines}
            found = re.match(r"(\S+\.o): #deps .*\(VALID\)", name)
            if found and not needed & others and not any(path.startswith(str(BUILD)) for path in needed):
                (made / found[1]).parent.mkdir(parents=True, exist_ok=True)
                (made / found[1]).symlink_to(BUILD / found[1])


class Recipe(unittest.TestCase):
    def test_a_check_with_a_range(self):
        guide = (SOURCE / "CONTRIBUTING.md").read_text(encoding="utf-8").replace("<module>", "l3forwarding_check")
        recipe = guide.partition("## Adding a check")[2].partition("\n## ")[0]
        self.assertLessEqual(len(EDITS), MOST_FILES)
        with tempfile.TemporaryDirectory(dir=BUILD) as scratch:
            folder, made = pathlib.Path(scratch, "tree"), pathlib.Path(scratch, "made")
            copy = Copy(folder)
            for name, (anchor, text) in EDITS.items():
                copy.edit(name, anchor, text)
            self.assertEqual(set(EDITS), copy.touched())
            copy.keep(made)
            take = "%s;%s" % (HERE / "take", made)
            run(["cmake", "--preset", "gcc", "-DCMAKE_C_COMPILER_LAUNCHER=" + take,
                 "-DCMAKE_CXX_COMPILER_LAUNCHER=" + take], folder)
            build = ["cmake", "--build", "--preset", "gcc", "--target", *TARGETS]
            run(build, folder)
            for name, command in GENERATORS.items():
                self.assertIn("`%s`" % name, recipe)
                run(["sh", "-c", command], folder)
            run(build, folder)
            for name in copy.touched():
                self.assertTrue("`%s`" % name in recipe or "`%s/`" % name.partition("/")[0] in recipe, name)
            run(["ctest", "--test-dir", "build/gcc", "--no-tests=error", "--output-on-failure", "-LE", "all",
                 "-R", "^(%s)$" % TESTS], folder, **LIMITS)
            run(["build/gcc/bin/fuzz_replay", "--check", NAME, "--random", "100000", "--floor", "100"], folder)


if __name__ == "__main__":
    HERE = pathlib.Path(__file__).resolve().parent
    BUILD, SOURCE = (pathlib.Path(path).resolve() for path in sys.argv[1:3])
    if not (SOURCE / ".git").exists():
        print("skipped: this is not a clone")
        sys.exit(SKIPPED)
    unittest.main(argv=sys.argv[:1])
