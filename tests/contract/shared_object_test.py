"""Checks the contents of the finished shared object with readelf.

usage: shared_object_test.py LIBRARY EMPTY SOURCE_DIR [READELF]

EMPTY is a library without code, built with the same compiler and link options. Everything in it comes from the
start-up files and is therefore allowed in LIBRARY.
"""

import collections
import os
import re
import subprocess
import sys
import unittest

Symbol = collections.namedtuple("Symbol", "name kind binding visibility defined")
Relocation = collections.namedtuple("Relocation", "kind symbol")

HOST_UTILITIES = {"cmsUtl_strcmp", "htmlToText"}
STARTUP_SYMBOLS = re.compile(r"_ITM_(de)?registerTMCloneTable|__cxa_finalize|__gmon_start__|__(de)?register_frame_info")
C_LIBRARIES = re.compile(r"libc\.so(\.[0-9]+)?|libc\.musl-[a-z0-9_]+\.so\.1")


def read(*arguments):
    environment = dict(os.environ, LC_ALL="C")
    return subprocess.run([READELF, "--wide", *arguments], check=True, capture_output=True, text=True,
                          env=environment).stdout


def plain(name):
    """plain removes the version suffix from the name of a C library symbol."""
    return name.split("@")[0]


def dynamic_symbols(path):
    symbols = []
    for line in read("--dyn-syms", path).splitlines():
        columns = line.split()
        if len(columns) < 8 or not re.fullmatch(r"\d+:", columns[0]):
            continue
        # For some targets, the list also contains section symbols.
        if columns[3] == "SECTION":
            continue
        symbols.append(Symbol(columns[7], columns[3], columns[4], columns[5], columns[6] != "UND"))
    return symbols


def relocations(path):
    found = []
    for line in read("--relocs", path).splitlines():
        columns = line.split()
        if len(columns) < 3 or not columns[2].startswith("R_"):
            continue
        # If a relocation has no symbol, the fourth column contains only the addend.
        found.append(Relocation(columns[2], plain(columns[4]) if len(columns) > 4 else ""))
    return found


def sections(path):
    found = {}
    for line in read("--sections", path).splitlines():
        match = re.match(r"\s*\[\s*\d+\]\s+(\S+)\s+\S+\s+[0-9a-f]+\s+[0-9a-f]+\s+([0-9a-f]+)\s+[0-9a-f]+\s+([A-Z]*)",
                         line)
        if match:
            found[match[1]] = (match[3], int(match[2], 16))
    return found


def listed(path):
    with open(path, encoding="ascii") as lines:
        return [line.strip() for line in lines if line.strip() and not line.startswith("#")]


class SharedObject(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        cls.header = read("--file-header", LIBRARY)
        cls.dynamic = read("--dynamic", LIBRARY)
        cls.segments = read("--segments", LIBRARY)
        cls.exports = [symbol for symbol in dynamic_symbols(LIBRARY) if symbol.defined]
        cls.imports = [symbol for symbol in dynamic_symbols(LIBRARY) if not symbol.defined and symbol.name]
        with open(os.path.join(SOURCE_DIR, "abi", "exports.map"), encoding="ascii") as export_map:
            cls.listed_exports = re.findall(r"(\w+);", export_map.read().split("local:")[0])
        cls.listed_imports = listed(os.path.join(SOURCE_DIR, "abi", "imports.txt"))

    def test_reading_finds_something(self):
        self.assertTrue(self.exports)
        self.assertTrue(self.imports)
        self.assertTrue(relocations(LIBRARY))
        self.assertIn(".text", sections(LIBRARY))

    def test_soname_and_file_name_have_no_version(self):
        self.assertEqual(["libostrel_check.so"], re.findall(r"\(SONAME\).*\[(.*)\]", self.dynamic))
        self.assertEqual("libostrel_check.so", os.path.basename(LIBRARY))
        self.assertFalse(os.path.islink(LIBRARY))

    def test_needs_the_c_library_alone(self):
        needed = re.findall(r"\(NEEDED\).*\[(.*)\]", self.dynamic)
        self.assertEqual(1, len(needed), needed)
        self.assertRegex(needed[0], "^(%s)$" % C_LIBRARIES.pattern)
        self.assertNotRegex(self.dynamic, r"\((RPATH|RUNPATH)\)")

    def test_exports_are_those_of_the_list(self):
        self.assertEqual(sorted(self.listed_exports), sorted(symbol.name for symbol in self.exports))

    def test_exports_are_ordinary_symbols_without_a_version(self):
        for symbol in self.exports:
            self.assertEqual("GLOBAL", symbol.binding, symbol)
            self.assertEqual("OBJECT" if symbol.name == "ostrel_ctype" else "FUNC", symbol.kind, symbol)
            self.assertEqual("DEFAULT", symbol.visibility, symbol)
        self.assertNotIn("Version definition section", read("--version-info", LIBRARY))

    def test_imports_are_within_the_list(self):
        self.assertEqual(sorted(set(self.listed_imports)), sorted(self.listed_imports), "a name is listed twice")
        unlisted = {plain(symbol.name) for symbol in self.imports} - set(self.listed_imports)
        self.assertEqual(set(), unlisted)

    def test_the_host_utilities_are_weak(self):
        for symbol in self.imports:
            if plain(symbol.name) in HOST_UTILITIES:
                self.assertEqual("WEAK", symbol.binding, symbol)

    def test_no_name_is_a_cpp_name(self):
        names = [symbol.name for symbol in self.exports + self.imports]
        self.assertEqual([], [name for name in names if name.startswith("_Z")])

    def test_no_writable_data_of_its_own(self):
        """A writable section must have the same size as in the empty library."""
        empty = sections(EMPTY)
        for name, (flags, size) in sections(LIBRARY).items():
            # The linker creates these sections; the loader fills them and makes them read-only.
            if "W" not in flags or name in (".dynamic", ".got", ".got.plt"):
                continue
            if name in (".got2", ".plt") and "PowerPC" in self.header:
                continue
            self.assertIn(name, empty)
            self.assertEqual(empty[name][1], size, name)

    def test_no_thread_data_no_start_up_code_and_no_exception_tables_of_its_own(self):
        names = set(sections(LIBRARY))
        self.assertEqual(set(), names & {".tdata", ".tbss", ".gcc_except_table", ".ctors", ".dtors"})
        self.assertNotRegex(self.segments, r"^\s+TLS\s")

    def test_no_relocation_of_its_own(self):
        """Apart from one relocation for each import, there must be as many relocations as in the empty library."""
        allowed = set(self.listed_imports)
        of_start_up_files = relocations(EMPTY)
        own = collections.Counter()
        for relocation in relocations(LIBRARY):
            if relocation.symbol:
                if relocation in of_start_up_files:
                    continue
                # RISC-V and PowerPC use one kind of relocation for all symbol addresses.
                self.assertRegex(relocation.kind, r"_(JU?MP_SLOT?|GLOB_DAT?)$|^R_(RISCV_64|PPC_ADDR32)$", relocation)
                self.assertIn(relocation.symbol, allowed)
            else:
                own[relocation.kind] += 1
        allowed_own = collections.Counter(
            relocation.kind for relocation in of_start_up_files if not relocation.symbol)
        if "PowerPC" in self.header:
            # 32-bit PowerPC code accesses data through a table of addresses, each entry of which needs a relocation.
            allowed_own["R_PPC_RELATIVE"] = own["R_PPC_RELATIVE"]
        self.assertEqual(allowed_own, own)

    def test_code_is_never_written_to(self):
        self.assertNotIn("TEXTREL", self.dynamic)
        loads = re.findall(r"^\s+LOAD\s.*0x[0-9a-f]+\s+([R ][W ][E ])\s+0x", self.segments, re.MULTILINE)
        self.assertTrue(loads)
        for flags in loads:
            self.assertNotRegex(flags, "WE")

    def test_all_is_bound_at_once_and_read_only_from_then_on(self):
        self.assertIn("BIND_NOW", self.dynamic)
        self.assertRegex(self.segments, r"(?m)^\s+GNU_RELRO\s")

    def test_no_floating_point(self):
        """Only MIPS has distinct names for floating-point instructions; the source is the same for all processors."""
        if "MIPS" not in self.header:
            return
        code = subprocess.run([READELF.replace("readelf", "objdump"), "--disassemble", "--no-show-raw-insn", LIBRARY],
                              check=True, capture_output=True, text=True).stdout
        instructions = {match[1] for match in re.finditer(r"^ *[0-9a-f]+:\t(\S+)", code, re.MULTILINE)}
        self.assertIn("jr", instructions)
        floating = re.compile(r"[ls][wd]x?c1|[mc][tf]h?c1|bc1\w+|\w+\.(s|d|w|l|ps)(\.\w+)?")
        self.assertEqual([], [name for name in instructions if floating.fullmatch(name)])

    def test_the_stack_is_not_executable(self):
        self.assertRegex(self.segments, r"(?m)^\s+GNU_STACK\s.*\sRW\s")

    def test_calls_inside_stay_inside(self):
        self.assertRegex(self.dynamic, r"SYMBOLIC")

    def test_every_loader_finds_its_hash_table(self):
        self.assertIn("(HASH)", self.dynamic)
        # On MIPS, the GNU hash table has a different form (XHASH), which no loader needs.
        self.assertEqual("MIPS" not in self.header, "(GNU_HASH)" in self.dynamic)
        self.assertNotIn("XHASH", self.dynamic)

    def test_the_empty_library_is_empty(self):
        """The tests above ignore everything that the empty library contains, so it must define nothing."""
        # musl's start-up files define two names, which the export list hides.
        names = {plain(symbol.name) for symbol in dynamic_symbols(EMPTY) if symbol.name} - {"_init", "_fini"}
        self.assertEqual(set(), {name for name in names if not STARTUP_SYMBOLS.fullmatch(name)})


if __name__ == "__main__":
    LIBRARY, EMPTY, SOURCE_DIR = sys.argv[1:4]
    READELF = sys.argv[4] if len(sys.argv) > 4 else "readelf"
    unittest.main(argv=sys.argv[:1])
