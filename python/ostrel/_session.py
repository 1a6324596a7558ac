"""A session: a co-process that several threads can use, and that is started again if it was killed or the caller
forked."""

import itertools
import os
import threading
import weakref
from collections.abc import Iterable, Iterator, Mapping, Sequence
from functools import partial
from types import TracebackType
from typing import Any, Self

from ostrel._calls import Calls
from ostrel._catalogue import Catalogue, Check
from ostrel._errors import MalformedCall, ProgramFailed
from ostrel._process import Ended, Process, find_program
from ostrel._verdict import Verdict
from ostrel._wire import Argument, Case, Encoding

_MOST_ATTEMPTS = 3


class _Owner:
    """_Owner keeps the process, and outlives the session, whose finalizer ends the process."""

    def __init__(self) -> None:
        self.lock = threading.Lock()
        self.process: Process | None = None

    def close(self) -> None:
        with self.lock:
            if self.process is not None:
                self.process.close()
            self.process = None

    def begin_again(self) -> None:
        """begin_again is called in a child process: the program belongs to the parent, and the thread that held the
        lock does not exist here."""
        self.lock = threading.Lock()
        if self.process is not None:
            self.process.forget()
        self.process = None


_owners: weakref.WeakSet[_Owner] = weakref.WeakSet()


def _begin_again() -> None:
    for owner in list(_owners):
        owner.begin_again()


os.register_at_fork(after_in_child=_begin_again)


class Session(Calls):
    """Session judges values with a separate program, which it starts for the first value, and again if that program
    was killed. Threads may share a session; a forked process starts its own program.

    program     the path or the name of ostrel-check; the default is that of the environment variable OSTREL_CHECK, or
                the first on the PATH
    encoding    how a str is converted to the bytes that are judged, and output to a str; bytes are passed unchanged
    limit_time  the seconds after which a call is given up; the program's default is 2
    channels    the channels that the wireless driver would list, for machines without one

    checks maps the name of every check to its description, with its arguments and their constraints.
    """

    def __init__(self, program: str | None = None, *, encoding: Encoding = "utf-8",
                 limit_time: float | None = None, channels: Iterable[int] | None = None) -> None:
        if encoding not in ("utf-8", "latin-1"):
            raise ValueError(f'the encoding is "utf-8" or "latin-1", not {encoding!r}')
        # The parameters for creating an equal session.
        self._parameters = {"program": program, "encoding": encoding, "limit_time": limit_time,
                            "channels": None if channels is None else (channels := tuple(channels))}
        self._program = program
        self._encoding: Encoding = encoding
        self._options: list[str] = []
        if limit_time is not None:
            self._options += ["--limit-time", str(limit_time)]
        if channels is not None:
            self._options += ["--channels", " ".join(map(str, channels))]
        self.checks: Mapping[str, Check] = Catalogue(lambda: find_program(program))
        self._owner = _Owner()
        _owners.add(self._owner)
        weakref.finalize(self, self._owner.close)

    def __reduce__(self) -> str | tuple[Any, ...]:
        """__reduce__ creates an equal session in another process; the session of the module becomes that process's
        own."""
        return "DEFAULT" if self is DEFAULT else (partial(type(self), **self._parameters), ())

    def __repr__(self) -> str:
        return f"<{type(self).__name__} of {self._program or 'ostrel-check'}, {self._encoding}>"

    def __enter__(self) -> Self:
        return self

    def __exit__(self, kind: type[BaseException] | None, error: BaseException | None,
                 trace: TracebackType | None) -> None:
        self.close()

    def close(self) -> None:
        """close ends the program. A later call starts another one."""
        self._owner.close()

    @property
    def pid(self) -> int | None:
        """The process id of the program; None if none is running."""
        process = self._owner.process
        return None if process is None else process.pid

    def call(self, check: str, arguments: Iterable[Argument]) -> Verdict:
        """call is judge for a check whose name is known only at run time."""
        (verdict,) = self._answer([(check, *arguments)])
        if verdict.verdict == "malformed":
            raise MalformedCall(verdict.meaning)
        return verdict

    def judge_many(self, cases: Iterable[Case], *, block: int = 1024) -> Iterator[Verdict]:
        """judge_many judges cases, each the name of a check and its arguments, and yields the verdicts in their order.
        It reads a block of them at a time, and the next one after those verdicts are consumed. A case that cannot be
        called has the verdict "malformed", so that one bad record does not end the iteration."""
        if block < 1:
            raise ValueError("a block has at least one case")
        return self._answer_blocks(iter(cases), block)

    def _answer_blocks(self, cases: Iterator[Case], size: int) -> Iterator[Verdict]:
        while block := list(itertools.islice(cases, size)):
            yield from self._answer(block)

    def _answer(self, cases: Sequence[Case]) -> list[Verdict]:
        """_answer judges all cases. If the process ends, another one judges the rest."""
        verdicts: list[Verdict] = []
        attempts = 0
        owner = self._owner
        with owner.lock:
            while len(verdicts) < len(cases):
                answered = len(verdicts)
                if owner.process is None:
                    owner.process = Process(find_program(self._program), self._encoding, self._options)
                process = owner.process
                try:
                    process.answer(cases, verdicts)
                except Ended:
                    owner.process = None
                    ending = process.abandon()
                    attempts = 1 if len(verdicts) > answered else attempts + 1
                    if attempts == _MOST_ATTEMPTS:
                        raise ProgramFailed(f"ostrel-check ended {attempts} times at {cases[len(verdicts)]!r:.200}, "
                                            f"the last time with {ending}") from None
                except BaseException:
                    # Answers to earlier cases may still arrive.
                    owner.process = None
                    process.abandon()
                    raise
        return verdicts


# The default session of the module.
DEFAULT = Session()
