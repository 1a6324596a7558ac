"""Runs the commands that README.md and CONTRIBUTING.md show.

usage: commands_test.py BUILD_FOLDER SOURCE_FOLDER

The test restarts itself in a mount namespace in which /usr/local is empty and the user is root. The commands run in a
folder that resembles a clone with a built release.
"""

import contextlib
import glob
import json
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

import documents

INSIDE = "--inside"
SKIPPED = 77

# Slow scripts are not run. They must exist, have no syntax error, and accept the options that the document shows.
LONG = {"scripts/quickstart", "scripts/test", "scripts/test-everywhere", "scripts/prove", "scripts/fuzz",
        "scripts/mutate", "scripts/coverage", "scripts/bench", "scripts/hazards",
        "scripts/abi", "scripts/footprint", "scripts/manual", "scripts/stubs", "sql/generate.py"}
# Commands that build or test a preset are not run, but the preset must exist.
LONG_BUILD = re.compile(r"(cmake --preset|cmake --build --preset|ctest --test-dir build)[ /](\S+)( -\S+ \S+)*")
# Programs that the documents mention but do not show being run.
FILES = {"packaging/wlctl", "fleet/ostrel-fleet"}
# Code spans of several words that are not commands.
TEXTS = {"lan_check: refuse an address without a dot"}
FOR_EXAMPLE = {"FILE": "examples/lan.txt", "<module>": "l3forwarding_check"}

# A daemon that contains the document's C code.
DAEMON = """%s
static int reject(const char* parameter)
{
    return parameter == 0 ? 2 : 1;
}

static int store(const char* parameter, const char* value)
{
%s
    return 0;
}

int main(void)
{
    return store("address", "192.168.1.1") == 0 && store("address", "192.168.1.256") == 1 ? 0 : 1;
}
"""


def reader_may(text):
    """reader_may returns the exit codes allowed for a command: ostrel-check exits with 1 if it refuses a value."""
    return (0, 1) if "ostrel-check" in text.split()[0] else (0,)


def run(command, **options):
    return subprocess.run(command, check=False, text=True, errors="replace", stdin=subprocess.DEVNULL,
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT, **options)


class Clone(contextlib.AbstractContextManager):
    """Clone is a folder that resembles a clone of the project after scripts/quickstart."""

    def __init__(self):
        self.folder = pathlib.Path(tempfile.mkdtemp())
        self.path = "/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin:%s" % (BUILD / "bin")
        for entry in SOURCE.iterdir():
            if entry.name not in ("build", ".git"):
                (self.folder / entry.name).symlink_to(entry)
        (self.folder / "build").mkdir()
        (self.folder / "build" / "release").symlink_to(BUILD)

    def __exit__(self, *_):
        shutil.rmtree(self.folder)

    def run(self, text):
        return run(["timeout", "300", "bash", "-c", text], cwd=self.folder, env={**os.environ, "PATH": self.path})

    def is_program(self, word):
        if "/" in word:
            word = str(self.folder / word)
        return shutil.which(word, path=self.path) is not None


class Commands(unittest.TestCase):
    def follow(self, document):
        text = (SOURCE / document).read_text(encoding="utf-8")
        with Clone() as clone:
            self.write_daemon(clone, documents.code(text))
            commands = [*documents.in_blocks(text), *self.commands_between(document, text, clone)]
            self.assertGreater(len(commands), 1)
            for command in sorted(commands, key=lambda command: command.number):
                with self.subTest(place="%s:%d" % (document, command.number), command=command.text):
                    self.obey(clone, command)

    def write_daemon(self, clone, lines):
        headers = "\n".join(line for line in lines if line.startswith("#"))
        rest = "\n".join(line for line in lines if not line.startswith("#"))
        (clone.folder / "daemon.c").write_text(DAEMON % (headers, rest))

    def commands_between(self, document, text, clone):
        """commands_between returns the commands among the code spans of the text, and tests that their paths exist."""
        found = []
        for number, span in documents.spans(text):
            words = span.split()
            with self.subTest(place="%s:%d" % (document, number), code=span):
                is_command = "/" in words[0] or len(words) > 1
                if is_command and span not in FILES and clone.is_program(words[0]):
                    found.append(documents.Command(number, span, None))
                elif span not in TEXTS:
                    self.assertEqual(1, len(words), "not a command; is it a text?")
                    self.check_path(clone, span)
        return found

    def check_path(self, clone, span):
        for name, example in FOR_EXAMPLE.items():
            span = span.replace(name, example)
        if re.search(r"/|\.(md|clang-\w+)$", span):
            self.assertTrue(glob.glob(str(clone.folder / span)), "no such file")

    def obey(self, clone, command):
        words = command.text.partition(" #")[0].split()
        if words[0] in LONG:
            self.check_script(clone, words)
        elif LONG_BUILD.match(command.text):
            self.check_builds(command.text)
        else:
            self.run_as_it_stands(clone, command)

    def check_script(self, clone, words):
        script = clone.folder / words[0]
        self.assertTrue(clone.is_program(words[0]), "not a program")
        text = script.read_text(encoding="utf-8")
        shell = re.match(r"#!(/bin/\w*sh)\n", text)
        if shell:
            self.assertEqual((0, ""), self.result_of(run([shell[1], "-n", str(script)])))
        else:
            compile(text, str(script), "exec")
        for option in (word for word in words if word.startswith("-")):
            self.assertTrue(re.search(r"(?<![\w-])%s\b" % re.escape(option), text), "it lacks the option " + option)

    def check_builds(self, text):
        presets = json.loads((SOURCE / "CMakePresets.json").read_text(encoding="utf-8"))
        names = {kind: {preset["name"] for preset in presets[kind] if not preset.get("hidden")}
                 for kind in ("configurePresets", "buildPresets")}
        for part in text.partition(" #")[0].split(" && "):
            build = LONG_BUILD.fullmatch(part.strip())
            self.assertTrue(build, "not the build of a preset")
            self.assertIn(build[2], names["buildPresets" if "--build" in build[1] else "configurePresets"])

    @staticmethod
    def result_of(result):
        return result.returncode, result.stdout

    def run_as_it_stands(self, clone, command):
        text = command.text
        for name, example in FOR_EXAMPLE.items():
            text = re.sub(r"\b%s\b" % re.escape(name), example, text)
        result = clone.run(text)
        self.assertIn(result.returncode, reader_may(text), result.stdout)
        if command.output is not None:
            self.assertEqual(command.output, result.stdout)
        if "daemon.c" in text:
            self.assertEqual((0, ""), self.result_of(clone.run("./a.out >daemon.log")), "the daemon does not run")

    def test_readme(self):
        self.follow("README.md")

    def test_contributing(self):
        self.follow("CONTRIBUTING.md")


def enter_namespace():
    """enter_namespace restarts this test in a namespace where it can mount file systems, or skips it if it cannot."""
    unshare = ["unshare", "--mount"] + ([] if os.geteuid() == 0 else ["--user", "--map-root-user"])
    if run([*unshare, "mount", "-t", "tmpfs", "none", "/usr/local"]).returncode != 0:
        print("skipped: mount namespaces are not allowed")
        sys.exit(1 if os.environ.get("CI") else SKIPPED)
    os.execvp("unshare", [*unshare, sys.executable, "-B", __file__, *sys.argv[1:3], INSIDE])


def hide_installed():
    """hide_installed hides the contents of /usr/local, and lets ldconfig replace the loader's cache in /etc."""
    cache = pathlib.Path("/etc/ld.so.cache").read_bytes()
    for folder in ("/usr/local", "/mnt"):
        subprocess.run(["mount", "-t", "tmpfs", "none", folder], check=True)
    before = pathlib.Path("/mnt/etc")
    before.mkdir()
    subprocess.run(["mount", "--rbind", "/etc", str(before)], check=True)
    subprocess.run(["mount", "-t", "tmpfs", "none", "/etc"], check=True)
    for entry in before.iterdir():
        if not entry.name.startswith("ld.so.cache"):
            pathlib.Path("/etc", entry.name).symlink_to(entry)
    pathlib.Path("/etc/ld.so.cache").write_bytes(cache)


if __name__ == "__main__":
    BUILD, SOURCE = (pathlib.Path(path).resolve() for path in sys.argv[1:3])
    if INSIDE not in sys.argv:
        enter_namespace()
    hide_installed()
    unittest.main(argv=sys.argv[:1])
