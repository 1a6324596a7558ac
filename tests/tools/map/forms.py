"""Writes the same gateways as CSV rows, as JSON rows, and as JSON trees."""

import csv
import io
import json

import gateways


def as_csv(fleet, delimiter=","):
    out = io.StringIO()
    writer = csv.writer(out, delimiter=delimiter, lineterminator="\n")
    writer.writerow(["gateway", "parameter", "value"])
    for name, parameters, _ in fleet:
        writer.writerows([name, path, value] for path, value in parameters.items())
    return out.getvalue()


def as_rows(fleet):
    return "".join(
        json.dumps({"gateway": name, "parameter": path, "value": value}) + "\n"
        for name, parameters, _ in fleet for path, value in parameters.items())


def as_trees(fleet):
    return [{"gateway": name, **gateways.nested(parameters)} for name, parameters, _ in fleet]
