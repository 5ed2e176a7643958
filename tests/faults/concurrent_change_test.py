#!/usr/bin/env python3
"""Lets another program, which asks for no lock, get at the files between any two steps of a save.

    concurrent_change_test.py append|rewrite|records|import PROBE

The probe is stopped after each system call that touches the data files or their folder; what the
other program does is done; the probe goes on. Then everything is read back: what the other program
wrote must be there still, and what the probe reported must be true. The last step is the sync of
what was written: what happens to a file after that happens to a saved one.

Exit code: as that of fault_test.py.
"""

import functools
import os
import signal
import subprocess
import sys
import tempfile
import threading
from concurrent.futures import ThreadPoolExecutor

from judge import Tally
from concurrent_changes import TO_FILE, TO_SOURCE, judge_append, judge_rewrite, judge_source, relink
from points import PLAIN_TEXT, STUCK_SECONDS, calls_of, tracing_refused
from saves import SAVES, SOURCE, read, settle

LEAST_POINTS = 100
PARALLEL = 2
# A rewrite compares the file with what was loaded, and then the new one takes its name. What
# another program does between these two goes unseen; this is how many calls it has to hit.
CALLS_WITHOUT_LOOK = 2


def steps_of(save, probe):
    calls = calls_of(save, probe)
    names = [name for name, _ in calls]
    if save.is_rewrite:
        return calls[: len(names) - names[::-1].index("rename") - 1 - CALLS_WITHOUT_LOOK]
    return calls[: len(names) - names[::-1].index("fsync")]


def _children(pid):
    with open(f"/proc/{pid}/task/{pid}/children", "rb") as children:
        return [int(child) for child in children.read().split()]


def _end_stuck(pid):
    """Ends the program that a tracer runs, which then ends as well."""
    for child in _children(pid):
        os.kill(child, signal.SIGKILL)


def run_until_stopped(command, call, occurrence, act):
    """Runs a command, stopped after a system call to let `act` run; its exit code and output."""
    tracer = ["strace", "-f", "-e", f"trace={call}"]
    tracer += ["-e", f"inject={call}:signal=STOP:when={occurrence}"]
    with subprocess.Popen(
        [*tracer, *command], env=PLAIN_TEXT, stdout=subprocess.PIPE, stderr=subprocess.PIPE
    ) as traced:
        alarm = threading.Timer(STUCK_SECONDS, _end_stuck, [traced.pid])
        alarm.start()
        for line in traced.stderr:
            if b"stopped by SIGSTOP" in line:
                stopped = _children(traced.pid)[0]
                try:
                    act()
                finally:
                    os.kill(stopped, signal.SIGCONT)
        alarm.cancel()
        output = traced.stdout.read().decode(errors="replace").strip()
    return traced.returncode, output


def try_step(save, probe, scratch, one):
    """What was found, and in words what was done; None when there was nothing to change."""
    step, change, name = one
    folder = os.path.join(scratch, "folder")
    path = os.path.join(folder, name)
    left = []

    def act():
        try:
            change(path)
            left.append(read(path))
        except FileNotFoundError:
            pass

    code, output = run_until_stopped(save.command(probe, scratch), *step, act)
    story = f"{save.name}: {change.__name__} after {step[0]} number {step[1]}: {code}: {output}"
    if not left:
        return None, story
    if name == SOURCE:
        found = judge_source(save, left[0], folder, code)
    elif save.is_rewrite:
        found = judge_rewrite(left[0], path, code)
    else:
        found = judge_append(save, left[0], path, code)
    if code not in (0, 1, 2):
        found.add("crashed")
    if code in (1, 2) and output.endswith(":"):
        found.add("false")  # no cause
    return found | {("saved", "unsaved", "unsure")[code] if code in (0, 1, 2) else "crashed"}, story


def try_save(save, probe):
    tally = Tally("saved", "unsaved", "unsure")
    changes = [(change, save.real) for change in TO_FILE]
    changes += [(relink, name) for name, _ in save.links]
    if save.source is not None:
        changes += [(change, SOURCE) for change in TO_SOURCE]
    tries = [(step, *change) for step in steps_of(save, probe) for change in changes]
    with tempfile.TemporaryDirectory() as top, ThreadPoolExecutor(PARALLEL) as pool:
        scratches = [os.path.join(top, str(number)) for number in range(len(tries))]
        for scratch in scratches:
            save.prepare(os.path.join(scratch, "folder"))
        settle()
        done = pool.map(functools.partial(try_step, save, probe), scratches, tries)
        for words, story in done:
            if words is not None:
                tally.add(words, story)
    print(f"{save.name}: {tally}")
    return tally


def main():
    operation, probe = sys.argv[1:]
    refused = tracing_refused()
    if refused:
        print(f"skipped: {refused}")
        return 77
    tallies = [try_save(save, os.path.abspath(probe)) for save in SAVES[operation]]
    points = sum(tally.points for tally in tallies)
    failures = sum(tally.failures for tally in tallies)
    print(f"{operation}, changed concurrently: {points} points, {failures} failures")
    return 0 if failures == 0 and points >= LEAST_POINTS else 1


if __name__ == "__main__":
    sys.exit(main())
