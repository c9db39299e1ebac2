#!/usr/bin/env python3
"""The program as a screen reader has it, over the accessibility bus and without a look at a pixel:
accessibility_test.py PROGRAM DATAFOLDER CASE. Exit status 77 says that a tool is missing and the test was skipped."""

import importlib.util
import os
import shutil
import sys
import time

from desktop import PATIENCE, wait_until
from program import MAIN, RULA, SI, SKIPPED, run

SYSTEM_PYTHON = "/usr/bin/python3"
NEWS = "Report computed anew"
BUS, BUS_PATH = "org.a11y.Bus", "/org/a11y/bus"


class Reader:
    """A screen reader on a session bus of its own, which the program joins."""

    def __init__(self, desktop, program):
        desktop.environment["DBUS_SESSION_BUS_ADDRESS"] = desktop.start_bus()
        # The library of this process finds both there; what others put there leads elsewhere.
        for name in ("DBUS_SESSION_BUS_ADDRESS", "DISPLAY", "XDG_RUNTIME_DIR", "HOME", "XDG_CONFIG_HOME"):
            os.environ[name] = desktop.environment[name]
        os.environ.pop("AT_SPI_BUS_ADDRESS", None)
        desktop.environment.pop("AT_SPI_BUS_ADDRESS", None)
        import pyatspi  # pylint: disable=import-outside-toplevel
        from gi.repository import Gio, GLib  # pylint: disable=import-outside-toplevel

        self.spi, self.main_context = pyatspi, GLib.MainContext.default()
        self.news = []
        # What a screen reader says of itself when it starts; programs speak to nobody else.
        Gio.bus_get_sync(Gio.BusType.SESSION).call_sync(
            BUS,
            BUS_PATH,
            "org.freedesktop.DBus.Properties",
            "Set",
            GLib.Variant("(ssv)", ("org.a11y.Status", "ScreenReaderEnabled", GLib.Variant("b", True))),
            None,
            Gio.DBusCallFlags.NONE,
            -1,
        )
        pyatspi.Registry.registerEventListener(self._note, "object:state-changed:showing")
        self.said = os.path.join(desktop.folder, "standard error")
        with open(self.said, "wb") as file:
            self.process = desktop.start([program], stderr=file)
        self.application = wait_until(self._application, "the program on the bus")

    def _note(self, event):
        if event.detail1 and event.source.getRole() == self.spi.ROLE_NOTIFICATION:
            self.news.append(event.source.name)

    def _application(self):
        applications = [child for child in self.spi.Registry.getDesktop(0) if child is not None]
        return next((child for child in applications if child.name == "halvane-tools"), None)

    def listen(self, condition, what):
        """Waits for what events bring, or for what can be found."""
        end = time.monotonic() + PATIENCE
        while time.monotonic() < end:
            while self.main_context.iteration(False):
                pass
            found = condition()
            if found:
                return found
            time.sleep(0.05)
        raise AssertionError(f"waited {PATIENCE} s in vain for {what}")

    def _search(self, above, name, role):
        for child in above:
            if child is None or not child.getState().contains(self.spi.STATE_SHOWING):
                continue
            if child.name == name and child.getRole() == role:
                return child
            found = self._search(child, name, role)
            if found is not None:
                return found
        return None

    def find(self, name, role, above=None):
        """What has that name and role below a window, once it shows."""
        what = f"'{name}' ({role})"
        return self.listen(lambda: self._search(above or self.application, name, role), what)

    def act(self, thing):
        """The first action of a thing: what choosing it does."""
        assert thing.queryAction().doAction(0), thing.name

    def open(self, button, title):
        """Opens a tool from the main window."""
        self.act(self.find(button, self.spi.ROLE_PUSH_BUTTON, self.find(MAIN, self.spi.ROLE_FRAME)))
        return self.find(title, self.spi.ROLE_DIALOG)

    def is_checked(self, thing):
        return thing.getState().contains(self.spi.STATE_CHECKED)

    def choose(self, form, name):
        option = self.find(name, self.spi.ROLE_RADIO_BUTTON, form)
        self.act(option)
        self.listen(lambda: self.is_checked(option), f"'{name}' to be checked")
        return option

    def end(self):
        """Ends the program, which has to have said nothing."""
        self.process.terminate()
        self.process.wait()
        with open(self.said, encoding="utf-8") as file:
            assert file.read() == "", self.said

    def report(self, form, tab):
        """The text that the report pane reads, behind its tab and the news of it."""
        self.news.clear()
        self.act(self.find(tab, self.spi.ROLE_PAGE_TAB, form))
        pane = self.find("Report", self.spi.ROLE_TEXT, form)
        self.listen(lambda: self.news == [NEWS], "the news of the report")
        return pane, pane.queryText().getText(0, -1)


def line_of(report, start):
    """The only line of a report that starts so, its words behind that."""
    lines = [line for line in report.splitlines() if line.startswith(start)]
    assert len(lines) == 1, (start, report)
    return lines[0][len(start) :].split()


def posture(desktop, program):
    """A posture that is chosen stands in the score that is read behind it."""
    reader = Reader(desktop, program)
    form = reader.open("RULA", RULA.title)
    for name, said, posture_line, score in (
        ("Upper Arms, -20 to 20", "Upper arm between -20 and +20 deg.", ["-20", "to", "20", "1"], "1"),
        ("Upper Arms, >+90", "Upper arm greater than 90 deg. (Flexion)", [">+90", "4"], "3"),
    ):
        reader.act(reader.find("Task Information", reader.spi.ROLE_PAGE_TAB, form))
        option = reader.choose(form, name)
        assert option.description == said, option.description
        others = [reader.is_checked(child) for child in option.parent if child.getRole() == option.getRole()]
        assert others.count(True) == 1, others
        _, report = reader.report(form, "RULA Score")
        assert line_of(report, "Upper Arms") == posture_line, report
        assert line_of(report, "RULA Grand Score:") == [score], report
    reader.end()


def typed_numbers(desktop, program):
    """Numbers, ratings and the sense of the picture of the Strain Index."""
    reader = Reader(desktop, program)
    form = reader.open("SI", SI.title)
    spi = reader.spi
    for frame, label, number in (
        ("Task Duration", "Duration per Day (hour)", "6"),
        ("Duration of Exertion", "Duration of all exertion (min.)", "5"),
        ("Duration of Exertion", "Total Observation time (min.)", "10"),
        ("Efforts per Minute", "Number of exertions", "100"),
        ("Efforts per Minute", "Total Observation time (min.)", "10"),
    ):
        box = reader.find(label, spi.ROLE_TEXT, reader.find(frame, spi.ROLE_PANEL, form))
        assert box.queryEditableText().setTextContents(number), label
        reader.listen(lambda: box.queryText().getText(0, -1) == number, f"'{label}' to be {number}")
    reader.choose(form, "Intensity of Exertion, % Maximal Strength, 30% - 49%")
    # The columns of a frame are in step.
    assert reader.is_checked(reader.find("Intensity of Exertion, Borg CR-10 Scale, 4 - 5", spi.ROLE_RADIO_BUTTON, form))
    pane, report = reader.report(form, "Strain Index")
    assert line_of(report, "Strain Index Score:") == ["18.0"], report
    sense = report.splitlines()[-1]
    assert sense.startswith("Strain Index score and risk: up to 3, Low risk"), sense
    picture = reader.find(sense.strip(), spi.ROLE_IMAGE, pane)
    place = picture.queryComponent().getExtents(spi.DESKTOP_COORDS)
    assert place.width > 100 and place.height > 100, place
    text = pane.queryText()
    line, start, _end = text.getTextAtOffset(report.index("Recommendation"), spi.TEXT_BOUNDARY_LINE_START)
    assert (line, start) == ("Recommendation:\n", report.index("Recommendation")), (line, start)
    reader.end()


CASES = {"posture": posture, "typed_numbers": typed_numbers}


def missing():
    """What the machine lacks of the bus."""
    folders = os.environ.get("XDG_DATA_DIRS", "/usr/local/share:/usr/share").split(":")
    services = [os.path.join(folder, "dbus-1/services", BUS + ".service") for folder in folders]
    found = {
        "dbus-daemon": shutil.which("dbus-daemon"),
        "at-spi2-core": any(map(os.path.exists, services)),
        "pyatspi": importlib.util.find_spec("pyatspi"),
    }
    return [name for name, is_there in found.items() if not is_there]


if __name__ == "__main__":
    lacking = missing()
    # The system's own interpreter has its module, where another one stands before that.
    is_system = os.path.realpath(sys.executable) == os.path.realpath(SYSTEM_PYTHON)
    if lacking == ["pyatspi"] and not is_system and os.path.exists(SYSTEM_PYTHON):
        os.execv(SYSTEM_PYTHON, [SYSTEM_PYTHON, "-B", *sys.argv])
    if lacking:
        print("skipped: this machine lacks", ", ".join(lacking))
        sys.exit(SKIPPED)
    sys.exit(run(CASES))
