"""The builds that are measured: that of the files as they are, and that of another commit."""

import os
import pathlib
import shutil
import subprocess

from measuring.processes import fail

ROOT = pathlib.Path(__file__).resolve().parents[2]
OURS = ROOT / "build/bench"
# The files of another commit, and what is built of them, for as long as nobody removes the folder.
OTHERS = ROOT / "build/against"


def commit_of(name, root=ROOT):
    """The commit that the user means, as its whole number."""
    command = ["git", "-C", root, "rev-parse", "--verify", "--quiet", "--end-of-options", f"{name}^{{commit}}"]
    found = subprocess.run(command, capture_output=True, text=True)
    if found.returncode:
        fail(f"--against {name}: there is no such commit in {root}")
    return found.stdout.strip()


def _run(*command):
    if subprocess.run(list(map(str, command)), stdout=2).returncode:
        fail(f"{command[-1]} could not be built")


def _build_ours():
    quietly = ROOT / "scripts/quietly"
    os.chdir(ROOT)
    _run(quietly, "Configuring", "cmake", "--preset", "bench", "-DHALVANE_TESTS=OFF")
    _run(quietly, "Building", "cmake", "--build", OURS)
    return OURS


def _take_files(commit, source):
    """Has the files of a commit in a folder, with the benchmarks of the present ones: both builds are measured by the
    same programs, as far as these compile."""
    git = ["git", "-C", ROOT, "worktree"]
    subprocess.run([*git, "prune"], check=True)
    if source.exists():
        subprocess.run(["git", "-C", source, "reset", "--quiet", "--hard", commit], check=True)
    else:
        subprocess.run([*git, "add", "--quiet", "--detach", source, commit], check=True)
    shutil.rmtree(source / "benchmarks")
    shutil.copytree(ROOT / "benchmarks", source / "benchmarks", ignore=shutil.ignore_patterns("__pycache__"))


def _build_other(commit):
    source, folder = OTHERS / "files", OTHERS / "bench"
    quietly = ROOT / "scripts/quietly"
    _take_files(commit, source)
    options = ("-DCMAKE_BUILD_TYPE=Release", "-DHALVANE_BENCH=ON", "-DHALVANE_TESTS=OFF")
    _run(quietly, f"Configuring {commit[:10]}", "cmake", "-S", source, "-B", folder, "-G", "Ninja", *options)
    # A program that an earlier commit left there would be taken for one of this.
    for program in (folder / "benchmarks").glob("*"):
        if program.is_file() and os.access(program, os.X_OK):
            program.unlink()
    # A program that does not compile against that commit has no value of it.
    building = [quietly, f"Building {commit[:10]}", "cmake", "--build", folder, "--", "-k", "0"]
    subprocess.run(list(map(str, building)), stdout=2, stderr=subprocess.DEVNULL)
    if not (folder / "reporter/halvane-report").exists():
        fail(f"{commit} could not be built")
    return folder


def made(against=None):
    """The folders of the builds, the present one first."""
    commit = None if against is None else commit_of(against)
    folders = [_build_ours()]
    if commit:
        folders.append(_build_other(commit))
    return folders
