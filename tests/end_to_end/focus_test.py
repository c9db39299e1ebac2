#!/usr/bin/env python3
"""Where the focus is and what it selects: focus_test.py PROGRAM DATAFOLDER CASE [WINDOWMANAGER | none]. Exit status
77 says that a tool is missing and the test was skipped."""

import sys
import time

from desktop import RIGHT, wait_until
from program import CLOSE_BUTTON, MAIN, MESSAGE, OCRA, SI, Program, run

ANALYST = (207, 39)
# Title strip, launch buttons and ribbons of the main window: whatever can look focused.
BUTTONS = (78, 206, 200, 268)


def edit_one_word(desktop, program):
    """Cut and Paste of the box's own menu work on what is selected and at the caret."""
    run_ = Program(desktop, program)
    window = run_.open(OCRA)
    desktop.type("Mia Wallace")
    desktop.keys("Home", "ctrl+shift+Right")
    # Right-click beside the words, which keeps the selection; the menu takes the key of Cut.
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


def parked(desktop, program):
    """No control of the main window has the focus or its look until the user presses Tab, after whatever return."""
    run_ = Program(desktop, program)
    main = run_.main

    def look():
        desktop.rest_mouse()
        return desktop.picture(main, BUTTONS)

    def assert_parked(what):
        wait_until(lambda: look() == plain, f"the plain buttons {what}")
        # A focused button would open its tool, minimise or ask.
        desktop.keys("space", "Return")
        time.sleep(0.3)
        assert desktop.visible(MAIN) and desktop.active(MAIN), f"space or Return did something {what}"
        assert look() == plain, f"a button looks focused {what}"

    plain = look()
    assert_parked("after the start")
    for tool in (OCRA, SI):
        run_.open(tool)
        run_.leave()
        assert_parked(f"after {tool.title}")
    desktop.click(main, *CLOSE_BUTTON)
    desktop.window(MESSAGE)
    desktop.keys("Escape")
    desktop.gone(MESSAGE)
    assert_parked("after a message")
    # Tab gives the focus to a button, which then shows it.
    desktop.keys("Tab")
    wait_until(lambda: look() != plain, "the focused look")
    run_.end()


CASES = {
    "edit_one_word": edit_one_word,
    "parked": parked,
}

if __name__ == "__main__":
    sys.exit(run(CASES))
