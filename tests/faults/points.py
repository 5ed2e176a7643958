"""The points at which faults are injected, and how."""

import os
import re
import subprocess
import tempfile
from collections import Counter
from dataclasses import dataclass
from typing import Optional

from saves import settle

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
    allows_unsure: bool = False  # two faults: undoing a failed write fails too


def _run(command):
    done = subprocess.run(
        command, env=PLAIN_TEXT, capture_output=True, timeout=STUCK_SECONDS, check=False
    )
    output, trace = (text.decode(errors="replace") for text in (done.stdout, done.stderr))
    return done.returncode, output.strip(), trace


def _limit(size):
    """Limits the files of the command that follows; strace writes to a pipe and feels nothing."""
    return ["prlimit", f"--fsize={size}"] if size is not None else []


@dataclass
class Injection:
    """A fault at one occurrence of a system call, counted from the start of the probe."""

    call: str
    fault: str
    when: str
    size: Optional[int] = None  # files cannot grow beyond it, so that a write runs short as well
    always: tuple = ()  # arguments of the tracer for what is refused in each run

    def __str__(self):
        limit = f", files limited to {self.size} bytes" if self.size is not None else ""
        return f"{self.fault} at {self.call} number {self.when}{limit}"

    def run(self, command):
        inject = f"inject={self.call}:{self.fault}:when={self.when}"
        traced = ["-e", f"trace={self.call},openat", *self.always, "-e", inject]
        code, output, trace = _run([*_limit(self.size), "strace", "-f", *traced, *command])
        pattern = rf"(?m)\b{self.call}\(.*\(INJECTED\)|killed by SIGKILL"
        reached = re.search(pattern, trace) is not None
        is_sync = self.call == "fsync" and self.fault == "error=EIO"
        return Run(
            code=code,
            output=output,
            killed=self.fault == "signal=KILL",
            reached=reached or self.size is not None,  # the short write may end the save before
            must_be_reported=is_sync,
            allows_unsure=self.size is not None or self.when.endswith("+"),
        )


@dataclass
class SizeLimit:
    """A file that cannot grow beyond a size, so that a write runs short there."""

    size: int

    def __str__(self):
        return f"files limited to {self.size} bytes"

    def run(self, command):
        code, output, _ = _run([*_limit(self.size), *command])
        return Run(code=code, output=output, must_be_reported=True)


def tracing_refused():
    """Why programs cannot be traced and given faults here; None when they can."""
    try:
        traced = ["strace", "-o", os.devnull, "-e", "inject=close:error=EIO:when=1", "/bin/true"]
        done = subprocess.run(traced, capture_output=True, timeout=STUCK_SECONDS, check=False)
    except FileNotFoundError:
        return "strace is not installed"
    said = done.stderr.decode(errors="replace").strip()
    return f"this machine does not let strace trace a program: {said}" if said else None


def _trace(save, probe, *arguments):
    """What strace tells of a save, and the folder that it was done in."""
    with tempfile.TemporaryDirectory() as scratch:
        folder = os.path.join(scratch, "folder")
        save.prepare(folder)
        settle()
        tracer = ["strace", "-f", "-s", "4096", *arguments]
        _, _, trace = _run([*tracer, *save.command(probe, scratch)])
        if save.content(folder) != save.new:
            raise RuntimeError(f"{save.name} does not work even without faults")
        return trace.splitlines(), folder


def _refusal_of_nameless(save, probe):
    """Arguments that let the tracer refuse to make a file without a name."""
    lines, _ = _trace(save, probe, "-e", "trace=openat")
    opened = [line for line in lines if "openat(" in line]
    occurrence = next(at for at, line in enumerate(opened, 1) if "O_TMPFILE" in line)
    return ("-e", f"inject=openat:error=EOPNOTSUPP:when={occurrence}")


def calls_of(save, probe, always=()):
    """The system calls of a save without faults: (name, occurrence since the probe's start)."""
    return _calls_in(*_trace(save, probe, "-e", "trace=%file,%desc", *always))


def _calls_in(lines, folder):
    """The calls from the first that names the folder to the report on standard output."""
    counts = Counter()
    calls = []
    for line in lines:
        match = re.match(r"(?:\[pid +\d+\] )?(\w+)\((.*)", line)
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
    """Each fault at each call; for an append also with a write that runs short before or after."""
    points = []
    always = _refusal_of_nameless(save, probe) if save.is_named else ()
    for name, occurrence in calls_of(save, probe, always):
        if always and name in ("openat", "access"):
            continue  # of a call the tracer injects one fault; access() decides what is opened next
        faults = [("signal=KILL", str(occurrence))]
        faults += [(f"error={error}", str(occurrence)) for error in ERRORS]
        faults += [(f"error={error}", f"{occurrence}+") for error in LASTING_ERRORS]
        points += [Injection(name, fault, when, always=always) for fault, when in faults]
        if not save.is_rewrite:
            short = len(save.new) - len(save.added) // 2
            points.append(Injection(name, "error=EIO", str(occurrence), short))
            points.append(Injection(name, "error=EIO", f"{occurrence}+", short))
    return points


def size_points(save, step):
    """Sizes at which the write of this save runs short, and some where undoing it fails too.

    All sizes with a step of 1; the first and the last one with any.
    """
    end = len(save.new)
    start = 1 if save.is_rewrite else end - len(save.added)
    points = [SizeLimit(size) for size in sorted({*range(start, end, step), end - 1})]
    if not save.is_rewrite:
        for call in ("ftruncate", "unlink"):
            sizes = range(start + 1, end, 50)
            points += [Injection(call, "error=EIO", "1+", size) for size in sizes]
    return points
