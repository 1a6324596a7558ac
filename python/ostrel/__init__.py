"""Judges the configuration values of a home gateway with the checks of ostrel-check.

The functions call, judge and judge_many, and the mapping checks, use the default session. It encodes a str as UTF-8,
and its program ends when the interpreter exits.
"""

from ostrel._catalogue import ArgumentOf, Check, Code
from ostrel._errors import Error, MalformedCall, MissingProgram, OtherVersion, ProgramFailed
from ostrel._session import DEFAULT, Session
from ostrel._verdict import CharacterSet, Datum, Outcome, Reason, Verdict, Written
from ostrel._version import VERSION as __version__
from ostrel._wire import Argument, Case, Encoding, Text

__all__ = [
    "Argument", "ArgumentOf", "Case", "CharacterSet", "Check", "Code", "Datum", "Encoding", "Error", "MalformedCall",
    "MissingProgram", "OtherVersion", "Outcome", "ProgramFailed", "Reason", "Session", "Text", "Verdict", "Written",
    "__version__", "call", "checks", "judge", "judge_many",
]

call = DEFAULT.call
checks = DEFAULT.checks
judge = DEFAULT.judge
judge_many = DEFAULT.judge_many
