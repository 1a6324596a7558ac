"""Tests the results of a session and the calls that it rejects."""

import copy
import dataclasses
import pickle
import re
import unittest

import support

import ostrel

SSID = "Straße"


class Judged(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.session = ostrel.Session()
        cls.addClassCleanup(cls.session.close)

    def test_an_accepted_value(self):
        verdict = self.session.judge("PARAM_check_port", "65535")
        self.assertEqual(ostrel.Verdict("accepted", 0, None, (), "", {}, "valid"), verdict)
        self.assertTrue(verdict)
        self.assertEqual("<Verdict accepted>", repr(verdict))

    def test_a_refused_value(self):
        verdict = self.session.judge("PARAM_check_port", "65536")
        reason = ostrel.Reason(id="number_too_high", argument="value_p", offset=0, found=65536, allowed=65535,
                               text="is 65536; at most 65535 is allowed")
        line = "Error in PARAM_check_port: The port shoud be between 0~65535\n"
        self.assertEqual(ostrel.Verdict("refused", 601, reason, (line,), "", {}, "out of range"), verdict)
        self.assertFalse(verdict)
        self.assertEqual("<Verdict refused with 601, out of range: is 65536; at most 65535 is allowed>", repr(verdict))
        self.assertEqual("Reason(id='number_too_high', argument='value_p', offset=0, found=65536, allowed=65535, "
                         "text='is 65536; at most 65535 is allowed')", repr(verdict.reason))

    def test_a_number_is_neither_true_nor_false(self):
        verdict = self.session.judge("countChar", "banana", ord("a"))
        self.assertEqual(("answer", 3, "<Verdict answer 3>"), (verdict.verdict, verdict.code, repr(verdict)))
        with self.assertRaisesRegex(TypeError, "returned a number, 3"):
            bool(verdict)

    def test_a_failed_assertion_is_a_verdict(self):
        verdict = self.session.judge("PARAM_check_port", None)
        self.assertEqual(("ended", None, "null_asserted"), (verdict.verdict, verdict.code, verdict.reason.id))
        self.assertIn("Assertion `value_p != ((void *)0)' failed", verdict.err)
        self.assertFalse(verdict)

    def test_a_memory_fault_is_a_verdict(self):
        verdict = self.session.judge("TcmValidateIPAddress", None)
        self.assertEqual(("ended", "SIGSEGV ended the process"), (verdict.verdict, verdict.meaning))
        self.assertFalse(verdict)

    def test_an_endless_loop_is_a_verdict(self):
        with ostrel.Session(limit_time=0.05) as session:
            verdict = session.judge("PARAM_check_ui4_value", "1")
            self.assertEqual(("no_return", None), (verdict.verdict, verdict.code))
            self.assertFalse(verdict)
            self.assertTrue(session.judge("PARAM_check_ui4_value", ""))

    def test_what_is_written_is_told(self):
        self.assertEqual({"allowedList": "00:11:22:33:44:55,66:77:88:99:aa:bb"},
                         dict(self.session.judge("LAN_check_add_allowedMACAddress", "66:77:88:99:aa:bb",
                                                 "00:11:22:33:44:55").after))
        self.assertEqual({"account_type": None}, dict(self.session.judge("TcmValidatePPPUsername", "").after))
        keys = ["0123456789", "", "", ""]
        self.assertEqual(tuple(keys), self.session.judge("WLAN_check_wepkeys", keys).after["keys"])

    def test_lines_are_what_was_printed(self):
        lines = self.session.judge("LAN_check_interface_addr_type", "a\rb\n\x85c\u2028").lines
        self.assertEqual(("Error in LAN_check_interface_addr_type: Error ip interface addressing type:a\rb\n",
                          "\x85c\u2028\n", "\n"), lines)

    def test_str_is_utf_8_unless_said_otherwise(self):
        for encoding, size in (("utf-8", 7), ("latin-1", 6)):
            with ostrel.Session(encoding=encoding) as session:
                self.assertFalse(session.judge("PARAM_check_string_len", SSID, size + 1, size + 1))
                self.assertTrue(session.judge("PARAM_check_string_len", SSID, size, size))
                self.assertTrue(session.judge("PARAM_check_string_len", SSID.encode(encoding), size, size))
                self.assertTrue(session.judge("PARAM_check_string_len", bytearray(b"\xff\xfe\xfd"), 3, 3))

    def test_bytes_come_back_as_they_went(self):
        for encoding in ("utf-8", "latin-1"):
            with ostrel.Session(encoding=encoding) as session:
                for content in (b"\xff", b"\xc3\xa9", bytes(range(1, 256))):
                    lines = [session.judge("LAN_check_interface_addr_type", value).lines
                             for value in (content, content.decode(encoding, "surrogateescape"))]
                    self.assertEqual(lines[0], lines[1])
                    self.assertIn(b"type:" + content + b"\n",
                                  "".join(lines[0]).encode(encoding, "surrogateescape"))

    def test_checks_are_told_with_their_constraints(self):
        exported = re.findall(r"(?m)^    (?!ostrel_ctype)(\w+);$", (support.SOURCE / "abi/exports.map").read_text())
        self.assertEqual(set(exported), set(ostrel.checks))
        check = ostrel.checks["PARAM_check_port"]
        self.assertEqual(("code", (0, 601)), (check.answers, tuple(code.code for code in check.codes)))
        (argument,) = check.arguments
        self.assertEqual(("value_p", "text", False), (argument.name, argument.kind, argument.is_secret))
        self.assertEqual((0, 65535, True), tuple(argument.constraints[name] for name in ("minimum", "maximum", "exact")))
        self.assertTrue(ostrel.checks["WLAN_check_wepkeys"].arguments[0].is_secret)
        self.assertNotIn("PARAM_check_prot", ostrel.checks)
        with self.assertRaises(TypeError):
            argument.constraints["minimum"] = 1

    def test_the_module_judges(self):
        self.assertTrue(ostrel.judge("PARAM_check_port", "80"))
        self.assertFalse(ostrel.call("PARAM_check_port", ["65536"]))
        self.assertEqual([True, False], list(map(bool, ostrel.judge_many([("PARAM_check_port", "80"),
                                                                         ["PARAM_check_port", b"65536"]]))))


class Verdicts(unittest.TestCase):
    def setUp(self):
        with ostrel.Session() as session:
            self.verdicts = [session.judge("PARAM_check_port", value) for value in ("80", "65536", None)]
            self.verdicts.append(session.judge("WLAN_check_wepkeys", ["\x01", "", "0123456789", "xx"]))

    def test_are_frozen(self):
        for verdict in self.verdicts:
            with self.assertRaises(dataclasses.FrozenInstanceError):
                verdict.code = 0
            with self.assertRaises(TypeError):
                verdict.after["keys"] = ""
            self.assertIn(verdict, {verdict})

    def test_can_be_copied_and_pickled(self):
        for verdict in self.verdicts:
            for other in (copy.deepcopy(verdict), pickle.loads(pickle.dumps(verdict))):
                self.assertEqual(verdict, other)
                self.assertEqual(repr(verdict), repr(other))
                self.assertEqual(verdict.after, other.after)


class Refused(unittest.TestCase):
    """A call that cannot be judged is an error, not a refusal."""

    def setUp(self):
        self.session = ostrel.Session()
        self.addCleanup(self.session.close)

    def test_a_malformed_call_is_an_error(self):
        for case, message in {("PARAM_check_prot", "1"): "did you mean PARAM_check_port\\?",
                              ("PARAM_check_port",): "0 values were given",
                              ("PARAM_check_port", "1", "2"): "2 values were given",
                              ("PARAM_check_port", "8\x000"): "U\\+0000",
                              ("PARAM_check_port", b"8\x000\xff"): "U\\+0000",
                              ("PARAM_check_port", "\ud800"): "surrogate",
                              ("countChar", "a", "many"): "must be a number"}.items():
            with self.assertRaisesRegex(ostrel.MalformedCall, message):
                self.session.judge(*case)
            (verdict,) = self.session.judge_many([case])
            self.assertEqual("malformed", verdict.verdict)
            self.assertRegex(verdict.meaning, message)
            with self.assertRaisesRegex(ValueError, message):
                bool(verdict)
        with ostrel.Session(encoding="latin-1") as session, self.assertRaisesRegex(ValueError, "U\\+65E5"):
            session.judge("PARAM_check_port", "日本")

    def test_other_types_are_errors(self):
        for value in (1.5, True, {"base64": "AA=="}, object(), [None, 1.5]):
            with self.assertRaisesRegex(TypeError, "an argument must be str, bytes, int, None or a list of str"):
                self.session.judge("PARAM_check_port", value)
        for case in ("PARAM_check_port", (), (1, "80"), None):
            with self.assertRaisesRegex(TypeError, "a case must be a tuple"):
                list(self.session.judge_many([("PARAM_check_port", "80"), case]))
        with self.assertRaises(ValueError):
            self.session.judge_many([], block=0)
        with self.assertRaises(ValueError):
            ostrel.Session(encoding="utf-16")
        self.assertTrue(self.session.judge("PARAM_check_port", "80"))

    def test_an_error_of_the_cases_is_raised(self):
        def cases():
            yield "PARAM_check_port", "80"
            raise KeyError("value")
        verdicts = self.session.judge_many(cases(), block=1)
        self.assertTrue(next(verdicts))
        with self.assertRaises(KeyError):
            next(verdicts)


if __name__ == "__main__":
    support.main()
