#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""bus_standin.py ADDRESS COMMANDS SERVICE...: stands in for services on the message bus at ADDRESS: "login" is the
login manager with one session, "saver" a screen saver, "notifications" the notification service, "plain" the same
without markup, "refuses" beside either one that has had too many. Prints "ready", then what it was told; obeys the lines that are written to the named pipe COMMANDS:
"lock", "unlock", "hint 0|1", "active 0|1", "end"."""
import os
import sys
import threading

import gi

gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib  # noqa: E402

XML = """<node>
<interface name="org.freedesktop.login1.Manager">
  <method name="GetSession"><arg type="s" direction="in"/><arg type="o" direction="out"/></method>
</interface>
<interface name="org.freedesktop.login1.Session">
  <signal name="Lock"/><signal name="Unlock"/><property name="LockedHint" type="b" access="read"/>
</interface>
<interface name="org.freedesktop.ScreenSaver">
  <method name="GetActive"><arg type="b" direction="out"/></method>
  <signal name="ActiveChanged"><arg type="b"/></signal>
</interface>
<interface name="org.freedesktop.Notifications">
  <method name="GetCapabilities"><arg type="as" direction="out"/></method>
  <method name="Notify">
    <arg type="s" direction="in"/><arg type="u" direction="in"/><arg type="s" direction="in"/>
    <arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="as" direction="in"/>
    <arg type="a{sv}" direction="in"/><arg type="i" direction="in"/><arg type="u" direction="out"/>
  </method>
</interface>
</node>"""
INTERFACES = {info.name: info for info in Gio.DBusNodeInfo.new_for_xml(XML).interfaces}
SESSION = "/org/freedesktop/login1/session/_31"
state = {"refuses": False, "hint": False, "active": False, "capabilities": ["body", "body-markup"]}


def on_call(connection, sender, path, interface, method, parameters, invocation):
    if method == "GetSession":
        print("session", parameters[0], flush=True)
        invocation.return_value(GLib.Variant("(o)", (SESSION,)))
    elif method == "GetActive":
        invocation.return_value(GLib.Variant("(b)", (state["active"],)))
    elif method == "GetCapabilities":
        print("capabilities", flush=True)
        invocation.return_value(GLib.Variant("(as)", (state["capabilities"],)))
    else:
        program, replaces, icon, title, text, actions, hints, timeout = parameters
        print("message", [program, replaces, icon, title, text, actions, hints, timeout], flush=True)
        if state["refuses"]:
            invocation.return_dbus_error("org.freedesktop.Notifications.Error.ExcessNotificationGeneration", "Too many")
            return
        invocation.return_value(GLib.Variant("(u)", (1,)))


def on_get(connection, sender, path, interface, name):
    return GLib.Variant("b", state["hint"])


def put(connection, path, interface):
    connection.register_object(path, INTERFACES[interface], on_call, on_get, None)


def own(connection, name):
    reply = connection.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                                 "RequestName", GLib.Variant("(su)", (name, 4)), None, 0, -1, None)
    assert reply[0] == 1, name


def serve(connection, service):
    if service == "login":
        put(connection, "/org/freedesktop/login1", "org.freedesktop.login1.Manager")
        put(connection, SESSION, "org.freedesktop.login1.Session")
        own(connection, "org.freedesktop.login1")
    elif service == "saver":
        put(connection, "/org/freedesktop/ScreenSaver", "org.freedesktop.ScreenSaver")
        own(connection, "org.freedesktop.ScreenSaver")
    elif service == "refuses":
        state["refuses"] = True
    else:
        if service == "plain":
            state["capabilities"] = ["body"]
        put(connection, "/org/freedesktop/Notifications", "org.freedesktop.Notifications")
        own(connection, "org.freedesktop.Notifications")


def emit(connection, path, interface, signal, parameters=None):
    connection.emit_signal(None, path, interface, signal, parameters)


def obey(connection, loop, line):
    word, *rest = line.split()
    value = rest == ["1"]
    if word in ("lock", "unlock"):
        emit(connection, SESSION, "org.freedesktop.login1.Session", word.capitalize())
    elif word == "hint":
        state["hint"] = value
        changed = GLib.Variant("(sa{sv}as)", ("org.freedesktop.login1.Session",
                                              {"LockedHint": GLib.Variant("b", value)}, []))
        emit(connection, SESSION, "org.freedesktop.DBus.Properties", "PropertiesChanged", changed)
    elif word == "active":
        state["active"] = value
        emit(connection, "/ScreenSaver", "org.freedesktop.ScreenSaver", "ActiveChanged",
             GLib.Variant("(b)", (value,)))
    elif word == "end":
        loop.quit()
    connection.flush_sync(None)


def read_commands(pipe, connection, loop):
    # Open for writing as well it never ends, however often writers come and go.
    with open(os.open(pipe, os.O_RDWR), encoding="utf-8") as commands:
        for line in commands:
            GLib.idle_add(obey, connection, loop, line)


def main():
    address, pipe, *services = sys.argv[1:]
    flags = Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION
    connection = Gio.DBusConnection.new_for_address_sync(address, flags, None, None)
    for service in services:
        serve(connection, service)
    loop = GLib.MainLoop()
    threading.Thread(target=read_commands, args=(pipe, connection, loop), daemon=True).start()
    print("ready", flush=True)
    loop.run()


main()
