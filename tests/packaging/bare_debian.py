"""A bare Debian in a folder, of the release and from the mirror that this machine is set up with."""

import os
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

SKIPPED = 77
SECONDS = 600
HOME = "/srv/owner"  # of who runs commands in there


def missing():
    """Why there can be none here; empty where there can."""
    if os.geteuid() != 0:
        return "only root may make a Debian of its own"
    lacking = [tool for tool in ("mmdebstrap", "chroot", "mount", "unshare") if shutil.which(tool) is None]
    return "this machine lacks " + ", ".join(lacking) if lacking else ""


def sources():
    """The lines of a list of package sources with those of Debian that this machine has."""
    said = subprocess.run(
        ["apt-get", "indextargets", "--format", "deb $(REPO_URI) $(RELEASE) $(COMPONENT)",
         "Created-By: Packages", "Origin: Debian"],
        stdout=subprocess.PIPE, text=True, check=True).stdout
    return sorted(set(said.splitlines()), key=lambda line: ("-" in line.split()[2], line))


class BareDebian:
    """Use as a context manager, behind `in_own_mounts`."""

    def __enter__(self):
        self.folder = Path(tempfile.mkdtemp())
        os.chmod(self.folder, 0o755)
        self.root = self.folder / "root"
        lines = sources()
        release = lines[0].split()[2]
        subprocess.run(["mmdebstrap", "--quiet", "--variant=minbase", "--skip=cleanup/apt/lists",
                        release, str(self.root), *lines],
                       check=True, timeout=SECONDS, env={**os.environ, "TMPDIR": str(self.folder)})
        shutil.copy("/etc/resolv.conf", self.root / "etc/resolv.conf")
        for kind, target in (("proc", "proc"), ("tmpfs", "dev/shm")):
            (self.root / target).mkdir(parents=True, exist_ok=True)
            subprocess.run(["mount", "-t", kind, kind, str(self.root / target)], check=True)
        self.mounted = ["dev/shm", "proc"]
        self.path(HOME).mkdir(parents=True)
        # No service of a package is to be started in here.
        policy = self.root / "usr/sbin/policy-rc.d"
        policy.write_text("#!/bin/sh\nexit 101\n", encoding="ascii")
        policy.chmod(0o755)
        return self

    def __exit__(self, *_):
        for target in self.mounted:
            subprocess.run(["umount", "--lazy", str(self.root / target)], check=True)
        shutil.rmtree(self.folder)

    def path(self, place):
        """Where a place in there stands on this machine."""
        return self.root / place.lstrip("/")

    def show(self, folder, place):
        """Makes a folder of this machine seen in there."""
        target = self.path(place)
        target.mkdir(parents=True, exist_ok=True)
        subprocess.run(["mount", "--bind", str(folder), str(target)], check=True)
        self.mounted.insert(0, place.lstrip("/"))

    def run(self, *command, timeout=SECONDS):
        """Runs a command in there as root and gives what it printed; a failure is one of the test."""
        done = subprocess.run(
            ["chroot", str(self.root), *command], stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
            stdin=subprocess.DEVNULL, text=True, check=False, timeout=timeout,
            env={"PATH": "/usr/sbin:/usr/bin:/sbin:/bin", "LC_ALL": "C.UTF-8", "HOME": HOME,
                 "DEBIAN_FRONTEND": "noninteractive"})
        if done.returncode:
            raise AssertionError(f"{command} ended with {done.returncode}:\n{done.stdout}")
        return done.stdout


def in_own_mounts():
    """Starts the calling script anew where no mount of it is seen by the machine."""
    if os.environ.get("HALVANE_OWN_MOUNTS") == "1":
        return
    os.environ["HALVANE_OWN_MOUNTS"] = "1"
    os.execvp("unshare", ["unshare", "--mount", "--", sys.executable, "-B", *sys.argv])
