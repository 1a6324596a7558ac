"""The errors of this package. A refused value is not one."""


class Error(Exception):
    """Error is the base class of the others."""


class MissingProgram(Error):
    """MissingProgram: ostrel-check was not found, or cannot be run."""


class OtherVersion(Error):
    """OtherVersion: the version of the program differs from that of this package and its stubs."""


class ProgramFailed(Error):
    """ProgramFailed: the program ended several times without an answer, or its answer is invalid."""


class MalformedCall(Error, ValueError):
    """MalformedCall: the check is unknown, or cannot be called with these arguments."""
