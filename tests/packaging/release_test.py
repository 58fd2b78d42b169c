#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""release_test.py SOURCE: what a release makes of a source tree, and when there is none."""
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

SOURCE = pathlib.Path(sys.argv[1])
PAGE = "packaging/example.orlen.Keyrill.metainfo.xml.in"
COPIED = ("CMakeLists.txt", PAGE, "tools/release", "tools/set-version")


class ReleaseTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="keyrill-release.")
        self.addCleanup(folder.cleanup)
        self.root = pathlib.Path(folder.name)
        for name in COPIED:
            (self.root / name).parent.mkdir(exist_ok=True)
            shutil.copy(SOURCE / name, self.root / name)
        self.write("debian/changelog", "keyrill (0.0.1) bookworm; urgency=medium\n\n  * Before.\n\n"
                                       " -- Ann <ann@orlen.example>  Thu, 01 Jan 2026 12:00:00 +0000\n")

    def write(self, name, text):
        (self.root / name).parent.mkdir(exist_ok=True)
        (self.root / name).write_text(text, encoding="utf-8")

    def text(self, name):
        return (self.root / name).read_text(encoding="utf-8")

    def files(self):
        return {path: path.read_bytes() for path in self.root.rglob("*")
                if path.is_file() and ".git" not in path.parts}

    def run_tool(self, *command):
        environment = {name: os.environ[name] for name in ("PATH",)}
        environment.update(HOME=str(self.root), GIT_CONFIG_NOSYSTEM="1", GIT_AUTHOR_NAME="Ann",
                           GIT_AUTHOR_EMAIL="ann@orlen.example", GIT_COMMITTER_NAME="Ann",
                           GIT_COMMITTER_EMAIL="ann@orlen.example")
        return subprocess.run(command, cwd=self.root, env=environment, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                              text=True, check=False)

    def set_version(self, version, date="2027-03-04"):
        return self.run_tool(self.root / "tools/set-version", version, date)

    def expect_refusal(self, words, *command):
        before = self.files()
        result = self.run_tool(*command)
        self.assertEqual(result.returncode, 1, result.stdout)
        self.assertIn(words, result.stdout)
        self.assertEqual(self.files(), before)

    def test_notes_become_a_chapter_and_are_gone(self):
        self.write("changes/b.feature.md", "Second\nin two lines.\n")
        self.write("changes/a.feature.md", "First.\n")
        self.write("changes/c.fix.md", "word " * 30 + "\n")
        result = self.set_version("1.2.0")
        self.assertEqual((result.returncode, result.stdout), (0, ""))
        self.assertEqual(self.text("CHANGELOG.md"), "<!-- SPDX-License-Identifier: MIT -->\n# Changes\n\n"
                         "## 1.2.0 (2027-03-04)\n\n### New\n\n- First.\n- Second in two lines.\n\n### Mended\n\n"
                         "- " + " ".join(["word"] * 23) + "\n  " + " ".join(["word"] * 7) + "\n")
        self.assertEqual(list((self.root / "changes").iterdir()), [])

    def test_the_newest_chapter_is_the_first(self):
        self.write("changes/a.fix.md", "Old.\n")
        self.set_version("1.2.0", "2027-01-01")
        self.write("changes/b.fix.md", "New.\n")
        self.set_version("1.10.0", "2027-02-02")
        self.assertEqual(self.text("CHANGELOG.md"), "<!-- SPDX-License-Identifier: MIT -->\n# Changes\n\n"
                         "## 1.10.0 (2027-02-02)\n\n### Mended\n\n- New.\n\n## 1.2.0 (2027-01-01)\n\n### Mended\n\n- Old.\n")

    def test_all_that_tells_the_version_tells_it(self):
        self.write("changes/a.fix.md", "One.\n")
        self.set_version("1.2.0")
        self.assertIn("\nproject(keyrill VERSION 1.2.0 DESCRIPTION", self.text("CMakeLists.txt"))
        self.assertIn('<release version="@PROJECT_VERSION@" date="2027-03-04"/>', self.text(PAGE))
        parsed = self.run_tool("dpkg-parsechangelog", "--all").stdout
        self.assertIn("\nVersion: 1.2.0\n", parsed)
        self.assertIn("\nDate: Thu, 04 Mar 2027 12:00:00 +0000\n", parsed)
        self.assertIn("Before.", parsed)
        self.assertNotIn("warning", parsed)

    def test_a_draft_of_the_version_is_replaced(self):
        self.write("changes/a.fix.md", "One.\n")
        self.set_version("0.0.1")
        changelog = self.text("debian/changelog")
        self.assertEqual(changelog.count("keyrill (0.0.1)"), 1)
        self.assertNotIn("Before.", changelog)

    def test_a_version_that_is_not_greater_is_refused(self):
        self.write("changes/a.fix.md", "One.\n")
        self.set_version("1.10.0")
        self.write("changes/b.fix.md", "Two.\n")
        for version in ("1.10.0", "1.9.9", "0.11.0"):
            self.expect_refusal("is not greater than 1.10.0", self.root / "tools/set-version", version, "2027-03-04")

    def test_what_is_no_version_or_no_note_is_refused(self):
        tool = self.root / "tools/set-version"
        self.expect_refusal("there is no change note", tool, "1.0.0", "2027-03-04")
        self.write("changes/a.fix.md", "One.\n")
        for version in ("1.0", "v1.0.0", "1.0.0~rc1", ""):
            self.expect_refusal("is no version", tool, version, "2027-03-04")
        self.expect_refusal("Invalid isoformat", tool, "1.0.0", "today")
        self.write("changes/b.news.md", "Two.\n")
        self.expect_refusal("no change notes: b.news.md", tool, "1.0.0", "2027-03-04")

    def make_clone(self):
        for command in (("init", "-q"), ("add", "-A"), ("commit", "-q", "-m", "all")):
            self.assertEqual(self.run_tool("git", *command).returncode, 0)

    def test_a_tree_with_changes_is_not_released(self):
        self.make_clone()
        self.write("changes/a.fix.md", "One.\n")
        self.expect_refusal("not committed", self.root / "tools/release", "1.0.0")

    def test_a_version_below_the_last_tag_is_not_released(self):
        self.write("changes/a.fix.md", "One.\n")
        self.make_clone()
        self.run_tool("git", "tag", "v1.9.0")
        self.run_tool("git", "tag", "v1.10.0")
        self.expect_refusal("there is a tag v1.10.0", self.root / "tools/release", "1.10.0")
        self.expect_refusal("1.9.5 is not greater than v1.10.0", self.root / "tools/release", "1.9.5")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
