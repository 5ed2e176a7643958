"""Drives the program with mouse and keyboard, and takes screenshots."""

import time

from program import BOX_TITLE, SCREEN_TITLE, Program, records_title
from things import extents, open_list, xdotool

LIST_FRAME = 2  # height in pixels, below an opened list
# In seconds. The program ignores clicks on controls that have not been visible this long, as they may
# be the second click of a double click.
TIME_TO_SEE = 0.2
STEADY = 4  # equal positions in a row before a control is clicked


class Driver(Program):
    """A user who mostly clicks."""

    _box_title = BOX_TITLE  # of the latest message box

    _clickable_at = 0.0  # when the latest window will have been visible long enough

    def wait_screen(self, heading):
        super().wait_screen(heading)
        self._note_appearance()

    def wait_box(self, text, title=BOX_TITLE):
        self._box_title = title
        super().wait_box(text, title)
        self._note_appearance()

    def wait_records(self, name):
        super().wait_records(name)
        self._note_appearance()

    def picture(self, name, of=None):
        """Saves a screenshot of the front window or of the records of a file, without its frame."""
        titles = [records_title(of)] if of else [self._box_title, SCREEN_TITLE]
        window, *_ = self._wait("a window to take a picture of", lambda: next(
            filter(None, map(self._windows, titles)), None))
        self._save_picture(name, window)

    def press(self, button):
        """Clicks the button with this accessible name."""
        self._click(self._wait(f'the button "{button}"', lambda: self._find("push button", button)))

    def select(self, item):
        """Clicks a row of a list box."""
        self._click(self._wait(f'the row "{item}"', lambda: self._find("list item", item)))

    def select_row(self, name):
        """Clicks a row of the list of records."""
        self._click(self._wait(f'the row "{name}"', lambda: self._row(name)))

    def choose_entry(self, menu, entry, keys):
        """Opens a menu of the menu bar with a click and clicks an entry."""
        for item in (menu, entry):
            self._click(self._wait(f'"{item}" in the menu', lambda: self._find("menu item", item)))

    def go_to(self, name):
        """Clicks a text or combo box and waits for the focus."""
        self._click(self._field(name))
        self.wait_focus(name)

    def fill(self, name, text):
        """Clicks a box and types over its text."""
        self.go_to(name)
        self.keys("ctrl+a", "Delete")
        self.type(name, text)

    def choose(self, name, item, picture=None):
        """Opens a list with a click on its arrow and clicks an item. The screenshot shows it open."""
        box = extents(self._field(name))
        self._click_at(box.x + box.width - 10, box.y + box.height // 2)
        place = self._wait(f'"{item}" in the list of "{name}"', lambda: self._open_item(name, item))
        if picture:
            self._save_picture(picture, "root", self._around(name))
        self._wait(f'"{item}" to be visible', lambda: self._scrolled_into_view(name, place))
        self._click(place)
        self._wait_closed(name)

    def _scrolled_into_view(self, name, place):
        """Returns whether an item of an opened list is visible; if not, scrolls by one wheel notch."""
        item, room = extents(place), extents(open_list(self._field(name)))
        if item.y < room.y or item.y + item.height > room.y + room.height:
            self._click_at(room.x + room.width // 2, room.y + room.height // 2,
                           button="4" if item.y < room.y else "5")
            return False
        return True

    def _click(self, place):
        # The window manager may still be moving a new window.
        seen = []
        self._wait("the window to stand still", lambda: seen.append(corner(place)) or
                   seen[-STEADY:] == [seen[-1]] * STEADY)
        box = extents(place)
        self._click_at(box.x + box.width // 2, box.y + box.height // 2)

    def _note_appearance(self):
        """Notes that a window has appeared. It is painted before it becomes active."""
        self._clickable_at = time.monotonic() + TIME_TO_SEE

    def _click_at(self, x, y, button="1"):
        time.sleep(max(0, self._clickable_at - time.monotonic()))
        xdotool("mousemove", "--sync", str(x), str(y), "click", button)

    def _around(self, name):
        """The part of the display with the front window and the opened list of this box."""
        window = next(each for each in self._shown_windows() if each.get_name().endswith(SCREEN_TITLE))
        front, over = extents(window), extents(open_list(self._field(name)))
        left, top = min(front.x, over.x), min(front.y, over.y)
        right = max(front.x + front.width, over.x + over.width)
        bottom = max(front.y + front.height, over.y + over.height + LIST_FRAME)
        return f"{right - left}x{bottom - top}+{left}+{top}"


def corner(place):
    box = extents(place)
    return box.x, box.y
