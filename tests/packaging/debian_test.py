"""Tests that the Debian packages can be built, installed and removed.

usage: debian_test.py BUILD_DIR SOURCE_DIR
"""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

PACKAGES = ["libostrel-check", "libostrel-check-dev", "ostrel-check", "python3-ostrel"]


def run(*command, **variables):
    result = subprocess.run([str(part) for part in command], capture_output=True, text=True, check=False,
                            env={**os.environ, **{name: str(value) for name, value in variables.items()}})
    if result.returncode != 0:
        raise AssertionError("%s\n%s%s" % (command, result.stdout, result.stderr))
    return result.stdout


class Debian(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.scratch = pathlib.Path(tempfile.mkdtemp())
        cls.addClassCleanup(shutil.rmtree, cls.scratch)
        run(SOURCE / "packaging/debian/build", BUILD, cls.scratch / "packages")
        cls.files = sorted((cls.scratch / "packages").glob("*.deb"))

    def dpkg(self, *arguments):
        """dpkg calls the program dpkg with a separate root folder that contains only these packages."""
        root = self.scratch / "root"
        (root / "var/lib/dpkg/updates").mkdir(parents=True, exist_ok=True)
        (root / "var/lib/dpkg/info").mkdir(exist_ok=True)
        (root / "var/lib/dpkg/status").touch()
        return run("dpkg", "--root=%s" % root, "--force-not-root", "--force-depends",
                   "--force-script-chrootless", "--log=/dev/null", *arguments,
                   PATH=os.environ["PATH"] + ":/usr/sbin:/sbin")

    def test_installed_and_removed_again(self):
        root = self.scratch / "root"
        self.dpkg("--install", *self.files)
        library = root / "usr/lib/libostrel_check.so"
        self.assertIn("PARAM_check_port",
                      run(root / "usr/bin/ostrel-check", "list", LD_LIBRARY_PATH=library.parent))
        self.assertTrue((root / "usr/include/ostrel/check.h").is_file())
        self.assertEqual("accepted\n", run("/usr/bin/python3", "-B", "-c", "import ostrel\n"
                                           "print(ostrel.judge('PARAM_check_port', '80'))",
                                           PYTHONPATH=root / "usr/lib/python3/dist-packages",
                                           OSTREL_CHECK=root / "usr/bin/ostrel-check", LD_LIBRARY_PATH=library.parent))
        self.assertIn("--ostrel-check=PATH", run("/usr/bin/python3", "-B", "-m", "pytest", "--help",
                                                 PYTHONPATH=root / "usr/lib/python3/dist-packages"))
        self.dpkg("--purge", *PACKAGES)
        self.assertEqual([], [str(path) for path in root.rglob("*")
                              if path.is_file() and "var/lib/dpkg" not in str(path)])

    def test_what_they_need(self):
        def depends(package):
            (file,) = [file for file in self.files if file.name.startswith(package + "_")]
            return [item.split()[0] for item in run("dpkg-deb", "--field", file, "Depends").split(", ")]

        self.assertEqual(["libc6"], depends("libostrel-check"))
        self.assertEqual(["libostrel-check"], depends("libostrel-check-dev"))
        self.assertEqual({"libostrel-check", "libc6", "libgcc-s1", "libstdc++6"}, set(depends("ostrel-check")))
        self.assertEqual(["ostrel-check", "python3"], depends("python3-ostrel"))

    def test_no_search_path_of_its_own(self):
        for name in ("usr/bin/ostrel-check", "usr/lib/libostrel_check.so"):
            for file in self.files:
                run("dpkg-deb", "--extract", file, self.scratch / "extracted")
            self.assertNotIn("RUNPATH", run("readelf", "--dynamic", self.scratch / "extracted" / name))

    def test_what_an_integrator_reads_is_there(self):
        contents = {package: run("dpkg-deb", "--contents", file)
                    for file in self.files for package in PACKAGES if file.name.startswith(package + "_")}
        for package, names in {"libostrel-check": ["SECURITY.md", "hazards.md"],
                               "libostrel-check-dev": ["compatibility.md", "reference.md", "examples/configd.c"],
                               "ostrel-check": ["examples/home-gateway.txt", "examples/trouble/trouble.txt"],
                               "python3-ostrel": ["python.md"]}.items():
            for name in [*names, "changelog", "changelog.Debian", "copyright"]:
                self.assertRegex(contents[package], r"(?m)/usr/share/doc/%s/%s(\.gz)?$" % (package, re.escape(name)))
        for file in self.files:
            run("dpkg-deb", "--extract", file, self.scratch / "documents")
        changes = run("zcat", self.scratch / "documents/usr/share/doc/libostrel-check/changelog.gz")
        self.assertEqual((SOURCE / "CHANGELOG.md").read_text(), changes)

    def test_lintian_has_no_complaint(self):
        """packaging/debian contains the lintian overrides, each with its reason."""
        result = subprocess.run(["lintian", "--allow-root", "--fail-on", "error,warning", "--tag-display-limit", "0",
                                 *map(str, self.files)], capture_output=True, text=True, check=False)
        print(result.stdout + result.stderr)
        self.assertEqual((0, ""), (result.returncode, result.stdout))

    def test_lintian_sees_a_fault(self):
        """This shows that the test above would detect a faulty package."""
        tree = self.scratch / "faulty"
        run("dpkg-deb", "--raw-extract", self.files[0], tree)
        for copyright_file in tree.rglob("copyright"):
            copyright_file.unlink()
        run("dpkg-deb", "--root-owner-group", "--build", tree, self.scratch / "faulty.deb")
        result = subprocess.run(["lintian", "--allow-root", str(self.scratch / "faulty.deb")], capture_output=True,
                                text=True, check=False)
        self.assertIn("E: libostrel-check-dev: no-copyright-file", result.stdout)

    def test_the_same_bytes_each_time(self):
        run(SOURCE / "packaging/debian/build", BUILD, self.scratch / "again")
        for file in self.files:
            self.assertEqual(file.read_bytes(), (self.scratch / "again" / file.name).read_bytes(), file.name)


if __name__ == "__main__":
    BUILD, SOURCE = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
    unittest.main(argv=sys.argv[:1])
