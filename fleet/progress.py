"""Shows the progress of a run on one line of a terminal."""

import sys
import time
from typing import TextIO

_SECONDS_BETWEEN = 0.25


class Failed(Exception):
    """Failed is raised if nothing more can be judged. --resume continues the run after the cause has been removed."""


class Progress:
    """Progress shows its line and the messages passed to mention only on a terminal, and those passed to say always."""

    def __init__(self, parts: int, size: int, stream: TextIO = sys.stderr) -> None:
        self._parts, self._size = parts, size
        self._done = self._done_size = self.cases = self.refused = 0
        self._stream, self._is_shown = stream, stream.isatty()
        self._begin = time.monotonic()
        self._next = self._begin + 1
        self._width = 0
        self._waits = False

    def add(self, size: int, cases: int, refused: int) -> None:
        self._done += 1
        self._done_size += size
        self.cases += cases
        self.refused += refused

    def line(self, workers: int, seconds: float) -> str:
        text = (f"{self._done:,} of {self._parts:,} parts, {self.cases:,} cases, {self.refused:,} refused, "
                f"{workers} workers")
        if self._done_size > 0:
            left = seconds * (self._size - self._done_size) / self._done_size
            text += f", {int(left) // 60}:{int(left) % 60:02} left"
        return text

    def show(self, workers: int) -> None:
        if workers == 0 and not self._waits:
            self.say("no workers are left; the run is waiting for one")
        self._waits = workers == 0
        now = time.monotonic()
        if not self._is_shown or now < self._next:
            return
        self._next = now + _SECONDS_BETWEEN
        self.clear()
        text = self.line(workers, now - self._begin)[:79]
        self._width = len(text)
        print(text, end="", file=self._stream, flush=True)

    def clear(self) -> None:
        if self._width > 0:
            print("\r" + " " * self._width + "\r", end="", file=self._stream, flush=True)
        self._width = 0

    def mention(self, message: str) -> None:
        if self._is_shown:
            self.say(message)

    def say(self, message: str) -> None:
        self.clear()
        print(message, file=self._stream, flush=True)
