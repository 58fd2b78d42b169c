#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""control_test.py SOURCE PROGRAM...: debian/control beside what the programs load and start, and beside tools/packages."""
import pathlib
import re
import subprocess
import sys
import unittest

SOURCE, PROGRAMS = pathlib.Path(sys.argv[1]), sys.argv[2:]
# What the compiler itself brings.
TOOLCHAIN = {"glibc", "gcc-12"}
# Pictures and icons of the program are of this kind.
TOOLKIT_PLUGINS = ["/qt6/plugins/imageformats/libqsvg.so", "/qt6/plugins/iconengines/libqsvgicon.so"]


def output(*command):
    return subprocess.run(command, stdout=subprocess.PIPE, text=True, check=True).stdout


def paragraphs():
    """The fields of debian/control, a dictionary for each paragraph."""
    found = []
    for paragraph in (SOURCE / "debian/control").read_text(encoding="utf-8").split("\n\n"):
        fields = re.findall(r"^([A-Za-z-]+):((?:.*\n)(?:[ \t].*\n?)*)", paragraph + "\n", re.MULTILINE)
        found.append({name: value.strip() for name, value in fields})
    return found


def names(field):
    return {re.sub(r"\s*\(.*\)", "", name).strip() for name in re.split(r"[,|]", field) if name.strip()}


def section(wanted):
    found, inside = set(), False
    for line in (SOURCE / "tools/packages").read_text(encoding="utf-8").splitlines():
        if line.startswith("["):
            inside = line == f"[{wanted}]"
        elif inside and line and not line.startswith("#"):
            found.add(line)
    return found


def sources_of(packages):
    return set(output("dpkg-query", "--show", "--showformat=${source:Package}\n", *packages).split())


def loaded_by(program):
    """The files of the libraries that it names itself, by their names."""
    files = dict(re.findall(r"^\s*(\S+) => (\S+)", output("ldd", program), re.MULTILINE))
    names_there = re.findall(r"\(NEEDED\).*\[(.*)\]", output("readelf", "--dynamic", program))
    return {name: str(pathlib.Path(files[name]).resolve()) for name in names_there if name in files}


def owners_of(files):
    """The packages that have them; some know their files by the place before /lib became a link."""
    found = output("dpkg-query", "--search", *("*" + file.removeprefix("/usr") for file in files))
    return {line.split(":")[0] for line in found.splitlines()}


class ControlTest(unittest.TestCase):
    def setUp(self):
        self.source, *binaries = paragraphs()
        self.binaries = {fields["Package"]: fields for fields in binaries}
        self.build = names(self.source["Build-Depends"])

    def test_each_library_that_is_linked_comes_from_a_package_to_build_with(self):
        files = {}
        for program in PROGRAMS:
            files.update(loaded_by(program))
        self.assertIn("libQt6Widgets.so.6", files)
        built_with = sources_of(self.build & section("build"))
        self.assertEqual(sources_of(owners_of(files.values())) - built_with - TOOLCHAIN, set())

    def test_the_linked_libraries_become_needs_of_the_packages(self):
        self.assertEqual(set(self.binaries), {"keyrill", "keyrill-wayland-access"})
        for fields in self.binaries.values():
            self.assertIn("${shlibs:Depends}", names(fields["Depends"]))

    def test_what_is_built_with_here_is_what_packages_are_built_with(self):
        # The package looks for no newer versions; it has the compiler and the build's own tools by themselves.
        self.assertEqual(section("build") - self.build, {"build-essential", "libcurl4-openssl-dev"})
        self.assertEqual(self.build - section("build"), {"debhelper-compat"})

    def test_plugins_and_programs_that_are_not_linked_are_needed_by_name(self):
        fields = self.binaries["keyrill"]
        self.assertLessEqual(owners_of(TOOLKIT_PLUGINS), names(fields["Depends"]))
        # By Workspace; without it no page opens, and all else works.
        self.assertIn(b"xdg-open", pathlib.Path(PROGRAMS[0]).read_bytes())
        self.assertIn("xdg-utils", names(fields["Recommends"]))

    def test_the_toolkits_own_words_are_there_in_each_language_of_the_program(self):
        languages = [path.stem.removeprefix("keyrill_") for path in (SOURCE / "languages").glob("keyrill_*.ts")]
        self.assertIn("de", languages)
        owners = owners_of(f"/usr/share/qt6/translations/qtbase_{language}.qm" for language in languages)
        self.assertLessEqual(owners, names(self.binaries["keyrill"]["Depends"]) & section("run"))

    def test_the_service_needs_who_starts_it_and_who_is_asked(self):
        needs = names(self.binaries["keyrill-wayland-access"]["Depends"])
        self.assertLessEqual({"dbus-system-bus", "polkitd", "systemd"}, needs)

    def test_the_version_is_that_of_the_sources(self):
        version = output("dpkg-parsechangelog", "--file", str(SOURCE / "debian/changelog"), "--show-field", "Version").strip()
        self.assertIn(f"\nproject(keyrill VERSION {version} ", (SOURCE / "CMakeLists.txt").read_text(encoding="utf-8"))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
