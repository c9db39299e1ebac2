"""A screen of its own for a test: a virtual display with a window manager, keys and mouse for the program on it."""

import os
import shutil
import subprocess
import time

TOOLS = ("Xvfb", "openbox", "xdotool", "xclip", "xev", "convert")
PATIENCE = 20  # seconds until something that has to happen counts as missing


def missing_tools():
    return [tool for tool in TOOLS if shutil.which(tool) is None]


def wait_until(condition, what):
    """Asks again and again until `condition` gives something, which it returns."""
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        found = condition()
        if found:
            return found
        time.sleep(0.05)
    raise AssertionError(f"waited {PATIENCE} s in vain for {what}")


class Desktop:
    """Use as a context manager; everything started on it ends with it."""

    def __init__(self, folder, scale=1):
        self.folder = folder
        self.processes = []
        self.environment = dict(os.environ)
        for name in ("WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "QT_SCALE_FACTOR", "QT_STYLE_OVERRIDE"):
            self.environment.pop(name, None)
        self.environment["QT_SCALE_FACTOR"] = str(scale)
        # Nothing of the user's own is read or written.
        self.environment.update(HOME=folder, XDG_RUNTIME_DIR=folder, XDG_CONFIG_HOME=folder, LC_ALL="C.UTF-8")
        # Journals of the job, apart from what a case puts into its folder.
        self.environment["XDG_STATE_HOME"] = os.path.join(folder, "state")

    def __enter__(self):
        reading, writing = os.pipe()
        # Without -noreset the screen would start anew when its last client leaves, which the tools of
        # the test do again and again, and throw out whoever is just coming.
        self.start(
            ["Xvfb", "-displayfd", str(writing), "-screen", "0", "1280x1200x24", "-nolisten", "tcp", "-noreset"],
            pass_fds=(writing,),
        )
        os.close(writing)
        with os.fdopen(reading) as pipe:
            self.environment["DISPLAY"] = ":" + pipe.readline().strip()
        self.start(["openbox"])
        wait_until(lambda: self.output("xprop", "-root", "_NET_SUPPORTING_WM_CHECK").count("0x"), "the window manager")
        return self

    def __exit__(self, *_):
        for process in reversed(self.processes):
            if process.poll() is None:
                process.terminate()
                try:
                    process.wait(5)
                except subprocess.TimeoutExpired:
                    process.kill()
                    process.wait()

    def start(self, command, stdout=subprocess.DEVNULL, **options):
        process = subprocess.Popen(
            command, env=self.environment, cwd=self.folder, stdout=stdout, stderr=subprocess.DEVNULL, **options
        )
        self.processes.append(process)
        return process

    def output(self, *command):
        return subprocess.run(command, env=self.environment, capture_output=True, text=True, check=False).stdout

    def window(self, title):
        """The visible window with this title, once it is there and has the focus."""

        def active():
            found = self.output("xdotool", "search", "--onlyvisible", "--name", f"^{title}$").split()
            focused = self.output("xdotool", "getactivewindow").strip()
            return focused if focused in found else None

        return wait_until(active, f"the window '{title}'")

    def click(self, window, x, y):
        subprocess.run(
            ["xdotool", "mousemove", "--window", window, str(x), str(y), "click", "1"],
            env=self.environment,
            check=True,
        )

    def click_screen(self, x, y, button):
        """Clicks at a place of the screen, whatever window is there."""
        subprocess.run(
            ["xdotool", "mousemove", str(x), str(y), "click", str(button)], env=self.environment, check=True
        )

    def place(self, window):
        """(x, y, width, height) of a window on the screen."""
        lines = self.output("xdotool", "getwindowgeometry", "--shell", window).split()
        values = dict(line.split("=") for line in lines)
        return tuple(int(values[name]) for name in ("X", "Y", "WIDTH", "HEIGHT"))

    def drag(self, window, start, by, button):
        """Holds a mouse button on a place of a window, moves the mouse and releases the button."""
        x, y = self.place(window)[:2]
        path = [(x + start[0] + by[0] * step // 4, y + start[1] + by[1] * step // 4) for step in range(5)]
        steps = [["mousemove", *map(str, place), "sleep", "0.05"] for place in path]
        steps.insert(1, ["mousedown", str(button), "sleep", "0.2"])
        steps.append(["mouseup", str(button)])
        subprocess.run(["xdotool", *sum(steps, [])], env=self.environment, check=True)

    def keys(self, *keys):
        subprocess.run(["xdotool", "key", "--delay", "40", *keys], env=self.environment, check=True)

    def type(self, text):
        subprocess.run(["xdotool", "type", "--delay", "25", text], env=self.environment, check=True)
