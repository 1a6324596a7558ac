"""Tests that examples/daemon can be built with the installed library and follows the rules for hosts in SECURITY.md.

usage: daemon_test.py SOURCE_DIR BUILD_DIR CMAKE CC     tests the daemon with the library from a build
       daemon_test.py SOURCE_DIR                        tests it in an emulator, with the library from docs/porting.md
"""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

WARNINGS = ["-std=c90", "-pedantic-errors", "-Wall", "-Wextra", "-Wshadow", "-Wconversion", "-Wformat=2", "-Werror"]
LONG = 60  # seconds after which a hanging daemon is killed


def run(*command, **options):
    result = subprocess.run([str(part) for part in command], capture_output=True, text=True, check=False, **options)
    if result.returncode != 0:
        raise AssertionError("%s\n%s%s" % (command, result.stdout, result.stderr))
    return result.stdout


def installed_natively(scratch):
    build, cmake = sys.argv[2:4]
    run(cmake, "--install", build, "--prefix", scratch / "usr")
    return scratch / "usr", sys.argv[4], []


def installed_as_documented(scratch):
    block = re.search(r"```sh\n(prefix=(\S+)\n.*?)```", (SOURCE / "docs/porting.md").read_text(), re.S)
    for entry in SOURCE.iterdir():
        if entry.name != "build":
            (scratch / entry.name).symlink_to(entry)
    needed = re.findall(r"\(NEEDED\).*\[(.*)\]", run("sh", "-e", "-c", block[1], cwd=scratch))
    if not needed or set(needed) - {"libc.so.6", "ld.so.1"}:
        raise AssertionError("the library needs %s" % needed)
    usr = scratch / "build/image/usr"
    prefix = block[2]
    return usr, prefix + "-gcc", ["qemu-" + prefix.split("-")[0], "-L", "/usr/" + prefix, "-E",
                                  "LD_LIBRARY_PATH=%s" % (usr / "lib")]


class Daemon(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.scratch = pathlib.Path(tempfile.mkdtemp())
        cls.addClassCleanup(shutil.rmtree, cls.scratch)
        install = installed_natively if len(sys.argv) > 2 else installed_as_documented
        usr, compiler, cls.emulator = install(cls.scratch)
        (library,) = usr.rglob("libostrel_check.so")
        cls.environment = dict(os.environ)
        if not cls.emulator:
            cls.environment["LD_LIBRARY_PATH"] = str(library.parent)
        cls.programs = [cls.scratch / "configd"]
        cls.build(compiler, usr, library, cls.programs[0])
        if not cls.emulator:
            # The sanitizers detect any buffer in the daemon that is too small.
            cls.programs.append(cls.scratch / "configd_sanitized")
            cls.build(compiler, usr, library, cls.programs[1], "-g1", "-fsanitize=address,undefined",
                      "-fno-sanitize-recover=all")

    @staticmethod
    def build(compiler, usr, library, program, *flags):
        run(compiler, *WARNINGS, *flags, "-I", usr / "include", DAEMON, "-L", library.parent, "-lostrel_check",
            "-o", program)

    def judge(self, lines):
        results = [subprocess.run([*self.emulator, str(program)], input=lines, capture_output=True, check=False,
                                  env=self.environment, timeout=LONG) for program in self.programs]
        for program, result in zip(self.programs, results):
            self.assertEqual(0, result.returncode, (program.name, result.stderr))
        return [(result.stdout, result.stderr) for result in results]

    def assert_answers(self, expected, lines):
        for answers, _ in self.judge(lines):
            self.assertEqual(expected, answers)

    def test_answers_and_logs(self):
        lines = (b"lan.address 192.168.1.1\nlan.address 192.168.1.256\nwan.mtu 1492\nwan.mtu 1541\n"
                 b"wlan.ssid Tom &amp; Anna\nwlan.ssid Caf\xe9\nacs.interval 3600\nacs.interval 30;reboot\n"
                 b"time.zone UTC+01:00\ntime.zone CET\n")
        for answers, log in self.judge(lines):
            self.assertEqual(
                b"lan.address: accepted as 192.168.1.1\nlan.address: refused, 402\nwan.mtu: accepted as 1492\n"
                b"wan.mtu: refused, 402\nwlan.ssid: accepted as Tom & Anna\nwlan.ssid: refused, 803\n"
                b"acs.interval: accepted as 3600\nacs.interval: refused, 803\ntime.zone: accepted as +01:00\n"
                b"time.zone: refused, -1\n", answers)
            self.assertEqual(
                b"configd: lan.address: 402: \n"
                b"configd: wan.mtu: 402: Error in L3FORWARDING_check_MTU: Invalid MTU:1541, RANGE[1, 1540]\\x0A\n"
                b"configd: wlan.ssid: 803: Info in TcmValidateSSID: The lenght of SSID is 4\\x0A\\x0A"
                b"Error in WLAN_check_ssid: Error SSID:Caf\\xE9\\x0A\n"
                b"configd: acs.interval: 803: \nconfigd: time.zone: -1: \n", log)

    def test_secrets_are_in_no_log(self):
        secrets = [b"s3cret\x81", b"s3cret" * 20, b"s3cret"]
        lines = b"".join(b"%s %s\n" % (name, secret)
                         for name in (b"wlan.key", b"guest.password") for secret in secrets)
        for answers, log in self.judge(lines):
            self.assertEqual(6, answers.count(b"\n"))
            self.assertIn(b"guest.password: accepted\n", answers)
            self.assertIn(b"guest.password: 802", log)
            self.assertNotIn(b"s3cret", answers + log)

    def test_what_does_not_return_cannot_be_asked(self):
        self.assert_answers(b"no such setting\n" * 3, b"PARAM_check_ui4_value 1\nPARAM_check_ui2_value 1\nuptime 1\n")
        self.assertNotRegex(DAEMON.read_text(), r"PARAM_check_ui[24]_value\(")

    def test_nobody_need_read_the_reports(self):
        """The output far exceeds the capacity of a pipe, and the library flushes it at each refusal."""
        count = 2000
        self.assert_answers(b"wan.mtu: refused, 402\n" * count, b"wan.mtu 9999%s\n" % (b"x" * 200) * count)

    def test_buffers_have_room(self):
        for length in (0, 3, 246, 252):
            zone = b"+" * length
            kept = zone or b"+00:00"
            self.assert_answers(b"time.zone: accepted as %s\n" % kept, b"time.zone UTC%s\n" % zone)
        for length in (253, 700, 5000):
            self.assert_answers(b"time.zone: refused, 802\nno such setting\n",
                                b"time.zone UTC%s\nx\n" % (b"+" * length))
        self.assert_answers(b"no such setting\nwan.mtu: refused, 402\n", b"x" * 5000 + b"\n" + b"wan.mtu\x00 1\n")
        self.assert_answers(b"wlan.ssid: refused, 801\nwlan.ssid: refused, 801\n", b"wlan.ssid\nwlan.ssid ")
        self.assert_answers(b"wlan.ssid: refused, 802\n", b"wlan.ssid " + b"&#65;" * 51)

    def test_control_bytes_do_not_reach_a_log(self):
        every_byte = bytes(set(range(1, 256)) - {10})
        for _, log in self.judge(b"wan.mtu 0%s\nwlan.ssid \x1b[2J\n" % every_byte[:240]):
            self.assertEqual(b"", re.sub(rb"[\n -~]", b"", log))


if __name__ == "__main__":
    SOURCE = pathlib.Path(sys.argv[1]).resolve()
    DAEMON = SOURCE / "examples/daemon/configd.c"
    unittest.main(argv=sys.argv[:1])
