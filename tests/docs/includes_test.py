#!/usr/bin/python3
"""Checks that every source folder includes only itself and the folders that it builds on.

Usage: includes_test.py SOURCES
"""

import os
import re
import sys

# The folders that each may include besides itself. The files at the root may include all.
ALLOWED = {
    "disk": [],
    "datafiles": ["disk"],
    "controls": [],
    "screens": ["controls", "datafiles", "disk"],
    "endings": ["screens", "controls", "datafiles", "disk"],
    "segments": ["screens", "controls", "datafiles", "disk"],
    "stipulations": ["screens", "controls", "datafiles", "disk"],
    "import": ["screens", "controls", "datafiles", "disk"],
    "records": ["endings", "segments", "stipulations", "import", "screens", "controls", "datafiles", "disk"],
}
# Those without windows link only Qt Core.
WITHOUT_WINDOWS = ("disk", "datafiles")
INCLUDE = re.compile(r'^#include "([a-z]+)/', re.MULTILINE)
WINDOW = re.compile(r"^#include <(QtWidgets|QtGui|Q(Widget|Application|Dialog|Label|LineEdit|ComboBox)\b)",
                    re.MULTILINE)


def complaints(sources):
    for place, _, names in os.walk(sources):
        folder = os.path.relpath(place, sources).split(os.sep)[0]
        if folder == ".":
            continue
        for name in names:
            if not name.endswith((".h", ".cpp")):
                continue
            if folder not in ALLOWED:
                yield f"{os.path.join(place, name)} is in a folder missing from the list"
                continue
            with open(os.path.join(place, name), encoding="utf-8") as file:
                text = file.read()
            for included in set(INCLUDE.findall(text)) - {folder, *ALLOWED[folder]}:
                yield f"{os.path.join(place, name)} includes {included}/"
            if folder in WITHOUT_WINDOWS and WINDOW.search(text):
                yield f"{os.path.join(place, name)} includes a header for windows"


found = list(complaints(sys.argv[1]))
print("\n".join(found) or "Every include is allowed.")
sys.exit(bool(found))
