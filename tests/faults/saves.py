"""The saves that the fault tests perform: what lies in the folder before and after each."""

import os
import struct
import tempfile
import time
from dataclasses import dataclass
from typing import Optional

LINES = 19
MODE = 0o640
FILE = "data.tvd"
TARGET = "target.tvd"
SOURCE = "source.tvd"
LONG_AGO = 1_000_000_000_000_000_000  # when the source was last changed, in nanoseconds

LINK = ((FILE, TARGET),)

OWNER, GROUP, READER = 4321, 1234, 65534
ACCESS_LIST = "system.posix_acl_access"
NOTE = "user.note"
_NOBODY_NAMED = 0xFFFFFFFF
# The owner may read and write, and one other user read, but the group nothing: were the list lost,
# the mode would let the group read.
_ENTRIES = ((1, 6, _NOBODY_NAMED), (2, 4, READER), (4, 0, _NOBODY_NAMED), (16, 4, _NOBODY_NAMED))
LIST = struct.pack("<I", 2) + b"".join(
    struct.pack("<HHI", *entry) for entry in (*_ENTRIES, (32, 0, _NOBODY_NAMED))
)


def record(name):
    """A record of 19 lines, one of them with bytes that are no UTF-8."""
    lines = [f"{name} line {number}".encode() for number in range(1, LINES)] + [b"caf\xe9 \x80\xff"]
    return b"".join(line + b"\r\n" for line in lines)


OLD = [record(name) for name in ("first", "second", "third")]
RECORD = record("edited, with a longer text,")


def read(path):
    """The bytes of a file, or None when the path leads to no file."""
    if not os.path.isfile(path):
        return None  # a pipe would be waited for
    try:
        with open(path, "rb") as file:
            return file.read()
    except OSError:
        return None


def settle():
    """Waits until nothing counts as changed just now: an import reads such a target twice."""
    time.sleep(0.05)


def attributes_of(path):
    """The extended attributes of a file."""
    return {name: os.getxattr(path, name) for name in os.listxattr(path)}


def give_away(path):
    """Makes a file that of another user, with an access control list and a note."""
    os.chown(path, OWNER, GROUP)
    os.setxattr(path, ACCESS_LIST, LIST)
    os.setxattr(path, NOTE, b"by hand")


def can_give_away():
    """Whether this user and the file system of temporary files allow that."""
    with tempfile.NamedTemporaryFile() as file:
        try:
            give_away(file.name)
        except OSError:
            return False
    return True


@dataclass
class Save:
    """One save of the probe on one kind of file."""

    name: str
    operation: str
    old: Optional[bytes]
    new: bytes
    links: tuple = ()  # (name, target) of each symbolic link
    real: str = FILE  # the file that the saved name means, links followed
    source: Optional[bytes] = None  # what is imported
    record: bytes = RECORD
    is_foreign: bool = False  # the file was given away
    is_named: bool = False  # the system makes no file without a name

    @property
    def is_rewrite(self):
        return self.operation == "rewrite"

    @property
    def added(self):
        """What the save adds at the end, unless it rewrites."""
        return self.new[len(self.old or b"") :]

    @property
    def may_leave_copy(self):
        """A killed one may leave a temporary file beside the data file."""
        return self.is_rewrite

    def _real(self, folder):
        return os.path.join(folder, self.real)

    def prepare(self, folder):
        os.makedirs(os.path.dirname(self._real(folder)), exist_ok=True)
        if self.old is not None:
            with open(self._real(folder), "wb") as file:
                file.write(self.old)
            os.chmod(self._real(folder), MODE)
            if self.is_foreign:
                give_away(self._real(folder))
        for name, target in self.links:
            os.symlink(target, os.path.join(folder, name))
        if self.source is not None:
            path = os.path.join(folder, SOURCE)
            with open(path, "wb") as file:
                file.write(self.source)
            os.utime(path, ns=(LONG_AGO, LONG_AGO))

    def command(self, probe, scratch):
        """The probe's command line; a record lies outside of the data file's folder."""
        folder = os.path.join(scratch, "folder")
        path = os.path.join(folder, SOURCE)
        if self.source is None:
            path = os.path.join(scratch, "record")
            with open(path, "wb") as file:
                file.write(self.record)
        return [probe, self.operation, os.path.join(folder, FILE), path]

    def content(self, folder):
        return read(self._real(folder))

    def is_old(self, content, run):
        """A killed append to a missing file may leave it there, without any record."""
        return content == self.old or (self.old is None and run.code != 1 and content == b"")

    def keeps_records(self, content):
        """Whether the records that the save does not touch are all there."""
        if not self.old:
            return True
        if not self.is_rewrite:
            return content is not None and content.startswith(self.old)
        rest = self.old[len(OLD[0] + OLD[1]) :]
        return content is not None and content.startswith(OLD[0]) and content.endswith(rest)

    def is_altered(self, folder):
        """Whether a link, the file's mode or anything of the source is not as it was."""
        for name, target in self.links:
            path = os.path.join(folder, name)
            if not os.path.islink(path) or os.readlink(path) != target:
                return True
        if self.source is not None:
            path = os.path.join(folder, SOURCE)
            if read(path) != self.source or os.stat(path).st_mtime_ns != LONG_AGO:
                return True
        real = self._real(folder)
        if self.old is None or not os.path.exists(real):
            return False
        lost_note = self.is_foreign and attributes_of(real).get(NOTE) != b"by hand"
        return lost_note or not self._has_permissions(real)

    def _has_permissions(self, path):
        """Whether a file has the owner, group, mode and access list that the old one has."""
        state = os.stat(path)
        if state.st_mode & 0o7777 != MODE:
            return False
        if not self.is_foreign:
            return True
        is_owned = (state.st_uid, state.st_gid) == (OWNER, GROUP)
        return is_owned and attributes_of(path).get(ACCESS_LIST) == LIST

    def is_exposed(self, folder):
        """Whether a temporary file lets anybody but its owner do what the old one may not let him."""
        strays = [os.path.join(folder, name) for name in self.strays(folder)]
        return any(
            os.stat(path).st_mode & 0o077 and not self._has_permissions(path) for path in strays
        )

    def strays(self, folder):
        """The files and links that belong to nothing here."""
        known = {self.real, SOURCE, *(name for name, _ in self.links)}
        found = set()
        for place, _, names in os.walk(folder):
            found.update(os.path.relpath(os.path.join(place, name), folder) for name in names)
        return found - known


ALL_OLD = b"".join(OLD)
REWRITTEN = OLD[0] + RECORD + OLD[2]
INTERVIEWS = RECORD + record("another")
STIPULATIONS = OLD[1] + INTERVIEWS  # the first one is in the target already

SAVES = {
    "append": [
        Save("append to a file", "append", ALL_OLD, ALL_OLD + RECORD),
        Save("append to a missing file", "append", None, RECORD),
        Save("append through a link", "append", ALL_OLD, ALL_OLD + RECORD, LINK, TARGET),
    ],
    "rewrite": [
        Save("rewrite", "rewrite", ALL_OLD, REWRITTEN),
        Save("rewrite through a link", "rewrite", ALL_OLD, REWRITTEN, LINK, TARGET),
    ],
    "records": [
        Save("save of the records window", "rewrite", ALL_OLD, REWRITTEN),
        Save("save of the records window through a link", "rewrite", ALL_OLD, REWRITTEN, LINK, TARGET),
    ],
    "import": [
        Save(
            "import of stipulations",
            "stipulations",
            ALL_OLD,
            ALL_OLD + INTERVIEWS,
            source=STIPULATIONS,
        ),
        Save(
            "import of interviews",
            "interviews",
            ALL_OLD,
            ALL_OLD + INTERVIEWS,
            source=INTERVIEWS,
        ),
        Save(
            "import into a missing file",
            "interviews",
            None,
            INTERVIEWS,
            source=INTERVIEWS,
        ),
    ],
}

# A file with all that one can have beside its content.
FOREIGN = [
    Save("rewrite of another's file", "rewrite", ALL_OLD, REWRITTEN, is_foreign=True),
    Save(
        "rewrite of another's file, by one that has a name from the start",
        "rewrite",
        ALL_OLD,
        REWRITTEN,
        is_foreign=True,
        is_named=True,
    ),
]
