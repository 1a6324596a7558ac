"""Tests that each public header compiles alone and when included twice, as C90 and as C++, with each given compiler.

usage: headers_test.py SOURCE_DIR COMPILER...

A compiler whose name ends in "++" compiles C++.
"""

import pathlib
import shutil
import subprocess
import sys
import unittest

WARNINGS = ["-pedantic-errors", "-Wall", "-Wextra", "-Wshadow", "-Wundef", "-Werror", "-fsyntax-only"]
C_STANDARDS = ["c90", "c99", "c11"]
CPP_STANDARDS = ["c++98", "c++11", "c++20"]


def compile_text(compiler, standard, language, text):
    return subprocess.run([compiler, "-std=" + standard, *WARNINGS, "-I", INCLUDE, "-x", language, "-"],
                          input=text, capture_output=True, text=True, check=False)


class Headers(unittest.TestCase):
    def compile_each(self, headers, text, is_accepted):
        """compile_each compiles the text with each header in place of %s, with every compiler and standard."""
        for compiler in COMPILERS:
            is_cpp = compiler.endswith("++")
            for standard in CPP_STANDARDS if is_cpp else C_STANDARDS:
                for header in headers:
                    with self.subTest(compiler=compiler, standard=standard, header=header):
                        result = compile_text(compiler, standard, "c++" if is_cpp else "c",
                                              text.replace("%s", header))
                        self.assertEqual(is_accepted, result.returncode == 0, result.stderr)

    def test_headers_and_compilers_are_found(self):
        self.assertIn("ostrel/check.h", HEADERS)
        self.assertTrue(COMPILERS)

    def test_alone_and_twice(self):
        self.compile_each(HEADERS, "#include <%s>\n#include <%s>\nextern int ostrel_test_unit;\n", True)

    def test_a_fault_is_seen(self):
        """This shows that the test above would detect an invalid header."""
        self.compile_each(HEADERS[:1], "#include <%s>\n;;int f(void) { return undeclared; }\n", False)

    def test_line_comments_are_seen(self):
        for compiler in COMPILERS:
            if not compiler.endswith("++"):
                result = compile_text(compiler, "c90", "c", "extern int ostrel_test_unit; // no C90\n")
                self.assertNotEqual(0, result.returncode, compiler)


if __name__ == "__main__":
    INCLUDE = str(pathlib.Path(sys.argv[1]) / "include")
    HEADERS = sorted(str(path.relative_to(INCLUDE)) for path in pathlib.Path(INCLUDE).rglob("*.h"))
    COMPILERS = [compiler for compiler in dict.fromkeys(sys.argv[2:]) if shutil.which(compiler)]
    unittest.main(argv=sys.argv[:1])
