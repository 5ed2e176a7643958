"""Runs programs for Windows under Wine."""

import os
import subprocess

# What the tour tells a program for X11 of where and how it shows its windows.
OF_X11 = ("QT_QPA_PLATFORM", "QT_FONT_DPI", "QT_LINUX_ACCESSIBILITY_ALWAYS_ON")


def command(prefix, *words):
    """Runs a program on the disk that the folder holds, as the process that this command becomes."""
    without = [word for name in OF_X11 for word in ("-u", name)]
    # Programs of .NET and browsers, which nobody here has, would be offered for download.
    return ["env", *without, f"WINEPREFIX={os.path.abspath(prefix)}", "WINEDEBUG=-all",
            "WINEDLLOVERRIDES=mscoree,mshtml=", *program]


def prepare(prefix, log):
    """Makes the disk, if there is none yet, and ends what another display left running on it."""
    os.makedirs(prefix, exist_ok=True)
    for step in (["wineserver", "-k"], ["wineboot", "--init"], ["wineserver", "-w"]):
        subprocess.run(command(prefix, *step), stdout=log, stderr=log, check=step[1] != "-k")
