#!/usr/bin/python3
"""Tests batches that judge gateway dumps with a map.

usage: mapped_test.py OSTREL_CHECK SOURCE_DIR
"""

import json
import pathlib
import subprocess
import sys
import tempfile
import unittest

import jsonschema

sys.path.insert(0, str(pathlib.Path(__file__).parent))
import gateways  # noqa: E402
from forms import as_csv, as_rows, as_trees  # noqa: E402

program, source = sys.argv[1:3]
tr_098 = pathlib.Path(source) / "examples/maps/tr-098.json"
COUNT = 100


def batch(text, *options, map_file=tr_098, code=None):
    """batch judges a dump and returns the results, the counts and the summary."""
    run = subprocess.run([program, "batch", "--json", "--map", map_file, *options], input=text, capture_output=True,
                         text=True)
    assert code is None or run.returncode == code, run.stderr
    lines = [json.loads(line) for line in run.stdout.splitlines()]
    results = [line for line in lines if "verdict" in line]
    counted = next((line["map"] for line in lines if "map" in line), None)
    return results, counted, run.stderr


def place_of(result):
    """place_of returns the gateway, the offending parameter, the check, its argument and the reason's id."""
    reason = result["reason"]
    path = reason.get("parameter") or result.get("siblings", {}).get(reason["argument"], result["parameter"])
    if isinstance(path, list):
        path = path[reason["item"]]
    return result["gateway"], path, result["check"], reason["argument"], reason["id"]


def essence(results):
    """essence returns the facts that must be the same for every form of a dump."""
    return sorted((one["gateway"], one["parameter"], one["check"], one["verdict"], one["code"] or 0,
                   json.dumps(one.get("reason"), sort_keys=True)) for one in results)


class Fleet(unittest.TestCase):
    def setUp(self):
        self.fleet = list(gateways.gateways(COUNT))

    def test_planted_faults(self):
        results, counted, _ = batch(as_csv(self.fleet), "--format", "csv", "--group", "gateway")
        planted = {(name, *fault) for name, _, faults in self.fleet for fault in faults}
        found = [place_of(one) for one in results if one["verdict"] != "accepted"]
        self.assertEqual(len(found), len(set(found)), "a fault is told twice")
        self.assertEqual(set(found), planted)
        self.assertGreater(len(planted), COUNT * 0.8)
        self.assertEqual({place[2:] for place in planted}, {tuple(fault[2:]) for fault in gateways.FAULTS})
        entries = json.loads(tr_098.read_text())["parameters"]
        self.assertEqual({one["check"] for one in results}, {one["check"] for one in entries})
        self.assertEqual(counted["gateways"], COUNT)
        unmapped = {one["path"]: one["count"] for one in counted["unmapped"]["paths"]}
        self.assertEqual(unmapped["InternetGatewayDevice.DeviceInfo.SerialNumber"], COUNT)
        self.assertEqual(sum(unmapped.values()), counted["unmapped"]["parameters"])
        self.assertTrue(all(one["line"] > 1 for one in results))

    def test_every_form_has_the_same_results(self):
        fleet = self.fleet[:30]
        rows = ("--group", "gateway")
        expected = essence(batch(as_csv(fleet), "--format", "csv", *rows)[0])
        forms = [
            (as_csv(fleet, "\t"), ("--format", "tsv", *rows)),
            (as_csv(fleet), ("--format", "csv", *rows, "--jobs", "4")),
            (as_rows(fleet), ("--format", "ndjson", *rows)),
            (json.dumps([json.loads(line) for line in as_rows(fleet).splitlines()], indent=1),
             ("--format", "json", *rows)),
            (json.dumps(as_trees(fleet)), ("--format", "json")),
            (json.dumps(as_trees(fleet), indent=2), ("--format", "json", "--jobs", "3")),
            ("".join(json.dumps(one) + "\n" for one in as_trees(fleet)), ("--format", "ndjson")),
            ("".join(json.dumps({"gateway": name, **parameters}) + "\n" for name, parameters, _ in fleet),
             ("--format", "ndjson")),
        ]
        for text, options in forms:
            with self.subTest(options=options):
                self.assertEqual(essence(batch(text, *options)[0]), expected)

    def test_order_and_jobs(self):
        text = as_csv(list(gateways.gateways(400)))
        options = ("--format", "csv", "--group", "gateway")
        self.assertEqual(batch(text, *options)[0], batch(text, *options, "--jobs", "4")[0])


class Rows(unittest.TestCase):
    def judge(self, parameters, rows, *options, header="gateway,parameter,value"):
        with tempfile.NamedTemporaryFile("w", suffix=".json") as file:
            json.dump({"parameters": parameters}, file)
            file.flush()
            return batch("\n".join([header, *rows]) + "\n", "--format", "csv", *options, map_file=file.name)

    def test_gateways_that_are_not_together(self):
        pool = [{"path": "Start", "check": "TIME_check_sync_daylight_saving_time", "value": "start",
                 "with": {"end": {"path": "End"}}}]
        rows = ["a,Start,x", "b,Start,", "b,End,", "a,End,y", "c,Start,x", "c,End,y"]
        results, counted, _ = self.judge(pool, rows, "--group", "gateway")
        told = [(one["gateway"], one["verdict"], one.get("reason", {}).get("id")) for one in results]
        self.assertEqual(told, [("a", "malformed", "missing_sibling"), ("b", "accepted", None),
                                ("c", "accepted", None)])
        self.assertEqual(counted["split_gateways"], 1)

    def test_an_instance_that_the_map_names(self):
        pool = [{"path": "A.1.Pool.{i}.Start", "check": "TIME_check_sync_daylight_saving_time", "value": "start",
                 "with": {"end": {"path": "A.2.Pool.{i}.End"}}}]
        results, _, _ = self.judge(pool, ["a,A.1.Pool.7.Start,x", "a,A.2.Pool.7.End,y", "a,A.2.Pool.7.Start,z"])
        self.assertEqual([({"end": "A.2.Pool.7.End"}, "accepted")],
                         [(one["siblings"], one["verdict"]) for one in results])

    def test_a_table_names_the_gateways(self):
        with tempfile.NamedTemporaryFile("w", suffix=".json") as file:
            json.dump({"parameters": [{"path": "Port", "check": "PARAM_check_port"}]}, file)
            file.flush()
            run = subprocess.run([program, "batch", "--map", file.name, "--group", "gateway"],
                                 input="gateway,id,parameter,value\ng1,7,Port,0\n", capture_output=True, text=True)
        self.assertIn("g1 7 Port: PARAM_check_port 0\n", run.stdout)

    def test_rows_without_a_gateway_column(self):
        pool = [{"path": "Start", "check": "TIME_check_sync_daylight_saving_time", "value": "start",
                 "with": {"end": {"path": "End"}}}]
        rows = ["a,Start,x", "a,End,", "b,Start,", "b,End,", "c,Start,x", "c,End,y"]
        results, counted, _ = self.judge(pool, rows)
        self.assertEqual((1, 2), (len(results), counted["repeated"]))
        results, counted, _ = self.judge(pool, rows, "--group", "gateway")
        self.assertEqual((3, 0), (len(results), counted["repeated"]))

    def test_a_file_is_a_gateway(self):
        pool = [{"path": "Pool.{i}.Start", "check": "TIME_check_sync_daylight_saving_time", "value": "start",
                 "with": {"end": {"path": "Pool.{i}.End"}}}]
        rows = ["a,Pool.1.Start,x", "b,Pool.2.Start,x", "c,Pool.2.End,", "d,Pool.1.End,y"]
        results, _, _ = self.judge(pool, rows)
        self.assertEqual([(one["line"], one["verdict"]) for one in results], [(2, "accepted"), (3, "refused")])

    def test_an_alias_is_an_instance(self):
        pool = [{"path": "Pool.{i}.Start", "check": "TIME_check_sync_daylight_saving_time", "value": "start",
                 "with": {"end": {"path": "Pool.{i}.End"}}},
                {"path": "Pool.{i}.Wan.{i}.Port", "check": "PARAM_check_port"},
                {"path": "Pool.[lan].Name", "check": "PARAM_check_port"}]
        gateway = {"Pool": {"[lan]": {"Start": "x", "Wan": {"[a-1]": {"Port": "70000"}, "7": {"Port": "1"}}, "Name": "1"},
                            "1": {"Start": "x", "End": "y", "Name": "1"}, "[guest]": {"Start": "x", "End": "y", "Name": "1"},
                            "lan]": {"Start": "x"}}}
        paths = {f"Pool.{name}": value for name, value in (
            ("[lan].Start", "x"), ("[lan].Wan.[a-1].Port", "70000"), ("[lan].Wan.7.Port", "1"), ("[lan].Name", "1"),
            ("1.Start", "x"), ("1.End", "y"), ("1.Name", "1"), ("[guest].Start", "x"), ("[guest].End", "y"),
            ("[guest].Name", "1"), ("lan].Start", "x"))}
        rows = [{"path": path, "value": value} for path, value in paths.items()]
        forms = [("ndjson", json.dumps(gateway)), ("json", json.dumps(gateway, indent=1)),
                 ("ndjson", "\n".join(json.dumps(row) for row in rows)),
                 ("csv", "path,value\n" + "".join(f"{row['path']},{row['value']}\n" for row in rows))]
        for form, text in forms:
            with self.subTest(text), tempfile.NamedTemporaryFile("w") as file:
                json.dump({"parameters": pool}, file)
                file.flush()
                results, counted, _ = batch(text, "--format", form, map_file=file.name)
                self.assertEqual(
                    [(one["parameter"], one["verdict"], one.get("reason", {}).get("parameter")) for one in results],
                    [("Pool.[lan].Wan.[a-1].Port", "refused", None), ("Pool.[lan].Wan.7.Port", "accepted", None),
                     ("Pool.[lan].Name", "accepted", None), ("Pool.[lan].Start", "malformed", "Pool.[lan].End"),
                     ("Pool.1.Start", "accepted", None), ("Pool.[guest].Start", "accepted", None)])
                self.assertEqual(counted["unmapped"]["paths"], [{"path": "Pool.{i}.Name", "count": 2},
                                                                {"path": "Pool.lan].Start", "count": 1}])

    def test_a_call_that_does_not_return(self):
        parameters = [
            {"path": "Stays", "check": "PARAM_check_ui2_value"},
            {"path": "Start", "check": "TIME_check_sync_daylight_saving_time", "value": "start",
             "with": {"end": {"path": "End"}}},
        ]
        rows = [f"{name},{path},{value}" for name in "ab" for path, value in
                (("Start", "x"), ("Stays", "1"), ("End", "" if name == "a" else "y"), ("Stays", "x"))]
        results, _, _ = self.judge(parameters, rows, "--group", "gateway", "--limit-time", "0.1", "--try")
        told = [(one["gateway"], one["check"].split("_")[0], one["verdict"]) for one in results]
        self.assertEqual(told, [
            ("a", "PARAM", "no_return"), ("a", "PARAM", "refused"), ("a", "TIME", "refused"),
            ("b", "PARAM", "no_return"), ("b", "PARAM", "refused"), ("b", "TIME", "accepted")])

    def test_words_constants_and_skipped_values(self):
        parameters = [
            {"path": "Band", "check": "WLAN_check_radio_id", "words": {"2.4GHz": "RADIO_2.4GHz"}, "skip": [""]},
            {"path": "Width", "check": "WLAN_check_wide_channel", "value": "width",
             "with": {"radio": {"constant": "RADIO_5GHz"}}},
            {"path": "Name", "check": "TCM_validate_device_name", "value": "value", "with": {"maxLength": {"constant": 3}}},
        ]
        rows = ["a,Band,2.4GHz", "a,Band,", "a,Band,6GHz", "a,Width,40", "a,Name,abc", "a,Name,abcd", "a,Other,x"]
        results, counted, _ = self.judge(parameters, rows)
        self.assertEqual([(one["verdict"], one.get("reason", {}).get("id")) for one in results],
                         [("accepted", None), ("malformed", "no_word"), ("accepted", None), ("accepted", None),
                          ("refused", "too_long")])
        self.assertEqual((counted["skipped"], counted["unmapped"]["paths"]), (1, [{"path": "Other", "count": 1}]))

    def test_a_value_without_a_translation(self):
        parameters = [{"path": "Band", "check": "WLAN_check_radio_id",
                       "words": {"b, c": "RADIO_5GHz", "2.4GHz": "RADIO_2.4GHz", "ä": "RADIO_5GHz"}}]
        schema = json.loads(subprocess.run([program, "list", "--schema", "result"], capture_output=True).stdout)
        for encoding, shown in (("utf-8", "\\xC3\\xA9"), ("latin-1", "\\xE9")):
            result, = self.judge(parameters, ["a,Band,é"], "--encoding", encoding)[0]
            jsonschema.Draft202012Validator(schema).validate(result)
            last = '"\\xC3\\xA4"' if encoding == "utf-8" else '"\\xE4"'
            self.assertEqual(result["reason"], {
                "id": "no_word", "argument": "radio", "parameter": "Band", "found": "é", "allowed": ["2.4GHz", "b, c", "ä"],
                "text": f'Band has a value that the map does not translate: "{shown}" (allowed: 2.4GHz, "b, c", {last})'})

    def test_texts_of_the_map_are_in_the_encoding_of_the_values(self):
        parameters = [{"path": "A", "check": "TcmValidatePPPPassword", "words": {"ä": "Straße"}, "skip": ["ß"]},
                      {"path": "B", "check": "LAN_check_dhcp_reserved_addr", "value": "lanAddress",
                       "with": {"reservedList": {"constant": "ä"}}}]
        rows = ["a,A,ä", "a,A,ß", "a,B,1"]
        for encoding, verdict in (("utf-8", "refused"), ("latin-1", "accepted")):
            results, counted, _ = self.judge(parameters, rows, "--encoding", encoding, "--with-args")
            self.assertEqual(([["Straße"], ["ä", "1"]], verdict),
                             ([one["args"] for one in results], results[0]["verdict"]))
            self.assertEqual(counted["skipped"], 1)
        parameters[0]["words"]["日"] = ""
        _, _, error = self.judge(parameters, rows, "--encoding", "latin-1")
        self.assertIn("/parameters/0/words/\\xE6\\x97\\xA5: a string contains U+65E5, which does not exist in Latin-1", error)

    def test_the_first_bytes_tell_the_format(self):
        gateway = {"id": 1, "A": {"Port": "1"}}
        for text in (json.dumps(gateway), json.dumps(gateway, indent=1), json.dumps([gateway]), "path,value\nA.Port,1\n",
                     json.dumps({"path": "A.Port", "value": 1})):
            with tempfile.NamedTemporaryFile("w") as file:
                json.dump({"parameters": [{"path": "A.Port", "check": "PARAM_check_port"}]}, file)
                file.flush()
                results, _, error = batch(text, map_file=file.name, code=0)
            self.assertEqual([(one["parameter"] if "parameter" in one else one["path"], one["verdict"]) for one in results],
                             [("A.Port", "accepted")], text)

    def test_a_file_of_words(self):
        for text in ("PARAM_check_port 9\n", "A.Port=1\nA.Port=2\n", "# nothing\n"):
            for options in ((), ("--format", "words"), ("--jobs", "2")):
                results, _, _ = batch(text, *options, code=2)
                self.assertEqual([(1, "with --map, a file must be CSV, TSV or JSON; set its format with --format")],
                                 [(one["line"], one["meaning"]) for one in results])

        self.assertEqual([], batch("", code=0)[0])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
