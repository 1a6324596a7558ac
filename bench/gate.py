#!/usr/bin/python3
"""Fails if one of the hottest rules executes more instructions than before.

usage: gate.py PROGRAM BASELINE [--accept]

Only instructions inside the library are counted, so that the numbers do not depend on the C library. The values are
generated from a fixed seed, and callgrind's counts are exact.
"""

import sys

import callgrind

VALUES = 256
TOLERANCE = 1.10
HEADER = """# Instructions per valid value inside the library, as g++ 12 -O2 for x86-64 makes it, for the gate in the tests.
# Made by: bench/gate.py build/gcc/bin/ostrel-bench-rules bench/baseline.txt --accept
"""
FAMILIES = ("ipv4", "mac", "host", "url", "email", "account", "date_time", "printable", "password", "number",
            "own_set_16", "rates")


def main():
    program, baseline = sys.argv[1:3]
    counts = callgrind.count(program, VALUES, FAMILIES)
    now = {family: counts[family, "valid", "ours"][1] for family in FAMILIES}
    if "--accept" in sys.argv[3:]:
        with open(baseline, "w", encoding="utf-8") as file:
            file.write(HEADER)
            file.writelines(f"{family} {now[family]:.1f}\n" for family in FAMILIES)
        return 0

    with open(baseline, encoding="utf-8") as file:
        rows = [line.split() for line in file if not line.startswith("#")]
    before = {family: float(number) for family, number in rows}
    worse = 0
    for family in FAMILIES:
        change = now[family] / before[family]
        mark = ""
        if change > TOLERANCE:
            worse += 1
            mark = "  MORE THAN 10 % ABOVE THE BASELINE"
        elif change < 2 - TOLERANCE:
            mark = "  well below: accept it to keep the gain"
        print(f"{family:12} {before[family]:8.1f} -> {now[family]:8.1f}  {100 * (change - 1):+6.1f} %{mark}")
    if worse:
        print(f"\n{worse} rules execute more than before. If that is intended, accept it and say why in the commit:\n"
              f"    bench/gate.py {program} {baseline} --accept")
    return 1 if worse else 0


if __name__ == "__main__":
    sys.exit(main())
