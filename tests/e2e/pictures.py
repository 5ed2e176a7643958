"""Updates and checks the screenshots in README and in the guide.

A document shows docs/pictures/NAME.png, where NAME is the name of a screenshot of the tour. If
the tour takes several screenshots with the same name, the first one counts.
"""

import glob
import os
import re
import subprocess

ROOT = os.path.normpath(os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", ".."))
FOLDER = os.path.join(ROOT, "docs", "pictures")
DOCUMENTS = ("README.md", os.path.join("docs", "guide.md"))
SHOWN = re.compile(r"!\[[^\]]*\]\((?:docs/)?pictures/([a-z-]+)\.png\)")
NUMBERED = re.compile(r"\d+-(.*)\.png")

# In a window of 400,000 pixels a blinking text cursor covers 13, and a small letter 27.
MOST_DIFFERING = 1 / 20_000
# Colours that differ by less count as equal, as the stored files have a reduced palette.
TOLERANCE = "5%"


def shown():
    """The names of the screenshots that the documents show."""
    names = set()
    for document in DOCUMENTS:
        with open(os.path.join(ROOT, document), encoding="utf-8") as file:
            names.update(SHOWN.findall(file.read()))
    return names


def stored(name):
    """The path of the stored screenshot with this name."""
    return os.path.join(FOLDER, f"{name}.png")


def taken(folder):
    """The paths of the screenshots that a tour has left in a folder, by name."""
    pictures = {}
    for path in sorted(glob.glob(os.path.join(glob.escape(folder), "[0-9][0-9]-*.png"))):
        pictures.setdefault(NUMBERED.fullmatch(os.path.basename(path))[1], path)
    return pictures


def renew(folder):
    """Replaces the stored screenshots by those of a tour, compressed."""
    os.makedirs(FOLDER, exist_ok=True)
    for old in glob.glob(os.path.join(FOLDER, "*.png")):
        os.remove(old)
    pictures = taken(folder)
    for name in sorted(shown()):
        if name not in pictures:
            raise RuntimeError(f'the tour takes no screenshot "{name}"')
        subprocess.run(["convert", pictures[name], "-strip", "+dither", "-colors", "128",
                        "-define", "png:compression-level=9", "-define", "png:exclude-chunks=date",
                        "PNG8:" + stored(name)], check=True)


def complaints(folder):
    """Messages about stored screenshots that differ from those of a tour."""
    pictures = taken(folder)
    found = []
    for name in sorted(shown()):
        difference = ("the tour takes no such screenshot" if name not in pictures
                      else difference_of(stored(name), pictures[name]))
        if difference:
            found.append(f"docs/pictures/{name}.png: {difference}")
    return found


def difference_of(old, new):
    """A message about how two screenshots differ; empty if they are nearly equal."""
    if not os.path.exists(old):
        return "the file is missing"
    sizes = [size_of(path) for path in (old, new)]
    if sizes[0] != sizes[1]:
        return "it has {}x{} pixels and should have {}x{}".format(*sizes[0], *sizes[1])
    compared = subprocess.run(["compare", "-metric", "AE", "-fuzz", TOLERANCE, old, new, "null:"],
                              capture_output=True, text=True, check=False)
    if compared.returncode > 1:
        raise RuntimeError(f"{old} and {new} could not be compared: {compared.stderr}")
    differing = float(compared.stderr)
    if differing <= MOST_DIFFERING * sizes[0][0] * sizes[0][1]:
        return ""
    return f"{differing:.0f} pixels differ, see {new}"


def size_of(picture):
    output = subprocess.run(["identify", "-format", "%w %h", picture], capture_output=True,
                            text=True, check=True)
    return tuple(int(number) for number in output.stdout.split())
