#!/usr/bin/env python3
"""Lets each system call of a save fail in each way and kills the save at each, in many scenes.

Usage: save_faults_test.py SAVE_JOB [--all]

Whatever happens, a whole version of the job has to stand on the disk, the save has to tell rightly
how it ended and where, nothing may be left over, and the next save has to work and clear up what a
kill left. Without --all, calls that only look at what is there (and whose failures go one way) are
taken once in each scene. Ends with 77 where programs may not be traced, with 1 and a line for each
broken promise otherwise.
"""

import collections
import concurrent.futures
import os
import re
import shutil
import subprocess
import sys
import tempfile

import save_scenes
from save_scenes import LAST, LAST_ANALYST, NEW, NEW_ANALYST, OLD, NOBODY, Scene, read, write

SKIPPED = 77
MARK = "getppid"
ERRORS = ("ENOSPC", "EIO", "EACCES", "EDQUOT", "EROFS", "EINTR")
FAULTS = tuple(f"error={error}" for error in ERRORS) + ("signal=KILL",)
# Where one of these fails on the job's file, the new job may not be on the disk.
TELLING_CALLS = {"write", "fsync", "ftruncate"}
LOOKING_CALLS = {"newfstatat", "fstat", "stat", "lstat", "statx", "readlink", "fcntl", "getdents64",
                 "close", "read"}
# Made by the language's own library: no error of theirs reaches the program.
NEVER_FAILING = {"brk", "mmap", "munmap", "exit_group", "futex", "getpid", "rt_sigaction",
                 "rt_sigprocmask", "madvise", "getrandom"}
TURNS = 60
# Far fewer would mean that the trace was not understood.
LEAST_COMBINATIONS = 2500


class Run:
    """One scene on the disk, and saves in it."""

    def __init__(self, program, kind):
        self.program = program
        self.base = tempfile.mkdtemp(prefix="hs-", dir=os.path.dirname(program))
        self.scene = kind(self.base)
        self.trace = os.path.join(self.base, "trace")

    def __enter__(self):
        self.scene.set()
        self.source = os.path.join(self.base, "source.qjt")
        write(self.source, OLD)
        write(self.trace, b"", 0o666)
        return self

    def __exit__(self, *_):
        self.scene.clear()
        shutil.rmtree(self.base)

    def command(self, analyst):
        return [self.program, self.source, self.scene.job, analyst]

    def save(self, analyst, *strace, short_write=0):
        command = self.command(analyst)
        if strace:
            command = ["strace", "-o", self.trace, *strace, *command]
        environment = self.scene.environment()
        if short_write:
            environment["HALVANE_SHORT_WRITE"] = str(short_write)
        user = self.scene.user if self.scene.user is not None else os.geteuid()
        rights = {} if user == os.geteuid() else {"user": user, "group": user, "extra_groups": []}
        done = subprocess.run(command, env=environment, stdin=subprocess.DEVNULL, timeout=60,
                              stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True,
                              check=False, **rights)
        return done.returncode, done.stderr

    def inject(self, analyst, fault):
        call, number, what, _ = fault
        if call == "short write":
            return self.save(analyst, short_write=number)
        code, errors = self.save(analyst, "-e", f"trace={call}", "-e",
                                 f"inject={call}:{what}:when={number}")
        with open(self.trace, encoding="utf-8", errors="replace") as file:
            trace = file.read()
        if "INJECTED" not in trace and "killed by SIGKILL" not in trace:
            errors += "\nthe fault did not happen"
            code = 99
        return code, errors

    def last_save(self):
        """The problems of a save that nothing disturbs and that clears up."""
        code, errors = self.save(LAST_ANALYST)
        if code != 0 or read(self.scene.target) != LAST:
            yield f"the next save failed: {code} {errors}"
        for problem in self.scene.leftovers():
            yield f"after the next save, {problem}"


def calls_of(program, kind):
    """The calls of an undisturbed save: (name, how often made up to here, its line in the trace)."""
    with Run(program, kind) as run:
        code, errors = run.save(NEW_ANALYST, "-y", "-e", "trace=all")
        problems = list(run.scene.problems(code, errors, disturbed=False))
        if code != 0 or problems:
            sys.exit(f"{kind.__name__}: an undisturbed save failed: {code} {errors} {problems}")
        seen = collections.Counter()
        started = False
        calls = []
        with open(run.trace, encoding="utf-8", errors="replace") as file:
            for line in file:
                match = re.match(r"(\w+)\(", line)
                if not match:
                    continue
                name = match[1]
                seen[name] += 1
                started = started or name == MARK
                if started and name != MARK:
                    calls.append((name, seen[name], line.replace(run.base, "")))
        if not started:
            sys.exit("the trace does not show where the save starts")
        return calls


def is_of_the_job(line):
    """Whether a call is made on the job's own file, or on what becomes it."""
    on = re.match(r"\w+\(\d+<([^>]*)>", line)
    return bool(on) and ".previous" not in on[1] and re.search(r"\.qjtx?(\.[0-9a-f]{16}\.part)?$",
                                                               on[1]) is not None


def faults_of(calls, everything):
    """(call, its number, what happens, whether that has to be told) for each fault of a scene. The
    second result is how many there are in all."""
    faults = []
    total = 0
    looked = set()
    writes = 0
    for name, number, line in calls:
        if name == "write":
            writes += 1
            faults.append(("short write", writes, "half of it", False))
            total += 1
        # What an earlier call of this kind did on the same file fails in the same way.
        kind = (name, re.sub(r"\b\d+<|0x[0-9a-f]+", "", line.split(" = ")[0]))
        again = name in LOOKING_CALLS and kind in looked
        looked.add(kind)
        for what in FAULTS:
            if name in NEVER_FAILING and what != "signal=KILL":
                continue
            total += 1
            if again and not everything:
                continue
            telling = (name in TELLING_CALLS and is_of_the_job(line)
                       and what not in ("signal=KILL", "error=EINTR"))
            faults.append((name, number, what, telling))
    return faults, total


def run_one(program, kind, fault):
    """One save with one fault; the problems that it shows."""
    with Run(program, kind) as run:
        code, errors = run.inject(NEW_ANALYST, fault)
        problems = list(run.scene.problems(code, errors))
        if code == 0 and fault[3]:
            problems.append("the failure is not told")
        if code == 1 and fault[2] in ("error=EINTR", "half of it"):
            problems.append(f"an interruption counts as a failure: {errors}")
        problems += run.last_save()
    return [f"{kind.__name__}, {fault[0]} {fault[1]} {fault[2]}: {problem}" for problem in problems]


def kill_twice(program, first, second):
    """A save that is killed, and another that is killed: what stood for the job stays."""
    with Run(program, Scene) as run:
        run.inject(NEW_ANALYST, first)
        job = read(run.scene.target)
        stands = {job} if job in (OLD, NEW) else run.scene.whole() & {OLD, NEW}
        run.inject(LAST_ANALYST, second)
        problems = []
        if not run.scene.whole() & (stands | {LAST}):
            problems.append("nothing is whole after two kills")
        problems += run.last_save()
    return [f"killed at {first[:2]} and {second[:2]}: {problem}" for problem in problems]


def take_turns(program, kind):
    """Two programs save at once, many times."""
    problems = []
    for turn in range(TURNS):
        with Run(program, kind) as run:
            saves = [subprocess.Popen(run.command(analyst), env=run.scene.environment(),
                                      stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                                      stderr=subprocess.PIPE, text=True)
                     for analyst in (NEW_ANALYST, LAST_ANALYST)]
            for save in saves:
                _, errors = save.communicate(timeout=60)
                if save.returncode != 0:
                    problems.append(f"turn {turn} ended with {save.returncode}: {errors}")
            if read(run.scene.job) not in (NEW, LAST):
                problems.append(f"turn {turn}: the two jobs are mixed")
            problems += run.scene.leftovers()
    return [f"two programs, {kind.__name__}: {problem}" for problem in problems]


def may_trace():
    if shutil.which("strace") is None:
        print("skipped: strace is not installed")
        return False
    tried = subprocess.run(["strace", "-o", os.devnull, "-e", "inject=getppid:error=EPERM",
                            "true"], stderr=subprocess.PIPE, text=True, check=False)
    if tried.returncode != 0:
        print(f"skipped: programs may not be traced here: {tried.stderr.strip()}")
        return False
    return True


def planned(program, everything):
    """(function, arguments) of every run, and how many combinations there would be."""
    runs = []
    total = 0
    for kind in save_scenes.SCENES:
        reason = kind.unavailable()
        if reason:
            print(f"left out: {kind.__name__} {reason}")
            continue
        faults, count = faults_of(calls_of(program, kind), everything)
        total += count
        runs += [(run_one, kind, fault) for fault in faults]
    return runs, total


def planned_kills(program, everything):
    """Pairs of kills. The first one counts where it leaves something: from the copy's name on."""
    calls = [(name, number, "signal=KILL", False) for name, number, _ in calls_of(program, Scene)]
    names = [call[0] for call in calls]
    first = calls[names.index("renameat2"):]
    if not everything:
        changing = {"write", "ftruncate", "fsync", "unlink", "renameat2", "openat", "exit_group"}
        first = [call for call in first if call[0] in changing]
        calls = [call for call in calls if call[0] in changing]
    return [(kill_twice, one, two) for one in first for two in calls]


def main():
    everything = "--all" in sys.argv[2:]
    if not may_trace():
        return SKIPPED
    # Where everybody may start it and every scene may stand.
    with tempfile.TemporaryDirectory(prefix="hs-") as place:
        os.chmod(place, 0o777)
        program = shutil.copy(sys.argv[1], os.path.join(place, "save_job"))
        os.chmod(program, 0o755)
        runs, total = planned(program, everything)
        combinations = len(runs)
        kills = planned_kills(program, everything)
        with concurrent.futures.ThreadPoolExecutor(2 * (os.cpu_count() or 1)) as workers:
            waiting = [workers.submit(run[0], program, *run[1:]) for run in runs + kills]
            waiting += [workers.submit(take_turns, program, kind)
                        for kind in (Scene, save_scenes.NewJob)]
            problems = [problem for run in waiting for problem in run.result()]
    for problem in problems:
        print(problem)
    print(f"{total} combinations of a call, a fault and a scene, {combinations} of them run (looking "
          f"calls that repeat another of their save stand for each other); {len(kills)} pairs of "
          f"kills; {2 * TURNS} times two programs at once; {len(problems)} broken promises")
    return 1 if problems or combinations < LEAST_COMBINATIONS else 0


if __name__ == "__main__":
    sys.exit(main())
