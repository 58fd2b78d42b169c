#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""tray_host.py serve: a tray of status notifiers on the session bus, which is there from "ready" on. Of the one icon in it,
tray_host.py icon: how wide its pictures are on which there is anything; tray_host.py menu: the labels of its menu, a line
each, without mnemonics; tray_host.py click LABEL: chooses one of them, as a panel does."""
import sys

import gi

gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib  # noqa: E402

WATCHER = "org.kde.StatusNotifierWatcher"
ITEM = "org.kde.StatusNotifierItem"
MENU = "com.canonical.dbusmenu"
FACE = Gio.DBusNodeInfo.new_for_xml(f"""<node><interface name="{WATCHER}">
  <method name="RegisterStatusNotifierItem"><arg type="s" direction="in"/></method>
  <method name="RegisterStatusNotifierHost"><arg type="s" direction="in"/></method>
  <property name="RegisteredStatusNotifierItems" type="as" access="read"/>
  <property name="IsStatusNotifierHostRegistered" type="b" access="read"/>
  <property name="ProtocolVersion" type="i" access="read"/>
  <signal name="StatusNotifierItemRegistered"><arg type="s"/></signal>
  <signal name="StatusNotifierHostRegistered"/>
</interface></node>""").interfaces[0]

bus = Gio.bus_get_sync(Gio.BusType.SESSION, None)
items = []


def on_call(connection, sender, path, interface, method, parameters, invocation):
    if method == "RegisterStatusNotifierItem":
        name = parameters[0]
        items.append(sender + name if name.startswith("/") else name + "/StatusNotifierItem")
        connection.emit_signal(None, path, WATCHER, "StatusNotifierItemRegistered", GLib.Variant("(s)", (items[-1],)))
    invocation.return_value(None)


def on_get(connection, sender, path, interface, name):
    return {"RegisteredStatusNotifierItems": GLib.Variant("as", items), "ProtocolVersion": GLib.Variant("i", 0),
            "IsStatusNotifierHostRegistered": GLib.Variant("b", True)}[name]


def serve():
    bus.register_object("/StatusNotifierWatcher", FACE, on_call, on_get, None)
    Gio.bus_own_name_on_connection(bus, WATCHER, Gio.BusNameOwnerFlags.NONE, lambda *_: print("ready", flush=True), None)
    GLib.MainLoop().run()


def call(name, path, face, method, parameters):
    return bus.call_sync(name, path, face, method, parameters, None, Gio.DBusCallFlags.NONE, 10_000, None)


def get(name, path, face, what):
    return call(name, path, "org.freedesktop.DBus.Properties", "Get", GLib.Variant("(ss)", (face, what))).unpack()[0]


def item():
    """The name and the path of the icon."""
    known = get(WATCHER, "/StatusNotifierWatcher", WATCHER, "RegisteredStatusNotifierItems")
    name, slash, path = known[-1].partition("/")
    return name, slash + path


def entries():
    """Number and label of each entry of the menu that is to be seen, from the top."""
    name, path = item()
    menu = get(name, path, ITEM, "Menu")
    call(name, menu, MENU, "AboutToShow", GLib.Variant("(i)", (0,)))
    top = call(name, menu, MENU, "GetLayout", GLib.Variant("(iias)", (0, -1, []))).unpack()[1]
    shown = [(number, facts) for number, facts, _ in top[2] if facts.get("visible", True)]
    return name, menu, [(number, facts.get("label", "").replace("_", "")) for number, facts in shown]


def click(label):
    name, menu, all_entries = entries()
    number = next(number for number, text in all_entries if text == label)
    call(name, menu, MENU, "Event", GLib.Variant("(isvu)", (number, "clicked", GLib.Variant("i", 0), 0)))


def main(mode, *arguments):
    if mode == "serve":
        serve()
    elif mode == "icon":
        name, path = item()
        sizes = [width for width, _, pixels in get(name, path, ITEM, "IconPixmap") if any(pixels)]
        print(" ".join(map(str, sorted(sizes))))
    elif mode == "menu":
        print("\n".join(label for _, label in entries()[2]))
    else:
        click(*arguments)


main(*sys.argv[1:])
