#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""media_keys.py ACCELERATOR [TIMES]: does what GNOME does when its user holds a combination until it has come TIMES
times (once): looks for it among the custom key bindings of his settings, as GTK understands it, and starts the program
that is bound, each time anew. Returns when these have ended. The exit status is 3 where nothing is bound."""
import subprocess
import sys
import time

import gi

gi.require_version("Gtk", "4.0")
from gi.repository import Gio, GLib, Gtk  # noqa: E402

SCHEMA = "org.gnome.settings-daemon.plugins.media-keys"


def bound(accelerator):
    wanted = Gtk.accelerator_parse(accelerator)
    for path in Gio.Settings.new(SCHEMA).get_strv("custom-keybindings"):
        entry = Gio.Settings.new_with_path(SCHEMA + ".custom-keybinding", path)
        if Gtk.accelerator_parse(entry.get_string("binding")) == wanted:
            return entry.get_string("command")
    return None


command = bound(sys.argv[1])
if command is None:
    sys.exit(3)
programs = []
for number in range(int(sys.argv[2]) if len(sys.argv) > 2 else 1):
    if number > 0:
        time.sleep(0.3 if number == 1 else 0.033)
    programs.append(subprocess.Popen(GLib.shell_parse_argv(command)[1]))
for program in programs:
    program.wait()
