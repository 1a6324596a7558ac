#!/usr/bin/python3
"""Counts the instructions of contenders with callgrind, and writes them to a file.

usage: callgrind.py PROGRAM OUT.json [FAMILY...]
"""

import glob
import json
import os
import re
import subprocess
import sys
import tempfile

LIBRARY = "libostrel_check.so"
REQUEST = "desc: Trigger: Client Request: "


def _read(path):
    """_read returns the name of a dump, its number of instructions, and how many of them are inside the library."""
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
            skip = True  # the next line counts the instructions of the callee
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
    """count returns {(family, shape, contender): (all instructions per value, and those inside the library)}."""
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


if __name__ == "__main__":
    program, out, *families = sys.argv[1:]
    with open(out, "w", encoding="utf-8") as file:
        json.dump({"/".join(name): total for name, (total, _) in count(program, 512, families).items()}, file)
