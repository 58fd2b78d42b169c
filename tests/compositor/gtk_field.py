# SPDX-License-Identifier: MIT
"""gtk_field.py FILE: a text field of GTK 4's in a window called "field"; Ctrl+S writes what is in it to the file,
and each change of it to FILE.now."""
import os
import sys

import gi

gi.require_version("Gtk", "4.0")
from gi.repository import GLib, Gtk  # noqa: E402


def write(text, name):
    # Whoever reads it meanwhile finds the one before.
    with open(name + "~", "w", encoding="utf-8", newline="") as file:
        file.write(text.get_text(text.get_start_iter(), text.get_end_iter(), True))
    os.replace(name + "~", name)


def save(view, *_):
    write(view.get_buffer(), sys.argv[1])
    return True


Gtk.init()
view = Gtk.TextView()
view.get_buffer().connect("changed", write, sys.argv[1] + ".now")
shortcuts = Gtk.ShortcutController()
shortcuts.add_shortcut(Gtk.Shortcut.new(Gtk.ShortcutTrigger.parse_string("<Control>s"), Gtk.CallbackAction.new(save)))
view.add_controller(shortcuts)
window = Gtk.Window(title="field", default_width=640, default_height=480, child=view)
window.present()
GLib.MainLoop().run()
