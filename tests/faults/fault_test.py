#!/usr/bin/env python3
"""Injects a fault at every system call of a save and reads everything back.

    fault_test.py [--all] append|rewrite|records|import|foreign PROBE

The probe performs one save with the real file layer. It is traced once without faults, to learn
which system calls touch the data files or their folder; then it runs once for each of them and each
fault: killed there, refused once, refused from there on. Sizes of files are limited, so that writes
run short: to every seventh byte of what is written, with --all to every byte. After each run the
folder must hold the old content or the new one, and what the probe reported must be true.

"foreign" rewrites a file of another user with an access control list.

Exit code: 0 when nothing was lost, 1 when something was, 77 when this machine does not let one
program trace another, or has no such files.
"""

import argparse
import functools
import os
import sys
import tempfile
from concurrent.futures import ThreadPoolExecutor

from judge import Tally, judge
from points import injected_points, size_points, tracing_refused
from saves import FOREIGN, SAVES, can_give_away, settle

LEAST_POINTS = 400
PARALLEL = 2
FOREIGN_FILE = "foreign"


def try_point(save, probe, scratch, point):
    run = point.run(save.command(probe, scratch))
    found = judge(save, os.path.join(scratch, "folder"), run)
    return found, f"{save.name}: {point}: exit code {run.code}: {run.output}"


def try_save(save, probe, step):
    """Tries all points of one kind of save."""
    points = injected_points(save, probe) + size_points(save, step)
    tally = Tally("old", "new", "leftover", "unsure")
    with tempfile.TemporaryDirectory() as top, ThreadPoolExecutor(PARALLEL) as pool:
        scratches = [os.path.join(top, str(number)) for number in range(len(points))]
        for scratch in scratches:
            save.prepare(os.path.join(scratch, "folder"))
        settle()
        tries = pool.map(functools.partial(try_point, save, probe), scratches, points)
        for words, story in tries:
            tally.add(words, story)
    print(f"{save.name}: {tally}")
    return tally


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--all", action="store_true")
    parser.add_argument("operation", choices=[*SAVES, FOREIGN_FILE])
    parser.add_argument("probe", type=os.path.abspath)
    options = parser.parse_args()
    refused = tracing_refused()
    if refused:
        print(f"skipped: {refused}")
        return 77
    step = 1 if options.all else 7
    is_foreign = options.operation == FOREIGN_FILE
    if is_foreign and not can_give_away():
        print("skipped: this user or file system knows no owners or access control lists to give")
        return 77
    saves = FOREIGN if is_foreign else SAVES[options.operation]
    tallies = [try_save(save, options.probe, step) for save in saves]
    points = sum(tally.points for tally in tallies)
    failures = sum(tally.failures for tally in tallies)
    print(f"{options.operation}: {points} points, {failures} failures")
    return 0 if failures == 0 and points >= LEAST_POINTS else 1


if __name__ == "__main__":
    sys.exit(main())
