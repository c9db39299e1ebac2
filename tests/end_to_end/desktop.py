"""A screen of its own for a test: a virtual display with a window manager, keys and mouse for the program on it."""

import os
import shutil
import subprocess
import time

TOOLS = ("Xvfb", "openbox", "xdotool", "xclip", "xev", "xprop", "convert", "import")
XFCE = "xfwm4"
PATIENCE = 20  # seconds until something that has to happen counts as missing
LEFT, RIGHT = 1, 3
WHEEL_UP, WHEEL_DOWN = 4, 5


def missing_tools(manager="none"):
    """The programs that the machine lacks, that window manager among them."""
    needed = TOOLS if manager == "none" else (*TOOLS, manager)
    if manager == XFCE:
        needed += ("dbus-daemon",)
    return [tool for tool in needed if shutil.which(tool) is None]


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

    def __init__(self, folder, scale=1, manager="openbox", size=(1280, 1200)):
        """`manager` is the window manager's command; None for a screen without one."""
        self.folder = folder
        self.manager = manager
        self.size = size
        # Without a manager, and with an old one, the keys go to the window below the mouse.
        self.keys_follow_mouse = manager in (None, "twm")
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
            ["Xvfb", "-displayfd", str(writing), "-screen", "0", f"{self.size[0]}x{self.size[1]}x24", "-nolisten", "tcp", "-noreset"],
            pass_fds=(writing,),
        )
        os.close(writing)
        with os.fdopen(reading) as pipe:
            self.environment["DISPLAY"] = ":" + pipe.readline().strip()
        if self.manager == "twm":
            # As it comes, it asks for a place of every window, and for fonts that not every screen has.
            fonts = [f'{what}Font "fixed"' for what in ("Title", "Resize", "Menu", "Icon", "IconManager")]
            with open(os.path.join(self.folder, ".twmrc"), "w", encoding="ascii") as file:
                file.write("\n".join(["RandomPlacement", "NoGrabServer", *fonts, ""]))
        if self.manager:
            self._start_manager()
            wait_until(self._is_managed, "the window manager")
        return self

    def _is_managed(self):
        """Whether a window manager is at work, also one that tells nothing of itself: only one may ask for this."""
        if self.output("xprop", "-root", "_NET_SUPPORTING_WM_CHECK").count("0x"):
            return True
        # A manager frames each window, so that the window is no child of the root any more.
        if not hasattr(self, "probe"):
            self.probe = self.start(["xev", "-name", "probe", "-geometry", "50x50+0+0"])
        place = self.output("xwininfo", "-name", "probe", "-tree")
        framed = "Parent window id" in place and "(the root window)" not in place.split("Parent window id")[1].split("\n")[0]
        if framed:
            self.probe.terminate()
            self.probe.wait()
        return framed

    def __exit__(self, *_):
        for process in reversed(self.processes):
            if process.poll() is None:
                process.terminate()
                try:
                    process.wait(5)
                except subprocess.TimeoutExpired:
                    process.kill()
                    process.wait()

    def _start_manager(self):
        if self.manager != XFCE:
            self.start([self.manager])
            return
        # It keeps its settings with a service of the session, and would start a bus for screen readers.
        session = {"DBUS_SESSION_BUS_ADDRESS": self.start_bus(), "NO_AT_BRIDGE": "1"}
        self.start(["env", *(f"{name}={value}" for name, value in session.items()), self.manager, "--compositor=off"])

    def start_bus(self):
        """Starts a message bus of a session, which nobody is told of, and gives its address."""
        reading, writing = os.pipe()
        self.start(["dbus-daemon", "--session", "--nofork", f"--print-address={writing}"], pass_fds=(writing,))
        os.close(writing)
        with os.fdopen(reading) as pipe:
            return pipe.readline().strip()

    def start(self, command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, **options):
        process = subprocess.Popen(
            command, env=self.environment, cwd=self.folder, stdout=stdout, stderr=stderr, **options
        )
        self.processes.append(process)
        return process

    def output(self, *command):
        return subprocess.run(command, env=self.environment, capture_output=True, text=True, check=False).stdout

    def visible(self, title):
        """The visible windows with this title."""
        return self.output("xdotool", "search", "--onlyvisible", "--name", f"^{title}$").split()

    def focused(self):
        """The window that has the keyboard."""
        return self.output("xdotool", "getactivewindow").strip()

    def active(self, *titles):
        """Title and window of the one of these that has the focus; None while another has it."""
        focused = None if self.keys_follow_mouse else self.focused()
        for title in titles:
            visible = self.visible(title)
            if self.keys_follow_mouse and visible:
                return title, visible[0]
            if focused in visible:
                return title, focused
        return None

    def window(self, title):
        """The visible window with this title, once it is there and has the focus."""
        return wait_until(lambda: self.active(title), f"the window '{title}'")[1]

    def shown(self, title):
        """The visible window with this title, once it is there, whatever has the focus."""
        return wait_until(lambda: self.visible(title), f"the window '{title}'")[0]

    def gone(self, title):
        wait_until(lambda: not self.visible(title), f"the end of the window '{title}'")

    def xdotool(self, *words):
        subprocess.run(["xdotool", *map(str, words)], env=self.environment, check=True)

    def click(self, window, x, y, button=LEFT, times=1):
        repeat = ["--repeat", times, "--delay", 60] if times > 1 else []
        self.xdotool("mousemove", "--window", window, x, y, "click", *repeat, button)

    def wheel(self, window, x, y, button, steps=3):
        self.click(window, x, y, button, steps)

    def rest_mouse(self, window, harmless):
        """Takes the mouse where it touches no control; to a `harmless` place of the window if that gives it the keys."""
        if self.manager is None:
            # A window that has just come may still move.
            wait_until(lambda: self._mouse_is_over(window, harmless), "the mouse over the window")
        elif self.keys_follow_mouse:
            self.xdotool("mousemove", "--window", window, *harmless)
        else:
            self.xdotool("mousemove", self.size[0] - 1, self.size[1] - 1)

    def _mouse_is_over(self, window, place):
        self.xdotool("mousemove", "--window", window, *place)
        return f"WINDOW={window}" in self.output("xdotool", "getmouselocation", "--shell").split()

    def minimise(self, window):
        self.xdotool("windowminimize", window)

    def activate(self, window):
        """Gives a window the keyboard, as a click in a list of windows does."""
        if self.keys_follow_mouse:
            self.xdotool("windowmap", window)
        else:
            self.xdotool("windowactivate", "--sync", window)

    def picture(self, window, place=None):
        """The pixels of a window or of a part (x, y, width, height) of it, as bytes of red, green and blue."""
        crop = ["-crop", "{2}x{3}+{0}+{1}".format(*place), "+repage"] if place else []
        return subprocess.run(
            ["import", "-silent", "-window", window, *crop, "-depth", "8", "rgb:-"],
            env=self.environment,
            capture_output=True,
            check=True,
        ).stdout

    def keydown(self, *keys):
        for key in keys:
            self.xdotool("keydown", key)

    def keyup(self, *keys):
        for key in keys:
            self.xdotool("keyup", key)

    def hold(self, key, seconds):
        """Presses a key and releases it after a while, whatever happens to windows and focus meanwhile."""
        self.keydown(key)
        time.sleep(seconds)
        self.keyup(key)

    def clipboard(self):
        return self.output("xclip", "-selection", "clipboard", "-o", "-t", "UTF8_STRING")

    def set_clipboard(self, text):
        subprocess.run(
            ["xclip", "-selection", "clipboard"],
            env=self.environment,
            input=text.encode(),
            stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL,
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
        subprocess.run(["xdotool", "type", "--delay", "25", "--", text], env=self.environment, check=True)
