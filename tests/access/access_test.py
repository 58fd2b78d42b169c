#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""access_test.py STANDIN CLIENT FOLDER: the service (STANDIN, over pipes) on a bus of its own with the policy that lies in
FOLDER, asked by others and by CLIENT, the program's own way to it;
polkit and logind are played by dbusmock. What is judged is what callers get, which devices are revoked and what is typed."""
import errno
import fcntl
import os
import pathlib
import signal
import subprocess
import sys
import tempfile
import unittest

import dbus
from world import NAME, PATIENCE, World, await_true

PATH = "/example/orlen/Keyrill/Access"
FACE = "example.orlen.Keyrill.Access1"
CAPTURE = "example.orlen.Keyrill.capture"
TYPE = "example.orlen.Keyrill.type"
STANDIN, CLIENT, PACKAGING = sys.argv[1], sys.argv[2], sys.argv[3]

class AccessTest(World, unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="keyrill-access.")
        self.addCleanup(folder.cleanup)
        self.begin(folder.name, PACKAGING)
        self.typed = os.open(self.folder / "typing", os.O_RDONLY | os.O_NONBLOCK)
        self.addCleanup(os.close, self.typed)
        self.serve(STANDIN)

    def access(self, bus=None):
        return dbus.Interface((bus or self.bus).get_object(NAME, PATH, introspect=False), FACE)

    def open(self, bus=None):
        """The names of the keyboards that the caller gets, and their descriptors."""
        found = {}
        for name, descriptor in self.access(bus).OpenKeyboards(True):
            found[str(name)] = descriptor.take()
            self.addCleanup(os.close, found[str(name)])
        return found

    def assert_error(self, name, call, *arguments):
        with self.assertRaises(dbus.DBusException) as caught:
            call(*arguments)
        self.assertEqual(caught.exception.get_dbus_name(), "org.freedesktop.DBus.Error." + name)

    def assert_refused(self, bus=None):
        self.assert_error("AccessDenied", self.access(bus).OpenKeyboards, True)
        self.assertEqual(self.revoked(), [])

    def lines_typed(self):
        try:
            return os.read(self.typed, 4096).decode().splitlines()
        except OSError as error:
            self.assertEqual(error.errno, errno.EAGAIN)
            return None

    def strokes(self, *pairs):
        return dbus.Array([(dbus.UInt16(code), dbus.Byte(press)) for code, press in pairs], signature="(qy)")


class OpenTest(AccessTest):
    def test_without_permission_nothing_is_opened(self):
        self.assert_refused()

    def test_keyboards_are_passed_for_reading_alone(self):
        self.allow(CAPTURE)
        keyboards = self.open()
        self.assertEqual(sorted(keyboards), ["event0", "event1"])
        os.write(self.writers[0], b"key")
        self.assertEqual(os.read(keyboards["event0"], 16), b"key")
        for descriptor in keyboards.values():
            self.assertEqual(fcntl.fcntl(descriptor, fcntl.F_GETFL) & os.O_ACCMODE, os.O_RDONLY)

    def test_permission_to_type_is_none_to_read(self):
        self.allow(TYPE)
        self.assert_refused()

    def test_new_keyboards_are_opened_without_asking_again(self):
        self.allow(CAPTURE)
        self.open()
        self.allow()
        self.assertEqual(self.open(), {})
        self.plug("event2")
        self.assertEqual(list(self.open()), ["event2"])

    def test_after_closing_permission_is_needed_again(self):
        self.allow(CAPTURE)
        self.open()
        self.allow()
        self.access().Close()
        self.await_revoked()
        self.assert_error("AccessDenied", self.access().OpenKeyboards, True)

    def test_who_leaves_the_bus_loses_all(self):
        self.allow(CAPTURE)
        caller = self.connect()
        self.open(caller)
        caller.close()
        self.await_revoked()

    def test_another_caller_needs_a_permission_of_his_own(self):
        self.allow(CAPTURE)
        self.open()
        self.allow()
        self.assert_refused(self.connect())

    def test_the_end_of_one_caller_is_not_that_of_another(self):
        self.allow(CAPTURE)
        first, second = self.connect(), self.connect()
        self.open(first)
        self.open(second)
        first.close()
        self.await_revoked()
        self.allow()
        self.assertEqual(self.open(second), {})

    def test_the_service_revokes_when_it_is_ended(self):
        self.allow(CAPTURE)
        self.open()
        self.service.send_signal(signal.SIGTERM)
        self.assertEqual(self.service.wait(PATIENCE), 0)
        self.await_revoked()


class SessionTest(AccessTest):
    def test_nobody_is_asked_for_a_session_in_the_back(self):
        self.allow(CAPTURE)
        self.change_session(Active=False)
        self.polkit.SimulateHang(True)
        self.assert_refused()
        self.assertFalse(self.polkit.HaveHangingCalls())

    def test_a_locked_session_is_refused(self):
        self.allow(CAPTURE)
        self.change_session(LockedHint=True)
        self.assert_refused()

    def test_a_session_from_elsewhere_is_refused(self):
        self.allow(CAPTURE)
        self.change_session(Remote=True)
        self.assert_refused()

    def test_the_session_of_another_user_is_refused(self):
        self.allow(CAPTURE)
        self.set_session_of_process(self.add_session("c2", 4711))
        self.assert_refused()

    def test_who_has_no_session_is_refused(self):
        self.allow(CAPTURE)
        self.set_session_of_process(None)
        self.assert_refused()

    def test_who_was_started_by_his_service_manager_has_the_session_of_his_display(self):
        self.allow(CAPTURE)
        self.set_session_of_process(None)
        user = "/org/freedesktop/login1/user/other"
        self.manager.AddMethod("org.freedesktop.login1.Manager", "GetUser", "u", "o", f"ret = dbus.ObjectPath('{user}')")
        display = dbus.Struct(("c1", dbus.ObjectPath(self.session.object_path)), signature="so")
        self.manager.AddObject(user, "org.freedesktop.login1.User", dbus.Dictionary({"Display": display}, signature="sv"),
                               dbus.Array([], signature="(ssss)"))
        self.assertEqual(sorted(self.open()), ["event0", "event1"])
        self.change_session(Active=False)
        self.await_revoked()

    def test_going_to_the_back_revokes(self):
        self.allow(CAPTURE)
        self.open()
        self.change_session(Active=False)
        self.await_revoked()
        self.assert_error("AccessDenied", self.access().OpenKeyboards, True)

    def test_back_in_front_permission_is_needed_again(self):
        self.allow(CAPTURE)
        self.open()
        self.allow()
        self.change_session(Active=False)
        self.await_revoked()
        self.change_session(Active=True)
        self.assert_error("AccessDenied", self.access().OpenKeyboards, True)

    def test_locking_revokes(self):
        self.allow(CAPTURE)
        self.open()
        self.change_session(LockedHint=True)
        self.await_revoked()

    def test_the_end_of_the_session_revokes(self):
        self.allow(CAPTURE)
        self.open()
        self.manager.EmitSignal("org.freedesktop.login1.Manager", "SessionRemoved", "so",
                                ["c1", dbus.ObjectPath(self.session.object_path)])
        self.await_revoked()

    def test_another_session_may_end(self):
        self.allow(CAPTURE)
        other = self.add_session("c2", os.getuid())
        self.open()
        other.UpdateProperties("org.freedesktop.login1.Session", dbus.Dictionary({"Active": False}, signature="sv"))
        self.allow()
        self.assertEqual(self.open(), {})
        self.assertEqual(self.revoked(), [])

    def test_the_end_of_logind_revokes(self):
        self.allow(CAPTURE)
        self.open()
        self.logind.kill()
        self.await_revoked()

    def test_a_session_that_goes_to_the_back_during_the_question_gets_nothing(self):
        self.allow(CAPTURE)
        self.polkit.SimulateHang(True)
        caller = subprocess.Popen(["/usr/bin/gdbus", "call", "--address", self.address, "--dest", NAME, "--object-path",
                                   PATH, "--method", FACE + ".OpenKeyboards", "true"], stdout=subprocess.PIPE,
                                  stderr=subprocess.STDOUT, text=True)
        await_true("the question", self.polkit.HaveHangingCalls)
        self.change_session(Active=False)
        self.polkit.ReleaseHangingCalls()
        self.assertIn("AccessDenied", caller.communicate(timeout=PATIENCE)[0])


class HalfWayTest(AccessTest):
    def ask(self):
        self.polkit.SimulateHang(True)
        caller = subprocess.Popen(["/usr/bin/gdbus", "call", "--address", self.address, "--dest", NAME, "--object-path",
                                   PATH, "--method", FACE + ".OpenKeyboards", "true"], stdout=subprocess.DEVNULL,
                                  stderr=subprocess.DEVNULL)
        self.addCleanup(caller.wait)
        self.addCleanup(caller.kill)
        await_true("the question", self.polkit.HaveHangingCalls)
        return caller

    def test_who_is_killed_during_the_question_gets_nothing(self):
        self.allow(CAPTURE)
        caller = self.ask()
        caller.kill()
        caller.wait()
        self.polkit.SimulateHang(False)
        self.polkit.ReleaseHangingCalls()
        # Served after what was released; what is passed is open for a moment more.
        self.assertEqual(sorted(self.open()), ["event0", "event1"])
        await_true("one open keyboard", lambda: self.readers("event0") == 1)

    def readers(self, name):
        count = 0
        for link in pathlib.Path(f"/proc/{self.service.pid}/fd").iterdir():
            try:
                count += os.readlink(link).endswith("/" + name)
            except FileNotFoundError:
                continue
        return count

    def test_one_question_at_a_time(self):
        self.allow(CAPTURE)
        self.polkit.SimulateHang(True)
        caller = self.connect()
        caller.call_async(NAME, PATH, FACE, "OpenKeyboards", "b", (True,), None, None)
        caller.flush()
        await_true("the question", self.polkit.HaveHangingCalls)
        self.assert_error("LimitsExceeded", self.access(caller).OpenKeyboards, True)
        self.assert_error("LimitsExceeded", self.access(caller).OpenTyping, True)


class TypeTest(AccessTest):
    def test_without_permission_nothing_is_typed(self):
        self.allow(CAPTURE)
        self.assert_error("AccessDenied", self.access().OpenTyping, True)
        self.assert_error("AccessDenied", self.access().Type, self.strokes((30, 1)))
        self.assertEqual(self.lines_typed(), [])

    def test_permission_to_read_is_none_to_type(self):
        self.allow(CAPTURE)
        self.open()
        self.assert_error("AccessDenied", self.access().Type, self.strokes((30, 1)))

    def test_keys_are_typed_in_order(self):
        self.allow(TYPE)
        self.access().OpenTyping(True)
        self.access().Type(self.strokes((42, 1), (30, 1), (30, 0), (42, 0)))
        self.assertEqual(self.lines_typed(), ["42 down", "30 down", "30 up", "42 up"])

    def test_nonsense_is_refused_whole_and_the_service_goes_on(self):
        self.allow(TYPE)
        self.access().OpenTyping(True)
        for strokes in (self.strokes((30, 1), (116, 1)), self.strokes((30, 2)), self.strokes((0, 1)),
                        self.strokes((600, 1)), self.strokes(*[(30, 1)] * 65), self.strokes()):
            self.assert_error("InvalidArgs", self.access().Type, strokes)
        self.assert_error("InvalidArgs", self.access().Type, "text")
        self.assert_error("InvalidArgs", self.access().OpenTyping, 5)
        self.assert_error("UnknownMethod", self.access().Format)
        self.access().Type(self.strokes((30, 1)))
        self.assertEqual(self.lines_typed(), ["30 down"])

    def test_the_kernels_hot_key_is_not_typed(self):
        self.allow(TYPE)
        self.access().OpenTyping(True)
        self.assert_error("Failed", self.access().Type, self.strokes((56, 1), (99, 1), (48, 1)))
        self.assertEqual(self.lines_typed(), ["56 down"])

    def test_the_keyboard_is_gone_with_its_caller(self):
        self.allow(TYPE)
        caller = self.connect()
        self.access(caller).OpenTyping(True)
        self.access(caller).Type(self.strokes((30, 1)))
        self.assertEqual(self.lines_typed(), ["30 down"])
        self.assertIsNone(self.lines_typed())
        caller.close()
        await_true("the end of the keyboard", lambda: self.lines_typed() == [])

    def test_the_keyboard_is_gone_in_the_back(self):
        self.allow(TYPE)
        self.access().OpenTyping(True)
        self.change_session(Active=False)
        await_true("the end of the keyboard", lambda: self.lines_typed() == [])
        self.assert_error("AccessDenied", self.access().Type, self.strokes((30, 1)))


class ProgramTest(AccessTest):
    """How the program itself asks for keyboards."""

    def setUp(self):
        super().setUp()
        self.client = subprocess.Popen([CLIENT, self.address], stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)

        def end():
            self.client.kill()
            self.client.wait()
            self.client.stdin.close()
            self.client.stdout.close()
        self.addCleanup(end)

    def say(self, word):
        self.client.stdin.write(word + "\n")
        self.client.stdin.flush()

    def heard(self):
        """The words of the next answer, in order of the alphabet."""
        words = self.client.stdout.readline().split()
        return words[:1] + sorted(words[1:]) if words[0] == "opened" else " ".join(words)

    def test_keyboards_come_with_permission_and_later_ones_too(self):
        self.allow(CAPTURE)
        self.say("open")
        self.assertEqual(self.heard(), ["opened", "event0", "event1"])
        self.plug("event2")
        self.say("try")
        self.assertEqual(self.heard(), ["opened", "event2"])

    def test_a_refusal_is_told_and_the_next_question_may_be_answered(self):
        self.say("open")
        self.assertEqual(self.heard(), "Keyrill may not read the keyboard: permission was not given.")
        self.allow(CAPTURE)
        self.say("open")
        self.assertEqual(self.heard(), ["opened", "event0", "event1"])

    def test_closing_revokes_and_opening_again_asks_again(self):
        self.allow(CAPTURE)
        self.say("open")
        self.heard()
        self.allow()
        self.say("close")
        self.await_revoked()
        self.say("open")
        self.assertEqual(self.heard(), "Keyrill may not read the keyboard: permission was not given.")

    def test_a_question_that_takes_the_place_of_another_is_answered_once(self):
        self.polkit.SimulateHang(True)
        self.say("try")
        await_true("the question", self.polkit.HaveHangingCalls)
        self.say("open")
        self.allow(CAPTURE)
        self.polkit.SimulateHang(False)
        self.polkit.ReleaseHangingCalls()
        self.assertEqual(self.heard(), ["opened", "event0", "event1"])

    def test_a_service_that_is_not_there_is_named(self):
        self.service.kill()
        self.service.wait()
        await_true("the end of the service", lambda: not self.bus.name_has_owner(NAME))
        self.say("open")
        self.assertEqual(self.heard(), "Keyrill cannot read the keyboard: the service keyrill-access is not installed.")

    def test_a_service_that_dies_during_the_question_is_told(self):
        self.polkit.SimulateHang(True)
        self.say("open")
        await_true("the question", self.polkit.HaveHangingCalls)
        self.service.kill()
        self.assertEqual(self.heard(), "Keyrill cannot read the keyboard: the service keyrill-access does not work.")

    def test_a_service_that_dies_with_keyboards_open_is_told(self):
        self.allow(CAPTURE)
        self.say("open")
        self.heard()
        self.service.kill()
        self.assertEqual(self.heard(), "The keyboard is no longer read: the service keyrill-access has ended.")

    def test_who_is_killed_loses_all(self):
        self.allow(CAPTURE)
        self.say("open")
        self.heard()
        self.client.kill()
        self.await_revoked()


class RestTest(AccessTest):
    rest = "1"

    def test_the_service_ends_when_nobody_has_anything(self):
        self.assertEqual(self.service.wait(PATIENCE), 0)


class BusyTest(AccessTest):
    rest = "1"

    def test_the_service_stays_while_somebody_has_something(self):
        self.allow(CAPTURE)
        self.open()
        with self.assertRaises(subprocess.TimeoutExpired):
            self.service.wait(2.5)
        self.access().Close()
        self.assertEqual(self.service.wait(PATIENCE), 0)


class PolicyTest(AccessTest):
    owner = "nobody"

    def test_only_root_may_be_the_service(self):
        self.assertEqual(self.service.wait(PATIENCE), 3)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
