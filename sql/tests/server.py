"""Starts PostgreSQL servers for tests. A server runs as a user other than root, from a copy of its installation that
includes the extension, and its socket is in a temporary folder. It stops when the test ends, even if the test is
killed."""

import os
import pathlib
import shutil
import subprocess
import tempfile

VERSION = "15"
LIBRARY = pathlib.Path("/usr/lib/postgresql") / VERSION
SHARED = pathlib.Path("/usr/share/postgresql") / VERSION
USER = "tester"
OTHER = "nobody"

CONFIGURATION = """
listen_addresses = ''
fsync = off
shared_buffers = 64MB
log_min_messages = warning
max_parallel_workers_per_gather = 0
"""


class Failed(Exception):
    """Failed contains the error output of psql."""


def as_other(command, *options):
    """as_other returns a command that runs the given command as a user other than root. The options are for setpriv."""
    if os.geteuid() == 0:
        options = ("--reuid", OTHER, "--regid", "nogroup", "--clear-groups", *options)
    return ["setpriv", *options, *map(str, command)] if options else list(map(str, command))


class Tree:
    """Tree is a copy of the server's installation, to which the extension is added. Only the programs are real copies,
    because they look for the other files relative to their own location. The other files are symbolic links."""

    def __init__(self, source, build, is_installed=True):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="ostrel-"))
        try:
            self.binaries = self.folder / LIBRARY.relative_to("/") / "bin"
            shutil.copytree(LIBRARY / "bin", self.binaries)
            (self.binaries.parent / "lib").mkdir()
            for entry in (LIBRARY / "lib").glob("*.so"):
                (self.binaries.parent / "lib" / entry.name).symlink_to(entry)
            shared = self.folder / SHARED.relative_to("/")
            (shared / "extension").mkdir(parents=True)
            for folder in (SHARED, SHARED / "extension"):
                for entry in folder.iterdir():
                    if entry.name != "extension":
                        (shared / folder.relative_to(SHARED) / entry.name).symlink_to(entry)
            if is_installed:
                self.install(source, build)
            self.folder.chmod(0o755)
        except BaseException:
            self.remove()
            raise

    def install(self, source, build):
        subprocess.run(["make", "-s", "-f", source / "sql/postgresql/Makefile", "install", "DESTDIR=%s" % self.folder,
                        "OSTREL_BUILD=%s" % build], cwd=build / "postgresql", check=True)

    def remove(self):
        shutil.rmtree(self.folder)


class Server:
    def __init__(self, tree, name="server", configuration=""):
        self.tree = tree
        self.folder = tree.folder / name
        self.process = None
        self.folder.mkdir()
        self.data, self.log = self.folder / "data", self.folder / "log"
        if os.geteuid() == 0:
            shutil.chown(self.folder, OTHER)
        subprocess.run(as_other([tree.binaries / "initdb", "-D", self.data, "-U", USER, "-A", "trust", "-E", "UTF8",
                                 "--locale=C", "--no-sync", "--no-instructions"]), check=True, cwd=self.folder,
                       stdout=subprocess.DEVNULL)
        (self.data / "postgresql.auto.conf").write_text(
            CONFIGURATION + "unix_socket_directories = '%s'\n" % self.folder + configuration)
        self.start()

    def start(self):
        with open(self.log, "ab") as log:
            # If this process ends for any reason, the server receives a signal to shut down immediately.
            self.process = subprocess.Popen(
                as_other([self.tree.binaries / "postgres", "-D", self.data], "--pdeathsig", "QUIT"),
                cwd=self.folder, stdin=subprocess.DEVNULL, stdout=log, stderr=subprocess.STDOUT)
        ready = [self.tree.binaries / "pg_isready", "-q", "-t", "1", "-h", self.folder]
        for _ in range(600):
            if subprocess.run(ready, check=False).returncode == 0:
                return
            if self.process.poll() is not None:
                break
            try:
                self.process.wait(0.1)
            except subprocess.TimeoutExpired:
                pass
        raise Failed(self.log.read_text(errors="replace"))

    def stop(self):
        if self.process is not None:
            self.process.terminate()  # the server waits for its sessions to end
            try:
                self.process.wait(10)
            except subprocess.TimeoutExpired:
                self.process.send_signal(3)
                self.process.wait()
            self.process = None

    def environment(self):
        # The tests expect messages in the C locale.
        return {**os.environ, "PGHOST": str(self.folder), "PGUSER": USER, "LC_ALL": "C", "PGDATABASE": "postgres",
                "PATH": "%s:%s" % (self.tree.binaries, os.environ["PATH"])}

    def run(self, sql, database="postgres", check=True):
        """run runs SQL with psql, and returns the output without alignment or headers. It stops at the first error."""
        done = subprocess.run([self.tree.binaries / "psql", "-XqAt", "-v", "ON_ERROR_STOP=1", "-v", "VERBOSITY=verbose",
                               "-d", database, "-f", "-"],
                              check=False, input=sql.encode(), env=self.environment(), stdout=subprocess.PIPE,
                              stderr=subprocess.PIPE)
        if check and done.returncode != 0:
            raise Failed(done.stderr.decode(errors="replace"))
        return done.stdout.decode(errors="replace") if check else done

    def lines(self, sql, database="postgres"):
        return self.run(sql, database).rstrip("\n").split("\n")
