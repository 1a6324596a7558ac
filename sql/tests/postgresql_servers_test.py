#!/usr/bin/python3
"""Tests where checks run if the partitions of a table are on three servers, and what happens when a server stops."""

import os
import pathlib
import signal
import subprocess
import sys
import time
import unittest

import server
import shared

NAMES = ("north", "east", "south")
ROWS = 3000

SHARD = """CREATE EXTENSION ostrel;
CREATE TABLE setting (site integer, host text, port text CHECK (ostrel.ostrel_require('PARAM_check_port', port)));
"""
COORDINATOR = """CREATE EXTENSION ostrel;
CREATE EXTENSION postgres_fdw;
CREATE TABLE setting (site integer, host text, port text) PARTITION BY HASH (site);
"""
PARTITION = """CREATE SERVER {name} FOREIGN DATA WRAPPER postgres_fdw
    OPTIONS (host '{folder}', dbname 'postgres', extensions 'ostrel', async_capable 'true');
CREATE USER MAPPING FOR CURRENT_USER SERVER {name} OPTIONS (user '{user}');
CREATE FOREIGN TABLE setting_{name} PARTITION OF setting FOR VALUES WITH (MODULUS 3, REMAINDER {remainder})
    SERVER {name} OPTIONS (table_name 'setting');
"""
COUNT = "SELECT ostrel.ostrel_code('TcmValidateIPAddress', host), count(*) FROM setting " \
        "WHERE ostrel.ostrel_code('TcmValidateIPAddress', host) <> 0 GROUP BY 1 ORDER BY 1;"

STARTED = """import pathlib, sys, time, types
import server
folder = pathlib.Path(sys.argv[1])
server.Server(types.SimpleNamespace(folder=folder, binaries=pathlib.Path(sys.argv[2])), "left")
print("started", flush=True)
time.sleep(600)
"""


class Servers(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.tree = server.Tree(shared.SOURCE, shared.BUILD)
        cls.addClassCleanup(cls.tree.remove)
        cls.shards = {}
        for name in NAMES:
            cls.shards[name] = server.Server(cls.tree, name)
            cls.addClassCleanup(cls.shards[name].stop)
            cls.shards[name].run(SHARD)
        cls.server = server.Server(cls.tree, "coordinator")
        cls.addClassCleanup(cls.server.stop)
        cls.server.run(COORDINATOR + "".join(
            PARTITION.format(name=name, folder=cls.shards[name].folder, user=server.USER, remainder=remainder)
            for remainder, name in enumerate(NAMES)))
        # Every fifth address has an octet above 255.
        cls.server.run("INSERT INTO setting SELECT i, concat('10.0.', i / 256, '.', CASE WHEN i %% 5 = 0 THEN 300 ELSE i "
                       "%% 256 END), i FROM generate_series(1, %d) AS i;" % ROWS)

    def test_1_the_check_runs_where_the_rows_are(self):
        plan = self.server.run("EXPLAIN (VERBOSE, COSTS OFF) " + COUNT)
        print(plan)
        self.assertEqual(3, plan.count("Remote SQL: SELECT host FROM public.setting WHERE "
                                       "((ostrel.ostrel_code('TcmValidateIPAddress'::text, VARIADIC ARRAY[host]) <> 0))"))
        self.assertNotIn("Filter:", plan)
        without = self.server.run("ALTER SERVER east OPTIONS (SET extensions ''); EXPLAIN (VERBOSE, COSTS OFF) " + COUNT
                                  + "ALTER SERVER east OPTIONS (SET extensions 'ostrel');")
        self.assertEqual(1, without.count("Filter: (ostrel.ostrel_code("))

    def test_2_rows_are_refused_on_the_server_that_they_are_for(self):
        for site in range(3):
            row = "INSERT INTO setting VALUES (%d, '10.0.0.1', '65536');" % site
            error = self.server.run(row, check=False).stderr.decode()
            self.assertIn("ERROR:  23514: PARAM_check_port refuses the value with code 601", error)
            self.assertIn("DETAIL:  is 65536; at most 65535 is allowed", error)

    def test_3_a_server_that_stops(self):
        whole = self.server.run(COUNT)
        self.assertEqual("-1|%d\n" % (ROWS // 5), whole)
        parts = [int(self.shards[name].run(COUNT).split("|")[1]) for name in NAMES]
        self.assertEqual(ROWS // 5, sum(parts))
        self.assertGreater(min(parts), 100)
        self.shards["east"].stop()
        error = self.server.run(COUNT, check=False).stderr.decode()
        print(error)
        self.assertIn('ERROR:  08001: could not connect to server "east"', error)
        self.assertEqual("-1|%d\n" % parts[0], self.server.run(COUNT.replace("FROM setting", "FROM setting_north")))
        self.shards["east"].start()
        self.assertEqual(whole, self.server.run(COUNT))

    def test_4_a_server_ends_with_its_parent(self):
        child = subprocess.Popen([sys.executable, "-B", "-c", STARTED, self.tree.folder, self.tree.binaries],
                                 stdout=subprocess.PIPE, text=True, cwd=pathlib.Path(__file__).parent)
        self.assertEqual("started\n", child.stdout.readline())
        postmaster = int((self.tree.folder / "left/data/postmaster.pid").read_text().split()[0])
        child.send_signal(signal.SIGKILL)
        child.wait()
        child.stdout.close()
        for _ in range(600):
            if not os.path.exists("/proc/%d" % postmaster):
                return
            time.sleep(0.1)
        self.fail("the server is still running")


if __name__ == "__main__":
    unittest.main()
