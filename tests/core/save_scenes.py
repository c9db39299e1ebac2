"""What stands on the disk before a save is disturbed, and what has to stand there after it."""

import ctypes
import os
import re
import stat
import subprocess

NOBODY = 65534
JOB_LINES = 64
CLONE_NEWNS = 0x20000
SMALL_DISK_BYTES = 65536

COPY = re.compile(r".*\.[0-9a-f]{16}\.previous$")
PART = re.compile(r".*\.[0-9a-f]{16}(\.previous)?\.part$")


def job_bytes(analyst):
    lines = ['"qjt",1,0,0,0', "0", "8,0,0", f'"{analyst}","","",0,8', "0,0,0,0"]
    lines += ["0"] * 43 + ["0,0,0,0,0,0,0"] + ["3"] * 14 + ["0,0,0,0,0,0"]
    assert len(lines) == JOB_LINES
    return "".join(line + "\r\n" for line in lines).encode()


# Longer than the jobs that replace it: what is not cut off at the end shows.
OLD = job_bytes("old " * 100)
OLDER = job_bytes("older")
NEW_ANALYST = "new " * 50
NEW = job_bytes(NEW_ANALYST)
LAST_ANALYST = "last"
LAST = job_bytes(LAST_ANALYST)


def checksum(data):
    value = 0xCBF29CE484222325
    for byte in data:
        value = (value ^ byte) * 0x100000001B3 % 2**64
    return f"{value:016x}"


def read(path):
    """The content of a file, links followed; None for none."""
    try:
        with open(path, "rb") as file:
            return file.read()
    except (FileNotFoundError, IsADirectoryError):
        return None


def write(path, data, mode=0o644):
    with open(path, "wb") as file:
        file.write(data)
    os.chmod(path, mode)


class Scene:
    """A job file in a folder of its own, which is whole and of which nothing else stands."""

    user = None  # who saves; the one who runs the test where it says nothing
    name = "job.qjt"

    def __init__(self, base):
        self.base = base
        self.folder = os.path.join(base, "f")
        self.state = os.path.join(base, "s")
        self.temporary = os.path.join(base, "t")
        self.job = os.path.join(self.folder, self.name)
        self.target = self.job

    @classmethod
    def unavailable(cls):
        """Why the scene cannot be set here; empty where it can."""
        return "takes root" if cls.user is not None and os.geteuid() != 0 else ""

    def set(self):
        os.chmod(self.base, 0o755)
        for folder in (self.folder, self.state, self.temporary):
            os.mkdir(folder)
        for folder in (self.state, self.temporary):
            os.chmod(folder, 0o777)
        self.prepare()
        self.owned = {self.folder: set(os.listdir(self.folder)) - self.left_by_a_kill()}
        self.before = self.everything()
        self.status = os.stat(self.target) if os.path.exists(self.target) else None

    def prepare(self):
        write(self.job, OLD, 0o640)
        if os.geteuid() == 0:
            os.chown(self.job, NOBODY, NOBODY)

    def clear(self):
        """Undoes what removing the folders does not."""

    def left_by_a_kill(self):
        """The names of ours that are there before, and go with the next good save."""
        return set()

    def last_whole(self):
        """What stands for the job before the save: this or the new one has to, from there on."""
        return {OLD}

    def environment(self):
        return dict(os.environ, LC_ALL="C", ASAN_OPTIONS="detect_leaks=0", HOME=self.base,
                    XDG_STATE_HOME=self.state, TMPDIR=self.temporary)

    def everything(self):
        """Every file and its content, except the folders of the program."""
        found = {}
        for top in (self.folder, self.state, self.temporary):
            for folder, folders, names in os.walk(top):
                for name in names + folders:
                    path = os.path.join(folder, name)
                    if os.path.islink(path):
                        found[path] = os.readlink(path)
                    elif not os.path.isdir(path):
                        found[path] = read(path)
                    elif top == self.folder:
                        found[path] = "folder"
        return found

    def copies(self, found):
        """The files that our names and their checksums show to be whole copies."""
        return {path: data for path, data in found.items()
                if COPY.match(path) and isinstance(data, bytes)
                and checksum(data) == path[-len("0123456789abcdef.previous"):-len(".previous")]}

    def whole(self):
        """What a user can find whole: the job and its copies."""
        found = self.everything()
        return {read(self.target)} | set(self.copies(found).values())

    def problems(self, code, errors, disturbed=True):
        found = self.everything()
        job = read(self.target)
        added = {path for path in found if path not in self.before}
        if self.last_whole() and not self.whole() & (self.last_whole() | {NEW}):
            yield f"nothing is whole; there is {sorted(found)}"
        if self.status is None and job not in (None, NEW):
            yield "a new job is not whole"
        for path, data in self.before.items():
            if path != self.target and os.path.basename(path) not in self.left_by_a_kill() \
                    and found.get(path) not in (data, job):
                yield f"{path} is not what it was"
        if self.status is not None:
            yield from self.changes()
        if code == -9:
            for path in added - {self.target}:
                if not COPY.match(path) and not PART.match(path):
                    yield f"a kill left {path}"
        elif code == 0:
            if job != NEW:
                yield "a save that succeeded wrote another job"
            left = added - {self.target}
            if left:
                yield f"a save that succeeded left {sorted(left)}"
            if not disturbed:
                yield from self.leftovers()
        elif code == 1:
            yield from self.told_wrongly(errors, job, added)
        else:
            yield f"the program ended with {code}: {errors[-2000:]}"

    def changes(self):
        now = os.stat(self.target)
        for what in ("st_ino", "st_mode", "st_uid", "st_gid", "st_nlink"):
            if getattr(now, what) != getattr(self.status, what):
                yield f"{what} of the job changed"
        if stat.S_IMODE(now.st_mode) != stat.S_IMODE(self.status.st_mode):
            yield "the mode changed"

    def told_wrongly(self, errors, job, added):
        """What a failed save says has to be so, and nothing else may be left."""
        if not errors.startswith(f"File error: {self.job}: "):
            yield f"the failure reads {errors!r}"
        sentence = errors.rstrip("\n").rsplit(". ", 1)[-1]
        old = re.fullmatch(r"(.*) holds the job as it was before", sentence)
        copy = re.fullmatch(r"The whole job stands in (.*)", sentence)
        if old:
            if read(old[1]) != self.before.get(self.target) or old[1] not in (self.job, self.target):
                yield f"not so: {sentence}"
            if added:
                yield f"a save that changed nothing left {sorted(added)}"
        elif copy:
            if read(copy[1]) != NEW:
                yield f"not so: {sentence}"
            if added - {copy[1]}:
                yield f"beside the copy {copy[1]} there is {sorted(added)}"
        elif sentence == "No file was made":
            if job is not None or added:
                yield f"not so: {sentence}, there is {sorted(added)}"
        else:
            yield f"the failure does not say what is whole: {errors!r}"

    def leftovers(self):
        """What is there of ours though nothing disturbed the save."""
        found = self.everything()
        names = set(os.listdir(self.folder))
        if names != self.owned[self.folder] | {self.name}:
            yield f"left beside the job: {sorted(names)}"
        for path in found:
            if not path.startswith(self.folder + "/"):
                yield f"left: {path}"


class NewJob(Scene):
    def prepare(self):
        pass

    def last_whole(self):
        return set()


class LinkedJob(Scene):
    def prepare(self):
        os.mkdir(os.path.join(self.folder, "real"))
        self.target = os.path.join(self.folder, "real", "target.qjt")
        write(self.target, OLD)
        os.symlink("real/target.qjt", self.job)

    def leftovers(self):
        yield from super().leftovers()
        if not os.path.islink(self.job):
            yield "the link became a file"
        if os.listdir(os.path.join(self.folder, "real")) != ["target.qjt"]:
            yield "left in the folder of the target"


class LinkToNothing(LinkedJob):
    def prepare(self):
        super().prepare()
        os.remove(self.target)

    def last_whole(self):
        return set()


class HardLinkedJob(Scene):
    def prepare(self):
        write(self.job, OLD)
        os.link(self.job, os.path.join(self.folder, "other.qjt"))


class ReadOnlyFolder(Scene):
    user = NOBODY

    def prepare(self):
        write(self.job, OLD, 0o666)
        os.chmod(self.folder, 0o555)


class FolderOfAnother(Scene):
    user = NOBODY

    def prepare(self):
        write(self.job, OLD)
        os.chown(self.job, NOBODY, NOBODY)


class StickyFolder(Scene):
    user = NOBODY

    def prepare(self):
        write(self.job, OLD, 0o666)
        os.chmod(self.folder, 0o1777)


class LongestName(Scene):
    name = "\u5de5" * 83 + "x.qjtx"


class FullDisk(Scene):
    """A disk on which the new job fits in place of the old, and nothing beside it."""

    @classmethod
    def unavailable(cls):
        if os.geteuid() != 0:
            return "takes root"
        # Seen by this test alone, and gone with it.
        if ctypes.CDLL(None).unshare(CLONE_NEWNS) != 0 or subprocess.run(
                ["mount", "--make-rprivate", "/"], check=False).returncode != 0:
            return "takes the right to mount a disk"
        return ""

    def prepare(self):
        subprocess.run(["mount", "-t", "tmpfs", "-o", f"size={SMALL_DISK_BYTES}", "tmpfs",
                        self.folder], check=True)
        write(self.job, OLD)
        filler = os.open(os.path.join(self.folder, "filler"), os.O_WRONLY | os.O_CREAT)
        try:
            while True:
                os.write(filler, b"x" * 4096)
        except OSError:
            os.close(filler)

    def clear(self):
        subprocess.run(["umount", "-l", self.folder], check=True)


class HalfJobWithCopy(Scene):
    """What a kill in the middle of an earlier save left: half a job, its copy, parts."""

    def prepare(self):
        write(self.job, NEW[:20])
        for name in self.left_by_a_kill():
            write(os.path.join(self.folder, name), OLDER, 0o600)

    def left_by_a_kill(self):
        return {f"job.qjt.{checksum(OLDER)}.previous", "job.qjt.0123456789abcdef.part",
                f"job.qjt.{checksum(NEW)}.previous.part"}

    def last_whole(self):
        return {OLDER}


class CopyOfTheSameJob(HalfJobWithCopy):
    """The only whole version is a copy of the very job that is saved again."""

    def prepare(self):
        write(self.job, NEW[:20])
        for name in self.left_by_a_kill():
            write(os.path.join(self.folder, name), NEW, 0o600)

    def left_by_a_kill(self):
        return {f"job.qjt.{checksum(NEW)}.previous"}

    def last_whole(self):
        return {NEW}


class OldCopyBesideAWholeJob(HalfJobWithCopy):
    """Killed behind the last byte: the copy is older than the job and must not stand for it."""

    def prepare(self):
        super().prepare()
        write(self.job, OLD)

    def last_whole(self):
        return {OLD}


class UsersOwnFile(Scene):
    def prepare(self):
        super().prepare()
        for name in ("job.qjt.previous", f"job.qjt.{checksum(NEW)}.previous"):
            write(os.path.join(self.folder, name), b"of the user")


class LinkInTheWay(Scene):
    def prepare(self):
        super().prepare()
        write(os.path.join(self.folder, "thesis.txt"), NEW)
        for end in ("", ".part"):
            os.symlink("thesis.txt",
                       os.path.join(self.folder, f"job.qjt.{checksum(NEW)}.previous{end}"))


class FolderInTheWay(Scene):
    def prepare(self):
        super().prepare()
        for end in ("", ".part"):
            os.mkdir(os.path.join(self.folder, f"job.qjt.{checksum(NEW)}.previous{end}"))


SCENES = (Scene, NewJob, LinkedJob, LinkToNothing, HardLinkedJob, ReadOnlyFolder, FolderOfAnother,
          StickyFolder, LongestName, FullDisk, HalfJobWithCopy, CopyOfTheSameJob,
          OldCopyBesideAWholeJob, UsersOwnFile, LinkInTheWay, FolderInTheWay)
