"""Drives the program with mouse and keyboard, and takes pictures of what it shows."""

import time

from program import BOX_TITLE, SCREEN_TITLE, Program
from things import extents, has, open_list, xdotool

LIST_FRAME = 2  # in pixels, below an opened list
# In seconds. What the user can't have seen yet the program does not let be pressed, for that would be
# the second press of a double click; nobody sees and clicks faster.
TIME_TO_SEE = 0.2
STEADY = 4  # looks at a thing before it is clicked that must find it in the same place


class Driver(Program):
    """A user who mostly clicks."""

    _box_title = BOX_TITLE  # of the message box that came last

    _seen_at = 0.0  # from when on what came last has been seen for long enough

    def wait_screen(self, heading):
        super().wait_screen(heading)
        self._look()

    def wait_box(self, text, title=BOX_TITLE):
        self._box_title = title
        super().wait_box(text, title)
        self._look()

    def picture(self, name):
        """Saves the front window as it is now, its frame left out."""
        window, *_ = self._wait("a window to take a picture of", lambda:
                                self._windows(self._box_title) or self._windows(SCREEN_TITLE))
        self._save_picture(name, window)

    def press(self, button):
        """Clicks a button by the name that a screen reader speaks."""
        self._click(self._wait(f'the button "{button}"', lambda: self._find("push button", button)))

    def select(self, item):
        """Clicks a row of a list box."""
        self._click(self._wait(f'the row "{item}"', lambda: self._find("list item", item)))

    def go_to(self, name):
        """Clicks into a text or combo box and waits for the focus."""
        self._click(self._field(name))
        self._wait(f'the focus in "{name}"', lambda: has(self._field(name), "FOCUSED"))

    def fill(self, name, text):
        """Clicks into a box and types over what is there."""
        self.go_to(name)
        self.keys("ctrl+a", "Delete")
        self.type(name, text)

    def choose(self, name, item, picture=None):
        """Opens a list with a click on its arrow and clicks an item. The picture shows it open."""
        box = extents(self._field(name))
        self._click_at(box.x + box.width - 10, box.y + box.height // 2)
        place = self._wait(f'"{item}" in the list of "{name}"', lambda: self._open_item(name, item))
        if picture:
            self._save_picture(picture, "root", self._around(name))
        self._wait(f'"{item}" in sight', lambda: self._scrolled_into_sight(name, place))
        self._click(place)
        self._wait_closed(name)

    def _scrolled_into_sight(self, name, place):
        """Whether an item of an opened list can be seen; turns the wheel by one when it cannot."""
        item, room = extents(place), extents(open_list(self._field(name)))
        if item.y < room.y or item.y + item.height > room.y + room.height:
            self._click_at(room.x + room.width // 2, room.y + room.height // 2,
                           button="4" if item.y < room.y else "5")
            return False
        return True

    def _click(self, place):
        # The window manager may still be putting a new window into its place.
        seen = []
        self._wait("the window to stand still", lambda: seen.append(corner(place)) or
                   seen[-STEADY:] == [seen[-1]] * STEADY)
        box = extents(place)
        self._click_at(box.x + box.width // 2, box.y + box.height // 2)

    def _look(self):
        """The window is painted, for that comes before it is told that the keys go there."""
        self._seen_at = time.monotonic() + TIME_TO_SEE

    def _click_at(self, x, y, button="1"):
        time.sleep(max(0, self._seen_at - time.monotonic()))
        xdotool("mousemove", "--sync", str(x), str(y), "click", button)

    def _around(self, name):
        """The part of the display that holds the front window and the opened list of this box."""
        window = next(each for each in self._shown_windows() if each.get_name().endswith(SCREEN_TITLE))
        front, over = extents(window), extents(open_list(self._field(name)))
        left, top = min(front.x, over.x), min(front.y, over.y)
        right = max(front.x + front.width, over.x + over.width)
        bottom = max(front.y + front.height, over.y + over.height + LIST_FRAME)
        return f"{right - left}x{bottom - top}+{left}+{top}"


def corner(place):
    box = extents(place)
    return box.x, box.y
