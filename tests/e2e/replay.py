"""Replays a recording to a program whose windows are known only by title and number.

That is all that the display knows of a program without an accessibility bus, such as one for another
system. Keys reach the focused window in the order in which they are sent, so the replay only needs
to wait for windows: screens, message boxes and opened lists.
"""

import json
import subprocess

from program import BOX_TITLE, SCREEN_TITLE, Program
from tour_error import TourError
from things import put_on_clipboard, xdotool


class Replay(Program):
    """A user who sees only windows, and follows the recording."""

    def __init__(self, *arguments, recording):
        with open(recording, encoding="utf-8") as file:
            self._entries = json.load(file)
        self._screens = {}  # the windows of the screens, by their number in the recording
        self._boxes = set()  # the windows of all message boxes so far
        self._before = set()  # all windows visible before the last keys were sent
        self._list = set()  # the windows of the opened list
        self._front = None
        self._held = None  # the key that was sent last, while it is still down
        super().__init__(*arguments)

    # Where a flow waits, replay the recording up to that point.

    def wait_screen(self, heading):
        number, = self._play("screen", heading)
        self._front = self._wait(f'the screen "{heading}"', lambda: self._screen(number))
        self._screens[number] = self._front
        self._expect_position(heading)

    def wait_box(self, text, title=BOX_TITLE):
        self._play("box", title, text)
        self._front = self._wait(f'the message box "{text}"', lambda: self._new_box(title))
        self._boxes.add(self._front)

    def wait_end(self):
        self._play("end")
        super().wait_end()
        self._release()
        if self._entries:
            raise TourError(f"the recording continues with {self._entries[0]}")

    def picture(self, name):
        self._play("picture", name)
        self._release()
        self._save_picture(name, self._front)

    # Actions come from the recording; the data files show whether they worked.

    def _nothing(self, *what, picture=None, shows=None):
        pass

    press = go_to = select = fill = type = paste = choose = choose_by_keys = keys = _nothing
    wait_label = wait_value = wait_focus = _nothing

    # Implementation

    def _play(self, *mark):
        """Replays all entries up to this mark; returns the remaining fields of the mark."""
        while self._entries:
            kind, *what = self._entries.pop(0)
            if [kind, *what][:len(mark)] == list(mark):
                return what[len(mark) - 1:]
            if kind not in INPUTS:
                break
            INPUTS[kind](self, *what)
        raise TourError(f"the recording is of other flows: it lacks {mark} here")

    def _send_keys(self, *keys):
        """Presses keys, but releases the last one only after it has taken effect: while one window
        replaces another, none has the focus, and a program that misses the release takes the key
        for held."""
        self._release()
        self._before = self._on_display()
        if keys[:-1]:
            super().keys(*keys[:-1])
        self._held = keys[-1]
        xdotool("keydown", self._held)

    def _release(self):
        if self._held:
            xdotool("keyup", self._held)
        self._held = None

    def _send_text(self, text):
        self._release()
        xdotool("type", "--delay", "2", text)

    def _copy(self, text):
        put_on_clipboard(text)

    def _wait_list(self, state, picture=None):
        if state == "open":
            self._list = self._wait("a list to open", lambda: self._on_display() - self._before)
            if picture:
                self.picture_of_all(picture)
        else:
            self._wait("the list to close", lambda: not self._on_display() & self._list)

    def _screen(self, number):
        """The window of a screen, or None until it is the only one and has the focus."""
        windows = self._windows(SCREEN_TITLE)
        if len(windows) != 1 or not self._has_focus(windows[0]):
            return None
        known = self._screens.get(number)
        others = {window for each, window in self._screens.items() if each != number}
        return windows[0] if windows[0] == known or not known and windows[0] not in others else None

    def _new_box(self, title):
        """The window of a new message box, or None until it has the focus."""
        for window in self._windows(title):
            if window not in self._boxes and self._has_focus(window):
                return window
        return None

    def _on_display(self):
        """The windows at the top level of the display: frames, and frameless ones such as lists."""
        return set(self._search("--maxdepth", "1", "--name", ""))

    def _has_focus(self, window):
        found = subprocess.run(["xdotool", "getwindowfocus"], capture_output=True, text=True,
                               check=False)
        return found.stdout.split() == [window]

    def _expect_position(self, heading):
        if self._corner:
            self._wait(f'the screen "{heading}" at the position of the one before',
                       lambda: self._corner_of_screen() == self._corner)


INPUTS = {"keys": Replay._send_keys, "text": Replay._send_text, "copy": Replay._copy,
          "list": Replay._wait_list}
