#!/usr/bin/env python3
"""Checks that the PNG files of the icon match its SVG file.

    icons_test.py packaging/icons
"""

import glob
import os
import subprocess
import sys
import tempfile
import unittest


class Icons(unittest.TestCase):
    folder = ""

    def test_png_files_match_the_svg_file(self):
        names = sorted(os.path.basename(each) for each in glob.glob(self.folder + "/*.png"))
        self.assertEqual(len(names), 3)
        with tempfile.TemporaryDirectory() as fresh:
            subprocess.run([os.path.join(self.folder, "render"), fresh], check=True)
            self.assertEqual(names, sorted(os.listdir(fresh)))
            for name in names:
                self.assertEqual(self.differing(name, fresh), 0, f"{name}: run {self.folder}/render")

    def differing(self, name, fresh):
        """The number of pixels that differ by more than rounding errors of a renderer."""
        compared = subprocess.run(["compare", "-metric", "AE", "-fuzz", "2%",
                                   os.path.join(self.folder, name), os.path.join(fresh, name),
                                   "null:"], capture_output=True, text=True, check=False)
        self.assertIn(compared.returncode, (0, 1), compared.stderr)
        return float(compared.stderr)


if __name__ == "__main__":
    Icons.folder = sys.argv.pop()
    unittest.main()
