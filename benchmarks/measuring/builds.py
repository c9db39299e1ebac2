"""The builds that are measured: that of the files as they are, and that of another commit."""

import os
import pathlib
import shutil
import subprocess

from measuring.processes import fail

ROOT = pathlib.Path(__file__).resolve().parents[2]
BUILD = "build/bench"
REPORTER = "reporter/halvane-report"
# The files of another commit, with their build below them, for as long as nobody removes them.
OTHER = "build/against"


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
    files = root / OTHER
    # Of a folder that was removed git would still know.
    subprocess.run(["git", "-C", root, "worktree", "prune"], check=True)
    if (files / ".git").is_file():
        # Named outright: in a folder without files of its own git would take those of the folder around it.
        own = [f"--git-dir={files / '.git'}", f"--work-tree={files}"]
        subprocess.run(["git", *own, "reset", "--quiet", "--hard", commit], check=True)
    else:
        shutil.rmtree(files, ignore_errors=True)
        subprocess.run(["git", "-C", root, "worktree", "add", "--quiet", "--detach", files, commit], check=True)
    shutil.rmtree(files / "benchmarks", ignore_errors=True)
    shutil.copytree(root / "benchmarks", files / "benchmarks", ignore=shutil.ignore_patterns("__pycache__"))
    return files


def remove_programs(folder):
    """What earlier files left would be taken for a program of these."""
    for program in [*folder.glob("benchmarks/*"), folder / REPORTER]:
        if program.is_file() and os.access(program, os.X_OK):
            program.unlink()


def _run(root, heading, *command, **options):
    """Shows what the command prints when it fails; tells whether it went well."""
    # The compiler's cache knows a file again that is the same in both folders.
    cache = {"CCACHE_BASEDIR": str(root), "CCACHE_NOHASHDIR": "1"}
    # Standard output is for the table.
    command = [str(ROOT / "scripts/quietly"), heading, *command]
    return subprocess.run(command, cwd=root, env={**os.environ, **cache}, stdout=2, **options).returncode == 0


def _build(root, name, *options, **how):
    """Builds the benchmarks of a folder with files."""
    if not _run(root, f"Configuring {name}", "cmake", "--preset", "bench", "-DHALVANE_TESTS=OFF"):
        fail(f"{name} could not be configured")
    remove_programs(root / BUILD)
    return _run(root, f"Building {name}", "cmake", "--build", BUILD, *options, **how)


def made(against=None):
    """The folders of the builds, the present one first."""
    # Before anything that takes time.
    commit = None if against is None else commit_of(against)
    if not _build(ROOT, "the benchmarks"):
        fail("the benchmarks could not be built")
    if commit is None:
        return [ROOT / BUILD]
    other = take_files(commit)
    # A program that does not compile against that commit has no value there, and the others go on.
    _build(other, against, "--", "-k", "0", stderr=subprocess.DEVNULL)
    if not (other / BUILD / REPORTER).exists():
        fail(f"{against} could not be built")
    return [ROOT / BUILD, other / BUILD]
