"""The things on the screen as assistive technology sees them, and the mouse and keyboard."""

import subprocess

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402, F401


def walk(root, closed=()):
    """The thing and everything inside it, but for what is in things of the closed roles."""
    if root is None:
        return
    yield root
    for index in range(0 if root.get_role_name() in closed else root.get_child_count()):
        yield from walk(root.get_child_at_index(index), closed)


def has(thing, state):
    return thing.get_state_set().contains(getattr(Atspi.StateType, state))


def name_of(field):
    """A text box bears its name; a combo box bears its text and is named by its caption."""
    if field.get_role_name() == "text":
        return field.get_name()
    for relation in field.get_relation_set():
        if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY:
            return relation.get_target(0).get_name()
    return field.get_name()


def value_of(field):
    return Atspi.Text.get_text(field, 0, -1) if field.get_role_name() == "text" else field.get_name()


def extents(thing):
    return thing.get_extents(Atspi.CoordType.SCREEN)


def click_at(x, y, button="1"):
    xdotool("mousemove", "--sync", str(x), str(y), "click", button)


def xdotool(*arguments):
    subprocess.run(["xdotool", *arguments], check=True)
