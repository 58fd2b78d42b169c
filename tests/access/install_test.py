#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""install_test.py SOURCE PROGRAM: tools/access in a folder that stands for the root of a system."""
import os
import pathlib
import shutil
import stat
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree

SOURCE, PROGRAM = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
FILES = {
    "/usr/local/libexec/keyrill-access": 0o755,
    "/etc/systemd/system/keyrill-access.service": 0o644,
    "/usr/local/share/man/man8/keyrill-access.8": 0o644,
    "/usr/share/dbus-1/system-services/example.orlen.Keyrill.Access.service": 0o644,
    "/usr/share/dbus-1/system.d/example.orlen.Keyrill.Access.conf": 0o644,
    "/usr/share/polkit-1/actions/example.orlen.Keyrill.policy": 0o644,
}


class InstallTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="keyrill-install.")
        self.addCleanup(folder.cleanup)
        self.root = pathlib.Path(folder.name) / "root"
        self.root.mkdir()
        self.build = pathlib.Path(folder.name) / "build"
        (self.build / "access").mkdir(parents=True)

    def run_tool(self, *arguments):
        return subprocess.run([SOURCE / "tools/access", *arguments], env=dict(os.environ, DESTDIR=str(self.root)),
                              stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, check=False)

    def install(self):
        shutil.copy(PROGRAM, self.build / "access/keyrill-access")
        result = self.run_tool("install", str(self.build))
        self.assertEqual((result.returncode, result.stderr), (0, ""))
        return result.stdout

    def present(self):
        return {"/" + str(path.relative_to(self.root)): stat.S_IMODE(path.stat().st_mode)
                for path in self.root.rglob("*") if not path.is_dir()}

    def text(self, name):
        return (self.root / name.lstrip("/")).read_text(encoding="utf-8")

    def test_what_is_shown_is_written_and_nothing_else(self):
        shown = self.install()
        self.assertEqual(self.present(), FILES)
        for name in FILES:
            self.assertIn(f"  {self.root}{name}\n", shown)

    def test_removing_leaves_nothing_also_when_done_twice(self):
        self.install()
        for _ in range(2):
            self.assertEqual(self.run_tool("remove").returncode, 0)
            self.assertEqual(self.present(), {})

    def test_what_is_not_built_is_not_installed(self):
        result = self.run_tool("install", str(self.build))
        self.assertEqual(result.returncode, 1)
        self.assertIn("is not built", result.stderr)
        self.assertEqual(self.present(), {})

    def test_a_wrong_word_changes_nothing(self):
        for words in ((), ("repair",), ("remove", "all")):
            self.assertEqual(self.run_tool(*words).returncode, 2)
        self.assertEqual(self.present(), {})

    def test_a_package_has_it_where_distributions_keep_such_things(self):
        shutil.copy(PROGRAM, self.build / "access/keyrill-access")
        self.assertEqual(self.run_tool("package", str(self.build)).returncode, 0)
        moved = {"/usr/local/libexec/keyrill-access": "/usr/libexec/keyrill-access",
                 "/usr/local/share/man/man8/keyrill-access.8": "/usr/share/man/man8/keyrill-access.8",
                 "/etc/systemd/system/keyrill-access.service": "/lib/systemd/system/keyrill-access.service"}
        self.assertEqual(self.present(), {moved.get(name, name): mode for name, mode in FILES.items()})
        self.assertIn("\nExecStart=/usr/libexec/keyrill-access\n",
                      self.text("/lib/systemd/system/keyrill-access.service"))

    def test_a_package_is_put_together_nowhere_but_below_a_folder(self):
        shutil.copy(PROGRAM, self.build / "access/keyrill-access")
        result = subprocess.run([SOURCE / "tools/access", "package", self.build], env=dict(os.environ, DESTDIR=""),
                                stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, check=False)
        self.assertEqual((result.returncode, result.stdout), (2, ""))

    def test_the_unit_starts_what_was_installed(self):
        self.install()
        unit = self.text("/etc/systemd/system/keyrill-access.service")
        self.assertIn("\nExecStart=/usr/local/libexec/keyrill-access\n", unit)
        self.assertIn("\nCapabilityBoundingSet=\n", unit)
        self.assertIn("\nAfter=modprobe@uinput.service\n", unit)
        self.assertNotIn("[Install]", unit)
        self.assertIn("SystemdService=keyrill-access.service",
                      self.text("/usr/share/dbus-1/system-services/example.orlen.Keyrill.Access.service"))

    def test_permission_is_asked_for_in_the_session_in_front_and_nowhere_else(self):
        self.install()
        policy = xml.etree.ElementTree.fromstring(self.text("/usr/share/polkit-1/actions/example.orlen.Keyrill.policy"))
        actions = {action.get("id"): {default.tag: default.text for default in action.find("defaults")}
                   for action in policy.iter("action")}
        asked = {"allow_any": "no", "allow_inactive": "no", "allow_active": "auth_self_keep"}
        self.assertEqual(actions, {"example.orlen.Keyrill.capture": asked, "example.orlen.Keyrill.type": asked})

    def test_the_program_loads_no_toolkit(self):
        loaded = subprocess.run(["ldd", PROGRAM], stdout=subprocess.PIPE, text=True, check=True).stdout
        for library in ("Qt", "xcb", "X11", "xkbcommon", "wayland", "curl"):
            self.assertNotIn(library, loaded)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
