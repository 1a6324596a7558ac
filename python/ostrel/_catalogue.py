"""Describes the checks and their arguments, as ostrel-check list --json prints them."""

import json
from collections.abc import Callable, Iterator, Mapping
from dataclasses import dataclass
from functools import cached_property
from types import MappingProxyType
from typing import Any, Literal

from ostrel._process import output_of, require_version

Kind = Literal["text", "buffer", "blocks", "integer", "unsigned", "integer_out"]


@dataclass(frozen=True)
class ArgumentOf:
    """ArgumentOf describes an argument of a check."""

    name: str
    kind: Kind
    """A "text" is a string that the check only reads, and a "buffer" is a string that the check may also change.
    "blocks" are several strings that the check may change. "integer" and "unsigned" are numbers that are passed, and
    "integer_out" is a number that the check writes."""
    what: str
    unit: str | None
    is_secret: bool
    """Whether the value must not be shown or logged."""
    is_output_only: bool
    """Whether a caller may omit the argument."""
    constraints: Mapping[str, Any] | None
    """The constraints on a value, derived from the check's description. ostrel-check list --schema defines the
    members. Each character in their strings stands for the byte with the same number."""


@dataclass(frozen=True)
class Code:
    """Code describes a result code of a check."""

    code: int
    name: str
    meaning: str


@dataclass(frozen=True)
class Check:
    """Check describes a check, its arguments and its result codes."""

    name: str
    family: str
    declaration: str
    """The declaration in C."""
    rule: str
    """Which values are accepted, or what the returned number means."""
    answers: Literal["code", "number"]
    arguments: tuple[ArgumentOf, ...]
    codes: tuple[Code, ...]


def _check_of(row: dict[str, Any]) -> Check:
    arguments = tuple(
        ArgumentOf(name=argument["name"], kind=argument["kind"], what=argument["what"], unit=argument.get("unit"),
                   is_secret=argument.get("secret", False), is_output_only=argument["output_only"],
                   constraints=_frozen(argument.get("constraints")))
        for argument in row["arguments"])
    codes = tuple(Code(**code) for code in row["codes"])
    return Check(name=row["name"], family=row["family"], declaration=row["declaration"], rule=row["rule"],
                 answers=row["answers"], arguments=arguments, codes=codes)


def _frozen(value: Any) -> Any:
    if isinstance(value, dict):
        return MappingProxyType({name: _frozen(member) for name, member in value.items()})
    if isinstance(value, list):
        return tuple(map(_frozen, value))
    return value


def read_catalogue(program: str) -> dict[str, Check]:
    """read_catalogue reads all checks from the program."""
    require_version(program)
    rows = json.loads(output_of(program, "list", "--json"))["checks"]
    return {row["name"]: _check_of(row) for row in rows}


class Catalogue(Mapping[str, Check]):
    """Catalogue maps the names of checks to their descriptions. It runs the program at the first lookup."""

    def __init__(self, find_program: Callable[[], str]) -> None:
        self._find_program = find_program

    @cached_property
    def _checks(self) -> dict[str, Check]:
        return read_catalogue(self._find_program())

    def __getitem__(self, name: str) -> Check:
        return self._checks[name]

    def __iter__(self) -> Iterator[str]:
        return iter(self._checks)

    def __len__(self) -> int:
        return len(self._checks)
