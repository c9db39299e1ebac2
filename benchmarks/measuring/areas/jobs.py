"""One job: read, written, computed, inside a process."""

import json
import subprocess

from measuring.processes import wall_time
from measuring.row import Row

FILES = (
    ("reading a job of 40 tasks", "ReadJob", "the same bytes into a stream", "ReadBytes"),
    ("writing a job of 40 tasks", "WriteJob", "the same bytes into a stream", "WriteBytes"),
    ("saving it, whole on the disk at any moment", "SaveJob", "a careless copy", "CopyFile"),
)
REPORTS = (("ocra", "OCRA"), ("ctd", "CTD Risk Index"), ("si", "Strain Index"), ("reba", "REBA"), ("rula", "RULA"))


def _samples(program, repetitions, seconds):
    command = [
        program,
        "--benchmark_format=json",
        f"--benchmark_repetitions={repetitions}",
        f"--benchmark_min_time={seconds}",
        "--benchmark_enable_random_interleaving=true",
        "--benchmark_report_aggregates_only=false",
    ]
    output = wall_time(command, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)[1]
    samples = {}
    for row in json.loads(output)["benchmarks"]:
        if row["run_type"] == "iteration":
            samples.setdefault(row["run_name"].removesuffix("/real_time"), []).append(row["real_time"] / 1e9)
    return samples


def rows(bench):
    repetitions, seconds = bench.many(7), 0.01 if bench.quick else 0.05
    sides = [program and _samples(program, repetitions, seconds) for program in bench.program("in_process")]

    def of(name):
        return [side and side[name] for side in sides]

    for what, name, against, base in FILES:
        yield Row(what, of(name), against, of(base))
    for key, name in REPORTS:
        yield Row(f"{name} with report, job of 40 tasks", of(f"ToolWithReport/{key}"))
