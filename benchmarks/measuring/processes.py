"""Programs, run and timed."""

import os
import pathlib
import subprocess
import sys
import time


def fail(complaint):
    sys.exit(f"bench: {complaint}")


def wall_time(command, **options):
    """(seconds, standard output) of a whole process."""
    start = time.perf_counter()
    done = subprocess.run(command, **options)
    seconds = time.perf_counter() - start
    # A run that fails is a fast one; its time would be a lie.
    if done.returncode:
        fail(f"{' '.join(map(str, command[:4]))} ended with status {done.returncode}")
    return seconds, done.stdout


def samples_in(output):
    """What a program has measured: name and amount in a line, as lists by name."""
    samples = {}
    for line in output.decode().splitlines():
        name, amount = line.rsplit("\t", 1)
        samples.setdefault(name, []).append(float(amount))
    return samples


def _memory_of(pid, program):
    """The most memory of a process up to now in KiB; 0 while it is not yet `program`, or over."""
    try:
        if os.readlink(f"/proc/{pid}/exe") != program:
            return 0
        status = pathlib.Path(f"/proc/{pid}/status").read_text()
    except OSError:
        return 0
    return max((int(line.split()[1]) for line in status.splitlines() if line.startswith("VmHWM:")), default=0)


def peak_memory(command, **options):
    """The most memory of a process in KiB, looked at while it runs: what the system tells at its end counts the
    process that started it too."""
    peak = 0
    with subprocess.Popen(command, stdout=subprocess.DEVNULL, **options) as process:
        while process.poll() is None:
            peak = max(peak, _memory_of(process.pid, command[0]))
            time.sleep(0.001)
    if process.returncode or not peak:
        fail(f"{command[0]} ended with status {process.returncode}")
    return peak
