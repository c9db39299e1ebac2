#!/usr/bin/env python3
"""Runs the benchmarks of one build folder and prints one table of ratios.

measure.py BUILD_FOLDER
"""

import json
import os
import pathlib
import statistics
import subprocess
import sys
import tempfile
import time

JOBS = 10_000
WARM_UP = 2
RUNS = 15
FRAME = 1 / 60  # seconds
TOOLS = (
    ("si", "Strain Index"),
    ("ocra", "OCRA"),
    ("ctd", "CTD Risk Index"),
    ("rula", "RULA"),
    ("reba", "REBA"),
)


def wall_time(command, **options):
    """(seconds, standard output) of a whole process."""
    start = time.perf_counter()
    done = subprocess.run(command, **options)
    seconds = time.perf_counter() - start
    # A run that fails is a fast one; its time would be a lie.
    if done.returncode:
        sys.exit(f"measure.py: {command[0]} ended with status {done.returncode}")
    return seconds, done.stdout


def alternating(first, second):
    """The results of both calls, turn by turn, so that what else the machine does hits both."""
    results = [(first(), second()) for _ in range(WARM_UP + RUNS)][WARM_UP:]
    return [list(column) for column in zip(*results)]


def quantity(seconds):
    for unit, factor in (("s", 1), ("ms", 1e3), ("µs", 1e6)):
        if seconds * factor >= 1:
            return f"{seconds * factor:.2f} {unit}"
    return f"{seconds * 1e9:.0f} ns"


class Table:
    def __init__(self):
        self.rows = [("what", "takes", "against", "takes", "ratio", "goal")]

    def add(self, what, value, against="", base=None, goal=None, text=quantity):
        ratio = f"{value / base:.2f}" if base else ""
        limit = f"at most {goal}" if goal else ""
        if goal:
            limit += ", met" if value / base <= goal else ", MISSED"
        self.rows.append((what, text(value), against, text(base) if base else "", ratio, limit))

    def print(self):
        widths = [max(map(len, column)) for column in zip(*self.rows)]
        for row in self.rows:
            cells = [
                cell.rjust(width) if number in (1, 3, 4) else cell.ljust(width)
                for number, (cell, width) in enumerate(zip(row, widths))
            ]
            print("  ".join(cells).rstrip())


def measure_in_process(build, table):
    command = [
        build / "benchmarks/in_process",
        "--benchmark_format=json",
        "--benchmark_repetitions=7",
        "--benchmark_enable_random_interleaving=true",
        "--benchmark_report_aggregates_only=true",
    ]
    _, output = wall_time(command, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
    median = {
        row["run_name"].removesuffix("/real_time"): row["real_time"] / 1e9
        for row in json.loads(output)["benchmarks"]
        if row["aggregate_name"] == "median"
    }
    for what, name, against, base in (
        ("reading a job of 40 tasks", "ReadJob", "the same bytes into a stream", "ReadBytes"),
        ("writing a job of 40 tasks", "WriteJob", "the same bytes into a stream", "WriteBytes"),
        ("saving it, whole on the disk at any moment", "SaveJob", "a careless copy", "CopyFile"),
    ):
        table.add(what, median[name], against, median[base])
    for key, name in TOOLS:
        table.add(f"{name} with report, job of 40 tasks", median[f"ToolWithReport/{key}"])


def measure_reporter(build, table):
    with tempfile.TemporaryDirectory() as folder:
        subprocess.run([build / "benchmarks/make_jobs", folder, str(JOBS)], check=True)
        names = sorted(os.listdir(folder))
        assert len(names) == JOBS
        report = [build / "reporter/halvane-report", "--tool", "si", "--format", "json", *names]

        # Each file has to give a report; one without is done sooner.
        lines = wall_time(report, cwd=folder, stdout=subprocess.PIPE)[1].splitlines()
        assert len(lines) == JOBS and all(json.loads(line)["error"] is None for line in lines)

        def run(command):
            return wall_time(command, cwd=folder, stdout=subprocess.DEVNULL)[0]

        ours, cat = alternating(lambda: run(report), lambda: run(["cat", *names]))
    table.add(
        f"halvane-report, JSON of {JOBS:,} job files",
        statistics.median(ours),
        "cat of the same files",
        statistics.median(cat),
        goal=5,
    )


class Screen:
    """A screen of its own, so that nothing but the two programs is measured."""

    def __enter__(self):
        reading, writing = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(writing), "-screen", "0", "1280x800x24", "-nolisten", "tcp", "-noreset"],
            pass_fds=(writing,),
            stderr=subprocess.DEVNULL,
        )
        os.close(writing)
        with os.fdopen(reading) as pipe:
            display = pipe.readline().strip()
        if not display:
            sys.exit("measure.py: Xvfb did not start")
        self.environment = {**os.environ, "DISPLAY": f":{display}", "QT_QPA_PLATFORM": "xcb"}
        return self

    def __exit__(self, *_):
        self.server.terminate()
        self.server.wait()


def measure_windows(build, table):
    with Screen() as screen, tempfile.TemporaryDirectory() as folder:
        environment = {**screen.environment, "XDG_RUNTIME_DIR": folder, "HOME": folder}

        def run(name):
            seconds, output = wall_time(
                [build / "benchmarks" / name], env=environment, stdout=subprocess.PIPE
            )
            return seconds, int(output)

        for key, name in TOOLS:
            tab = [build / "benchmarks/report_tab", key]
            seconds = wall_time(tab, env=environment, stdout=subprocess.PIPE)[1]
            table.add(
                f"{name}, click on the report tab until painted",
                float(seconds),
                "a frame of 60 Hz",
                FRAME,
                goal=1,
            )
        ours, empty = alternating(lambda: run("main_window"), lambda: run("empty_window"))
    (our_time, our_peak), (empty_time, empty_peak) = (
        [statistics.median(column) for column in zip(*results)] for results in (ours, empty)
    )
    table.add("start until the main window is painted", our_time, "an empty window", empty_time, goal=1.5)
    table.add(
        "peak of memory until then",
        our_peak,
        "an empty window",
        empty_peak,
        goal=1.5,
        text=lambda kibibytes: f"{kibibytes / 1024:.1f} MiB",
    )


def main(arguments):
    if len(arguments) != 1:
        sys.exit("usage: measure.py BUILD_FOLDER")
    build = pathlib.Path(arguments[0]).resolve()
    table = Table()
    measure_in_process(build, table)
    measure_reporter(build, table)
    measure_windows(build, table)
    table.print()


if __name__ == "__main__":
    main(sys.argv[1:])
