"""Access to accessible objects, the keyboard and the clipboard."""

import subprocess

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402, F401

FIELDS = ("text", "combo box")
BUTTON = "push button"
LIST = "list"
TREE = "tree"  # a list of rows with columns
TABS = "page tab list"
CHECK_BOX = "check box"
SIMPLE = (*FIELDS, BUTTON, "label", "scroll bar")  # roles whose children are not searched


def walk(root, closed=()):
    """Yields an object and everything inside it, except the children of objects with a closed role."""
    if root is None:
        return
    yield root
    for index in range(0 if root.get_role_name() in closed else root.get_child_count()):
        yield from walk(root.get_child_at_index(index), closed)


def has(thing, *states):
    held = thing.get_state_set()
    return all(held.contains(getattr(Atspi.StateType, state)) for state in states)


def name_of(control):
    """The spoken name: that of the label, else its own. The own name of a combo box is its text, so
    it needs a label."""
    for relation in control.get_relation_set():
        if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY:
            return relation.get_target(0).get_name()
    return control.get_name()


def open_list(field):
    """The opened list of a combo box, or None."""
    for each in walk(field, (LIST,)):
        if each.get_role_name() == LIST and has(each, "SHOWING"):
            return each
    return None


def value_of(field):
    return Atspi.Text.get_text(field, 0, -1) if field.get_role_name() == "text" else field.get_name()


def extents(thing):
    return thing.get_extents(Atspi.CoordType.SCREEN)


def xdotool(*arguments):
    subprocess.run(["xdotool", *arguments], check=True)


def put_on_clipboard(text):
    """Puts a text on the clipboard."""
    # It keeps running, and would print an error when the display closes.
    subprocess.run(["xclip", "-selection", "clipboard"], input=text.encode(),
                   stderr=subprocess.DEVNULL, check=True)
