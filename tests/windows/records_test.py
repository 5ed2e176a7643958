#!/usr/bin/env python3
"""Runs the Windows program tarvold-records under Wine: its checks must tell what those of the program
for the build machine tell, and its window must open and close.

    records_test.py DISK PROGRAM PROGRAM_HERE EXAMPLES

Wine has the folder DISK as its disk.
"""

import glob
import os
import shutil
import subprocess
import sys
import tempfile
import unittest

from window import OnOwnDisplay, Shown, plain_environment, run

FILE = "normreports.tvd"


class Records(OnOwnDisplay):
    program = here = examples = ""

    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.folder = scratch.name
        for file in glob.glob(self.examples + "/*.tvd"):
            shutil.copy(file, self.folder)

    def change(self, change, name=FILE):
        """Changes the lines of the example by a function and writes them to a file."""
        with open(os.path.join(self.folder, FILE), "rb") as file:
            lines = file.read().split(b"\r\n")
        change(lines)
        with open(os.path.join(self.folder, name), "wb") as file:
            file.write(b"\r\n".join(lines))

    def check_both(self, *arguments):
        """The exit status and the output, both of which both programs must agree about."""
        command = ["--check", *arguments]
        there = run(self.disk, self.program, *command, folder=self.folder)
        here = subprocess.run([self.here, *command], cwd=self.folder, env=plain_environment(),
                              capture_output=True, check=False)
        self.assertEqual(told(there), told(here))
        return there.returncode, there.stdout.decode(), there.stderr.decode()

    def test_finds_nothing_in_the_examples(self):
        names = sorted(os.listdir(self.folder))
        self.assertEqual(len(names), 6)
        self.assertEqual(self.check_both(*names), (0, "", ""))

    def test_finds_what_is_wrong(self):
        self.change(lambda lines: lines.pop(14))
        status, output, errors = self.check_both(FILE, "turnreports.tvd")
        self.assertEqual((status, errors), (1, ""))
        self.assertTrue(output.startswith(FILE + ":15: "), output)

    def test_writes_utf_8(self):
        def change(lines):
            lines[14] = "Größe".encode("cp1252")
        self.change(change, "grün.tvd")
        status, output, _ = self.check_both("--kind", "normal", "grün.tvd")
        self.assertEqual(status, 1)
        self.assertTrue(output.startswith("grün.tvd:15: "), output)
        self.assertIn("Größe", output)

    def test_says_which_file_cannot_be_read(self):
        status, output, errors = self.check_both("missing.tvd", FILE)
        self.assertEqual((status, output), (2, ""))
        self.assertTrue(errors.startswith("tarvold-records: missing.tvd: "), errors)

    def test_opens_a_window_that_can_be_closed(self):
        with Shown(self.disk, f"{FILE} - Tarvold Data Editor", self.program, FILE,
                   folder=self.folder) as shown:
            self.assertEqual(shown.close(), 0)


def told(done):
    return done.returncode, done.stdout.splitlines(), done.stderr.splitlines()


if __name__ == "__main__":
    Records.disk, Records.program, Records.here, Records.examples = map(os.path.abspath,
                                                                        sys.argv[1:5])
    del sys.argv[1:5]
    unittest.main()
