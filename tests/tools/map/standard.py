"""Determines which values a data model allows, from a file of facts and independently of "ostrel-check compare"."""

import base64
import binascii
import csv
import datetime
import re

INT = r"-?(0|[1-9][0-9]*)"
BOUNDS = {"int": (-(2**31), 2**31 - 1), "unsignedInt": (0, 2**32 - 1)}


class Facts:
    def __init__(self, row):
        self.type = row["type"].removeprefix("list of ")
        self.is_list = self.type != row["type"]
        self.limits = {"range": [], "length": [], "list length": [], "one of": [], "pattern": []}
        for limit in filter(None, row["limits"].split("; ")):
            name = next(name for name in ("list length", *self.limits) if limit.startswith(name + " "))
            self.limits[name].append(limit.removeprefix(name + " "))

    def allows(self, value):
        if self.is_list:
            items = value.split(",") if value else []
            return self._within("list length", len(value)) and all(self._allows_item(item) for item in items)
        return self._allows_item(value)

    def has_form(self, value):
        """has_form returns whether a value has the syntax of the type, regardless of its limits."""
        kind = self.type
        if kind in BOUNDS:
            return re.fullmatch(r"[+-]?[0-9]+", value) is not None
        if kind == "boolean":
            return value in ("0", "1", "true", "false")
        if kind == "dateTime":
            return is_date_time(value)
        if kind in ("IPAddress", "IPv4Address"):
            return value == "" or is_address(value)
        if kind == "MACAddress":
            return value == "" or re.fullmatch(r"([0-9A-Fa-f]{2}:){5}[0-9A-Fa-f]{2}", value) is not None
        if kind == "hexBinary":
            return re.fullmatch(r"([0-9A-Fa-f]{2})*", value) is not None
        if kind == "base64":
            return decoded(value) is not None
        if kind == "URL":
            return re.fullmatch(r"[!-~]*", value) is not None
        assert kind == "string", kind
        return all(c in "\t\n\r" or c >= " " for c in value)

    def _allows_item(self, value):
        if not self.has_form(value):
            return False
        assert not self.limits["pattern"]
        words = "|".join(self.limits["one of"]).split("|") if self.limits["one of"] else None
        if words is not None and value not in words:
            return False
        if self.type in BOUNDS:
            low, high = BOUNDS[self.type]
            return re.fullmatch(INT, value) is not None and low <= int(value) <= high \
                and self._within("range", int(value))
        if self.type == "hexBinary":
            return self._within("length", len(value) // 2)
        if self.type == "base64":
            return self._within("length", len(decoded(value)))
        if self.type == "URL":
            return re.fullmatch(r"https?://[A-Za-z0-9.-]+/[A-Za-z0-9._~/-]*", value) is not None
        return self._within("length", len(value))

    def _within(self, name, number):
        ranges = [limit.split("..") for limit in self.limits[name]]
        return not ranges or any(
            (not low or int(low) <= number) and (not high or number <= int(high)) for low, high in ranges
        )


def is_address(value):
    """is_address returns whether a value is an IPv4 address without leading zeros."""
    parts = value.split(".")
    return len(parts) == 4 and all(re.fullmatch(r"0|[1-9][0-9]{0,2}", one) and int(one) < 256 for one in parts)


def is_date_time(value):
    """is_date_time returns whether a value is a date and time in the syntax of XML Schema."""
    match = re.fullmatch(
        r"(\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d)(\.\d+)?(Z|[+-](0\d|1[0-3]):[0-5]\d|[+-]14:00)?", value)
    if match is None:
        return False
    try:
        datetime.datetime.strptime(match[1], "%Y-%m-%dT%H:%M:%S")
    except ValueError:
        return False
    return True


def decoded(value):
    """decoded returns the bytes that a base64 string encodes, or None if it is invalid."""
    try:
        data = base64.b64decode(value, validate=True)
    except (binascii.Error, ValueError):
        return None
    return data if base64.b64encode(data).decode() == value else None


def read_facts(path):
    with open(path, encoding="ascii", newline="") as file:
        return {row["path"]: Facts(row) for row in csv.DictReader(file, delimiter="\t")}
