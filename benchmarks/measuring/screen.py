"""A screen of its own, so that nothing but the program is measured."""

import os
import subprocess
import tempfile

from measuring.processes import fail


class Screen:
    def __enter__(self):
        reading, writing = os.pipe()
        self._server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(writing), "-screen", "0", "1280x800x24", "-nolisten", "tcp", "-noreset"],
            pass_fds=(writing,),
            stderr=subprocess.DEVNULL,
        )
        os.close(writing)
        with os.fdopen(reading) as pipe:
            display = pipe.readline().strip()
        if not display:
            fail("Xvfb did not start")
        self._home = tempfile.TemporaryDirectory()
        folder = self._home.name
        own = {"DISPLAY": f":{display}", "QT_QPA_PLATFORM": "xcb", "XDG_RUNTIME_DIR": folder, "HOME": folder}
        self.environment = {**os.environ, **own}
        return self

    def __exit__(self, *_):
        self._server.terminate()
        self._server.wait()
        self._home.cleanup()
