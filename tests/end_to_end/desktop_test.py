#!/usr/bin/env python3
"""Drives the built program in real windows: desktop_test.py PROGRAM DATAFOLDER (describe | tasks | failure | drag | outline | outline2x).

Exit status 77 says that a tool is missing and the test was skipped.
"""

import os
import subprocess
import sys
import tempfile

from desktop import Desktop, missing_tools, wait_until
from program import wait_for_buttons

SKIPPED = 77

# Places in the windows, in pixels from their upper left corner.
OCRA_BUTTON = (178, 254)
CTD_BUTTON = (178, 288)
SI_BUTTON = (178, 322)
CLOSE_BUTTON = (264, 220)
TITLE = (110, 220)
FINGERTIP = (151, 40)
WHEEL = 5
MASKS = {1: "hand_mask.png", 2: "hand_mask@2x.png"}
INTENSITY_30_TO_49_PERCENT = (87, 470)
REPORT_TAB = (190, 42)
OCRA_ADD_TASK = (161, 543)
OCRA_REPORT_TAB = (372, 72)
CTD_REPORT_TAB = (572, 42)


def content_of(path):
    with open(path, "rb") as file:
        return file.read()


def open_tool(desktop, program, button, title):
    """Starts the program and opens a tool; gives process, main window and tool."""
    process = desktop.start([program])
    main = desktop.window("Halvane Tools V1.0")
    wait_for_buttons(desktop, main)
    desktop.click(main, *button)
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
    folder, name = os.path.split(path)
    beside = [other for other in os.listdir(folder) if other.startswith(name + ".")]
    assert not beside, beside


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
    """A job that a tool cannot show ends the program with a message; its file has all of it, so there is no copy."""
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
    desktop.keys("Return")
    wait_until(lambda: process.poll() is not None, "the end of the program")
    assert process.returncode == 1, process.returncode
    assert content_of(path) == bad
    assert not os.path.exists(os.path.join(desktop.folder, "bad.rescue.qjt"))


def drag_the_window(desktop, program, _data):
    """Every mouse button drags the window by its title and by the hand; it answers clicks afterwards."""
    process = desktop.start([program])
    main = desktop.window("Halvane Tools V1.0")
    by = (60, -40)
    for start in (TITLE, FINGERTIP):
        for button in (1, 2, 3):
            x, y = desktop.place(main)[:2]
            desktop.drag(main, start, by, button)
            by = (-by[0], -by[1])
            place = (x - by[0], y - by[1])
            wait_until(lambda: desktop.place(main)[:2] == place, f"the drag of {start} by button {button} to {place}")
            # A window that still followed the mouse would follow it now.
            subprocess.run(["xdotool", "mousemove_relative", "--", "15", "15"], env=desktop.environment, check=True)
            assert desktop.place(main)[:2] == place, desktop.place(main)

    def tool_opens():
        desktop.click(main, *SI_BUTTON)
        return desktop.output("xdotool", "search", "--onlyvisible", "--name", "^Strain Index$")

    wait_until(tool_opens, "the tool after the drags")
    process.terminate()
    process.wait()


def mask_rows(name):
    """The rows of the outline's mask, True inside."""
    assets = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "assets", "main_window")
    pixels = subprocess.run(
        ["convert", os.path.join(assets, name), "-depth", "8", "gray:-"], capture_output=True, check=True
    ).stdout
    width = 306 if "@" not in name else 612
    return [[value >= 128 for value in pixels[at : at + width]] for at in range(0, len(pixels), width)]


def window_below(desktop):
    """A window that fills the screen below the main window, and the file of what the mouse does on it."""
    events = os.path.join(desktop.folder, "events")
    with open(events, "w", encoding="utf-8") as file:
        desktop.start(["xev", "-geometry", "1280x1200+0+0", "-name", "below", "-event", "button"], stdout=file)
    wait_until(lambda: desktop.output("xdotool", "search", "--onlyvisible", "--name", "^below$"), "the window below")
    return events


def click_through(desktop, program, _data):
    """The window has the outline of the hand, to the screen's pixel: a click beside it reaches what is below."""
    scale = int(desktop.environment["QT_SCALE_FACTOR"])
    events = window_below(desktop)
    process = desktop.start([program])
    main = desktop.window("Halvane Tools V1.0")
    left, top, width, height = desktop.place(main)
    rows = mask_rows(MASKS[scale])
    assert (width, height) == (len(rows[0]), len(rows)), (width, height)

    def clicks_below():
        with open(events, encoding="utf-8") as file:
            return file.read().count("ButtonPress")

    # The first pixel of the hand on rows across fingers, palm and wrist, and the one left of it. The button is the
    # wheel, since any other raises the window that gets it.
    for row in (60, 150, 300, 480):
        y = row * scale
        x = rows[y].index(True)
        for place, below in ((x - 1, 1), (x, 0)):
            expected = clicks_below() + below
            desktop.click_screen(left + place, top + y, WHEEL)
            # A click that is to stay above is followed by one that is to get through.
            if not below:
                desktop.click_screen(left + width + 5, top + y, WHEEL)
                expected += 1
            wait_until(lambda: clicks_below() >= expected, f"click {expected} at {place}, {y}")
            assert clicks_below() == expected, (place, y, clicks_below(), expected)
    process.terminate()
    process.wait()


CASES = {
    "describe": describe_a_job,
    "tasks": share_a_task,
    "failure": end_on_a_failure,
    "drag": drag_the_window,
    "outline": click_through,
    "outline2x": click_through,
}


def main():
    program, data, case = sys.argv[1:]
    missing = missing_tools()
    if missing:
        print("skipped: this machine lacks", ", ".join(missing))
        return SKIPPED
    scale = 2 if case.endswith("2x") else 1
    with tempfile.TemporaryDirectory() as folder, Desktop(folder, scale) as desktop:
        CASES[case](desktop, program, data)
    return 0


sys.exit(main())
