"""Reads the rows of the files in this folder. Each character of a string stands for one byte."""

import json
import pathlib

FOLDER = pathlib.Path(__file__).resolve().parent


def text_of(value):
    """text_of returns an argument of a row, with repeated and joined strings expanded."""
    if isinstance(value, dict):
        return text_of(value["repeat"]) * value["times"] if "repeat" in value else "".join(map(text_of, value["join"]))
    return [text_of(text) for text in value] if isinstance(value, list) else value


def rows():
    """rows yields the location of each row, such as hosts:12, and the row itself."""
    for path in sorted(FOLDER.rglob("*.ndjson")):
        for number, line in enumerate(path.read_text(encoding="utf-8").split("\n"), 1):
            if line:
                yield f"{path.relative_to(FOLDER).with_suffix('')}:{number}", json.loads(line)
