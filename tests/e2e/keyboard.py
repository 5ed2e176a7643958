"""Drives the program by keyboard alone."""

from functools import cached_property

from program import BOX_TITLE, Program
from tour_error import TourError
from steps import TAG_LIST
from things import LIST, SIMPLE, TABS, TREE, extents, has, name_of, walk

# Shortcuts for buttons, by name.
SHORTCUTS = {
    "Back": "alt+Left",
    "Back To Menu": "alt+Left",
    "Next": "alt+Right",
    "Add This Finish": "ctrl+s",
    "Add This Interview Segment": "ctrl+s",
    "Add This Talk Show Segment": "ctrl+s",
    "Save This Stipulation": "ctrl+s",
    "Edit": "Return",
    "Delete": "Delete",
}


# Roles of what gets the focus in other ways: panes pass it on, and a click on a text selects there.
NO_STOPS = ("filler", "label")


class Stop:
    """A Tab stop. Its name is fetched when first needed."""

    def __init__(self, thing):
        self.thing = thing
        self.role = thing.get_role_name()

    @cached_property
    def name(self):
        return name_of(self.thing)

    def has(self, *states):
        return has(self.thing, *states)

    def place(self):
        return extents(self.thing)


class Keyboard(Program):
    """A user without a mouse."""

    def wait_screen(self, heading):
        """Waits for the screen and the focus there, and returns the screen's controls."""
        super().wait_screen(heading)
        return self._wait(f'the focus on the screen "{heading}"', self._stops_with_focus)

    def wait_records(self, name):
        """Waits for the window and the focus there, and returns the window's controls."""
        super().wait_records(name)
        return self._wait(f'the focus in the records of "{name}"', self._stops_with_focus)

    def wait_box(self, text, title=BOX_TITLE):
        super().wait_box(text, title)
        self._wait(f'the focus in the box "{title}"', self._stops_with_focus)

    def press(self, button):
        """Presses a button by its shortcut, or moves to it and presses Enter."""
        self._wait("the focus", self._stops_with_focus)
        shortcut = SHORTCUTS.get(button)
        if not shortcut:
            self.go_to(button)
        self.keys(shortcut or "Return")

    def go_to(self, name):
        """Presses Tab until the control with this name has the focus."""
        stops = self._wait("the focus", self._stops_with_focus)
        first = stop = focused(stops)
        while stop.name != name:
            stop = self.leave(stop, "Tab", stops)
            if stop is first:
                raise TourError(f'Tab has come round without reaching "{name}"')

    def leave(self, stop, key, stops):
        """Presses a key that moves the focus away from a stop, and returns the newly focused stop."""
        self.keys(key)
        others = [each for each in stops if each is not stop]
        return self._wait(f'{key} to move the focus from "{stop.name}"', lambda: focused(others))

    def fill(self, name, text):
        """Types over the text of a box."""
        self.go_to(name)
        self.keys("ctrl+a", "Delete")
        self.type(name, text)

    def choose(self, name, item, picture=None):
        """Picks an item from a field's list, or from the list of tags without leaving the line."""
        if name != TAG_LIST:
            self.go_to(name)
        self.choose_by_keys(name, item)

    def select(self, item):
        """Moves to a row of the screen's list box."""
        stop = next(each for each in self.stops() if each.role == LIST)
        self.go_to(stop.name)
        rows = [each for each in walk(stop.thing) if each.get_role_name() == "list item"]
        names = [row.get_name() for row in rows]
        self.keys("Home", *["Down"] * names.index(item))
        self._wait(f'the row "{item}"', lambda: has(rows[names.index(item)], "SELECTED"))

    def select_row(self, name):
        """Moves to a row of the list of records."""
        self.go_to("Records")
        names = [cells[0].get_name() for cells in self._rows()]
        self.keys("Home", *["Down"] * names.index(name))
        self._wait(f'the row "{name}"', lambda: has(self._row(name), "SELECTED"))

    def stops(self):
        """The visible controls of the active window that can get the focus by Tab."""
        things = walk(self.active_window(), (*SIMPLE, LIST, TREE, TABS, "menu bar"))
        return [Stop(each) for each in things
                if has(each, "FOCUSABLE", "SHOWING") and each.get_role_name() not in NO_STOPS]

    def _stops_with_focus(self):
        stops = self.stops()
        return stops if focused(stops) else None


def focused(stops):
    """The focused stop, or None."""
    return next((stop for stop in stops if stop.has("FOCUSED")), None)
