#!/usr/bin/env python3
"""Saves under what really hinders them, and reads everything back.

    hindrance_test.py full_disk|permissions|links PROBE

A full disk and a read-only one are small file systems in memory, mounted for the test alone. Each
save must be done or be refused as the table in hindrances.py says, with a cause that names the
hindrance; what it left behind is judged as in fault_test.py.

Exit code: as that of fault_test.py; 77 when nothing can be mounted here.
"""

import os
import shutil
import subprocess
import sys
import tempfile

import hindrances
from judge import Tally, judge
from points import PLAIN_TEXT, STUCK_SECONDS, Run

NOBODY = 65534
NAMESPACES = (["unshare", "--mount"], ["unshare", "--user", "--map-root-user", "--mount"])
INSIDE = "--inside"  # a namespace in which mounting is allowed and seen by nobody else
PAGES = 64
FILES = 12


def run_probe(command, user=None):
    identity = {} if user is None else {"user": user, "group": user, "extra_groups": []}
    done = subprocess.run(
        command, env=PLAIN_TEXT, capture_output=True, timeout=STUCK_SECONDS, check=False, **identity
    )
    return Run(done.returncode, done.stdout.decode(errors="replace").strip())


def try_case(case, probe, scratch, user=None):
    folder = os.path.join(scratch, "folder")
    case.save.prepare(folder)
    command = case.save.command(probe, scratch)
    if user is not None:
        give(scratch, user)
    case.hinder(folder)
    run = run_probe(command, user)
    return run, folder


def give(scratch, user):
    for place, folders, files in os.walk(scratch):
        for name in (".", *folders, *files):
            os.chown(os.path.join(place, name), user, user, follow_symlinks=False)


def judge_case(case, run, folder):
    words = judge(case.save, folder, run) | case.missed_words(run)
    return words, f"{case.name}: {case.save.name}: exit code {run.code}: {run.output}"


def mount(place, options):
    subprocess.run(["mount", "-t", "tmpfs", "-o", options, "tmpfs", place], check=True)


def remount(place, how):
    """
    :param how: "ro" or "rw", for this mount alone: only that is open to every user
    """
    subprocess.run(["mount", "-o", f"remount,bind,{how}", place], check=True)


def fill_pages(folder, left):
    disk = os.statvfs(folder)
    with open(os.path.join(os.path.dirname(folder), "filler"), "wb") as filler:
        filler.write(bytes((disk.f_bavail - left) * disk.f_frsize))


def fill_files(folder):
    for number in range(os.statvfs(folder).f_favail):
        with open(os.path.join(os.path.dirname(folder), f"filler{number}"), "wb"):
            pass


def try_full_disk(probe, tally):
    with tempfile.TemporaryDirectory() as top:
        mounted = os.path.join(top, "disk")
        os.mkdir(mounted)

        def try_all(cases, options):
            mount(mounted, options)
            for case in cases:
                scratch = os.path.join(mounted, "scratch")
                run, folder = try_case(case, probe, scratch)
                tally.add(*judge_case(case, run, folder))
                remount(mounted, "rw")
                shutil.rmtree(scratch)
            subprocess.run(["umount", mounted], check=True)

        pages = f"size={PAGES * hindrances.PAGE}"
        try_all(hindrances.full_disk_cases(fill_pages), pages)
        try_all(hindrances.no_inode_cases(fill_files), f"nr_inodes={FILES}")
        try_all(hindrances.read_only_cases(lambda folder: remount(mounted, "ro")), pages)


def try_in_folder(cases, probe, tally, user=None):
    for case in cases:
        with tempfile.TemporaryDirectory() as scratch:
            os.chmod(scratch, 0o755)
            run, folder = try_case(case, probe, scratch, user)
            os.chmod(folder, 0o755)
            for name in os.listdir(folder):
                path = os.path.join(folder, name)
                if os.path.isfile(path) and not os.path.islink(path):
                    os.chmod(path, 0o640)
            tally.add(*judge_case(case, run, folder))


def try_permissions(probe, tally):
    user = NOBODY if os.geteuid() == 0 else None  # permissions do not bind the superuser
    with tempfile.TemporaryDirectory() as top:
        os.chmod(top, 0o755)
        reachable = shutil.copy(probe, top)
        try_in_folder(hindrances.permission_cases(), reachable, tally, user)


def try_links(probe, tally):
    try_in_folder(hindrances.link_cases(), probe, tally)


def go_inside():
    """Starts this test anew where it may mount; returns when that is nowhere."""
    with tempfile.TemporaryDirectory() as place:
        for namespace in NAMESPACES:
            trial = [*namespace, "mount", "-t", "tmpfs", "tmpfs", place]
            if subprocess.run(trial, capture_output=True, check=False).returncode == 0:
                os.execvp(namespace[0], [*namespace, sys.executable, *sys.argv, INSIDE])


def main():
    group, probe = sys.argv[1:3]
    if group == "full_disk" and INSIDE not in sys.argv:
        go_inside()
        print("skipped: this user may not mount a file system, not even for this test alone")
        return 77
    tally = Tally("old", "new", "unsure")
    tries = {"full_disk": try_full_disk, "permissions": try_permissions, "links": try_links}
    tries[group](os.path.abspath(probe), tally)
    print(f"{group}: {tally}")
    return 0 if tally.failures == 0 and tally.points > 0 else 1


if __name__ == "__main__":
    sys.exit(main())
