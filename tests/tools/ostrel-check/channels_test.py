"""Tests --channels for a user who is not root, and on systems that forbid mount namespaces.

usage: channels_test.py OSTREL_CHECK
"""

import json
import os
import shutil
import subprocess
import sys
import tempfile
import unittest

NOBODY = ["setpriv", "--reuid", "65534", "--regid", "65534", "--clear-groups"]
CASES = "PARAM_check_port 1\nWLAN_check_channel 6 RADIO_2.4GHz\nWLAN_check_channel 36 RADIO_5GHz\n"


def run(*command, text=""):
    return subprocess.run(command, input=text, capture_output=True, text=True, check=False)


class Channels(unittest.TestCase):
    def setUp(self):
        # Other users may have no access to the program's folder.
        self.folder = tempfile.mkdtemp()
        self.addCleanup(shutil.rmtree, self.folder)
        os.chmod(self.folder, 0o755)
        libraries = [line.split()[2] for line in run("ldd", PROGRAM).stdout.splitlines() if "libostrel" in line]
        for file in [PROGRAM, *libraries]:
            shutil.copy(file, self.folder)
        self.program = os.path.join(self.folder, "ostrel-check")

    def as_nobody(self, *words, before=(), text=""):
        user = NOBODY if os.geteuid() == 0 else []
        return run(*before, *user, "env", f"LD_LIBRARY_PATH={self.folder}", self.program, *words, text=text)

    def test_user_who_is_not_root_gets_a_var_of_their_own(self):
        user = NOBODY if os.geteuid() == 0 else []
        if run(*user, "unshare", "-Um", "true").returncode != 0:
            self.skipTest("users may not make namespaces here")
        shown = self.as_nobody("--channels", "1 6 11", "WLAN_check_channel", "6", "RADIO_2.4GHz")
        self.assertEqual((0, "accepted: 0, valid\n", ""), (shown.returncode, shown.stdout, shown.stderr))
        shown = self.as_nobody("batch", "--json", "--channels", "1 11", text=CASES)
        row = json.loads(shown.stdout.splitlines()[1])
        self.assertEqual(("refused", "not_listed_by_driver"), (row["verdict"], row["reason"]["id"]))

    def test_files_of_the_others_var_are_still_there(self):
        if os.geteuid() != 0 or run(*NOBODY, "unshare", "-Um", "true").returncode != 0:
            self.skipTest("needs root, and namespaces for users")
        with tempfile.NamedTemporaryFile("w", dir="/var", suffix=".txt") as cases:
            cases.write(CASES)
            cases.flush()
            os.chmod(cases.name, 0o644)
            shown = self.as_nobody("batch", "--channels", "1 6 11", cases.name)
            self.assertTrue(shown.stdout.endswith("3 cases: 3 accepted, 0 refused\n"), shown)

    def test_where_namespaces_are_forbidden_that_line_alone_is_not_judged(self):
        # The kernel does not allow a process with a changed root to create a user namespace.
        if os.geteuid() != 0 or run("unshare", "-m", "true").returncode != 0:
            self.skipTest("needs root")
        root = os.path.join(self.folder, "root")
        os.mkdir(root)
        before = ["unshare", "-m", "sh", "-c", f'mount --rbind / "{root}" && exec chroot "{root}" "$@"', "sh"]
        shown = self.as_nobody("batch", "--json", "--channels", "1 6 11", before=before, text=CASES)
        self.assertEqual(2, shown.returncode, shown)
        rows = [json.loads(line) for line in shown.stdout.splitlines()]
        self.assertEqual(["accepted", "no_driver", "accepted"], [row["verdict"] for row in rows[:-1]])
        self.assertEqual({"id": "no_driver_list",
                          "text": "the driver returned no list: --channels must write to /var/hnapwl0chlist, but this user has no "
                                  "permission, and the system does not allow a private mount namespace"},
                         rows[1]["reason"])
        shown = self.as_nobody("--channels", "1", "WLAN_check_channel", "6", "RADIO_2.4GHz", before=before)
        self.assertEqual(2, shown.returncode)
        self.assertTrue(shown.stdout.startswith("no driver: the channel was not judged (the driver returned no list: "))

    def test_without_it_the_file_cannot_be_written(self):
        if os.geteuid() != 0 and os.access("/var", os.W_OK):
            self.skipTest("this user may write to /var")
        shown = self.as_nobody("batch", "--json", text=CASES)
        row = json.loads(shown.stdout.splitlines()[1])
        self.assertEqual("the driver returned no list: /var/hnapwl0chlist cannot be written: Permission denied",
                         row["reason"]["text"])
        self.assertIn("/var/hnapwl0chlist", row["err"])


if __name__ == "__main__":
    PROGRAM = sys.argv[1]
    unittest.main(argv=sys.argv[:1])
