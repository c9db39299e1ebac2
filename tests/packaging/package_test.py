"""Looks into the Debian package that scripts/package built."""

import gzip
import os
import re
import subprocess
import tempfile
import unittest
from pathlib import Path

SOURCE = Path(os.environ["HALVANE_SOURCE"])
PACKAGES = Path(os.environ["HALVANE_PACKAGES"])
VERSION = os.environ["HALVANE_VERSION"]
HOMES = tuple(f"/{name}/" for name in ("home", "root"))  # of whoever builds
PROGRAMS = ("usr/bin/halvane-tools", "usr/bin/halvane-report")
# Their licences would bind a program that they are put into, so they stay files of their own.
LIBRARIES_OF_THEIR_OWN = {"halvane-tools": ("libmspack.so", "libQt6Widgets.so", "libQt6Svg.so")}


def run(*command):
    """What a command printed; it has to succeed."""
    done = subprocess.run([str(word) for word in command], stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                          env={**os.environ, "LC_ALL": "C.UTF-8"}, check=False)
    assert done.returncode == 0, done.stdout
    return done.stdout


def package(name):
    found = list(PACKAGES.glob(f"{name}_*.deb"))
    assert len(found) == 1, found
    return found[0]


class Package(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.root = PACKAGES / "unpacked"
        cls.symbols = PACKAGES / "unpacked symbols"
        for name, folder in (("halvane-tools", cls.root), ("halvane-tools-dbgsym", cls.symbols)):
            subprocess.run(["rm", "-rf", str(folder)], check=True)
            run("dpkg-deb", "--raw-extract", package(name), folder)

    def control(self, field):
        return run("dpkg-deb", "--field", package("halvane-tools"), field).strip()

    def test_lintian_has_nothing_to_say(self):
        # Both at once, since the symbols share the folder of documents.
        self.assertEqual(run("lintian", "--pedantic", "--display-info", "--fail-on", "pedantic,info,warning,error",
                             "--allow-root", package("halvane-tools"), package("halvane-tools-dbgsym")), "")

    def test_each_override_has_its_reason_above_it(self):
        before = ""
        for line in (self.root / "usr/share/lintian/overrides/halvane-tools").read_text(encoding="utf-8").splitlines():
            if line and not line.startswith("#"):
                self.assertTrue(before.startswith("# "), line)
            before = line

    def test_dependencies_are_those_of_the_programs_and_what_these_load_by_name(self):
        needed = {word.split()[0] for word in self.control("Depends").split(", ")}
        self.assertTrue({"libqt6widgets6", "libmspack0", "libstdc++6", "libxcb1"} <= needed, needed)
        self.assertTrue({"qt6-qpa-plugins", "libqt6svg6"} <= needed, needed)

    def test_programs_are_hardened(self):
        for name in PROGRAMS:
            program = self.root / name
            head = run("readelf", "--file-header", "--program-headers", "--dynamic", "--wide", program)
            self.assertRegex(head, r"Type:\s+DYN \(Position-Independent Executable", name)
            self.assertIn("GNU_RELRO", head)
            self.assertRegex(head, r"FLAGS\S*\).*\bNOW\b", name)
            self.assertRegex(head, r"GNU_STACK.* RW ", name)
            self.assertNotIn("RUNPATH", head)
            asked = run("readelf", "--dyn-syms", "--wide", program)
            self.assertIn("__stack_chk_fail", asked)
        # The other one calls nothing of which the compiler knows the size of the buffer.
        self.assertRegex(run("readelf", "--dyn-syms", "--wide", self.root / PROGRAMS[1]), r"__(?!stack)\w+_chk@")

    def test_functions_begin_with_landing_pads(self):
        if self.control("Architecture") != "amd64":
            self.skipTest("other processors know none")
        for name in PROGRAMS:
            code = run("objdump", "--disassemble", "--no-show-raw-insn", "--section=.text", self.root / name)
            pads = code.count("endbr64")
            # Functions that nothing calls indirectly need none; a compiler without the flag writes two or three.
            self.assertGreater(pads, 1000, name)

    def test_programs_are_stripped_and_their_symbols_are_in_the_other_package(self):
        for name in PROGRAMS:
            program = self.root / name
            self.assertNotIn(".symtab", run("readelf", "--sections", "--wide", program))
            number = re.search(r"Build ID: (\w+)", run("readelf", "--notes", program)).group(1)
            symbols = self.symbols / "usr/lib/debug/.build-id" / number[:2] / (number[2:] + ".debug")
            self.assertIn(".debug_info", run("readelf", "--sections", "--wide", symbols))

    def test_programs_name_no_folder_of_the_machine_that_built_them(self):
        symbols = sorted(self.symbols.rglob("*.debug"))
        self.assertGreaterEqual(len(symbols), len(PROGRAMS))
        for path in [self.root / name for name in PROGRAMS] + symbols:
            with tempfile.NamedTemporaryFile() as plain:
                run("objcopy", "--decompress-debug-sections", path, plain.name)
                text = run("strings", "--all", "--bytes=6", plain.name)
            # Names of the project are read, so folders would be.
            self.assertTrue("halvane" in text, path)
            for folder in (str(SOURCE), str(PACKAGES), *HOMES):
                self.assertFalse(folder in text, f"{path}: {folder}")

    def test_libraries_that_may_be_replaced_are_files_of_their_own(self):
        for name, libraries in LIBRARIES_OF_THEIR_OWN.items():
            needed = re.findall(r"NEEDED.*\[(.*?)\]", run("readelf", "--dynamic", self.root / "usr/bin" / name))
            for library in libraries:
                self.assertTrue(any(file.startswith(library) for file in needed), (name, library, needed))

    def test_documents_are_there(self):
        documents = self.root / "usr/share/doc/halvane-tools"
        self.assertIn("All rights reserved by the owner until a licence is chosen.",
                      (documents / "copyright").read_text(encoding="utf-8"))
        with gzip.open(documents / "changelog.Debian.gz", "rt", encoding="utf-8") as file:
            self.assertEqual(file.readline(), f"halvane-tools ({VERSION}-1) unstable; urgency=medium\n")
        with gzip.open(documents / "changelog.gz", "rt", encoding="utf-8") as file:
            self.assertEqual(file.read(), (SOURCE / "CHANGELOG.md").read_text(encoding="utf-8"))
        self.assertEqual(self.control("Version"), VERSION + "-1")
        for name in ("halvane-tools", "halvane-report"):
            page = self.root / f"usr/share/man/man1/{name}.1.gz"
            with gzip.open(page, "rt", encoding="utf-8") as file:
                self.assertIn(f"\n.Os Halvane Tools {VERSION}\n", file.read())
        for name in ("job-file.md", "results.md", "samples/packing-line.qjt"):
            self.assertTrue((documents / name).is_file(), name)


if __name__ == "__main__":
    unittest.main()
