#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""fake_portal.py ADDRESS COMMANDS HOW...: the portal for keys on the message bus at ADDRESS. HOW is "agrees",
"refuses", "fails", "waits" (for the command "answer") or "forgets" (the user's answer); "old" beside it is version 1,
"shortcuts" the portal for hot keys too, which leaves "leave=NAME" out of its answer, agrees with a code of no meaning
where it is "vague", and is deaf to whoever has not said who he is where it is "strict"; "only" leaves the portal for
keys out; "layouts" is KDE's service for layouts beside it, "gnome" the name of GNOME's shell and of its part of the portal, which
gives hot keys where it is "own-part". It has a pointer alone where it is "pointer", and does not know what it has where
it is "unaware". "kde-part" is KDE's part of it instead. Prints "ready", then what it is told; obeys the lines that are
written to the named pipe COMMANDS: "answer" and "refuse" (what it has been asked), "close" (takes the permission back),
"close first" (tells so of its first session), "deaf COUNT" (takes so many keys from now on without an answer, and says
"deaf"), "die of key" (ends when it is told of one, having said "mortal"), "press NAME" and "release NAME",
"change NAME WORDS", "end"."""
import os
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
<interface name="org.freedesktop.portal.GlobalShortcuts">
  <method name="CreateSession"><arg type="a{sv}" direction="in"/><arg type="o" direction="out"/></method>
  <method name="BindShortcuts">
    <arg type="o" direction="in"/><arg type="a(sa{sv})" direction="in"/><arg type="s" direction="in"/>
    <arg type="a{sv}" direction="in"/><arg type="o" direction="out"/>
  </method>
  <property name="version" type="u" access="read"/>
</interface>
<interface name="org.freedesktop.host.portal.Registry">
  <method name="Register"><arg type="s" direction="in"/><arg type="a{sv}" direction="in"/></method>
</interface>
<interface name="org.freedesktop.portal.Request"><method name="Close"/></interface>
<interface name="org.freedesktop.impl.portal.GlobalShortcuts"/>
<interface name="org.freedesktop.impl.portal.RemoteDesktop"><property name="version" type="u" access="read"/></interface>
<interface name="org.kde.KeyboardLayouts">
  <method name="setLayout"><arg type="u" direction="in"/><arg type="b" direction="out"/></method>
</interface>
</node>"""
DESKTOP, SESSION, SHORTCUTS, REGISTRY, REQUEST, OWN_PART, KDE_PART, LAYOUTS = Gio.DBusNodeInfo.new_for_xml(XML).interfaces
KEYS = "org.freedesktop.portal.GlobalShortcuts"
OBJECT = "/org/freedesktop/portal/desktop"
how = sys.argv[3:]
left_out = [word[len("leave="):] for word in how if word.startswith("leave=")]
waiting = []
known = []
objects = {}
sessions = {}
all_sessions = []
kinds = 0 if "unaware" in how else 2 if "pointer" in how else 7
deaf = 0
mortal = False


def respond(connection, path, code, results):
    connection.emit_signal(None, path, "org.freedesktop.portal.Request", "Response", GLib.Variant("(ua{sv})", (code, results)))


def on_call(connection, sender, path, interface, method, parameters, invocation):
    if method == "Register":
        print("register", parameters[0], flush=True)
        known.append(sender)
        invocation.return_value(None)
        return
    if "strict" in how and sender not in known and interface == KEYS:
        invocation.return_dbus_error("org.freedesktop.portal.Error.NotAllowed", "Who is that?")
        return
    if method == "NotifyKeyboardKeycode":
        if parameters[0] not in objects:
            invocation.return_dbus_error("org.freedesktop.DBus.Error.AccessDenied", "Invalid session")
            return
        print("key", parameters[2], parameters[3], flush=True)
        if mortal:
            os._exit(1)
        global deaf
        if deaf > 0:
            deaf -= 1
            return
        invocation.return_value(None)
        return
    if method == "setLayout":
        print("layout", parameters[0], flush=True)
        invocation.return_value(GLib.Variant("(b)", (True,)))
        return
    if method == "Close":
        print("given up" if "/request/" in path else "closed", flush=True)
        connection.unregister_object(objects.pop(path))
        invocation.return_value(None)
        return
    options = parameters[-1]
    owner = sender[1:].replace(".", "_")
    request = f"{OBJECT}/request/{owner}/{options['handle_token']}"
    invocation.return_value(GLib.Variant("(o)", (request,)))
    if method == "CreateSession":
        session = f"{OBJECT}/session/{owner}/{options['session_handle_token']}"
        sessions[interface] = session
        all_sessions.append(session)
        objects[session] = connection.register_object(session, SESSION, on_call, None, None)
        respond(connection, request, 0, {"session_handle": GLib.Variant("s", session)})
    elif method == "SelectDevices":
        print("devices", options["types"], options.get("persist_mode"), options.get("restore_token"), flush=True)
        respond(connection, request, 0, {})
    else:
        shortcuts = list(parameters[1]) if method == "BindShortcuts" else None
        for name, facts in shortcuts or []:
            print("shortcut", name, facts.get("preferred_trigger"), facts["description"], flush=True)
        decide(connection, request, shortcuts)


def decide(connection, request, shortcuts):
    if "refuses" in how or "fails" in how:
        respond(connection, request, 1 if "refuses" in how else 2, {})
    elif "agrees" in how:
        agree(connection, request, shortcuts)
    else:
        print("asked", flush=True)
        objects[request] = connection.register_object(request, REQUEST, on_call, None, None)
        waiting.append((connection, request, shortcuts))


def agree(connection, request, shortcuts):
    if shortcuts is not None:
        given = [bound(name, as_gtk(facts)) for name, facts in shortcuts if name not in left_out]
        results = {"shortcuts": GLib.Variant("a(sa{sv})", given)}
        respond(connection, request, 77 if "vague" in how else 0, results)
        return
    results = {"devices": GLib.Variant("u", 2 if "pointer" in how else 1)}
    if "old" not in how:
        results["restore_token"] = GLib.Variant("s", "known-again")
    respond(connection, request, 0, results)


def as_gtk(facts):
    """As GNOME has it: "Press <ctrl><super>r"."""
    *modifiers, key = facts["preferred_trigger"].split("+")
    names = {"CTRL": "ctrl", "SHIFT": "shift", "ALT": "alt", "LOGO": "super"}
    return "Press " + "".join(f"<{names[name]}>" for name in modifiers) + key


def bound(name, words):
    return (name, {"description": GLib.Variant("s", name), "trigger_description": GLib.Variant("s", words)})


def on_get(connection, sender, path, interface, name):
    facts = {"version": 1 if "old" in how else 2, "AvailableDeviceTypes": kinds}
    return GLib.Variant("u", facts[name])


def obey(connection, command):
    if command == "end":
        loop.quit()
    elif command == "close":
        nothing = GLib.Variant("(a{sv})", ({},))
        for session in sessions.values():
            connection.emit_signal(None, session, "org.freedesktop.portal.Session", "Closed", nothing)
            connection.unregister_object(objects.pop(session))
    elif command == "close first":
        nothing = GLib.Variant("(a{sv})", ({},))
        connection.emit_signal(None, all_sessions[0], "org.freedesktop.portal.Session", "Closed", nothing)
    elif command == "answer":
        while waiting:
            agree(*waiting.pop())
    elif command == "refuse":
        while waiting:
            respond(*waiting.pop()[:2], 1, {})
    elif command.startswith("deaf "):
        global deaf
        deaf = int(command.removeprefix("deaf "))
        print("deaf", flush=True)
    elif command == "die of key":
        global mortal
        mortal = True
        print("mortal", flush=True)
    elif command.startswith(("press ", "release ")):
        verb, name = command.split()
        signal = "Activated" if verb == "press" else "Deactivated"
        connection.emit_signal(None, OBJECT, KEYS, signal, GLib.Variant("(osta{sv})", (sessions[KEYS], name, 0, {})))
    elif command.startswith("change "):
        name, words = command.removeprefix("change ").split(" ", 1)
        list_of_one = GLib.Variant("(oa(sa{sv}))", (sessions[KEYS], [bound(name, words)]))
        connection.emit_signal(None, OBJECT, KEYS, "ShortcutsChanged", list_of_one)
    return False


def read_commands(connection):
    # Open for writing as well it never ends, however often writers come and go.
    with open(os.open(sys.argv[2], os.O_RDWR), encoding="utf-8") as pipe:
        for line in pipe:
            GLib.idle_add(obey, connection, line.strip())


flags = Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION
bus = Gio.DBusConnection.new_for_address_sync(sys.argv[1], flags, None, None)
own_faces = ([] if "only" in how else [DESKTOP]) + ([SHORTCUTS] if "shortcuts" in how else []) + [REGISTRY]
for face in [KDE_PART] if "kde-part" in how else own_faces:
    bus.register_object(OBJECT, face, on_call, on_get, None)
if "layouts" in how:
    bus.register_object("/Layouts", LAYOUTS, on_call, None, None)
    Gio.bus_own_name_on_connection(bus, "org.kde.keyboard", Gio.BusNameOwnerFlags.NONE, None, None)
if "gnome" in how:
    for name in ("org.gnome.Shell", "org.freedesktop.impl.portal.desktop.gnome"):
        Gio.bus_own_name_on_connection(bus, name, Gio.BusNameOwnerFlags.NONE, None, None)
if "own-part" in how:
    bus.register_object(OBJECT, OWN_PART, on_call, None, None)
loop = GLib.MainLoop()
name = "org.freedesktop.impl.portal.desktop.kde" if "kde-part" in how else "org.freedesktop.portal.Desktop"
Gio.bus_own_name_on_connection(
    bus, name, Gio.BusNameOwnerFlags.NONE, lambda *_: print("ready", flush=True), None)
threading.Thread(target=read_commands, args=(bus,), daemon=True).start()
loop.run()
