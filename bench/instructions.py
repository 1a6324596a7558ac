#!/usr/bin/python3
"""Writes the instructions per value of every contender: instructions.py PROGRAM OUT.json [FAMILY...]"""

import json
import sys

import callgrind

VALUES = 512


def main():
    program, out = sys.argv[1:3]
    counts = callgrind.count(program, VALUES, sys.argv[3:])
    with open(out, "w", encoding="utf-8") as file:
        json.dump({"/".join(name): total for name, (total, _) in counts.items()}, file)


if __name__ == "__main__":
    main()
