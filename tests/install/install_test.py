"""Tests that the installed library can be used with CMake and pkg-config, in C90 and in C++.

usage: install_test.py BUILD_DIR CMAKE CC CXX
"""

import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

CONSUMER = pathlib.Path(__file__).parent / "consumer"
SUBPROJECT = pathlib.Path(__file__).parent / "subproject"
SOURCE = pathlib.Path(__file__).parents[2]
COMPONENTS = ["runtime", "development", "tools"]
ENVIRONMENT = {name: value for name, value in os.environ.items() if not name.startswith("CMAKE_")}


def run(*command, **variables):
    result = subprocess.run([str(part) for part in command], capture_output=True, text=True, check=False,
                            env={**ENVIRONMENT, **{name: str(value) for name, value in variables.items()}})
    if result.returncode != 0:
        raise AssertionError("%s\n%s%s" % (command, result.stdout, result.stderr))
    return result.stdout


def install(prefix, *components):
    for component in components:
        run(CMAKE, "--install", BUILD, "--prefix", prefix, "--component", component)
    return {str(path.relative_to(prefix)) for path in prefix.rglob("*") if path.is_file()}


class Install(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.scratch = pathlib.Path(tempfile.mkdtemp())
        cls.addClassCleanup(shutil.rmtree, cls.scratch)
        built = cls.scratch / "installed"
        cls.files = install(built, *COMPONENTS)
        # No installed file may depend on the path to which it was installed.
        cls.prefix = cls.scratch / "moved"
        built.rename(cls.prefix)
        (cls.library,) = cls.prefix.rglob("libostrel_check.so")

    def test_components_hold_what_they_say(self):
        (library,) = install(self.scratch / "runtime", "runtime")
        self.assertEqual("libostrel_check.so", os.path.basename(library))
        self.assertEqual({"bin/ostrel-check", "share/man/man1/ostrel-check.1",
                          "share/bash-completion/completions/ostrel-check",
                          "share/zsh/site-functions/_ostrel-check"}, install(self.scratch / "tools", "tools"))
        development = install(self.scratch / "development", "development")
        headers = {name for name in development if name.startswith("include/")}
        sources = SOURCE / "include"
        self.assertEqual({"include/" + str(path.relative_to(sources)) for path in sources.rglob("*.h")}, headers)
        for name in development - headers:
            self.assertRegex(name, r"/cmake/ostrel_check/.*\.cmake$|/pkgconfig/ostrel_check\.pc$")

    def test_everything_together_is_the_components(self):
        whole = self.scratch / "whole"
        run(CMAKE, "--install", BUILD, "--prefix", whole)
        self.assertEqual(self.files, {str(path.relative_to(whole)) for path in whole.rglob("*") if path.is_file()})

    def test_the_command_line_finds_the_library(self):
        self.assertIn("PARAM_check_port", run(self.prefix / "bin" / "ostrel-check", "list"))

    def test_cmake_consumers(self):
        for language, compiler in (("C", CC), ("CXX", CXX)):
            with self.subTest(language=language):
                build = self.scratch / ("cmake_" + language)
                run(CMAKE, "-S", CONSUMER, "-B", build, "-DCONSUMER_LANGUAGE=" + language,
                    "-DCMAKE_PREFIX_PATH=%s" % self.prefix, "-DCMAKE_%s_COMPILER=%s" % (language, compiler))
                run(CMAKE, "--build", build)
                run(build / "consumer")

    def test_cmake_subproject(self):
        """A project that adds this repository to its build builds only the library."""
        build = self.scratch / "subproject"
        run(CMAKE, "-S", SUBPROJECT, "-B", build, "-DOSTREL_SOURCE=%s" % SOURCE, "-DCMAKE_C_COMPILER=%s" % CC,
            "-DCMAKE_CXX_COMPILER=%s" % CXX)
        self.assertRegex((build / "CMakeCache.txt").read_text(), "(?m)^CMAKE_BUILD_TYPE:STRING=$")
        run(CMAKE, "--build", build, "--parallel", "2")
        run(build / "programs/consumer")
        self.assertEqual([], [path.name for path in build.rglob("ostrel-check")])
        self.assertEqual([], list(build.rglob("CTestTestfile.cmake")))
        run(CMAKE, "--install", build, "--prefix", self.scratch / "nothing")
        self.assertEqual([], [path for path in (self.scratch / "nothing").rglob("*") if path.is_file()])

        # The library is installed only if the project requests it.
        run(CMAKE, "-DOSTREL_INSTALL=ON", build)
        run(CMAKE, "--install", build, "--prefix", self.scratch / "library")
        installed = {path.name for path in (self.scratch / "library").rglob("*")}
        self.assertLessEqual({"libostrel_check.so", "check.h", "ostrel_check-config.cmake", "ostrel_check.pc"},
                             installed)

    def test_pkg_config_consumers(self):
        folder = self.library.parent / "pkgconfig"
        flags = run("pkg-config", "--cflags", "--libs", "ostrel_check", PKG_CONFIG_PATH=folder).split()
        version = run("pkg-config", "--modversion", "ostrel_check", PKG_CONFIG_PATH=folder).strip().split(".")
        flags += ["-DFOUND_%s=%s" % found for found in zip(("MAJOR", "MINOR", "PATCH"), version)]
        for compiler, standard, source in ((CC, "c90", "consumer.c"), (CXX, "c++98", "consumer.cpp")):
            with self.subTest(compiler=compiler):
                program = self.scratch / ("pkg_config_" + standard)
                run(compiler, "-std=" + standard, "-pedantic-errors", CONSUMER / source, *flags, "-o", program)
                run(program, LD_LIBRARY_PATH=self.library.parent)

    def test_no_file_names_a_folder_of_the_build(self):
        for path in self.prefix.rglob("*"):
            if path.is_file():
                contents = path.read_bytes()
                self.assertNotIn(str(BUILD).encode(), contents, path)
                self.assertNotIn(str(self.scratch).encode(), contents, path)


if __name__ == "__main__":
    BUILD, CMAKE, CC, CXX = pathlib.Path(sys.argv[1]), *sys.argv[2:5]
    unittest.main(argv=sys.argv[:1])
