#!/usr/bin/env python3
"""Lets each system call of a save fail in turn, and kills the save at each in turn.

Usage: save_faults_test.py SAVE_JOB

Whatever happens, the job file or its ".previous" has to be a whole job, byte for byte the old or the
new one, and the next save has to succeed and leave the job file alone in its folder. Ends with 77
where programs may not be traced, with 1 and a line for each broken promise otherwise.
"""

import collections
import concurrent.futures
import os
import re
import shutil
import stat
import subprocess
import sys
import tempfile

SKIPPED = 77
MARK = "getppid"
FAILING_CALLS = {
    "access", "close", "faccessat", "faccessat2", "fchmod", "fchown", "fstat", "fsync",
    "newfstatat", "openat", "read", "rename", "renameat", "renameat2", "stat", "statx", "unlink",
    "unlinkat", "write",
}
ERRORS = ("ENOSPC", "EIO", "EACCES", "EINTR")
# Where one of these fails, the new job may not be on the disk, and the user has to hear of it.
TELLING_CALLS = {"fsync", "rename", "renameat", "renameat2", "write"}
JOB_LINES = 64
NOBODY = 65534

# The leak check of sanitized builds cannot run in a traced program.
ENVIRONMENT = dict(os.environ, LC_ALL="C", ASAN_OPTIONS="detect_leaks=0")


def job_bytes(analyst):
    lines = ['"qjt",1,0,0,0', "0", "8,0,0", f'"{analyst}","","",0,8', "0,0,0,0"]
    lines += ["0"] * 43 + ["0,0,0,0,0,0,0"] + ["3"] * 14 + ["0,0,0,0,0,0"]
    assert len(lines) == JOB_LINES
    return "".join(line + "\r\n" for line in lines).encode()


OLD = job_bytes("old")
OLDER = job_bytes("older")
NEW_ANALYST = "new " * 50
NEW = job_bytes(NEW_ANALYST)
LAST_ANALYST = "last"
LAST = job_bytes(LAST_ANALYST)


def read(path):
    try:
        with open(path, "rb") as file:
            return file.read()
    except FileNotFoundError:
        return None


def write(path, data):
    with open(path, "wb") as file:
        file.write(data)


class Scene:
    """A folder with a job file in some state, and what has to hold of it."""

    def __init__(self, folder):
        self.job = os.path.join(folder, "job.qjt")
        self.previous = self.job + ".previous"
        self.folder = folder

    def prepare(self):
        """Puts the files into the folder."""

    def whole(self):
        """The contents of which one has to stand in the job file or beside it."""
        return {OLD, NEW}

    def names_after(self):
        return {"job.qjt"}

    def problems(self, code, errors):
        contents = {read(self.job), read(self.previous)}
        if self.whole() and not contents & self.whole():
            yield "neither the job nor the one kept is whole"
        if read(self.previous) not in {None} | self.whole():
            yield "what is kept is not whole"
        if code == 0:
            if read(self.job) != NEW:
                yield "a save that succeeded wrote another job"
            if set(os.listdir(self.folder)) != self.names_after():
                yield f"a save that succeeded left {sorted(os.listdir(self.folder))}"
        elif code == 1 and errors != "FileError\n":
            yield f"the failure reads {errors!r}"
        elif code not in (1, -9):
            yield f"the program ended with {code}: {errors[-2000:]}"


class OldJob(Scene):
    def prepare(self):
        write(self.job, OLD)
        os.chmod(self.job, 0o640)
        if os.geteuid() == 0:
            os.chown(self.job, NOBODY, NOBODY)

    def problems(self, code, errors):
        yield from super().problems(code, errors)
        status = os.stat(self.job)
        if stat.S_IMODE(status.st_mode) != 0o640:
            yield "the mode changed"
        if os.geteuid() == 0 and (status.st_uid, status.st_gid) != (NOBODY, NOBODY):
            yield "the owner changed"


class NewJob(Scene):
    def whole(self):
        return set()

    def problems(self, code, errors):
        yield from super().problems(code, errors)
        if read(self.previous) is not None:
            yield "something was kept of a job that was not there"


class HalfJobWithPrevious(Scene):
    """What a kill in the middle of an earlier save left."""

    def prepare(self):
        write(self.job, NEW[:20])
        write(self.previous, OLDER)

    def whole(self):
        return {OLDER, NEW}

    def problems(self, code, errors):
        yield from super().problems(code, errors)
        if read(self.job) != NEW and read(self.previous) != OLDER:
            yield "the last whole job is gone before the new one is whole"


class LinkedJob(Scene):
    def prepare(self):
        os.mkdir(os.path.join(self.folder, "real"))
        write(os.path.join(self.folder, "real", "target.qjt"), OLD)
        os.symlink("real/target.qjt", self.job)

    def names_after(self):
        return {"job.qjt", "real"}

    def problems(self, code, errors):
        yield from super().problems(code, errors)
        if not os.path.islink(self.job):
            yield "the link became a file"
        if os.listdir(os.path.join(self.folder, "real")) != ["target.qjt"]:
            yield "the folder of the target changed"


SCENES = (OldJob, NewJob, HalfJobWithPrevious, LinkedJob)


def save(program, scene, analyst, *strace):
    source = scene.folder + ".source.qjt"
    write(source, OLD)
    command = [program, source, scene.job, analyst]
    if strace:
        command = ["strace", "-f", "-o", scene.folder + ".trace", *strace, *command]
    done = subprocess.run(command, env=ENVIRONMENT, stdin=subprocess.DEVNULL, timeout=60,
                          stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True, check=False)
    return done.returncode, done.stderr


def trace_of(program, scene):
    """The calls of a save that nothing disturbs: how often each was made before it, and its own."""
    code, errors = save(program, scene, NEW_ANALYST, "-e", "trace=all")
    problems = list(scene.problems(code, errors))
    if code != 0 or problems:
        sys.exit(f"{type(scene).__name__}: an undisturbed save failed: {code} {errors} {problems}")
    before = collections.Counter()
    calls = []
    started = False
    with open(scene.folder + ".trace", encoding="utf-8", errors="replace") as file:
        for line in file:
            match = re.match(r"\d+ +(\w+)\(", line)
            if not match:
                continue
            name = match.group(1)
            if name == MARK:
                started = True
            elif started:
                calls.append(name)
            else:
                before[name] += 1
    if not started:
        sys.exit("the trace does not show where the save starts")
    return before, calls


def run_one(program, kind, fault):
    """One save with one fault; the problems that it shows."""
    folder = tempfile.mkdtemp(prefix="halvane-save-")
    scene = kind(folder)
    try:
        scene.prepare()
        call, number, what = fault
        code, errors = save(program, scene, NEW_ANALYST, "-e", f"trace={call}", "-e",
                            f"inject={call}:{what}:when={number}")
        problems = list(scene.problems(code, errors))
        if code == 0 and call in TELLING_CALLS and what != "error=EINTR":
            problems.append("the failure is not told")
        with open(folder + ".trace", encoding="utf-8", errors="replace") as file:
            trace = file.read()
        if "INJECTED" not in trace and "killed by SIGKILL" not in trace:
            problems.append("the fault did not happen")
        # The next save needs no help.
        code, errors = save(program, scene, LAST_ANALYST)
        if code != 0 or read(scene.job) != LAST:
            problems.append(f"the next save failed: {code} {errors}")
        if set(os.listdir(folder)) != scene.names_after():
            problems.append(f"the next save left {sorted(os.listdir(folder))}")
        return [f"{kind.__name__}, {call} {number} {what}: {problem}" for problem in problems]
    finally:
        shutil.rmtree(folder)
        for suffix in (".source.qjt", ".trace"):
            os.remove(folder + suffix)


def faults_of(program, kind):
    folder = tempfile.mkdtemp(prefix="halvane-save-")
    try:
        scene = kind(folder)
        scene.prepare()
        before, calls = trace_of(program, scene)
    finally:
        shutil.rmtree(folder)
        for suffix in (".source.qjt", ".trace"):
            os.remove(folder + suffix)
    seen = collections.Counter()
    for call in calls:
        seen[call] += 1
        number = before[call] + seen[call]
        yield call, number, "signal=KILL"
        if call in FAILING_CALLS:
            for error in ERRORS:
                yield call, number, f"error={error}"


def may_trace():
    if shutil.which("strace") is None:
        print("skipped: strace is not installed")
        return False
    tried = subprocess.run(["strace", "-f", "-o", os.devnull, "-e", "inject=getppid:error=EPERM",
                            "true"], stderr=subprocess.PIPE, text=True, check=False)
    if tried.returncode != 0:
        print(f"skipped: programs may not be traced here: {tried.stderr.strip()}")
        return False
    return True


def main():
    program = os.path.abspath(sys.argv[1])
    if not may_trace():
        return SKIPPED
    problems = []
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count() or 1) as workers:
        runs = [workers.submit(run_one, program, kind, fault)
                for kind in SCENES for fault in faults_of(program, kind)]
        for run in runs:
            problems += run.result()
    for problem in problems:
        print(problem)
    print(f"{len(runs)} saves with a fault, {len(problems)} broken promises")
    # A save makes some twenty calls in each scene; far fewer runs would mean that the trace was
    # not understood.
    return 1 if problems or len(runs) < 200 else 0


if __name__ == "__main__":
    sys.exit(main())
