#!/usr/bin/env python3
"""Installs the archive for all Linux systems into a home folder, and uninstalls it.

    install_test.py FOLDER VERSION
"""

import configparser
import glob
import os
import re
import signal
import subprocess
import sys
import tarfile
import tempfile
import time
import unittest

PROGRAMS = ("tarvold-editor", "tarvold-records")
ENTRIES = ("org.example.tarvold.editor.desktop", "org.example.tarvold.records.desktop")


def files_in(folder):
    """The paths of all files below a folder, relative to it."""
    return {os.path.relpath(os.path.join(place, name), folder)
            for place, _, names in os.walk(folder) for name in names}


class Install(unittest.TestCase):
    archive = name = ""

    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        with tarfile.open(self.archive) as archive:
            archive.extractall(scratch.name)
        self.unpacked = os.path.join(scratch.name, self.name)
        # No character in a path may do harm.
        self.home = os.path.join(scratch.name, "a home & \"b\"|$c `d` 100% \\e'")
        self.data = os.path.join(self.home, ".local", "share")
        os.mkdir(self.home)

    def run_script(self, *command, data=None, expected=0):
        environment = {"HOME": self.home, "PATH": os.environ["PATH"]}
        if data:
            environment["XDG_DATA_HOME"] = data
        done = subprocess.run(command, env=environment, cwd="/", check=False, capture_output=True,
                              text=True)
        self.assertEqual(done.returncode, expected, done.stdout + done.stderr)
        return done.stdout + done.stderr

    def install(self, **options):
        return self.run_script(os.path.join(self.unpacked, "install.sh"), **options)

    def uninstall(self, **options):
        installed = os.path.join(options.get("data") or self.data, "tarvold-editor", "install.sh")
        return self.run_script(installed, "--uninstall", **options)

    def test_puts_programs_that_run_into_the_home_folder(self):
        self.install()
        for program in PROGRAMS:
            self.assertTrue(os.access(os.path.join(self.home, ".local", "bin", program), os.X_OK))
        version = self.run_script(os.path.join(self.home, ".local/bin/tarvold-records"), "--version")
        self.assertIn(self.name.split("-")[2], version)

    def test_puts_entries_into_the_menu_that_start_the_installed_programs(self):
        self.install()
        for name in ENTRIES:
            path = os.path.join(self.data, "applications", name)
            subprocess.run(["desktop-file-validate", path], check=True)
            entry = configparser.ConfigParser(interpolation=None)
            entry.read(path)
            command = entry["Desktop Entry"]["Exec"].replace("\\\\", "\\")
            quoted, rest = re.fullmatch(r'"((?:[^"`$\\]|\\["`$\\])+)"(.*)', command).groups()
            program = re.sub(r"\\(.)", r"\1", quoted).replace("%%", "%")
            self.assertEqual(os.path.dirname(program), os.path.join(self.home, ".local", "bin"))
            self.assertTrue(os.access(program, os.X_OK), command)
        self.assertEqual(rest, " %F")

    def test_keeps_the_folder_that_the_user_has_the_program_start_in(self):
        self.install()
        path = os.path.join(self.data, "applications", ENTRIES[0])
        with open(path, "a", encoding="utf-8") as entry:
            entry.write("Path=/home/you/your-game\n")
        for _ in range(2):
            self.install()
            with open(path, encoding="utf-8") as entry:
                self.assertEqual(entry.read().count("\nPath=/home/you/your-game\n"), 1)

    def test_tells_the_desktop_of_the_data_files(self):
        self.install()
        with open(os.path.join(self.data, "mime", "globs2"), encoding="utf-8") as known:
            self.assertIn("application/x-tarvold-data:*.tvd", known.read())

    def test_installs_icons_manual_pages_documents_and_licences(self):
        self.install()
        for pattern in ("icons/hicolor/*/apps/org.example.tarvold.editor.*", "man/man1/tarvold-*.1.gz",
                        "tarvold-editor/docs/guide.md", "tarvold-editor/NOTICES.txt",
                        "tarvold-editor/LICENSE.txt", "tarvold-editor/examples/*.tvd"):
            self.assertTrue(glob.glob(os.path.join(self.data, pattern)), pattern)

    def test_leaves_nothing_after_uninstalling_but_the_files_of_others(self):
        mine = [os.path.join(self.home, "normreports.tvd"),
                os.path.join(self.home, ".local", "bin", "another-program"),
                os.path.join(self.data, "tarvold-editor", "docs", "notes.txt")]
        self.install()
        for path in mine:
            with open(path, "w", encoding="utf-8") as file:
                file.write("mine")
        self.uninstall()
        left = {path for path in files_in(self.home) if not path.startswith(".local/share/mime/")
                and not path.endswith("/mimeinfo.cache")}
        self.assertEqual(left, {os.path.relpath(path, self.home) for path in mine})
        self.assertNotIn("tarvold", "".join(files_in(os.path.join(self.data, "mime"))))

    def test_leaves_no_empty_folder_of_its_own(self):
        self.install()
        self.uninstall()
        self.assertFalse(os.path.exists(os.path.join(self.data, "tarvold-editor")))
        self.assertFalse(os.path.exists(os.path.join(self.home, ".local", "bin")))

    def test_leaves_empty_folders_that_were_there_before(self):
        mine = [os.path.join(self.home, ".local", "bin"), os.path.join(self.data, "man")]
        for folder in mine:
            os.makedirs(folder)
        self.install()
        self.install()
        self.uninstall()
        for folder in mine:
            self.assertTrue(os.path.isdir(folder), folder)
        self.assertFalse(os.path.exists(os.path.join(self.data, "man", "man1")))

    def broken_install(self):
        """An installation that ends early, as a folder is where a file should be."""
        in_the_way = os.path.join(self.data, "tarvold-editor", "LICENSE.txt.new", "LICENSE.txt")
        os.makedirs(in_the_way)
        self.run_script(os.path.join(self.unpacked, "install.sh"), expected=1)
        os.rmdir(in_the_way)
        os.rmdir(os.path.dirname(in_the_way))

    def test_uninstalls_what_a_broken_installation_has_left(self):
        self.broken_install()
        self.assertTrue(files_in(self.home))
        self.run_script(os.path.join(self.unpacked, "install.sh"), "--uninstall")
        self.assertEqual({path for path in files_in(self.home)
                          if not path.startswith(".local/share/mime/")}, set())

    def test_uninstalls_what_a_broken_installation_and_a_whole_one_have_left(self):
        only_first = os.path.join(self.unpacked, "docs", "first.md")
        with open(only_first, "w", encoding="utf-8") as file:
            file.write("first")
        self.broken_install()
        self.assertIn(".local/share/tarvold-editor/docs/first.md", files_in(self.home))
        os.remove(only_first)
        self.install()
        self.assertNotIn(".local/share/tarvold-editor/docs/first.md", files_in(self.home))

    def test_replaces_an_older_version_and_removes_what_only_that_had(self):
        old = os.path.join(self.unpacked, "docs", "old.md")
        with open(old, "w", encoding="utf-8") as file:
            file.write("old")
        self.install()
        before = files_in(self.home)
        os.remove(old)
        self.install()
        self.assertEqual(before - files_in(self.home), {".local/share/tarvold-editor/docs/old.md"})

    def test_replaces_a_program_that_runs(self):
        self.install()
        program = os.path.join(self.home, ".local", "bin", "tarvold-editor")
        # It has the platform for X only, so it needs a display.
        with subprocess.Popen(["xvfb-run", "-a", program], cwd=self.home, start_new_session=True,
                              env=dict(os.environ, HOME=self.home)) as running:
            try:
                self.wait_until_it_runs(program)
                self.install()
                self.assertIsNone(running.poll())
            finally:
                os.killpg(running.pid, signal.SIGTERM)

    def wait_until_it_runs(self, program):
        """Waits until a process runs the program, so that its file is busy."""
        for _ in range(600):
            if program in map(self.program_of, glob.glob("/proc/[0-9]*")):
                return
            time.sleep(0.1)
        self.fail("the program did not start")

    @staticmethod
    def program_of(process):
        try:
            return os.readlink(process + "/exe")
        except OSError:  # it has ended, or is another user's
            return None

    def test_uses_the_data_folder_that_the_user_has_set(self):
        data = os.path.join(self.home, "data")
        self.install(data=data)
        self.assertTrue(os.path.exists(os.path.join(data, "applications", ENTRIES[0])))
        self.assertFalse(os.path.exists(self.data))
        self.uninstall(data=data)
        self.assertFalse(os.path.exists(os.path.join(data, "applications", ENTRIES[0])))

    def test_refuses_to_uninstall_what_is_not_installed(self):
        said = self.run_script(os.path.join(self.unpacked, "install.sh"), "--uninstall", expected=1)
        self.assertIn("Nothing is installed in", said)

    def test_refuses_other_options(self):
        said = self.run_script(os.path.join(self.unpacked, "install.sh"), "--help-me", expected=1)
        self.assertIn("Usage: ./install.sh [--uninstall]", said)


if __name__ == "__main__":
    version = sys.argv.pop()
    Install.name = f"tarvold-editor-{version}-linux"
    Install.archive = os.path.join(sys.argv.pop(), Install.name + ".tar.gz")
    unittest.main()
