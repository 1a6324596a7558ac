"""Judges 100,000 hostile values. The caller must survive, and the results must equal those of the program alone."""

import base64
import json
import random
import re
import subprocess
import unittest

import support

import ostrel

COUNT = 100_000
# One of these runs a shell for each value, and the others loop until their time limit.
SLOW = {"WLAN_check_channel", "PARAM_check_ui2_value", "PARAM_check_ui4_value"}
PIECES = ["", "%s%n", "A" * 300, "\n", "\r\n", "\x01", "\x7f", "\x85", "\u2028", "\udcff", "\udc80\udcc3", "é", "日本",
          "\U0001f4a9", "\"}\n{", "\\u0000", "','", "{\"base64\":\"AA==\"}", "0", "-1", "65535", "4294967296", "1.2.3.4",
          "00:11:22:33:44:55", "a@b.c", "http://", ",", ";", "'; reboot; '", "$(reboot)", "\ufeff", " "]


class Maker:
    def __init__(self):
        self.dice = random.Random(20)
        self.checks = sorted(set(ostrel.checks) - SLOW)

    def text(self):
        text = "".join(self.dice.choices(PIECES, k=self.dice.randrange(4)))
        kind = self.dice.randrange(40)
        if kind < 10:
            return bytes(self.dice.choices(range(1, 256), k=self.dice.randrange(40)))
        return text * 50 if kind == 39 else text

    def number(self):
        return self.dice.choice((0, 1, -1, 64, 2**31 - 1, -2**31, 2**32, 10**30))

    def argument(self, kind):
        if self.dice.randrange(500) == 0:
            return self.dice.choice((None, "a\0b", "\ud800", b"\xff\0", [], ["", ""], 10**400))
        if kind in ("integer", "unsigned", "integer_out"):
            return self.number()
        return [self.text() for _ in range(4)] if kind == "blocks" else self.text()

    def case(self):
        name = self.dice.choice(self.checks)
        arguments = [self.argument(argument.kind) for argument in ostrel.checks[name].arguments]
        if self.dice.randrange(1000) == 0:
            arguments.append(self.text())
        return name if self.dice.randrange(1000) else "no_" + name, *arguments


def token(value):
    """token encodes an argument differently from the package, either as escaped characters or as base64."""
    if isinstance(value, list):
        return [token(text) for text in value]
    if isinstance(value, str):
        try:
            value.encode()
            return value
        except UnicodeEncodeError:
            pass
        try:
            value = value.encode("utf-8", "surrogateescape")
        except UnicodeEncodeError:
            return value
    return {"base64": base64.b64encode(value).decode()} if isinstance(value, bytes) else value


def content(value):
    """content returns a string from a result as bytes."""
    return base64.b64decode(value["base64"]) if isinstance(value, dict) else value.encode()


def without_place(meaning):
    """without_place removes the position of the invalid byte, which depends on the encoding of the line."""
    return re.sub(r" \(at byte \d+\)$", "", meaning)


class Hostile(unittest.TestCase):
    def test_all_are_judged_as_they_are_without_the_package(self):
        maker = Maker()
        cases = [maker.case() for _ in range(COUNT)]
        with ostrel.Session() as session:
            session.judge("PARAM_check_port", "80")
            pid = session.pid
            verdicts = list(session.judge_many(cases))
            self.assertEqual(pid, session.pid, "no value has ended the program")
        lines = "".join(json.dumps({"check": check, "args": list(map(token, arguments))}) + "\n"
                        for check, *arguments in cases)
        result = subprocess.run([support.PROGRAM, "batch", "--stream"], input=lines.encode(), stdout=subprocess.PIPE,
                                check=False)
        rows = list(map(json.loads, result.stdout.splitlines()))
        self.assertEqual((COUNT, COUNT), (len(rows), len(verdicts)))
        for case, row, verdict in zip(cases, rows, verdicts):
            expected = (row["verdict"], row["code"], without_place(row["meaning"]), content(row.get("out", "")),
                        row.get("reason", {}).get("id"))
            self.assertEqual(expected, (verdict.verdict, verdict.code, without_place(verdict.meaning),
                                        "".join(verdict.lines).encode("utf-8", "surrogateescape"),
                                        verdict.reason and verdict.reason.id), case)
        self.assertEqual({"accepted", "refused", "answer", "ended", "malformed"},
                         {verdict.verdict for verdict in verdicts})


if __name__ == "__main__":
    support.main()
