"""Runs programs for Windows under Wine."""

import os
import subprocess

HERE = os.path.dirname(os.path.abspath(__file__))
WITH_WINE = os.path.join(HERE, "..", "windows", "with_wine")

# What the tour tells a program for X11 of where and how it shows its windows.
OF_X11 = ("QT_QPA_PLATFORM", "QT_FONT_DPI", "QT_LINUX_ACCESSIBILITY_ALWAYS_ON")

# As Windows has it. With what Wine has, "I" and "!" may be missing in the pictures.
SMOOTH_LETTERS = (r"HKCU\Control Panel\Desktop", "/v", "FontSmoothingType", "/t", "REG_DWORD",
                  "/d", "2", "/f")


def command(disk, *words):
    """What runs wine, or a command that comes with it, with this folder for a disk."""
    without = [word for name in OF_X11 for word in ("-u", name)]
    return ["env", *without, WITH_WINE, os.path.abspath(disk), *words]


def prepare(disk, log):
    """Makes the disk if there is none yet, after ending what another display left running on it."""
    os.makedirs(disk, exist_ok=True)
    subprocess.run(command(disk, "wineserver", "-k"), stderr=log, check=False)
    for step in (["wineboot", "--init"], ["wine", "reg", "add", *SMOOTH_LETTERS]):
        subprocess.run(command(disk, *step), stdout=log, stderr=log, check=True)
