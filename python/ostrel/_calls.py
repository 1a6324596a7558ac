"""Calls of checks by name. The stub of this file is generated from the catalogue."""


class Calls:
    def judge(self, check, *arguments):
        """judge calls a check with its arguments, in the order of its declaration. It raises MalformedCall for an
        unknown check or wrong arguments."""
        return self.call(check, arguments)

    def call(self, check, arguments):
        raise NotImplementedError
