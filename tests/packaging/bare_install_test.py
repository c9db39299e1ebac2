"""Installs the package in a bare Debian, uses the program as an analyst does, and removes it.

    bare_install_test.py PACKAGES

PACKAGES is the folder of what scripts/package built. Exit status 77 says that the test was skipped, since it needs root
and mmdebstrap.
"""

import hashlib
import os
import shutil
import stat
import subprocess
import sys
import tempfile
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent / "end_to_end"))

from bare_debian import HOME, SKIPPED, BareDebian, in_own_mounts, missing  # noqa: E402
from desktop import Desktop, missing_tools, wait_until  # noqa: E402
from program import CLOSE_BUTTON, MESSAGE, SI, Job, Program  # noqa: E402

USER = 1000
ANALYST = "home/analyst"
SESSION = f"/run/user/{USER}"
JOB = "first job.qjt"
# What the file dialogs of the toolkit keep for all of its programs, and the program's own folder, which is empty.
KEPT_IN_THE_HOME = {f"{ANALYST}/{name}" for name in (
    JOB, ".config", ".config/QtProject.conf", ".local", ".local/state", ".local/state/halvane-tools")}
# What the package manager itself writes on every installation and removal.
KEPT_BY_THE_SYSTEM = ("var/lib/dpkg", "var/log", "var/cache/ldconfig", "etc/ld.so.cache", "var/cache/man",
                      "proc", "dev", "run", "tmp")


def is_kept_by_the_system(path):
    return any(path == folder or path.startswith(folder + "/") for folder in KEPT_BY_THE_SYSTEM)


def content_of(root):
    """What stands where: kind, rights and content of every file and folder."""
    found = {}
    for folder, names, files in os.walk(root):
        for name in names + files:
            path = Path(folder, name)
            relative = str(path.relative_to(root))
            if is_kept_by_the_system(relative):
                continue
            status = path.lstat()
            content = ""
            if stat.S_ISREG(status.st_mode):
                content = hashlib.sha256(path.read_bytes()).hexdigest()
            elif stat.S_ISLNK(status.st_mode):
                content = os.readlink(path)
            found[relative] = (status.st_mode, content)
        names[:] = [name for name in names if not is_kept_by_the_system(str(Path(folder, name).relative_to(root)))]
    return found


class InstalledProgram(Program):
    """The program in the bare Debian, on the screen of this machine; its user has a home there and nothing else."""

    def __init__(self, desktop, root):
        self.root = root
        command = Path(desktop.folder, "in the bare Debian")
        command.write_text(
            "#!/bin/sh\nexec chroot --userspec={0}:{0} '{1}' /usr/bin/env -i HOME=/{2} DISPLAY=\"$DISPLAY\" "
            "XDG_RUNTIME_DIR={3} PATH=/usr/bin:/bin LC_ALL=C.UTF-8 sh -c 'cd && exec halvane-tools'\n".format(
                USER, root, ANALYST, SESSION),
            encoding="utf-8")
        command.chmod(0o755)
        super().__init__(desktop, str(command))

    def leave_program(self):
        """Ends the program by the button of its main window."""
        self.leave()
        self.desktop.click(self.main, *CLOSE_BUTTON)
        self.desktop.window(MESSAGE)
        self.desktop.keys("Return")
        wait_until(lambda: self.process.poll() is not None, "the end of the program")
        assert self.process.returncode == 0, self.process.returncode


def use(root):
    """Types a name, saves the job and leaves; the program may say nothing meanwhile."""
    with tempfile.TemporaryDirectory() as folder, Desktop(folder) as desktop:
        program = InstalledProgram(desktop, root)
        program.open(SI)
        desktop.type("Mia Wallace")
        desktop.keys("alt+f")
        desktop.keys("Down", "Down", "Down", "Return")
        desktop.window("Save As")
        desktop.type(f"/{ANALYST}/{JOB}")
        desktop.keys("Return")
        desktop.gone("Save As")
        job = root / ANALYST / JOB
        wait_until(lambda: job.exists() and job.stat().st_size > 0, "the saved file")
        program.leave_program()
        said = Path(program.said).read_text(encoding="utf-8")
    assert said == "", said
    assert Job(job).analyst == "Mia Wallace"


def try_package(debian, package):
    there = f"{HOME}/{package.name}"
    shutil.copy(package, debian.path(there))
    needed = subprocess.run(["dpkg-deb", "--field", str(package), "Depends"], stdout=subprocess.PIPE, text=True,
                            check=True).stdout.strip()
    debian.run("apt-get", "satisfy", "-y", "-q", "--no-install-recommends", needed)
    debian.run("mkdir", "-p", f"/{ANALYST}")
    debian.run("chown", f"{USER}:{USER}", f"/{ANALYST}")
    debian.run("install", "-d", "-m", "700", "-o", str(USER), SESSION)
    before = content_of(debian.root)

    # Nothing but what the package itself asks for is there.
    debian.run("dpkg", "--install", there)
    assert debian.run("dpkg", "--audit") == ""
    brought = set(content_of(debian.root)) - set(before)
    assert {"usr/bin/halvane-tools", "usr/bin/halvane-report"} <= brought, brought
    said = debian.run("halvane-report", "/usr/share/doc/halvane-tools/samples/packing-line.qjt")
    assert "Strain Index Score" in said, said
    use(debian.root)

    debian.run("dpkg", "--purge", "halvane-tools")
    after = content_of(debian.root)
    left = {path: what for path, what in after.items() if before.get(path) != what}
    gone = set(before) - set(after)
    assert f"{ANALYST}/{JOB}" in left and not gone, f"left: {sorted(left)}, gone: {sorted(gone)}"
    assert set(left) <= KEPT_IN_THE_HOME, f"left: {sorted(set(left) - KEPT_IN_THE_HOME)}"


def main():
    reason = missing()
    if not reason and missing_tools("openbox"):
        reason = "this machine lacks " + ", ".join(missing_tools("openbox"))
    if reason:
        print("skipped:", reason)
        return SKIPPED
    in_own_mounts()
    package, = Path(sys.argv[1]).glob("halvane-tools_*.deb")
    with BareDebian() as debian:
        try_package(debian, package)
    return 0


if __name__ == "__main__":
    sys.exit(main())
