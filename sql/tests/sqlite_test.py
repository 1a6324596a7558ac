#!/usr/bin/python3
"""Tests the extension for SQLite. The environment variable OSTREL_BUILD names the build folder."""

import json
import re
import sqlite3
import subprocess
import sys
import threading
import unittest

import rows
import shared

EXTENSION = str(shared.BUILD / "sqlite/ostrel")
# The functions that the library's sources may import; none of them writes to a stream or runs a command.
ALLOWED = {"__assert_fail", "__isoc99_fscanf", "atoi", "fclose", "fopen", "memcpy", "memset", "stderr", "strchr",
           "strcmp", "strlen", "strncmp", "strrchr", "strstr", "unlink", "_GLOBAL_OFFSET_TABLE_"}


def connect(name=":memory:"):
    database = sqlite3.connect(name, check_same_thread=False)
    database.enable_load_extension(True)
    database.load_extension(EXTENSION)
    return database


def ask(database, sql, *values):
    return database.execute(sql, values).fetchone()


class Vectors(unittest.TestCase):
    def judge(self, database, row, values):
        marks = ", ".join("?" * (len(values) + 1))
        texts = ["line", "after"] + (["reason", "valid"] if row.is_verdict else [])
        given = (row.check, *values)
        sql = "SELECT ostrel_code(%s), %s" % (marks, ", ".join("ostrel_%s(%s)" % (text, marks) for text in texts))
        # The line is read as a blob, because the output of a check might not be UTF-8.
        sql = sql.replace("ostrel_line(%s)" % marks, "CAST(ostrel_line(%s) AS BLOB)" % marks)
        code, line, after, *verdict = ask(database, sql, *given * (len(texts) + 1))
        self.assertEqual((row.code, row.out), (code, line or b""))
        self.assertIn(json.loads(after), row.after)
        if row.is_verdict:
            self.assertEqual(int(code == 0), verdict[1])
            self.assertEqual(code != 0, verdict[0] is not None)
        if row.reason is not None:
            self.assertEqual(rows.told(row.reason), rows.told(json.loads(verdict[0])))

    def test_all(self):
        database = connect()
        found, left_out = rows.rows(shared.CHECKS, shared.NOT_CALLED)
        texts = 0
        for row in found:
            with self.subTest(place=row.place):
                self.judge(database, row, row.values)
                try:
                    decoded = [value.decode() if isinstance(value, bytes) else value for value in row.values]
                except UnicodeDecodeError:
                    continue
                self.judge(database, row, decoded)
                texts += 1
        print("%d rows as blobs, %d of them as texts too; left out: %s" % (
            len(found), texts, ", ".join("%d (%s)" % (count, why) for why, count in left_out.items())))
        self.assertGreater(len(found), 5000)
        self.assertEqual({rows.NULL, rows.NOT_CALLED}, set(left_out))
        document = " ".join((shared.SOURCE / "docs/sql.md").read_text(encoding="utf-8").split())
        self.assertIn("except %d rows of the three checks that cannot be called and %d rows with a NULL" % (
            left_out[rows.NOT_CALLED], left_out[rows.NULL]), document)


class Functions(unittest.TestCase):
    def setUp(self):
        self.database = connect()

    def tearDown(self):
        self.database.close()

    def refuses(self, message, sql, *values):
        with self.assertRaises(sqlite3.OperationalError) as raised:
            self.database.execute(sql, values).fetchall()
        self.assertEqual(message, str(raised.exception))

    def test_a_function_for_each_check(self):
        names = {name for name, in self.database.execute("SELECT name FROM pragma_function_list")}
        expected = {check["name"].lower() for check in shared.CHECKS} | {
            "param_check_bool_value_branding", "param_check_string_len_signed",
            "ostrel_code", "ostrel_valid", "ostrel_reason", "ostrel_line", "ostrel_after"}
        self.assertLessEqual(expected, names)
        self.assertEqual((0, 601), ask(self.database, "SELECT PARAM_check_port(80), param_check_port('65536')"))
        # -1 is a valid signed limit, but not a valid unsigned one.
        self.assertEqual((0,), ask(self.database, "SELECT param_check_string_len_signed('', -1, 1)"))
        self.refuses("PARAM_check_string_len: min_len must be an integer from 0 to 4294967295",
                     "SELECT param_check_string_len('', -1, 1)")

    def test_null(self):
        for sql in ("ostrel_code('PARAM_check_port', NULL)", "ostrel_valid('isInSameSubnet', '1.2.3.4', NULL)",
                    "ostrel_reason('PARAM_check_port', NULL)", "ostrel_line('PARAM_check_port', NULL)",
                    "ostrel_after('WLAN_check_ssid', NULL)", "PARAM_check_port(NULL)", "ostrel_code(NULL, 'x')"):
            with self.subTest(sql):
                self.assertEqual((None,), ask(self.database, "SELECT " + sql))

    def test_errors(self):
        self.refuses('there is no check "PARAM_check_prot"', "SELECT ostrel_code('PARAM_check_prot', 1)")
        self.refuses('there is no check "PARAM_check"', "SELECT ostrel_code('PARAM_check', 1)")
        self.refuses('there is no check "param_check_port"', "SELECT ostrel_code('param_check_port', 1)")
        self.refuses("there is no check of that name", "SELECT ostrel_code('\"%s\n', 1)")
        self.refuses("there is no check of that name", "SELECT ostrel_code(?, 1)", "PARAM_check_port\0")
        self.refuses("there is no check of that name", "SELECT ostrel_code(?, 1)",
                     "PARAM_check_port\0" + 100_000_000 * "x")
        self.refuses("the first argument must be the name of a check", "SELECT ostrel_valid()")
        self.refuses("PARAM_check_number takes 3 values (value_p, min_len, max_len); 1 was given",
                     "SELECT ostrel_code('PARAM_check_number', 1)")
        self.refuses("PARAM_check_port takes 1 value (value_p); 2 were given",
                     "SELECT ostrel_code('PARAM_check_port', 1, NULL)")
        self.refuses("WLAN_check_wepkeys takes 4 values (keys); 1 was given",
                     "SELECT ostrel_code('WLAN_check_wepkeys', '')")
        self.refuses("wrong number of arguments to function param_check_port()", "SELECT param_check_port()")
        nul = "PARAM_check_port: value_p contains a NUL byte"
        self.refuses(nul, "SELECT ostrel_code('PARAM_check_port', ?)", "80\0")
        self.refuses(nul, "SELECT ostrel_line('PARAM_check_port', x'383000')")
        self.refuses("WLAN_check_wepkeys: string 2 of keys has more than 256 bytes",
                     "SELECT ostrel_code('WLAN_check_wepkeys', '', ?, '', '')", "1" * 257)
        self.refuses("countChar returns a number, not a result code; use ostrel_code",
                     "SELECT ostrel_valid('countChar', 'a', 97)")

    def test_checks_that_are_not_called(self):
        for name in shared.NEVER_RETURN:
            message = name + " cannot be called from SQL because it does not return for some values"
            self.refuses(message, "SELECT ostrel_code(?, '1')", name)
            self.refuses(message, "SELECT %s('1')" % name)
        for name in shared.RUNS_SHELL:
            message = name + " cannot be called from SQL because it runs a shell"
            self.refuses(message, "SELECT ostrel_reason(?, '1', 'RADIO_2.4GHz')", name)
            self.refuses(message, "SELECT %s('1', 'RADIO_2.4GHz')" % name)

    def test_integers(self):
        length = "SELECT ostrel_code('Param_check_string_len', 'text', ?, 2147483647)"
        for least, code in ((-2147483648, 0), (2147483647, 801), ("+4", 0), ("+5", 801), ("-0", 0), (b"5", 801)):
            self.assertEqual((code,), ask(self.database, length, least))
        for wrong in (-2147483649, 2147483648, "", " 1", "1 ", "+", "-", "1.0", 1.0, "0x1", "1e1", "9" * 30, b"\xb2"):
            with self.subTest(wrong=wrong):
                self.refuses("Param_check_string_len: min_len must be an integer from -2147483648 to 2147483647",
                             "SELECT ostrel_code('Param_check_string_len', '', ?, 1)", wrong)

    def test_what_a_value_is(self):
        ssid = "SELECT ostrel_code('Param_check_string_len', ?, 2, 2)"
        self.assertEqual((0,), ask(self.database, ssid, "\u00e9"))
        self.assertEqual((801,), ask(self.database, ssid, b"\xe9"))
        self.assertEqual((0,), ask(self.database, ssid, 42))
        self.assertEqual((801,), ask(self.database, ssid, b""))
        wide = connect()
        wide.execute("PRAGMA encoding = 'UTF-16le'")
        wide.execute("CREATE TABLE t(v)")
        wide.executemany("INSERT INTO t VALUES (?)", (("\u00e9",), (b"\xc3\xa9",)))
        self.assertEqual([(0,), (0,)],
                         wide.execute("SELECT ostrel_code('Param_check_string_len', v, 2, 2) FROM t").fetchall())

    def test_the_name_may_come_from_a_column(self):
        names = [check["name"] for check in shared.CHECKS if check["name"] not in shared.NOT_CALLED
                 and len(check["arguments"]) == 1 and "blocks" not in check["arguments"][0]]
        self.database.execute("CREATE TABLE t(name)")
        self.database.executemany("INSERT INTO t VALUES (?)", ((name,) for name in names))
        by_column = self.database.execute("SELECT name, ostrel_code(name, 'TCP') FROM t").fetchall()
        self.assertEqual([(name, *ask(self.database, "SELECT ostrel_code('%s', 'TCP')" % name)) for name in names],
                         by_column)

    def test_where_sqlite_lets_only_trusted_functions_in(self):
        self.database.execute("PRAGMA trusted_schema = OFF")
        self.database.execute("""CREATE TABLE settings(
            port CHECK (ostrel_valid('PARAM_check_port', port)),
            address TEXT CHECK (TcmValidateIPAddress(address) = 0),
            code GENERATED ALWAYS AS (ostrel_code('PARAM_check_port', port)))""")
        self.database.execute("CREATE INDEX by_code ON settings(PARAM_check_port(port))")
        self.database.execute("CREATE VIEW why AS SELECT ostrel_reason('PARAM_check_port', port) FROM settings")
        self.database.execute("INSERT INTO settings VALUES (80, '192.168.1.1')")
        for port, address in ((65536, "192.168.1.1"), ("80", "192.168.1.256"), ("-1", "")):
            with self.assertRaisesRegex(sqlite3.IntegrityError, "CHECK constraint failed"):
                self.database.execute("INSERT INTO settings VALUES (?, ?)", (port, address))
        with self.assertRaisesRegex(sqlite3.IntegrityError, "CHECK constraint failed"):
            self.database.execute("UPDATE settings SET port = 70000")
        self.database.execute("INSERT INTO settings VALUES (NULL, NULL)")
        self.assertEqual([(80, "192.168.1.1", 0), (None, None, None)],
                         self.database.execute("SELECT * FROM settings").fetchall())
        self.assertEqual([(None,), (None,)], self.database.execute("SELECT * FROM why").fetchall())

    def test_reason(self):
        reason, = ask(self.database, "SELECT ostrel_reason('TcmValidateIPAddress', '192.168.1.256')")
        self.assertEqual({"id": "number_too_high", "argument": "value", "part": "octet 4", "offset": 10, "found": 256,
                          "allowed": 255, "text": "octet 4 is 256; at most 255 is allowed"}, json.loads(reason))
        self.assertEqual(("octet 4",), ask(self.database, "SELECT json_extract(?, '$.part')", reason))
        secret, = ask(self.database, "SELECT ostrel_reason('TcmValidatePSK', 'sesame')")
        self.assertNotIn("sesame", secret)

    def test_threads(self):
        codes = []

        def scan():
            database = connect()
            database.execute("CREATE TABLE t AS WITH n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < 20000) "
                             "SELECT i * 7 AS port FROM n")
            codes.append(ask(database, "SELECT sum(PARAM_check_port(port)), "
                                       "sum(length(ostrel_line('PARAM_check_port', port))), "
                                       "count(ostrel_reason('PARAM_check_port', port)) FROM t"))

        threads = [threading.Thread(target=scan) for _ in range(4)]
        for thread in threads:
            thread.start()
        for thread in threads:
            thread.join()
        refused = 20001 - (65535 // 7 + 1)
        line = len("Error in PARAM_check_port: The port shoud be between 0~65535\n")
        self.assertEqual([(601 * refused, line * refused, refused)] * 4, codes)


class Process(unittest.TestCase):
    def test_nothing_is_printed_and_nothing_ends_it(self):
        child = subprocess.run([sys.executable, __file__, "--hostile"], check=False, stdin=subprocess.DEVNULL,
                               stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
        self.assertEqual((0, "", "answered\n"), (child.returncode, child.stdout, child.stderr))

    def test_what_the_file_needs(self):
        run = lambda *command: subprocess.run(command, check=True, stdout=subprocess.PIPE, text=True).stdout
        needed = re.findall(r"NEEDED.*\[(.*)\]", run("readelf", "-d", EXTENSION + ".so"))
        self.assertLessEqual({"libc.so.6"}, set(needed))
        self.assertFalse([name for name in needed if not re.match(r"lib[cm]\.so|ld-", name)])
        exported = run("nm", "-D", "--defined-only", EXTENSION + ".so").split()
        self.assertEqual("sqlite3_ostrel_init", " ".join(exported[2:]))
        archive = str(shared.BUILD / "sql/libostrel_sql_rules.a")
        defined = {line.split()[-1] for line in run("nm", "--defined-only", archive).splitlines() if " " in line}
        used = {line.split()[-1] for line in run("nm", "-u", archive).splitlines() if " " in line} - defined
        self.assertEqual(set(), {name for name in used if not name.startswith("ostrel_host_")} - ALLOWED)


def hostile():
    database = connect()
    verdicts = {check["name"]: check["answers"] == "code" for check in shared.CHECKS}
    for name, values in shared.hostile_calls(30000, 20):
        marks = ", ".join("?" * (len(values) + 1))
        questions = ["code", "line", "after"] + (["valid", "reason"] if verdicts[name] else [])
        sql = "SELECT " + ", ".join(("CAST(ostrel_%s(%s) AS BLOB)" % (question, marks)) for question in questions)
        ask(database, sql, *(name, *values) * len(questions))
    print("answered", file=sys.stderr)


if __name__ == "__main__":
    if "--hostile" in sys.argv:
        hostile()
    else:
        unittest.main()
