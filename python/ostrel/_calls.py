"""Calls checks by name. The stub of this module is generated from the catalogue."""


class Calls:
    def judge(self, check, *arguments):
        """judge calls a check with its arguments, in the order of its declaration, and returns the verdict. Pass a
        string as str or bytes, NULL as None, a number as int, and a block of strings as a list. judge raises
        MalformedCall if the check is unknown or the arguments are wrong, and TypeError for an argument of any other
        type."""
        return self.call(check, arguments)

    def call(self, check, arguments):
        raise NotImplementedError
