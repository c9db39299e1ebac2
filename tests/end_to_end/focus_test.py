#!/usr/bin/env python3
"""Where the focus is and what it selects: focus_test.py PROGRAM DATAFOLDER CASE [WINDOWMANAGER | none]. Exit status
77 says that a tool is missing and the test was skipped."""

import sys
import time

from desktop import RIGHT, wait_until
from program import CLOSE_BUTTON, FINGERTIP, HELP, MAIN, MESSAGE, OCRA, SI, TOOLS, Program, run

ANALYST = (207, 39)
JOB_NAME = (570, 39)
# Title strip, launch buttons and ribbons of the main window: whatever can look focused.
BUTTONS = (78, 206, 200, 268)
OCRA_FACE = (80, 242, 196, 24)
NEIGHBOUR = "neighbour"


def edit_one_word(desktop, program):
    """Cut and Paste of the box's own menu work on what is selected and at the caret."""
    run_ = Program(desktop, program)
    window = run_.open(OCRA)
    desktop.type("Mia Wallace")
    desktop.keys("Home", "ctrl+shift+Right")
    # The right click keeps the selection; the menu takes the key of Cut.
    desktop.click(window, *ANALYST, RIGHT)
    desktop.keys("t")
    cut = wait_until(desktop.clipboard, "the cut word")
    assert cut == "Mia ", cut
    desktop.keys("End", "space")
    desktop.click(window, 300, ANALYST[1], RIGHT)
    desktop.keys("p")
    # Pasting with the mouse is noticed with the next key.
    desktop.keys("End")
    job = run_.saved_job()
    assert job.analyst == "Wallace Mia ", job.lines[3]
    run_.end()


def neighbour(desktop):
    """A window of another program that takes the keyboard."""
    desktop.start(["xev", "-name", NEIGHBOUR, "-geometry", "100x100+1150+1050"])
    return desktop.shown(NEIGHBOUR)


def go_on_typing(desktop, program):
    """Typing goes on where it was after a look at a menu, at another program and at the help."""
    run_ = Program(desktop, program)
    window = run_.open(OCRA)
    desktop.type("Line ")
    desktop.keys("alt+f")
    desktop.keys("Escape")
    desktop.keys("Escape")
    desktop.type("4")
    desktop.activate(neighbour(desktop))
    desktop.window(NEIGHBOUR)
    desktop.activate(window)
    desktop.window(OCRA.title)
    desktop.type("b")
    desktop.minimise(window)
    desktop.activate(window)
    desktop.window(OCRA.title)
    desktop.type("c")
    # A part that is selected stays so, too.
    desktop.keys("Tab")
    desktop.type("Packing")
    desktop.keys("shift+Left", "shift+Left", "shift+Left")
    desktop.keys("alt+h")
    desktop.keys("Escape")
    desktop.keys("Escape")
    desktop.type("er")
    job = run_.saved_job()
    assert (job.analyst, job.name) == ("Line 4bc", "Packer"), job.lines[3]
    run_.end()


def help_and_back(desktop, program):
    """The help is read beside the tool, and typing goes on where it was."""
    run_ = Program(desktop, program)
    window = run_.open(OCRA)
    desktop.type("Line ")
    desktop.keys("alt+h")
    desktop.keys("Return")
    wait_until(lambda: desktop.focused() != window, "the help or a message that there is none")
    desktop.keys("Escape")
    if desktop.visible(MESSAGE):
        desktop.gone(MESSAGE)
    desktop.activate(window)
    desktop.window(OCRA.title)
    desktop.type("4")
    job = run_.saved_job()
    assert job.analyst == "Line 4", job.lines[3]
    run_.end()


def arrival(desktop, program):
    """Whoever arrives at a box, by Tab or by the mouse, replaces what stands there."""
    run_ = Program(desktop, program)
    window = run_.open(OCRA)
    desktop.type("first")
    desktop.keys("Tab")
    desktop.type("first")
    desktop.keys("shift+Tab")
    desktop.type("second")
    desktop.click(window, *JOB_NAME)
    desktop.type("second")
    job = run_.saved_job()
    assert (job.analyst, job.name) == ("second", "second"), job.lines[3]
    # Arriving by the way of another window is arriving as well.
    desktop.activate(neighbour(desktop))
    desktop.window(NEIGHBOUR)
    desktop.click(window, *ANALYST)
    desktop.window(OCRA.title)
    desktop.type("third")
    run_.save()
    job = wait_until(lambda: run_.job_with(lambda job: job.analyst != "second"), "the second save")
    assert job.analyst == "third", job.lines[3]
    run_.end()


def parked(desktop, program):
    """No control of the main window has the focus or its look until the user presses Tab, after whatever return."""
    run_ = Program(desktop, program)
    main = run_.main

    def look():
        desktop.rest_mouse(main, FINGERTIP)
        return desktop.picture(main, BUTTONS)

    def tool_or_message():
        return [title for title in (MESSAGE, *(tool.title for tool in TOOLS)) if desktop.visible(title)]

    def assert_parked(what):
        wait_until(lambda: look() == plain, f"the plain buttons {what}")
        # A focused button would open its tool, minimise or ask.
        desktop.keys("space", "Return")
        time.sleep(0.3)
        assert desktop.visible(MAIN) and not tool_or_message(), f"space or Return did something {what}"
        assert look() == plain, f"a button looks focused {what}"

    plain = look()
    assert_parked("after the start")
    for tool in (OCRA, SI):
        run_.open(tool)
        run_.leave()
        desktop.gone(tool.title)
        assert_parked(f"after {tool.title}")
    desktop.click(main, *CLOSE_BUTTON)
    message = desktop.window(MESSAGE)
    desktop.rest_mouse(message, (5, 5))
    desktop.keys("Escape")
    desktop.gone(MESSAGE)
    assert_parked("after a message")
    if desktop.manager:
        desktop.minimise(main)
        wait_until(lambda: not desktop.visible(MAIN), "the minimised window")
        desktop.activate(main)
        desktop.window(MAIN)
        assert_parked("after the window was minimised")
    # Tab gives the focus to a button, which then shows it; without a window manager no window is active.
    if desktop.manager:
        desktop.keys("Tab")
        wait_until(lambda: look() != plain, "the focused look")
    run_.end()


def launch_by_key(desktop, program):
    """Space and Return open the tool whose button has the focus."""
    run_ = Program(desktop, program)
    for key in ("space", "Return"):
        desktop.rest_mouse(run_.main, FINGERTIP)
        plain = desktop.picture(run_.main, OCRA_FACE)

        def reached():
            desktop.keys("Tab")
            return desktop.picture(run_.main, OCRA_FACE) != plain

        wait_until(reached, "the focused look of the first launch button")
        desktop.keys(key)
        desktop.window(OCRA.title)
        run_.leave()
    run_.end()


def closed_beside_help(desktop, program):
    """Closing a tool gives the keyboard to the main window, also while the help is open."""
    run_ = Program(desktop, program)
    tool = run_.open(OCRA)
    desktop.keys("F1")
    help_window = wait_until(lambda: desktop.visible(HELP), "the help")[0]
    for _ in range(2):
        desktop.activate(help_window)
        wait_until(lambda: desktop.focused() == help_window, "the help in front")
        desktop.activate(tool)
        desktop.window(OCRA.title)
        run_.leave()
        # Keys of the main window's are heard there.
        desktop.keys("ctrl+o")
        desktop.window("Open")
        desktop.keys("Escape")
        desktop.gone("Open")
        desktop.window(MAIN)
        tool = run_.open(OCRA)
    run_.leave()
    run_.end()


CASES = {
    "closed_beside_help": closed_beside_help,
    "edit_one_word": edit_one_word,
    "go_on_typing": go_on_typing,
    "help_and_back": help_and_back,
    "arrival": arrival,
    "parked": parked,
    "launch_by_key": launch_by_key,
}

if __name__ == "__main__":
    sys.exit(run(CASES))
