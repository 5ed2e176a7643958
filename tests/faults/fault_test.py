#!/usr/bin/env python3
"""Injects a fault at every system call of a save and reads everything back.

    fault_test.py append|rewrite PROBE

The probe performs one save with the real file layer. It is traced once without faults, to learn
which system calls touch the data file or its folder; then it runs once for each of them and each
fault: killed there, refused once, refused from there on. Sizes of files are limited to every byte
of what is written, so that writes run short. After each run the folder must hold the old content
or the new one, and what the probe reported must be true.

Exit code: 0 when nothing was lost, 1 when something was, 77 when this machine does not let one
program trace another.
"""

import os
import sys
import tempfile
from collections import Counter
from concurrent.futures import ThreadPoolExecutor

from points import injected_points, size_points, tracing_refused
from saves import SAVES

FAILURES = ("torn", "lost", "false", "stray", "altered", "crashed", "missed")
LEAST_POINTS = 400
PARALLEL = 2


def judge(save, folder, run):
    """What a run left behind, as a set of words; see FAILURES."""
    content = save.content(folder)
    found = {"new" if content == save.new else "old" if save.is_old(content, run) else "torn"}
    if save.old and not save.keeps_records(content):
        found.add("lost")
    if run.allows_torn and run.code == 2:
        found.discard("torn")  # two faults at once, and the report says so
    if not run.killed:
        if run.code not in (0, 1, 2):
            found.add("crashed")
        if run.code == 0 and (content != save.new or run.must_be_reported):
            found.add("false")
        if run.code == 1 and content != save.old:
            found.add("false")
    if not run.reached:
        found.add("missed")
    if save.is_altered(folder):
        found.add("altered")
    if save.strays(folder):
        found.add("leftover" if run.killed and save.may_leave_copy else "stray")
    return found


def try_point(save, probe, point):
    with tempfile.TemporaryDirectory() as scratch:
        folder = os.path.join(scratch, "folder")
        os.mkdir(folder)
        save.prepare(folder)
        run = point.run(save.command(probe, scratch))
        found = judge(save, folder, run)
        return found, f"{save.name}: {point}: exit code {run.code}: {run.output}"


def try_save(save, probe):
    """Tries all points of one kind of save; returns how many there were and what was found."""
    points = injected_points(save, probe) + size_points(save)
    found = Counter()
    with ThreadPoolExecutor(PARALLEL) as pool:
        for words, story in pool.map(lambda point: try_point(save, probe, point), points):
            found.update(words)
            bad = sorted(words.intersection(FAILURES))
            if bad:
                print(f"  {', '.join(bad)}: {story}")
    figures = ", ".join(f"{found[word]} {word}" for word in ("old", "new", "leftover", *FAILURES))
    print(f"{save.name}: {len(points)} points, {figures}")
    return len(points), sum(found[word] for word in FAILURES)


def main():
    operation, probe = sys.argv[1:]
    refused = tracing_refused()
    if refused:
        print(f"skipped: {refused}")
        return 77
    results = [try_save(save, os.path.abspath(probe)) for save in SAVES[operation]]
    points = sum(count for count, _ in results)
    failures = sum(count for _, count in results)
    print(f"{operation}: {points} points, {failures} failures")
    return 0 if failures == 0 and points >= LEAST_POINTS else 1


if __name__ == "__main__":
    sys.exit(main())
