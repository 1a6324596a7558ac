"""Defines the exceptions that this package raises. A refused value does not raise an exception."""


class Error(Exception):
    """Error is the base class of this package's exceptions."""


class MissingProgram(Error):
    """MissingProgram is raised if ostrel-check is not found or cannot be run."""


class OtherVersion(Error):
    """OtherVersion is raised if the program's version differs from that of this package and its stubs."""


class ProgramFailed(Error):
    """ProgramFailed is raised if the program exits with an error, ends repeatedly without a verdict, or prints an
    invalid result."""


class MalformedCall(Error, ValueError):
    """MalformedCall is raised if a check is unknown or cannot be called with the given arguments."""
