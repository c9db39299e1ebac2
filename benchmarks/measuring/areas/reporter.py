"""The reporter's wall time over thousands of job files."""

import contextlib
import csv
import json
import os
import pathlib
import subprocess
import sys
import tempfile

from measuring.processes import wall_time
from measuring.row import Row

SPLITTER = pathlib.Path(__file__).parents[2] / "split_fields.py"


@contextlib.contextmanager
def job_files(bench, count):
    """A folder with so many job files, and their names."""
    with tempfile.TemporaryDirectory() as folder:
        subprocess.run([bench.builds[0] / "benchmarks/make_jobs", folder, str(count)], check=True)
        names = sorted(os.listdir(folder))
        assert len(names) == count
        yield folder, names


class _Files:
    def __init__(self, bench, folder, names):
        self._bench, self._folder, self._names = bench, folder, names

    def _run(self, command, output):
        return wall_time([*command, *self._names], cwd=self._folder, stdout=output)

    def output(self, command):
        return self._run(command, subprocess.PIPE)[1]

    def times(self, ours, other, runs=15):
        """The wall times of the reporter with some arguments, for each build, and of another command."""
        commands = [*([reporter, *ours] for reporter in self._bench.reporter()), other]
        calls = [lambda command=command: self._run(command, subprocess.DEVNULL)[0] for command in commands]
        *sides, base = self._bench.in_turn(calls, self._bench.many(runs), warm_up=0 if self._bench.quick else 1)
        return sides, [base] * len(sides)


def _check_reports(files, reporter, arguments, count):
    """Each file has to give its report; one without is done sooner."""
    lines = files.output([reporter, *arguments]).splitlines()
    assert len(lines) == count and all(json.loads(line)["error"] is None for line in lines)


def _check_summary(files, reporter, arguments, count):
    lines = files.output([reporter, *arguments]).decode().splitlines()
    rows = list(csv.DictReader(lines))
    assert len(rows) == count and all(row["reasons"] == "" for row in rows)


def rows(bench):
    count = bench.many(10_000, quick=1_000)
    summary = ["--summary", "--format", "csv"]
    one_report = ["--tool", "si", "--format", "json"]
    reports = ["--format", "json"]
    with job_files(bench, count) as (folder, names):
        files = _Files(bench, folder, names)
        ours = bench.reporter()[0]
        _check_reports(files, ours, one_report, count)
        _check_summary(files, ours, summary, count)
        megabytes = len(files.output([ours, *reports])) / 1e6
        cat = "cat of the same files"
        what = f"--summary --format csv of {count:,} job files"
        yield Row(what, *_against(files.times(summary, ["cat"]), cat), goal=1)
        times = files.times(summary, [sys.executable, SPLITTER], runs=5)
        yield Row(what, *_against(times, "Python that splits them into fields"), goal=0.1)
        what = f"halvane-report, JSON of {count:,} job files"
        yield Row(what, *_against(files.times(one_report, ["cat"]), cat), goal=5)
        alone = [ours, "--jobs", "1", *reports]
        sides, base = files.times(["--jobs", "2", *reports], alone, runs=5)
        yield Row(f"JSON of all tools, {count:,} job files, --jobs 2", sides, "--jobs 1", base, goal=0.588)
        each = [[seconds / megabytes for seconds in side] for side in sides]
        yield Row("a megabyte of reports of all tools, --format json", each, "200 MB/s", 1 / 200, goal=1)


def _against(times, name):
    sides, base = times
    return sides, name, base
