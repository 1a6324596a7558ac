"""Uses JSON Schema validators to compare the output of list --json-schema with the library.

usage: json_schema_test.py OSTREL_CHECK COUNT [FOLDER]

The test makes COUNT values for each definition, in addition to the vectors. FOLDER contains judge.mjs and ajv.
"""

import json
import os
import pathlib
import random
import re
import subprocess
import sys
import tempfile
import unittest

import jsonschema

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "vectors"))
import vectors  # noqa: E402  (sys.path must be set first)

ALPHABET = "".join(map(chr, range(1, 0x7F)))
TELLING = "\t\n\r\x0b\x01\x1f !\"#$%&'()*+,-./0123456789:;<=>?@AFGZ[\\]^_`afgxz{|}~"
HIGHEST = 2**31 - 1


def vector_texts():
    """Returns the first argument of each row if it is a string, grouped by check."""
    texts = {}
    for _, row in vectors.rows():
        argument = vectors.text_of(row["args"][0]) if row.get("args") else None
        if isinstance(argument, str):
            texts.setdefault(row["check"], {})[argument] = None
    return {name: list(found) for name, found in texts.items()}


def is_beyond_int(text):
    """Returns whether the text contains a number that may not fit in an int, which builds read differently."""
    numbers = re.findall("(-?)0*([0-9]+)", text)
    return any(len(number) > 10 or int(number) > HIGHEST + len(sign) for sign, number in numbers)


class Maker:
    """Makes strings around the limits of a definition from known strings."""

    def __init__(self, name, definition, known):
        self.random = random.Random(name)
        self.definition = definition
        self.known = [text for text in known if len(text) < 600] or [""]
        self.known += definition.get("enum", [])
        self.known += [chr(first) * size for size in self.lengths() for first in b"a0A :"]
        self.bytes = sorted(set("".join(self.known))) + list(TELLING)

    def lengths(self):
        ends = [self.definition.get("minLength", 0), self.definition.get("maxLength", 64)]
        return sorted({max(0, end + step) for end in ends for step in (-1, 0, 1)})

    def piece(self):
        text = self.random.choice(self.known)
        begin = self.random.randrange(len(text) + 1)
        return text[begin:begin + self.random.choice((1, 1, 2, 4, 16))]

    def change_number(self, text):
        numbers = list(re.finditer("[0-9]{1,12}", text))
        if not numbers:
            return self.random.choice(("0", " 7", "-1", "+5", "08", "65535", "65536", str(HIGHEST))) + text
        found = self.random.choice(numbers)
        number = int(found.group())
        changed = self.random.choice((number + 1, max(0, number - 1), f"0{number}", f"+{number}", f"-{number}",
                                      f"{number}x", number * 10, 254, 255, 256, 65535, 65536, HIGHEST))
        return text[:found.start()] + str(changed) + text[found.end():]

    def resize(self, text):
        size = self.random.choice(self.lengths())
        return (text + (text or "a")[-1] * size)[:size]

    def change(self, text):
        at = self.random.randrange(len(text) + 1)
        kind = self.random.randrange(9)
        if kind < 2:
            return text[:at] + self.random.choice(self.bytes) + text[at + 1:]
        if kind == 2:
            return text[:at] + self.random.choice(self.bytes) + text[at:]
        if kind == 3:
            return text[:at] + text[at + 1:]
        if kind == 4:
            return text[:at] + self.piece() + text[at:]
        if kind == 5:
            return self.change_number(text)
        if kind == 6:
            return self.resize(text)
        if kind == 7:
            return text[:at] + text[at:at + 1].swapcase() + text[at + 1:]
        return self.random.choice(("", " ", "\n", ",")) + text + self.random.choice((" ", "\n", ",", "."))

    def texts(self, count):
        """Returns the given number of strings, or fewer if not enough can be made."""
        made = dict.fromkeys(self.known)
        for _ in range(5 * count):
            if len(made) >= count:
                break
            text = self.random.choice(self.known)
            for _ in range(self.random.randrange(1, 4)):
                text = self.change(text)
            made[text] = None
        return list(made)


def verdicts_of(name, texts, limit):
    lines = "".join(json.dumps({"check": name, "args": [text]}) + "\n" for text in texts)
    result = subprocess.run([PROGRAM, "batch", "--json", "--try", "--encoding", "latin-1", "--limit-time", str(limit)],
                            input=lines,
                            capture_output=True, text=True, check=False)
    verdicts = [json.loads(line)["verdict"] for line in result.stdout.split("\n")[:-2]]
    assert len(verdicts) == len(texts), result.stderr
    assert not {"malformed", "ended", "answer"} & set(verdicts), (name, set(verdicts))
    return verdicts


class JsonSchema(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.schema = json.loads(subprocess.run([PROGRAM, "list", "--json-schema"], capture_output=True, text=True,
                                               check=True).stdout)
        cls.definitions = cls.schema["$defs"]
        cls.judged = {name: cls.judge(name, definition) for name, definition in cls.definitions.items()}

    @classmethod
    def judge(cls, name, definition):
        """Returns pairs of a string and whether the library accepts it. Numbers in the strings fit in an int."""
        known = [text for text in VECTORS.get(name, []) if set(text) <= set(ALPHABET)]
        texts = Maker(name, definition, known).texts(COUNT) + known
        if definition.get("x-ostrel-reads-number"):
            texts = [text for text in texts if not is_beyond_int(text)]
        # A string for which the check never returns uses up the time limit, as would any string with that first byte.
        verdicts = verdicts_of(name, texts[:50], 0.05)
        endless = {text[:1] for text, verdict in zip(texts, verdicts) if verdict == "no_return"}
        texts[50:] = [text for text in texts[50:] if text[:1] not in endless]
        verdicts += verdicts_of(name, texts[50:], 0.05)
        validator = jsonschema.Draft202012Validator(definition)
        for i, verdict in enumerate(verdicts):
            if verdict == "no_return" and validator.is_valid(texts[i]):
                verdicts[i] = verdicts_of(name, [texts[i]], 2)[0]
        return [(text, verdict == "accepted") for text, verdict in zip(texts, verdicts, strict=True)]

    def test_is_a_schema(self):
        jsonschema.Draft202012Validator.check_schema(self.schema)
        self.assertGreater(sum(definition.get("x-ostrel-exact", False) for definition in self.definitions.values()), 40)

    def test_patterns_are_whole_and_portable(self):
        for name, definition in self.definitions.items():
            pattern = definition.get("pattern", r"^(?![\s\S])")
            self.assertTrue(pattern.startswith("^") and pattern.endswith(r"(?![\s\S])") or pattern.endswith(")"), name)
            self.assertNotRegex(pattern, r"\\[dwbDWB]|\$$|\(\?<", name)
            re.compile(pattern)

    def test_python_agrees_with_the_library(self):
        for name, definition in self.definitions.items():
            validator = jsonschema.Draft202012Validator(definition)
            is_exact = definition.get("x-ostrel-exact", False)
            self.check_spread(name)
            for text, is_accepted in self.judged[name]:
                is_valid = validator.is_valid(text)
                if is_valid != is_accepted and (is_exact or is_accepted):
                    self.fail(f"{name} {text!r}: the library {'accepts' if is_accepted else 'refuses'} it")

    def check_spread(self, name):
        """Some values must be accepted and, if the definition excludes any, some must be refused."""
        verdicts = {is_accepted for _, is_accepted in self.judged[name]}
        self.assertIn(True, verdicts, name)
        if {"minLength", "maxLength", "enum", "pattern"} & set(self.definitions[name]):
            self.assertIn(False, verdicts, name)

    @unittest.skipIf(len(sys.argv) < 4, "without ajv")
    def test_ajv_agrees_with_python(self):
        cases = {}
        for name, definition in self.definitions.items():
            validator = jsonschema.Draft202012Validator(definition)
            cases[name] = [(text, validator.is_valid(text)) for text, _ in self.judged[name]]
        with tempfile.TemporaryDirectory() as folder:
            path = pathlib.Path(folder) / "cases.json"
            path.write_text(json.dumps({"schema": self.schema, "cases": cases}))
            result = subprocess.run(["node", os.path.join(FOLDER, "judge.mjs"), path], capture_output=True, text=True,
                                    check=False)
        self.assertEqual((0, "", ""), (result.returncode, result.stdout, result.stderr))


if __name__ == "__main__":
    PROGRAM, COUNT = sys.argv[1], int(sys.argv[2])
    FOLDER = sys.argv[3] if len(sys.argv) > 3 else None
    VECTORS = vector_texts()
    unittest.main(argv=sys.argv[:1])
