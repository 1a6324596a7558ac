"""Judges every vector as bytes, and as a str in each of the two encodings."""

import unittest

import support

import ostrel
import vectors

# Strings longer than this would dominate the run time without testing the encodings any further.
LONG = 1 << 16


def carried(value, form):
    """carried returns an argument of a vector in the form that a session accepts."""
    if isinstance(value, list):
        return [carried(text, form) for text in value]
    if not isinstance(value, str) or form == "latin-1":
        return value
    content = value.encode("latin-1")
    return content if form == "bytes" else content.decode("utf-8", "surrogateescape")


def plain(value, encoding):
    """plain returns a string from a verdict in the form that the vectors use."""
    if isinstance(value, (list, tuple)):
        return [plain(text, encoding) for text in value]
    if not isinstance(value, str) or encoding == "latin-1":
        return value
    return value.encode("utf-8", "surrogateescape").decode("latin-1")


def members(row):
    """members returns the result that a vector expects."""
    reason = row.get("reason", {})
    return (row["code"], vectors.text_of(row.get("out", "")), vectors.text_of(row.get("err", "")),
            row.get("flushed", True), vectors.text_of(row.get("after")), reason)


def found(row, verdict, encoding):
    """found returns the corresponding members of a verdict, limited to those that the vector specifies."""
    after = plain(list(verdict.after.values()), encoding) if "after" in row else None
    reason = {name: plain(getattr(verdict.reason, name), encoding) for name in row.get("reason", {})}
    return (verdict.code, plain("".join(verdict.lines), encoding), plain(verdict.err, encoding), verdict.flushed,
            after, reason)


class Vectors(unittest.TestCase):
    def setUp(self):
        self.rows = [(place, row, [vectors.text_of(value) for value in row["args"]])
                     for place, row in vectors.rows()]
        self.assertGreater(len(self.rows), 7000)

    def judge(self, form, encoding, rows):
        """judge returns the verdicts, and asserts that each of them matches its vector."""
        with ostrel.Session(encoding=encoding) as session:
            cases = ((row["check"], *(carried(value, form) for value in values)) for _, row, values in rows)
            verdicts = list(session.judge_many(cases))
        self.assertEqual(len(rows), len(verdicts))
        judged = [(place, row, verdict) for (place, row, _), verdict in zip(rows, verdicts)
                  if (row["check"], verdict.verdict) != ("WLAN_check_channel", "no_driver")]
        print(f"{len(rows) - len(judged)} vectors need the wireless driver, and were not judged")
        self.assertGreaterEqual(len(judged), len(rows) - 108)
        wrong = [(place, members(row), found(row, verdict, encoding)) for place, row, verdict in judged
                 if members(row) != found(row, verdict, encoding)]
        self.assertEqual([], [repr(one)[:1000] for one in wrong])
        return verdicts

    def test_as_bytes(self):
        verdicts = self.judge("bytes", "utf-8", self.rows)
        print(f"all {len(verdicts)} vectors as bytes")
        self.assertLessEqual({"accepted", "refused", "answer"}, {verdict.verdict for verdict in verdicts})
        self.assertTrue(any(verdict.after for verdict in verdicts))
        self.assertTrue(any(verdict.remarks for verdict in verdicts))
        self.assertTrue(any(isinstance(verdict.reason and verdict.reason.allowed, ostrel.CharacterSet)
                            for verdict in verdicts))

    def test_as_texts(self):
        short = [row for row in self.rows if sum(len(value or "") for value in row[2] if not isinstance(value, int))
                 <= LONG]
        self.assertGreater(len(short), 6900)
        for encoding in ("utf-8", "latin-1"):
            self.judge(encoding, encoding, short)
            print(f"{len(short)} vectors as texts in {encoding}; {len(self.rows) - len(short)} are longer than "
                  f"{LONG} characters, which bytes alone carry here")


if __name__ == "__main__":
    support.main()
