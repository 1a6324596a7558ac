"""The version of ostrel-check that the stubs were made from, by scripts/stubs."""

VERSION = "0.1.0"
