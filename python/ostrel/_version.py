"""The version of ostrel-check from whose catalogue scripts/stubs generated the stubs."""

VERSION = "0.1.0"
