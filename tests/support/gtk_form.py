#!/usr/bin/python3
# SPDX-License-Identifier: MIT
# gtk_form.py FOLDER TITLE: a form of three entries, a text, and the buttons Cancel and OK, of which Return in an
# entry presses OK. What each holds stands in FOLDER/first, second, third and text at any time; which button was
# pressed stands in FOLDER/pressed.
import os
import sys

import gi

gi.require_version("Gtk", "4.0")
from gi.repository import Gtk  # noqa: E402

folder, title = sys.argv[1:]


def write(name, text):
    whole = os.path.join(folder, name)
    with open(whole + ".new", "w", encoding="utf-8") as file:
        file.write(text)
    os.rename(whole + ".new", whole)


def entry(name):
    made = Gtk.Entry(activates_default=True)
    made.connect("changed", lambda changed: write(name, changed.get_text()))
    return made


def button(label):
    made = Gtk.Button(label=label)
    made.connect("clicked", lambda _: write("pressed", label))
    return made


def open_window(application):
    window = Gtk.ApplicationWindow(application=application, title=title, default_width=300)
    box = Gtk.Box(orientation=Gtk.Orientation.VERTICAL)
    for name in ("first", "second", "third"):
        box.append(entry(name))
    cancel, ok = button("Cancel"), button("OK")
    text = Gtk.TextView(height_request=100)
    held = text.get_buffer()
    held.connect("changed", lambda _: write("text", held.get_property("text")))
    for part in (cancel, ok, text):
        box.append(part)
    window.set_child(box)
    window.set_default_widget(ok)
    window.present()


application = Gtk.Application()
application.connect("activate", open_window)
application.run([])
