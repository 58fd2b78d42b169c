# SPDX-License-Identifier: MIT
"""What a user does in the machine, and what is judged by it; for tools/guest."""
import argparse
import pathlib
import signal
import sys
import time

from desktops import HOME, KWin, Sway
from machine import Failure, Machine, settles, wait_for

RECORD_HERE = "Record Here"
TEXT = "The quick Fox, No. 2549. "
# With a key that repeats, for as long as it takes to be killed.
HELD = 'tell application "System Events"\nkey down shift\nkey down "x"\ndelay 900\nkey up "x"\nkey up shift\nend tell\n'


class Trial:
    """Of one desktop, in a machine that is switched on for it."""

    def __init__(self, kind, options):
        self.options = options
        self.name = kind.__name__.lower()
        self.failed = False
        self.machine = Machine(options.guest, options.folder / f"{self.name}.console.log")
        self.desktop = kind(self.machine)

    # What is told.

    def tell(self, is_so, what):
        self.failed |= not is_so
        print(("ok " if is_so else "FAILED ") + f"{self.name}: {what}", flush=True)
        if is_so or not self.machine.runs():
            return
        try:
            self.machine.picture(self.options.folder / f"{self.name}-failed-{'-'.join(what.split(':')[0].split())}.png")
        except Failure as failure:
            print(f"there is no picture of it: {failure}", flush=True)

    def picture(self, name):
        self.machine.picture(self.options.folder / f"{self.name}-{name}.png")
        self.desktop.picture(self.options.folder / f"{self.name}-{name}-told.png")

    def stage(self, part):
        """Whether it came to its end."""
        try:
            part()
        except (Failure, ValueError, IndexError) as failure:
            self.tell(False, f"{part.__name__.replace('_', ' ')}: {failure}")
            # What follows may fail so that nothing can be asked any more.
            if part != self.keep_logs:
                self.stage(self.keep_logs)
            return False
        return True

    def whole(self):
        begun = time.monotonic()
        try:
            parts = (self.installation, self.session, self.refused_password, self.record_and_play, self.remembered_password,
                     self.other_console, self.killed_with_keys_down, self.password_of_another_process)
            for part in parts:
                # What follows stands on these two.
                if not self.stage(part) and part in (self.installation, self.session):
                    break
            self.stage(self.keep_logs)
        finally:
            self.machine.end()
        print(f"{self.name}: {time.monotonic() - begun:.0f} s", flush=True)

    def keep_logs(self):
        (self.options.folder / f"{self.name}.journal.log").write_text(self.machine.root.output("journalctl", "--no-pager"), encoding="utf-8")
        for log in ("session", "agent", "kwin", "keyrill"):
            text = self.machine.root.output("sh", "-c", f"cat {HOME}/{log}.log 2>/dev/null")
            (self.options.folder / f"{self.name}.{log}.log").write_text(text, encoding="utf-8")

    # The machine, judged from outside of the program.

    def keyboards_open(self):
        """How many the running program has, and what it has started."""
        if not self.machine.root.succeeds("pgrep", "-x", "keyrill"):
            raise Failure("the program has ended")
        return int(self.machine.root.output("sh", "-c", "for process in $(pgrep '^keyrill'); do ls -l /proc/$process/fd; done 2>/dev/null | "
                                            "grep -c ' /dev/input/event'"))

    def question(self):
        """The process of polkit's that waits for a password, once the keys go to the window that asks for it, or nothing."""
        process = self.machine.root.output("pgrep", "-n", "-f", "polkit-agent-helper-1").strip()
        # It has asked, and reads the answer.
        reads = process and self.machine.root.output("cat", f"/proc/{process}/syscall").startswith("0 0x0 ")
        return process if reads and self.desktop.front_program().lower().startswith("polkit-gnome") else ""

    def answers_of_polkit(self):
        journal = self.machine.root.output("journalctl", "--no-pager", "-t", "polkitd")
        return journal.count("successfully authenticated as unix-user:ann to gain TEMPORARY authorization for action "
                             "example.orlen.Keyrill.capture")

    # What the user does.

    def press(self, letter):
        self.machine.stroke("ctrl", "meta_l", letter)

    def await_question(self, but=""):
        """Not that one, but another."""
        wait_for("polkit's question", lambda: self.question() not in ("", but))
        # The agent draws the field for it.
        self.machine.pause(2)

    def start_keyrill(self):
        self.machine.session.start("sh", "-c", f"exec keyrill >>{HOME}/keyrill.log 2>&1")
        # Without a tray a small window appears, once the program is up.
        wait_for("the program", lambda: self.desktop.shows("Keyrill"))

    def focus_field(self):
        self.desktop.focus(self.desktop.field)

    def expect(self, text, what):
        """That text has come to the field and, a moment later, nothing but it."""
        settles(lambda: len(self.desktop.typed()) >= len(text))
        self.machine.pause(1)
        typed = self.desktop.typed()
        self.tell(typed == text, what + ("" if typed == text else f": {typed!r}, not {text!r}"))
        self.text = typed

    def begin_recording(self):
        self.press("r")
        wait_for("the keyboards", lambda: self.keyboards_open() > 0)

    def end_recording(self):
        self.press("s")
        wait_for("the keyboards' end", lambda: self.keyboards_open() == 0)

    # The stages.

    def installation(self):
        root = self.machine.root
        root.must("sh", "-c", "cp -a /errand/installed/. /")
        root.must("/errand/tools/access", "install", "/errand/build")
        missing = root.output("sh", "-c", "ldd /usr/bin/keyrill* /usr/libexec/keyrill/* /usr/local/libexec/keyrill-access | grep 'not found'")
        self.tell(missing == "", f"the program and keyrill-access are installed, the kernel is {root.output('uname', '-r').strip()}" + missing)

    def session(self):
        self.desktop.prepare()
        self.desktop.put(".config/keyrill/keyrill.conf", "[Settings]\nnotFirstRun=true\n")
        self.machine.root.must("chown", "ann", "/dev/virtio-ports/session")
        wait_for("the console", lambda: "login:" in self.machine.console(1))
        self.machine.type("ann\n")
        wait_for("the console's question", lambda: "Password:" in self.machine.console(1))
        self.machine.type(self.options.password + "\n")
        wait_for("the user's shell", lambda: "$" in self.machine.console(1))
        self.machine.type(self.desktop.command + "\n")
        wait_for("the desktop", lambda: self.machine.root.succeeds("pgrep", "-u", "ann", "-f", "inside.py"))
        sessions = self.machine.root.output("loginctl", "show-session", self.machine.session.output("sh", "-c", "echo $XDG_SESSION_ID").strip(),
                                            "-p", "Name", "-p", "Active", "-p", "Seat", "-p", "Class")
        self.tell(set(sessions.split()) == {"Name=ann", "Active=yes", "Seat=seat0", "Class=user"},
                  "the user has logged in on the keyboard, and the desktop is there")
        devices = self.machine.root.output("sh", "-c", "echo /dev/input/event*").split()
        readable = [device for device in devices if self.machine.session.succeeds("test", "-r", device)]
        self.tell(devices != ["/dev/input/event*"] and not readable, "the user may read none of the keyboards")
        self.desktop.open_field()
        self.machine.type("Keys. ")
        self.text = ""
        self.expect("Keys. ", "what is typed on the keyboard comes to the field")
        self.start_keyrill()
        self.focus_field()

    def refused_password(self):
        self.press("r")
        self.await_question()
        first = self.question()
        self.machine.type("not this one\n")
        self.await_question(but=first)
        self.picture("wrong-password")
        self.tell(self.keyboards_open() == 0, "after a wrong password no keyboard is open, and it is asked for again")
        self.machine.stroke("esc")
        wait_for("the window " + RECORD_HERE, lambda: self.desktop.shows(RECORD_HERE))
        self.picture("record-here")
        self.tell(self.keyboards_open() == 0, "nor after the question was refused")
        before = self.text
        self.focus_field()
        self.machine.type("elsewhere ")
        self.expect(before + "elsewhere ", "what is typed elsewhere then comes to the field")
        self.desktop.focus(RECORD_HERE)
        self.machine.type("here ")
        self.press("s")
        wait_for("the end of " + RECORD_HERE, lambda: not self.desktop.shows(RECORD_HERE))
        self.focus_field()
        before = self.text
        self.press("p")
        self.expect(before + "here ", "neither it nor the password is recorded, but what was typed into Record Here")

    def record_and_play(self):
        self.focus_field()
        before = self.text
        self.press("r")
        self.await_question()
        self.picture("question")
        self.machine.type(self.options.password + "\n")
        wait_for("the keyboards", lambda: self.keyboards_open() > 0)
        self.tell(True, "after the user's password the keyboards are open")
        self.focus_field()
        self.machine.type(TEXT)
        self.expect(before + TEXT, "what is typed while recording comes to the field")
        self.picture("recording")
        self.end_recording()
        self.tell(True, "after the stop combination no keyboard is open")
        self.press("p")
        self.expect(before + 2 * TEXT, "recorded and played by hot keys, without the password")
        self.press("m")
        wait_for("the prompt", self.desktop.asks_for_keys)
        self.picture("prompt")
        self.machine.type("3\n")
        self.expect(before + 5 * TEXT, "played three times by the prompt")
        wait_for("the keyboards' end", lambda: self.keyboards_open() == 0)

    def remembered_password(self):
        self.focus_field()
        before = self.text
        self.begin_recording()
        self.machine.type("again ")
        self.end_recording()
        self.press("p")
        self.expect(before + "again again ", "a second recording asks for no password")
        answers = self.answers_of_polkit()
        self.tell(answers == 1, f"polkit has had the right password once: {answers}")

    def other_console(self):
        self.focus_field()
        before = self.text
        self.begin_recording()
        self.machine.type("before ")
        wait_for("what was typed", lambda: self.desktop.typed() == before + "before ")
        front = self.machine.front_console()
        self.machine.stroke("ctrl", "alt", "f2")
        wait_for("the other console", lambda: self.machine.front_console() == "tty2" and "login:" in self.machine.console(2))
        self.machine.type("secret")
        wait_for("what is typed there", lambda: "secret" in self.machine.console(2))
        self.tell(self.keyboards_open() == 0, "the other console in front has closed the keyboards")
        # The desktop paints nothing meanwhile.
        self.machine.picture(self.options.folder / f"{self.name}-other-console.png")
        self.machine.stroke("ctrl", "alt", front.replace("tty", "f"))
        wait_for("the desktop", lambda: self.machine.front_console() == front)
        self.tell(settles(lambda: self.desktop.shows("The recording has ended")), "the program says that the recording has ended")
        self.picture("ended")
        self.desktop.focus("The recording has ended")
        self.machine.stroke("ret")
        wait_for("the message's end", lambda: not self.desktop.shows("The recording has ended"))
        self.focus_field()
        self.machine.type("after ")
        self.press("p")
        self.expect(before + "before after before ", "what is typed on the other console is not recorded, what was typed before is kept")
        self.machine.pause(2)
        self.tell(self.machine.front_console() == front, "the combination for the other console is not played")

    def killed_with_keys_down(self):
        self.focus_field()
        before = self.text
        self.machine.session.must("keyrill", self.desktop.put("held.keyrill", HELD))
        self.focus_field()
        self.press("p")
        wait_for("the key's repeats", lambda: self.desktop.typed().startswith(before + "XXX"))
        self.picture("held")
        self.tell(self.grows(), "a key that a macro holds down repeats")
        self.machine.root.must("pkill", "-KILL", "-x", "keyrill")
        self.machine.pause(5)
        self.tell(not self.grows(), "a program that is killed leaves no key down: nothing repeats any more")
        held = self.desktop.typed()
        self.machine.type("z")
        self.expect(held + "z", "nor Shift: a key that is typed next comes as itself")

    def grows(self):
        """Whether the field gets anything in a second; a held key comes many times."""
        before = self.desktop.typed()
        self.machine.pause(1)
        return self.desktop.typed() != before

    def password_of_another_process(self):
        self.start_keyrill()
        self.focus_field()
        self.press("r")
        self.await_question()
        self.tell(self.keyboards_open() == 0, "another process of the program is asked for the password anew")
        self.machine.stroke("esc")
        wait_for("the window " + RECORD_HERE, lambda: self.desktop.shows(RECORD_HERE))
        self.press("s")


def main():
    # The machine ends with this.
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--password", required=True)
    parser.add_argument("guest", type=pathlib.Path)
    parser.add_argument("folder", type=pathlib.Path)
    parser.add_argument("desktops", nargs="+")
    options = parser.parse_args()
    failed = False
    for name in options.desktops:
        trial = Trial({"sway": Sway, "kwin": KWin}[name], options)
        trial.whole()
        failed |= trial.failed
    sys.exit(failed)


if __name__ == "__main__":
    main()
