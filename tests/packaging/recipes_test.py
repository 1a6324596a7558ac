"""Tests the recipes for OpenWrt and Buildroot with stand-ins for the two build systems.

usage: recipes_test.py BUILD_DIR SOURCE_DIR CMAKE
"""

import hashlib
import pathlib
import re
import shutil
import subprocess
import sys
import tarfile
import tempfile
import unittest

RECIPES = pathlib.Path(__file__).parent / "recipes"
OPTIONS = {"OSTREL_MODEL": "M2841", "OSTREL_ACCOUNT_REALM": "@isp.invalid", "OSTREL_SETUP_REALM": "@setup.isp.invalid",
           "OSTREL_BUILD_TOOLS": "OFF"}
MIPS = "COMPILERS=-DCMAKE_SYSTEM_NAME=Linux -DCMAKE_C_COMPILER=mipsel-linux-gnu-gcc " \
       "-DCMAKE_CXX_COMPILER=mipsel-linux-gnu-g++"
HASH = "0" * 64


def run(*command, cwd=None):
    return subprocess.run([str(part) for part in command], capture_output=True, text=True, check=False, cwd=cwd)


class Recipes(unittest.TestCase):
    def setUp(self):
        self.scratch = pathlib.Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.scratch)

    def make(self, makefile, *variables):
        result = run("make", "-f", makefile, "CMAKE=" + CMAKE, "SOURCE_TREE=%s" % SOURCE, "SCRATCH=%s" % self.scratch,
                     "OSTREL_SOURCE_URL=file:///releases", *variables)
        self.assertEqual(0, result.returncode, result.stdout + result.stderr)
        self.assertNotIn("warning:", result.stderr)

    def files(self, folder):
        root = self.scratch / folder
        return {str(path.relative_to(root)) for path in root.rglob("*") if path.is_file()}

    def assert_mips16(self, build, is_expected=True):
        result = run("make", "-C", build / "src", "verdict.o", "VERBOSE=1")
        self.assertEqual(0, result.returncode, result.stdout + result.stderr)
        (built,) = build.rglob("verdict.cpp.o")
        flags = re.search(r"Flags:.*", run("readelf", "--file-header", built).stdout)[0]
        self.assertEqual(is_expected, "mips16" in flags, flags)

    def assert_options(self, build):
        cache = (build / "CMakeCache.txt").read_text()
        for name, value in OPTIONS.items():
            self.assertRegex(cache, r"(?m)^%s:\w+=%s$" % (name, re.escape(value)))

    def openwrt(self, makefile, *variables):
        self.make(makefile, "OSTREL_SOURCE_HASH=" + HASH, *variables, "TOPDIR=%s" % (RECIPES / "openwrt"), "FINISHED_BUILD=%s" % BUILD,
                  'CONFIG_OSTREL_CHECK_MODEL="M2841"', 'CONFIG_OSTREL_CHECK_ACCOUNT_REALM="@isp.invalid"',
                  'CONFIG_OSTREL_CHECK_SETUP_REALM="@setup.isp.invalid"')

    def test_openwrt(self):
        self.openwrt(SOURCE / "packaging/openwrt/Makefile")
        self.assert_options(self.scratch / "build_dir" / ("ostrel-" + VERSION))
        self.assertEqual({"usr/lib/libostrel_check.so"}, self.files("root"))
        development = self.files("staging")
        self.assertLessEqual({"usr/lib/libostrel_check.so", "usr/lib/pkgconfig/ostrel_check.pc",
                              "usr/lib/cmake/ostrel_check/ostrel_check-config.cmake"}, development)
        headers = SOURCE / "include"
        self.assertEqual({"usr/include/%s" % path.relative_to(headers) for path in headers.rglob("*.h")},
                         {name for name in development if name.startswith("usr/include/")})

    def test_a_fault_of_an_openwrt_recipe_is_seen(self):
        text = (SOURCE / "packaging/openwrt/Makefile").read_text()
        for pattern in ("PKG_HASH:=.*", "TITLE:=.*", "define Package/ostrel-check/install", "PKG_NAME:=.*",
                        "define Build/InstallDev", "CMAKE_INSTALL:=.*"):
            faulty = self.scratch / "Makefile"
            faulty.write_text(re.sub(pattern, "define unused" if "define" in pattern else "", text, count=1))
            with self.subTest(pattern=pattern), self.assertRaises(AssertionError):
                self.openwrt(faulty)

    def test_openwrt_respects_mips16(self):
        build = self.scratch / "build_dir" / ("ostrel-" + VERSION)
        for chosen in ("y", ""):
            self.openwrt(SOURCE / "packaging/openwrt/Makefile", MIPS, "CONFIG_USE_MIPS16=" + chosen)
            self.assert_mips16(build, chosen == "y")

    def test_openwrt_needs_a_hash(self):
        with self.assertRaisesRegex(AssertionError, "PKG_HASH is not set"):
            self.openwrt(SOURCE / "packaging/openwrt/Makefile", "OSTREL_SOURCE_HASH=")

    def buildroot(self, *variables):
        package = SOURCE / "packaging/buildroot/ostrel-check"
        self.make(RECIPES / "buildroot/Makefile", "PACKAGE_MK=%s" % (package / "ostrel-check.mk"),
                  'BR2_PACKAGE_OSTREL_CHECK_MODEL="M2841"',
                  'BR2_PACKAGE_OSTREL_CHECK_ACCOUNT_REALM="@isp.invalid"',
                  'BR2_PACKAGE_OSTREL_CHECK_SETUP_REALM="@setup.isp.invalid"', *variables)
        self.assert_options(self.scratch / "build")

    def test_buildroot(self):
        self.buildroot()

    def test_buildroot_respects_mips16(self):
        self.buildroot(MIPS, "BR2_TARGET_OPTIMIZATION=-mips16 -minterlink-mips16")
        self.assert_mips16(self.scratch / "build")

    def test_a_release_has_the_hash_that_is_told(self):
        result = run(SOURCE / "packaging/release", self.scratch / "release")
        self.assertEqual((0, ""), (result.returncode, result.stderr))
        (archive,) = (self.scratch / "release").glob("*.tar.gz")
        self.assertEqual("ostrel-%s.tar.gz" % VERSION, archive.name)
        told = hashlib.sha256(archive.read_bytes()).hexdigest()
        self.assertEqual("OSTREL_SOURCE_HASH=%s\n" % told, result.stdout)
        self.assertEqual("sha256  %s  %s\n" % (told, archive.name),
                         (archive.parent / "ostrel-check.hash").read_text())
        with tarfile.open(archive) as files:
            self.assertIn("ostrel-%s/CMakeLists.txt" % VERSION, files.getnames())

    def test_no_recipe_states_a_licence(self):
        """The project has no licence file. If one is added, every recipe must name the licence."""
        for recipe in ("openwrt/Makefile", "buildroot/ostrel-check/ostrel-check.mk"):
            self.assertNotRegex((SOURCE / "packaging" / recipe).read_text(), r"(?m)^\w*LICENSE\w* *:?=")

    def test_buildroot_config(self):
        config = self.scratch / "Config.in"
        symbols = ["BR2_INSTALL_LIBSTDCPP", "BR2_TOOLCHAIN_GCC_AT_LEAST_11"]
        config.write_text("".join("config %s\n\tbool\n\tdefault y\n" % name for name in symbols) +
                          "config BR2_STATIC_LIBS\n\tbool\n" +
                          'source "%s"\n' % (SOURCE / "packaging/buildroot/ostrel-check/Config.in"))
        (self.scratch / ".config").write_text("CONFIG_BR2_PACKAGE_OSTREL_CHECK=y\n")
        result = run("kconfig-conf", "--olddefconfig", config, cwd=self.scratch)
        self.assertEqual((0, ""), (result.returncode, result.stderr))
        chosen = (self.scratch / ".config").read_text()
        for option in ("MODEL", "ACCOUNT_REALM", "SETUP_REALM"):
            default = re.search(r"^set\(OSTREL_%s (\"[^\"]*\")" % option, (SOURCE / "CMakeLists.txt").read_text(), re.M)[1]
            self.assertIn("BR2_PACKAGE_OSTREL_CHECK_%s=%s\n" % (option, default), chosen)

    def test_versions_agree(self):
        for name, pattern in (("openwrt/Makefile", "PKG_VERSION:=(.*)"),
                              ("buildroot/ostrel-check/ostrel-check.mk", "OSTREL_CHECK_VERSION = (.*)")):
            self.assertEqual([VERSION], re.findall(pattern, (SOURCE / "packaging" / name).read_text()))


if __name__ == "__main__":
    BUILD, SOURCE, CMAKE = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2]), sys.argv[3]
    VERSION = ".".join(re.findall(r"(?m)^#define OSTREL_CHECK_VERSION_(?:MAJOR|MINOR|PATCH) (\d+)$",
                                  (SOURCE / "include/ostrel/version.h").read_text()))
    unittest.main(argv=sys.argv[:1])
