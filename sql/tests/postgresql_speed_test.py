#!/usr/bin/python3
"""Compares the processor time of a scan that calls a check with that of scans that use PostgreSQL's length(), a regular
expression or a cast instead.

usage: postgresql_speed_test.py [ROWS]
"""

import sys
import unittest

import server
import shared

ROWS = int(sys.argv.pop()) if len(sys.argv) > 1 and sys.argv[-1].isdigit() else 200000
MOST = 1.3
ROUNDS = 5

OCTET = "(25[0-5]|2[0-4][0-9]|1?[0-9]{1,2})"
ADDRESS = "^%s$" % r"\.".join([OCTET] * 4)
STATION = "^([0-9A-Fa-f]{2}:){5}[0-9A-Fa-f]{2}$"

# Each case contains a check, an expression that generates values, and the alternatives to the check.
CASES = (
    ("TcmValidateIPAddress", "concat_ws('.', i % 256, i * 7 % 256, i * 31 % 256, i / 256 % 256)",
     {"~": "v ~ '%s'" % ADDRESS, "inet": "v::inet"}),
    ("TcmValidateMACaddress", "regexp_replace(lpad(to_hex(i * 2654435761), 12, '0'), '(..)(?!$)', '\\1:', 'g')",
     {"~": "v ~ '%s'" % STATION, "macaddr": "v::macaddr"}),
    ("TcmValidateDomainName", "'host-' || i || '.example.net'",
     {"~": "v ~ '^[A-Za-z0-9-]{1,20}([.][A-Za-z0-9-]{1,20}){0,5}$' AND v !~ '^[0-9.]*$'"}),
)


class Speed(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.tree = server.Tree(shared.SOURCE, shared.BUILD)
        cls.addClassCleanup(cls.tree.remove)
        cls.server = server.Server(cls.tree, configuration="shared_buffers = 512MB\njit = off\n")
        cls.addClassCleanup(cls.server.stop)
        cls.server.run("CREATE EXTENSION ostrel; ALTER DATABASE postgres SET search_path = public, ostrel;")

    def processor_times(self, expressions):
        """processor_times returns the shortest time, in seconds, that a backend took to scan with each expression."""
        tell = "\\! cut -d ' ' -f 1 /proc/$PID/schedstat\n"
        script = ["SELECT pg_backend_pid() AS pid \\gset\n\\setenv PID :pid\n\\o /dev/null\n"]
        for _ in range(ROUNDS):
            script += [tell + "SELECT count(%s) FROM t;\n" % expression for expression in expressions]
        times = [int(line) / 1e9 for line in self.server.lines("".join(script) + tell)]
        spent = [after - before for before, after in zip(times, times[1:])]
        return [min(spent[i::len(expressions)]) for i in range(len(expressions))]

    def test_beside_others(self):
        print("%d rows, seconds of processor time" % ROWS)
        for check, values, others in CASES:
            with self.subTest(check=check):
                self.server.run("DROP TABLE IF EXISTS t; CREATE UNLOGGED TABLE t AS SELECT %s AS v FROM "
                                "generate_series(1, %d::bigint) AS i; VACUUM (FREEZE, ANALYZE) t;" % (values, ROWS))
                self.assertEqual("0\n", self.server.run("SELECT count(*) FROM t WHERE %s(v) <> 0" % check))
                expressions = {"length()": "length(v)", "its own": "%s(v)" % check,
                               "by name": "ostrel_code('%s', v)" % check, **others}
                times = dict(zip(expressions, self.processor_times(list(expressions.values()))))
                print("%-22s" % check, ", ".join("%s %.3f" % item for item in times.items()),
                      "; %.2f times length()" % (times["its own"] / times["length()"]))
                self.assertLessEqual(times["its own"] / times["length()"], MOST)
                for name in others:
                    self.assertLess(times["its own"], times[name], name)


if __name__ == "__main__":
    unittest.main()
