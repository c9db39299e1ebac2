#!/usr/bin/env python3
"""Keys whose press and release are apart: keys_test.py PROGRAM DATAFOLDER CASE. A release counts in the box that had
the press, and in no other. Exit status 77 says that a tool is missing and the test was skipped."""

import os
import shutil
import subprocess
import sys

from desktop import wait_until
from program import CTD, HELP, MAIN, MESSAGE, OCRA, REBA, RULA, SI, SKIPPED, Job, Program, run, write_job

OCRA_ANALYST = (207, 39)
OCRA_ADD_TASK = (161, 543)
OCRA_DURATION = (906, 257)
OCRA_FREQUENCY = (906, 328)
CTD_ADD_TASK = (51, 668)
CTD_WORK_TIME = (855, 162)
FILE_MENU = (19, 9)
SAVE_AS = (62, 76)
HELP_SEARCH = (70, 80)
HELP_PAGE = (900, 70)

# A disk that takes 0.4 seconds for whatever has to be on it. The program itself is the child that is started.
SLOW_DISK = ("strace", "-D", "-f", "-qq", "-o", os.devnull, "-e", "trace=fsync,fdatasync",
             "-e", "inject=fsync,fdatasync:delay_enter=400000")

# So long is a key down that a hand presses without haste, and one that it forgets.
PRESSED = 0.12
FORGOTTEN = 0.5


def save_with_enter(desktop, program, *tools):
    """The release of the Enter that closed Save As is no typing: the job is as it was saved."""
    run_ = Program(desktop, program)
    for number, tool in enumerate(tools):
        run_.open(tool)
        desktop.keys("alt+f")
        desktop.keys("Down", "Down", "Down", "Return")
        desktop.window("Save As")
        desktop.type(os.path.join(desktop.folder, f"job {number}.qjt"))
        desktop.hold("Return", PRESSED)
        desktop.window(tool.title)
        assert os.path.exists(os.path.join(desktop.folder, f"job {number}.qjt"))
        run_.leave()
        assert not run_.job_is_changed(), f"{tool.title}: the job counts as changed after Save As"
    run_.end()


def leave_the_menu(desktop, program):
    """Opening the menu and leaving it by Escape changes nothing."""
    run_ = Program(desktop, program)
    for tool in (OCRA, CTD):
        run_.open(tool)
        for keys in (("alt+f", "Escape", "Escape"), ("alt+h", "Escape", "Escape")):
            for key in keys:
                desktop.keys(key)
        run_.leave()
        assert not run_.job_is_changed(), f"{tool.title}: the job counts as changed after a look at its menus"
    run_.end()


def overlapping_keys(desktop, program):
    """The digits of fast typing are all stored, though Tab is pressed while the last one is still down."""
    run_ = Program(desktop, program)
    tool = run_.open(OCRA)
    desktop.click(tool, *OCRA_ADD_TASK)
    desktop.click(tool, *OCRA_DURATION)
    overlap(desktop, "48")
    # Now in the frequency, left by the mouse.
    desktop.keydown("3")
    desktop.keyup("3")
    desktop.keydown("5")
    desktop.click(tool, *OCRA_ANALYST)
    desktop.keyup("5")
    job = run_.saved_job()
    assert (job.ocra_duration(1), job.ocra_frequency(1)) == ("48", "35"), job.task(1)
    run_.end()


def overlapping_keys_brothers(desktop, program):
    """The same on the Strain Index and in the CTD boxes of a task."""
    run_ = Program(desktop, program)
    run_.open(SI)
    desktop.keys("Tab", "Tab", "Tab", "Tab", "Tab")  # into the duration of all exertions
    overlap(desktop, "12")
    window = run_.leave_for(CTD)
    desktop.click(window, *CTD_ADD_TASK)
    desktop.click(window, *CTD_WORK_TIME)
    overlap(desktop, "34")
    job = run_.saved_job()
    assert (job.lines[48][0], job.work_time(1)) == ("12", "34"), (job.lines[48], job.task(1))
    run_.end()


def overlap(desktop, digits):
    """Types digits one by one, and Tab while the last one is still down."""
    for digit in digits[:-1]:
        desktop.hold(digit, 0.02)
    desktop.keydown(digits[-1])
    desktop.keydown("Tab")
    desktop.keyup(digits[-1])
    desktop.keyup("Tab")


def key_down_elsewhere(desktop, program):
    """A digit that is down when another window takes the keyboard is stored; its release there goes nowhere."""
    run_ = Program(desktop, program)
    window = run_.open(OCRA)
    desktop.click(window, *OCRA_ADD_TASK)
    desktop.click(window, *OCRA_DURATION)
    desktop.start(["xev", "-name", "neighbour", "-geometry", "100x100+1150+1050"])
    neighbour = desktop.shown("neighbour")
    desktop.activate(window)
    desktop.window(OCRA.title)
    desktop.type("4")
    desktop.keydown("8")
    desktop.activate(neighbour)
    desktop.window("neighbour")
    desktop.keyup("8")
    # The menu is taken by the mouse, since a key would be a release in the box.
    desktop.click(window, *FILE_MENU)
    desktop.click(window, *SAVE_AS)
    desktop.window("Save As")
    path = os.path.join(desktop.folder, "elsewhere.qjt")
    desktop.type(path)
    desktop.keys("Return")
    wait_until(lambda: os.path.exists(path) and os.path.getsize(path) > 0, "the saved file")
    job = Job(path)
    assert job.ocra_duration(1) == "48", job.task(1)
    run_.end()


def new_with_a_held_key(desktop, program):
    """The N that answered the question of New is held until the new job is on screen; nothing comes of it."""
    run_ = Program(desktop, program)
    for tool, add in ((CTD, CTD_ADD_TASK), (OCRA, OCRA_ADD_TASK)):
        window = run_.open(tool)
        desktop.click(window, *add)
        desktop.keys("alt+f")
        desktop.keys("n")
        desktop.window(MESSAGE)
        desktop.hold("n", FORGOTTEN)
        run_.assert_alive(tool.title)
        job = run_.saved_job()
        assert (job.task_count, job.analyst) == ("0", ""), job.lines[:4]
        os.remove(os.path.join(desktop.folder, "saved.qjt"))
        run_.leave()
        # The next New is asked from a job that has no file name.
        desktop.keys("ctrl+n")
    run_.end()


def open_with_enter(desktop, program):
    """The Enter that closed Open is released when a job without tasks has taken the place of forty."""
    many = os.path.join(desktop.folder, "forty.qjt")
    none = os.path.join(desktop.folder, "none.qjt")
    write_job(many, 40)
    write_job(none, 0)
    with open(none, "rb") as file:
        before = file.read()
    run_ = Program(desktop, program)
    run_.open_job(many)
    run_.open(CTD)
    desktop.keys("alt+f")
    desktop.keys("Down", "Return")
    desktop.window("Open")
    desktop.type(none)
    desktop.hold("Return", PRESSED)
    run_.assert_alive(CTD.title)
    run_.leave()
    assert not run_.job_is_changed()
    with open(none, "rb") as file:
        assert file.read() == before
    run_.end()


def keys_behind_dialogs(desktop, program):
    """Keys reach the tool that come behind Save As and Open while these write their settings to a slow disk, also when the
    box of the file's name offers names."""
    if shutil.which("strace") is None or subprocess.run([*SLOW_DISK, "true"], check=False).returncode != 0:
        print("skipped: programs can't be traced here")
        return SKIPPED
    run_ = Program(desktop, program, SLOW_DISK)
    run_.open(RULA)
    run_.save_as(os.path.join(desktop.folder, "job.qjt"))
    for _ in range(3):
        desktop.keys("alt+f", "Down", "Return")
        # A job that the tool has shown may count as changed.
        title = wait_until(lambda: desktop.active("Open", MESSAGE), "the dialog or the question")[0]
        if title == MESSAGE:
            desktop.keys("n")
        desktop.window("Open")
        desktop.type(os.path.join(desktop.folder, "job.qjt"))
        desktop.keys("Return")
        desktop.gone("Open")
        desktop.window(RULA.title)
    run_.end()
    return 0


def keys_behind_dialogs_on_gnome(desktop, program):
    """Where the desktop has file dialogs of its own, a job that takes the place of another one is saved, and keys that
    come right behind that reach the tool."""
    run_ = Program(desktop, program, ("env", "XDG_CURRENT_DESKTOP=GNOME"))
    run_.open(RULA)
    path = os.path.join(desktop.folder, "saved.qjt")
    run_.save_as(path)
    desktop.type("Mia")
    desktop.keys("alt+f")
    desktop.keys("Down", "Down", "Down", "Return")
    dialog = desktop.window("Save As")
    desktop.type(path)
    desktop.keys("Return")
    # It has the title of the dialog.
    wait_until(lambda: desktop.focused() in set(desktop.visible("Save As")) - {dialog}, "the question about the other job")
    desktop.keys("Tab", "Return")
    desktop.type(" Wallace")
    desktop.gone("Save As")
    desktop.window(RULA.title)
    wait_until(lambda: run_.job_with(lambda job: job.analyst == "Mia"), "the saved job")
    run_.save()
    wait_until(lambda: run_.job_with(lambda job: job.analyst == "Mia Wallace"), "what was typed behind the dialog")
    run_.end()


def answer_is_kept(desktop, program):
    """Tab comes to the hand that is chosen, where Space changes nothing; the arrows choose from there."""
    run_ = Program(desktop, program)
    run_.open(SI)
    desktop.keys("Tab", "Tab", "Tab")
    desktop.hold("Right", PRESSED)
    desktop.hold("Tab", PRESSED)
    desktop.keydown("shift")
    desktop.hold("Tab", PRESSED)
    desktop.keyup("shift")
    desktop.hold("space", PRESSED)
    job = run_.saved_job()
    assert job.hand == "1", job.lines[3]
    run_.end()


def tabs_by_key(desktop, program):
    """Ctrl+Tab changes the tab though the focus is in a box above the tabs."""
    run_ = Program(desktop, program)
    run_.open(OCRA)
    desktop.type("Mia Wallace")
    desktop.keydown("ctrl")
    desktop.hold("Tab", PRESSED)
    desktop.hold("Tab", PRESSED)
    desktop.keyup("ctrl")
    # Only the report tab has an Edit menu.
    report = run_.copied_report()
    assert "Mia Wallace" in report, report
    run_.end()


def file_menu_by_letter(desktop, program):
    """In the open File menu A is Save As and S is Save."""
    run_ = Program(desktop, program)
    run_.open(OCRA)
    path = os.path.join(desktop.folder, "saved.qjt")
    desktop.type("first")
    desktop.keys("alt+f")
    desktop.hold("a", PRESSED)
    desktop.window("Save As")
    desktop.type(path)
    desktop.keys("Return")
    wait_until(lambda: os.path.exists(path) and run_.job_with(lambda job: job.analyst == "first"), "the saved file")
    desktop.window(OCRA.title)
    desktop.type("second")
    desktop.keys("alt+f")
    desktop.hold("s", PRESSED)
    wait_until(lambda: run_.job_with(lambda job: job.analyst.endswith("second")), "the file saved again")
    run_.end()


def help_by_key(desktop, program):
    """F1 shows the help beside the main window, and beside a tool."""
    run_ = Program(desktop, program)

    def ask(window, title):
        desktop.hold("F1", PRESSED)
        wait_until(lambda: desktop.focused() not in ("", window), "the help or a message that there is none")
        desktop.keys("Escape")
        if desktop.visible(MESSAGE):
            desktop.gone(MESSAGE)
        desktop.activate(window)
        desktop.window(title)

    ask(run_.main, MAIN)
    ask(run_.open(SI), SI.title)
    run_.end()


def help_search(desktop, program):
    """The help finds the pages with some words, and the arrows and Return show one of them."""
    run_ = Program(desktop, program)
    run_.open(RULA)
    desktop.hold("F1", PRESSED)
    window = wait_until(lambda: desktop.visible(HELP), "the help")[0]
    wait_until(lambda: desktop.focused() == window, "the help in front")

    def page():
        desktop.set_clipboard("")
        desktop.click(window, *HELP_PAGE)
        desktop.keys("ctrl+a", "ctrl+c")
        return wait_until(desktop.clipboard, "the copied page").split("\n")[0]

    before = page()
    assert before.startswith("RULA"), before
    desktop.click(window, *HELP_SEARCH)
    desktop.type("borg scale")
    desktop.hold("Down", PRESSED)
    desktop.hold("Return", PRESSED)
    found = page()
    assert found == "Strain Index (SI)", found
    run_.end()


CASES = {
    "save_with_enter": lambda desktop, program: save_with_enter(desktop, program, OCRA, CTD),
    "save_with_enter_no_tasks": lambda desktop, program: save_with_enter(desktop, program, SI, REBA, RULA),
    "leave_the_menu": leave_the_menu,
    "overlapping_keys": overlapping_keys,
    "overlapping_keys_brothers": overlapping_keys_brothers,
    "key_down_elsewhere": key_down_elsewhere,
    "new_with_a_held_key": new_with_a_held_key,
    "open_with_enter": open_with_enter,
    "keys_behind_dialogs": keys_behind_dialogs,
    "keys_behind_dialogs_on_gnome": keys_behind_dialogs_on_gnome,
    "answer_is_kept": answer_is_kept,
    "tabs_by_key": tabs_by_key,
    "file_menu_by_letter": file_menu_by_letter,
    "help_by_key": help_by_key,
    "help_search": help_search,
}

if __name__ == "__main__":
    sys.exit(run(CASES))
