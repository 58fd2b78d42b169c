#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""world_run.py STANDIN PACKAGING FOLDER: the world of world.py in an empty folder, for tests in other languages. Does each
line of the pipe FOLDER/commands, and adds a line to FOLDER/answers once it is done; the first when all is there. It ends
when nobody has the pipe open for writing any more."""
import contextlib
import os
import sys

from world import NAME, World, await_true

CAPTURE = "example.orlen.Keyrill.capture"
NONSENSE = f"""
import dbus.mainloop.glib, dbus.service
from gi.repository import GLib
dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
class Nonsense(dbus.service.Object):
    @dbus.service.method("{NAME}1", in_signature="b", out_signature="s")
    def OpenKeyboards(self, mayAsk):
        return "keyboards"
bus = dbus.SystemBus()
served = Nonsense(bus, "/example/orlen/Keyrill/Access")
name = dbus.service.BusName("{NAME}", bus)
GLib.MainLoop().run()
"""


class Standalone(World):
    # As programs run in compositors: nobody for root.
    user = os.getuid() or 65534

    def __init__(self, stack, standin):
        self.stack = stack
        self.standin = standin

    def addCleanup(self, function, *arguments):
        self.stack.callback(function, *arguments)

    # The commands.

    def do_serve(self):
        self.serve(self.standin)

    def do_allow(self):
        self.allow(CAPTURE)

    def do_hang(self):
        self.polkit.SimulateHang(True)

    def do_await_question(self):
        await_true("the question", self.polkit.HaveHangingCalls)

    def do_release(self):
        self.polkit.SimulateHang(False)
        self.polkit.ReleaseHangingCalls()

    def do_kill(self):
        self.service.kill()
        self.service.wait()

    def do_back(self):
        """Another session is in front: as the kernel ends what is revoked, pipes end with their writers."""
        self.change_session(Active=False)
        self.await_revoked()
        self.close_writers()

    def close_writers(self):
        for writer in self.writers:
            os.close(writer)
            # Closed once more at the end.
            os.dup2(os.open("/dev/null", os.O_RDWR), writer)

    def do_nonsense(self):
        """Another program answers in the service's name, with a text for keyboards."""
        self.start("/usr/bin/python3", "-c", NONSENSE)
        await_true("the other program", lambda: self.bus.name_has_owner(NAME))


def main():
    standin, packaging, folder = sys.argv[1:]
    with contextlib.ExitStack() as stack:
        world = Standalone(stack, standin)
        world.begin(folder, packaging)
        commands = os.path.join(folder, "commands")
        os.mkfifo(commands)
        with open(os.path.join(folder, "answers"), "w", encoding="ascii", buffering=1) as answers:
            answers.write("up\n")
            with open(commands, encoding="ascii") as lines:
                for line in lines:
                    getattr(world, "do_" + line.strip())()
                    answers.write(line)


if __name__ == "__main__":
    main()
