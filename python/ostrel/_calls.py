"""The call of a check by its name. The stub beside this file is generated from the catalogue."""


class Calls:
    def judge(self, check, *arguments):
        """judge calls a check with its arguments, in the order of its declaration. Raises MalformedCall where there
        is no such check or the arguments are not its own."""
        return self.call(check, arguments)

    def call(self, check, arguments):
        raise NotImplementedError
