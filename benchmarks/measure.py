#!/usr/bin/env python3
"""Runs the benchmarks of a build folder and prints one table: measure.py FOLDER"""

import json
import os
import statistics
import subprocess
import sys
import tempfile
import time

FILES = 10_000
TASKS = 5
FILE_ROUNDS = 7
START_ROUNDS = 25


def job_text(number):
    """A job of five tasks as the program writes it, different in each file."""
    lines = ['"qjt",1,0,0,0', str(TASKS), "8,0.75,0"]
    lines += [f'"Line {number % 9} review","Packing, end of line","L{number}",0,8', "0,0,0,0"]
    lines += ["0"] * 43 + [f"{number % 14 + 1},15,{number % 300},15,{number % 15},{number % 20},{number % 10}"]
    lines += ["3"] * 14 + ["0,0,0,0,0,0"]
    for task in range(1, TASKS + 1):
        lines += [f'"Task {task}",1', "24,120", "1,0.05,0.6,0,24,8.5,15", "0,0,0,0", "0.05,0.6,0,2,8.5,15", "0,0,0,0"]
        lines += [",,,,,,,0"] + ["1.1,0.36"] * 8
    return "\r\n".join(lines) + "\r\n"


def wall_time(command, **options):
    start = time.perf_counter()
    result = subprocess.run(command, check=True, **options)
    return time.perf_counter() - start, result


def in_process(build):
    """Time of each benchmark in nanoseconds."""
    output = subprocess.run(
        [f"{build}/benchmarks/core_bench", "--benchmark_format=json", "--benchmark_min_time=0.3"],
        check=True, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
    ).stdout
    return {row["name"]: row["real_time"] for row in json.loads(output)["benchmarks"]}


def over_files(build, folder):
    """Median seconds of the reporter and of cat over the same files, in turns."""
    names = []
    for number in range(FILES):
        names.append(os.path.join(folder, f"{number}.qjt"))
        with open(names[-1], "w", newline="", encoding="ascii") as file:
            file.write(job_text(number))
    commands = {
        "report": [os.path.abspath(f"{build}/reporter/halvane-report"), "--tool", "si", "--format", "json"],
        "cat": ["cat"],
    }
    times = {name: [] for name in commands}
    out = os.path.join(folder, "out")
    for _ in range(FILE_ROUNDS):
        for name, command in commands.items():
            with open(out, "wb") as file:
                times[name].append(wall_time(command + names, stdout=file)[0])
            if name == "report":
                with open(out, "rb") as file:
                    done = sum(1 for _ in file)
                assert done == FILES, done
    return {name: statistics.median(values) for name, values in times.items()}


def until_painted(build):
    """Median seconds and peak kB of both windows, in turns."""
    environment = dict(os.environ, QT_QPA_PLATFORM="offscreen")
    found = {"main": ([], []), "empty": ([], [])}
    for _ in range(START_ROUNDS):
        for name, (times, memory) in found.items():
            seconds, result = wall_time(
                [f"{build}/benchmarks/{name}_window_start"],
                env=environment, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
            )
            times.append(seconds)
            memory.append(int(result.stdout))
    return {name: (statistics.median(t), statistics.median(m)) for name, (t, m) in found.items()}


def row(what, measured, against, ratio, goal=""):
    print(f"{what:<48}{measured:>14}{against:>26}{ratio:>8}{goal:>8}")


def main():
    build = sys.argv[1]
    row("", "measured", "against", "ratio", "goal")
    ns = in_process(build)
    for what, name, base in (
        ("read a job of 40 tasks", "ReadJob", "ReadStream"),
        ("write a job of 40 tasks", "WriteJobText", "WriteStream"),
        ("save it, old file kept, synced to disk", "SaveJob", "WriteStream"),
    ):
        row(what, f"{ns[name] / 1000:.0f} us", f"stream {ns[base] / 1000:.0f} us", f"{ns[name] / ns[base]:.1f}")
    row("Strain Index with report", f"{ns['StrainIndexWithReport'] / 1000:.1f} us", "", "")
    # Memory-backed where there is one, so that no disk is measured.
    place = "/dev/shm" if os.access("/dev/shm", os.W_OK) else None
    with tempfile.TemporaryDirectory(dir=place) as folder:
        seconds = over_files(build, folder)
    ratio = seconds["report"] / seconds["cat"]
    row(f"halvane-report, {FILES} files, json", f"{seconds['report'] * 1000:.0f} ms",
        f"cat {seconds['cat'] * 1000:.0f} ms", f"{ratio:.1f}", "5.0")
    painted = until_painted(build)
    for what, place, unit, scale in (("start until painted", 0, "ms", 1000), ("peak memory", 1, "MB", 1 / 1024)):
        ours, base = painted["main"][place], painted["empty"][place]
        row(f"main window, {what}", f"{ours * scale:.0f} {unit}", f"empty window {base * scale:.0f} {unit}",
            f"{ours / base:.2f}", "1.5")


main()
