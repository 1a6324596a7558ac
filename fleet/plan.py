"""Plans a run and manages its folder, including finished parts and files that an earlier invocation left behind."""

import dataclasses
import fcntl
import hashlib
import json
import os
import pathlib
from collections.abc import Iterator, Sequence
from typing import BinaryIO

import ostrel_part
from ostrel_part import Job, Part

MANIFEST = "run.json"
SUMMARY = "summary.json"
FOLDERS = ("results", "done")

# Formats by file name suffix, the same as in ostrel-check.
FORMATS = {".ndjson": "ndjson", ".jsonl": "ndjson", ".json": "json", ".csv": "csv", ".tsv": "tsv", ".tab": "tsv",
           ".words": "words"}
# In these formats a record is a line, so a file can be split after any of them.
LINES = ("ndjson", "words")

_PIECE = 1 << 22


class Refused(Exception):
    """Refused is raised if the run cannot begin or continue as requested."""


@dataclasses.dataclass(frozen=True)
class Manifest:
    """Manifest contains the parameters with which a run was begun. Different parameters could change its results."""

    identity: str
    files: tuple[str, ...]
    options: tuple[str, ...]
    map: str | None
    map_sum: str | None
    block: int

    def words(self) -> tuple[str, ...]:
        return self.options if self.map is None else (*self.options, "--map", self.map)


def make_manifest(identity: str, files: Sequence[str], options: Sequence[str], map_file: str | None,
                  block: int) -> Manifest:
    map_sum = None
    if map_file is not None:
        map_file = os.path.abspath(map_file)
        try:
            map_sum = hashlib.sha256(pathlib.Path(map_file).read_bytes()).hexdigest()
        except OSError as error:
            raise Refused(f"{map_file}: {error.strerror}") from error
    return Manifest(identity, tuple(map(os.path.abspath, files)), tuple(options), map_file, map_sum, block)


def read_manifest(folder: pathlib.Path) -> Manifest:
    try:
        given = json.loads((folder / MANIFEST).read_bytes())
        return Manifest(**{name: tuple(value) if isinstance(value, list) else value for name, value in given.items()})
    except OSError as error:
        raise Refused(f"{folder} contains no run to resume: {error.strerror}") from error
    except (ValueError, TypeError, AttributeError) as error:
        raise Refused(f"{folder / MANIFEST} is not a valid manifest: {error}") from error


def write_whole(path: pathlib.Path, text: str) -> None:
    with ostrel_part.whole(path) as file:
        file.write(text.encode())


def begin(folder: pathlib.Path, manifest: Manifest) -> None:
    if (folder / MANIFEST).exists():
        raise Refused(f"{folder} already contains a run; use --resume to continue it")
    for name in FOLDERS:
        (folder / name).mkdir(parents=True, exist_ok=True)
        if any((folder / name).iterdir()):
            raise Refused(f"{folder / name} is not empty")
    write_whole(folder / MANIFEST, json.dumps(dataclasses.asdict(manifest), indent=1) + "\n")


def require_same(begun: Manifest, now: Manifest) -> None:
    for field in dataclasses.fields(Manifest):
        before, after = getattr(begun, field.name), getattr(now, field.name)
        if before != after:
            name = {"block": "block size", "map_sum": "map contents"}.get(field.name, field.name)
            raise Refused(f"the run was started with {name} {before}, not {after}; use another folder")


def lock(folder: pathlib.Path) -> int:
    """lock keeps other runners out of the folder while the returned descriptor is open."""
    descriptor = os.open(folder, os.O_RDONLY | os.O_DIRECTORY)
    try:
        fcntl.flock(descriptor, fcntl.LOCK_EX | fcntl.LOCK_NB)
    except BlockingIOError:
        os.close(descriptor)
        raise Refused(f"another runner is already using {folder}") from None
    except OSError:
        pass  # the file system does not support locks
    return descriptor


def remove_temporary(folder: pathlib.Path) -> None:
    """remove_temporary removes the files that a killed worker left. A worker that is still active for an earlier run
    then finds its file missing and moves nothing into place."""
    for name in ("", *FOLDERS):
        for path in (folder / name).glob(f".*{ostrel_part.TEMPORARY}"):
            path.unlink(missing_ok=True)


def _told_format(options: Sequence[str]) -> str | None:
    for option, value in zip(options, [*options[1:], ""]):
        if option == "--format":
            return value
        if option.startswith("--format="):
            return option.partition("=")[2]
    return None


def _begins_as_text(file: BinaryIO) -> bool:
    """_begins_as_text returns whether a file may be split. If a compressed or UTF-16 file were split, ostrel-check
    would report it once per block instead of once."""
    front = file.read(4)
    file.seek(0)
    return front.startswith(b"\xef\xbb\xbf") or all(32 <= byte < 127 or byte in b"\t\r\n" for byte in front)


def _blocks(file: BinaryIO, size: int, block: int) -> Iterator[tuple[int, int, int]]:
    """_blocks splits a file at the ends of lines, and yields the beginning, end and first line of each block."""
    begin, line = 0, 1
    while begin < size:
        end, lines, last = begin, 0, b""
        while end < size and (end - begin < block or not last.endswith(b"\n")):
            wanted = min(block - (end - begin), _PIECE)
            last = file.read(wanted) if wanted > 0 else file.readline(_PIECE)
            if not last:
                break  # the file has shrunk, which the worker that judges it will report
            end += len(last)
            lines += last.count(b"\n")
        yield begin, end, line
        if end == begin:
            break
        begin, line = end, line + lines


def _parts_of(number: int, file: str, manifest: Manifest) -> Iterator[Part]:
    told = _told_format(manifest.options)
    by_name = None if told else next((name for ending, name in FORMATS.items() if file.endswith(ending)), None)
    whole = Part(f"{number:06}.0001", file, None, by_name)
    try:
        status = os.stat(file)
        whole = dataclasses.replace(whole, state=(status.st_size, status.st_mtime_ns))
        if manifest.map is None and (told or by_name) in LINES and status.st_size > manifest.block:
            with open(file, "rb") as opened:
                if _begins_as_text(opened):
                    for index, (begin, end, line) in enumerate(_blocks(opened, status.st_size, manifest.block), 1):
                        yield dataclasses.replace(whole, name=f"{number:06}.{index:04}", begin=begin, end=end,
                                                  line=line)
                    return
    except OSError:
        pass  # the worker that judges the file will report the error
    yield whole


def make_plan(manifest: Manifest) -> list[Part]:
    """make_plan returns the parts in the order of the files and their lines, in which the parts' names sort too."""
    return [part for number, file in enumerate(manifest.files, 1) for part in _parts_of(number, file, manifest)]


def sweep(job: Job, parts: Sequence[Part]) -> tuple[list[Part], list[str]]:
    """sweep removes results that are incomplete, or that belong to files that have since changed. It returns the parts
    that remain to be judged, and notes that explain why earlier results were discarded."""
    folder = pathlib.Path(job.folder)
    remove_temporary(folder)
    (folder / SUMMARY).unlink(missing_ok=True)
    marks = {path.stem: ostrel_part.read_mark(path) for path in (folder / "done").glob("*.json")}
    left, notes = [], []
    for part in parts:
        mark = marks.pop(part.name, None)
        if mark is not None and ostrel_part.is_finished(job, part):
            continue
        left.append(part)
        if mark is not None and not mark.get("problem"):
            changed = mark and mark["part"] != part
            notes.append(f"{part.file} has changed since it was judged" if changed else
                         f"{ostrel_part.results_of(job, part)} is incomplete")
    keep = {part.name for part in parts} - {part.name for part in left}
    for name in FOLDERS:
        for path in (folder / name).iterdir():
            if path.name.rpartition(".")[0] not in keep:
                path.unlink(missing_ok=True)
    return left, [f"{note}; it will be judged again" for note in dict.fromkeys(notes)]
