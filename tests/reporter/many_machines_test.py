#!/usr/bin/env python3
"""Runs the commands of the page on many machines, with two daemons of this machine in their place.

Usage: many_machines_test.py HALVANE_REPORT PROJECT. Each daemon listens at a port of its own on the
loopback device alone, knows one key and has a home folder of its own. Ends with 77 where a program
is missing or nobody can log in.
"""

import getpass
import os
import re
import shutil
import socket
import subprocess
import sys
import tempfile
import time

SKIPPED = 77
NAMES = ("alpha", "beta")
# More calls of 500 than a machine does at a time, so each has its part.
JOBS = 2600
PATIENCE = 20
PROGRAMS = ("parallel", "ssh", "ssh-keygen", "rsync", "bash")
# Where its processes give up their rights; only the superuser's needs it, and packages make it when
# the service starts.
SEPARATION = "/run/sshd"


def daemon_program():
    return shutil.which("sshd", path=os.environ.get("PATH", "") + ":/usr/sbin:/sbin")


def write(path, text, mode=0o600):
    with open(path, "w", encoding="utf-8") as file:
        file.write(text)
    os.chmod(path, mode)


def free_port():
    with socket.socket() as one:
        one.bind(("127.0.0.1", 0))
        return one.getsockname()[1]


class Machine:
    """A daemon that gives whoever has the key a shell in the home folder of this machine."""

    def __init__(self, name, base, program):
        self.name = name
        self.base = os.path.join(base, name)
        self.home = os.path.join(self.base, "home")
        os.makedirs(self.home)
        self.log = os.path.join(self.base, "log")
        self._calls = os.path.join(self.base, "calls")
        self.port = free_port()
        key = os.path.join(self.base, "host_key")
        subprocess.run(["ssh-keygen", "-q", "-t", "ed25519", "-N", "", "-f", key], check=True)
        tools = os.path.join(self.base, "tools")
        os.makedirs(tools)
        write(os.path.join(tools, "halvane-report"),
              f"#!/bin/sh\necho a call >>'{self._calls}'\nexec '{program}' \"$@\"\n", 0o700)
        shell = os.path.join(self.base, "shell")
        write(shell, f"""#!/bin/sh
export HOME='{self.home}' PATH='{tools}':/usr/bin:/bin
cd && exec /bin/bash -c "$SSH_ORIGINAL_COMMAND"
""", 0o700)
        self._settings = os.path.join(self.base, "sshd_config")
        write(self._settings, f"""ListenAddress 127.0.0.1
Port {self.port}
HostKey {key}
PidFile none
AuthorizedKeysFile {base}/key.pub
AuthenticationMethods publickey
PermitRootLogin prohibit-password
StrictModes no
UsePAM no
MaxStartups 100
ForceCommand {shell}
""")
        self._process = None

    def start(self):
        self._process = subprocess.Popen(
            [daemon_program(), "-D", "-E", self.log, "-f", self._settings],
            stdin=subprocess.DEVNULL)
        end = time.monotonic() + PATIENCE
        while True:
            with socket.socket() as visitor:
                if visitor.connect_ex(("127.0.0.1", self.port)) == 0:
                    return
            assert self._process.poll() is None and time.monotonic() < end, self.said()
            time.sleep(0.05)

    def stop(self):
        if self._process:
            self._process.terminate()
            self._process.wait()

    def said(self):
        with open(self.log, encoding="utf-8") as file:
            return file.read()

    def calls(self):
        """How many calls of the reporter went here."""
        with open(self._calls, encoding="utf-8") as file:
            return len(file.readlines())


class Desk:
    """Where the user sits: a home folder, and an ssh that knows the way to the machines."""

    def __init__(self, base, machines, program):
        self.home = os.path.join(base, "desk")
        tools = os.path.join(base, "tools")
        os.makedirs(self.home)
        os.makedirs(tools)
        key = os.path.join(base, "key")
        subprocess.run(["ssh-keygen", "-q", "-t", "ed25519", "-N", "", "-f", key], check=True)
        known = ""
        ways = ""
        for machine in machines:
            with open(os.path.join(machine.base, "host_key.pub"), encoding="utf-8") as file:
                known += f"[127.0.0.1]:{machine.port} {file.read()}"
            ways += (f"Host {machine.name}\n  HostName 127.0.0.1\n  Port {machine.port}\n"
                     f"  User {getpass.getuser()}\n")
        write(os.path.join(base, "known_hosts"), known)
        write(os.path.join(base, "ssh_config"), ways + f"""Host *
  IdentityFile {key}
  IdentitiesOnly yes
  BatchMode yes
  UserKnownHostsFile {base}/known_hosts
  GlobalKnownHostsFile /dev/null
  StrictHostKeyChecking yes
""")
        write(os.path.join(tools, "ssh"),
              f"#!/bin/sh\nexec {shutil.which('ssh')} -F {base}/ssh_config \"$@\"\n", 0o700)
        self._environment = dict(
            os.environ, HOME=self.home, LC_ALL="C", TMPDIR=base,
            PATH=f"{tools}:{os.path.dirname(program)}:{os.environ['PATH']}")
        for name in ("PARALLEL", "PARALLEL_HOME", "XDG_CONFIG_HOME", "SSH_AUTH_SOCK"):
            self._environment.pop(name, None)

    def run(self, command, folder):
        return subprocess.run(["bash", "-c", "set -o pipefail; " + command], cwd=folder,
                              env=self._environment, stdin=subprocess.DEVNULL, check=False,
                              stdout=subprocess.PIPE, stderr=subprocess.PIPE, timeout=120)


def read(path):
    with open(path, "rb") as file:
        return file.read()


def blocks_of(page, kind):
    return re.findall(rf"^```{kind}\n(.*?)^```$", page, re.MULTILINE | re.DOTALL)


def make_jobs(folder, samples):
    """Jobs in folders of folders, made of the samples in turn."""
    names = sorted(each for each in os.listdir(samples) if each.endswith(".qjt"))
    texts = [read(os.path.join(samples, name)) for name in names]
    for number in range(JOBS):
        place = os.path.join(folder, "jobs", f"line {number % 7}")
        os.makedirs(place, exist_ok=True)
        with open(os.path.join(place, f"{number}.qjt"), "wb") as file:
            file.write(texts[number % len(texts)])


def expect_well(run):
    assert run.returncode == 0, (run.args, run.returncode, run.stdout, run.stderr)
    assert run.stderr == b"", run.stderr


def expect_whole_summary(desk, command, folder, machines):
    """What the machines write together is what one program writes, and each had its part."""
    before = [machine.calls() for machine in machines]
    expect_well(desk.run(command, folder))
    alone = desk.run("find jobs -name '*.qjt' | sort | halvane-report --files-from - --summary", folder)
    expect_well(alone)
    assert alone.stdout.count(b"\n") == JOBS, alone.stdout.count(b"\n")
    assert read(os.path.join(folder, "summary.jsonl")) == alone.stdout, "not as of one machine"
    for machine, count in zip(machines, before):
        assert machine.calls() > count, machine.name + " did nothing"


def follow_the_page(desk, machines, base, project):
    with open(os.path.join(project, "docs/many-machines.md"), encoding="utf-8") as file:
        page = file.read()
    versions, summary, copying = blocks_of(page, "sh")
    list_of_machines, = blocks_of(page, "text")
    assert re.findall(r"^\d+/(.*)$", list_of_machines, re.MULTILINE) == list(NAMES)
    samples = os.path.join(project, "docs/samples")

    shared = os.path.join(base, "shared")
    make_jobs(shared, samples)
    for folder in (shared, desk.home):
        write(os.path.join(folder, "machines"), list_of_machines)

    run = desk.run(versions, shared)
    expect_well(run)
    version = desk.run("halvane-report --version", shared).stdout.decode()
    assert sorted(run.stdout.decode().splitlines()) == [f"{name}\t{version.strip()}"
                                                        for name in NAMES], run.stdout

    expect_whole_summary(desk, summary, shared, machines)

    make_jobs(desk.home, samples)
    expect_well(desk.run(copying, desk.home))
    expect_whole_summary(desk, summary, desk.home, machines)

    # A job that is there no more is one failed call, in which all others are done.
    gone = os.path.join("jobs", "line 3", "3.qjt")
    for machine in machines:
        os.remove(os.path.join(machine.home, gone))
    run = desk.run(summary, desk.home)
    assert run.returncode == 1 and gone.encode() in run.stderr, (run.returncode, run.stderr)
    lines = read(os.path.join(desk.home, "summary.jsonl")).splitlines()
    assert len(lines) == JOBS and sum(b'"FileError"' in line for line in lines) == 1, len(lines)

    lose_a_machine(desk, machines, summary)


def lose_a_machine(desk, machines, command):
    machines[1].stop()
    run = desk.run(command.replace("parallel ", "parallel --joblog calls.txt ", 1), desk.home)
    assert run.returncode > 0 and b"Connection refused" in run.stderr, (run.returncode, run.stderr)
    lines = read(os.path.join(desk.home, "summary.jsonl")).count(b"\n")
    assert 0 < lines < JOBS, lines
    heading, *calls = [line.split("\t") for line in
                       read(os.path.join(desk.home, "calls.txt")).decode().splitlines()]
    host, status, signal = (heading.index(name) for name in ("Host", "Exitval", "Signal"))
    lost = [call for call in calls if call[host] == NAMES[1]]
    # A call that is refused before it has its names breaks the pipe that they come through.
    assert lost and all(call[status] == "255" or call[signal] == "13" for call in lost), calls

    write(os.path.join(desk.home, "machines"), f"2/{NAMES[0]}\n")
    run = desk.run(command, desk.home)
    lines = read(os.path.join(desk.home, "summary.jsonl")).count(b"\n")
    assert (run.returncode, lines) == (1, JOBS), (run.returncode, lines, run.stderr)


def main():
    program, project = map(os.path.abspath, sys.argv[1:])
    missing = [name for name in PROGRAMS if not shutil.which(name)]
    if missing or not daemon_program():
        print("these are not there, skipped:", *missing or ["sshd"])
        return SKIPPED
    makes_separation = os.geteuid() == 0 and not os.path.isdir(SEPARATION)
    if makes_separation:
        os.mkdir(SEPARATION, 0o755)
    with tempfile.TemporaryDirectory() as base:
        machines = [Machine(name, base, program) for name in NAMES]
        try:
            desk = Desk(base, machines, program)
            for machine in machines:
                machine.start()
            if desk.run("ssh alpha true", base).returncode != 0:
                print("nobody can log in as this user, skipped:\n" + machines[0].said())
                return SKIPPED
            follow_the_page(desk, machines, base, project)
        finally:
            for machine in machines:
                machine.stop()
            if makes_separation:
                os.rmdir(SEPARATION)
    return 0


if __name__ == "__main__":
    sys.exit(main())
