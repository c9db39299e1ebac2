#!/usr/bin/env python3
"""Task lists and the inputs of tasks: tasks_test.py PROGRAM DATAFOLDER CASE. Exit status 77 says that a tool is
missing and the test was skipped."""

import os
import sys

from desktop import WHEEL_DOWN, WHEEL_UP, wait_until
from program import CTD, MESSAGE, OCRA, Program, run, write_job

OCRA_ADD_TASK = (86, 657)
OCRA_DELETE_TASK = (198, 657)
OCRA_EDIT_TASK = (311, 657)
OCRA_FIRST_NODE = (80, 270)
OCRA_DURATION = (437, 271)
OCRA_RECOVERY = (700, 160)
OCRA_RATING = (700, 340)
OCRA_FIRST_LIST = (1030, 150)
CTD_ADD_TASK = (51, 668)
CTD_REPORT = (600, 300)
CTD_HOURS = (472, 162)
CTD_WORK_TIME = (1025, 162)


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


CASES = {
    "second_job_ctd": lambda d, p: second_job(d, p, CTD, CTD_ADD_TASK, None, "Mia"),
    "second_job_ocra": lambda d, p: second_job(d, p, OCRA, OCRA_ADD_TASK, OCRA_DURATION, "480"),
    "huge_number": huge_number,
    "click_into_the_next_box": click_into_the_next_box,
}

if __name__ == "__main__":
    sys.exit(run(CASES))
