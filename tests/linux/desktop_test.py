#!/usr/bin/python3
"""Tests what the program for all Linux systems does with the desktop: what plugins and libraries of the
system do for other programs is linked into it, or missing.

    desktop_test.py FOLDER VERSION
"""

import os
import shutil
import subprocess
import sys
import tempfile
import time
import unittest

TESTS = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..")
sys.path += [os.path.join(TESTS, "e2e"), os.path.join(TESTS, "faults")]

from desktop import FONTS, Desktop  # noqa: E402
from driver import Driver  # noqa: E402
from points import tracing_refused  # noqa: E402
from portal import DARK, NO_PREFERENCE, Portal  # noqa: E402
from program import SCREEN_TITLE  # noqa: E402
from steps import MENU  # noqa: E402
from things import extents, put_on_clipboard, xdotool  # noqa: E402

BOX = "To File: normal match endings"
FILE = "my é endings.tvd"
EXAMPLE = os.path.join(TESTS, "..", "examples", "normreports.tvd")


def clipboard(selection):
    return subprocess.run(["xclip", "-o", "-selection", selection], check=True, capture_output=True,
                          text=True, timeout=30).stdout


class User(Driver):
    """Has a mouse, and looks at colours."""

    def brightness(self):
        """Of the main menu, from 0 to 1."""
        window, = self._windows(SCREEN_TITLE)
        picture = subprocess.run(["import", "-window", window, "png:-"], check=True,
                                 capture_output=True).stdout
        return float(subprocess.run(
            ["convert", "png:-", "-colorspace", "Gray", "-format", "%[fx:mean]", "info:"],
            input=picture, check=True, capture_output=True).stdout)

    def wait_brightness(self, what, is_right):
        self._wait(f"{what} colours", lambda: is_right(self.brightness()))

    def drop_on_menu(self, program):
        """Drags the content of another program's window to the main menu."""
        window, = self._wait(f"the window of {program}", lambda: self._search("--class", program))
        # The window manager may still be moving it.
        xdotool("windowmove", "--sync", window, "900", "600", "mousemove", "--sync", "--window", window,
                "100", "30", "mousedown", "1")
        heading = extents(self._find("label", MENU))
        for step in range(20, -1, -1):  # in steps, as a hand does
            xdotool("mousemove", "--sync", str(heading.x + 20 + step), str(heading.y + 5))
        time.sleep(0.5)  # the other program is told of the answer; nothing shows when
        xdotool("mouseup", "1")


class OnDesktop(unittest.TestCase):
    folder = ""

    @classmethod
    def setUpClass(cls):
        # One for all tests, as a process knows only one accessibility bus.
        cls.log = cls.enterClassContext(tempfile.TemporaryFile("w"))
        cls.enterClassContext(Desktop(cls.log))

    def setUp(self):
        self.work = self.enterContext(tempfile.TemporaryDirectory())

    def start(self, *command):
        program = os.path.join(self.folder, "tarvold-editor")
        driver = User([*command, program], self.work, self.work, 60, self.log)
        self.addCleanup(driver.stop)
        driver.wait_screen(MENU)
        driver.move_window()
        return driver

    def test_loads_the_font_settings_once_and_in_a_thread_of_their_own(self):
        refused = tracing_refused()
        if refused:
            self.skipTest(refused)
        trace = os.path.join(self.work, "trace")
        self.start("strace", "-D", "-f", "-e", "trace=openat,execve", "-o", trace).stop()
        with open(trace, encoding="utf-8") as file:
            lines = file.read().splitlines()
        threads = [line.split()[0] for line in lines if f'"{FONTS}"' in line]
        self.assertEqual(len(threads), 1, threads)
        self.assertNotEqual(threads[0], lines[0].split()[0])

    def test_gives_and_takes_texts_by_both_clipboards(self):
        driver = self.start()
        driver.fill(BOX, "copied.tvd")
        driver.keys("ctrl+a", "ctrl+c")
        driver.wait_value(BOX, "copied.tvd")
        self.assertEqual(clipboard("clipboard"), "copied.tvd")
        self.assertEqual(clipboard("primary"), "copied.tvd")
        put_on_clipboard("né – €.tvd")
        driver.keys("ctrl+v")
        driver.wait_value(BOX, "né – €.tvd")

    def compose(self, layout, keys, text):
        driver = self.start()
        self.addCleanup(subprocess.run, ["setxkbmap", "-layout", "us", "-option", ""], check=True)
        subprocess.run(["setxkbmap", *layout], check=True)
        driver.go_to(BOX)
        driver.keys("ctrl+a")
        xdotool("key", "--delay", "20", *keys)
        driver.wait_value(BOX, text)

    def test_knows_dead_keys(self):
        self.compose(["-layout", "us", "-variant", "intl"],
                     ["dead_acute", "e", "dead_diaeresis", "u", "dead_tilde", "n"], "éüñ")

    def test_knows_the_compose_key(self):
        self.compose(["-layout", "us", "-option", "compose:ralt"],
                     ["Multi_key", "apostrophe", "e", "Multi_key", "s", "s"], "éß")

    def test_shows_the_records_of_a_file_that_is_dropped(self):
        path = shutil.copy(EXAMPLE, os.path.join(self.work, FILE))
        driver = self.start()
        source = driver.beside(os.path.join(self.folder, "drag_source"), path)
        self.addCleanup(source.stop)
        driver.drop_on_menu("drag_source")
        driver.wait_records(FILE)

    def test_is_dark_while_the_desktop_prefers_that(self):
        portal = Portal(DARK)
        self.addCleanup(portal.close)
        driver = self.start()
        driver.wait_brightness("dark", lambda brightness: brightness < 0.3)
        portal.change(NO_PREFERENCE)
        driver.wait_brightness("light", lambda brightness: brightness > 0.7)

    def test_is_dark_with_a_dark_theme_of_the_desktop(self):
        with subprocess.Popen([os.path.join(self.folder, "theme_source"), "Adwaita-dark"],
                              stdout=subprocess.PIPE) as desktop:
            try:
                self.assertEqual(desktop.stdout.readline(), b"ready\n")
                self.start().wait_brightness("dark", lambda brightness: brightness < 0.3)
            finally:
                desktop.terminate()

    def test_is_light_where_no_desktop_answers(self):
        self.start().wait_brightness("light", lambda brightness: brightness > 0.7)


if __name__ == "__main__":
    sys.argv.pop()
    OnDesktop.folder = sys.argv.pop()
    unittest.main()
