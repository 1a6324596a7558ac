"""The commands and the examples of docs/python.md, as they stand there.

usage: document_test.py OSTREL_CHECK SOURCE_DIR
"""

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


def commands_in(lines):
    """commands_in returns each command of a block, with the lines that continue it, and what it is to print."""
    commands = []
    for line in lines:
        if line.startswith("$ "):
            commands.append([line[2:] + "\n", ""])
        elif line.startswith(">"):
            commands[-1][0] += line[2:] + "\n"
        else:
            commands[-1][1] += line + "\n"
    return commands


class Document(unittest.TestCase):
    def setUp(self):
        self.text = DOCUMENT.read_text(encoding="utf-8")

    def blocks(self, *languages):
        return [lines for language, _, lines in documents.blocks(self.text) if language in languages]

    def test_commands(self):
        commands = [command for lines in self.blocks("", "sh") for command in commands_in(lines)]
        self.assertGreater(len(commands), 3)
        with tempfile.TemporaryDirectory() as folder:
            clone = pathlib.Path(folder)
            (clone / "build").mkdir()
            (clone / "build" / "release").symlink_to(support.PROGRAM.parents[1])
            (clone / "python").symlink_to(support.PACKAGE)
            script = "".join(f"printf '%s' '{MARK}'\n{command}" for command, _ in commands)
            environment = {"PATH": "/usr/bin:/bin", "HOME": folder, "PYTHONDONTWRITEBYTECODE": "1"}
            _, output = support.run("bash", "-c", script, cwd=clone, env=environment)
        self.assertEqual([expected for _, expected in commands], output.split(MARK)[1:])

    def test_examples(self):
        result = doctest.testfile(str(DOCUMENT), module_relative=False, encoding="utf-8")
        self.assertEqual(0, result.failed)
        self.assertGreater(result.attempted, 15)

    def test_every_block_is_tried(self):
        languages = {language for language, _, _ in documents.blocks(self.text)}
        self.assertEqual({"", "python"}, languages)
        for lines in self.blocks("python"):
            self.assertTrue(lines[0].startswith(">>> "), lines)

    def test_members_are_those_of_a_verdict(self):
        for member in dataclasses.fields(ostrel.Verdict):
            self.assertIn(f"`{member.name}`", self.text)


if __name__ == "__main__":
    support.main()
