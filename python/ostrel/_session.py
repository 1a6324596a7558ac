"""Defines sessions. A session is a co-process that several threads can share, and that is started again if it was
killed or if the caller has forked."""

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
    """_Owner owns the process. It outlives the session, whose finalizer ends the process."""

    def __init__(self) -> None:
        self.lock = threading.Lock()
        self.process: Process | None = None

    def close(self) -> None:
        with self.lock:
            if self.process is not None:
                self.process.close()
            self.process = None

    def begin_again(self) -> None:
        """begin_again is called in a forked child. The program still belongs to the parent, and a thread of the parent
        that held the lock does not exist in the child."""
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
    """Session judges values with a separate program. It starts the program for the first value, and starts it again if
    it was killed. Threads may share a session; a forked process starts its own program.

    program     the path or name of ostrel-check; the default is the program that the environment variable OSTREL_CHECK
                names, or the first ostrel-check on the PATH
    encoding    the encoding of every str that is judged and of all output, "utf-8" or "latin-1"; bytes are passed
                unchanged
    limit_time  the number of seconds after which a call is abandoned; the program's default is 2
    channels    the channels that replace those of the wireless driver, for machines without this driver

    The attribute checks maps the name of every check to its description, including its arguments and their constraints.
    """

    def __init__(self, program: str | None = None, *, encoding: Encoding = "utf-8",
                 limit_time: float | None = None, channels: Iterable[int] | None = None) -> None:
        if encoding not in ("utf-8", "latin-1"):
            raise ValueError(f'the encoding must be "utf-8" or "latin-1", not {encoding!r}')
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
        """__reduce__ pickles the parameters, so that another process creates an equal session. The default session
        becomes that process's default session."""
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
        """The process ID of the program, or None if the program is not running."""
        process = self._owner.process
        return None if process is None else process.pid

    def call(self, check: str, arguments: Iterable[Argument]) -> Verdict:
        """call does what judge does, but takes the arguments as an iterable. Its type annotations also allow a check
        whose name is known only at run time."""
        (verdict,) = self._answer([(check, *arguments)])
        if verdict.verdict == "malformed":
            raise MalformedCall(verdict.meaning)
        return verdict

    def judge_many(self, cases: Iterable[Case], *, block: int = 1024) -> Iterator[Verdict]:
        """judge_many judges cases, each of which is a tuple or list of a check's name and its arguments, and yields
        their verdicts in the same order. It reads one block of cases at a time, and does not read the next block until
        the verdicts of the current one have been consumed. A case that cannot be called has the verdict "malformed", so
        one bad record does not end the iteration."""
        if block < 1:
            raise ValueError("a block must have at least one case")
        return self._answer_blocks(iter(cases), block)

    def _answer_blocks(self, cases: Iterator[Case], size: int) -> Iterator[Verdict]:
        while block := list(itertools.islice(cases, size)):
            yield from self._answer(block)

    def _answer(self, cases: Sequence[Case]) -> list[Verdict]:
        """_answer judges all cases. If the process ends, another process judges the remaining cases."""
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
                    # Answers to these cases might still arrive, so this process cannot be used again.
                    owner.process = None
                    process.abandon()
                    raise
        return verdicts


# The default session of the module.
DEFAULT = Session()
