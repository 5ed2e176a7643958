"""The pictures in README and in the guide: the tour takes them, renews them and checks them.

A document shows docs/pictures/NAME.png, and NAME is what the tour calls that picture. Where the
tour takes several of one name, the first counts.
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

# In a window of 400,000 pixels a text cursor, which blinks, covers 13, and a small letter 27.
MOST_DIFFERING = 1 / 20_000
# Two colours that are this much alike count as the same: stored pictures have a palette.
ALIKE = "5%"


def shown():
    """The names of the pictures that the documents show."""
    names = set()
    for document in DOCUMENTS:
        with open(os.path.join(ROOT, document), encoding="utf-8") as file:
            names.update(SHOWN.findall(file.read()))
    return names


def stored(name):
    """Where the picture of this name is kept."""
    return os.path.join(FOLDER, f"{name}.png")


def taken(folder):
    """The pictures that a tour left in a folder, by name."""
    pictures = {}
    for path in sorted(glob.glob(os.path.join(glob.escape(folder), "[0-9][0-9]-*.png"))):
        pictures.setdefault(NUMBERED.fullmatch(os.path.basename(path))[1], path)
    return pictures


def renew(folder):
    """Replaces the documents' pictures by those of a tour, made as small as goes."""
    os.makedirs(FOLDER, exist_ok=True)
    for old in glob.glob(os.path.join(FOLDER, "*.png")):
        os.remove(old)
    pictures = taken(folder)
    for name in sorted(shown()):
        if name not in pictures:
            raise RuntimeError(f'the tour takes no picture "{name}"')
        subprocess.run(["convert", pictures[name], "-strip", "+dither", "-colors", "128",
                        "-define", "png:compression-level=9", "-define", "png:exclude-chunks=date",
                        "PNG8:" + stored(name)], check=True)


def complaints(folder):
    """What is out of date in the documents' pictures, held against those of a tour."""
    pictures = taken(folder)
    found = []
    for name in sorted(shown()):
        difference = ("the tour takes no such picture" if name not in pictures
                      else difference_of(stored(name), pictures[name]))
        if difference:
            found.append(f"docs/pictures/{name}.png: {difference}")
    return found


def difference_of(old, new):
    """Tells in what two pictures differ; nothing if they are as good as the same."""
    if not os.path.exists(old):
        return "there is no such file"
    sizes = [size_of(path) for path in (old, new)]
    if sizes[0] != sizes[1]:
        return "it has {}x{} pixels and should have {}x{}".format(*sizes[0], *sizes[1])
    compared = subprocess.run(["compare", "-metric", "AE", "-fuzz", ALIKE, old, new, "null:"],
                              capture_output=True, text=True, check=False)
    if compared.returncode > 1:
        raise RuntimeError(f"{old} and {new} could not be compared: {compared.stderr}")
    differing = float(compared.stderr)
    if differing <= MOST_DIFFERING * sizes[0][0] * sizes[0][1]:
        return ""
    return f"{differing:.0f} pixels are no longer so, see {new}"


def size_of(picture):
    told = subprocess.run(["identify", "-format", "%w %h", picture], capture_output=True,
                          text=True, check=True)
    return tuple(int(number) for number in told.stdout.split())
