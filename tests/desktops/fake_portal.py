#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""fake_portal.py ADDRESS COMMANDS HOW...: the portal for keys on the message bus at ADDRESS. HOW is "agrees",
"refuses", "waits" (for the command "answer") or "forgets" (the user's answer); "old" beside it is version 1. Prints
"ready", then what it is told; obeys the lines that are written to the named pipe COMMANDS: "answer", "close" (takes
the permission back), "end"."""
import sys
import threading

import gi

gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib  # noqa: E402

XML = """<node>
<interface name="org.freedesktop.portal.RemoteDesktop">
  <method name="CreateSession"><arg type="a{sv}" direction="in"/><arg type="o" direction="out"/></method>
  <method name="SelectDevices">
    <arg type="o" direction="in"/><arg type="a{sv}" direction="in"/><arg type="o" direction="out"/>
  </method>
  <method name="Start">
    <arg type="o" direction="in"/><arg type="s" direction="in"/><arg type="a{sv}" direction="in"/>
    <arg type="o" direction="out"/>
  </method>
  <method name="NotifyKeyboardKeycode">
    <arg type="o" direction="in"/><arg type="a{sv}" direction="in"/><arg type="i" direction="in"/>
    <arg type="u" direction="in"/>
  </method>
  <property name="version" type="u" access="read"/>
  <property name="AvailableDeviceTypes" type="u" access="read"/>
</interface>
<interface name="org.freedesktop.portal.Session"><method name="Close"/></interface>
</node>"""
DESKTOP, SESSION = (Gio.DBusNodeInfo.new_for_xml(XML).interfaces[i] for i in (0, 1))
OBJECT = "/org/freedesktop/portal/desktop"
how = sys.argv[3:]
waiting = []
session = None


def respond(connection, path, code, results):
    connection.emit_signal(None, path, "org.freedesktop.portal.Request", "Response", GLib.Variant("(ua{sv})", (code, results)))


def on_call(connection, sender, path, interface, method, parameters, invocation):
    global session
    if method == "NotifyKeyboardKeycode":
        print("key", parameters[2], parameters[3], flush=True)
        invocation.return_value(None)
        return
    if method == "Close":
        print("closed", flush=True)
        invocation.return_value(None)
        return
    options = parameters[-1]
    owner = sender[1:].replace(".", "_")
    request = f"{OBJECT}/request/{owner}/{options['handle_token']}"
    invocation.return_value(GLib.Variant("(o)", (request,)))
    if method == "CreateSession":
        session = f"{OBJECT}/session/{owner}/{options['session_handle_token']}"
        connection.register_object(session, SESSION, on_call, None, None)
        respond(connection, request, 0, {"session_handle": GLib.Variant("s", session)})
    elif method == "SelectDevices":
        print("devices", options["types"], options.get("persist_mode"), options.get("restore_token"), flush=True)
        respond(connection, request, 0, {})
    elif "refuses" in how:
        respond(connection, request, 1, {})
    elif "agrees" in how:
        agree(connection, request)
    else:
        print("asked", flush=True)
        waiting.append((connection, request))


def agree(connection, request):
    results = {"devices": GLib.Variant("u", 1)}
    if "old" not in how:
        results["restore_token"] = GLib.Variant("s", "known-again")
    respond(connection, request, 0, results)


def on_get(connection, sender, path, interface, name):
    return GLib.Variant("u", {"version": 1 if "old" in how else 2, "AvailableDeviceTypes": 7}[name])


def obey(connection, command):
    if command == "end":
        loop.quit()
    elif command == "close":
        connection.emit_signal(None, session, "org.freedesktop.portal.Session", "Closed", GLib.Variant("(a{sv})", ({},)))
    elif command == "answer":
        while waiting:
            agree(*waiting.pop())
    return False


def read_commands(connection):
    while True:
        with open(sys.argv[2]) as pipe:
            for line in pipe:
                GLib.idle_add(obey, connection, line.strip())


flags = Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION
bus = Gio.DBusConnection.new_for_address_sync(sys.argv[1], flags, None, None)
bus.register_object(OBJECT, DESKTOP, on_call, on_get, None)
loop = GLib.MainLoop()
Gio.bus_own_name_on_connection(
    bus, "org.freedesktop.portal.Desktop", Gio.BusNameOwnerFlags.NONE, lambda *_: print("ready", flush=True), None)
threading.Thread(target=read_commands, args=(bus,), daemon=True).start()
loop.run()
