"""Installs into an empty folder and has the desktop's own tools read what arrived there."""

import configparser
import os
import re
import shutil
import stat
import struct
import subprocess
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree
from pathlib import Path

SOURCE = Path(os.environ["HALVANE_SOURCE"])
VERSION = os.environ["HALVANE_VERSION"]
SIZES = (16, 22, 24, 32, 48, 64, 128, 256, 512)
JOB_TYPE = "application/x-halvane-job"
IDENTIFIER = os.environ["HALVANE_IDENTIFIER"]
ICONS = ("apps/" + IDENTIFIER, "mimetypes/" + JOB_TYPE.replace("/", "-"))
LINK = re.compile(r"\]\(([^)#]+)")


def run(*command, **surroundings):
    """Exit status and what was printed."""
    done = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                          env={**os.environ, "LC_ALL": "C.UTF-8", **surroundings}, check=False)
    return done.returncode, done.stdout


class InstalledProgram(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = Path(tempfile.mkdtemp())
        cls.addClassCleanup(shutil.rmtree, cls.folder)
        # As a package is built, whatever the user of this machine has set.
        cls.addClassCleanup(os.umask, os.umask(0o022))
        status, said = run(os.environ["HALVANE_CMAKE"], "--install", os.environ["HALVANE_BUILD"],
                           "--prefix", str(cls.folder))
        assert status == 0, said
        cls.share = cls.folder / "share"

    def desktop_entry(self):
        parser = configparser.ConfigParser(interpolation=None)
        parser.optionxform = str
        parser.read(self.share / f"applications/{IDENTIFIER}.desktop", encoding="utf-8")
        return parser["Desktop Entry"]

    def component(self):
        return ElementTree.parse(self.share / f"metainfo/{IDENTIFIER}.metainfo.xml").getroot()

    def test_nothing_is_missing_and_nothing_left_over(self):
        wanted = {"bin/halvane-tools", "bin/halvane-report", "share/man/man1/halvane-report.1",
                  "share/man/man1/halvane-tools.1",
                  f"share/applications/{IDENTIFIER}.desktop",
                  "share/halvane-tools/QJT Tools 1.chm",
                  f"share/metainfo/{IDENTIFIER}.metainfo.xml",
                  f"share/mime/packages/{IDENTIFIER}.xml"}
        # The help pages send their readers there.
        wanted.add("share/doc/halvane-tools/job-file.md")
        wanted.add("share/doc/halvane-tools/many-machines.md")
        wanted.add("share/doc/halvane-tools/results.md")
        wanted.add("share/halvane-tools/halvane-report.schema.json")
        wanted.update({"share/bash-completion/completions/halvane-report",
                       "share/fish/vendor_completions.d/halvane-report.fish",
                       "share/zsh/site-functions/_halvane-report"})
        wanted.update(f"share/doc/halvane-tools/samples/{name}.qjt"
                      for name in ("board-assembly", "packing-line", "parcel-sorting"))
        for icon in ICONS:
            wanted.add(f"share/icons/hicolor/scalable/{icon}.svg")
            wanted.update(f"share/icons/hicolor/{size}x{size}/{icon}.png" for size in SIZES)
        found = {str(path.relative_to(self.folder)) for path in self.folder.rglob("*")
                 if path.is_file()}
        self.assertEqual(found, wanted)

    def test_programs_run_and_all_else_is_readable_by_everyone(self):
        for path in self.folder.rglob("*"):
            mode = stat.S_IMODE(path.stat().st_mode)
            runs = path.is_dir() or path.parent.name == "bin"
            self.assertEqual(mode, 0o755 if runs else 0o644, path)
        status, said = run(str(self.folder / "bin/halvane-report"), "--version")
        self.assertEqual(status, 0, said)
        self.assertIn(VERSION, said)

    def test_menu_entry_is_valid_and_names_what_is_installed(self):
        entry = self.share / f"applications/{IDENTIFIER}.desktop"
        self.assertEqual(run("desktop-file-validate", str(entry)), (0, ""))
        values = self.desktop_entry()
        self.assertEqual(values["Name"], "Halvane Tools")
        self.assertTrue((self.folder / "bin" / values["Exec"].split()[0]).is_file())
        self.assertIn(f"apps/{values['Icon']}", ICONS)
        # The window tells the desktop the same name, so that the two are taken for one.
        application = (SOURCE / "shell/halvane_application.cpp").read_text(encoding="utf-8")
        named = re.search(r'setApplicationName\("([^"]+)"\)', application).group(1)
        self.assertEqual(values["StartupWMClass"], named)
        self.assertIn("setDesktopFileName(HALVANE_IDENTIFIER)", application)
        self.assertEqual(entry.name, IDENTIFIER + ".desktop")

    def test_menu_entry_offers_to_open_files_only_if_it_passes_them_on(self):
        values = self.desktop_entry()
        passes = re.search(r"%[fFuU]", values["Exec"]) is not None
        self.assertEqual("MimeType" in values, passes)

    def assert_description_is_valid(self, path):
        status, said = run("appstreamcli", "validate", "--no-net", "--no-color", "--pedantic", "--format=yaml", str(path))
        self.assertEqual(status, 0, said)
        self.assertEqual(re.findall(r"^\s*-?\s*tag: (\S+)", said, re.M), [], said)

    def test_description_is_valid(self):
        self.assert_description_is_valid(self.share / f"metainfo/{IDENTIFIER}.metainfo.xml")
        self.assertIsNone(self.component().find("screenshots"))

    def test_description_has_pictures_where_whoever_hands_it_out_has_a_place_for_them(self):
        with tempfile.TemporaryDirectory() as folder:
            status, said = run(os.environ["HALVANE_CMAKE"], "-S", str(SOURCE), "-B", folder, "-DHALVANE_TESTS=OFF",
                               "-DHALVANE_SCREENSHOTS_URL=https://halvane.example/pictures")
            self.assertEqual(status, 0, said)
            path = Path(folder, f"packaging/{IDENTIFIER}.metainfo.xml")
            self.assert_description_is_valid(path)
            images = [element.text for element in ElementTree.parse(path).iter("image")]
        self.assertGreaterEqual(len(images), 3)
        for image in images:
            base, _, name = image.rpartition("/")
            self.assertEqual(base, "https://halvane.example/pictures")
            self.assertTrue((SOURCE / "docs/pictures" / name).is_file(), image)

    def test_description_names_this_release_and_the_menu_entry(self):
        component = self.component()
        release = component.find("releases/release")
        self.assertEqual(release.get("version"), VERSION)
        self.assertEqual(component.findtext("id"), IDENTIFIER)
        self.assertTrue((self.share / "applications" / component.findtext("launchable")).is_file())
        categories = [element.text for element in component.findall("categories/category")]
        self.assertEqual(";".join(categories) + ";", self.desktop_entry()["Categories"])
        for element in component.findall("provides/binary"):
            self.assertTrue((self.folder / "bin" / element.text).is_file(), element.text)

    def test_version_is_one_everywhere(self):
        status, said = run(str(self.folder / "bin/halvane-report"), "--version")
        self.assertEqual((status, said), (0, f"halvane-report {VERSION}\n"))
        for page in (self.share / "man/man1").iterdir():
            self.assertIn(f"\n.Os Halvane Tools {VERSION}\n", page.read_text(encoding="utf-8"), page)
        # What the about box shows is this text and no other.
        program = (self.folder / "bin/halvane-tools").read_bytes()
        self.assertIn(b"\0" + VERSION.encode() + b"\0", program)
        for path in ("shell", "reporter"):
            for source in sorted((SOURCE / path).glob("*.cpp")):
                self.assertNotIn(f'"{VERSION}', source.read_text(encoding="utf-8"), source)

    def test_links_of_documents_lead_to_what_is_installed(self):
        documents = sorted((self.share / "doc/halvane-tools").glob("*.md"))
        self.assertGreaterEqual(len(documents), 2)
        for document in documents:
            for target in LINK.findall(document.read_text(encoding="utf-8")):
                if target.startswith("https://"):
                    continue
                self.assertTrue((document.parent / target).exists(), f"{document.name}: {target}")

    def test_job_files_get_their_own_kind_by_name_and_by_content(self):
        mime = self.share / "mime"
        self.assertEqual(run("xmllint", "--noout", str(mime / f"packages/{IDENTIFIER}.xml")),
                         (0, ""))
        with tempfile.TemporaryDirectory() as copy:
            base = Path(copy) / "mime"
            shutil.copytree(mime, base)
            status, said = run("update-mime-database", str(base), XDG_DATA_HOME=copy)
            self.assertEqual((status, said), (0, ""))
            globs = (base / "globs2").read_text(encoding="utf-8").splitlines()
            self.assertIn(f"50:{JOB_TYPE}:*.qjt", globs)
            magic = (base / "magic").read_bytes()
            self.assertIn(f"[60:{JOB_TYPE}]".encode(), magic)
            parts = re.search(rb">0=(..)(.*?)\n", magic, re.S)
            length = struct.unpack(">H", parts.group(1))[0]
            start = parts.group(2)[:length]
        samples = sorted((SOURCE / "docs/samples").rglob("*.qjt"))
        self.assertTrue(samples)
        for sample in samples:
            self.assertTrue(sample.read_bytes().startswith(start), sample.name)

    def test_icons_have_the_size_of_their_folder(self):
        for icon in ICONS:
            for size in SIZES:
                path = self.share / f"icons/hicolor/{size}x{size}/{icon}.png"
                head = path.read_bytes()[:24]
                self.assertEqual(head[:8], b"\x89PNG\r\n\x1a\n", path)
                self.assertEqual(struct.unpack(">II", head[16:]), (size, size), path)
            drawing = self.share / f"icons/hicolor/scalable/{icon}.svg"
            self.assertEqual(run("xmllint", "--noout", str(drawing)), (0, ""))


if __name__ == "__main__":
    unittest.main()
