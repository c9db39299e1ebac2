#!/usr/bin/env python3
"""scripts/compile_help gives equal bytes for equal pages, and fails loudly.

Usage: compile_help_test.py SOURCE_FOLDER
"""

import importlib.machinery
import importlib.util
import os
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

SOURCE = Path(sys.argv.pop(1)) if len(sys.argv) > 1 else Path(".")
SCRIPT = SOURCE / "scripts" / "compile_help"
PROJECT = "help.hhp"


def load_script():
    sys.dont_write_bytecode = True
    loader = importlib.machinery.SourceFileLoader("compile_help", str(SCRIPT))
    module = importlib.util.module_from_spec(importlib.util.spec_from_loader("compile_help", loader))
    loader.exec_module(module)
    return module


class CompileHelp(unittest.TestCase):
    def setUp(self):
        self.folder = Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.folder)
        self.pages = self.folder / "pages"
        shutil.copytree(SOURCE / "help" / "content", self.pages)
        self.output = self.folder / "out" / "QJT Tools 1.chm"

    def run_script(self, *options, pages=None, output=None, **environment):
        return subprocess.run(
            [sys.executable, "-B", SCRIPT, *options, (pages or self.pages) / PROJECT, output or self.output],
            env={**os.environ, **environment},
            stdout=subprocess.PIPE,
            stderr=subprocess.PIPE,
            text=True,
            check=False,
        )

    def compiled(self, **places):
        done = self.run_script(**places)
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        self.assertEqual(list(self.folder.rglob("*.new")), [])
        return (places.get("output") or self.output).read_bytes()

    def replace(self, name, old, new):
        page = self.pages / name
        text = page.read_text(encoding="ascii")
        self.assertIn(old, text)
        page.write_text(text.replace(old, new), encoding="ascii")

    def assert_fails(self, *words, **options):
        """It fails, names each of the words, and leaves an older output as it was."""
        self.output.parent.mkdir(exist_ok=True)
        self.output.write_bytes(b"old")
        done = self.run_script(*options.pop("arguments", ()), **options)
        self.assertNotEqual(done.returncode, 0)
        for word in words:
            self.assertIn(word, done.stderr)
        self.assertNotIn("Traceback", done.stderr)
        self.assertEqual(self.output.read_bytes(), b"old")
        self.assertEqual([each.name for each in self.output.parent.iterdir()], [self.output.name])

    def fake_compiler(self, script):
        folder = self.folder / "bin"
        folder.mkdir()
        program = folder / "chmcmd"
        program.write_text("#!/bin/sh\n" + script, encoding="ascii")
        program.chmod(0o755)
        return f"{folder}{os.pathsep}{os.environ['PATH']}"

    def test_equal_pages_give_equal_bytes_elsewhere_and_at_another_time(self):
        elsewhere = self.folder / "a longer name of a folder" / "pages"
        shutil.copytree(self.pages, elsewhere)
        for page in elsewhere.iterdir():
            os.utime(page, (1_000_000_000, 1_000_000_000))
        # The stamp in the file counts seconds; two runs in one second could be equal by chance.
        faketime = self.fake_compiler(
            f'{shutil.which("chmcmd")} "$@" || exit 1\n'
            "printf '\\1\\2\\3\\4' | dd of='QJT Tools 1.chm' bs=1 seek=16 conv=notrunc 2>/dev/null\n"
        )
        one = self.compiled()
        two = self.compiled(pages=elsewhere, output=self.folder / "two.chm", PATH=faketime, TZ="Asia/Tokyo")
        self.assertEqual(one, two)

    def test_a_changed_page_gives_other_bytes(self):
        one = self.compiled()
        self.replace("units.htm", "inches", "thumbs")
        self.assertNotEqual(one, self.compiled())

    def test_header_is_as_readers_ask_for(self):
        data = self.compiled()
        self.assertEqual(data[:4], b"ITSF")
        self.assertEqual(data[0x10:0x14], bytes(4))
        self.assertEqual(data[0x28], 0x11)

    def test_description_has_no_time(self):
        script = load_script()
        help_file = script.CompiledHelp(self.compiled())
        section, offset, length = help_file.entries["/#SYSTEM"]
        self.assertEqual(section, 0)
        start = help_file.content + offset
        records, place = {}, start + 4
        while place < start + length:
            kind, size = script.struct.unpack_from("<HH", help_file.data, place)
            records[kind] = bytes(help_file.data[place + 4 : place + 4 + size])
            place += 4 + size
        self.assertEqual(records[10], bytes(4))
        self.assertEqual(records[3].rstrip(b"\0"), b"Halvane Tools")
        self.assertEqual(records[2].rstrip(b"\0"), b"welcome.htm")

    def test_directory_has_every_file_with_its_size(self):
        script = load_script()
        help_file = script.CompiledHelp(self.compiled())
        for file in self.pages.iterdir():
            if file.suffix in (".htm", ".css", ".hhc"):
                self.assertEqual(help_file.entries["/" + file.name][2], file.stat().st_size, file.name)

    def test_missing_page_is_named(self):
        (self.pages / "units.htm").unlink()
        self.assert_fails("units.htm is missing", PROJECT)

    def test_missing_contents_are_named(self):
        (self.pages / "help.hhc").unlink()
        self.assert_fails("help.hhc is missing")

    def test_missing_project_is_named(self):
        (self.pages / PROJECT).unlink()
        self.assert_fails(PROJECT)

    def test_broken_projects_fail(self):
        for old, new, word in (
            ("Title=Halvane Tools\n", "", '"Title"'),
            ("Compiled file=QJT Tools 1.chm\n", "", '"Compiled file"'),
            ("Default topic=welcome.htm", "Default topic=start.htm", "start.htm"),
            ("[FILES]", "[PAGES]", "no pages"),
            ("units.htm\n", "units.htm\nunits.htm\n", "units.htm twice"),
        ):
            with self.subTest(word):
                sound = (self.pages / PROJECT).read_text(encoding="ascii")
                self.replace(PROJECT, old, new)
                self.assert_fails(word)
                (self.pages / PROJECT).write_text(sound, encoding="ascii")

    def test_link_to_an_anchor_that_is_not_there_fails(self):
        self.replace("batch.htm", "#score", "#nowhere")
        self.assert_fails("#nowhere")

    def test_compiler_that_is_not_installed_is_named(self):
        self.assert_fails("chmcmd is not installed", PATH=str(self.folder))

    def test_compiler_that_writes_nothing_fails(self):
        self.assert_fails("wrote no QJT Tools 1.chm", PATH=self.fake_compiler("exit 0\n"))

    def test_compiler_that_writes_something_else_fails(self):
        path = self.fake_compiler("echo nonsense > 'QJT Tools 1.chm'\n")
        self.assert_fails("no compiled HTML help file", PATH=path)

    def test_compiled_file_that_is_cut_short_fails(self):
        real = shutil.which("chmcmd")
        path = self.fake_compiler(f"{real} \"$@\" || exit 1\ntruncate -s 300 'QJT Tools 1.chm'\n")
        self.assert_fails("compile_help: ", PATH=path)

    def test_file_that_was_left_out_is_named(self):
        real = shutil.which("chmcmd")
        path = self.fake_compiler(f"sed -i '/^Contents file/d' {PROJECT}\nexec {real} \"$@\"\n")
        self.assert_fails("help.hhc is not in the compiled file", PATH=path)

    def test_page_that_lost_its_end_is_named(self):
        real = shutil.which("chmcmd")
        path = self.fake_compiler(f"truncate -s 100 keyboard.htm\nexec {real} \"$@\"\n")
        self.assert_fails("keyboard.htm has", PATH=path)

    def test_verifier_that_finds_something_stops_it(self):
        verifier = self.folder / "verifier"
        script = '#!/bin/sh\ntest -f "$1" && test -f "$2/units.htm" && echo odd\nexit 1\n'
        verifier.write_text(script, encoding="ascii")
        verifier.chmod(0o755)
        self.assert_fails("odd", arguments=("--verifier", verifier))

    def test_verifier_sees_the_compiled_file_and_its_sources_alone(self):
        verifier = self.folder / "verifier"
        verifier.write_text(f'#!/bin/sh\nls "$2" > {self.folder}/seen\ncp "$1" {self.folder}/compiled\n', encoding="ascii")
        verifier.chmod(0o755)
        done = self.run_script("--verifier", verifier)
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        seen = (self.folder / "seen").read_text(encoding="utf-8").splitlines()
        wanted = [each.name for each in self.pages.iterdir() if each.suffix in (".htm", ".css", ".hhc")]
        self.assertEqual(sorted(seen), sorted(wanted))
        self.assertEqual((self.folder / "compiled").read_bytes(), self.output.read_bytes())


if __name__ == "__main__":
    unittest.main()
