"""The reporter's memory: it must not grow with the number of jobs."""

import os
import pathlib
import subprocess
import tempfile

from measuring.processes import peak_memory
from measuring.row import Row, kibibytes

RUNS = 3


def _link_jobs(bench, folder, few, many):
    """A folder with a few jobs, and one with the same jobs under many names."""
    some, all_ = folder / "some", folder / "many"
    some.mkdir()
    all_.mkdir()
    subprocess.run([bench.builds[0] / "benchmarks/make_jobs", some, str(few)], check=True)
    for name in os.listdir(some):
        for copy in range(many // few):
            os.link(some / name, all_ / f"{copy:02}-{name}")
    return some, all_


def _summary(reporter, jobs):
    return peak_memory([reporter, "--summary", "--format", "csv", jobs])


def _from_input(reporter, jobs):
    names = jobs.with_suffix(".names")
    if not names.exists():
        names.write_text("".join(f"{path}\n" for path in sorted(jobs.iterdir())))
    with names.open() as standard_input:
        return peak_memory([reporter, "--files-from", "-"], stdin=standard_input)


def rows(bench):
    few, many = 1_000, bench.many(50_000, quick=5_000)
    with tempfile.TemporaryDirectory() as folder:
        some, all_ = _link_jobs(bench, pathlib.Path(folder), few, many)
        for what, peak in (("--summary --format csv of a folder", _summary), ("--files-from -", _from_input)):
            calls = [
                lambda reporter=reporter, jobs=jobs: peak(reporter, jobs)
                for reporter in bench.reporter()
                for jobs in (all_, some)
            ]
            peaks = bench.in_turn(calls, bench.many(RUNS, quick=1))
            name = f"memory of {what}, {many:,} jobs"
            yield Row(name, peaks[0::2], f"{few:,} jobs", peaks[1::2], goal=1.1, text=kibibytes)
