#!/usr/bin/python3
"""Runs the commands in docs/sql.md in a folder that resembles a clone in which the extensions were built."""

import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

import shared

sys.path.insert(0, str(shared.SOURCE / "tests/docs"))
import documents  # noqa: E402  it is in the folder of another test
import server  # noqa: E402

TEXT = (shared.SOURCE / "docs/sql.md").read_text(encoding="utf-8")
# The test skips these commands, because they were run before it started.
LONG = re.compile(r"scripts/setup |cmake --preset ")


def run(folder, command, **options):
    return subprocess.run(command, check=False, cwd=folder, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, text=True, timeout=120, **options)


class Commands(unittest.TestCase):
    def make_folder(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.folder = pathlib.Path(scratch.name)
        for entry in shared.SOURCE.iterdir():
            if entry.name not in ("build", ".git"):
                (self.folder / entry.name).symlink_to(entry)
        (self.folder / "build").mkdir()
        (self.folder / "build/sql").symlink_to(shared.BUILD)
        tree = server.Tree(shared.SOURCE, shared.BUILD, is_installed=False)
        self.addCleanup(tree.remove)
        started = server.Server(tree)
        self.addCleanup(started.stop)
        # DESTDIR makes the page's commands install into the copy of the server's installation.
        self.environment = {**started.environment(), "DESTDIR": str(tree.folder)}
        for language, _, lines in documents.blocks(TEXT):
            if language == "sql":
                name = lines[0].removeprefix("-- ")
                (self.folder / name).write_text("\n".join(lines[1:]) + "\n", encoding="utf-8")

    def test_commands(self):
        self.make_folder()
        told = [block for block in documents.blocks(TEXT) if block[0] in documents.SHELL]
        commands = list(documents.in_blocks(TEXT))
        self.assertGreaterEqual(len(commands), len(told))
        for command in commands:
            with self.subTest(line=command.number, command=command.text):
                if LONG.match(command.text):
                    continue
                result = run(self.folder, ["bash", "-c", command.text], env=self.environment)
                self.assertEqual(0, result.returncode, result.stdout)
                self.assertEqual(command.output or "", result.stdout)
        for language, first, lines in documents.blocks(TEXT):
            if language == "python":
                with self.subTest(line=first):
                    self.assertEqual("[(1,)]\n", run(self.folder, [sys.executable, "-c", "\n".join(lines)]).stdout)

    def test_paths(self):
        for _, span in documents.spans(TEXT):
            if re.fullmatch(r"(sql|docs|scripts)/[\w./]*", span):
                self.assertTrue((shared.SOURCE / span).exists(), span)


if __name__ == "__main__":
    unittest.main()
