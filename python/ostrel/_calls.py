"""Calls checks by name. The stub of this module is generated from the catalogue."""


class Calls:
    def judge(self, check, *arguments):
        """judge calls a check with its arguments, in the order of its declaration, and returns the verdict. It raises
        MalformedCall if the check is unknown or the arguments are wrong."""
        return self.call(check, arguments)

    def call(self, check, arguments):
        raise NotImplementedError
