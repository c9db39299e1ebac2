#!/usr/bin/env python3
"""Ends the built program in every way but the user's own: rescue_test.py PROGRAM CASE.

Whatever was typed has to stand in a rescue copy, or in the journal and after the next start in a rescue copy. Exit
status 77 says that a tool is missing and the test was skipped.
"""

import os
import signal
import stat
import sys
import tempfile
import time

from desktop import Desktop, missing_tools, wait_until
from program import wait_for_buttons

SKIPPED = 77

# Places in the windows, in pixels from their upper left corner.
SI_BUTTON = (178, 322)
CLOSE_BUTTON = (264, 220)
REPORT_TAB = (190, 42)

MAIN = "Halvane Tools V1.0"
TOOL = "Strain Index"
# A duty cycle between two rows of its table: the first computation of a run ends the program.
FAILING = "29.5,100,30,5"
JOURNAL_DELAY = 1.0  # seconds from a change to its journal
MACHINE_DELAY = 5.0  # what a machine with other work may add


def job(analyst, strain_index="0,0,0,0"):
    """The bytes of the job of a fresh program whose Strain Index was shown and an analyst typed."""
    lines = ['"qjt",1,0,0,0', "0", "8,0,0", f'"{analyst}","","",0,8', "0,0,0,0"]
    lines += ["0"] * 43 + [strain_index + ",10,15,5"] + ["3"] * 14 + ["0,0,0,0,0,0"]
    return "".join(line + "\r\n" for line in lines).encode("ascii")


def content_of(path):
    with open(path, "rb") as file:
        return file.read()


def mode_of(path):
    return stat.S_IMODE(os.stat(path).st_mode)


def files_below(folder):
    """The paths of all files below a folder, from there."""
    found = []
    for path, _, names in os.walk(folder):
        found += [os.path.relpath(os.path.join(path, name), folder) for name in names]
    return sorted(found)


class User:
    """A user with a home of their own, in which there is nothing yet."""

    def __init__(self, desktop, program, name="user"):
        self.desktop = desktop
        self.program = program
        self.home = os.path.join(desktop.folder, name)
        self.state = os.path.join(self.home, ".local", "state", "halvane-tools")
        os.mkdir(self.home)
        self.use_home(self.home)

    def use_home(self, home):
        folders = {name: os.path.join(self.desktop.folder, name) for name in ("tmp", "config", "cache")}
        for folder in folders.values():
            os.makedirs(folder, exist_ok=True)
        self.desktop.environment.update(
            HOME=home, TMPDIR=folders["tmp"], XDG_CONFIG_HOME=folders["config"], XDG_CACHE_HOME=folders["cache"]
        )
        for name in ("XDG_STATE_HOME", "XDG_DATA_HOME"):
            self.desktop.environment.pop(name, None)

    def files(self):
        """What the program left in the home."""
        return files_below(self.home)

    def start(self):
        return self.desktop.start([self.program])

    def start_and_type(self, text):
        """Starts the program, opens the Strain Index and types the analyst's name."""
        process = self.start()
        main = self.desktop.window(MAIN)
        wait_for_buttons(self.desktop, main)
        self.desktop.click(main, *SI_BUTTON)
        self.desktop.window(TOOL)
        self.desktop.type(text)
        return process

    def journals(self):
        try:
            return sorted(os.path.join(self.state, name) for name in os.listdir(self.state))
        except FileNotFoundError:
            return []

    def wait_for(self, text):
        """Until what was typed has arrived in the program, which its journal tells, however slow the machine is."""
        expected = job(text)
        wait_until(
            lambda: any(content_of(path).startswith(expected) for path in self.journals() if path.endswith(".qjt")),
            f"'{text}' in the journal",
        )

    def journal_of(self, expected):
        """The journal, once it begins with these bytes; the wait is short."""
        end = time.monotonic() + JOURNAL_DELAY + MACHINE_DELAY
        found = None
        while time.monotonic() < end:
            found = [path for path in self.journals() if path.endswith(".qjt")]
            if len(found) == 1 and content_of(found[0]).startswith(expected):
                assert mode_of(found[0]) == 0o600, oct(mode_of(found[0]))
                assert mode_of(self.state) == 0o700, oct(mode_of(self.state))
                return found[0]
            time.sleep(0.02)
        raise AssertionError(f"no journal of the job: {found} {[content_of(path) for path in found]}")


def fail(desktop):
    """Has a failure end the program, from the analyst's box of the Strain Index on; gives its message."""
    desktop.keys("Tab", "Tab", "Tab", "Tab")  # past the hand, into the hours per day
    for text in FAILING.split(","):
        desktop.keys("Tab")
        desktop.type(text)
    desktop.click(desktop.window(TOOL), *REPORT_TAB)
    return desktop.window("Halvane Tools")


def wait_for_end(process, status):
    wait_until(lambda: process.poll() is not None, "the end of the program")
    assert process.returncode == status, process.returncode


def expect_copy(path, expected):
    assert content_of(path) == expected, content_of(path)
    assert mode_of(path) == 0o600, oct(mode_of(path))


def end_by_signals(desktop, program):
    """SIGTERM, SIGHUP and SIGINT: a copy in the documents folder, which is made; the program dies by the signal."""
    for number in (signal.SIGTERM, signal.SIGHUP, signal.SIGINT):
        user = User(desktop, program, number.name)
        process = user.start_and_type("Ann")
        user.journal_of(job("Ann"))
        process.send_signal(number)
        wait_for_end(process, -number)
        assert user.files() == ["Documents/Job.rescue.qjt"], user.files()
        expect_copy(os.path.join(user.home, "Documents", "Job.rescue.qjt"), job("Ann"))


def end_twice_with_the_same_job(desktop, program):
    """Signals one right after the other do no harm, and the same job in a second run gets no second copy."""
    user = User(desktop, program)
    for _ in range(2):
        process = user.start_and_type("Ann")
        user.wait_for("Ann")
        for number in (signal.SIGHUP, signal.SIGTERM, signal.SIGHUP):
            process.send_signal(number)
        wait_until(lambda: process.poll() is not None, "the end of the program")
        assert -process.returncode in (signal.SIGHUP, signal.SIGTERM), process.returncode
        assert user.files() == ["Documents/Job.rescue.qjt"], user.files()
    process = user.start_and_type("Anna")
    user.wait_for("Anna")
    process.terminate()
    wait_for_end(process, -signal.SIGTERM)
    assert user.files() == ["Documents/Job (2).rescue.qjt", "Documents/Job.rescue.qjt"], user.files()
    expect_copy(os.path.join(user.home, "Documents", "Job (2).rescue.qjt"), job("Anna"))


def end_without_changes(desktop, program):
    """A program in which nothing was typed leaves nothing, however it ends."""
    user = User(desktop, program)
    for number in (signal.SIGTERM, signal.SIGKILL):
        process = user.start()
        desktop.window(MAIN)
        process.send_signal(number)
        wait_for_end(process, -number)
        assert user.files() == [], user.files()


def end_in_dialogs(desktop, program):
    """A signal ends the program out of a question, a file dialog and the message of a failure, with no other word."""
    user = User(desktop, program, "question")
    process = user.start_and_type("Ann")
    desktop.keys("alt+f")
    desktop.keys("Return")
    desktop.window("Halvane Tools")
    process.terminate()
    wait_for_end(process, -signal.SIGTERM)
    expect_copy(os.path.join(user.home, "Documents", "Job.rescue.qjt"), job("Ann"))

    user = User(desktop, program, "dialog")
    process = user.start_and_type("Ann")
    desktop.keys("alt+f")
    desktop.keys("Down", "Down", "Down", "Return")
    desktop.window("Save As")
    process.terminate()
    wait_for_end(process, -signal.SIGTERM)
    assert user.files() == ["Documents/Job.rescue.qjt"], user.files()
    expect_copy(os.path.join(user.home, "Documents", "Job.rescue.qjt"), job("Ann"))

    user = User(desktop, program, "message")
    process = user.start_and_type("Ann")
    fail(desktop)
    copy = os.path.join(user.home, "Documents", "Job.rescue.qjt")
    expect_copy(copy, job("Ann", strain_index=FAILING))
    process.terminate()
    wait_for_end(process, -signal.SIGTERM)
    assert user.files() == ["Documents/Job.rescue.qjt"], user.files()


def end_by_kills(desktop, program):
    """What nothing can answer: the journal has the job a second after a change, and the next start makes a copy."""
    # A sanitized build would answer these signals itself.
    desktop.environment["ASAN_OPTIONS"] = "handle_segv=0:handle_abort=0"
    for number in (signal.SIGKILL, signal.SIGSEGV, signal.SIGABRT):
        user = User(desktop, program, number.name)
        process = user.start_and_type("Ann")
        journal = user.journal_of(job("Ann"))
        desktop.type("a B")
        user.journal_of(job("Anna B"))
        process.send_signal(number)
        wait_for_end(process, -number)
        assert user.journals() == [journal], user.journals()
        expect_copy(journal, job("Anna B") + b'"halvane-journal",1,"",-1\r\n')

        process = user.start()
        copy = os.path.join(user.home, "Documents", "Job.rescue.qjt")
        wait_until(lambda: os.path.exists(copy) and not user.journals(), "the copy from the journal")
        expect_copy(copy, job("Anna B"))
        desktop.window(MAIN)
        process.terminate()
        wait_for_end(process, -signal.SIGTERM)
        assert user.files() == ["Documents/Job.rescue.qjt"], user.files()


def lose_the_display(desktop, program):
    """The display goes away: a copy stands."""
    user = User(desktop, program)
    process = user.start_and_type("Ann")
    user.wait_for("Ann")
    desktop.processes[0].kill()
    wait_until(lambda: process.poll() is not None, "the end of the program")
    assert user.files() == ["Documents/Job.rescue.qjt"], user.files()
    expect_copy(os.path.join(user.home, "Documents", "Job.rescue.qjt"), job("Ann"))


def exit_with_no(desktop, program):
    """Who leaves with No has answered: neither journal nor copy stays."""
    user = User(desktop, program)
    process = user.start_and_type("Ann")
    user.journal_of(job("Ann"))
    desktop.keys("alt+f")
    desktop.keys("Up", "Return")
    main = desktop.window(MAIN)
    desktop.click(main, *CLOSE_BUTTON)
    desktop.window("Halvane Tools")
    desktop.keys("Return")
    wait_until(lambda: len(desktop.output("xdotool", "search", "--onlyvisible", "--name", "Halvane Tools").split()), "")
    time.sleep(0.5)
    desktop.keys("alt+n")
    wait_for_end(process, 0)
    assert user.files() == [], user.files()


def save_and_go_on(desktop, program):
    """After Save there is no journal until the next change; the one then names the job's file."""
    user = User(desktop, program)
    process = user.start_and_type("Ann")
    user.journal_of(job("Ann"))
    path = os.path.join(desktop.folder, "line 4.qjt")
    desktop.keys("alt+f")
    desktop.keys("Down", "Down", "Return")
    desktop.window("Save As")
    desktop.type(path)
    desktop.keys("Return")
    desktop.window(TOOL)
    wait_until(lambda: os.path.exists(path) and content_of(path) == job("Ann"), "the saved file")
    wait_until(lambda: not user.journals(), "the end of the journal")
    desktop.keys("End")  # whatever is selected now
    desktop.type("a")
    journal = user.journal_of(job("Anna") + b'"halvane-journal",1,"' + path.replace(" ", "%20").encode() + b'",-1')
    process.kill()
    wait_for_end(process, -signal.SIGKILL)
    assert os.path.exists(journal)

    process = user.start()
    copy = os.path.join(desktop.folder, "line 4.rescue.qjt")
    wait_until(lambda: os.path.exists(copy) and not user.journals(), "the copy from the journal")
    expect_copy(copy, job("Anna"))
    assert content_of(path) == job("Ann")
    assert user.files() == [], user.files()


def fail_once(desktop, program):
    """A failure: the copy stands beside the message, the program ends with status 1, and no journal stays."""
    user = User(desktop, program)
    process = user.start_and_type("Ann")
    fail(desktop)
    copy = os.path.join(user.home, "Documents", "Job.rescue.qjt")
    expect_copy(copy, job("Ann", strain_index=FAILING))
    desktop.keys("Return")
    wait_for_end(process, 1)
    assert user.files() == ["Documents/Job.rescue.qjt"], user.files()


def run_two_at_once(desktop, program):
    """A program that starts leaves the journal of one that runs alone."""
    user = User(desktop, program)
    process = user.start_and_type("Ann")
    journal = user.journal_of(job("Ann"))
    left = os.path.join(user.state, "journal-0123456789abcdef.qjt")
    with open(left, "wb") as file:
        file.write(job("Bob") + b'"halvane-journal",1,"",-1\r\n')
    with open(os.path.join(user.state, "notes"), "wb") as file:
        file.write(b"foreign")
    user.start()
    wait_until(lambda: not os.path.exists(left), "the second program to take what is left")
    expect_copy(os.path.join(user.home, "Documents", "Job.rescue.qjt"), job("Bob"))
    assert content_of(journal).startswith(job("Ann"))
    process.terminate()
    wait_for_end(process, -signal.SIGTERM)
    expect_copy(os.path.join(user.home, "Documents", "Job (2).rescue.qjt"), job("Ann"))
    assert os.listdir(user.state) == ["notes"], os.listdir(user.state)


def have_no_home(desktop, program):
    """With no home that takes a file, the copy stands among the temporary files, and nothing is said."""
    user = User(desktop, program)
    user.use_home("/dev/null/home")
    process = user.start_and_type("Ann")
    time.sleep(JOURNAL_DELAY + 0.2)
    process.terminate()
    wait_for_end(process, -signal.SIGTERM)
    expect_copy(os.path.join(desktop.folder, "tmp", "Job.rescue.qjt"), job("Ann"))


def pause_while_nothing_happens(desktop, program):
    """A program that nobody uses does not wake up, whether there is a journal or not."""
    user = User(desktop, program)
    process = user.start_and_type("Ann")
    user.journal_of(job("Ann"))
    # The caret of a text box blinks; on the main window nothing does.
    desktop.keys("alt+f")
    desktop.keys("Up", "Return")
    desktop.window(MAIN)
    time.sleep(2.5)

    def switches():
        with open(f"/proc/{process.pid}/status", encoding="ascii") as file:
            return next(int(line.split()[1]) for line in file if line.startswith("voluntary_ctxt"))

    before = switches()
    time.sleep(4)
    woken = switches() - before
    assert woken <= 1, f"woken {woken} times in 4 s"
    process.terminate()
    wait_for_end(process, -signal.SIGTERM)


CASES = {
    "signals": end_by_signals,
    "twice": end_twice_with_the_same_job,
    "unchanged": end_without_changes,
    "dialogs": end_in_dialogs,
    "kills": end_by_kills,
    "display": lose_the_display,
    "answer_no": exit_with_no,
    "saved": save_and_go_on,
    "failure": fail_once,
    "two": run_two_at_once,
    "homeless": have_no_home,
    "idle": pause_while_nothing_happens,
}


def main():
    program, case = sys.argv[1:]
    missing = missing_tools()
    if missing:
        print("skipped: this machine lacks", ", ".join(missing))
        return SKIPPED
    with tempfile.TemporaryDirectory() as folder, Desktop(folder) as desktop:
        CASES[case](desktop, program)
    return 0


if __name__ == "__main__":
    sys.exit(main())
