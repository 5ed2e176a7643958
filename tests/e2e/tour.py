#!/usr/bin/python3
"""Drives the real program through its main job on a virtual display.

Usage: tour.py PROGRAM [FOLDER] [--by USER] [--timeout SECONDS] [--watch]
               [--pictures renew|check] [--recording FILE] [--wine DISK]
               [--like FOLDER]

Writes screenshots of every screen, the data files and a log to FOLDER. The data files must match the
entered values byte for byte; any difference, timeout or crash ends the tour with a message and a
non-zero exit status. With --watch the program's system calls are traced to FOLDER as well, and any
forbidden call is a failure; where the machine does not allow tracing, the tour runs without it and
its last line says "skipped". With --pictures the screenshots in README and the guide are updated, or
the tour fails if they are out of date.

By default the user has a mouse. "keys" uses only the keyboard, and "ear" a screen reader as well;
both also check each screen that they reach, and take no screenshots. "recorder" uses the keyboard
and writes its actions to FILE; "replay" repeats them, seeing only windows, and takes screenshots.
With --wine, PROGRAM is a Windows program that runs under Wine, with the folder DISK as its disk.
With --like, the data files must be equal to those that another tour left in that FOLDER.
"""

import argparse
import contextlib
import fcntl
import filecmp
import glob
import os
import shutil
import subprocess
import sys
import tempfile

sys.path.append(os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "faults"))

import pictures
import watch
import wine
from desktop import Desktop
from driver import Driver
from flows import flows_of
from listener import Listener
from points import tracing_refused
from tour_error import TourError
from recording import Recorder
from replay import Replay
from rounds import Walker
from steps import MENU

LOG = "tour.log"
TRACE = "calls.trace"
SHOWN_FOLDER = "/tmp/tarvold-tour"
USERS = {"mouse": Driver, "keys": Walker, "ear": Listener, "recorder": Recorder, "replay": Replay}


def main():
    parser = argparse.ArgumentParser(description="Drive the program through its main job.")
    parser.add_argument("program")
    parser.add_argument("folder", nargs="?", default="build/tour")
    parser.add_argument("--by", choices=USERS, default="mouse", help="who uses the program")
    parser.add_argument("--timeout", type=float, default=60, help="seconds to wait for each step")
    parser.add_argument("--recording", metavar="FILE", help="the recording to write or replay")
    parser.add_argument("--wine", metavar="DISK", help="run a Windows program on this disk folder")
    parser.add_argument("--like", metavar="FOLDER", help="compare with the files of another tour")
    parser.add_argument("--watch", action="store_true", help="trace the program's system calls")
    parser.add_argument("--pictures", choices=("renew", "check"),
                        help="update or check the screenshots in README and the guide")
    arguments = parser.parse_args()
    if bool(arguments.recording) != (arguments.by in ("recorder", "replay")):
        parser.error("--recording is for recorder and replay, and they need it")
    refused = arguments.watch and tracing_refused()
    arguments.watch = arguments.watch and not refused
    clear(arguments.folder)
    with open(os.path.join(arguments.folder, LOG), "w", encoding="utf-8") as log:
        try:
            tour(arguments, log)
        except (RuntimeError, OSError, subprocess.SubprocessError) as error:
            log.flush()
            sys.exit(f"The tour failed: {error}.\nSee {log.name}.")
    print(f"The tour is done; its files are in {arguments.folder}.")
    if refused:
        print(f"skipped: the trace of the program's system calls: {refused}")


def clear(folder):
    """Removes the files of an earlier tour, but refuses to remove an author's data files."""
    os.makedirs(folder, exist_ok=True)
    names = os.listdir(folder)
    if LOG not in names and any(name.endswith(".tvd") for name in names):
        sys.exit(f"{folder} holds data files that no tour wrote; name another folder.")
    for pattern in ("[0-9][0-9]-*.png", "*.tvd", LOG, TRACE):
        for old in glob.glob(os.path.join(glob.escape(folder), pattern)):
            os.remove(old)


def tour(arguments, log):
    folder = arguments.folder
    trace = os.path.join(os.path.abspath(folder), TRACE)
    program = os.path.abspath(arguments.program)
    command = watch.command(trace, program) if arguments.watch else [program]
    flows = flows_of(arguments.by)
    more = {"recording": arguments.recording} if arguments.recording else {}
    folder_of_work = shown_folder() if arguments.by == "mouse" else tempfile.TemporaryDirectory()
    with Desktop(log), folder_of_work as work:
        if arguments.wine:
            wine.prepare(arguments.wine, log)
            command = wine.command(arguments.wine, "wine", program)
        driver = USERS[arguments.by](command, work, folder, arguments.timeout, log, **more)
        try:
            driver.wait_screen(MENU)
            driver.move_window()
            driver.picture("menu")
            for flow, _, _ in flows:
                flow(driver)
            driver.finish()
            driver.press("Exit")
            driver.wait_end()
        except Exception:
            driver.picture_of_all("failed")
            raise
        finally:
            driver.stop()
            if arguments.wine:
                wine.end(arguments.wine, log)
            for name in os.listdir(work):
                shutil.copy(os.path.join(work, name), folder)
        check_files(work, flows)
        if arguments.like:
            check_same(work, arguments.like, flows)
        if arguments.watch:
            check_calls(trace, work, flows)
    if arguments.pictures == "renew":
        pictures.renew(folder)
    elif arguments.pictures == "check":
        check_pictures(folder)


@contextlib.contextmanager
def shown_folder():
    """An empty folder that has the same path in every tour, as screenshots show it. Another tour has
    to wait."""
    os.makedirs(SHOWN_FOLDER, mode=0o700, exist_ok=True)
    lock = os.open(SHOWN_FOLDER, os.O_RDONLY | os.O_DIRECTORY)
    try:
        fcntl.flock(lock, fcntl.LOCK_EX)
        empty(SHOWN_FOLDER)
        yield SHOWN_FOLDER
        empty(SHOWN_FOLDER)
    finally:
        os.close(lock)


def empty(folder):
    for name in os.listdir(folder):
        os.remove(os.path.join(folder, name))


def check_files(work, flows):
    """Fails unless the folder contains exactly the files of the flows, byte for byte."""
    names = sorted(name for _, name, _ in flows)
    if sorted(os.listdir(work)) != names:
        raise TourError(f"the program wrote {sorted(os.listdir(work))}, not {names}")
    for _, name, lines in flows:
        with open(os.path.join(work, name), "rb") as file:
            compare(name, file.read(), "".join(line + "\r\n" for line in lines).encode("cp1252"))


def check_same(work, other, flows):
    """Fails unless two folders contain equal data files, byte for byte."""
    names = sorted(name for _, name, _ in flows)
    same, *_ = filecmp.cmpfiles(work, other, names, shallow=False)
    if same != names:
        raise TourError(f"{sorted(set(names) - set(same))} differ in {other}")
    print(f"All {len(names)} data files are equal to those in {other}.")


def check_calls(trace, work, flows):
    """Fails unless the trace shows the data files being written, and no forbidden call."""
    lines = watch.lines_of(trace)
    unseen = {name for _, name, _ in flows} - watch.data_files(lines)
    if unseen:
        raise TourError(f"the trace does not show {unseen} being written")
    complaints = watch.complaints(lines, work)
    if complaints:
        raise TourError("the program made forbidden system calls:\n" +
                        "\n".join(complaints) + "\n")


def check_pictures(folder):
    """Fails if a screenshot in the documents is out of date."""
    complaints = pictures.complaints(folder)
    if complaints:
        raise TourError("these screenshots are out of date; ./run --pictures updates them:\n" +
                        "\n".join(complaints) + "\n")


def compare(name, written, expected):
    if written == expected:
        return
    pairs = zip(written.split(b"\r\n"), expected.split(b"\r\n"))
    for number, (have, want) in enumerate(pairs, start=1):
        if have != want:
            raise TourError(f"{name}, line {number}: {have!r} instead of {want!r}")
    raise TourError(f"{name} has {len(written)} bytes instead of {len(expected)}")


if __name__ == "__main__":
    main()
