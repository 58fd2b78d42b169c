#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""flatpak_test.py SOURCE: the Flatpak's manifest beside the sources and beside what docs/flatpak.md says of it."""
import json
import pathlib
import re
import sys
import unittest

SOURCE = pathlib.Path(sys.argv[1])
FOLDER = SOURCE / "packaging/flatpak"
# Rooms whose code runs in the sandbox.
ROOMS = ("app", "cli", "core", "engine", "languages", "library", "platform", "prefs")
# What org.kde.Platform and org.kde.Sdk have, as CMake calls it.
OF_THE_RUNTIME = {"CURL", "GIO_UNIX", "GLIB", "PkgConfig", "Qt6", "Threads", "WAYLAND_CLIENT", "XCB", "XCB_INPUT", "XCB_RECORD",
                  "XCB_RES", "XCB_XKB", "XCB_XTEST", "XKBCOMMON", "XKBCOMMON_X11"}
OF_MODULES = {"Boost": "boost-headers", "nlohmann_json": "nlohmann-json"}
# Of the tests alone, which the Flatpak is built without.
OF_TESTS = {"ATSPI", "GOBJECT", "GTest", "benchmark"}
# What the code has in dots that is no name on a bus: interfaces that are not called as their service, schemas, icons.
NO_NAMES = {"com.apple.systemevents", "example.orlen.Keyrill-busy-symbolic", "example.orlen.Keyrill-symbolic",
            "org.freedesktop.Application", "org.freedesktop.impl.portal.GlobalShortcuts",
            "org.freedesktop.impl.portal.RemoteDesktop", "org.gnome.desktop.input-sources", "org.gnome.desktop.wm.keybindings",
            "org.gnome.mutter.keybindings", "org.gnome.mutter.wayland.keybindings",
            "org.gnome.settings-daemon.plugins.media-keys", "org.gnome.settings-daemon.plugins.media-keys.custom-keybinding",
            "org.gnome.shell.keybindings", "org.kde.KGlobalAccel", "org.kde.KeyboardLayouts", "org.kde.kwin.Script",
            "org.kde.kwin.Scripting"}
# Theirs are each Flatpak's without asking.
ALWAYS = ("org.freedesktop.DBus", "org.freedesktop.portal")


def text_of(path):
    return (SOURCE / path).read_text(encoding="utf-8")


def is_of(name, service):
    """Whether it is the service's name, or an interface that is called after it."""
    return name == service or name.startswith(service + ".")


def dotted_names():
    """All that the code in the sandbox has in quotes and that could be a name on a bus."""
    found = set()
    for room in ROOMS:
        for path in (SOURCE / room).rglob("*"):
            if path.suffix in (".cpp", ".h"):
                found.update(re.findall(r'"((?:com|example|net|org)(?:\.[A-Za-z][\w-]*){2,})', path.read_text(encoding="utf-8")))
    return found


def section(title):
    return text_of("docs/flatpak.md").split(f"\n## {title}\n")[1].split("\n## ")[0]


class FlatpakTest(unittest.TestCase):
    def setUp(self):
        self.manifest = json.loads(text_of("packaging/flatpak/example.orlen.Keyrill.json"))
        self.id = self.manifest["id"]
        self.module = self.manifest["modules"][-1]

    def given(self, option):
        return {value for name, _, value in (argument.partition("=") for argument in self.manifest["finish-args"])
                if name == option}

    def test_it_is_called_as_the_program_calls_itself(self):
        self.assertTrue((FOLDER / f"{self.id}.json").exists())
        self.assertIn(f'name = QStringLiteral("{self.id}")', text_of("app/program/BusNames.h"))

    def test_what_a_desktop_takes_out_of_it_has_its_name(self):
        for file in (".desktop", ".metainfo.xml.in", ".xml", ".svg", "-symbolic.svg", "-busy-symbolic.svg"):
            folder = "packaging/icons" if file.endswith("svg") else "packaging"
            self.assertTrue((SOURCE / folder / (self.id + file)).exists(), file)

    def test_its_command_is_the_menu_entrys(self):
        commands = re.findall(r"^Exec=(\S+)", text_of(f"packaging/{self.id}.desktop"), re.MULTILINE)
        self.assertEqual(set(commands), {self.manifest["command"]})
        self.assertIn(f"install(TARGETS {self.manifest['command']})", text_of("app/CMakeLists.txt"))

    def test_it_is_built_from_these_sources(self):
        [source] = self.module["sources"]
        self.assertEqual((source["type"], (FOLDER / source["path"]).resolve()), ("dir", SOURCE.resolve()))

    def test_its_options_are_those_of_the_sources(self):
        options = re.findall(r"^option\((\w+) ", text_of("CMakeLists.txt"), re.MULTILINE)
        for option in self.module["config-opts"]:
            name = option.removeprefix("-D").partition("=")[0]
            self.assertIn(name, [*options, "CMAKE_BUILD_TYPE"])

    def test_each_source_from_elsewhere_has_its_sum(self):
        for module in self.manifest["modules"][:-1]:
            for source in module["sources"]:
                self.assertRegex(source["sha256"], "^[0-9a-f]{64}$", module["name"])

    def test_each_library_comes_from_the_runtime_or_a_module(self):
        wanted = set(re.findall(r"(?:find_package|pkg_check_modules)\((\w+)", text_of("cmake/KeyrillDependencies.cmake")))
        self.assertEqual(wanted, OF_THE_RUNTIME | set(OF_MODULES) | OF_TESTS)
        self.assertEqual({module["name"] for module in self.manifest["modules"][:-1]}, set(OF_MODULES.values()))

    def test_each_name_of_the_code_is_given_or_refused_on_purpose(self):
        refused = {name for line in section("What is not given").splitlines() if line.startswith("| `")
                   for name in re.findall("`([^`]+)`", line.split("|")[1])}
        given = self.given("--talk-name") | self.given("--system-talk-name")
        self.assertEqual(refused & given, set())
        known = given | refused | {self.id} | set(ALWAYS)
        names = dotted_names()
        undecided = {name for name in names - NO_NAMES if not any(is_of(name, service) for service in known)}
        self.assertEqual(undecided, set())
        self.assertEqual(NO_NAMES - names, set())

    def test_no_name_is_given_that_the_code_has_not(self):
        for name in self.given("--talk-name") | self.given("--system-talk-name"):
            self.assertIn(name, dotted_names())

    def test_each_permission_is_told_of(self):
        told = section("What is given")
        for argument in self.manifest["finish-args"]:
            saver = re.fullmatch(r"--talk-name=(org\.\w+)\.ScreenSaver", argument)
            self.assertIn(f"`{saver[1]}`" if saver and "freedesktop" not in argument else f"`{argument}`", told)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
