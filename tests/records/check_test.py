#!/usr/bin/env python3
"""Runs tarvold-records in a terminal: without a display, and with nothing in the environment that
could replace one.

    check_test.py PROGRAM EXAMPLES
"""

import glob
import os
import shutil
import subprocess
import sys
import tempfile
import unittest

KINDS = {"normal": "normreports", "feuds": "feudreports", "turns": "turnreports",
         "interview": "interviews", "talkshow": "talkshow", "stipulations": "stipulations"}
DISPLAY = ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "XDG_RUNTIME_DIR")


class Terminal(unittest.TestCase):
    program = examples = ""

    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.folder = scratch.name
        for file in glob.glob(self.examples + "/*.tvd"):
            shutil.copy(file, self.folder)

    def run_program(self, *arguments, **options):
        environment = {name: value for name, value in os.environ.items() if name not in DISPLAY}
        return subprocess.run([self.program, *arguments], cwd=self.folder, env=environment,
                              stdin=subprocess.DEVNULL, stderr=subprocess.PIPE, encoding="utf-8",
                              timeout=60, check=False, **{"stdout": subprocess.PIPE} | options)

    def lines_of(self, name):
        with open(os.path.join(self.folder, name), "rb") as file:
            return file.read().split(b"\r\n")[:-1]

    def write(self, name, lines):
        with open(os.path.join(self.folder, name), "wb") as file:
            file.write(b"".join(line + b"\r\n" for line in lines))

    def expect(self, done, status, output="", errors=""):
        self.assertEqual((done.returncode, done.stdout, done.stderr), (status, output, errors))


class Check(Terminal):

    def test_finds_nothing_in_the_examples(self):
        names = sorted(os.listdir(self.folder))
        self.assertEqual(len(names), 6)
        self.expect(self.run_program("--check", *names), 0)

    def test_finds_nothing_in_the_examples_by_their_kinds(self):
        for kind, name in KINDS.items():
            with self.subTest(kind):
                self.expect(self.run_program("--check", "--kind", kind, name + ".tvd"), 0)

    def test_says_that_the_name_is_of_another_kind(self):
        sentence = ("The name says talk show segments, but the records look like interview "
                    "segments. The game reads this file as talk show segments.")
        shutil.copy(os.path.join(self.folder, "interviews.tvd"),
                    os.path.join(self.folder, "talkshow.tvd"))
        self.expect(self.run_program("--check", "talkshow.tvd", "interviews.tvd"), 1,
                    f"talkshow.tvd:1: {sentence}\n")
        self.expect(self.run_program("--check", "--kind", "interview", "talkshow.tvd"), 0)
        self.write("talkshow.tvd", [b"Any"] * 19)
        self.assertNotIn(b"The name says", self.run_program(
            "--check", "talkshow.tvd").stdout.encode())

    def test_names_the_line_that_is_missing(self):
        lines = self.lines_of("normreports.tvd")
        self.write("normreports.tvd", lines[:14] + lines[15:])
        done = self.run_program("--check", "normreports.tvd", "turnreports.tvd")
        self.assertEqual((done.returncode, done.stderr), (1, ""))
        first = done.stdout.splitlines()[0]
        self.assertTrue(first.startswith("normreports.tvd:15: "), done.stdout)
        self.assertIn("Attacker(s) Finisher Type", first)

    def test_writes_utf_8(self):
        lines = self.lines_of("normreports.tvd")
        lines[14] = "Größe".encode("cp1252")
        self.write("grün.tvd", lines)
        done = self.run_program("--check", "--kind", "normal", "grün.tvd")
        self.assertEqual(done.returncode, 1)
        self.assertTrue(done.stdout.startswith("grün.tvd:15: "), done.stdout)
        self.assertIn("Größe", done.stdout)

    def test_changes_no_file(self):
        lines = self.lines_of("normreports.tvd")
        self.write("normreports.tvd", lines[:14] + lines[15:])
        before = {name: self.lines_of(name) for name in os.listdir(self.folder)}
        self.run_program("--check", "normreports.tvd")
        self.assertEqual({name: self.lines_of(name) for name in os.listdir(self.folder)}, before)

    def test_says_which_file_cannot_be_read(self):
        done = self.run_program("--check", "missing.tvd", "talkshow.tvd")
        self.assertEqual((done.returncode, done.stdout), (2, ""))
        self.assertTrue(done.stderr.startswith("tarvold-records: missing.tvd: "), done.stderr)

    def test_asks_for_the_kind_if_it_is_not_clear(self):
        self.write("some.tvd", [b"words"] * 19)
        done = self.run_program("--check", "some.tvd")
        self.assertEqual((done.returncode, done.stdout), (2, ""))
        self.assertIn("--kind", done.stderr)

    def test_tells_when_its_output_is_lost(self):
        lines = self.lines_of("normreports.tvd")
        self.write("normreports.tvd", lines[:14] + lines[15:])
        with open("/dev/full", "wb") as full:
            done = self.run_program("--check", "normreports.tvd", stdout=full)
        self.assertEqual(done.returncode, 2)
        self.assertIn("could not be written", done.stderr)


class Options(Terminal):

    def test_help_names_all_options_and_kinds(self):
        for option in ("--help", "-h"):
            done = self.run_program(option)
            self.assertEqual((done.returncode, done.stderr), (0, ""))
            self.assertTrue(done.stdout.endswith("\n") and not done.stdout.endswith("\n\n"))
            for words in ("--check", "--kind", "--help", "--version", "FILE", *KINDS):
                self.assertIn(words, done.stdout)

    def test_version_is_told(self):
        for option in ("--version", "-v"):
            done = self.run_program(option)
            self.assertEqual((done.returncode, done.stderr), (0, ""))
            self.assertRegex(done.stdout, r"\Atarvold-records \d+\.\d+\.\d+\n\Z")

    def test_mistakes_are_told(self):
        for mistake in (["--check"], ["--unknown"], ["--check", "--kind", "none", "talkshow.tvd"]):
            with self.subTest(mistake):
                done = self.run_program(*mistake)
                self.assertEqual((done.returncode, done.stdout), (2, ""))
                self.assertTrue(done.stderr.startswith("tarvold-records: "))


if __name__ == "__main__":
    Terminal.examples = os.path.abspath(sys.argv.pop())
    Terminal.program = os.path.abspath(sys.argv.pop())
    unittest.main()
