"""Judges one part of a run on a worker. The runner sends this module, so it needs only Python's standard library."""

import contextlib
import dataclasses
import functools
import json
import os
import pathlib
import secrets
import socket
import stat
from collections.abc import Iterator
from typing import Any, BinaryIO, Literal

import ostrel_program

TEMPORARY = ".tmp"

_MOST_SENT = 1 << 26
_MOST_OF_LINE = 1 << 20


@dataclasses.dataclass(frozen=True)
class Job:
    """Job contains the values that all parts of a run share. Each invocation of the runner has a different number."""

    number: str
    folder: str
    program: str
    identity: str
    options: tuple[str, ...]


@dataclasses.dataclass(frozen=True)
class Part:
    """Part is a file, or a block of its lines. The state is None if the file could not be examined when the run was
    planned. A part whose end is None extends to the end of its file."""

    name: str
    file: str
    state: tuple[int, int] | None  # the size in bytes, and the time of the last change in nanoseconds
    format: str | None = None
    begin: int = 0
    end: int | None = None
    line: int = 1


@dataclasses.dataclass(frozen=True)
class Outcome:
    """Outcome is the result of a part. Its kind is "done", "missing" if this part could not be judged, or "stop" if the
    whole run cannot continue. A part that is done but has a problem is judged again by the next invocation."""

    kind: Literal["done", "missing", "stop"]
    problem: str = ""
    note: str = ""
    cases: int = 0
    refused: int = 0


class Unreadable(Exception):
    """Unreadable is raised if a file cannot be judged but others can."""


def results_of(job: Job, part: Part) -> pathlib.Path:
    return pathlib.Path(job.folder, "results", part.name + ".ndjson")


def mark_of(job: Job, part: Part) -> pathlib.Path:
    return pathlib.Path(job.folder, "done", part.name + ".json")


def read_mark(path: pathlib.Path) -> dict[str, Any]:
    """read_mark returns the record of a judged part, or an empty record if the part was not judged."""
    try:
        mark: dict[str, Any] = json.loads(path.read_bytes())
        part: dict[str, Any] = mark["part"]
        part["state"] = part["state"] and tuple(part["state"])
        mark["part"] = Part(**part)
    except (OSError, ValueError, KeyError, TypeError):
        return {}
    return mark


def is_finished(job: Job, part: Part) -> bool:
    """is_finished returns whether the part was judged in its present state and its results exist."""
    mark = read_mark(mark_of(job, part))
    if mark.get("part") != part or mark["problem"]:
        return False
    with contextlib.suppress(OSError):
        return bool(results_of(job, part).stat().st_size == mark["bytes"])
    return False


@contextlib.contextmanager
def whole(path: pathlib.Path) -> Iterator[BinaryIO]:
    """whole opens a file under a temporary name, and renames it when it is complete. The name is unique, because
    another worker may be judging the same part after the scheduler wrongly considered this one dead."""
    temporary = path.with_name(f".{path.name}.{socket.gethostname()}-{os.getpid()}-{secrets.token_hex(4)}{TEMPORARY}")
    try:
        with open(temporary, "x+b") as file:
            yield file
            file.flush()
            os.fsync(file.fileno())
        os.rename(temporary, path)
    finally:
        temporary.unlink(missing_ok=True)


def judge(job: Job, part: Part) -> dict[str, Any]:
    """judge judges a part, unless another worker has already finished the part and died before reporting it. It returns
    an Outcome as a dictionary."""
    return dataclasses.asdict(_outcome_of(job, part))


def _outcome_of(job: Job, part: Part) -> Outcome:
    try:
        note = "" if is_finished(job, part) else _judge(job, part)
        mark = read_mark(mark_of(job, part))
        counts = json.loads(mark["summary"])["summary"]
        return Outcome("done", mark["problem"], note, counts["cases"], counts["refused"])
    except Unreadable as error:
        return Outcome("missing", f"{part.file}: {error}")
    except (ostrel_program.Stopped, OSError) as error:
        return Outcome("stop", f"{part.file} was not judged on {socket.gethostname()}: {error}")


def _judge(job: Job, part: Part) -> str:
    ostrel_program.require_identity(job.program, job.identity)
    words = [job.program, "batch", *job.options]
    words += [] if part.format is None else ["--format", part.format]
    words += ["--number-lines-from", str(part.line)] if part.line > 1 else []
    with _open(part) as source, whole(results_of(job, part)) as out:
        _require_unchanged(part, source)
        summary = ostrel_program.judge(job.number, words, out, functools.partial(_send, part, source.fileno()))
        _require_unchanged(part, source)
        problem, note = _end_of(part, source, out)
        size = os.fstat(out.fileno()).st_size
    with whole(mark_of(job, part)) as mark:
        mark.write(json.dumps({"part": dataclasses.asdict(part), "bytes": size, "problem": problem,
                               "summary": summary}).encode())
    return note


def _open(part: Part) -> BinaryIO:
    try:
        source = open(part.file, "rb")
    except OSError as error:
        raise Unreadable(f"cannot be read: {error.strerror}") from error
    if not stat.S_ISREG(os.fstat(source.fileno()).st_mode):
        source.close()
        raise Unreadable("cannot be read: not a regular file")
    return source


def _require_unchanged(part: Part, source: BinaryIO) -> None:
    status = os.fstat(source.fileno())
    if part.state not in (None, (status.st_size, status.st_mtime_ns)):
        raise Unreadable("the file has changed since the run began")


def _send(part: Part, source: int, pipe: int) -> None:
    at, sent = part.begin, 1
    while sent > 0 and at != part.end:
        try:
            sent = os.sendfile(pipe, source, at, _MOST_SENT if part.end is None else min(_MOST_SENT, part.end - at))
        except BrokenPipeError:
            raise
        except OSError as error:
            raise Unreadable(f"cannot be read from byte {at}: {error.strerror}") from error
        at += sent


def _end_of(part: Part, source: BinaryIO, out: BinaryIO) -> tuple[str, str]:
    """_end_of returns a definite and a possible problem at the end of a file. A last line without a line ending was cut
    off if its record is malformed; otherwise it might have been cut off."""
    size = os.fstat(source.fileno()).st_size
    last = os.pread(source.fileno(), 1, size - 1) if size > 0 and part.end in (None, size) else b"\n"
    if last == b"\n":
        return "", ""
    length = os.fstat(out.fileno()).st_size
    tail = os.pread(out.fileno(), _MOST_OF_LINE, max(0, length - _MOST_OF_LINE))
    with contextlib.suppress(ValueError):
        result = json.loads(tail.rstrip(b"\n").rpartition(b"\n")[2])
        if result["verdict"] == "malformed" and result["line"] == _last_line(part, source):
            return f"{part.file}: the file ends in the middle of line {result['line']}", ""
        if last not in b"]}":
            return "", f"{part.file}: line {result['line']}, the last one, has no line ending and may be incomplete"
    return "", ""


def _last_line(part: Part, source: BinaryIO) -> int:
    source.seek(part.begin)
    return part.line + sum(piece.count(b"\n") for piece in iter(functools.partial(source.read, _MOST_OF_LINE), b""))
