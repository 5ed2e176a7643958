"""Traces the program's system calls, and reports those that it must not make.

The program may use the display, read what Qt reads, and write data files. It must not open network
connections, start processes or write other files.
"""

import os
import re
import time

CALL = re.compile(r"(\d+) +(\w+)\((.*)")
END = re.compile(r"(\d+) +\+\+\+ (?:exited|killed)")
WRITING = re.compile(r"O_(?:WRONLY|RDWR|CREAT|TRUNC|APPEND)")
QUOTED = re.compile(r'"([^"]*)"')
DATA_FILE = re.compile(r"[^/]*\.tvd")
TEMPORARY_FILE = re.compile(r"[^/]*\.tvd\.[0-9a-z]{6}")
UNNAMED_FILE = re.compile(r"/proc/self/fd/\d+")
ELSEWHERE = re.compile(r'(?:^|, )\d+, "[^/]')  # a path relative to an open folder
UNFINISHED = re.compile(r"(\d+) +(.*) <unfinished \.\.\.>")
RESUMED = re.compile(r"(\d+) +<\.\.\. \w+ resumed>(.*)")
FLUSH_SECONDS = 30


class Folder:
    """The folder in which the program was started."""

    def __init__(self, path):
        self._path = os.path.realpath(path)

    def is_same(self, path):
        return os.path.join(self._path, path) == self._path

    def holds(self, path, name):
        folder, base = os.path.split(os.path.join(self._path, path))
        return folder == self._path and name.fullmatch(base) is not None


def may_open(folder, arguments):
    if not WRITING.search(arguments):
        return True
    path = QUOTED.search(arguments)
    if path is None:
        return False
    path = path[1]
    if "O_TMPFILE" in arguments:
        return folder.is_same(path)
    return folder.holds(path, DATA_FILE)


def both(arguments):
    """The two paths of a call; empty if the tracer could not read them."""
    return (QUOTED.findall(arguments) + ["", ""])[:2]


def may_link(folder, arguments):
    source, target = both(arguments)
    is_unnamed = UNNAMED_FILE.fullmatch(source) is not None
    return is_unnamed and folder.holds(target, TEMPORARY_FILE)


def may_rename(folder, arguments):
    source, target = both(arguments)
    return folder.holds(source, TEMPORARY_FILE) and folder.holds(target, DATA_FILE)


def may_connect(_, arguments):
    return arguments.startswith("AF_UNIX")  # the display and the accessibility bus


def may_start(_, arguments):
    return "CLONE_THREAD" in arguments


def may_ask_for_folder(_, arguments):
    return "EEXIST" in arguments  # how Qt checks that the runtime folder exists


def never(*_):
    return False


# The rule for each traced call. Calls on open files are not traced: they reach nothing that was not
# opened, and using the display takes a million of them.
RULES = {
    **dict.fromkeys(("open", "openat"), may_open),
    **dict.fromkeys(("link", "linkat"), may_link),
    **dict.fromkeys(("rename", "renameat", "renameat2"), may_rename),
    **dict.fromkeys(("socket", "socketpair"), may_connect),
    **dict.fromkeys(("clone", "clone3"), may_start),
    **dict.fromkeys(("mkdir", "mkdirat"), may_ask_for_folder),
    **dict.fromkeys(
        ("creat", "openat2", "open_by_handle_at", "io_uring_setup", "truncate", "unlink",
         "unlinkat", "rmdir", "symlink", "symlinkat", "mknod", "mknodat",
         "chmod", "fchmodat", "chown", "utime", "utimes", "futimesat", "lchown", "fchownat", "utimensat", "setxattr", "lsetxattr",
         "chdir", "fchdir", "chroot", "mount", "fork", "vfork", "execve", "execveat", "kill",
         "tkill", "ptrace", "process_vm_writev", "bind", "listen"),
        never),
}


def command(trace, program):
    """The command line that runs the program as a direct child and writes its calls to a file."""
    return ["strace", "-D", "-f", "--seccomp-bpf", "-s", "4096", "-e", "signal=none",
            "-e", "trace=" + ",".join("?" + call for call in RULES), "-o", trace, program]


def lines_of(trace):
    """The lines of a trace; waits until the tracer has reported the end of the program."""
    deadline = time.monotonic() + FLUSH_SECONDS
    while time.monotonic() < deadline:
        with open(trace, encoding="utf-8", errors="replace") as file:
            lines = file.read().splitlines()
        end = END.match(lines[-1]) if lines else None
        if end and end[1] == CALL.match(lines[0])[1]:
            return lines
        time.sleep(0.1)
    raise RuntimeError(f"{trace} does not report the end of the program")


def whole(lines):
    """The lines, with interrupted calls joined."""
    begun = {}
    for line in lines:
        unfinished, resumed = UNFINISHED.match(line), RESUMED.match(line)
        if unfinished:
            begun[unfinished[1]] = line[: unfinished.end(2)]
        elif resumed and resumed[1] in begun:
            yield begun.pop(resumed[1]) + resumed[2]
        else:
            yield line
    yield from begun.values()


def complaints(lines, folder):
    """The forbidden calls. The first line is the start of the program."""
    folder = Folder(folder)
    calls = [CALL.match(line) for line in whole(lines[1:])]
    return [call[0] for call in calls
            if call and (ELSEWHERE.search(call[3]) or not RULES[call[2]](folder, call[3]))]


def data_files(lines):
    """The names of the data files that were opened for writing."""
    opened = [line for line in lines if " openat(" in line and WRITING.search(line)]
    return {os.path.basename(QUOTED.search(line)[1]) for line in opened}
