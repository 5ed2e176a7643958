"""A user who sees nothing: what the program tells to assistive technology must be enough."""

from flows import NO_MANAGER
from keyboard import Keyboard, focused
from program import BOX_TITLE, SCREEN_TITLE, TourError
from steps import TAG_LIST
from stipulation_flow import FORM
from things import BUTTON, FIELDS, LIST, Atspi, GLib, walk

BAR = "scroll bar"
BOXES = ("alert", "dialog")
EVENTS = ("object:state-changed:focused", "object:state-changed:showing",
          "object:property-change:accessible-name", "window:activate")

# The screens whose fields are explained by a line of help, one at a time.
WITH_HELP = ("GENERAL DETAILS", "ATTACKER DETAILS", "RECEIVER DETAILS", "FEUD DETAILS",
             "TURN DETAILS", "INTERVIEW SEGMENT DETAILS", "TALK SHOW SEGMENT DETAILS")
COMPOSER = "THE MATCH FINISH"
# What is spoken of a screen, where it is not the label by which the flows know it.
SPOKEN = {
    FORM: "Match Stipulation",
    "What would you like to import?": "Import",
    "Which file would you like to import from?": "Import",
}

# The message boxes of the commentary screens, and what is told without one, in this order.
ENDING = ("Add this finish to the file?", "Saved OK.")
TOLD = [
    NO_MANAGER, "Tag refused. Nothing was inserted.",
    "No line is marked, so nothing was inserted.",
    "Inserted <att2fullname> into line 1.",
    "Inserted <recshortname> into line 3.",
    NO_MANAGER, "Tag refused. Inserted <recshortname> into line 3.", *ENDING,
    "Inserted <feudteam> into line 1.", *ENDING,
    "Inserted <wrestler1> into line 1.", *ENDING,
    "Inserted <town> into line 1.", "Add this interview segment to the file?", "Saved OK.",
    "Inserted <talkshowname> into line 1.", "Add this talk show segment to the file?", "Saved OK.",
]


class Listener(Keyboard):
    """Fails where a control, a screen or a message would be silent or could be mistaken."""

    def __init__(self, *arguments):
        self._heard = []  # since the last key: what happened, to which role, its name or description
        self._told = []
        self._met = []
        Atspi.init()
        self._ear = Atspi.EventListener.new(self._hear)
        for event in EVENTS:  # the program sends what somebody listens to when it starts
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
               f'the window of "{heading}" is spoken as "{window.get_name()}"')
        expect_clear(heading, stops)
        if heading == COMPOSER and not self._told:
            self._insert_nowhere()
        if heading in WITH_HELP:
            self._listen_to_help(heading, stops)
        return stops

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
            self._told.append(text)

    def keys(self, *keys):
        self._heard.clear()
        super().keys(*keys)

    def finish(self):
        self._wait("the last message", lambda: len(self._told) >= len(TOLD))
        expect(self._told == TOLD, f"the program told {self._told} and not {TOLD}")

    def _insert_nowhere(self):
        """Tries to insert tags while no line is marked."""
        self.choose_by_keys(TAG_LIST, "Receiver's Manager Name")
        self.wait_box(NO_MANAGER)
        self.keys("Return")
        self._wait("the focus in the list of tags", self._stops_with_focus)
        self.choose_by_keys(TAG_LIST, "Attacker 1 Full Name")

    def _listen_to_help(self, heading, stops):
        """Goes round by Tab: each field is described by what the line of help then shows, and both
        are told."""
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
        self._wait(f'the help of "{stop.name}" to be told', lambda: wanted <= set(self._heard))

    def _hear(self, event):
        try:
            role = event.source.get_role_name()
            if event.type == "window:activate":
                self._heard.append(("window", role, event.source.get_name()))
            elif event.type == "object:property-change:accessible-name":
                self._heard.append(("name", role, event.source.get_name()))
            elif event.type == "object:state-changed:focused" and event.detail1:
                self._heard.append(("focus", role, event.source.get_description()))
            elif event.type == "object:state-changed:showing" and event.detail1:
                if role == "notification":
                    self._told.append(event.source.get_name())
        except GLib.Error:
            pass  # what has happened to something that is gone by now is of no use


def expect_clear(heading, stops):
    """Every control has a role that says how to use it, and a name that no other control has."""
    names = [stop.name for stop in stops]
    for stop in stops:
        place = f'on "{heading}", the {stop.role} "{stop.name}"'
        expect(stop.role in (*FIELDS, LIST, BUTTON, BAR), f"{place} has an unknown role")
        expect(stop.name.strip(), f"{place} has no name")
        expect(names.count(stop.name) == 1, f"{place} is not the only one with this name")
        expect("<<" not in stop.name and ">>" not in stop.name, f"{place} is named by signs")
        if stop.role == BAR:
            expect_value(place, stop.thing.get_value_iface())
    if heading in WITH_HELP:
        expect(names[-2:] == ["Back", "Next"], f'"{heading}" has no buttons "Back" and "Next"')


def expect_value(place, bar):
    low, value, high = (bar.get_minimum_value(), bar.get_current_value(), bar.get_maximum_value())
    expect((low, high) == (1, 100) and low <= value <= high,
           f"{place} tells {value} between {low} and {high}")


def expect(holds, complaint):
    if not holds:
        raise TourError(complaint)
