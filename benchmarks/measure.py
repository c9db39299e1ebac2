#!/usr/bin/env python3
"""Runs the benchmarks of one build folder and prints one table of ratios.

measure.py BUILD_FOLDER [--quick]

With --quick there are few runs of few jobs: it shows that everything can be measured, and no figure to compare with.
"""

import csv
import json
import os
import pathlib
import statistics
import subprocess
import sys
import tempfile
import time

QUICK = "--quick" in sys.argv[2:]
JOBS = 1_000 if QUICK else 10_000
FEW_JOBS, MANY_JOBS = (1_000, 5_000) if QUICK else (1_000, 100_000)
WARM_UP = 0 if QUICK else 2
RUNS = 2 if QUICK else 15
MEMORY_RUNS = 1 if QUICK else 5
REPETITIONS = 2 if QUICK else 7
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


def memory_of(pid, program):
    """The most memory of a process up to now in KiB; 0 while it is not yet `program`, or over."""
    try:
        if os.readlink(f"/proc/{pid}/exe") != program:
            return 0
        status = pathlib.Path(f"/proc/{pid}/status").read_text()
    except OSError:
        return 0
    return max((int(line.split()[1]) for line in status.splitlines() if line.startswith("VmHWM:")), default=0)


def peak_memory(command, **options):
    """The most memory of a process in KiB, looked at while it runs: what the system tells at its
    end counts the process that started it too."""
    peak = 0
    with subprocess.Popen(command, stdout=subprocess.DEVNULL, **options) as process:
        while process.poll() is None:
            peak = max(peak, memory_of(process.pid, command[0]))
            time.sleep(0.001)
    if process.returncode or not peak:
        sys.exit(f"measure.py: {command[0]} ended with status {process.returncode}")
    return peak


def usual(peak, jobs):
    """The median of a few runs: the system counts memory in steps of a tenth of what is measured here."""
    return statistics.median(peak(jobs) for _ in range(MEMORY_RUNS))


def mebibytes(kibibytes):
    return f"{kibibytes / 1024:.1f} MiB"


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
        f"--benchmark_repetitions={REPETITIONS}",
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


def measure_summary(build, table):
    reporter = build / "reporter/halvane-report"
    with tempfile.TemporaryDirectory() as folder:
        subprocess.run([build / "benchmarks/make_jobs", folder, str(JOBS)], check=True)
        names = sorted(os.listdir(folder))
        summary = [reporter, "--summary", "--format", "csv", *names]
        split = [sys.executable, pathlib.Path(__file__).with_name("split_fields.py"), *names]
        reports = [reporter, "--format", "json", *names]
        two_at_once, one_at_a_time = ([reporter, "--jobs", jobs, *reports[1:]] for jobs in ("2", "1"))

        def run(command):
            return wall_time(command, cwd=folder, stdout=subprocess.DEVNULL)[0]

        # Each job has to give its line, and each tool its headline; one without is done sooner.
        lines = wall_time(summary, cwd=folder, stdout=subprocess.PIPE)[1].decode().splitlines()
        rows = list(csv.DictReader(lines))
        assert len(rows) == JOBS and all(row["reasons"] == "" for row in rows)
        output = len(wall_time(reports, cwd=folder, stdout=subprocess.PIPE)[1])

        ours, cat = alternating(lambda: run(summary), lambda: run(["cat", *names]))
        ours_again, python = alternating(lambda: run(summary), lambda: run(split))
        written, alone = alternating(lambda: run(two_at_once), lambda: run(one_at_a_time))
    what = f"--summary --format csv of {JOBS:,} job files"
    table.add(what, statistics.median(ours), "cat of the same files", statistics.median(cat), goal=4)
    table.add(
        what,
        statistics.median(ours_again),
        "Python that splits them into fields",
        statistics.median(python),
        goal=0.1,
    )
    table.add(
        "a megabyte of reports of all tools, --format json",
        statistics.median(written) / (output / 1e6),
        "200 MB/s",
        1 / 200,
        goal=1,
    )
    table.add(
        f"JSON of all tools, {JOBS:,} job files, --jobs 2",
        statistics.median(written),
        "--jobs 1",
        statistics.median(alone),
        goal=0.588,
    )


def measure_memory(build, table):
    reporter = str(build / "reporter/halvane-report")
    with tempfile.TemporaryDirectory() as folder:
        some = pathlib.Path(folder, "some")
        some.mkdir()
        subprocess.run([build / "benchmarks/make_jobs", some, str(FEW_JOBS)], check=True)
        many = pathlib.Path(folder, "many")
        many.mkdir()
        # The same jobs under many names.
        for name in os.listdir(some):
            for copy in range(MANY_JOBS // FEW_JOBS):
                os.link(some / name, many / f"{copy:02}-{name}")

        def summary(jobs):
            return peak_memory([reporter, "--summary", "--format", "csv", jobs])

        def from_input(jobs):
            names = pathlib.Path(folder, "names")
            names.write_text("".join(f"{path}\n" for path in sorted(jobs.iterdir())))
            with names.open() as standard_input:
                return peak_memory([reporter, "--files-from", "-"], stdin=standard_input)

        for what, peak in (("--summary --format csv of a folder", summary), ("--files-from -", from_input)):
            table.add(
                f"memory of {what}, {MANY_JOBS:,} jobs",
                usual(peak, many),
                f"{FEW_JOBS:,} jobs",
                usual(peak, some),
                goal=1.1,
                text=mebibytes,
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
        for key, name in (*TOOLS, ("hal", "Hand Activity Level")):

            def opening(*arguments):
                command = [build / "benchmarks/tool_opening", key, *arguments]
                output = wall_time(command, env=environment, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)[1]
                return [float(word) for word in output.split()]

            first, later, _, step, _ = opening()
            quiet, = opening("quiet")
            table.add(f"{name}, processor time of the first opening", first, "two frames", 2 * FRAME, goal=1)
            table.add(f"{name}, after two quiet seconds", quiet, "two frames", 2 * FRAME, goal=1)
            table.add(f"{name}, of a later one", later, "12 ms", 0.012, goal=1)
            table.add(f"{name}, of a step of the window's edge", step, "a frame of 60 Hz", FRAME, goal=1)
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
        text=mebibytes,
    )


def main(arguments):
    if not arguments or arguments[1:] not in ([], ["--quick"]):
        sys.exit("usage: measure.py BUILD_FOLDER [--quick]")
    build = pathlib.Path(arguments[0]).resolve()
    table = Table()
    measure_in_process(build, table)
    measure_reporter(build, table)
    measure_summary(build, table)
    measure_memory(build, table)
    measure_windows(build, table)
    table.print()


if __name__ == "__main__":
    main(sys.argv[1:])
