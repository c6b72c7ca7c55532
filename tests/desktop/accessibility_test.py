#!/usr/bin/python3
"""Operates Corvane as a screen reader does: by roles, names and actions on the accessibility bus.

Connects to the simulated transceiver, goes to 40 meters and to 20 meters, and reads VFO A each time. Then reads the memory
channels, renames channel 3 in its row, writes the channels into the transceiver and reads them back. Types a frequency, and
hears what a screen reader hears: the announcements, and where the keyboard is.
"""

import sys
import time
import warnings

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

PATIENCE = 30  # seconds; the synchronisation alone takes nine


heard = []  # "say 20 meters, 14.250.000 MHz, USB" for an announcement, "focus VFO A" for the keyboard


def hear(event):
    try:
        if event.type.startswith("object:state-changed:focused"):
            heard.append("focus " + event.source.get_name())
        elif event.source.get_role() == Atspi.Role.NOTIFICATION:
            heard.append("say " + current_name(event.source))
    except GLib.GError:  # the object is gone
        pass


def listen():
    # libatspi calls for every change of state; only what shows or takes the keyboard counts.
    listener = Atspi.EventListener.new(lambda event: hear(event) if event.detail1 else None)
    listener.register("object:state-changed:showing")
    listener.register("object:state-changed:focused")
    return listener


def until_heard(text, patience=10):
    def arrived():
        while GLib.MainContext.default().iteration(False):
            pass
        return any(each.startswith(text) for each in heard)

    until(f"{text!r} among {heard}", arrived, patience)


def until(what, condition, patience=PATIENCE):
    """Runs the condition until its result is true, and returns it."""
    end = time.monotonic() + patience
    while time.monotonic() < end:
        try:
            found = condition()
        except GLib.GError:  # the program is busy, or the object no longer exists
            found = None
        if found:
            return found
        time.sleep(0.1)
    sys.exit(f"accessibility: FAILED: {what} within {patience} s")


def accessibles(root):
    yield root
    for index in range(root.get_child_count()):
        child = root.get_child_at_index(index)
        if child is not None:
            yield from accessibles(child)


def program():
    desktop = Atspi.get_desktop(0)
    for index in range(desktop.get_child_count()):
        application = desktop.get_child_at_index(index)
        if application is not None and application.get_name() in ("Corvane", "corvane"):
            return application
    return None


def find(root, matches):
    for accessible in accessibles(root):
        if matches(accessible):
            return accessible
    return None


def control(root, name, roles=(Atspi.Role.PUSH_BUTTON, Atspi.Role.CHECK_BOX, Atspi.Role.RADIO_BUTTON)):
    return find(root, lambda each: each.get_name() == name and each.get_role() in roles)


def labelled(root, label, role):
    """The control that a label is for: the name of a combo box is its value, and a screen reader uses the label."""
    return find(
        root,
        lambda each: each.get_role() == role
        and any(
            relation.get_relation_type() == Atspi.RelationType.LABELLED_BY
            and relation.get_target(0).get_name() == label
            for relation in each.get_relation_set()
        ),
    )


def action_name(button, index):
    with warnings.catch_warnings():  # its replacement is hidden by Accessible.get_name
        warnings.simplefilter("ignore", DeprecationWarning)
        return button.get_action_name(index)


def press(button):
    for index in range(button.get_n_actions()):
        if action_name(button, index).lower() in ("press", "toggle"):
            button.do_action(index)
            return
    sys.exit(f"accessibility: FAILED: {button.get_name()} cannot be pressed")


def checked(button):
    return button.get_state_set().contains(Atspi.StateType.CHECKED)


def go_to_band(root, name, vfo_start):
    press(until(f"a key named {name}", lambda: control(root, name)))
    vfo = until(f"VFO A reading {vfo_start}...", lambda: find(root, lambda each: each.get_name().startswith(vfo_start)))
    until(f"{name} lit", lambda: checked(control(root, name)), 5)
    return vfo.get_name()


def showing(root, name, role):
    return find(
        root,
        lambda each: each.get_role() == role
        and each.get_name() == name
        and each.get_state_set().contains(Atspi.StateType.SHOWING),
    )


def keys(*symbols):
    for symbol in symbols:
        Atspi.generate_keyboard_event(symbol, None, Atspi.KeySynthType.SYM)
        time.sleep(0.1)  # there is no answer to wait for


TAB, ENTER, HOME, END, DOWN, ESCAPE = 0xFF09, 0xFF0D, 0xFF50, 0xFF57, 0xFF54, 0xFF1B
CONTROL_KEY = 37  # its code, as it is held
CHANNEL, NAME_COLUMN, NEW_NAME = 3, 4, "TEST 3"


def name_of_channel(root):
    table = showing(root, "Memory channels", Atspi.Role.TABLE)
    return Atspi.Table.get_accessible_at(table, CHANNEL - 1, NAME_COLUMN).get_name() if table else ""


def current_name(accessible):
    accessible.clear_cache()
    return accessible.get_name()


def read_channels(root):
    # A whole read takes less time than a search through the window.
    field = until(
        "how far the read is",
        lambda: find(
            root, lambda each: each.get_role() == Atspi.Role.LABEL and each.get_name().startswith("Memory channels, ")
        ),
    )
    press(until("the key that reads", lambda: control(root, "Read the memory channels")))
    until("a read under way", lambda: current_name(field).startswith("Memory channels, Reading"))
    until("the end of the read", lambda: current_name(field).startswith("Memory channels, Read:"))
    return name_of_channel(root)


def rename_channel(root, name):
    press(until("the page of memories", lambda: showing(root, "Memories", Atspi.Role.PAGE_TAB)))
    before = read_channels(root)
    Atspi.Component.grab_focus(until("the key before the table", lambda: control(root, "Import memory channels")))
    keys(TAB, TAB, HOME, *[DOWN] * (CHANNEL - 1), END, ENTER)
    keys(*[ord(letter) for letter in name], ENTER)
    renamed = "Memory Name, " + name
    until("the new name in the row", lambda: name_of_channel(root) == renamed)
    press(control(root, "Write the memory channels"))
    press(until("the question", lambda: showing(root, "Write", Atspi.Role.PUSH_BUTTON)))
    until("the end of the question", lambda: not showing(root, "Write", Atspi.Role.PUSH_BUTTON))
    if read_channels(root) != renamed:
        sys.exit(f"accessibility: FAILED: channel {CHANNEL} came back as {name_of_channel(root)!r}")
    return before, renamed


def type_frequency():
    """After Return the keyboard is on the active VFO, and the new frequency is announced."""
    heard.clear()
    Atspi.generate_keyboard_event(CONTROL_KEY, None, Atspi.KeySynthType.PRESS)
    keys(ord("f"))
    Atspi.generate_keyboard_event(CONTROL_KEY, None, Atspi.KeySynthType.RELEASE)
    until_heard("focus Frequency in megahertz")
    heard.clear()
    keys(*[ord(letter) for letter in "21.2"], ENTER)
    until_heard("focus VFO A")
    until_heard("say 21.200.000 MHz, USB")


def only_the_keyboard_is_heard(root):
    """A list that is read again behind another page says nothing; a table that gets the keyboard names its cell."""
    heard.clear()
    press(until("the page of memories", lambda: showing(root, "Memories", Atspi.Role.PAGE_TAB)))
    read_channels(root)
    until_heard("say Read:")
    if [each for each in heard if "Memory Name" in each or "Channel, " in each]:
        sys.exit(f"accessibility: FAILED: a table without the keyboard spoke: {heard}")
    Atspi.Component.grab_focus(until("the key before the table", lambda: control(root, "Import memory channels")))
    keys(TAB, TAB)
    until_heard(f"focus Memory Name, {NEW_NAME}")
    heard.clear()
    keys(ENTER, ESCAPE)
    until_heard(f"focus Memory Name, {NEW_NAME}")


def main():
    root = until("the program on the accessibility bus", program)
    port = until("the list of ports", lambda: labelled(root, "Port", Atspi.Role.COMBO_BOX))
    if port.get_name() != "Simulated transceiver":
        sys.exit(f"accessibility: FAILED: the port to begin with is {port.get_name()!r}")
    listener = listen()
    press(until("the Connect key", lambda: control(root, "Connect or disconnect")))
    until_heard("say Simulated transceiver: connected", PATIENCE)
    # The radio page comes to the front with the synchronisation.
    until("the synchronisation", lambda: find(root, lambda each: each.get_name().startswith("VFO A, 14.")))
    until("the link in words", lambda: find(root, lambda each: each.get_name() == "Link, Simulated transceiver: connected"))
    bands = [go_to_band(root, "40 meters", "VFO A, 7."), go_to_band(root, "20 meters", "VFO A, 14.")]
    type_frequency()
    before, renamed = rename_channel(root, NEW_NAME)
    only_the_keyboard_is_heard(root)
    nameless = [
        each.get_role_name()
        for each in accessibles(root)
        if each.get_role() in (Atspi.Role.PUSH_BUTTON, Atspi.Role.CHECK_BOX, Atspi.Role.COMBO_BOX, Atspi.Role.SLIDER)
        and each.get_state_set().contains(Atspi.StateType.SHOWING)
        and not each.get_name()
    ]
    if nameless:
        sys.exit(f"accessibility: FAILED: controls without a name: {nameless}")
    listener.deregister("object:state-changed:showing")
    print(f"accessibility: passed: {bands[0]!r}, then {bands[1]!r}; channel {CHANNEL}: {before!r}, then {renamed!r}")


if __name__ == "__main__":
    main()
