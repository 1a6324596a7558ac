"""A pytest plugin with a fixture that judges values. A failure shows the reason for the verdict."""

from collections.abc import Iterator

import pytest

from ostrel._session import Session
from ostrel._verdict import Verdict
from ostrel._wire import Argument


class Gateway(Session):
    """Gateway is a session with two assertions, accepts and refuses."""

    def accepts(self, check: str, *arguments: Argument) -> Verdict:
        """accepts fails the test unless the check accepts the values. It returns the verdict."""
        __tracebackhide__ = True
        verdict = self.call(check, arguments)
        if verdict.verdict != "accepted":
            _fail(check, arguments, verdict, "should have been accepted")
        return verdict

    def refuses(self, check: str, *arguments: Argument, code: int | None = None, reason: str | None = None) -> Verdict:
        """refuses fails the test unless the check refuses the values. If code or reason is given, the code or the id of
        the reason must also match. It returns the verdict."""
        __tracebackhide__ = True
        verdict = self.call(check, arguments)
        found = None if verdict.reason is None else verdict.reason.id
        if verdict.verdict != "refused":
            _fail(check, arguments, verdict, "should have been refused")
        if code is not None and verdict.code != code:
            _fail(check, arguments, verdict, f"should have been refused with {code}")
        if reason is not None and found != reason:
            _fail(check, arguments, verdict, f"should have been refused for {reason}, not for {found}")
        return verdict


def _fail(check: str, arguments: tuple[Argument, ...], verdict: Verdict, expected: str) -> None:
    __tracebackhide__ = True
    lines = [f"{check}({', '.join(map(repr, arguments))}) {expected}", f"it was {verdict}"]
    lines += [f"it printed {line!r}" for line in verdict.lines]
    if verdict.err:
        lines.append(f"it wrote {verdict.err!r} to standard error")
    raise AssertionError("\n  ".join(lines))


def pytest_addoption(parser: pytest.Parser) -> None:
    parser.getgroup("ostrel").addoption(
        "--ostrel-check", metavar="PATH", help="path of ostrel-check (default: the first one on the PATH)")
    parser.addini("ostrel_encoding", "encoding of str arguments: utf-8 or latin-1", default="utf-8")


@pytest.fixture(scope="session")
def ostrel(pytestconfig: pytest.Config) -> Iterator[Gateway]:
    """A session that judges values with the checks of a home gateway."""
    with Gateway(pytestconfig.getoption("ostrel_check"), encoding=pytestconfig.getini("ostrel_encoding")) as gateway:
        yield gateway
