"""Runs the program that lets callgrind count, and reads what it counted."""

import glob
import os
import re
import subprocess
import tempfile

LIBRARY = "libostrel_check.so"
REQUEST = "desc: Trigger: Client Request: "


def _read(path):
    """Gives the dump's name, its instructions and those of them that the library itself executed."""
    name = None
    total = 0
    inside = 0
    in_library = False
    skip = False
    for line in open(path, encoding="utf-8", errors="replace"):
        if line.startswith(REQUEST):
            name = line.removeprefix(REQUEST).strip()
        elif line.startswith("ob="):
            in_library = LIBRARY in line
        elif line.startswith("calls="):
            skip = True  # the next line has what the callee executed
        elif re.match(r"[0-9+*-]", line):
            if skip:
                skip = False
                continue
            fields = line.split()
            cost = int(fields[1]) if len(fields) > 1 else 0
            total += cost
            if in_library:
                inside += cost
    return name, total, inside


def count(program, values, families=()):
    """Gives {(family, shape, contender): (instructions per value, of these inside the library)}."""
    with tempfile.TemporaryDirectory() as folder:
        subprocess.run(
            ["valgrind", "-q", "--tool=callgrind", "--collect-atstart=no", "--compress-strings=no",
             "--compress-pos=no", f"--callgrind-out-file={folder}/out", program, str(values), *families],
            check=True, stdout=subprocess.DEVNULL)
        counts = {}
        for path in glob.glob(os.path.join(folder, "out.*")):
            name, total, inside = _read(path)
            if name is None:
                continue
            family, shape, contender, _ = name.split("/")
            counts[family, shape, contender] = (total / values, inside / values)
        return counts
