"""Runs the commands in docs/fleets.md exactly as they are written there."""

import pathlib
import re
import sys
import tempfile
import unittest

import support

sys.path.insert(0, str(support.SOURCE / "tests" / "docs"))
sys.path.insert(0, str(support.SOURCE / "fleet"))
import documents  # noqa: E402  these are in other folders
import plan  # noqa: E402

TEXT = (support.SOURCE / "docs" / "fleets.md").read_text(encoding="utf-8")
MARK = "--- the next command ---\n"


class Document(support.Processes):
    def test_commands(self):
        commands = list(documents.in_blocks(TEXT))
        self.assertGreater(len(commands), 20)
        clone = self.scratch
        (clone / "build").mkdir()
        (clone / "build" / "release").symlink_to(support.PROGRAM.parents[1])
        for name in "examples", "fleet":
            (clone / name).symlink_to(support.SOURCE / name)
        script = "".join(f"printf '%s' '{MARK}'\n{command.text}\n" for command in commands)
        process = self.start("bash", "-c", script, cwd=clone, env={**support.ENVIRONMENT, "PATH": "/usr/bin:/bin"})
        said, _ = process.communicate(timeout=120)
        for command, output in zip(commands, said.split(MARK)[1:], strict=True):
            with self.subTest(line=command.number, command=command.text):
                self.assertEqual((command.output or "").replace("$PWD", str(clone)), output)

    def test_paths(self):
        paths = [span for _, span in documents.spans(TEXT) if re.match(r"(fleet|docs|scripts|examples)/", span)]
        self.assertGreater(len(paths), 5)
        for path in paths:
            self.assertTrue((support.SOURCE / path.split()[0]).exists(), path)

    def test_formats_are_those_of_the_program(self):
        source = (support.SOURCE / "tools/ostrel-check/read/file_format.cpp").read_text()
        known = {ending: name.lower() for ending, name in re.findall(r'\{"(\.\w+)", FileFormat::k(\w+)\}', source)}
        self.assertEqual(known, plan.FORMATS)

    def test_numbers_are_those_of_the_source(self):
        self.assertIn("allowed-failures: 3",
                      pathlib.Path("/usr/lib/python3/dist-packages/distributed/distributed.yaml").read_text())


if __name__ == "__main__":
    support.main()
