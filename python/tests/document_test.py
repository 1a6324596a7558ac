"""Runs the commands and the examples in docs/python.md."""

import dataclasses
import doctest
import pathlib
import sys
import tempfile
import unittest

import support

import ostrel

sys.path.insert(0, str(support.SOURCE / "tests" / "docs"))
import documents  # noqa: E402  it is in another folder

DOCUMENT = support.SOURCE / "docs" / "python.md"
MARK = "--- the next command ---\n"


class Document(unittest.TestCase):
    def setUp(self):
        self.text = DOCUMENT.read_text(encoding="utf-8")

    def test_commands(self):
        commands = list(documents.in_blocks(self.text))
        self.assertGreater(len(commands), 3)
        with tempfile.TemporaryDirectory() as folder:
            clone = pathlib.Path(folder)
            (clone / "build").mkdir()
            (clone / "build" / "release").symlink_to(support.PROGRAM.parents[1])
            (clone / "python").symlink_to(support.PACKAGE)
            script = "".join(f"printf '%s' '{MARK}'\n{command.text}\n" for command in commands)
            environment = {"PATH": "/usr/bin:/bin", "HOME": folder, "PYTHONDONTWRITEBYTECODE": "1"}
            _, output = support.run("bash", "-c", script, cwd=clone, env=environment)
        self.assertEqual([command.output or "" for command in commands], output.split(MARK)[1:])

    def test_examples(self):
        result = doctest.testfile(str(DOCUMENT), module_relative=False, encoding="utf-8")
        self.assertEqual(0, result.failed)
        self.assertGreater(result.attempted, 15)

    def test_every_block_is_tried(self):
        blocks = list(documents.blocks(self.text))
        self.assertEqual({"", "python"}, {language for language, _, _ in blocks})
        for language, _, lines in blocks:
            self.assertTrue(language == "" or lines[0].startswith(">>> "), lines)

    def test_members_are_those_of_a_verdict(self):
        for member in dataclasses.fields(ostrel.Verdict):
            self.assertIn(f"`{member.name}`", self.text)


if __name__ == "__main__":
    support.main()
