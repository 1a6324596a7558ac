"""Encodes cases as the lines of JSON that ostrel-check reads."""

import base64
from collections.abc import Callable, Iterable, Sequence
from json import encoder
from typing import Literal

Encoding = Literal["utf-8", "latin-1"]
Text = str | bytes
Texts = list[str] | list[bytes] | tuple[Text, ...]
Argument = Text | int | Texts | None
Case = Sequence[Argument]
Quote = Callable[[str], str]

# JSONEncoder.encode calls this function for a str; calling it directly takes half the time. Non-ASCII characters
# are not escaped, because escapes would cost both sides more time.
_quoted: Quote = encoder.encode_basestring  # type: ignore[attr-defined]
_escaped: Quote = encoder.encode_basestring_ascii  # type: ignore[attr-defined]


def _token_of_bytes(value: bytes) -> str:
    if value.isascii():
        return _quoted(value.decode("ascii"))
    return '{"base64":"%s"}' % base64.b64encode(value).decode("ascii")


def _token(value: object, quote: Quote) -> str:
    if isinstance(value, str):
        return quote(value)
    if isinstance(value, (bytes, bytearray)):
        return _token_of_bytes(value)
    if value is None:
        return "null"
    # A bool is an int in Python, but a bool as an argument is most likely a mistake.
    if isinstance(value, int) and not isinstance(value, bool):
        return int.__repr__(value)
    if isinstance(value, (list, tuple)):
        return "[%s]" % ",".join([_token(item, quote) for item in value])
    raise TypeError(f"an argument must be str, bytes, int, None or a list of str or bytes, not {type(value).__name__}")


def _line(case: Case, quote: Quote) -> str:
    if not isinstance(case, (tuple, list)) or not case or not isinstance(case[0], str):
        raise TypeError(f"a case must be a tuple or list of the name of a check and its arguments, not {case!r:.100}")
    arguments = [_quoted(item) if type(item) is str and quote is _quoted else _token(item, quote)
                 for item in case[1:]]
    return '{"check":%s,"args":[%s]}\n' % (quote(case[0]), ",".join(arguments))


def _token_of_surrogates(text: str) -> str:
    """_token_of_surrogates converts the lone surrogates that the error handler surrogateescape creates back to the
    original bytes. It passes any other lone surrogate to the program, which reports the error."""
    try:
        return _token_of_bytes(text.encode("utf-8", "surrogateescape"))
    except UnicodeEncodeError:
        return _escaped(text)


def lines_of(cases: Iterable[Case], encoding: Encoding) -> bytes:
    """lines_of returns one line of JSON for each case."""
    try:
        return "".join([_line(case, _quoted) for case in cases]).encode()
    except UnicodeEncodeError:
        quote = _token_of_surrogates if encoding == "utf-8" else _escaped
        return "".join([_line(case, quote) for case in cases]).encode()
