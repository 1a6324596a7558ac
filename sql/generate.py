#!/usr/bin/python3
"""Generates the files in sql/ that depend on the list of checks.

usage: generate.py LIST FOLDER

LIST is the output of "ostrel-check list --json". FOLDER is sql/, or a copy of it.
"""

import json
import pathlib
import sys

KINDS = {"text": "kText", "buffer": "kBuffer", "blocks": "kBlocks", "integer": "kInteger",
         "unsigned": "kUnsigned", "integer_out": "kOutputInteger"}
PASSED = {"kText": "at[%d].text", "kBuffer": "at[%d].buffer", "kBlocks": "at[%d].buffer", "kInteger": "at[%d].integer",
          "kUnsigned": "at[%d].natural", "kOutputText": "at[%d].buffer", "kOutputInteger": "&at[%d].integer"}

# SQL ignores case in function names, so these checks need other names to avoid clashing with other checks.
OTHER_SQL_NAMES = {"Param_check_bool_value": "param_check_bool_value_branding",
                   "Param_check_string_len": "param_check_string_len_signed"}


def kind_of(argument):
    kind = KINDS[argument["kind"]]
    return "kOutputText" if kind == "kBuffer" and argument["output_only"] else kind


def texts_of(argument):
    """texts_of returns the number of values that SQL passes for an argument."""
    return 0 if kind_of(argument).startswith("kOutput") else argument.get("blocks", 1)


def steps_of(steps):
    for step in steps:
        yield step
        for inner in ("steps", "otherwise", "uses"):
            yield from steps_of(step.get(inner, []))


def hindrance_of(check):
    steps = list(steps_of(check["steps"]))
    if any(step["step"] == "never_return" for step in steps):
        return "kNeverReturns"
    # The wireless driver is queried with a shell command.
    if any("wireless driver" in step["text"] for step in steps):
        return "kRunsShell"
    return "kNone"


def sql_name(check):
    return OTHER_SQL_NAMES.get(check["name"], check["name"].lower())


def call(check):
    passed = ", ".join(PASSED[kind_of(argument)] % i for i, argument in enumerate(check["arguments"]))
    return "static int call_%s(OstrelSlot* at) { return %s(%s); }\n" % (check["name"], check["name"], passed)


def row(check):
    def member(argument):
        return '{"%s", %s, %s, %d, %d}' % (
            argument["name"], kind_of(argument), "true" if argument.get("secret") else "false",
            argument.get("blocks", 1), argument.get("block_size", 0))

    arguments = check["arguments"]
    return '    {"%s", "%s", %d, %d, {%s}, %s, %s, call_%s},\n' % (
        check["name"], sql_name(check), sum(map(texts_of, arguments)), len(arguments),
        ", ".join(map(member, arguments)), "true" if check["answers"] == "number" else "false",
        hindrance_of(check), check["name"])


ATTRIBUTES = "LANGUAGE C IMMUTABLE STRICT PARALLEL SAFE;\n"
POSTGRESQL_TYPES = {"kInteger": "integer", "kUnsigned": "bigint"}

# The functions that take the name of a check, with their result types for text and for bytea values.
QUESTIONS = {"ostrel_code": ("integer", "integer"), "ostrel_valid": ("boolean", "boolean"),
             "ostrel_reason": ("jsonb", "jsonb"), "ostrel_line": ("text", "bytea"), "ostrel_after": ("jsonb", "jsonb")}


def postgresql_function(check):
    parameters = []
    for argument in check["arguments"]:
        texts = texts_of(argument)
        kind = POSTGRESQL_TYPES.get(kind_of(argument), "text")
        parameters += ['"%s%s" %s' % (argument["name"].lower(), i + 1 if texts > 1 else "", kind)
                       for i in range(texts)]
    return "CREATE FUNCTION %s(%s) RETURNS integer AS 'MODULE_PATHNAME', 'ostrel_check_%s' %s" % (
        sql_name(check), ", ".join(parameters), check["name"], ATTRIBUTES)


def postgresql_question(name, value, returned):
    return ("CREATE FUNCTION %s(\"check\" text, VARIADIC \"values\" %s[]) RETURNS %s AS 'MODULE_PATHNAME', '%s' %s"
            % (name, value, returned, name, ATTRIBUTES))


def postgresql_script(checks):
    questions = [postgresql_question(name, value, returned) for name, types in QUESTIONS.items()
                 for value, returned in zip(("text", "bytea"), types)]
    return ("-- Made by sql/generate.py.\n"
            "\\echo Use \"CREATE EXTENSION ostrel\" to load this file. \\quit\n\n"
            + "".join(questions) + "\n" + "".join(map(postgresql_function, checks)))


def main():
    checks = json.loads(pathlib.Path(sys.argv[1]).read_text(encoding="utf-8"))["checks"]
    folder = pathlib.Path(sys.argv[2])
    checks.sort(key=lambda check: check["name"].encode())
    names = [sql_name(check) for check in checks]
    same = {name for name in names if names.count(name) > 1}
    if same:
        sys.exit("several checks would have the SQL name " + ", ".join(sorted(same)))
    made = "/* Made by sql/generate.py. */\n"
    functions = ("OSTREL_CHECK(%d, %s)\n" % (i, check["name"]) for i, check in enumerate(checks))
    table = "\nconst OstrelCheck ostrel_checks[] = {\n" + "".join(map(row, checks)) + "};\n"
    files = {"common/checks.inc": made + "".join(map(call, checks)) + table,
             "postgresql/functions.inc": made + "".join(functions),
             "postgresql/ostrel--1.0.sql": postgresql_script(checks)}
    for name, text in files.items():
        (folder / name).write_text(text, encoding="utf-8")


if __name__ == "__main__":
    main()
