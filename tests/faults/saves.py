"""The saves that the fault tests perform: what lies in the folder before and after each."""

import os

LINES = 19
MODE = 0o640
FILE = "data.tvd"
TARGET = "target.tvd"


def record(name):
    """A record of 19 lines, one of them with bytes that are no UTF-8."""
    lines = [f"{name} line {number}".encode() for number in range(1, LINES)] + [b"caf\xe9 \x80\xff"]
    return b"".join(line + b"\r\n" for line in lines)


OLD = [record(name) for name in ("first", "second", "third")]
RECORD = record("edited, with a longer text,")


def read(path):
    """The bytes of a file, or None when there is none."""
    try:
        with open(path, "rb") as file:
            return file.read()
    except FileNotFoundError:
        return None


class Save:
    """One save of the probe on one kind of file."""

    def __init__(self, name, operation, old, new, through_link=False):
        self.name = name
        self.operation = operation
        self.old = old
        self.new = new
        self.through_link = through_link
        # A killed one may leave a temporary file beside the data file.
        self.may_leave_copy = operation == "rewrite"

    def _real(self, folder):
        return os.path.join(folder, TARGET if self.through_link else FILE)

    def prepare(self, folder):
        if self.old is not None:
            with open(self._real(folder), "wb") as file:
                file.write(self.old)
            os.chmod(self._real(folder), MODE)
        if self.through_link:
            os.symlink(TARGET, os.path.join(folder, FILE))

    def command(self, probe, scratch):
        """The probe's command line; the record lies outside of the data file's folder."""
        path = os.path.join(scratch, "record")
        with open(path, "wb") as file:
            file.write(RECORD)
        return [probe, self.operation, os.path.join(scratch, "folder", FILE), path]

    def content(self, folder):
        return read(self._real(folder))

    def is_old(self, content, run):
        """A killed append to a missing file may leave it there, without any record."""
        return content == self.old or (self.old is None and run.code != 1 and content == b"")

    def keeps_records(self, content):
        """Whether the records that the save does not touch are all there."""
        if self.operation == "append":
            return content is not None and content.startswith(self.old)
        return content is not None and content.startswith(OLD[0]) and content.endswith(OLD[2])

    def is_altered(self, folder):
        """Whether the link is no link any more or the file's mode is another one."""
        if self.through_link and not os.path.islink(os.path.join(folder, FILE)):
            return True
        real = self._real(folder)
        return (
            self.old is not None
            and os.path.exists(real)
            and os.stat(real).st_mode & 0o7777 != MODE
        )

    def strays(self, folder):
        return set(os.listdir(folder)) - {FILE, os.path.basename(self._real(folder))}


ALL_OLD = b"".join(OLD)
REWRITTEN = OLD[0] + RECORD + OLD[2]

SAVES = {
    "append": [
        Save("append to a file", "append", ALL_OLD, ALL_OLD + RECORD),
        Save("append to a missing file", "append", None, RECORD),
        Save("append through a link", "append", ALL_OLD, ALL_OLD + RECORD, through_link=True),
    ],
    "rewrite": [
        Save("rewrite", "rewrite", ALL_OLD, REWRITTEN),
        Save("rewrite through a link", "rewrite", ALL_OLD, REWRITTEN, through_link=True),
    ],
}
