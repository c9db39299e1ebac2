#!/usr/bin/env python3
"""Report panes: report_test.py PROGRAM DATAFOLDER CASE. Exit status 77 says that a tool is missing and the test was
skipped."""

import os
import shutil
import subprocess
import sys

from desktop import wait_until
from program import CTD, OCRA, REBA, RULA, SI, SKIPPED, Program, run

PANE = (560, 500)
CTD_ADD_TASK = (51, 668)


def type_into(desktop, program, *tools):
    """These panes take typing; what stands there is what is copied, and the next report clears it."""
    run_ = Program(desktop, program)
    for tool in tools:
        window = run_.open(tool)
        desktop.click(window, *tool.tabs[1])
        desktop.click(window, *PANE)
        desktop.keys("ctrl+Home")
        desktop.type("seen by Mia ")
        report = run_.copied_report()
        assert report.startswith("seen by Mia "), report
        desktop.click(window, *tool.tabs[0])
        desktop.click(window, *tool.tabs[1])
        report = run_.copied_report()
        assert "seen by Mia" not in report and len(report) > 200, report
        run_.leave()
    run_.end()


def locked(desktop, program):
    """The other panes take no typing."""
    run_ = Program(desktop, program)
    for tool, tab, add in ((SI, 1, None), (OCRA, 2, None), (CTD, 2, CTD_ADD_TASK)):
        window = run_.open(tool)
        if add:
            desktop.click(window, *add)
        desktop.click(window, *tool.tabs[tab])
        before = run_.copied_report()
        desktop.click(window, *PANE)
        desktop.type("x")
        desktop.keys("Delete", "ctrl+v")
        after = run_.copied_report()
        assert after == before, after
        run_.leave()
    run_.end()


def copied_text(desktop, program):
    """What is copied ends with the report's last words, no picture among them, and a no-break space stays one."""
    run_ = Program(desktop, program)
    for tool, tab in ((SI, 1), (OCRA, 2)):
        window = run_.open(tool)
        desktop.set_clipboard("Mia\u00a0Wallace")
        desktop.keys("ctrl+v")
        desktop.click(window, *tool.tabs[tab])
        report = run_.copied_report()
        assert "\ufffc" not in report, report
        assert "Analyst: Mia\u00a0Wallace" in report, report
        run_.leave()
    run_.end()


def read_pages(path):
    """The lines of a printed report and the size of its first page in points."""
    text = subprocess.run(["pdftotext", "-layout", path, "-"], capture_output=True, text=True, check=True).stdout
    facts = subprocess.run(["pdfinfo", path], capture_output=True, text=True, check=True).stdout
    size = next(line.split(":")[1].split() for line in facts.splitlines() if line.startswith("Page size"))
    return [" ".join(line.split()) for line in text.splitlines() if line.strip()], (float(size[0]), float(size[2]))


def print_to(desktop, window_title, path):
    """Prints the open tool's report by its menu into a new file."""
    desktop.keys("alt+f")
    desktop.keys("Down", "Down", "Down", "Down", "Return")
    desktop.window("Print")
    desktop.keys("alt+f", "ctrl+a")  # into the name of the file that is the printer
    desktop.type(path)
    desktop.keys("alt+p")
    desktop.window(window_title)
    wait_until(lambda: os.path.exists(path) and b"%%EOF" in content_of(path)[-20:], "the printed file")


def content_of(path):
    with open(path, "rb") as file:
        return file.read()


def printed(desktop, program):
    """What is printed is the report as it is copied, a row a line, on the paper that Print Setup was told, again and again."""
    if not all(shutil.which(tool) for tool in ("pdftotext", "pdfinfo")):
        print("skipped: poppler-utils is not installed")
        return SKIPPED
    run_ = Program(desktop, program)
    window = run_.open(CTD)
    desktop.click(window, *CTD_ADD_TASK)
    desktop.click(window, *CTD.tabs[2])
    desktop.keys("alt+f")
    desktop.keys("Up", "Up", "Return")
    desktop.window("Page Setup")
    desktop.type("A5")
    desktop.keys("Tab", "Tab", "Down", "Return")  # past the units, to the orientation: across
    desktop.window(CTD.title)
    for name in ("first.pdf", "second.pdf"):
        path = os.path.join(desktop.folder, name)
        print_to(desktop, CTD.title, path)
        lines, size = read_pages(path)
        assert size == (595, 420), size
        report = [" ".join(line.split()) for line in run_.copied_report().splitlines() if line.strip()]
        assert lines == report, (lines, report)
        assert any(line.startswith("Task ID Task Dur. (min) Action (#/min) Force (%MVC) Hand Span") for line in lines), lines
    run_.leave()
    run_.end("QPageSetupDialog: Cannot be used on non-native printers\n")
    return 0


CASES = {
    "type_into_rula_and_reba": lambda desktop, program: type_into(desktop, program, RULA, REBA),
    "locked": locked,
    "copied_text": copied_text,
    "printed": printed,
}

if __name__ == "__main__":
    sys.exit(run(CASES))
