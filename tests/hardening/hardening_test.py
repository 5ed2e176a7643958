#!/usr/bin/env python3
"""Looks whether a built program has what makes a bug in it hard to exploit.

    hardening_test.py PROGRAM

What compiler and linker were asked for says little: one flag that is lost on the way, and nothing
tells. So this reads the program itself.
"""

import subprocess
import sys
import unittest


class Hardening(unittest.TestCase):
    program = ""

    def read(self, *what):
        return subprocess.run(["readelf", "-W", *what, self.program], check=True,
                              capture_output=True, text=True).stdout

    def segment(self, name):
        """The columns of a program header."""
        lines = [line.split() for line in self.read("-l").splitlines()]
        found = [line for line in lines if line and line[0] == name]
        self.assertEqual(len(found), 1, name)
        return found[0]

    def test_is_loaded_at_a_random_address(self):
        self.assertRegex(self.read("-h"), r"Type: +DYN \(Position-Independent Executable file\)")

    def test_links_everything_at_once_and_locks_the_tables(self):
        self.segment("GNU_RELRO")
        self.assertRegex(self.read("-d"), r"\(FLAGS_1\) +Flags:.*\bNOW\b.*\bPIE\b")

    def test_has_no_stack_that_runs(self):
        self.assertEqual(self.segment("GNU_STACK")[6:-1], ["RW"])

    def test_guards_its_stack(self):
        self.assertRegex(self.read("--dyn-syms"), r" __stack_chk_fail@")

    def test_calls_the_checked_functions_of_the_library(self):
        self.assertRegex(self.read("--dyn-syms"), r" __(?!stack)\w+_chk@")

    def test_takes_libraries_from_the_system_alone(self):
        self.assertNotRegex(self.read("-d"), r"\((RPATH|RUNPATH)\)")


if __name__ == "__main__":
    Hardening.program = sys.argv.pop()
    unittest.main()
