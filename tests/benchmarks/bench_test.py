#!/usr/bin/env python3
"""The pieces of ./bench that need no long build: bench_test.py SOURCEFOLDER."""

import contextlib
import io
import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

SOURCES = pathlib.Path(sys.argv.pop(1)).resolve()
sys.path.insert(0, str(SOURCES / "benchmarks"))

from measuring import builds  # noqa: E402
from measuring.areas import actions  # noqa: E402
from measuring.arguments import parse  # noqa: E402
from measuring.processes import samples_in, wall_time  # noqa: E402
from measuring.row import Row, kibibytes, ninetieth, seconds  # noqa: E402
from measuring.table import text_of  # noqa: E402


def complaint_of(call):
    """The exit status or sentence that a call ends the program with."""
    errors = io.StringIO()
    with contextlib.redirect_stderr(errors):
        try:
            call()
        except SystemExit as end:
            return end.code, errors.getvalue()
    return None, errors.getvalue()


class Arguments(unittest.TestCase):
    def test_none_ask_for_the_whole_table_of_the_present_files(self):
        wishes = parse([])
        self.assertEqual((wishes.quick, wishes.against), (False, None))

    def test_both_may_be_given(self):
        for arguments in (["--quick", "--against", "HEAD~1"], ["--against=HEAD~1", "--quick"]):
            wishes = parse(arguments)
            self.assertEqual((wishes.quick, wishes.against), (True, "HEAD~1"))

    def test_others_are_told_in_a_sentence(self):
        for arguments, told in (
            (["--against"], "--against: expected one argument"),
            (["--agianst", "HEAD"], "unrecognized arguments"),
            (["HEAD"], "unrecognized arguments: HEAD"),
        ):
            status, errors = complaint_of(lambda: parse(arguments))
            self.assertEqual(status, 2)
            self.assertIn(told, errors)


class Commits(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = pathlib.Path(folder.name).resolve()
        self.git("init", "--quiet", "--initial-branch=main")
        self.first = self.commit("one")
        self.second = self.commit("two")

    def git(self, *arguments):
        # Whatever the machine's own settings are.
        settings = {"GIT_CONFIG_GLOBAL": os.devnull, "GIT_CONFIG_SYSTEM": os.devnull}
        who = ["-c", "user.name=Tester", "-c", "user.email=tester@example.com"]
        command = ["git", "-C", self.root, *who, *arguments]
        done = subprocess.run(command, check=True, capture_output=True, text=True, env={**os.environ, **settings})
        return done.stdout.strip()

    def commit(self, text):
        for path in ("core/text.cpp", "benchmarks/text.cpp", f"benchmarks/{text}.cpp"):
            (self.root / path).parent.mkdir(exist_ok=True)
            (self.root / path).write_text(text)
        self.git("add", "--all")
        self.git("commit", "--quiet", "--message", text)
        return self.git("rev-parse", "HEAD")

    def test_have_many_names(self):
        for name, commit in (
            ("HEAD", self.second),
            ("HEAD~1", self.first),
            ("main", self.second),
            (self.first[:12], self.first),
        ):
            self.assertEqual(builds.commit_of(name, self.root), commit)

    def test_that_are_unknown_are_told_in_a_sentence(self):
        for name in ("nowhere", "HEAD~2", "", "--all", "main:core", "0" * 40):
            told, _ = complaint_of(lambda: builds.commit_of(name, self.root))
            self.assertEqual(told, f"bench: --against {name}: there is no such commit in {self.root}")

    def test_come_with_the_present_benchmarks_into_one_folder(self):
        (self.root / "benchmarks/text.cpp").write_text("present")
        for commit, text in ((self.first, "one"), (self.second, "two"), (self.first, "one")):
            files = builds.take_files(commit, self.root)
            self.assertEqual((files / "core/text.cpp").read_text(), text)
            self.assertEqual((files / "benchmarks/text.cpp").read_text(), "present")
            names = sorted(path.name for path in (files / "benchmarks").iterdir())
            self.assertEqual(names, ["one.cpp", "text.cpp", "two.cpp"])
        self.assertEqual((self.root / "core/text.cpp").read_text(), "two")

    def test_come_again_after_the_folder_was_removed(self):
        files = builds.take_files(self.first, self.root)
        subprocess.run(["rm", "-r", files], check=True)
        self.assertEqual((builds.take_files(self.second, self.root) / "core/text.cpp").read_text(), "two")

    def test_come_into_a_folder_that_was_something_else_and_leave_the_present_files_alone(self):
        (self.root / builds.OTHER / "files").mkdir(parents=True)
        (self.root / "core/text.cpp").write_text("not committed")
        self.assertEqual((builds.take_files(self.first, self.root) / "core/text.cpp").read_text(), "one")
        self.assertEqual((self.root / "core/text.cpp").read_text(), "not committed")
        self.assertEqual(self.git("rev-parse", "HEAD"), self.second)

    def test_leave_no_program_to_the_next(self):
        folder = self.root / "build"
        for name, mode in (("benchmarks/program", 0o755), ("benchmarks/rules", 0o644), (builds.REPORTER, 0o755)):
            (folder / name).parent.mkdir(parents=True, exist_ok=True)
            (folder / name).touch(mode)
        builds.remove_programs(folder)
        self.assertEqual([path.name for path in folder.rglob("*") if path.is_file()], ["rules"])
        builds.remove_programs(folder)


class Samples(unittest.TestCase):
    def test_are_listed_by_name(self):
        output = b"page, Text1(0)\t0.5\nfirst\t2\npage, Text1(0)\t0.25\n"
        self.assertEqual(samples_in(output), {"page, Text1(0)": [0.5, 0.25], "first": [2.0]})

    def test_of_a_program_that_fails_are_none(self):
        told, _ = complaint_of(lambda: wall_time(["sh", "-c", "exit 3"]))
        self.assertEqual(told, "bench: sh -c exit 3 ended with status 3")

    def test_have_a_90th_percentile(self):
        self.assertEqual(ninetieth(list(range(100, 0, -1))), 91)
        self.assertEqual(ninetieth([3, 1, 2]), 3)
        self.assertEqual(ninetieth([5]), 5)

    def test_of_a_form_are_those_of_its_slowest_part(self):
        ours = {"one": [1, 1, 9], "two": [5, 5, 5]}
        self.assertEqual(actions.slowest([ours, {"one": [2]}]), ("one", [[1, 1, 9], [2]]))
        self.assertEqual(actions.slowest([ours, {"two": [2]}]), ("one", [[1, 1, 9], None]))
        self.assertEqual(actions.slowest([{"new": [1]}, None]), ("", [[1], None]))

    def test_are_told_in_units(self):
        self.assertEqual(
            [seconds(amount) for amount in (1.5, 0.0125, 42e-6, 3e-9)], ["1.50 s", "12.50 ms", "42.00 µs", "3 ns"]
        )
        self.assertEqual(kibibytes(1536), "1.50 MiB")


class Table(unittest.TestCase):
    def lines(self, *rows, against=None):
        return [line.split("  ") for line in text_of(rows, against).splitlines()[1:]]

    def words(self, *row, **more):
        return [cell.strip() for cell in self.lines(Row(*row, **more))[0] if cell.strip()]

    def test_says_ahead_up_to_the_goal_and_behind_above_it(self):
        for samples, word in (([0.011], "ahead"), ([0.012], "ahead"), ([0.0121], "behind")):
            self.assertEqual(self.words("opening", [samples], "12 ms", 0.012, goal=1)[-1], word)

    def test_has_median_and_90th_percentile_and_judges_by_what_is_asked_for(self):
        samples = [[0.001] * 8 + [0.010] * 2]
        self.assertEqual(
            self.words("key", samples, "5 ms", 0.005, goal=1),
            ["key", "1.00 ms", "10.00 ms", "5 ms", "5.00 ms", "0.20", "≤ 1", "ahead"],
        )
        self.assertEqual(
            self.words("key", samples, "5 ms", 0.005, goal=1, judged=ninetieth),
            ["key", "1.00 ms", "10.00 ms*", "5 ms", "5.00 ms", "2.00", "≤ 1", "behind"],
        )

    def test_has_the_median_of_what_it_is_against(self):
        row = ("summary", [[0.3, 0.2, 0.1]], "cat", [[0.1, 0.4, 0.1]])
        self.assertEqual(
            self.words(*row, goal=1.15),
            ["summary", "200.00 ms", "300.00 ms", "cat", "100.00 ms", "2.00", "≤ 1.15", "behind"],
        )

    def test_says_what_was_not_measured(self):
        self.assertEqual(
            self.words("memory", [None], "1 MB", 977, goal=1, text=kibibytes)[1:3], ["not measured", "1 MB"]
        )
        self.assertEqual(self.words("memory", [None], "1 MB", 977, goal=1)[-1], "not measured")

    def test_leaves_out_what_there_is_not(self):
        self.assertEqual(self.words("report", [[0.002]]), ["report", "2.00 ms"])

    def test_of_two_commits_has_both_values_and_their_ratio(self):
        rows = (
            Row("opening", [[0.010], [0.040]], "12 ms", 0.012, goal=1),
            Row("key", [[1e-3] * 8 + [4e-3] * 2, [1e-3] * 8 + [2e-3] * 2], "5 ms", 5e-3, goal=1, judged=ninetieth),
            Row("New", [[0.008], None]),
            Row("growth", [[512], [0]], text=kibibytes),
        )
        self.assertEqual(
            text_of(rows, "HEAD~1").splitlines(),
            [
                "what           HEAD~1       now  ratio",
                "opening      40.00 ms  10.00 ms   0.25",
                "key           2.00 ms   4.00 ms   2.00",
                "New      not measured   8.00 ms",
                "growth       0.00 MiB  0.50 MiB",
            ],
        )


if __name__ == "__main__":
    unittest.main()
