"""The library with one file changed: compiled, linked, and what of the tests can notice."""

import json
import pathlib
import re
import shlex
import shutil
import subprocess

LIBRARY = "libostrel_check.so"
OBJECTS = "src/CMakeFiles/ostrel_check.dir/"
# Read once and for all: without it these take most of the time of each compilation.
PRELUDE = "".join("#include <%s>\n" % name for name in
                  ("cstddef", "cstdint", "cstdio", "cstdlib", "cstring", "string_view"))


def run(command, **options):
    return subprocess.run(command, check=False, stdin=subprocess.DEVNULL, capture_output=True, text=True, **options)


class Sources:
    """Sources are the library's files and who includes whom."""

    def __init__(self, root):
        self.root = root
        self.files = sorted(str(path.relative_to(root)) for path in root.glob("src/**/*")
                            if path.suffix in (".cpp", ".h"))
        self.text = {file: (root / file).read_text() for file in self.files}
        self.includes = {file: set(re.findall(r'^#include ["<]([^">]+)[">]', text, re.MULTILINE))
                         for file, text in self.text.items()}

    def including(self, header):
        """including gives the .cpp files that see a header of src/, on whatever way."""
        seen, waiting = set(), [header]
        while waiting:
            name = waiting.pop()
            for file in self.files:
                if name in self.includes[file] and file not in seen:
                    seen.add(file)
                    waiting.append(file)
        return sorted(file for file in seen if file.endswith(".cpp"))

    def dependent(self, file):
        """dependent gives the .cpp files whose answers the file can change."""
        found, waiting = {file}, [file]
        while waiting:
            name = waiting.pop()
            path = pathlib.PurePath(name)
            headers = [str(path.with_suffix(".h"))]
            exported = "ostrel/%s.h" % path.relative_to("src").with_suffix("")
            users = {user for header in headers for user in self.including(header)}
            users |= {user for user in self.files if exported in self.includes[user]
                      and user != name and user.endswith(".cpp")}
            waiting.extend(users - found)
            found |= users
        return sorted(found)


class Build:
    """Build knows how a build folder compiles and links."""

    def __init__(self, folder, sources):
        self.folder = folder
        self.sources = sources
        self.commands = {}
        for entry in json.loads((folder / "compile_commands.json").read_text()):
            words = shlex.split(entry["command"])
            output = words[words.index("-o") + 1]
            if output.startswith(OBJECTS):
                file = str(pathlib.Path(entry["file"]).relative_to(sources.root))
                kept = [word for word in words[:words.index("-o")] if not word.startswith("-W")]
                self.commands[file] = (kept[1:] if "ccache" in kept[0] else kept) + ["-w"]
        self.links = {LIBRARY: self.link_command("lib/" + LIBRARY)}

    def link_command(self, target):
        lines = run(["ninja", "-C", str(self.folder), "-t", "commands", target]).stdout.splitlines()
        words = shlex.split(lines[-1])
        linker = ["-fuse-ld=gold"] if shutil.which("ld.gold") else []
        return [word for word in words if word not in (":", "&&")] + linker

    def bring_up_to_date(self, programs):
        """bring_up_to_date builds what the tests need, as a rule nothing."""
        done = run(["ninja", "-C", str(self.folder), "lib/" + LIBRARY, *("bin/" + name for name in programs)])
        if done.returncode != 0:
            raise SystemExit(done.stdout + done.stderr)

    def object_of(self, file):
        return self.folder / OBJECTS / (file.removeprefix("src/") + ".o")

    def compiled_in(self, file):
        """compiled_in gives the test programs into which a source of the library is compiled once more."""
        objects = self.folder.glob("tests/**/CMakeFiles/*.dir/__/__/%s.o" % file)
        names = {re.search(r"CMakeFiles/(\w+)\.dir/", str(path)).group(1) for path in objects}
        return sorted(name for name in names if name.endswith("_test") and (self.folder / "bin" / name).exists())


class Workshop:
    """Workshop is a folder in which one changed library after the other is made."""

    def __init__(self, build, folder):
        self.build = build
        self.folder = folder
        shutil.rmtree(folder, ignore_errors=True)
        (folder / "lib").mkdir(parents=True)
        (folder / "bin").mkdir()
        (folder / "cwd").mkdir()
        self.prelude = folder / "prelude.h"
        self.prelude.write_text(PRELUDE)
        words = next(iter(build.commands.values()))
        run([*words, "-x", "c++-header", "-o", str(self.prelude) + ".gch", "-c", str(self.prelude)],
            cwd=build.folder)

    def compile(self, source, file, options=()):
        options = [*options, "-include", str(self.prelude)]
        output = self.folder / "objects" / (file.removeprefix("src/") + ".o")
        output.parent.mkdir(parents=True, exist_ok=True)
        words = self.build.commands[file]
        done = run([words[0], *options, *words[1:], "-o", str(output), "-c", str(source)], cwd=self.build.folder)
        return output if done.returncode == 0 else None

    def make(self, file, text):
        """make builds with the text in place of the file's: gives "made", "same" (as before) or "broken"."""
        overlay = self.folder / "overlay"
        shutil.rmtree(overlay, ignore_errors=True)
        shutil.rmtree(self.folder / "objects", ignore_errors=True)
        changed = overlay / file
        changed.parent.mkdir(parents=True)
        changed.write_text(text)
        objects = {}
        if file.endswith(".cpp"):
            objects[file] = self.compile(changed, file)
        else:
            for user in self.build.sources.including(file):
                objects[user] = self.compile(self.build.sources.root / user, user, ["-I", str(overlay)])
                if objects[user] is None:
                    break
        if None in objects.values():
            return "broken"
        if all(path.read_bytes() == self.build.object_of(user).read_bytes() for user, path in objects.items()):
            return "same"
        replaced = {OBJECTS + user.removeprefix("src/") + ".o": str(path) for user, path in objects.items()}
        self.link(self.build.links[LIBRARY], self.folder / "lib" / LIBRARY, replaced)
        for program in self.build.compiled_in(file):
            command = self.build.links.setdefault(program, self.build.link_command("bin/" + program))
            inner = {word: str(objects[file]) for word in command if word.endswith("__/__/%s.o" % file)}
            self.link(command, self.folder / "bin" / program, inner)
        return "made"

    def link(self, command, output, replaced):
        words = [replaced.get(word, word) for word in command]
        words[words.index("-o") + 1] = str(output)
        done = run(words, cwd=self.build.folder)
        if done.returncode != 0:
            # A symbol that the change has made undefined.
            raise BrokenLink(done.stderr)


class BrokenLink(Exception):
    pass
