#!/usr/bin/env python3
"""Task lists and the inputs of tasks: tasks_test.py PROGRAM DATAFOLDER CASE. Exit status 77 says that a tool is
missing and the test was skipped."""

import os
import sys
import time

from desktop import WHEEL_DOWN, WHEEL_UP, wait_until
from program import CTD, MESSAGE, OCRA, REBA, SI, Program, run

OCRA_ADD_TASK = (161, 543)
OCRA_DELETE_TASK = (432, 543)
OCRA_EDIT_TASK = (704, 543)
OCRA_FIRST_NODE = (80, 257)
NODE_HEIGHT = 18
OCRA_DURATION = (906, 257)
OCRA_RECOVERY = (700, 157)
OCRA_RATING = (700, 608)
OCRA_FREQUENCY = (906, 328)
OCRA_SECOND_LIST = (274, 190)  # the first one has the focus when its tab opens
OCRA_NINTH_LIST = (1000, 143)
OCRA_ANALYST = (207, 39)
CTD_ADD_TASK = (51, 668)
CTD_JOB_NAME = (583, 97)
REBA_LOAD = (598, 630)

# Longer than a click waits for a second one.
RENAME_DELAY = 0.7


def node(place):
    """The middle of a node of the OCRA task list, counted from 0."""
    return OCRA_FIRST_NODE[0], OCRA_FIRST_NODE[1] + NODE_HEIGHT * place


def second_job(desktop, program, tool, add, box, text):
    """After New on a job with a task, typing goes on in the new one."""
    run_ = Program(desktop, program)
    window = run_.open(tool)
    desktop.click(window, *add)
    desktop.keys("alt+f")
    desktop.keys("n")
    desktop.window(MESSAGE)
    desktop.keys("alt+n")
    window = desktop.window(tool.title)
    if box:
        desktop.click(window, *box)
    desktop.type(text)
    run_.assert_alive(tool.title)
    job = run_.saved_job()
    assert job.task_count == "0", job.lines[1]
    assert job.analyst == ("" if box else text), job.lines[3]
    # And the new job takes a task of its own.
    desktop.click(window, *add)
    desktop.keys("alt+f")
    desktop.keys("Down", "Down", "Return")
    path = os.path.join(desktop.folder, "saved.qjt")
    wait_until(lambda: b'"Task 1"' in open(path, "rb").read(), "the new job's task")
    run_.end()


def huge_number(desktop, program):
    """A number that no double holds reads as 0, as other text that is no number."""
    run_ = Program(desktop, program)
    window = run_.open(OCRA)
    desktop.click(window, *OCRA_ADD_TASK)
    desktop.click(window, *OCRA_DURATION)
    desktop.type("1e400")
    run_.assert_alive(OCRA.title)
    desktop.keys("Tab")
    desktop.type("1e30")
    run_.assert_alive(OCRA.title)
    job = run_.saved_job()
    assert (job.ocra_duration(1), job.ocra_frequency(1)) == ("0", "1E+30"), job.task(1)
    run_.end()


def huge_number_elsewhere(desktop, program):
    """The same in the boxes of the job and of tools without tasks."""
    run_ = Program(desktop, program)
    run_.open(SI)
    desktop.keys("Tab", "Tab", "Tab", "Tab")  # past names and hand, into the hours
    for text in ("1e400", "-1e999", "7e400kg", "1e9999999999", "1e-400"):
        desktop.keys("Tab")
        desktop.type(text)
    run_.assert_alive(SI.title)
    job = run_.saved_job()
    assert job.lines[48][:4] == ["0", "0", "0", "0"], job.lines[48]
    run_.end()


def click_into_the_next_box(desktop, program):
    """A click on the selected task starts no editor when the next click goes elsewhere."""
    run_ = Program(desktop, program)
    window = run_.open(OCRA)
    desktop.click(window, *OCRA_ADD_TASK)
    desktop.click(window, *OCRA_FIRST_NODE)
    desktop.click(window, *OCRA_DURATION)
    for digit in "1234567":
        desktop.hold(digit, 0.1)
    job = run_.saved_job()
    assert (job.task_name(1), job.ocra_duration(1)) == ("Task 1", "1234567"), job.task(1)
    run_.end()


def rename_waits_in_vain(desktop, program):
    """The click that would rename is forgotten when tab, list or active window change before its delay is over."""
    run_ = Program(desktop, program)
    window = run_.open(OCRA)
    desktop.click(window, *OCRA_ADD_TASK)

    desktop.click(window, *OCRA_FIRST_NODE)
    desktop.click(window, *OCRA.tabs[1])
    time.sleep(RENAME_DELAY)
    desktop.type("tab")
    desktop.click(window, *OCRA.tabs[0])

    desktop.click(window, *OCRA_FIRST_NODE)
    desktop.start(["xev", "-name", "neighbour", "-geometry", "100x100+1150+1050"])
    desktop.activate(desktop.shown("neighbour"))
    desktop.window("neighbour")
    time.sleep(RENAME_DELAY)
    desktop.activate(window)
    desktop.window(OCRA.title)
    desktop.type("window")

    desktop.click(window, *OCRA_FIRST_NODE)
    desktop.click(window, *OCRA_DELETE_TASK)
    desktop.window(MESSAGE)
    time.sleep(RENAME_DELAY)
    desktop.keys("alt+n")
    desktop.window(OCRA.title)
    desktop.type("delete")

    job = run_.saved_job()
    assert job.task_name(1) == "Task 1", job.task(1)
    run_.end()


def edit_button_after_a_click(desktop, program):
    """Edit Task, pressed before the click on the name has become an edit, starts the one edit."""
    run_ = Program(desktop, program)
    window = run_.open(OCRA)
    desktop.click(window, *OCRA_ADD_TASK)
    desktop.click(window, *OCRA_FIRST_NODE)
    desktop.click(window, *OCRA_EDIT_TASK)
    desktop.type("left ")
    time.sleep(RENAME_DELAY)
    desktop.type("bench")
    desktop.keys("Return")
    job = run_.saved_job()
    assert job.task_name(1) == "left bench", job.task(1)
    run_.end()


def named_by_key(desktop, program):
    """Alt and a letter adds a task and edits its name, each time, though the menu that is not at hand has the letter too."""
    run_ = Program(desktop, program)
    window = run_.open(CTD)
    names = ["by key", "again", "and again"]
    for name in names:
        desktop.keys("alt+a", "alt+e")
        desktop.type(name)
        desktop.keys("Return")
    job = run_.saved_job()
    assert [job.task_name(task + 1) for task in range(int(job.task_count))] == names, job.lines
    # Beside the report the letter is the menu's.
    desktop.click(window, *CTD.tabs[2])
    assert "and again" in run_.copied_report()
    run_.end()


def leave_the_editor(desktop, program):
    """Whoever leaves the name that is being edited keeps what was typed: by a box, a tab, a button, another window."""
    run_ = Program(desktop, program)
    window = run_.open(OCRA)

    def edit(text):
        desktop.click(window, *OCRA_EDIT_TASK)
        desktop.type(text)

    for _ in range(4):
        desktop.click(window, *OCRA_ADD_TASK)
    edit("by tab")
    desktop.click(window, *OCRA.tabs[1])
    desktop.click(window, *OCRA.tabs[0])
    desktop.click(window, *node(2))
    edit("by box")
    desktop.click(window, *OCRA_DURATION)
    desktop.click(window, *node(1))
    edit("by button")
    desktop.click(window, *OCRA_DELETE_TASK)
    desktop.window(MESSAGE)
    desktop.keys("alt+n")
    desktop.window(OCRA.title)
    desktop.click(window, *node(0))
    edit("by window")
    desktop.start(["xev", "-name", "neighbour", "-geometry", "100x100+1150+1050"])
    desktop.activate(desktop.shown("neighbour"))
    desktop.window("neighbour")
    desktop.activate(window)
    desktop.window(OCRA.title)
    job = run_.saved_job()
    names = [job.task_name(number) for number in range(1, 5)]
    assert names == ["by window", "by button", "by box", "by tab"], names
    run_.end()


def showing_report(desktop, program):
    """A click on the report tab that is showing computes anew: CTD, opened before there was a task; OCRA."""
    run_ = Program(desktop, program)
    window = run_.open(CTD)
    desktop.click(window, *CTD.tabs[2])
    desktop.click(window, *CTD_ADD_TASK)
    desktop.click(window, *CTD.tabs[2])
    report = run_.copied_report()
    assert "Task 1\t0.00\t0.0\t0.0\t0.0" in report, report
    desktop.click(window, *CTD.tabs[0])
    run_.leave()
    window = run_.open(OCRA)
    desktop.click(window, *OCRA.tabs[2])
    desktop.click(window, *OCRA_ANALYST)
    desktop.type("Mia")
    desktop.click(window, *OCRA.tabs[2])
    report = run_.copied_report()
    assert "Analyst: Mia" in report, report
    run_.end()


def wheel(desktop, program):
    """The wheel over a list, a slider or a number that has not the focus changes nothing."""
    run_ = Program(desktop, program)
    window = run_.open(OCRA)
    desktop.click(window, *OCRA_ADD_TASK)
    desktop.click(window, *OCRA_DURATION)
    desktop.type("5")
    for place in (OCRA_RECOVERY, OCRA_RATING, OCRA_FREQUENCY):
        desktop.wheel(window, *place, WHEEL_UP)
    desktop.click(window, *OCRA.tabs[1])
    for place in (OCRA_SECOND_LIST, OCRA_NINTH_LIST):
        desktop.wheel(window, *place, WHEEL_UP)
    job = run_.saved_job()
    changed = [job.recovery_hours, job.ocra_rating(1), job.ocra_frequency(1), *(job.answer(i) for i in range(14))]
    assert changed == ["0", "0", "0"] + ["3"] * 14, changed
    run_.leave()
    window = run_.open(REBA)
    desktop.wheel(window, *REBA_LOAD, WHEEL_DOWN)
    run_.save()
    run_.leave()
    job = run_.job_with(lambda job: True)
    assert job.lines[25 + 17] == ["0"], job.lines[25:48]
    run_.end()


CASES = {
    "second_job_ctd": lambda d, p: second_job(d, p, CTD, CTD_ADD_TASK, None, "Mia"),
    "second_job_ctd_by_mouse": lambda d, p: second_job(d, p, CTD, CTD_ADD_TASK, CTD_JOB_NAME, "Packing"),
    "second_job_ocra": lambda d, p: second_job(d, p, OCRA, OCRA_ADD_TASK, OCRA_DURATION, "480"),
    "huge_number": huge_number,
    "huge_number_elsewhere": huge_number_elsewhere,
    "click_into_the_next_box": click_into_the_next_box,
    "rename_waits_in_vain": rename_waits_in_vain,
    "edit_button_after_a_click": edit_button_after_a_click,
    "named_by_key": named_by_key,
    "leave_the_editor": leave_the_editor,
    "showing_report": showing_report,
    "wheel": wheel,
}

if __name__ == "__main__":
    sys.exit(run(CASES))
