"""What can go wrong beside a value: every error of this package."""


class Error(Exception):
    """Error is the base of the others."""


class MissingProgram(Error):
    """MissingProgram: ostrel-check is not where it was looked for, or cannot be run."""


class OtherVersion(Error):
    """OtherVersion: the program is not of the version that this package and its stubs were made from."""


class ProgramFailed(Error):
    """ProgramFailed: the program ended again and again without an answer, or answered what it never should."""


class MalformedCall(Error, ValueError):
    """MalformedCall: there is no such check, or it cannot be called with these arguments."""
