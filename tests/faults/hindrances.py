"""Saves and what hinders them: what the system lets happen, and what must come of each."""

import os
import re
from dataclasses import dataclass, field, replace
from typing import Callable

from saves import ALL_OLD, FILE, LINES, LINK, RECORD, REWRITTEN, SOURCE, TARGET, Save

PAGE = 4096
FULL = "There is no space left on the disk"
READ_ONLY = "The disk is read-only"
DENIED = "You have no permission|You may not write|The file is read-only"
NOTHING = "does not exist"
LOOP = "Its symbolic links lead in a circle"
SAVED = None  # instead of a cause: nothing hinders this save


@dataclass
class Case:
    """A save under a hindrance."""

    name: str
    save: Save
    cause: str  # a pattern for the cause that is told; SAVED when the save must succeed
    hinder: Callable = field(default=lambda folder: None)  # called with the prepared folder

    def missed_words(self, run):
        """What the outcome is instead of the expected one."""
        if self.cause is SAVED:
            return set() if run.code == 0 else {"refused"}
        told = run.code == 1 and re.search(self.cause, run.output)
        return set() if told else {"unclear"}


def saves_of(old, record=RECORD, **more):
    """An append, a rewrite and the imports on a file that holds `old`; None when it is missing."""
    before = old or b""
    interviews = Save("interviews", "interviews", old, before + record, source=record, **more)
    append = Save("append", "append", old, before + record, record=record, **more)
    if old is None:
        return [append, interviews]
    rewritten = REWRITTEN.replace(RECORD, record) + old[len(ALL_OLD) :]
    return [
        append,
        interviews,
        Save("stipulations", "stipulations", old, before + record, source=record, **more),
        Save("rewrite", "rewrite", old, rewritten, record=record, **more),
    ]


def _pages(size):
    return -(-size // PAGE)


def long_record(name, size):
    """A record of 19 lines and a given size."""
    lines = [f"{name} line {number}".encode() for number in range(LINES)]
    lines[-1] += b"x" * (size - sum(len(line) + 2 for line in lines))
    return b"".join(line + b"\r\n" for line in lines)


def full_disk_cases(fill):
    """
    :param fill: leaves a number of pages on the disk of a folder
    """
    cases = []
    record = long_record("new", 2 * PAGE + 500)
    for in_last_page in (0, 1, 499, 500, PAGE - 1):
        size = 2 * PAGE - in_last_page
        old = ALL_OLD + long_record("old", size - len(ALL_OLD))
        for save in (*saves_of(old, record), *saves_of(None, record)):
            had = 0 if save.is_rewrite else _pages(len(save.old or b""))
            needed = _pages(len(save.new)) - had
            for left in range(6):
                cause = SAVED if left >= needed else FULL
                name = f"{left} pages left, {in_last_page} bytes of them in the last one"
                cases.append(Case(name, save, cause, lambda folder, left=left: fill(folder, left)))
    return cases


def no_inode_cases(fill):
    cases = [Case("no file can be made", save, FULL, fill) for save in saves_of(None)]
    for save in saves_of(ALL_OLD):
        cases.append(Case("no file can be made", save, FULL if save.is_rewrite else SAVED, fill))
    return cases


def read_only_cases(remount):
    saves = saves_of(ALL_OLD) + saves_of(None)
    return [Case("read-only file system", save, READ_ONLY, remount) for save in saves]


def _mode(mode, name="."):
    return lambda folder: os.chmod(os.path.join(folder, name), mode)


def permission_cases():
    """For a user whom file permissions bind."""
    cases = []
    for save in saves_of(ALL_OLD):
        reads = save.operation in ("stipulations", "rewrite")
        cases += [
            Case("read-only folder", save, DENIED if save.is_rewrite else SAVED, _mode(0o555)),
            Case("folder that cannot be entered", save, DENIED, _mode(0o600)),
            Case("folder that cannot be listed", save, SAVED, _mode(0o300)),
            Case("read-only file", save, DENIED, _mode(0o440, save.real)),
            Case("unreadable file", save, DENIED if reads else SAVED, _mode(0o200, save.real)),
        ]
        if save.source is not None:
            cases.append(Case("unreadable source", save, DENIED, _mode(0, SOURCE)))
    for save in saves_of(None):
        cases += [
            Case("read-only folder", save, DENIED, _mode(0o555)),
            Case("folder that cannot be listed", save, SAVED, _mode(0o300)),
        ]
    return cases


def _remove_folder(folder):
    os.rmdir(os.path.join(folder, "none"))


def link_cases():
    chain = ((FILE, "second"), ("second", "third"), ("third", TARGET))
    places = {
        "link": {"links": LINK, "real": TARGET},
        "link to another folder": {"links": ((FILE, "a/t.tvd"),), "real": "a/t.tvd"},
        "chain of links": {"links": chain, "real": TARGET},
    }
    cases = []
    for name, place in places.items():
        cases += [Case(name, save, SAVED) for save in saves_of(ALL_OLD, **place)]
        cases += [Case(f"{name}, dangling", save, SAVED) for save in saves_of(None, **place)]
    loop = {"links": ((FILE, "second"), ("second", FILE))}
    nowhere = {"links": ((FILE, "none/t.tvd"),), "real": "none/t.tvd"}
    to_folder = {"links": ((FILE, "a"),), "real": "a/t.tvd"}
    for save in saves_of(ALL_OLD):
        save.old = None
        cases += [
            Case("loop of links", replace(save, **loop), LOOP),
            Case("link to a folder", replace(save, **to_folder), "It is a folder"),
            Case("link to nowhere", replace(save, **nowhere), NOTHING, _remove_folder),
        ]
    return cases
