"""Defines verdicts, and parses them from the lines that ostrel-check prints."""

import base64
import json
from collections.abc import Mapping
from dataclasses import dataclass, field
from types import MappingProxyType
from typing import Any, Literal, TypeVar

from ostrel._errors import Error, MalformedCall

T = TypeVar("T")

Outcome = Literal["accepted", "refused", "answer", "ended", "no_return", "no_driver", "malformed"]


@dataclass(frozen=True)
class CharacterSet:
    """CharacterSet is a set of bytes."""

    text: str
    """A description of the set."""
    members: str
    """The bytes of the set, as a string."""


Datum = int | str | CharacterSet | tuple[int | str, ...] | None
Written = int | str | tuple[str, ...] | None

NOTHING: Mapping[str, Written] = MappingProxyType({})


@dataclass(frozen=True, repr=False)
class Reason:
    """Reason explains why a value was refused. Members that do not apply are None."""

    id: str
    """The kind of problem, as an identifier that does not change between versions."""
    text: str
    """The reason as a sentence for the user."""
    argument: str | None = None
    """The name of the argument concerned."""
    part: str | None = None
    """A description of the part of the argument concerned."""
    conversion: str | None = None
    """How the value was converted before it was judged. offset is a position in the converted value."""
    item: int | None = None
    """The index of the item in a list, or of the key in a block, counted from 0."""
    item_text: str | None = None
    """The contents of that item, unless it is empty or secret."""
    offset: int | None = None
    """The position of a byte in the value or in the key, counted from 0."""
    found: Datum = None
    """The number or string that was found, or the byte at offset; None for a secret."""
    allowed: Datum = None
    """What is allowed, as a limit, two limits, a list, or a set of bytes."""
    read_as: int | None = None
    """The number that was read from the value, unless the value is just that number."""
    limit: str | None = None
    """The id of the limit violated by the number that was read, if the number in the value does not fit in an int."""

    def __repr__(self) -> str:
        members = ", ".join(f"{name}={value!r}" for name, value in self.__dict__.items())
        return f"Reason({members})"


@dataclass(frozen=True, repr=False)
class Verdict:
    """Verdict is the result of a check. It is true if the value was accepted, and false if it was refused, or if the
    call ended its process or did not return. Using a verdict as a truth value raises TypeError if the result is a
    number, MalformedCall for a malformed call, and Error for a channel that was not judged because there is no
    wireless driver."""

    verdict: Outcome
    code: int | None
    """The result code, or the returned number. None if the call ended its process, did not return or was malformed."""
    reason: Reason | None = None
    """Why the value was refused, or why the call ended its process or did not return."""
    lines: tuple[str, ...] = ()
    """The lines that the check printed, each with its line ending."""
    err: str = ""
    """What was written to standard error, for example the message of a failed assertion."""
    after: Mapping[str, Written] = field(default_factory=lambda: NOTHING, hash=False)
    """The final contents of each argument that the check may write to, keyed by its name."""
    meaning: str = ""
    """What the code means, or how the call ended."""
    remarks: tuple[Reason, ...] = ()
    """The reasons for lines that were printed before the deciding step."""
    flushed: bool = True
    """Whether all output had been flushed when the call returned."""
    cut: bool = False
    """Whether some of the output is missing from lines."""

    def __bool__(self) -> bool:
        if self.verdict == "answer":
            raise TypeError(f"the check returned a number, {self.code}, which is neither true nor false; "
                            "compare the code instead")
        if self.verdict == "malformed":
            raise MalformedCall(self.meaning)
        if self.verdict == "no_driver":
            raise Error(str(self))
        return self.verdict == "accepted"

    def __repr__(self) -> str:
        return f"<Verdict {self}>"

    def __str__(self) -> str:
        if self.verdict == "accepted":
            return "accepted"
        if self.verdict == "answer":
            return f"answer {self.code}"
        why = "" if self.reason is None else f": {self.reason.text}"
        if self.verdict == "refused":
            return f"refused with {self.code}, {self.meaning}{why}"
        return f"{self.verdict}: {self.meaning}{why}"

    def __reduce__(self) -> tuple[Any, ...]:
        return _restored, ({**self.__dict__, "after": dict(self.after)},)


def _restored(members: dict[str, Any]) -> Verdict:
    members["after"] = MappingProxyType(members["after"])
    return _made(Verdict, members)


def text_of(value: Any) -> str:
    """text_of returns a string from a result. Bytes that are not UTF-8 are received as base64 and decoded with the
    error handler surrogateescape, so that the string is encoded to the same bytes when it is passed as an argument."""
    if isinstance(value, str):
        return value
    return base64.b64decode(value["base64"]).decode("utf-8", "surrogateescape")


# The character sets in the descriptions, keyed by their wording. There are only a few, and looking one up is faster
# than creating it.
_sets: dict[str, CharacterSet] = {}
_MOST_SETS = 256


def _set(value: dict[str, Any]) -> CharacterSet:
    known = _sets.get(value["text"])
    members = text_of(value["members"])
    if known is None or known.members != members:
        known = CharacterSet(value["text"], members)
        if len(_sets) < _MOST_SETS:
            _sets[known.text] = known
    return known


def _datum(value: Any) -> Any:
    kind = type(value)
    if kind is list:
        return tuple(map(_datum, value)) if dict in map(type, value) else tuple(value)
    if kind is dict:
        return _set(value) if "members" in value else text_of(value)
    return value


def _reason(members: dict[str, Any]) -> Reason:
    # All other members are strings or numbers.
    for name in ("item_text", "found", "allowed"):
        if type(value := members.get(name)) in (dict, list):
            members[name] = _datum(value)
    return _made(Reason, members)


def _lines(out: str) -> tuple[str, ...]:
    """_lines splits the output after each line ending."""
    lines = out.split("\n")
    last = lines.pop()
    printed = [line + "\n" for line in lines]
    if last:
        printed.append(last)
    return tuple(printed)


def _made(kind: type[T], members: dict[str, Any]) -> T:
    """_made creates an instance of a frozen class. It sets all members at once, because a separate call for each
    member would dominate the run time."""
    made = object.__new__(kind)
    object.__setattr__(made, "__dict__", members)
    return made


# The accepted verdicts without output or written arguments, keyed by their line. There is at most one for each check.
_plain: dict[str, Verdict] = {}


def verdicts_of(lines: list[str]) -> list[Verdict]:
    """verdicts_of parses lines that ostrel-check batch --stream prints. Each line begins with the number of its
    record; without that number, many lines are equal."""
    lines = ["{" + line[line.index(",") + 1:] for line in lines]
    known = [_plain.get(line) for line in lines]
    # Parsing all results as one document takes a third less time than parsing each one separately.
    rest = [line for line, verdict in zip(lines, known) if verdict is None]
    rows = json.loads(f"[{','.join(rest)}]")
    made = (_verdict(line, row) for line, row in zip(rest, rows, strict=True))
    return [next(made) if verdict is None else verdict for verdict in known]


def _verdict(line: str, row: dict[str, Any]) -> Verdict:
    row.pop("check", None)
    out = row.pop("out", "")
    after = row.get("after")
    if out:
        row["lines"] = _lines(text_of(out))
    row["after"] = MappingProxyType({name: _datum(value) for name, value in after.items()}) if after else NOTHING
    if row.get("err"):
        row["err"] = text_of(row["err"])
    if "reason" in row:
        row["reason"] = _reason(row["reason"])
    if "remarks" in row:
        row["remarks"] = tuple(map(_reason, row["remarks"]))
    verdict = _made(Verdict, row)
    if verdict.verdict == "accepted" and not out and not after:
        _plain[line] = verdict
    return verdict
