#!/usr/bin/python3
"""Runs a program on a private virtual display with an accessibility bus.

Usage: on_desktop.py LOG PROGRAM [ARGUMENT...]

Ends with the exit status of the program. What the desktop itself reports goes to the file LOG.
"""

import subprocess
import sys

from desktop import Desktop, plain_environment
from things import Atspi


def main():
    path, *command = sys.argv[1:]
    with open(path, "w", encoding="utf-8") as log, Desktop(log):
        Atspi.init()  # starts the accessibility bus, which the program needs at startup
        sys.exit(subprocess.run(command, env=plain_environment(), check=False).returncode)


if __name__ == "__main__":
    main()
