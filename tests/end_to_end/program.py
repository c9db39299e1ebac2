"""The built program as a user handles it: its windows, menus and questions, and the job files that it writes."""

import csv
import os
import sys
import tempfile

from desktop import Desktop, missing_tools, wait_until

SKIPPED = 77
MAIN = "Halvane Tools V1.0"
MESSAGE = "Halvane Tools"
HELP = ".*Help"
SAID = "standard error"  # the file of a case's folder for what the program says

# Places in the windows, in pixels from their upper left corner.
CLOSE_BUTTON = (264, 220)
FINGERTIP = (151, 40)
BOTTOM = (560, 695)  # of a tool, below its tabs


class Tool:
    """A tool's launch button, title and the places of its tabs."""

    def __init__(self, button, title, *tabs):
        self.button = button
        self.title = title
        self.tabs = tabs


OCRA = Tool((178, 254), "Occupational Repetitive Actions Index", (90, 72), (242, 72), (372, 72))
CTD = Tool((178, 288), "Cumulative Trauma Disorders Risk Assessment Model", (304, 42), (448, 42), (572, 42))
SI = Tool((178, 322), "Strain Index", (75, 42), (190, 42))
REBA = Tool((178, 356), "Rapid Entire Body Assessment", (75, 42), (190, 42))
RULA = Tool((178, 390), "Repetitive Upper Limb Assessment", (75, 42), (190, 42))
TOOLS = (OCRA, CTD, SI, REBA, RULA)
FINGER = (150, 80, 1, 1)  # a place of the hand, which is blue


def wait_for_buttons(desktop, main):
    """Until the buttons of the main window stand, which come when the opening panel goes."""

    def stand():
        finger_red, _green, finger_blue = desktop.picture(main, FINGER)
        # A button is grey, and the opening panel blue.
        red, _green, blue = desktop.picture(main, (240, SI.button[1], 1, 1))
        # A window that is not yet painted is grey all over.
        return finger_red < finger_blue and red == blue

    wait_until(stand, "the end of the opening panel")


class Program:
    """A run of the program, its main window idle; `below` is a command that it runs below."""

    def __init__(self, desktop, program, below=()):
        self.desktop = desktop
        self.said = os.path.join(desktop.folder, SAID)
        with open(self.said, "wb") as file:
            self.process = desktop.start([*below, program], stderr=file)
        self.main = desktop.shown(MAIN)
        wait_for_buttons(desktop, self.main)

    def open(self, tool):
        """Opens a tool from the main window and gives its window."""
        self.desktop.click(self.main, *tool.button)
        window = self.desktop.window(tool.title)
        # So that nothing of the tool has the mouse over it by chance.
        self.desktop.rest_mouse(window, BOTTOM)
        return window

    def leave(self):
        """Closes the open tool by its menu."""
        self.desktop.keys("alt+f")
        self.desktop.keys("Up", "Return")
        self.desktop.window(MAIN)

    def leave_for(self, tool):
        """Closes the open tool and opens another one, whose window it gives."""
        self.leave()
        return self.open(tool)

    def save_as(self, path):
        """Saves the job of an open tool that has no file name yet."""
        self.desktop.keys("alt+f")
        self.desktop.keys("Down", "Down", "Down", "Return")
        self.desktop.window("Save As")
        self.desktop.type(path)
        self.desktop.keys("Return")
        wait_until(lambda: os.path.exists(path) and os.path.getsize(path) > 0, "the saved file")
        self.desktop.gone("Save As")

    def saved_job(self):
        """The job of an open tool, saved under a name of its own and read."""
        path = os.path.join(self.desktop.folder, "saved.qjt")
        self.save_as(path)
        return Job(path)

    def save(self):
        """Saves the job of an open tool that has a file name."""
        self.desktop.keys("alt+f")
        self.desktop.keys("Down", "Down", "Return")

    def job_with(self, condition):
        """The job that `saved_job` saved before and `save` now, once it is so; else nothing."""
        job = Job(os.path.join(self.desktop.folder, "saved.qjt"))
        return job if len(job.lines) >= 64 and condition(job) else None

    def open_job(self, path):
        """Opens a job from the idle main window."""
        self.desktop.keys("ctrl+o")
        self.desktop.window("Open")
        self.desktop.type(path)
        self.desktop.keys("Return")
        self.desktop.gone("Open")
        self.desktop.window(MAIN)

    def job_is_changed(self):
        """Whether the program, asked from its idle main window to open another job, wants to save this one."""
        self.desktop.keys("ctrl+o")
        title, _ = wait_until(lambda: self.desktop.active("Open", MESSAGE), "the question or the dialog of Open")
        self.desktop.keys("Escape")
        self.desktop.window(MAIN)
        return title == MESSAGE

    def copied_report(self):
        """The report of the open tool, whose report tab shows, after Select All and Copy Output."""
        self.desktop.set_clipboard("")
        self.desktop.keys("alt+e", "Return")
        self.desktop.keys("alt+e", "Down", "Return")
        return wait_until(self.desktop.clipboard, "the copied report")

    def assert_alive(self, title):
        """The program goes on: no message, this window in front."""
        found, _ = wait_until(lambda: self.desktop.active(title, MESSAGE), f"'{title}' or a message")
        assert self.process.poll() is None and found == title, f"the program ended with {self.process.poll()}, {found}"

    def end(self, expected=""):
        """Ends the program, which has to have said no more: the toolkit's warnings are somebody's mistakes."""
        self.process.terminate()
        self.process.wait()
        with open(self.said, encoding="utf-8") as file:
            said = file.read()
        assert said == expected, said


class Job:
    """A job file, field by field."""

    def __init__(self, path):
        with open(path, encoding="utf-8", errors="surrogateescape", newline="") as file:
            self.lines = list(csv.reader(file))

    task_count = property(lambda self: self.lines[1][0])
    cycle_time = property(lambda self: self.lines[2][1])
    hours_per_day = property(lambda self: self.lines[2][0])
    analyst = property(lambda self: self.lines[3][0])
    name = property(lambda self: self.lines[3][1])
    workstation = property(lambda self: self.lines[3][2])
    hand = property(lambda self: self.lines[3][3])
    recovery_hours = property(lambda self: self.lines[63][0])

    def answer(self, listing):
        return self.lines[49 + listing][0]

    def task(self, number):
        """The 15 lines of a task."""
        start = 64 + 15 * (number - 1)
        return self.lines[start : start + 15]

    def task_name(self, number):
        return self.task(number)[0][0]

    def ocra_duration(self, number):
        return self.task(number)[1][1]

    def ocra_frequency(self, number):
        return self.task(number)[1][0]

    def ocra_rating(self, number):
        return self.task(number)[2][0]

    def work_time(self, number):
        return self.task(number)[4][0]


def write_job(path, tasks):
    """Writes a job of so many tasks, named "Task 1" and so on, all else as in a new one."""
    lines = ['"qjt",1,0,0,0', str(tasks), "8,0,0", '"","","",0,8', "0,0,0,0"]
    lines += ["0"] * 43 + ["0,0,0,0,0,0,0"] + ["3"] * 14 + ["0,0,0,0,0,0"]
    for number in range(1, tasks + 1):
        lines += [f'"Task {number}",1', "0,0", "0,0,0,0,0,0,0", "0,0,0,0", "0,0,0,0,0,0", "0,0,0,0", ",,,,,,,0"]
        lines += ["0,0"] * 8
    with open(path, "w", encoding="ascii", newline="") as file:
        file.write("".join(line + "\r\n" for line in lines))


def run(cases, sizes=None):
    """Runs the case that the command line names: PROGRAM DATAFOLDER CASE [WINDOWMANAGER | none]. `sizes` has the sizes of
    the screen that are not the usual one. A case may skip itself."""
    program, _data, case, *manager = sys.argv[1:]
    manager = manager[0] if manager else "openbox"
    missing = missing_tools(manager)
    if missing:
        print("skipped: this machine lacks", ", ".join(missing))
        return SKIPPED
    with tempfile.TemporaryDirectory() as folder:
        size = {"size": sizes[case]} if sizes and case in sizes else {}
        with Desktop(folder, manager=None if manager == "none" else manager, **size) as desktop:
            try:
                return cases[case](desktop, program) or 0
            except Exception:
                tell_of_failure(desktop)
                raise


def tell_of_failure(desktop):
    """Prints which windows stand, how each process is and what the program said."""
    print("windows:", desktop.visible(".+"), "focused:", desktop.focused())
    for process in desktop.processes:
        print("running" if process.poll() is None else f"ended with {process.poll()}", "-", *process.args)
    said = os.path.join(desktop.folder, SAID)
    if os.path.exists(said):
        with open(said, encoding="utf-8", errors="replace") as file:
            print("said:", file.read() or "nothing", flush=True)
