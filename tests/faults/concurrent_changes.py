"""What another program that asks for no lock may do to a file, and what must come of it."""

import os

from saves import ALL_OLD, LINES, OLD, RECORD, SOURCE, read, record

THEIRS = b"".join(record(f"theirs {number}") for number in range(5))  # longer than ALL_OLD
ELSEWHERE = "elsewhere.tvd"
BACKUP = "backup.tvd"
MOVED = "-moved"
NO_RECORD = b"\r\n" * LINES


def _write(path, content):
    with open(path, "wb") as file:
        file.write(content)


def _replace(path, content):
    _write(path + ".new", content)
    os.rename(path + ".new", path)


def _cut(path, size):
    if not (read(path) or b"").startswith(OLD[0]):
        raise FileNotFoundError("there is no first record to leave")
    os.truncate(path, size)


def vanish(path):
    os.unlink(path)


def replace(path):
    _replace(path, THEIRS)


def replace_by_copy(path):
    with open(path, "rb") as file:
        _replace(path, file.read())


def replace_and_keep(path):
    os.rename(path, os.path.join(os.path.dirname(path), BACKUP))
    _write(path, THEIRS)


def write_anew(path):
    _write(path, THEIRS)


def move_down(path):
    """Writes the file anew in place, with a record above all others."""
    with open(path, "rb") as file:
        content = file.read()
    _write(path, record("theirs 0") + content)


def empty(path):
    os.truncate(path, 0)


def cut(path):
    _cut(path, len(OLD[0]))


def cut_inside(path):
    _cut(path, len(OLD[0]) + len(OLD[1]) // 2)


def become_folder(path):
    os.unlink(path)
    os.mkdir(path)


def become_pipe(path):
    os.unlink(path)
    os.mkfifo(path)


def become_link(path):
    elsewhere = os.path.join(os.path.dirname(path), ELSEWHERE)
    _write(elsewhere, THEIRS)
    os.symlink(ELSEWHERE, path + ".new")
    os.rename(path + ".new", path)


def relink(path):
    """Lets a link lead to another file."""
    become_link(path)


def move_folder(path):
    folder = os.path.dirname(path)
    os.rename(folder, folder + MOVED)


TO_FILE = (
    vanish,
    replace,
    replace_by_copy,
    replace_and_keep,
    write_anew,
    move_down,
    empty,
    cut,
    become_folder,
    become_pipe,
    become_link,
    move_folder,
)
TO_SOURCE = (vanish, replace, empty, cut, cut_inside, become_folder, become_pipe)


def _records(content):
    """The records, and at the end what is left over."""
    lines = content.split(b"\r\n")
    whole = range(0, len(lines) - LINES, LINES)
    records = [b"".join(line + b"\r\n" for line in lines[at : at + LINES]) for at in whole]
    return [*records, content[sum(map(len, records)) :]]


def is_whole(content):
    """Whether there are nothing but whole records."""
    known = {*_records(ALL_OLD), *_records(THEIRS), RECORD, record("another"), NO_RECORD}
    return set(_records(content)) <= known | {b""}


def _kept_by_other_name(path):
    """The old file, where the other program renamed it; None when it did not."""
    folder, name = os.path.split(path)
    backup = read(os.path.join(folder, BACKUP))
    return backup if backup is not None else read(os.path.join(folder + MOVED, name))


def judge_append(save, base, path, code):
    """
    :param base: what the other program left there
    """
    found = set()
    added = save.added
    final = read(path) or b""
    others = (base or b"").removesuffix(added)  # a copy may have been made late
    if not is_whole(final):
        found.add("torn")
    if not final.startswith(others):
        found.add("lost")
    if code == 0 and not final.endswith(added):
        found.add("false")
    if code == 0 and final == others + added + added:
        found.add("twice")
    if code == 1 and final != others:
        found.add("false")
    if (_kept_by_other_name(path) or b"") not in (b"", save.old):
        found.add("altered")
    return found


def _edited(content):
    """With the record in the second place. Places that are not there are made of empty lines."""
    records = _records(content)[:-1]
    records += [NO_RECORD] * (2 - len(records))
    return b"".join([records[0], RECORD, *records[2:]])


def judge_rewrite(base, path, code):
    """Either what the other program left is there, or that with the change."""
    found = set()
    final = read(path) or b""
    base = base or b""
    if not is_whole(final):
        found.add("torn")
    allowed = {0: {_edited(base)}, 1: {base}}
    if base in (b"", ALL_OLD):
        allowed[0].add(_edited(ALL_OLD))
    if code in allowed and final not in allowed[code]:
        found.add("false" if code == 1 or final == base else "lost")
    return found


def judge_source(save, left, folder, code):
    """
    :param left: what the other program left of the source; None when it is no file any more
    """
    found = set()
    content = save.content(folder) or b""
    added = content.removeprefix(save.old or b"")
    changed = (left or b"").removeprefix(OLD[1] if save.operation == "stipulations" else b"")
    if not is_whole(content):
        found.add("torn")
    if not content.startswith(save.old or b""):
        found.add("lost")
    if code == 0 and added != save.added and (left is None or added != changed):
        found.add("false")
    if code == 1 and save.content(folder) != save.old:
        found.add("false")
    if read(os.path.join(folder, SOURCE)) != left:
        found.add("altered")
    return found
