#!/usr/bin/env python3
"""Tests the check that keeps unknown libraries out of the programs for all Linux systems.

    libraries_test.py FOLDER VERSION
"""

import os
import subprocess
import sys
import tempfile
import unittest

ROOT = os.path.normpath(os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", ".."))
PACKAGING = os.path.join(ROOT, "packaging", "linux")
LIST = os.path.join(PACKAGING, "libraries.txt")


def check(listed, *programs):
    return subprocess.run([os.path.join(PACKAGING, "check_libraries"), listed, *programs],
                          check=False, capture_output=True, text=True)


class Libraries(unittest.TestCase):
    folder = ""

    def program(self):
        return os.path.join(self.folder, "tarvold-editor")

    def test_are_only_those_in_the_list(self):
        done = check(LIST, self.program(), os.path.join(self.folder, "tarvold-records"))
        self.assertEqual((done.returncode, done.stderr), (0, ""))

    def test_outside_the_list_fail_the_build(self):
        with open(LIST, encoding="utf-8") as listed:
            lines = [line for line in listed if not line.startswith("libfontconfig")]
        with tempfile.NamedTemporaryFile("w", suffix=".txt") as shorter:
            shorter.writelines(lines)
            shorter.flush()
            done = check(shorter.name, self.program())
        self.assertNotEqual(done.returncode, 0)
        self.assertIn("needs libfontconfig.so.1, which is not in the list", done.stderr)

    def test_in_the_list_are_all_needed_and_have_a_reason(self):
        needed = subprocess.run(["readelf", "-d", "-V", "-W", self.program()], check=True,
                                capture_output=True, text=True).stdout
        with open(LIST, encoding="utf-8") as listed:
            for line in (line for line in listed if not line.startswith("#")):
                library, reason = line.split(None, 1)
                self.assertIn(library, needed)
                self.assertGreater(len(reason.split()), 3, line)

    def test_of_x_are_in_the_program(self):
        """They are what many systems lack."""
        map_file = os.path.join(self.folder, "packaging", "linux", "tarvold-editor.map")
        with open(map_file, encoding="utf-8") as file:
            linked = file.read()
        for library in ("libxcb.a", "libxcb-icccm.a", "libxcb-xkb.a", "libxkbcommon-x11.a"):
            self.assertIn(library, linked)


if __name__ == "__main__":
    sys.argv.pop()
    Libraries.folder = sys.argv.pop()
    unittest.main()
