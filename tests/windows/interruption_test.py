#!/usr/bin/env python3
"""Presses Ctrl-C while the reporter for Windows waits for the next name.

Usage: interruption_test.py JOB COMMAND...

The first job has to be printed whole, the program to end with 130 and to say how far it came.
"""

import fcntl
import json
import os
import pty
import subprocess
import sys
import termios

SECONDS = 60
TOOLS = 6


def main(job, *command):
    terminal, console = pty.openpty()

    def take_console():
        os.setsid()
        fcntl.ioctl(console, termios.TIOCSCTTY, 0)

    program = subprocess.Popen([*command, "--files-from", "-"], preexec_fn=take_console,
                               stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=console)
    try:
        program.stdin.write(job.encode() + b"\n")
        program.stdin.flush()
        tools = [json.loads(program.stdout.readline())["tool"] for _ in range(TOOLS)]
        os.write(terminal, b"\x03")
        status = program.wait(SECONDS)
    finally:
        program.kill()
    told = os.read(terminal, 4096).decode(errors="replace")
    problems = []
    if len(set(tools)) != TOOLS:
        problems.append(f"printed are {tools}")
    if status != 130:
        problems.append(f"ended with {status}")
    if "interrupted; done so far: 1 job" not in told:
        problems.append(f"told is {told!r}")
    print("\n".join(problems) or "Ctrl-C ends the program behind its job")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
