"""The builds that are measured: that of the files as they are, and that of another commit."""

import os
import pathlib
import shutil
import subprocess

from measuring.processes import fail

ROOT = pathlib.Path(__file__).resolve().parents[2]
# Below it, for as long as nobody removes them.
OURS = "build/bench"
OTHERS_FILES = "build/against/files"
OTHERS = "build/against/bench"


def commit_of(name, root=ROOT):
    """The whole number of the commit that the user means."""
    command = ["git", "-C", root, "rev-parse", "--verify", "--quiet", "--end-of-options", f"{name}^{{commit}}"]
    found = subprocess.run(command, capture_output=True, text=True)
    if found.returncode:
        fail(f"--against {name}: there is no such commit in {root}")
    return found.stdout.split()[-1]


def take_files(commit, root=ROOT):
    """Has the files of a commit in a folder of its own, with the benchmarks of `root` in the place of its own: so both
    builds are measured by the same programs, as far as these compile."""
    files = root / OTHERS_FILES
    # Of a folder that was removed git would still know.
    subprocess.run(["git", "-C", root, "worktree", "prune"], check=True)
    if files.exists():
        subprocess.run(["git", "-C", files, "reset", "--quiet", "--hard", commit], check=True)
    else:
        subprocess.run(["git", "-C", root, "worktree", "add", "--quiet", "--detach", files, commit], check=True)
    shutil.rmtree(files / "benchmarks", ignore_errors=True)
    shutil.copytree(root / "benchmarks", files / "benchmarks", ignore=shutil.ignore_patterns("__pycache__"))
    return files


def remove_programs(folder):
    """What an earlier commit left would be taken for a program of this one."""
    for program in (folder / "benchmarks").glob("*"):
        if program.is_file() and os.access(program, os.X_OK):
            program.unlink()


def _run(heading, *command, **options):
    """Shows what the command prints when it fails; tells whether it went well."""
    # Standard output is for the table.
    command = [ROOT / "scripts/quietly", heading, *command]
    return subprocess.run(list(map(str, command)), cwd=ROOT, stdout=2, **options).returncode == 0


def _build_ours():
    configured = _run("Configuring", "cmake", "--preset", "bench", "-DHALVANE_TESTS=OFF")
    if not configured or not _run("Building", "cmake", "--build", ROOT / OURS):
        fail("the benchmarks could not be built")
    return ROOT / OURS


def _build_other(commit):
    source, folder, name = take_files(commit), ROOT / OTHERS, commit[:10]
    options = ("-DCMAKE_BUILD_TYPE=Release", "-DHALVANE_BENCH=ON", "-DHALVANE_TESTS=OFF")
    if not _run(f"Configuring {name}", "cmake", "-S", source, "-B", folder, "-G", "Ninja", *options):
        fail(f"{name} could not be configured")
    remove_programs(folder)
    # A program that does not compile against that commit has no value there, and the others go on.
    _run(f"Building {name}", "cmake", "--build", folder, "--", "-k", "0", stderr=subprocess.DEVNULL)
    if not (folder / "reporter/halvane-report").exists():
        fail(f"{name} could not be built")
    return folder


def made(against=None):
    """The folders of the builds, the present one first."""
    # Before anything that takes time.
    commit = None if against is None else commit_of(against)
    folders = [_build_ours()]
    if commit is not None:
        folders.append(_build_other(commit))
    return folders
