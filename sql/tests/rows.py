"""Reads the vector rows that can be run from SQL."""

import collections
import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "vectors"))
import vectors  # noqa: E402  it is in another folder

# Row is a vector row that can be run from SQL. values contains bytes and numbers in the order in which SQL passes them.
# after lists the allowed results of ostrel_after. reason is None if the row has no reason.
Row = collections.namedtuple("Row", "place check values code out after reason is_verdict")

WRITTEN = ("buffer", "blocks", "integer_out")
NOT_CALLED = "the check is not called from SQL"
NULL = "an argument is NULL"


class Text(bytes):
    """Text is a value that also stores the pieces from which it was built, each with its number of repetitions."""
    pieces = ()


def pieces_of(value):
    if isinstance(value, str):
        return [(value.encode("latin-1"), 1)]
    if "join" in value:
        return [piece for part in value["join"] for piece in pieces_of(part)]
    return [(text_of(value["repeat"]), value["times"])]


def text_of(value):
    pieces = pieces_of(value)
    text = Text(b"".join(part * times for part, times in pieces))
    text.pieces = pieces
    return text


def given(check, args):
    """given returns the arguments that SQL passes, each with its value."""
    arguments = check["arguments"]
    if len(args) < len(arguments):
        arguments = [argument for argument in arguments if not argument["output_only"]]
    return [(argument, value) for argument, value in zip(arguments, args) if not argument["output_only"]]


def value_of(value):
    return value if isinstance(value, int) else text_of(value)


def plain(value):
    """plain returns a value as a str for comparison with JSON, in which each character stands for a byte."""
    if isinstance(value, list):
        return [plain(one) for one in value]
    return value if value is None or isinstance(value, int) else text_of(value).decode("latin-1")


def held(check, row):
    """held lists the possible contents of the writable arguments after the call. The contents are those in the row or,
    if the row lists none, the unchanged arguments. SQL does not pass output arguments, so an unchanged output argument
    has either the value in the row or no value."""
    if "after" in row:
        return [plain(row["after"])]
    written = [argument for argument in check["arguments"] if argument["kind"] in WRITTEN]
    before = dict(zip((argument["name"] for argument in check["arguments"]), row["args"]))
    unwritten = {argument["name"]: None if argument["kind"] == "integer_out" else ""
                 for argument in written if argument["output_only"]}
    return [plain([values[argument["name"]] for argument in written])
            for values in ({**unwritten, **before}, {**before, **unwritten})]


def rows(checks, not_called):
    """rows returns the rows that can be run from SQL, and how many rows were omitted for each reason."""
    by_name = {check["name"]: check for check in checks}
    found, left_out = [], collections.Counter()
    for place, row in vectors.rows():
        check = by_name[row["check"]]
        if row["check"] in not_called:
            left_out[NOT_CALLED] += 1
            continue
        if None in row["args"]:
            left_out[NULL] += 1
            continue
        pairs, values = given(check, row["args"]), []
        for argument, value in pairs:
            values += [value_of(one) for one in value] if argument["kind"] == "blocks" else [value_of(value)]
        found.append(Row(place, row["check"], values, row["code"],
                         text_of(row.get("out", "")), held(check, row), row.get("reason"),
                         check["answers"] == "code"))
    return found, left_out


def told(reason):
    """told returns the members of a reason that a row can contain."""
    return {name: reason[name] for name in ("id", "argument", "part", "item", "offset") if name in reason}
