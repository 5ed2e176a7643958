"""Records what a user without a mouse does, so that it can be replayed.

A recording is a JSON list of entries in the order in which they happened:

    ["keys", KEY...]         keys pressed one after the other
    ["text", TEXT]           text typed
    ["copy", TEXT]           text put on the clipboard, for the keys that paste it
    ["list", "open", NAME]   a list has opened; with a NAME, take a screenshot
    ["list", "closed"]       it has closed
    ["screen", HEADING, N]   a screen is shown: the Nth different one
    ["box", TITLE, TEXT]     a message box is shown
    ["picture", NAME]        take a screenshot
    ["end"]                  the program has ended
"""

import json

from keyboard import Keyboard
from program import BOX_TITLE, SCREEN_TITLE


class Recorder(Keyboard):
    """A user without a mouse who records their actions and the results."""

    def __init__(self, *arguments, recording):
        super().__init__(*arguments)
        self._recording = recording
        self._entries = []
        self._list_picture = []  # the name for a screenshot of the next list, if any
        self._screens = []  # their windows, in the order in which they were first shown

    def wait_screen(self, heading):
        stops = super().wait_screen(heading)
        window, = self._windows(SCREEN_TITLE)
        if window not in self._screens:
            self._screens.append(window)
        self._note("screen", heading, self._screens.index(window) + 1)
        return stops

    def wait_box(self, text, title=BOX_TITLE):
        super().wait_box(text, title)
        self._note("box", title, text)

    def wait_end(self):
        super().wait_end()
        self._note("end")
        with open(self._recording, "w", encoding="utf-8") as file:
            file.write("[\n" + ",\n".join(map(json.dumps, self._entries)) + "\n]\n")

    def picture(self, name):
        self._note("picture", name)

    def type(self, name, text, shows=None):
        self._note("text", text)
        super().type(name, text, shows)

    def paste(self, name, text, shows=None):
        self._note("copy", text)
        super().paste(name, text, shows)

    def keys(self, *keys):
        self._note("keys", *keys)
        super().keys(*keys)

    def choose(self, name, item, picture=None):
        self._list_picture = [picture] if picture else []
        super().choose(name, item)

    def _open_item(self, name, item):
        found = super()._open_item(name, item)
        if found and self._entries[-1][0] != "list":
            self._note("list", "open", *self._list_picture)
            self._list_picture = []
        return found

    def _wait_closed(self, name):
        super()._wait_closed(name)
        self._note("list", "closed")

    def _note(self, *entry):
        self._entries.append(list(entry))
