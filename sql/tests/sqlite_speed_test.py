#!/usr/bin/python3
"""Compares the processor time of a scan that calls a check with that of a scan that calls length() instead.

usage: sqlite_speed_test.py [ROWS]
"""

import random
import sys
import time
import unittest

import sqlite_test

ROWS = int(sys.argv.pop()) if len(sys.argv) > 1 and sys.argv[-1].isdigit() else 400000
MOST = 1.5
ROUNDS = 15


def address(source):
    return ".".join(str(source.randrange(256)) for _ in range(4))


VALUES = {
    "TcmValidateIPAddress": address,
    "TcmValidateMACaddress": lambda source: ":".join("%02x" % source.randrange(256) for _ in range(6)),
    "TcmValidateDomainName": lambda source: "host-%d.example.net" % source.randrange(1000000),
    "PARAM_check_port": lambda source: str(source.randrange(65536 + 5000)),
    "TcmValidateSSID": lambda source: "network %d" % source.randrange(1000000),
    "WLAN_check_preshared_key": lambda source: "%064x" % source.getrandbits(256),
}


class Speed(unittest.TestCase):
    def test_beside_length(self):
        print("%-26s %8s %8s %8s %6s %6s" % ("check", "length()", "by name", "its own", "ratio", "ratio"))
        for name, make in VALUES.items():
            with self.subTest(check=name):
                source = random.Random(name)
                database = sqlite_test.connect()
                database.execute("CREATE TABLE t(v TEXT)")
                database.executemany("INSERT INTO t VALUES (?)", ((make(source),) for _ in range(ROWS)))
                calls = ("length(v)", "ostrel_code('%s', v)" % name, "%s(v)" % name)
                best = [float("inf")] * len(calls)
                for _ in range(ROUNDS):
                    for i, call in enumerate(calls):
                        before = time.process_time()
                        database.execute("SELECT sum(%s) FROM t" % call).fetchall()
                        best[i] = min(best[i], time.process_time() - before)
                length, by_name, own = best
                print("%-26s %8.3f %8.3f %8.3f %6.2f %6.2f" % (name, *best, by_name / length, own / length))
                self.assertLessEqual(by_name / length, MOST)
                self.assertLessEqual(own / length, MOST)


if __name__ == "__main__":
    unittest.main()
