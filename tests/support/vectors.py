"""The rows of vectors/, for tests in Python. Each character of a text is a byte."""

import json


def text_of(value):
    """text_of returns an argument of a row, with its notation for long texts written out."""
    if isinstance(value, dict):
        return text_of(value["repeat"]) * value["times"] if "repeat" in value else "".join(map(text_of, value["join"]))
    return [text_of(text) for text in value] if isinstance(value, list) else value


def rows(source):
    """rows yields each row of a source tree with the place where it stands."""
    folder = source / "vectors"
    for path in sorted(folder.rglob("*.ndjson")):
        for number, line in enumerate(path.read_text(encoding="utf-8").split("\n"), 1):
            if line:
                yield f"{path.relative_to(folder)}:{number}", json.loads(line)
