"""Helpers for the tests of both extensions."""

import json
import os
import pathlib
import random
import subprocess

BUILD = pathlib.Path(os.environ["OSTREL_BUILD"])
SOURCE = pathlib.Path(__file__).resolve().parents[2]

NEVER_RETURN = ("PARAM_check_ui2_value", "PARAM_check_ui4_value")
RUNS_SHELL = ("WLAN_check_channel",)
NOT_CALLED = NEVER_RETURN + RUNS_SHELL

LISTED = subprocess.run([BUILD / "bin/ostrel-check", "list", "--json"], check=True, stdout=subprocess.PIPE).stdout
CHECKS = json.loads(LISTED)["checks"]

PIECES = (b"", b"0", b"-1", b"192.168.1.1", b"00:1a:2B:3c:4D:5e", b"%s%n%s%n", b"%1000000d", b"'; DROP TABLE t; --",
          b"\xff", b"\xc3\xa9", b"\xed\xa0\x80", b"\xf4\x90\x80\x80", b"&amp;", b"&#0;", b"&#99999999999;", b",", b".",
          b":", b"/", b"@", b" ", b"\n", b"\x01\x7f", b"99999999999999999999", b"TCP", b"http://", b"UTC", b"None",
          bytes(range(1, 256)), b"a" * 300, b"1," * 200, b"." * 70)


def is_number(argument):
    return argument["kind"] in ("integer", "unsigned")


def hostile_value(source):
    """hostile_value returns a value without NUL bytes, which may be long, composed of pieces that checks search for."""
    if source.random() < 0.0005:
        return source.choice(PIECES[1:]) * (20000 // source.randrange(1, 20))
    return b"".join(source.choice(PIECES) for _ in range(source.randrange(5)))


def hostile_calls(count, seed):
    """hostile_calls yields calls of the checks that SQL can call, each as a name and a list of values."""
    source = random.Random(seed)
    callable_checks = [check for check in CHECKS if check["name"] not in NOT_CALLED]
    for _ in range(count):
        check = source.choice(callable_checks)
        values = []
        for argument in check["arguments"]:
            if argument["output_only"]:
                continue
            if is_number(argument):
                low = 0 if argument["kind"] == "unsigned" else -(1 << 31)
                values.append(source.choice((low, 0, 1, 2, 12, 64, (1 << 31) - 1)))
                continue
            for _ in range(argument.get("blocks", 1)):
                # A string in a block must end before the next block begins.
                values.append(hostile_value(source)[:argument["block_size"] - 1 if "blocks" in argument else None])
        yield check["name"], values
