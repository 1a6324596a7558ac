"""Judges files of cases with ostrel-check, on many machines or on all processors of this one.

Each part, which is a file or a block of its lines, is a Dask task that writes its results to a file in FOLDER/results.
The names of these files sort in the order of the parts; concatenated in that order, the files equal the output of a
single ostrel-check batch --stream for all input files. FOLDER/summary.json is the summary of all parts.

The exit code is that of ostrel-check batch, or 4 if parts are missing; --resume judges only the missing parts.
"""

import argparse
import contextlib
import json
import os
import pathlib
import re
import secrets
import shlex
import signal
import subprocess
import sys
from collections.abc import Iterator, Sequence
from types import FrameType

import ostrel_part
import ostrel_program
import plan
from ostrel_part import Job, Outcome, Part
from ostrel_program import Stopped
from plan import Manifest, Refused
from progress import Failed, Progress

PROGRAM = "ostrel-check"

USAGE = 2
INCOMPLETE = 4
# The exit code of a batch that contains a case with the given verdict. The highest one that applies is returned.
EXIT_CODES = {"refused": 1, "malformed": 2, "no_driver": 2, "ended": 3, "no_return": 3}
# The options that the runner sets or interprets itself.
OWN_OPTIONS = ("--json", "--stream", "--format-out", "--only-refused", "--summary", "--summary-only", "--summary-file",
               "--exit-zero", "--start-line", "--jobs", "--map")
UNITS = {"": 1, "k": 1 << 10, "M": 1 << 20, "G": 1 << 30}


class Interrupted(Exception):
    """Interrupted is raised when a signal interrupts the run. Its argument is the number of the signal."""


def size_of(text: str) -> int:
    match = re.fullmatch(r"([1-9][0-9]*)([kMG]?)", text)
    if match is None:
        raise argparse.ArgumentTypeError("a size must be a number of bytes, optionally followed by k, M or G")
    return int(match[1]) * UNITS[match[2]]


def parse(words: Sequence[str]) -> tuple[argparse.Namespace, list[str]]:
    """parse returns the arguments of the runner, and the options for ostrel-check, which follow the first "--"."""
    at = words.index("--") if "--" in words else len(words)
    parser = argparse.ArgumentParser(
        prog="ostrel-fleet", description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter,
        fromfile_prefix_chars="@", usage="ostrel-fleet [OPTIONS] FOLDER FILE... [-- OPTIONS OF ostrel-check batch]\n"
        "       ostrel-fleet --resume [--scheduler ADDRESS] FOLDER")
    parser.add_argument("folder", metavar="FOLDER", type=pathlib.Path,
                        help="write the results to this folder; the path must be valid on each worker")
    parser.add_argument("files", metavar="FILE", nargs="*",
                        help="judge this file; @LIST reads file names from LIST, one per line")
    parser.add_argument("--resume", action="store_true", help="judge the missing parts of the run in FOLDER")
    parser.add_argument("--scheduler", metavar="ADDRESS",
                        help="use the Dask cluster with this scheduler instead of only this machine")
    parser.add_argument("--jobs", metavar="N", type=int, default=len(os.sched_getaffinity(0)),
                        help="judge this many parts in parallel on this machine (default: its number of processors)")
    parser.add_argument("--map", metavar="FILE", help="judge the files as gateway dumps, using this map")
    parser.add_argument("--block", metavar="SIZE", type=size_of, default="256M",
                        help="split larger files of lines into blocks of about this size (default: 256M)")
    parser.add_argument("--program", metavar="PATH", default=PROGRAM, help="run this ostrel-check on each worker")
    parser.add_argument("--exit-zero", action="store_true", help="ignore verdicts in the exit code")
    given = parser.parse_args(words[:at])
    if given.jobs < 1:
        parser.error("--jobs must be at least 1")
    if not given.resume and not given.files:
        parser.error("FILE is missing")
    options = list(words[at + 1:])
    for option in options:
        if option.partition("=")[0] in OWN_OPTIONS:
            parser.error(f"{option} cannot be passed to ostrel-check here")
    return given, options


def require_options(program: str, manifest: Manifest) -> None:
    """require_options runs the program without cases, so that invalid options are reported once, not for each part."""
    said = ostrel_program.output_of(program, "batch", "--stream", "--exit-zero", "--summary", "json", *manifest.words())
    if said:
        raise Refused(f"{shlex.join(manifest.options)}: the options of ostrel-check must not name a file")


def manifest_of(given: argparse.Namespace, options: Sequence[str]) -> Manifest:
    identity = ostrel_program.identity_of(given.program)
    if not given.resume:
        manifest = plan.make_manifest(identity, given.files, options, given.map, given.block)
        require_options(given.program, manifest)
        plan.begin(given.folder, manifest)
        return manifest
    begun = plan.read_manifest(given.folder)
    now = plan.make_manifest(identity, given.files or begun.files, options or begun.options, given.map or begun.map,
                             begun.block)
    plan.require_same(begun, now)
    return begun


class Run:
    """Run is one invocation of the runner. Further invocations with the same folder continue an interrupted run."""

    def __init__(self, given: argparse.Namespace, manifest: Manifest) -> None:
        self._given, self._manifest = given, manifest
        self._folder = given.folder.resolve()
        self._job = Job(secrets.token_hex(4), str(self._folder), given.program, manifest.identity, manifest.words())
        self._parts = plan.make_plan(manifest)
        self._left, notes = plan.sweep(self._job, self._parts)
        self._missing: dict[str, tuple[Part, str]] = {}
        self._progress = Progress(len(self._left), sum(map(size_in, self._left)))
        for note in notes:
            self._progress.say(note)

    def judge(self) -> None:
        try:
            if self._left:
                import cluster  # Dask takes a second to load, and nothing else needs it

                with cluster.connect(self._given.scheduler, self._given.jobs) as client:
                    cluster.require_program(client, self._job)
                    self._progress.mention(f"Dask's dashboard: {client.dashboard_link}")
                    cluster.judge_all(client, self._job, self._left, self._tell, self._progress.show)
        finally:
            self._progress.clear()
            plan.remove_temporary(self._folder)

    def _tell(self, part: Part, outcome: Outcome) -> None:
        self._progress.add(size_in(part), outcome.cases, outcome.refused)
        if outcome.kind != "stop" and outcome.problem:
            self._missing[part.name] = (part, outcome.problem)
        for message in outcome.note, outcome.problem:
            if message and outcome.kind != "stop":
                self._progress.say(message)

    def how_far(self) -> str:
        done = sum(ostrel_part.is_finished(self._job, part) for part in self._parts)
        words = [sys.argv[0], "--resume"]
        words += ["--scheduler", self._given.scheduler] if self._given.scheduler else []
        words += ["--program", self._given.program] if self._given.program != PROGRAM else []
        words.append(str(self._given.folder))
        return f"{done} of {len(self._parts)} parts are done; resume with\n  {shlex.join(words)}"

    def sum_up(self) -> int:
        """sum_up writes the summary of the run and returns its exit code."""
        marks = [ostrel_part.read_mark(ostrel_part.mark_of(self._job, part)) for part in self._parts]
        summaries = [str(mark["summary"]) for mark in marks if mark]
        missing = [self._missing[name] for name in sorted(self._missing)]
        unread = len({part.file for part, _ in missing if not ostrel_part.mark_of(self._job, part).exists()})
        text = self._summarise([*summaries, *([self._nothing(unread)] if unread else [])], "json")
        counts = json.loads(text)["summary"]
        self._write_summary(text, missing)
        print(self._summarise([text], "text").splitlines()[-1])
        summary = shlex.quote(str(self._given.folder / plan.SUMMARY))
        print(f"For counts by check, parameter and reason: ostrel-check summarise {summary}")
        for _, problem in missing:
            print(f"missing: {problem}")
        if missing:
            print(self.how_far())
            return INCOMPLETE
        codes = [EXIT_CODES.get(verdict, 0) for verdict in counts if counts[verdict]]
        return 0 if self._given.exit_zero else max(codes, default=0)

    def _write_summary(self, text: str, missing: Sequence[tuple[Part, str]]) -> None:
        if missing:
            names = [{"file": part.file, "line": part.line, "problem": problem} for part, problem in missing]
            text = f"{text.rstrip()[:-1]},\"missing\":{json.dumps(names)}}}\n"
        plan.write_whole(self._folder / plan.SUMMARY, text)

    def _nothing(self, unread: int) -> str:
        """_nothing returns a summary that counts only the files that could not be read."""
        nothing = json.loads(self._summarise(["\n"], "json"))
        nothing["summary"]["unreadable_files"] = unread
        return json.dumps(nothing) + "\n"

    def _summarise(self, summaries: Sequence[str], form: str) -> str:
        result = subprocess.run([self._given.program, "summarise", "--summary", form, "-"], input="".join(summaries),
                                stdout=subprocess.PIPE, check=True, text=True)
        return result.stdout


def size_in(part: Part) -> int:
    end = part.end if part.end is not None else part.state[0] if part.state is not None else 0
    return end - part.begin


@contextlib.contextmanager
def signals_raise() -> Iterator[None]:
    """signals_raise makes the first signal end the run cleanly, and a second signal end it immediately."""
    def interrupt(number: int, _: FrameType | None) -> None:
        signal.signal(number, signal.SIG_DFL)
        raise Interrupted(number)

    before = {number: signal.signal(number, interrupt) for number in (signal.SIGINT, signal.SIGTERM)}
    try:
        yield
    finally:
        for number, handler in before.items():
            signal.signal(number, handler)


def main(words: Sequence[str]) -> int:
    given, options = parse(words)
    try:
        manifest = manifest_of(given, options)
        descriptor = plan.lock(given.folder)
    except (Refused, Stopped, OSError) as error:
        print(f"ostrel-fleet: {error}", file=sys.stderr)
        return USAGE
    run = None
    try:
        with signals_raise():
            run = Run(given, manifest)
            run.judge()
            return run.sum_up()
    except Failed as error:
        print(f"ostrel-fleet: {error}", file=sys.stderr)
        code = INCOMPLETE
    except Interrupted as error:
        print("ostrel-fleet: interrupted", file=sys.stderr)
        code = 128 + int(error.args[0])
    finally:
        os.close(descriptor)
    if run is not None:
        print(run.how_far(), file=sys.stderr)
    return code
