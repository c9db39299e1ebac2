"""One job: read, written, computed, inside a process."""

import json
import subprocess

from measuring.bench import joined, of
from measuring.processes import wall_time
from measuring.row import Row

FILES = (
    ("reading a job of 40 tasks", "ReadJob", "the same bytes into a stream", "ReadBytes"),
    ("writing a job of 40 tasks", "WriteJob", "the same bytes into a stream", "WriteBytes"),
    ("saving it, whole on the disk at any moment", "SaveJob", "a careless copy", "CopyFile"),
)
REPORTS = (("ocra", "OCRA"), ("ctd", "CTD Risk Index"), ("si", "Strain Index"), ("reba", "REBA"), ("rula", "RULA"))


def _samples(program, seconds):
    """What each of the benchmarks takes, by its name."""
    if program is None:
        return None
    command = [program, "--benchmark_format=json", f"--benchmark_min_time={seconds}"]
    output = wall_time(command, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)[1]
    rows = json.loads(output)["benchmarks"]
    return {row["name"].removesuffix("/real_time"): [row["real_time"] / 1e9] for row in rows}


def rows(bench):
    seconds = 0.01 if bench.quick else 0.05
    calls = [lambda program=program: _samples(program, seconds) for program in bench.program("in_process")]
    sides = [joined(results) for results in bench.in_turn(calls, bench.many(7))]
    for what, name, against, base in FILES:
        yield Row(what, of(name, sides), against, of(base, sides))
    for key, name in REPORTS:
        yield Row(f"{name} with report, job of 40 tasks", of(f"ToolWithReport/{key}", sides))
