#!/usr/bin/env python3
"""Where the windows stand on screens of several sizes, their frames included: places_test.py PROGRAM DATAFOLDER CASE
[WINDOWMANAGER]. Exit status 77 says that a tool is missing and the test was skipped."""

import os
import re
import sys

from desktop import wait_until
from program import HELP, MAIN, MESSAGE, OCRA, RULA, TOOLS, Program, run

SETTLED = 5  # equal measures one after another until a window counts as standing still
SMALL = {"small": (1024, 768), "flat": (1280, 720), "smallest": (800, 600)}


def measure(desktop, window):
    """(x, y, width, height) of a window on the screen, and the same with its frame; None once it is gone."""
    said = desktop.output("xwininfo", "-id", window)
    names = ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height")
    found = [re.search(rf"{name}:\s+(-?\d+)", said) for name in names]
    if not all(found):
        return None
    x, y, width, height = (int(match.group(1)) for match in found)
    borders = re.findall(r"\d+", desktop.output("xprop", "-id", window, "_NET_FRAME_EXTENTS").split("=")[-1])
    left, right, top, bottom = map(int, borders)
    return (x, y, width, height), (x - left, y - top, width + left + right, height + top + bottom)


def settled(desktop, window):
    """The measures of a window that has come to rest."""
    seen = []

    def at_rest():
        seen.append(measure(desktop, window))
        return len(seen) >= SETTLED and len(set(seen[-SETTLED:])) == 1

    wait_until(at_rest, "a window at rest")
    return seen[-1]


def assert_on_screen(desktop, title, framed):
    x, y, width, height = framed
    right, below = desktop.size[0] - x - width, desktop.size[1] - y - height
    assert min(x, y, right, below) >= 0, f"'{title}' stands at {framed} on {desktop.size}"
    # In the middle, but for what the frame was thought to be.
    assert abs(x - right) <= 16 and abs(y - below) <= 48, f"'{title}' at {framed} is not in the middle"


def assert_screen_is_used(desktop, title, place):
    """As large as usual, or as the screen is but for a frame."""
    for length, standard, screen in zip(place[2:], (1120, 700), desktop.size):
        assert min(standard, screen - 48) <= length <= standard, f"'{title}' is {place[2:]} on {desktop.size}"


def on_screen(desktop, program):
    """Each tool and the help open on the screen as a whole."""
    run_ = Program(desktop, program)
    for tool in TOOLS:
        window = run_.open(tool)
        place, framed = settled(desktop, window)
        print(tool.title, place, framed)
        assert_on_screen(desktop, tool.title, framed)
        assert_screen_is_used(desktop, tool.title, place)
        run_.leave()
    window = run_.open(OCRA)
    desktop.keys("alt+h", "Return")
    shown = wait_until(lambda: desktop.visible(HELP) or desktop.visible(MESSAGE), "the help or a message")
    if desktop.visible(MESSAGE):
        print("no help file beside the program")
        desktop.keys("Escape")
    else:
        place, framed = settled(desktop, shown[0])
        print("help", place, framed)
        assert_on_screen(desktop, "help", framed)
        assert_screen_is_used(desktop, "help", place)
    run_.end()


# By how much a window is moved and made smaller.
FIRST, LAST = (0, 0), (21, 13)


class Watch:
    """Counts how often a window is taken from the screen."""

    def __init__(self, desktop, window):
        self.said = os.path.join(desktop.folder, "what became of the window")
        with open(self.said, "wb") as file:
            self.process = desktop.start(["stdbuf", "-oL", "xev", "-id", window, "-event", "structure"], stdout=file)

    def times(self):
        with open(self.said, encoding="utf-8") as file:
            return file.read().count("UnmapNotify")

    def end(self):
        self.process.terminate()
        self.process.wait()


def reopened(desktop, program):
    """A tool stays where it is through closing and opening it, also where it was moved to, and stands there all the while
    for New and Open."""
    run_ = Program(desktop, program)
    window = run_.open(RULA)
    for by in (FIRST, LAST):
        place = settled(desktop, window)[0]
        desktop.xdotool("windowsize", window, place[2] - by[0], place[3] - by[1])
        desktop.xdotool("windowmove", window, place[0] + by[0], place[1] + by[1])
        wait_until(
            lambda size=(place[2] - by[0], place[3] - by[1]): settled(desktop, window)[0][2:] == size, "the new size"
        )
        before = settled(desktop, window)[0]
        for _ in range(5):
            run_.leave()
            window = run_.open(RULA)
            again = settled(desktop, window)[0]
            assert again == before, f"reopened at {again} and not at {before}"
        watch = Watch(desktop, window)
        for _ in range(5):
            # A changed job, so that the question always comes.
            desktop.type("x")
            desktop.keys("alt+f", "Return")
            desktop.window(MESSAGE)
            desktop.keys("n")
            desktop.gone(MESSAGE)
            assert desktop.window(RULA.title) == window
            again = settled(desktop, window)[0]
            assert again == before, f"after New at {again} and not at {before}"
        saved = os.path.join(desktop.folder, f"moved by {by[0]}.qjt")
        run_.save_as(saved)
        for _ in range(3):
            desktop.window(RULA.title)
            desktop.keys("alt+f", "Down", "Return")
            # A job that the tool has shown may count as changed.
            title = wait_until(lambda: desktop.active("Open", MESSAGE), "the dialog or the question")[0]
            if title == MESSAGE:
                desktop.keys("n")
            desktop.window("Open")
            desktop.type(saved)
            desktop.keys("Return")
            desktop.gone("Open")
            assert desktop.window(RULA.title) == window
            again = settled(desktop, window)[0]
            assert again == before, f"after Open at {again} and not at {before}"
        assert watch.times() == 0, f"off the screen {watch.times()} times"
        if by == LAST:
            run_.leave()
            wait_until(watch.times, "what the window's end leaves")
        watch.end()
    assert desktop.window(MAIN)
    run_.end()


def help_reopened(desktop, program):
    """The help comes back where it was closed."""
    run_ = Program(desktop, program)
    tool = run_.open(OCRA)

    def open_help():
        desktop.keys("alt+h", "Return")
        return wait_until(lambda: desktop.visible(HELP), "the help")[0]

    before = None
    for _ in range(5):
        window = open_help()
        place = settled(desktop, window)[0]
        if before is None:
            desktop.xdotool("windowsize", window, place[2] - 60, place[3] - 50)
            desktop.xdotool("windowmove", window, place[0] + 15, place[1] + 12)
            wait_until(lambda: settled(desktop, window)[0][2] == place[2] - 60, "the new size")
            before = settled(desktop, window)[0]
        else:
            assert place == before, f"reopened at {place} and not at {before}"
        desktop.activate(window)
        desktop.keys("ctrl+w")
        desktop.gone(HELP)
        desktop.activate(tool)
        desktop.window(OCRA.title)
    run_.end()


def shared_memory(process):
    """What a program shares with the X server and others, to read and to write: where it begins and ends."""
    with open(f"/proc/{process.pid}/maps", encoding="utf-8") as maps:
        return [line.split()[0] for line in maps if line.split()[1] == "rw-s"]


def grown(desktop, program):
    """A window that gets larger than it ever was is drawn in the memory that it had."""
    run_ = Program(desktop, program)
    window = run_.open(OCRA)
    (_, _, width, height), _ = settled(desktop, window)
    before = shared_memory(run_.process)
    assert before, "no memory is shared"
    for step in (20, 40, 60):
        desktop.xdotool("windowsize", window, width + step, height + step)
        wait_until(lambda: settled(desktop, window)[0][2:] == (width + step, height + step), "the new size")
        assert shared_memory(run_.process) == before, "the memory of the window was made anew"
    run_.end()


CASES = {f"on_screen_{name}": on_screen for name in ("small", "flat", "smallest", "large")}
CASES.update({f"reopened_{name}": reopened for name in ("small", "flat")})
CASES.update(help_reopened_small=help_reopened, grown_large=grown)
SIZES = {case: SMALL[case.split("_")[-1]] for case in CASES if not case.endswith("large")}

if __name__ == "__main__":
    sys.exit(run(CASES, SIZES))
