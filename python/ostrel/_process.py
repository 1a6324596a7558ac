"""Runs ostrel-check, the program that judges values, as a co-process."""

import os
import select
import shutil
import socket
import subprocess
import tempfile
from collections.abc import Sequence

from ostrel._errors import MissingProgram, OtherVersion, ProgramFailed
from ostrel._verdict import Verdict, verdicts_of
from ostrel._version import VERSION
from ostrel._wire import Case, Encoding, lines_of

NAME = "ostrel-check"

# The number of cases that are written at once. It is small because this process and the program cannot work in parallel
# on the first and the last piece.
_PIECE = 128
_MOST_READ = 1 << 18
_SECONDS_TO_END = 5.0


class Ended(Exception):
    """Ended is raised if the program ends before it has answered all cases."""


def find_program(given: str | None) -> str:
    """find_program returns the path of the given program, of the program that OSTREL_CHECK names, or of the first
    ostrel-check on the PATH."""
    wanted = given or os.environ.get("OSTREL_CHECK") or NAME
    found = shutil.which(wanted)
    if found is None:
        raise MissingProgram(f"there is no program {wanted}; install the package ostrel-check, "
                             "or name the program in the environment variable OSTREL_CHECK")
    return found


def output_of(program: str, *arguments: str) -> str:
    """output_of runs the program to completion and returns its output."""
    try:
        result = subprocess.run([program, *arguments], stdin=subprocess.DEVNULL, capture_output=True, check=False)
    except OSError as error:
        raise MissingProgram(f"{program} cannot be run: {error.strerror}") from error
    if result.returncode != 0:
        said = result.stderr.decode("utf-8", "replace").strip()
        raise ProgramFailed(f"{program} {' '.join(arguments)} ended with status {result.returncode}: {said}")
    return result.stdout.decode()


def require_version(program: str) -> None:
    """require_version raises OtherVersion if the program has another version, because its checks might then differ from
    the stubs."""
    said = output_of(program, "--version").split()
    if said != [NAME, VERSION]:
        raise OtherVersion(f"this package and its stubs have version {VERSION}, but {program} reports "
                           f"{' '.join(said) or 'none'}; install the same version of both")


class Process:
    """Process is a running program. Only one thread at a time may use it."""

    def __init__(self, program: str, encoding: Encoding, options: Sequence[str]) -> None:
        require_version(program)
        self._encoding: Encoding = encoding
        # A socket pair is used because writing to a pipe without a reader would end a caller that does not ignore
        # SIGPIPE.
        self._socket, theirs = socket.socketpair()
        self._complaints = tempfile.TemporaryFile()
        with theirs:
            # The program has its own process group, so it does not receive an interrupt that the terminal sends to the
            # caller.
            self._child = subprocess.Popen(
                [program, "batch", "--stream", "--format", "ndjson", "--encoding", encoding, *options],
                stdin=theirs.fileno(), stdout=theirs.fileno(), stderr=self._complaints, process_group=0)
        self._socket.setblocking(False)
        self._poll = select.poll()

    @property
    def pid(self) -> int:
        return self._child.pid

    def answer(self, cases: Sequence[Case], verdicts: list[Verdict]) -> None:
        """answer appends a verdict for each case that does not have one yet. It reads while it writes, so that neither
        side blocks the other forever. If the program ends, answer raises Ended, and the verdicts received so far are
        kept."""
        next_case = len(verdicts)
        to_write = memoryview(b"")
        incomplete: list[bytes] = []
        # The program answers an overlong line before it has read all of it, so the last verdict may arrive while some
        # input is still unwritten.
        while len(verdicts) < len(cases) or to_write:
            if not to_write and next_case < len(cases):
                piece = cases[next_case:next_case + _PIECE]
                next_case += len(piece)
                to_write = memoryview(lines_of(piece, self._encoding))
            if to_write:
                to_write = to_write[self._send(to_write):]
            has_asked_all = next_case == len(cases) and len(verdicts) < len(cases)
            data = self._receive(has_more=bool(to_write), may_wait=bool(to_write) or has_asked_all)
            end = data.rfind(b"\n") + 1
            if end:
                verdicts.extend(_verdicts_of(b"".join([*incomplete, data[:end]])))
                incomplete = []
            incomplete.append(data[end:])
        if len(verdicts) > len(cases) or any(incomplete):
            raise ProgramFailed(f"{NAME} printed more results than there were cases")

    def _send(self, data: memoryview) -> int:
        try:
            return self._socket.send(data, socket.MSG_NOSIGNAL)
        except BlockingIOError:
            return 0
        except OSError:
            return len(data)  # the program has ended, but its earlier answers can still be read

    def _receive(self, has_more: bool, may_wait: bool) -> bytes:
        if may_wait:
            self._poll.register(self._socket, select.POLLIN | (select.POLLOUT if has_more else 0))
            self._poll.poll()
        try:
            data = self._socket.recv(_MOST_READ)
        except BlockingIOError:
            return b""
        except OSError as error:
            raise Ended from error
        if not data:
            raise Ended
        return data

    def close(self) -> None:
        """close ends the program and waits until it has ended."""
        self._socket.close()
        try:
            self._child.wait(_SECONDS_TO_END)
        except subprocess.TimeoutExpired:
            self._child.kill()
            self._child.wait()
        self._complaints.close()

    def abandon(self) -> str:
        """abandon kills the program and returns a description of how it ended."""
        self._socket.close()
        self._child.kill()
        status = self._child.wait()
        self._complaints.seek(0)
        said = self._complaints.read().decode("utf-8", "replace").strip()
        self._complaints.close()
        return f"status {status}" + (f": {said}" if said else "")

    def forget(self) -> None:
        """forget leaves the program to the parent after a fork. It closes this process's copies of the descriptors,
        because the program ends only when every copy of the socket is closed."""
        self._socket.close()
        self._complaints.close()
        self._child.returncode = 0  # the program is the parent's child, so this process cannot wait for it


def _verdicts_of(lines: bytes) -> list[Verdict]:
    try:
        return verdicts_of(lines.decode().split("\n")[:-1])
    except (ValueError, LookupError, TypeError, AttributeError) as error:
        raise ProgramFailed(f"{NAME} printed something that is not a result: {lines!r:.200}") from error
