"""The changelog has the form that the package and the description for software centres are made from, and its newest
release is the version that the project has."""

import os
import subprocess
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree
from pathlib import Path

SOURCE = Path(os.environ["HALVANE_SOURCE"])
VERSION = os.environ["HALVANE_VERSION"]
GOOD = """# Changelog

## [Unreleased]

## [1.10.0] - 2026-02-28

### Added

- One [thing](a.md) and
  `another`.

### Fixed

- A slip.

## [1.9.2] - 2026-01-31

### Removed

- It.
"""


def ask(what, path, *more):
    """Exit status and what was printed."""
    done = subprocess.run([str(SOURCE / "scripts/changelog"), what, str(path), *more], stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, text=True, check=False)
    return done.returncode, done.stdout


class Changelog(unittest.TestCase):
    def ask(self, what, text, *more):
        with tempfile.NamedTemporaryFile("w", encoding="utf-8", suffix=".md") as file:
            file.write(text)
            file.flush()
            return ask(what, file.name, *more)

    def test_newest_release_is_the_version_of_the_project(self):
        self.assertEqual(ask("version", SOURCE / "CHANGELOG.md"), (0, VERSION + "\n"))

    def test_releases_have_version_and_date(self):
        status, said = self.ask("releases", GOOD)
        self.assertEqual(status, 0, said)
        found = [(one.get("version"), one.get("date")) for one in ElementTree.fromstring(said)]
        self.assertEqual(found, [("1.10.0", "2026-02-28"), ("1.9.2", "2026-01-31")])

    def test_debian_has_each_change_without_marks(self):
        status, said = self.ask("debian", GOOD, "A Name <a@b.c>")
        self.assertEqual((status, said), (0, """halvane-tools (1.10.0-1) unstable; urgency=medium

  * One thing and another.
  * A slip.

 -- A Name <a@b.c>  Sat, 28 Feb 2026 00:00:00 +0000

halvane-tools (1.9.2-1) unstable; urgency=medium

  * It.

 -- A Name <a@b.c>  Sat, 31 Jan 2026 00:00:00 +0000

"""))

    def test_what_has_another_form_is_refused(self):
        slips = (("## [Unreleased]\n\n", ""), ("[1.10.0]", "1.10.0"), ("[1.10.0]", "[1.9.1]"), ("2026-02-28", "2026-02-30"),
                 ("2026-02-28", "2025-02-28"), ("### Added", "### New"), ("### Fixed", "### Added"), ("- A slip.", "A slip."),
                 ("\n- It.", ""), ("### Removed\n", ""))
        for good, slip in slips:
            self.assertIn(good, GOOD)
            status, said = self.ask("version", GOOD.replace(good, slip, 1))
            self.assertEqual(status, 1, f"{good} -> {slip}: {said}")
            self.assertTrue(said.startswith("changelog: "), said)


if __name__ == "__main__":
    unittest.main()
