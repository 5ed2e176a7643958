#!/usr/bin/env python3
"""Checks that a program was built with hardening.

    hardening_test.py PROGRAM

A flag that gets lost in the build goes unnoticed, so this reads the program itself.
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
        """Returns the columns of a program header."""
        lines = [line.split() for line in self.read("-l").splitlines()]
        found = [line for line in lines if line and line[0] == name]
        self.assertEqual(len(found), 1, name)
        return found[0]

    def test_is_loaded_at_a_random_address(self):
        self.assertRegex(self.read("-h"), r"Type: +DYN \(Position-Independent Executable file\)")

    def test_has_full_relro(self):
        self.segment("GNU_RELRO")
        self.assertRegex(self.read("-d"), r"\(FLAGS_1\) +Flags:.*\bNOW\b.*\bPIE\b")

    def test_has_a_non_executable_stack(self):
        self.assertEqual(self.segment("GNU_STACK")[6:-1], ["RW"])

    def test_has_a_stack_protector(self):
        self.assertRegex(self.read("--dyn-syms"), r" __stack_chk_fail@")

    def test_calls_fortified_library_functions(self):
        self.assertRegex(self.read("--dyn-syms"), r" __(?!stack)\w+_chk@")

    def test_loads_libraries_only_from_system_folders(self):
        self.assertNotRegex(self.read("-d"), r"\((RPATH|RUNPATH)\)")


if __name__ == "__main__":
    Hardening.program = sys.argv.pop()
    unittest.main()
