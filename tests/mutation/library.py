"""Compiles and links the library with one changed file."""

import json
import pathlib
import re
import shlex
import shutil
import subprocess

LIBRARY = "libostrel_check.so"
OBJECTS = "src/CMakeFiles/ostrel_check.dir/"
# The headers are precompiled because parsing them would dominate the time of each compilation.
PRELUDE = "".join("#include <%s>\n" % name for name in
                  ("cstddef", "cstdint", "cstdio", "cstdlib", "cstring", "string_view"))


def run(command, **options):
    return subprocess.run(command, check=False, stdin=subprocess.DEVNULL, capture_output=True, text=True, **options)


class Build:
    """Build contains the commands that compile and link the sources of one library in a build folder."""

    def __init__(self, root, folder, objects):
        self.folder = folder
        self.objects = objects
        self.commands = {}
        for entry in json.loads((folder / "compile_commands.json").read_text()):
            words = shlex.split(entry["command"])
            output = words.index("-o")
            if words[output + 1].startswith(objects):
                kept = [word for word in words[:output] if not word.startswith("-W")]
                file = str(pathlib.Path(entry["file"]).relative_to(root))
                self.commands[file] = (kept[1:] if "ccache" in kept[0] else kept) + ["-w"]

    def bring_up_to_date(self, *targets):
        done = run(["ninja", "-C", str(self.folder), *targets])
        if done.returncode != 0:
            raise SystemExit(done.stdout + done.stderr)

    def link_command(self, target):
        lines = run(["ninja", "-C", str(self.folder), "-t", "commands", target]).stdout.splitlines()
        return [word for word in shlex.split(lines[-1]) if word not in (":", "&&")]

    def name_of_object(self, file):
        return self.objects + file.partition("/")[2] + ".o"

    def object_of(self, file):
        return self.folder / self.name_of_object(file)


class Sources:
    """Sources contains the library's files and the headers that each of them includes."""

    def __init__(self, root):
        self.root = root
        self.files = sorted(str(path.relative_to(root)) for path in root.glob("src/**/*")
                            if path.suffix in (".cpp", ".h"))
        self.text = {file: (root / file).read_text() for file in self.files}
        self.includes = {file: set(re.findall(r'^#include ["<]([^">]+)[">]', text, re.MULTILINE))
                         for file, text in self.text.items()}

    def including(self, header):
        """including returns the .cpp files that include a header in src/, directly or through other headers."""
        seen, waiting = set(), [header]
        while waiting:
            name = waiting.pop()
            for file in self.files:
                if name in self.includes[file] and file not in seen:
                    seen.add(file)
                    waiting.append(file)
        return sorted(file for file in seen if file.endswith(".cpp"))

    def dependent(self, file):
        """dependent returns the .cpp files whose behaviour a change in the file can affect."""
        found, waiting = {file}, [file]
        while waiting:
            name = waiting.pop()
            path = pathlib.PurePath(name)
            exported = "ostrel/%s.h" % path.relative_to("src").with_suffix("")
            users = set(self.including(str(path.with_suffix(".h"))))
            users |= {user for user in self.files if exported in self.includes[user]
                      and user != name and user.endswith(".cpp")}
            waiting.extend(users - found)
            found |= users
        return sorted(found)


class LibraryBuild(Build):
    """LibraryBuild builds the library and the tests that can notice a change in it."""

    def __init__(self, folder, sources):
        super().__init__(sources.root, folder, OBJECTS)
        self.sources = sources
        self.links = {LIBRARY: self.link_command("lib/" + LIBRARY)}

    def link_command(self, target):
        return super().link_command(target) + (["-fuse-ld=gold"] if shutil.which("ld.gold") else [])

    def compiled_in(self, file):
        """compiled_in returns the test programs that contain their own copy of this library source file."""
        objects = self.folder.glob("tests/**/CMakeFiles/*.dir/__/__/%s.o" % file)
        names = {re.search(r"CMakeFiles/(\w+)\.dir/", str(path)).group(1) for path in objects}
        return sorted(name for name in names if name.endswith("_test") and (self.folder / "bin" / name).exists())


class Workshop:
    """Workshop is a folder in which changed libraries are built, one at a time."""

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
        output = self.folder / self.build.name_of_object(file)
        output.parent.mkdir(parents=True, exist_ok=True)
        words = self.build.commands[file]
        done = run([words[0], *options, *words[1:], "-o", str(output), "-c", str(source)], cwd=self.build.folder)
        return output if done.returncode == 0 else None

    def make(self, file, text):
        """make returns "made", "same" if the change leaves the object code unchanged, or "broken"."""
        overlay = self.folder / "overlay"
        shutil.rmtree(overlay, ignore_errors=True)
        shutil.rmtree(self.folder / OBJECTS, ignore_errors=True)
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
        replaced = {self.build.name_of_object(user): str(path) for user, path in objects.items()}
        if not self.link(self.build.links[LIBRARY], self.folder / "lib" / LIBRARY, replaced):
            return "broken"
        for program in self.build.compiled_in(file):
            command = self.build.links.setdefault(program, self.build.link_command("bin/" + program))
            inner = {word: str(objects[file]) for word in command if word.endswith("__/__/%s.o" % file)}
            if not self.link(command, self.folder / "bin" / program, inner):
                return "broken"
        return "made"

    def link(self, command, output, replaced):
        """link returns whether linking succeeded. It may fail because a change leaves a symbol undefined."""
        words = [replaced.get(word, word) for word in command]
        words[words.index("-o") + 1] = str(output)
        return run(words, cwd=self.build.folder).returncode == 0
