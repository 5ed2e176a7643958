#!/usr/bin/env python3
"""Fills the table of docs/look.md with the measurements of look_test.

    table.py DOCUMENT FIGURES...

FIGURES are the files look-*.tsv of the build folder. The worst measurements count, so give all of
them.
"""

import pathlib
import sys

HEAD = "| What | Asked | Light | Dark | Worst at |\n|---|---|---|---|---|\n"


def worst_figures(files):
    """By sort, then palette: the lowest measurement, the minimum asked, and where it was."""
    worst = {}
    for file in files:
        run = file.stem.removeprefix("look-")
        for line in file.read_text().splitlines():
            sort, palette, asked, measured, _, place = line.split("\t")
            figure = (float(measured), asked, f"{place}, {palette}, {run}")
            palettes = worst.setdefault(sort, {})
            palettes[palette] = min(palettes.get(palette, figure), figure)
    return worst


def row(sort, palettes):
    _, asked, place = min(palettes.values())
    cells = [f"{palettes[name][0]:.2f}" if name in palettes else "-" for name in ("light", "dark")]
    return f"| {sort} | {asked} | {cells[0]} | {cells[1]} | {place} |\n"


def main():
    document = pathlib.Path(sys.argv[1])
    worst = worst_figures([pathlib.Path(name) for name in sys.argv[2:]])
    before, after = document.read_text().split(HEAD)
    rest = after[after.index("\n\n"):] if "\n\n" in after else "\n"
    rows = "".join(row(sort, worst[sort]) for sort in sorted(worst))
    document.write_text(before + HEAD + rows.rstrip("\n") + rest)


if __name__ == "__main__":
    main()
