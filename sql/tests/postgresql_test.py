#!/usr/bin/python3
"""Tests the extension for PostgreSQL. The environment variable OSTREL_BUILD names the build folder."""

import json
import unittest

import rows
import server
import shared

TREE = None
SERVER = None


def setUpModule():
    global TREE, SERVER
    TREE = server.Tree(shared.SOURCE, shared.BUILD)
    unittest.addModuleCleanup(TREE.remove)
    SERVER = server.Server(TREE)
    unittest.addModuleCleanup(SERVER.stop)
    SERVER.run("CREATE EXTENSION ostrel; ALTER DATABASE postgres SET search_path = public, ostrel;")


VERDICTS = {check["name"]: check["answers"] == "code" for check in shared.CHECKS}


def literal(value):
    return "'%s'" % value.replace("'", "''")


def as_bytes(value):
    return value if isinstance(value, bytes) else str(value).encode()


def bytes_in_sql(value):
    """bytes_in_sql returns an SQL expression for a value. The server expands repeated pieces, to keep the SQL short."""
    if isinstance(value, rows.Text):
        return " || ".join("decode(repeat('%s', %d), 'hex')" % (part.hex(), times) for part, times in value.pieces)
    return "'\\x%s'::bytea" % as_bytes(value).hex()


def text_in_sql(value):
    if isinstance(value, rows.Text):
        return " || ".join("repeat(%s, %d)" % (literal(part.decode()), times) for part, times in value.pieces)
    return str(value)


def loaded(calls):
    """loaded returns SQL that creates a table of calls: number, check, values, and whether it returns a verdict."""
    lines = ["%d\t%s\t{%s}\t%s" % (i, name, ",".join('"\\\\\\\\x%s"' % as_bytes(value).hex() for value in values),
                                     VERDICTS[name]) for i, (name, values) in enumerate(calls)]
    return ("CREATE TEMPORARY TABLE calls(number integer, name text, given bytea[], is_verdict boolean);\n"
            "COPY calls FROM STDIN;\n%s\n\\.\n" % "\n".join(lines))


ANSWERS = """SELECT json_build_array(
  ostrel_code(name, VARIADIC given), encode(ostrel_line(name, VARIADIC given), 'hex'), ostrel_after(name, VARIADIC given), CASE WHEN is_verdict THEN ostrel_reason(name, VARIADIC given) END,
  CASE WHEN is_verdict THEN ostrel_valid(name, VARIADIC given) END) FROM %s;
"""


def answers(row):
    """answers returns the query for one row. OFFSET 0 prevents the values from being generated several times."""
    return ANSWERS % "(SELECT '%s' AS name, ARRAY[%s] AS given, %s AS is_verdict OFFSET 0) AS calls" % (
        row.check, ", ".join(map(bytes_in_sql, row.values)), VERDICTS[row.check])


class Vectors(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.rows, cls.left_out = rows.rows(shared.CHECKS, shared.NOT_CALLED)

    def test_as_bytes(self):
        printed = SERVER.lines("".join(map(answers, self.rows)))
        self.assertEqual(len(self.rows), len(printed))
        for row, line in zip(self.rows, printed):
            with self.subTest(place=row.place):
                code, out, after, reason, is_valid = json.loads(line)
                self.assertEqual((row.code, row.out), (code, bytes.fromhex(out or "")))
                self.assertIn(after, row.after)
                if row.is_verdict:
                    self.assertEqual((code == 0, code != 0), (is_valid, reason is not None))
                if row.reason is not None:
                    self.assertEqual(rows.told(row.reason), rows.told(reason))
        print("%d rows as bytes; left out: %s" % (
            len(self.rows), ", ".join("%d (%s)" % (count, why) for why, count in self.left_out.items())))
        self.assertGreater(len(self.rows), 5000)
        self.assertEqual({rows.NULL, rows.NOT_CALLED}, set(self.left_out))

    def test_as_texts(self):
        """Each row in valid UTF-8 is judged by ostrel_code and by the check's own SQL function."""
        names = {"Param_check_bool_value": "param_check_bool_value_branding",
                 "Param_check_string_len": "param_check_string_len_signed"}
        queries, expected = [], []
        for row in self.rows:
            try:
                values = list(map(text_in_sql, row.values))
            except UnicodeDecodeError:
                continue
            array = ", ".join("CAST(%s AS text)" % value for value in values)
            queries.append("SELECT ostrel_code('%s', %s), %s(%s);" % (
                row.check, array, names.get(row.check, row.check), ", ".join(values)))
            expected.append("%d|%d" % (row.code, row.code))
        self.assertEqual(expected, SERVER.lines("\n".join(queries)))
        print("%d rows as texts" % len(queries))


class Hostile(unittest.TestCase):
    def test_calls(self):
        calls = list(shared.hostile_calls(100000, 21))
        before = SERVER.run("SELECT pg_postmaster_start_time()")
        answers = [json.loads(line) for line in SERVER.lines(loaded(calls) + ANSWERS % "calls ORDER BY number")]
        self.assertEqual(len(calls), len(answers))
        self.assertGreater(sum(code != 0 for code, *_ in answers), 10000)
        self.assertGreater(sum(code == 0 for code, *_ in answers), 10000)
        self.assertEqual(before, SERVER.run("SELECT pg_postmaster_start_time()"))
        log = SERVER.log.read_text(errors="replace")
        self.assertNotIn("terminated by", log)
        self.assertNotIn("Error in ", log)
        self.assertNotIn("Info in ", log)

    def test_texts(self):
        """Each call is a separate statement, with its values as literals."""
        queries = []
        for name, values in shared.hostile_calls(3000, 22):
            texts = [value.decode("utf-8", "ignore") if isinstance(value, bytes) else str(value) for value in values]
            queries.append("SELECT ostrel_line('%s', %s) IS NULL;" % (name, ", ".join(map(literal, texts))))
        answers = SERVER.lines("\n".join(queries))
        self.assertEqual(3000, len(answers))
        self.assertEqual({"t", "f"}, set(answers))


class Encodings(unittest.TestCase):
    def database(self, encoding):
        name = encoding.lower()
        SERVER.run("CREATE DATABASE %s TEMPLATE template0 ENCODING '%s' LOCALE 'C';" % (name, encoding))
        SERVER.run("CREATE EXTENSION ostrel; ALTER DATABASE %s SET search_path = public, ostrel;" % name, name)
        return name

    def test_latin1(self):
        name = self.database("LATIN1")
        utf8 = "SET client_encoding = 'UTF8'; "
        self.assertEqual("1|0|2\n", SERVER.run(
            utf8 + "SELECT octet_length('\u00e9'), ostrel_code('Param_check_string_len', '\u00e9', '2', '2'),"
                   " octet_length(convert_to('\u00e9', 'UTF8'));", name))
        self.assertEqual("Error in PARAM_check_bool_value: The value \u00e9 out of range[0,1]",
                         SERVER.run(utf8 + "SELECT ostrel_line('PARAM_check_bool_value', '\u00e9');", name)
                         .rstrip("\n"))

    def test_others(self):
        """A reason can contain characters that the database's encoding lacks."""
        for encoding in ("LATIN2", "SQL_ASCII", "EUC_JP"):
            with self.subTest(encoding=encoding):
                name = self.database(encoding)
                reason = SERVER.run("SELECT ostrel_reason('TcmValidateRate', '\\xe9'::bytea);", name)
                self.assertEqual("\\xE9", json.loads(reason)["found"])
                line = SERVER.run("SELECT ostrel_line('PARAM_check_bool_value', '\\xe9'::bytea);", name)
                self.assertIn("20e920", line)


class Refusals(unittest.TestCase):
    def test_nothing_secret_in_the_log(self):
        done = SERVER.run("SET log_min_error_statement = panic; CREATE TABLE secrets(key ostrel.pass_phrase);"
                          "INSERT INTO secrets VALUES ('sesame');", check=False)
        error = done.stderr.decode()
        self.assertIn("23514", error)
        self.assertIn("DETAIL:  value has 6 bytes\n", error)
        self.assertNotIn("sesame", error)
        self.assertNotIn("sesame", SERVER.log.read_text(errors="replace"))
        self.assertIn("value has 6 bytes", SERVER.log.read_text(errors="replace"))

    def test_nothing_secret_in_any_detail(self):
        """No check reveals a secret when it refuses it."""
        secret = "\u00e9se\x01same"
        told = 0
        for check in shared.CHECKS:
            if not any(argument.get("secret") for argument in check["arguments"]):
                continue
            values = []
            for argument in check["arguments"]:
                other = "1" if shared.is_number(argument) else "WPA"
                values += [secret if argument.get("secret") else other] * argument.get("blocks", 1)
            done = SERVER.run("SELECT ostrel_require('%s', %s);" % (check["name"], ", ".join(map(literal, values))),
                              check=False)
            error = done.stderr.decode()
            self.assertNotIn("same", error)
            self.assertNotIn("\\x01", error)
            told += "DETAIL" in error
        self.assertGreaterEqual(told, 15)

    def test_sqlstates(self):
        for state, sql in (
                ("42883", "ostrel_code('nope', 'x')"), ("42883", "ostrel_code('PARAM_check_number', '1')"),
                ("42883", "ostrel_valid('PARAM_check_port', '1', '2')"), ("42883", "ostrel_code('PARAM_check_port')"),
                ("42883", "ostrel_code('PARAM_check_port', VARIADIC '{}'::text[])"),
                ("0A000", "ostrel_code('PARAM_check_ui2_value', '1')"), ("0A000", "param_check_ui4_value('1')"),
                ("0A000", "ostrel_code('WLAN_check_channel', '1', 'RADIO_2.4GHz')"),
                ("0A000", "wlan_check_channel('1', 'RADIO_2.4GHz')"), ("0A000", "ostrel_valid('countChar', 'a', '97')"),
                ("22021", "ostrel_code('PARAM_check_port', '\\x3800'::bytea)"),
                ("22P02", "ostrel_code('PARAM_check_number', '1', '', '2')"),
                ("22P02", "param_check_string_len('', -1, 1)"),
                ("22023", "ostrel_code('WLAN_check_wepkeys', '', repeat('1', 257), '', '')"),
                ("23514", "ostrel_require('PARAM_check_port', '65536')"),
                ("23514", "'1.2.3'::ostrel.ipv4_address")):
            with self.subTest(sql):
                done = SERVER.run("SELECT %s;" % sql, check=False)
                self.assertIn("ERROR:  %s: " % state, done.stderr.decode())

    def test_null(self):
        for sql in ("ostrel_code('PARAM_check_port', NULL)", "ostrel_valid('isInSameSubnet', '1.2.3.4', NULL)",
                    "ostrel_reason('PARAM_check_port', NULL::text)", "ostrel_line('PARAM_check_port', NULL::bytea)",
                    "ostrel_after('WLAN_check_ssid', NULL)", "param_check_port(NULL)", "ostrel_code(NULL, 'x')",
                    "ostrel_require('PARAM_check_port', NULL)", "NULL::ostrel.ssid",
                    "ostrel_code('PARAM_check_port', VARIADIC NULL::text[])"):
            with self.subTest(sql):
                self.assertEqual("t\n", SERVER.run("SELECT (%s) IS NULL;" % sql))


if __name__ == "__main__":
    unittest.main()
