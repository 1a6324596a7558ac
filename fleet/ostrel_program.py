"""Identifies the ostrel-check program on a worker, runs batches with it, and ends the programs of an interrupted run.
The runner sends this module to the workers, so it needs only Python's standard library."""

import asyncio
import contextlib
import functools
import hashlib
import os
import shutil
import subprocess
import tempfile
import threading
from collections.abc import Callable, Sequence
from typing import IO, BinaryIO

_PIPE = 1 << 20


class Stopped(Exception):
    """Stopped is raised if nothing can be judged on this worker."""


def output_of(program: str, *arguments: str) -> bytes:
    try:
        result = subprocess.run([program, *arguments], stdin=subprocess.DEVNULL, capture_output=True, check=False)
    except OSError as error:
        raise Stopped(f"{program} cannot be run: {error.strerror}") from error
    if result.returncode != 0:
        said = result.stderr.decode("utf-8", "replace").strip()
        raise Stopped(f"{program} {' '.join(arguments)} ended with status {result.returncode}: {said}")
    return result.stdout


@functools.lru_cache
def _identity(program: str, _state: tuple[int, int]) -> str:
    catalogue = hashlib.sha256(output_of(program, "list", "--json")).hexdigest()
    return f"{output_of(program, '--version').decode().strip()} with the catalogue {catalogue[:12]}"


def identity_of(program: str) -> str:
    """identity_of returns the version of the program and a checksum of its catalogue. The version is not sufficient,
    because programs that were built for different models and realms have the same version."""
    found = shutil.which(program)
    if found is None:
        raise Stopped(f"there is no program {program}")
    status = os.stat(found)
    return _identity(found, (status.st_size, status.st_mtime_ns))


def require_identity(program: str, wanted: str) -> None:
    identity = identity_of(program)
    if identity != wanted:
        raise Stopped(f"{program} is {identity}, not {wanted}")


# _running maps each running program to the number of its run. _stopped contains the numbers of the runs that must not
# start another program. Every invocation of the runner reloads this module, but these variables keep their values.
_running: dict[subprocess.Popen[bytes], str] = globals().get("_running", {})
_stopped: set[str] = globals().get("_stopped", set())
_lock: threading.Lock = globals().get("_lock", threading.Lock())


async def abandon(number: str) -> None:
    """abandon kills the programs of a run on this worker and returns when they have ended."""
    with _lock:
        _stopped.add(number)
        for child in [child for child, its_number in _running.items() if its_number == number]:
            child.kill()
    for _ in range(100):
        if number in _running.values():
            await asyncio.sleep(0.05)


def judge(number: str, words: Sequence[str], out: BinaryIO, send: Callable[[int], None]) -> str:
    """judge runs a program on the input that send writes to its pipe, and returns the summary that it prints."""
    with tempfile.TemporaryFile() as complaints:
        child = _start(number, words, out, complaints)
        try:
            assert child.stdin is not None
            with child.stdin as pipe, contextlib.suppress(BrokenPipeError):  # the exit status shows the cause
                send(pipe.fileno())
        except BaseException:
            child.kill()
            raise
        finally:
            status = child.wait()
            with _lock:
                del _running[child]
        complaints.seek(0)
        said = complaints.read().decode("utf-8", "replace")
    if number in _stopped:
        raise Stopped("the run was interrupted")
    if status != 0:
        complaint = " ".join(line for line in said.splitlines() if not line.startswith("{"))
        raise Stopped(f"ostrel-check ended with status {status}: {complaint}")
    return said


def _start(number: str, words: Sequence[str], out: BinaryIO, complaints: IO[bytes]) -> subprocess.Popen[bytes]:
    """_start starts the program with a pipe, not the file, as its input. If this process is killed, the pipe is closed
    and the program ends. The program has its own process group, so it receives no interrupt from the terminal."""
    words = [*words, "--stream", "--exit-zero", "--summary", "json"]
    with _lock:
        if number in _stopped:
            raise Stopped("the run was interrupted")
        child = subprocess.Popen(words, stdin=subprocess.PIPE, stdout=out, stderr=complaints, pipesize=_PIPE,
                                 process_group=0)
        _running[child] = number
    return child
