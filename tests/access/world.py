# SPDX-License-Identifier: MIT
"""A system bus of a test's own with the service keyrill-access over pipes (standin.cpp), under the policy that is installed;
polkit and logind are played by dbusmock."""
import getpass
import os
import pathlib
import subprocess
import time

import dbus
import dbus.bus

PATIENCE = 20.0
NAME = "example.orlen.Keyrill.Access"
MOCK = "org.freedesktop.DBus.Mock"

BUS = """<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig><type>system</type><listen>unix:path={0}/bus</listen><auth>EXTERNAL</auth>
<policy context="default"><allow user="*"/><deny own="*"/><deny send_type="method_call"/><allow send_type="signal"/>
<allow send_requested_reply="true" send_type="method_return"/><allow send_requested_reply="true" send_type="error"/>
<allow receive_type="method_call"/><allow receive_type="method_return"/><allow receive_type="error"/>
<allow receive_type="signal"/><allow send_destination="org.freedesktop.DBus"/>
<allow own="org.freedesktop.PolicyKit1"/><allow send_destination="org.freedesktop.PolicyKit1"/>
<allow own="org.freedesktop.login1"/><allow send_destination="org.freedesktop.login1"/></policy>
<include>{0}/service.conf</include></busconfig>"""


def await_true(what, condition):
    end = time.monotonic() + PATIENCE
    while not condition():
        if time.monotonic() > end:
            raise AssertionError("waited in vain for " + what)
        time.sleep(0.005)


class World:
    """A mixin; `addCleanup` is its user's, as unittest has it."""
    rest = "600"
    owner = getpass.getuser()
    # Whose session is in front.
    user = os.getuid()

    def begin(self, folder, packaging):
        """The bus, polkit, logind with one session in front, and the keyboards event0 and event1."""
        self.folder = pathlib.Path(folder)
        policy = (pathlib.Path(packaging) / "example.orlen.Keyrill.Access.conf").read_text(encoding="utf-8")
        assert 'user="root"' in policy
        (self.folder / "service.conf").write_text(policy.replace('user="root"', f'user="{self.owner}"'), encoding="utf-8")
        (self.folder / "bus.conf").write_text(BUS.format(self.folder), encoding="utf-8")
        self.address = f"unix:path={self.folder}/bus"
        self.environment = dict(os.environ, DBUS_SYSTEM_BUS_ADDRESS=self.address)
        daemon = self.start("dbus-daemon", "--nofork", "--nopidfile", f"--config-file={self.folder}/bus.conf",
                            "--print-address", output=subprocess.PIPE)
        self.addCleanup(daemon.stdout.close)
        # Written once it listens.
        assert daemon.stdout.readline()
        self.bus = self.connect()
        self.polkitd = self.start("/usr/bin/python3", "-m", "dbusmock", "--system", "--template", "polkitd")
        self.logind = self.start("/usr/bin/python3", "-m", "dbusmock", "--system", "--template", "logind")
        for name in ("org.freedesktop.PolicyKit1", "org.freedesktop.login1"):
            await_true(name, lambda: self.bus.name_has_owner(name))
        self.polkit = dbus.Interface(
            self.bus.get_object("org.freedesktop.PolicyKit1", "/org/freedesktop/PolicyKit1/Authority"), MOCK)
        manager = self.bus.get_object("org.freedesktop.login1", "/org/freedesktop/login1")
        self.manager = dbus.Interface(manager, MOCK)
        self.session = self.add_session("c1", self.user)
        self.set_session_of_process(self.session)
        self.writers = []
        for keyboard in ("event0", "event1"):
            self.plug(keyboard)
        os.mkfifo(self.folder / "typing")
        (self.folder / "revoked").touch()

    def serve(self, standin):
        self.service = self.start(standin, str(self.folder), self.rest)
        if self.owner == getpass.getuser():
            await_true("the service", lambda: self.bus.name_has_owner(NAME))

    def start(self, *command, output=subprocess.DEVNULL):
        # Also a test that is killed takes them along.
        child = subprocess.Popen(("setpriv", "--pdeathsig", "KILL", "--", *command), env=self.environment, stdout=output,
                                 stderr=subprocess.DEVNULL)

        def end():
            child.kill()
            child.wait()
        self.addCleanup(end)
        return child

    def connect(self):
        bus = dbus.bus.BusConnection(self.address)
        self.addCleanup(bus.close)
        return bus

    def add_session(self, name, user):
        path = self.manager.AddSession(name, "seat0", dbus.UInt32(user), f"user{user}", True)
        return dbus.Interface(self.bus.get_object("org.freedesktop.login1", path), MOCK)

    def set_session_of_process(self, session):
        code = f"ret = dbus.ObjectPath('{session.object_path}')" if session is not None else \
            "raise dbus.exceptions.DBusException('none', name='org.freedesktop.login1.NoSessionForPID')"
        self.manager.AddMethod("org.freedesktop.login1.Manager", "GetSessionByPID", "u", "o", code)

    def change_session(self, **properties):
        self.session.UpdateProperties("org.freedesktop.login1.Session", dbus.Dictionary(properties, signature="sv"))

    def plug(self, name):
        os.mkfifo(self.folder / name)
        writer = os.open(self.folder / name, os.O_RDWR | os.O_NONBLOCK)
        self.writers.append(writer)
        self.addCleanup(os.close, writer)

    def allow(self, *actions):
        self.polkit.SetAllowed(dbus.Array(actions, signature="s"))

    def revoked(self):
        return sorted((self.folder / "revoked").read_text(encoding="ascii").split())

    def await_revoked(self):
        await_true("the revocation", lambda: self.revoked() == ["event0", "event1"])
