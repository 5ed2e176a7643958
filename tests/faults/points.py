"""The points at which faults are injected, and how."""

import os
import re
import subprocess
import tempfile
from collections import Counter
from dataclasses import dataclass

from saves import RECORD

ERRORS = ("ENOSPC", "EIO", "EACCES", "EDQUOT", "EINTR")
LASTING_ERRORS = ("ENOSPC", "EIO", "EACCES")
NOT_FILES = ("mmap", "execve")  # they bring memory and programs, not data files
PLAIN_TEXT = {**os.environ, "LC_ALL": "C.UTF-8", "ASAN_OPTIONS": "detect_leaks=0"}
STUCK_SECONDS = 30


@dataclass
class Run:
    """What the probe did at one point."""

    code: int
    output: str
    killed: bool = False
    reached: bool = True  # the fault was injected indeed
    must_be_reported: bool = False  # success is no true answer to this fault
    allows_torn: bool = False  # two faults at once: the take-back of a short write fails too


def _run(command):
    done = subprocess.run(
        command, env=PLAIN_TEXT, capture_output=True, timeout=STUCK_SECONDS, check=False
    )
    return done.returncode, done.stdout.decode(errors="replace").strip()


@dataclass
class Injection:
    """A fault at one occurrence of a system call, counted from the start of the probe."""

    call: str
    fault: str
    when: str
    size: int = 0  # when not 0, files cannot grow beyond it

    def __str__(self):
        limit = f", files limited to {self.size} bytes" if self.size else ""
        return f"{self.fault} at {self.call} number {self.when}{limit}"

    def run(self, command, scratch):
        log = os.path.join(scratch, "log")
        limit = ["prlimit", f"--fsize={self.size}"] if self.size else []
        tracer = ["strace", "-f", "-o", log, "-e", f"trace={self.call}"]
        inject = f"inject={self.call}:{self.fault}:when={self.when}"
        code, output = _run([*tracer, "-e", inject, *limit, *command])
        with open(log, encoding="utf-8", errors="replace") as lines:
            reached = re.search(r"\(INJECTED\)|killed by SIGKILL", lines.read()) is not None
        is_sync = self.call == "fsync" and self.fault == "error=EIO"
        return Run(
            code=code,
            output=output,
            killed=self.fault == "signal=KILL",
            reached=reached,
            must_be_reported=is_sync,
            allows_torn=self.size != 0,
        )


@dataclass
class SizeLimit:
    """A file that cannot grow beyond a size, so that a write runs short there."""

    size: int

    def __str__(self):
        return f"files limited to {self.size} bytes"

    def run(self, command, _scratch):
        code, output = _run(["prlimit", f"--fsize={self.size}", *command])
        return Run(code=code, output=output, must_be_reported=True)


def tracing_refused():
    """Why the faults cannot be injected here; None when they can."""
    try:
        traced = ["strace", "-o", os.devnull, "-e", "inject=close:error=EIO:when=1", "/bin/true"]
        done = subprocess.run(traced, capture_output=True, timeout=STUCK_SECONDS, check=False)
    except FileNotFoundError:
        return "strace is not installed"
    said = done.stderr.decode(errors="replace").strip()
    return f"this machine does not let strace trace a program: {said}" if said else None


def calls_of(save, probe):
    """The system calls of a save without faults: (name, occurrence since the probe's start)."""
    with tempfile.TemporaryDirectory() as scratch:
        folder = os.path.join(scratch, "folder")
        os.mkdir(folder)
        save.prepare(folder)
        log = os.path.join(scratch, "log")
        command = save.command(probe, scratch)
        _run(["strace", "-f", "-o", log, "-s", "4096", "-e", "trace=%file,%desc", *command])
        if save.content(folder) != save.new:
            raise RuntimeError(f"{save.name} does not work even without faults")
        with open(log, encoding="utf-8", errors="replace") as lines:
            return _calls_in(lines.read().splitlines(), folder)


def _calls_in(lines, folder):
    """The calls from the first that names the folder to the report on standard output."""
    counts = Counter()
    calls = []
    for line in lines:
        match = re.match(r"\d+ +(\w+)\((.*)", line)
        if not match:
            continue
        name, arguments = match.groups()
        counts[name] += 1
        if name in NOT_FILES or not (calls or folder in arguments):
            continue
        if re.match(r'1, "(")?', arguments) and name in ("write", "newfstatat", "fstat"):
            break
        calls.append((name, counts[name]))
    return calls


def injected_points(save, probe):
    points = []
    for name, occurrence in calls_of(save, probe):
        points.append(Injection(name, "signal=KILL", str(occurrence)))
        points += [Injection(name, f"error={error}", str(occurrence)) for error in ERRORS]
        points += [Injection(name, f"error={error}", f"{occurrence}+") for error in LASTING_ERRORS]
    return points


def size_points(save):
    """Every size at which the write of this save runs short, and some where mending fails too."""
    end = len(save.new)
    if save.operation == "rewrite":
        return [SizeLimit(size) for size in range(1, end)]
    start = end - len(RECORD)
    alone = [SizeLimit(size) for size in range(start, end)]
    return alone + [
        Injection("ftruncate", "error=EIO", "1+", size) for size in range(start + 1, end, 50)
    ]
