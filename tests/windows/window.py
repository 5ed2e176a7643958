"""Runs Windows programs under Wine, those with windows on a display of their own."""

import os
import subprocess
import sys
import time
import unittest

sys.path.append(os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "e2e"))
import wine  # noqa: E402
from desktop import Desktop, plain_environment  # noqa: E402

TIMEOUT = 120


def run(disk, *words, folder):
    """Runs a program in a folder to its end; its output is in the result."""
    return subprocess.run(wine.command(disk, "wine", *words), cwd=folder, env=plain_environment(),
                          capture_output=True, check=False, timeout=TIMEOUT)


class OnOwnDisplay(unittest.TestCase):
    """Tests with a display of their own, on which alone Wine runs."""

    disk = ""

    @classmethod
    def setUpClass(cls):
        wine.end(cls.disk)
        cls.enterClassContext(Desktop(subprocess.DEVNULL))
        cls.addClassCleanup(wine.end, cls.disk)


class Shown:
    """A context manager: a program whose window with this title is there inside the `with` block.
    After that Wine ends, and with it the program and its window."""

    def __init__(self, disk, title, *words, folder):
        self._disk = disk
        self._title = title
        self._command = wine.command(disk, "wine", *words)
        self._folder = folder

    def __enter__(self):
        self._process = subprocess.Popen(self._command, cwd=self._folder, env=plain_environment(),
                                         stderr=subprocess.DEVNULL)
        try:
            self._window = self._wait_window()
        except BaseException:
            self.__exit__()
            raise
        return self

    def close(self):
        """Closes the window as its user does, and waits for the exit status of the program."""
        self._wait("the window to become active", lambda: xdotool("getactivewindow") == self._window)
        xdotool("key", "alt+F4")
        return self._process.wait(TIMEOUT)

    def _wait_window(self):
        return self._wait(f'a window "{self._title}"', lambda: xdotool(
            "search", "--onlyvisible", "--name", f"^{self._title}$"))

    def _wait(self, what, condition):
        end = time.monotonic() + TIMEOUT
        while time.monotonic() < end:
            if found := condition():
                return found
            if self._process.poll() is not None:
                raise RuntimeError(f"the program ended with status {self._process.returncode}")
            time.sleep(0.05)
        raise RuntimeError(f"waited in vain for {what}")

    def __exit__(self, *_):
        wine.end(self._disk)
        self._process.wait(TIMEOUT)


def xdotool(*words):
    """The first line that it prints; it fails while there is no such window."""
    done = subprocess.run(["xdotool", *words], capture_output=True, text=True, check=False)
    return next(iter(done.stdout.splitlines()), "")
