"""A user without a mouse who first checks the Tab order of each screen."""

from keyboard import Keyboard, focused
from tour_error import TourError
from things import TREE, extents, open_list, value_of


class Walker(Keyboard):
    """Fails if Tab skips a control, leaves the order, gets stuck or reaches a hidden control."""

    def __init__(self, *arguments):
        super().__init__(*arguments)
        self._walked = []
        self._walked_records = []

    def wait_screen(self, heading):
        stops = super().wait_screen(heading)
        # Two screens with the same heading and controls are two windows.
        screen = (self.active_window(), heading, [stop.name for stop in stops])
        if screen not in self._walked:
            self._walked.append(screen)
            self._walk(heading, stops)
        return stops

    def wait_records(self, name):
        stops = super().wait_records(name)
        names = [name, *(stop.name for stop in stops)]
        if names not in self._walked_records:
            self._walked_records.append(names)
            order = columns_order(stops)
            first = order.index(focused(stops))
            order = [*order[first:], *order[:first]]
            self._follow("Tab", [*order[1:], order[0]], order[0])
            self._follow("shift+Tab", order[::-1], order[0])
        return stops

    def finish(self):
        screens = {id(window) for window, _, _ in self._walked}
        if len(screens) != 16:
            raise TourError(f"the tour reached {len(screens)} screens instead of 16")

    def _walk(self, heading, stops):
        order = reading_order(stops)
        if focused(stops) is not order[0]:
            raise TourError(f'on "{heading}" the focus starts at "{focused(stops).name}"')
        self._follow("Tab", [*order[1:], order[0]], order[0], self._open_and_leave)
        self._follow("shift+Tab", order[::-1], order[0])

    def _follow(self, key, expected, start, at_each=lambda stop: None):
        """Presses the key from control to control and fails unless they are in the expected order."""
        stop = start
        at_each(stop)
        for wanted in expected:
            stop = self.leave(stop, key, expected)
            if stop is not wanted:
                raise TourError(f'{key} leads to "{stop.name}" before "{wanted.name}"')
            self._expect_visible(stop)
            if wanted is not start:
                at_each(stop)

    def _open_and_leave(self, stop):
        """Opens a control's list and closes it with Esc, which must return the focus to it."""
        if stop.role != "combo box":
            return
        before = value_of(stop.thing)
        self.keys("alt+Down")
        self._wait(f'the list of "{stop.name}" to open', lambda: open_list(stop.thing))
        self.keys("Escape")
        self._wait(f'the focus back in "{stop.name}"',
                   lambda: not open_list(stop.thing) and stop.has("FOCUSED"))
        if value_of(stop.thing) != before:
            raise TourError(f'Esc in the list changed "{stop.name}"')

    def _expect_visible(self, stop):
        inner, outer = stop.place(), extents(self.active_window())
        if not (stop.has("SHOWING") and inner.width > 0 and inner.height > 0
                and inner.x >= outer.x and inner.x + inner.width <= outer.x + outer.width
                and inner.y >= outer.y and inner.y + inner.height <= outer.y + outer.height):
            raise TourError(f'"{stop.name}" has the focus but is not visible')


def columns_order(stops):
    """The stops of a records window: what is above the list, the list, and what is beside it."""
    tree = next(stop for stop in stops if stop.role == TREE)
    above = [stop for stop in stops if stop.place().y < tree.place().y]
    beside = [stop for stop in stops if stop not in (*above, tree)]
    return [*reading_order(above), tree, *reading_order(beside)]


def reading_order(stops):
    """The stops row by row from the top, and each row from the left."""
    rows = []
    for stop in sorted(stops, key=lambda each: each.place().y):
        place = stop.place()
        if rows and place.y + place.height // 2 < rows[-1][0]:
            rows[-1][1].append((place.x, stop))
        else:
            rows.append((place.y + place.height, [(place.x, stop)]))
    return [stop for _, row in rows for _, stop in sorted(row, key=lambda each: each[0])]
