"""Runs Windows programs under Wine."""

import os
import subprocess

HERE = os.path.dirname(os.path.abspath(__file__))
WITH_WINE = os.path.join(HERE, "..", "windows", "with_wine")

# Variables for X11 programs, which a Windows program must not get.
OF_X11 = ("QT_QPA_PLATFORM", "QT_FONT_DPI", "QT_LINUX_ACCESSIBILITY_ALWAYS_ON")

# The default of Windows. With that of Wine, "I" and "!" may be missing in screenshots.
SMOOTH_LETTERS = (r"HKCU\Control Panel\Desktop", "/v", "FontSmoothingType", "/t", "REG_DWORD",
                  "/d", "2", "/f")


def command(disk, *words):
    """The command line that runs wine, or one of its tools, with this folder as its disk."""
    without = [word for name in OF_X11 for word in ("-u", name)]
    return ["env", *without, WITH_WINE, os.path.abspath(disk), *words]


def prepare(disk, log):
    """Creates the disk if it is missing, after ending what an earlier run left running on it."""
    os.makedirs(disk, exist_ok=True)
    end(disk, log)
    for step in (["wineboot", "--init"], ["wine", "reg", "add", *SMOOTH_LETTERS]):
        subprocess.run(command(disk, *step), stdout=log, stderr=log, check=True)


def end(disk, log=None):
    """Ends Wine and all its programs. What it leaves running belongs to the display of its first
    program."""
    subprocess.run(command(disk, "wineserver", "-k"), stderr=log, check=False)
