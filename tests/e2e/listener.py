"""A user with a screen reader: what the program reports to assistive technology must be enough."""

from flows import NO_MANAGER
from keyboard import Keyboard, focused
from program import BOX_TITLE, SCREEN_TITLE
from tour_error import TourError
from steps import TAG_LIST
from stipulation_flow import FORM
from records_round import ATTACKER, FILE, FOLLOWED, PROBLEM
from things import BUTTON, CHECK_BOX, FIELDS, LIST, TABS, TREE, Atspi, GLib, name_of, walk

BAR = "scroll bar"
# What an edit of several lines leaves in their undo histories, which nobody must ever hear.
MARKS = "\uFDD0\uFDD1"
BOXES = ("alert", "dialog")
EVENTS = ("object:state-changed:focused", "object:state-changed:showing",
          "object:property-change:accessible-name", "window:activate",
          "object:text-changed", "object:text-caret-moved", "object:text-selection-changed")

# The screens that explain the focused field in a help line.
WITH_HELP = ("GENERAL DETAILS", "ATTACKER DETAILS", "RECEIVER DETAILS", "FEUD DETAILS",
             "TURN DETAILS", "INTERVIEW SEGMENT DETAILS", "TALK SHOW SEGMENT DETAILS")
COMPOSER = "THE MATCH FINISH"
UNEXPLAINED = ("The record as shown",)  # nothing can be put in
# Spoken names of screens that differ from the heading in the flows.
SPOKEN = {
    FORM: "Match Stipulation",
    "What would you like to import?": "Import",
    "Which file would you like to import from?": "Import",
}

# The message boxes and other announcements of the commentary screens, in order.
ENDING = ("Add this finish to the file?", "Saved OK.")
ANNOUNCED = [
    NO_MANAGER, "Tag refused. Nothing was inserted.",
    "No line is marked, so nothing was inserted.",
    "Inserted <att2fullname> into line 1.",
    "Inserted <recshortname> into line 3.",
    NO_MANAGER, "Tag refused. Inserted <recshortname> into line 3.", *ENDING,
    "Inserted <feudteam> into line 1.", *ENDING,
    "Inserted <wrestler1> into line 1.", *ENDING,
    "Inserted <town> into line 1.", "Pasted into lines 2 to 4.", "Line 2 swapped with line 3.",
    "Line 3 swapped with line 4.", "Line 4 swapped with line 3.", "Add this interview segment to the file?", "Saved OK.",
    "Inserted <talkshowname> into line 1.", "Add this talk show segment to the file?", "Saved OK.",
    # the records window
    f"Undone: Edit {ATTACKER}.", f"Done again: Edit {ATTACKER}.", PROBLEM, "1 problem.",
    "Repaired line 15, Attacker(s) Finisher Type.", "No problems.",
    "Repaired line 27, Commentary line 1.", f"Saved 3 records to {FILE}.", *ENDING,
]


class Listener(Keyboard):
    """Fails if a control, a screen or a message is not announced, or ambiguously."""

    def __init__(self, *arguments):
        self._heard = []  # since the last key: (event, role, name or description)
        self._changes = []  # of texts, since the last key: (removed or inserted, name, text)
        self._marks = []  # events in which a mark was heard, ever
        self._announced = []
        self._met = []
        Atspi.init()
        self._ear = Atspi.EventListener.new(self._hear)
        for event in EVENTS:  # the program only sends events that had a listener when it started
            self._ear.register(event)
        super().__init__(*arguments)

    def wait_screen(self, heading):
        stops = super().wait_screen(heading)
        window = self.active_window()
        screen = (window, heading, [stop.name for stop in stops])
        if screen in self._met:
            return stops
        self._met.append(screen)
        expect(window.get_name() == f"{SPOKEN.get(heading, heading)} - {SCREEN_TITLE}",
               f'the window of "{heading}" is announced as "{window.get_name()}"')
        expect_clear(heading, stops)
        if heading == COMPOSER and not self._announced:
            self._insert_nowhere()
        if heading in WITH_HELP:
            self._listen_to_help(heading, stops)
        return stops

    def wait_records(self, name):
        stops = super().wait_records(name)
        window = self.active_window()
        what = [name, *(stop.name for stop in stops)]
        if what not in self._met:
            self._met.append(what)
            expect(window.get_role_name() == "frame", f'the records of "{name}" are not a window')
            expect_clear(f"the records of {name}", stops)
            self._listen_to_fields(stops)
        return stops

    def _listen_to_fields(self, stops):
        """Tabs through all controls. Each field must have a description that is announced."""
        first = stop = focused(stops)
        while True:
            stop = self.leave(stop, "Tab", stops)
            if stop.role in FIELDS and stop.name not in UNEXPLAINED:
                text = stop.thing.get_description()
                expect(text.strip(), f'"{stop.name}" is not described')
                self._wait(f'"{stop.name}" to be announced',
                           lambda: ("focus", stop.role, text) in self._heard)
            if stop is first:
                return

    def wait_box(self, text, title=BOX_TITLE):
        super().wait_box(text, title)
        window = self.active_window()
        expect(window.get_role_name() in BOXES and window.get_name() == title,
               f'the box "{title}" is a {window.get_role_name()} "{window.get_name()}"')
        expect(any(text in (each.get_name(), each.get_description()) for each in walk(window)),
               f'the box "{title}" does not hold "{text}"')
        self._wait(f'the box "{title}" to be announced',
                   lambda: ("window", window.get_role_name(), title) in self._heard)
        if title == BOX_TITLE:
            self._announced.append(text)

    def wait_changes(self, changes):
        """Each change must be heard as one: the old text is gone, the new one is there."""
        wanted = sorted((kind, name, text) for name, texts in changes.items()
                        for kind, text in zip(("delete", "insert"), texts) if text)
        self._wait(f"the changes {wanted} to be announced",
                   lambda: len(self._changes) >= len(wanted))
        expect(sorted(self._changes) == wanted, f"{self._changes} was heard, not {wanted}")
        self._expect_no_marks()

    def keys(self, *keys):
        self._heard.clear()
        self._changes.clear()
        super().keys(*keys)

    def finish(self):
        self._expect_no_marks()
        self._wait("the last message", lambda: len(self._announced) > len(ANNOUNCED))
        # The records window follows its file by itself, before or after the next message.
        announced = [each for each in self._announced if each != FOLLOWED]
        expect(announced == ANNOUNCED and len(self._announced) == len(ANNOUNCED) + 1,
               f"the program announced {self._announced}, not {ANNOUNCED} and {FOLLOWED}")

    def _expect_no_marks(self):
        expect(not self._marks, f"marks were heard: {self._marks}")

    def _insert_nowhere(self):
        """Tries to insert tags while no line is marked."""
        self.choose_by_keys(TAG_LIST, "Receiver's Manager Name")
        self.wait_box(NO_MANAGER)
        self.keys("Return")
        self._wait("the focus in the list of tags", self._stops_with_focus)
        self.choose_by_keys(TAG_LIST, "Attacker 1 Full Name")

    def _listen_to_help(self, heading, stops):
        """Tabs through all fields. The description of each must be the text that the help line
        then shows, and both must be announced."""
        first = stop = focused(stops)
        line = self._wait(f'the help of "{heading}"',
                          lambda: self._find("label", first.thing.get_description()))
        while True:
            shown = line.get_name()
            stop = self.leave(stop, "Tab", stops)
            if stop.role != BUTTON:
                self._expect_explained(stop, line, shown)
            if stop is first:
                return

    def _expect_explained(self, stop, line, shown):
        text = stop.thing.get_description()
        expect(text.strip(), f'"{stop.name}" is not described')
        self._wait(f'the help of "{stop.name}" to be shown', lambda: line.get_name() == text)
        wanted = {("focus", stop.role, text)}
        if text != shown:
            wanted.add(("name", "label", text))
        self._wait(f'the help of "{stop.name}" to be announced', lambda: wanted <= set(self._heard))

    def _hear(self, event):
        try:
            if event.type.startswith("object:text-"):
                self._hear_text(event)
                return
            role = event.source.get_role_name()
            if event.type == "window:activate":
                self._heard.append(("window", role, event.source.get_name()))
            elif event.type == "object:property-change:accessible-name":
                self._heard.append(("name", role, event.source.get_name()))
            elif event.type == "object:state-changed:focused" and event.detail1:
                self._heard.append(("focus", role, event.source.get_description()))
            elif event.type == "object:state-changed:showing" and event.detail1:
                if role == "notification":
                    self._announced.append(event.source.get_name())
        except GLib.Error:
            pass  # the object no longer exists

    def _hear_text(self, event):
        told = event.any_data if isinstance(event.any_data, str) else ""
        # Whoever hears of a cursor, a selection or a text asks at once what the text is.
        for text in (told, Atspi.Text.get_text(event.source, 0, -1)):
            if any(mark in text for mark in MARKS):
                self._marks.append((event.type, text))
        if event.type.startswith("object:text-changed:"):
            kind = event.type.split(":")[2]
            self._changes.append((kind, name_of(event.source), told))


def expect_clear(heading, stops):
    """Expects every control to have a role that says how to use it, and a unique name."""
    names = [stop.name for stop in stops]
    for stop in stops:
        place = f'on "{heading}", the {stop.role} "{stop.name}"'
        expect(stop.role in (*FIELDS, LIST, BUTTON, BAR, TREE, TABS, CHECK_BOX), f"{place} has an unknown role")
        expect(stop.name.strip(), f"{place} has no name")
        expect(names.count(stop.name) == 1, f"{place} is not the only one with this name")
        expect("<<" not in stop.name and ">>" not in stop.name, f"{place} has a symbol as its name")
        if stop.role == BAR:
            expect_value(place, stop.thing.get_value_iface())
    if heading in WITH_HELP:
        expect(names[-2:] == ["Back", "Next"], f'"{heading}" has no buttons "Back" and "Next"')


def expect_value(place, bar):
    low, value, high = (bar.get_minimum_value(), bar.get_current_value(), bar.get_maximum_value())
    expect((low, high) == (1, 100) and low <= value <= high,
           f"{place} reports {value} between {low} and {high}")


def expect(holds, complaint):
    if not holds:
        raise TourError(complaint)
