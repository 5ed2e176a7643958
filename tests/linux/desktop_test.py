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
from portal import DARK, LIGHT, NO_PREFERENCE, Portal  # noqa: E402
from program import SCREEN_TITLE  # noqa: E402
from steps import MENU  # noqa: E402
from things import extents, put_on_clipboard, xdotool  # noqa: E402

BOX = "To File: normal match endings"
FILE = "my é endings.tvd"
EXAMPLE = os.path.join(TESTS, "..", "examples", "normreports.tvd")


def clipboard(selection):
    return subprocess.run(["xclip", "-o", "-selection", selection], check=True, capture_output=True,
                          text=True, timeout=30).stdout


class Theme:
    """Stands in for a desktop that gives programs the name of its theme."""

    def __init__(self, folder, name):
        self._process = subprocess.Popen([os.path.join(folder, "theme_source")], text=True,
                                         stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        self.change(name)

    def change(self, name):
        print(name, file=self._process.stdin, flush=True)
        assert self._process.stdout.readline() == "ready\n"

    def close(self):
        self._process.communicate(timeout=60)


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

    def wait_dark(self):
        self._wait("dark colours", lambda: self.brightness() < 0.3)

    def wait_light(self):
        self._wait("light colours", lambda: self.brightness() > 0.7)

    def wait_grey(self):
        self._wait("grey colours", lambda: 0.3 < self.brightness() < 0.7)

    def wait_window(self):
        """Waits for the main menu where nothing can be told on the accessibility bus."""
        self._wait("the main menu", lambda: self._windows(SCREEN_TITLE))

    def leave_and_come_back(self, program):
        """Has another program's window active for a while."""
        other = self.beside(program)
        self._wait("another window", lambda: not self.active_window())
        other.stop()
        self._wait_active(SCREEN_TITLE)

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

    def portal(self, scheme):
        portal = Portal(scheme)
        self.addCleanup(portal.close)
        return portal

    def theme(self, name):
        theme = Theme(self.folder, name)
        self.addCleanup(theme.close)
        return theme

    def test_is_dark_while_the_desktop_prefers_that(self):
        portal = self.portal(DARK)
        driver = self.start()
        driver.wait_dark()
        portal.change(NO_PREFERENCE)
        driver.wait_light()

    def test_follows_a_dark_theme_of_the_desktop(self):
        theme = self.theme("Mint-Y-Dark-Aqua")
        driver = self.start()
        driver.wait_dark()
        theme.change("Mint-Y-Aqua")
        driver.leave_and_come_back(os.path.join(self.folder, "drag_source"))
        driver.wait_light()

    def test_is_light_after_the_name_of_the_theme_and_then_the_preference_changed(self):
        portal, theme = self.portal(DARK), self.theme("Yaru-dark")
        driver = self.start()
        driver.wait_dark()
        theme.change("Yaru")
        portal.change(NO_PREFERENCE)
        driver.wait_light()

    def test_is_light_after_the_preference_and_then_the_name_of_the_theme_changed(self):
        portal, theme = self.portal(DARK), self.theme("Yaru-dark")
        driver = self.start()
        driver.wait_dark()
        portal.change(NO_PREFERENCE)
        time.sleep(0.5)  # it keeps the colours; nothing shows when it has heard
        driver.wait_dark()
        theme.change("Yaru")
        driver.leave_and_come_back(os.path.join(self.folder, "drag_source"))
        driver.wait_light()

    def test_is_light_with_a_light_theme_that_only_begins_like_a_dark_one(self):
        theme = self.theme("Arc-Dark")
        driver = self.start()
        driver.wait_dark()
        theme.change("Arc-Darker")
        driver.leave_and_come_back(os.path.join(self.folder, "drag_source"))
        driver.wait_light()

    def test_is_light_where_the_desktop_prefers_that_whatever_the_name_of_its_theme(self):
        self.theme("Adwaita-dark")
        portal = self.portal(NO_PREFERENCE)
        driver = self.start()
        driver.wait_dark()
        portal.change(LIGHT)
        driver.wait_light()

    def test_is_light_where_no_desktop_answers(self):
        self.start().wait_light()

    def kde(self, *variables):
        """Starts the program in a session of KDE whose settings are grey."""
        with open(os.path.join(self.work, "kdeglobals"), "w", encoding="utf-8") as settings:
            for group in ("Window", "View", "Button", "Selection", "Tooltip"):
                settings.write(f"[Colors:{group}]\nBackgroundNormal=128,128,128\n"
                               "ForegroundNormal=255,255,255\n")
        return self.start("env", *variables, "XDG_CURRENT_DESKTOP=KDE", f"XDG_CONFIG_HOME={self.work}")

    def test_keeps_the_colours_of_kde(self):
        portal = self.portal(DARK)
        driver = self.kde("KDE_SESSION_VERSION=5")
        driver.wait_grey()
        portal.change(NO_PREFERENCE)
        portal.change(DARK)
        time.sleep(1)  # nothing is to show
        driver.wait_grey()

    def test_asks_the_desktop_where_qt_does_not_know_the_colours_of_kde(self):
        self.portal(DARK)
        self.kde("-u", "KDE_SESSION_VERSION").wait_dark()

    def test_starts_at_once_where_the_session_bus_is_dead(self):
        dead = f"unix:path={self.work}/none"
        began = time.monotonic()
        driver = User(["env", f"DBUS_SESSION_BUS_ADDRESS={dead}",
                       os.path.join(self.folder, "tarvold-editor")], self.work, self.work, 60, self.log)
        self.addCleanup(driver.stop)
        driver.wait_window()
        self.assertLess(time.monotonic() - began, 10)  # a call on the bus may take 25 seconds


if __name__ == "__main__":
    sys.argv.pop()
    OnDesktop.folder = sys.argv.pop()
    unittest.main()
