"""Calls checks by name. The stub of this module is generated from the catalogue."""


class Calls:
    def judge(self, check, *arguments):
        """judge calls a check with its arguments, in the order of its declaration, and returns the verdict. A string is
        a str or bytes, NULL is None, a number is an int, and a block of strings is a list. judge raises MalformedCall
        if the check is unknown or the arguments are wrong, and TypeError for an argument of any other type."""
        return self.call(check, arguments)

    def call(self, check, arguments):
        raise NotImplementedError
