"""Runs the program and reads what it shows.

Controls are found on the accessibility bus by role and name, as a screen reader finds them; keys are
sent by xdotool. Every step waits for what it expects, with a timeout, and then fails with a clear
message.
"""

import copy
import os
import re
import subprocess
import time
import warnings

from desktop import HEIGHT, WIDTH, plain_environment
from things import (FIELDS, SIMPLE, TREE, Atspi, GLib, extents, has, name_of, open_list,
                    put_on_clipboard, value_of, walk, xdotool)
from tour_error import TourError

warnings.filterwarnings("ignore", category=DeprecationWarning)

BOX_TITLE = "Tarvold Data Editor"
SCREEN_TITLE = "Tarvold 1.3 Data Editor"
PLACE = (100, 30)  # of windows, away from the edge of the display
RETRIES = 20  # for reading something that may change meanwhile


class Program:
    """One run of the program in a folder, with screenshots saved in another."""

    def __init__(self, command, folder, pictures, timeout, log):
        self.folder = folder
        self._timeout = timeout
        self._pictures = pictures
        self._picture_count = 0
        self._corner = None  # top left corner of all screens, once the first one was moved
        Atspi.init()  # starts the accessibility bus, which the program needs at startup
        self._log = log
        self.program = os.path.abspath(command[-1])
        self._start(command)

    def beside(self, *command):
        """Starts another program beside this one, in the same folder and for the same user."""
        other = copy.copy(self)
        other._start(command)
        other._corner = None
        return other

    def _start(self, command):
        self._process = subprocess.Popen(command, cwd=self.folder, env=plain_environment(),
                                         stderr=self._log)

    # What the program shows

    def wait_screen(self, heading):
        """Waits until the screen with this heading is the only one and has the usual position."""
        self._wait(f'the screen "{heading}"',
                   lambda: len(self._windows(SCREEN_TITLE)) == 1 and self._find("label", heading))
        if self._corner:
            self._wait(f'the screen "{heading}" at the position of the one before',
                       lambda: self._corner_of_screen() == self._corner)
        self._wait_active(SCREEN_TITLE)

    def wait_box(self, text, title=BOX_TITLE):
        """Waits until a message box with this title and text is shown."""
        self._wait(f'the message box "{text}"', lambda: self._windows(title)
                   and self._find("label", text))
        self._wait_active(title)

    def wait_records(self, name):
        """Waits until the window with the records of a file is active."""
        self._wait_active(f"{name} - {BOX_TITLE}")

    def wait_rows(self, *rows):
        """Waits until the list of records has just these rows; of each, some texts are given."""
        self._wait(f"the records {rows}", lambda: len(rows) == len(shown := self._rows()) and all(
            set(row) <= {cell.get_name() for cell in cells} for row, cells in zip(rows, shown)))

    def wait_label(self, text):
        """Waits until a label shows this text."""
        self._wait(f'the label "{text}"', lambda: self._find("label", text))

    def wait_value(self, name, text):
        """Waits until a text or combo box shows this text."""
        self._wait(f'"{text}" in "{name}"', lambda: value_of(self._field(name)) == text)

    def wait_focus(self, name):
        """Waits until the field with this name has the focus."""
        self._wait(f'the focus in "{name}"', lambda: has(self._field(name), "FOCUSED"))

    def wait_changes(self, changes):
        """Called after keys that change texts, in subclasses that check what is told of that.

        `changes` are the texts before and after, by the name of the field."""

    def wait_end(self):
        """Waits until the program has ended and fails unless its exit status is 0."""
        try:
            code = self._process.wait(self._timeout)
        except subprocess.TimeoutExpired:
            raise TourError("the program did not end") from None
        if code != 0:
            raise TourError(f"the program ended with status {code}")

    def stop(self):
        """Kills the program if a failed tour left it running."""
        if self._process.poll() is None:
            self._process.kill()
        self._process.wait()

    def finish(self):
        """Called on the main menu at the end of the tour, for checks of the whole tour."""

    def picture(self, name, of=None):
        """Takes a screenshot of the front window or of the records of a file, in subclasses that do
        so."""

    def picture_of_all(self, name):
        """Saves a screenshot of the whole display."""
        self._save_picture(name, "root")

    # What a user does

    def move_window(self):
        """Moves the front window away from the edge of the display; later windows follow."""
        window, = self._windows(SCREEN_TITLE)
        xdotool("windowmove", "--sync", window, *map(str, PLACE))
        self._corner = self._wait("the position of the screen", self._corner_of_screen)

    def type(self, name, text, shows=None):
        """Types at the cursor of the focused box and waits until the box shows `shows`, by default
        just the typed text."""
        xdotool("type", "--delay", "2", text)
        self.wait_value(name, shows or text)

    def paste(self, name, text, shows=None):
        """Pastes at the cursor of the focused box and waits until the box shows `shows`, by default
        just that text."""
        put_on_clipboard(text)
        self.keys("ctrl+v")
        self.wait_value(name, shows or text)

    def keys(self, *keys):
        xdotool("key", "--clearmodifiers", *keys)

    def choose_by_keys(self, name, item):
        """Opens the list of the focused field with Alt+Down, moves to the item and presses Enter."""
        self.keys("alt+Down")
        self._wait(f'"{item}" in the list of "{name}"', lambda: self._open_item(name, item))
        names = [each.get_name() for each in walk(self._field(name))
                 if each.get_role_name() == "list item"]
        self.keys("Home", *["Down"] * names.index(item))
        self._wait(f'the keys to select "{item}" in "{name}"',
                   lambda: self._is_selected(name, item))
        self.keys("Return")
        self._wait_closed(name)

    def choose_entry(self, menu, entry, keys):
        """Chooses an entry of the menu bar, by its keys."""
        self.keys(*keys)

    def active_window(self):
        """The active window, if it belongs to the program."""
        return next((each for each in self._shown_windows() if has(each, "ACTIVE")), None)

    # Implementation

    def _wait_active(self, title):
        """Waits until the window is active, which happens a little after it appears."""
        self._wait(f'"{title}" to become active', lambda: any(
            has(each, "ACTIVE") and is_titled(each, title) for each in self._shown_windows()))

    def _rows(self):
        """The rows of the list of records in the active window, each a list of cells."""
        tree = next((each for each in walk(self.active_window(), SIMPLE)
                     if each.get_role_name() == TREE), None)
        if not tree:
            return []
        inside = [tree.get_child_at_index(index) for index in range(tree.get_child_count())]
        cells = [each for each in inside if each.get_role_name() == "table cell"]
        columns = sum(each.get_role_name() == "table column header" for each in inside)
        return [cells[first:first + columns] for first in range(0, len(cells), columns)]

    def _row(self, name):
        """The first cell of the row that is announced so."""
        for cells in self._rows():
            if cells[0].get_name() == name:
                return cells[0]
        return None

    def _corner_of_screen(self):
        """The position of the screen; empty while one screen replaces another."""
        windows = self._windows(SCREEN_TITLE)
        output = subprocess.run(["xdotool", "getwindowgeometry", "--shell", *windows[:1]],
                                check=False, capture_output=True, text=True).stdout
        return [line for line in output.splitlines() if line.startswith(("X=", "Y="))]

    def _wait(self, what, condition):
        end = time.monotonic() + self._timeout
        while time.monotonic() < end:
            if self._process.poll() is not None:
                raise TourError(f"the program ended while the tour waited for {what}")
            try:
                found = condition()
            except GLib.Error:
                found = None  # the object went away meanwhile
            if found:
                return found
            time.sleep(0.02)
            while GLib.MainContext.default().iteration(False):
                pass  # handles events of the accessibility bus
        raise TourError(f"waited {self._timeout} seconds for {what}")

    def _windows(self, title):
        """The visible windows with this title. xdotool knows titles of the old form only, which the
        programs for any Linux do not set, as they do without the old library of X."""
        return self._search("--name", f"^{title}$") or [
            window for window in self._search("--class", "tarvold")
            if re.fullmatch(title, self._title_of(window))]

    @staticmethod
    def _title_of(window):
        shown = subprocess.run(["xprop", "-id", window, "_NET_WM_NAME"], capture_output=True, text=True,
                               check=False, env=dict(os.environ, LC_ALL="C.UTF-8")).stdout
        return shown.partition(' = "')[2].rstrip('"\n')

    def _search(self, *what):
        """The visible windows that match. If any window closes during a search, it fails, so retry
        then."""
        for _ in range(RETRIES):
            listed = subprocess.run(["xdotool", "search", "--onlyvisible", *what],
                                    capture_output=True, text=True, check=False)
            if not listed.stderr:
                return listed.stdout.split()
        raise TourError(f"every search for windows failed: {listed.stderr}")

    def _application(self):
        desktop = Atspi.get_desktop(0)
        desktop.clear_cache()
        for index in range(desktop.get_child_count()):
            application = desktop.get_child_at_index(index)
            if application and application.get_process_id() == self._process.pid:
                application.set_cache_mask(Atspi.Cache.NONE)
                application.clear_cache()
                return application
        return None

    def _shown(self):
        """The contents of visible windows, the active one first. Hidden windows and closed lists are
        left out: they hold most of the objects, and fetching each takes time."""
        for window in sorted(self._shown_windows(), key=lambda each: not has(each, "ACTIVE")):
            yield from walk(window, SIMPLE)

    def _shown_windows(self):
        application = self._application()
        for index in range(application.get_child_count() if application else 0):
            window = application.get_child_at_index(index)
            if window and has(window, "SHOWING"):
                yield window

    def _find(self, role, name):
        for each in self._shown():
            if each.get_role_name() == role and each.get_name() == name and has(each, "SHOWING"):
                return each
        return None

    def _field(self, name):
        return self._wait(f'the field "{name}"', lambda: self._find_field(name))

    def _find_field(self, name):
        for each in self._shown():
            if each.get_role_name() in FIELDS and has(each, "SHOWING") and name_of(each) == name:
                return each
        return None

    def _open_item(self, name, item):
        for each in walk(open_list(self._field(name))):
            if each.get_role_name() == "list item" and each.get_name() == item:
                return each
        return None

    def _is_selected(self, name, item):
        return any(each.get_name() == item and has(each, "SELECTED")
                   for each in walk(open_list(self._field(name))))

    def _wait_closed(self, name):
        self._wait(f'the list of "{name}" to close', lambda: not open_list(self._field(name)))

    def _save_picture(self, name, window, part=None):
        """Saves a screenshot of a window or a part of the display, once it has stopped changing."""
        self._picture_count += 1
        path = os.path.join(self._pictures, f"{self._picture_count:02}-{name}.png")
        # Nothing may look hovered.
        xdotool("mousemove", str(WIDTH - 1), str(HEIGHT - 1))  # no --sync: it waits for a movement
        crop = ["-crop", part, "+repage"] if part else []
        dateless = ["-strip", "-define", "png:exclude-chunks=date,time"]
        before = None
        for _ in range(RETRIES):
            subprocess.run(["import", "-window", window, *crop, *dateless, path], check=True)
            with open(path, "rb") as file:
                now = file.read()
            if now == before:
                return
            before = now


def records_title(name):
    """A pattern for the title of the window with the records of a file."""
    return rf"{re.escape(name)}\*? - {BOX_TITLE}"


def is_titled(window, title):
    """Whether a window has this title. A screen is announced by its heading as well, and a star
    marks changes."""
    name = window.get_name().replace("*", "")
    return name == title or title == SCREEN_TITLE and name.endswith(title)
