#!/usr/bin/env python3
"""Drives the built program in real windows: desktop_test.py PROGRAM DATAFOLDER (describe | tasks | failure).

Exit status 77 says that a tool is missing and the test was skipped.
"""

import os
import subprocess
import sys
import tempfile

from desktop import Desktop, missing_tools, wait_until

SKIPPED = 77

# Places in the windows, in pixels from their upper left corner.
OCRA_BUTTON = (153, 90)
CTD_BUTTON = (153, 142)
SI_BUTTON = (153, 194)
CLOSE_BUTTON = (285, 20)
INTENSITY_30_TO_49_PERCENT = (87, 470)
REPORT_TAB = (190, 42)
OCRA_ADD_TASK = (86, 657)
OCRA_REPORT_TAB = (372, 72)
CTD_REPORT_TAB = (572, 42)


def content_of(path):
    with open(path, "rb") as file:
        return file.read()


def open_tool(desktop, program, button, title):
    """Starts the program and opens a tool; gives process, main window and tool."""
    process = desktop.start([program])
    main = desktop.window("Halvane Tools V1.0")
    # The buttons come when the opening panel goes: the button then answers a click.
    opened = False

    def tool_opens():
        nonlocal opened
        if not opened:
            desktop.click(main, *button)
        opened = desktop.output("xdotool", "search", "--onlyvisible", "--name", f"^{title}$") != ""
        return opened

    wait_until(tool_opens, f"the tool '{title}'")
    return process, main, desktop.window(title)


def copied_report(desktop, tool, tab):
    """The report of an open tool, taken from the desktop's clipboard after Select All and Copy Output."""
    desktop.click(tool, *tab)
    desktop.keys("alt+e", "Return")
    desktop.keys("alt+e", "Down", "Return")
    return wait_until(lambda: desktop.output("xclip", "-selection", "clipboard", "-o"), "the copied report")


def describe_a_job(desktop, program, data):
    """Main window, Strain Index, typing, ribbons, report, save, exit: the file has exactly what was done."""
    process, main, tool = open_tool(desktop, program, SI_BUTTON, "Strain Index")
    desktop.type("Line 4")
    for text in ("Packing", "W7"):
        desktop.keys("Tab")
        desktop.type(text)
    desktop.keys("Tab", "Tab")  # past the hand, into the hours per day
    for text in ("12", "40", "30", "5"):
        desktop.keys("Tab")
        desktop.type(text)
    desktop.click(tool, *INTENSITY_30_TO_49_PERCENT)
    desktop.click(tool, *REPORT_TAB)

    path = os.path.join(desktop.folder, "line 4.qjt")
    desktop.keys("alt+f")
    desktop.keys("Down", "Down", "Return")
    desktop.window("Save As")
    desktop.type(path)
    desktop.keys("Return")
    desktop.window("Strain Index")
    wait_until(lambda: os.path.exists(path) and os.path.getsize(path) > 0, "the saved file")

    desktop.keys("alt+f")
    desktop.keys("Up", "Return")
    desktop.window("Halvane Tools V1.0")
    desktop.click(main, *CLOSE_BUTTON)
    desktop.window("Halvane Tools")
    desktop.keys("Return")
    wait_until(lambda: process.poll() is not None, "the end of the program")
    assert process.returncode == 0, process.returncode
    assert content_of(path) == content_of(os.path.join(data, "expected.qjt")), content_of(path)
    assert not os.path.exists(path + ".previous")


def share_a_task(desktop, program, _data):
    """A task made in OCRA stands in its report and in the CTD tool; both reports reach the clipboard."""
    process, main, tool = open_tool(desktop, program, OCRA_BUTTON, "Occupational Repetitive Actions Index")
    desktop.click(tool, *OCRA_ADD_TASK)
    desktop.keys("Tab", "Tab", "Tab", "Tab")  # past the list's buttons, into the duration
    desktop.type("480")
    desktop.keys("Tab")
    desktop.type("30")
    report = copied_report(desktop, tool, OCRA_REPORT_TAB)
    for line in ("Task 1\t480.00\t30.0\t0.0", "Total No. Of Actions Observed: 14400.0", "OCRA Risk Index: 1.00"):
        assert line in report, report

    desktop.keys("alt+f")
    desktop.keys("Up", "Return")
    desktop.window("Halvane Tools V1.0")
    subprocess.run(["xclip", "-selection", "clipboard", "/dev/null"], env=desktop.environment, check=True)
    desktop.click(main, *CTD_BUTTON)
    tool = desktop.window("Cumulative Trauma Disorders Risk Assessment Model")
    report = copied_report(desktop, tool, CTD_REPORT_TAB)
    for line in ("Task 1\t0.00\t0.0\t0.0\t0.0", "Task 1\tPower Grip\tMid-Position (Neutral)\tNeutral\tNeutral"):
        assert line in report, report
    process.terminate()
    process.wait()


def end_on_a_failure(desktop, program, data):
    """A job that a tool cannot show ends the program with a message and a copy of the job beside it."""
    bad = content_of(os.path.join(data, "hand_out_of_range.qjt"))
    path = os.path.join(desktop.folder, "bad.qjt")
    with open(path, "wb") as file:
        file.write(bad)
    process, _main, _tool = open_tool(desktop, program, SI_BUTTON, "Strain Index")
    desktop.keys("alt+f")
    desktop.keys("Down", "Return")
    # Showing the ribbons marked the job as changed; it is not to be saved.
    desktop.window("Halvane Tools")
    desktop.keys("alt+n")
    desktop.window("Open")
    desktop.type(path)
    desktop.keys("Return")

    desktop.window("Halvane Tools")
    copy = os.path.join(desktop.folder, "bad.rescue.qjt")
    assert content_of(copy) == bad, content_of(copy)
    desktop.keys("Return")
    wait_until(lambda: process.poll() is not None, "the end of the program")
    assert process.returncode == 1, process.returncode
    assert content_of(path) == bad


CASES = {"describe": describe_a_job, "tasks": share_a_task, "failure": end_on_a_failure}


def main():
    program, data, case = sys.argv[1:]
    missing = missing_tools()
    if missing:
        print("skipped: this machine lacks", ", ".join(missing))
        return SKIPPED
    with tempfile.TemporaryDirectory() as folder, Desktop(folder) as desktop:
        CASES[case](desktop, program, data)
    return 0


sys.exit(main())
