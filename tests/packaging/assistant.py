#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""assistant.py press NAME | state NAME | names | part ROLE PROGRAM NAME | field PROGRAM NAME: performs the main action of the
object of that name in Keyrill's windows and menus, as assistive technology does; prints "checked" or "unchecked" for it; prints
the names of all that are offered; awaits a heading or link in a program's window; or gives the focus to a text field there. Status
1 where there is no such object after 30 s."""
import sys
import time
import warnings

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402  (only after the version was chosen)

# Debian 12 calls the actions by names that it says are to go, and has no others.
warnings.filterwarnings("ignore", category=DeprecationWarning)


def objects(item):
    yield item
    for index in range(item.get_child_count()):
        child = item.get_child_at_index(index)
        if child is not None:
            yield from objects(child)


def objects_of(name):
    desktop = Atspi.get_desktop(0)
    for index in range(desktop.get_child_count()):
        program = desktop.get_child_at_index(index)
        if program is not None and program.get_name().lower() == name:
            yield from objects(program)


def is_offered(item):
    """Whether it can be used: a closed menu's items can be chosen all the same."""
    return item.get_state_set().contains(Atspi.StateType.SHOWING) or item.get_role_name() == "menu item"


def find_control(name):
    for item in objects_of("keyrill"):
        action = item.get_action_iface()
        # What can only be given the focus is no control.
        if item.get_name() == name and is_offered(item) and action is not None and action.get_action_name(0) != "SetFocus":
            return item
    return None


def find_part(role, program, name):
    parts = (item for item in objects_of(program) if item.get_role_name() == role and item.get_name() == name)
    return next(parts, None)


def await_object(find, *names):
    end = time.monotonic() + 30
    while time.monotonic() < end:
        try:
            item = find(*names)
        except gi.repository.GLib.Error:
            item = None  # It was just going.
        if item is not None:
            return item
        time.sleep(0.1)
    sys.exit(f"assistant.py: there is no {names[-1]!r}")


def press(item):
    try:
        item.get_action_iface().do_action(0)
    except gi.repository.GLib.Error as error:
        # What opens a dialog answers when that is closed.
        if "Did not receive a reply" not in error.message:
            raise


def main():
    verb, *names = sys.argv[1:]
    if verb == "names":
        print("\n".join(item.get_name() for item in objects_of("keyrill") if is_offered(item)))
        return
    if verb == "part":
        await_object(find_part, *names)
        return
    if verb == "field":
        await_object(find_part, "entry", *names).get_component_iface().grab_focus()
        return
    item = await_object(find_control, *names)
    if verb == "press":
        press(item)
    else:
        is_checked = item.get_state_set().contains(Atspi.StateType.CHECKED)
        print("checked" if is_checked else "unchecked")


if __name__ == "__main__":
    main()
