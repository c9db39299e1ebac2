"""Chromium without a screen, asked through its two pipes what it makes of a page."""

import json
import os
import shutil
import subprocess
import tempfile

PROGRAM = "chromium"
SECONDS_TO_END = 20


def is_there():
    return shutil.which(PROGRAM) is not None


class Browser:
    """One tab. Each command waits for its answer; a failure of the browser ends the test."""

    def __enter__(self):
        self._profile = tempfile.TemporaryDirectory(ignore_cleanup_errors=True)
        their_input, self._commands = os.pipe()
        self._answers, their_output = os.pipe()
        arguments = [PROGRAM, "--headless=new", "--remote-debugging-pipe", "--disable-gpu",
                     "--disable-dev-shm-usage", "--no-first-run", "--disable-background-networking",
                     f"--user-data-dir={self._profile.name}"]
        # The sandbox of the superuser's browser needs another user.
        if os.geteuid() == 0:
            arguments.append("--no-sandbox")
        # It reads commands from 3 and answers on 4.
        words = 'exec "$@" 3<&0 4>&1 </dev/null >/dev/null'
        # What it complains of, buses that are not there, is no matter of the page.
        self._process = subprocess.Popen(
            ["sh", "-c", words, "sh", *arguments, "about:blank"], stdin=their_input,
            stdout=their_output, stderr=subprocess.DEVNULL,
            env=dict(os.environ, HOME=self._profile.name))
        os.close(their_input)
        os.close(their_output)
        self._rest = b""
        self._number = 0
        self._session = None
        self._events = []
        target = self.ask("Target.createTarget", url="about:blank")["targetId"]
        self._session = self.ask("Target.attachToTarget", targetId=target,
                                 flatten=True)["sessionId"]
        for domain in ("Page", "Runtime", "Accessibility"):
            self.ask(domain + ".enable")
        return self

    def __exit__(self, *_):
        os.close(self._commands)
        try:
            self._process.wait(SECONDS_TO_END)
        except subprocess.TimeoutExpired:
            self._process.kill()
            self._process.wait()
        os.close(self._answers)
        self._profile.cleanup()

    def ask(self, method, **parameters):
        """The answer to a command of the DevTools protocol."""
        self._number += 1
        command = {"id": self._number, "method": method, "params": parameters}
        if self._session:
            command["sessionId"] = self._session
        os.write(self._commands, json.dumps(command).encode() + b"\0")
        while True:
            message = self._next_message()
            if message.get("id") == self._number:
                assert "error" not in message, (method, message["error"])
                return message["result"]
            self._events.append(message.get("method"))

    def open(self, path):
        """Opens a file and waits until it is laid out whole."""
        self._events.clear()
        self.ask("Page.navigate", url="file://" + path)
        while "Page.loadEventFired" not in self._events:
            self._events.append(self._next_message().get("method"))

    def run(self, script):
        """The value of an expression of JavaScript in the page."""
        answer = self.ask("Runtime.evaluate", expression=script, returnByValue=True)
        assert "exceptionDetails" not in answer, answer
        return answer["result"].get("value")

    def _next_message(self):
        while b"\0" not in self._rest:
            piece = os.read(self._answers, 1 << 20)
            assert piece, "the browser ended"
            self._rest += piece
        message, self._rest = self._rest.split(b"\0", 1)
        return json.loads(message)
