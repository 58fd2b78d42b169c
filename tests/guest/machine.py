# SPDX-License-Identifier: MIT
"""A virtual machine: its keyboard, its screen, and two lines by which programs are started in it."""
import atexit
import base64
import json
import pathlib
import socket
import subprocess
import time

# Of what is waited for; a machine that is played, on a processor that others use too, is slow.
PATIENCE = 300.0
KEYS = {" ": "spc", ".": "dot", ",": "comma", "-": "minus", "\n": "ret"}


class Failure(Exception):
    """What was waited for in vain."""


def settles(condition, seconds=PATIENCE):
    """Whether it becomes true in that time."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        if condition():
            return True
        time.sleep(0.1)
    return False


def wait_for(what, condition, seconds=PATIENCE):
    if not settles(condition, seconds):
        raise Failure("waited in vain for " + what)


class Line:
    """To who obeys in the machine (inside.py); what is asked for before somebody does waits."""

    def __init__(self, path):
        self.socket = socket.socket(socket.AF_UNIX)
        self.socket.connect(str(path))
        self.socket.settimeout(2 * PATIENCE)
        self.answers = self.socket.makefile("rb")

    def _ask(self, command):
        try:
            self.socket.sendall(json.dumps(command).encode("ascii") + b"\n")
            return json.loads(self.answers.readline())
        except (OSError, ValueError) as failure:
            raise Failure(f"the machine does not answer to {command}: {failure}") from failure

    def start(self, *command):
        self._ask(["&", *command])

    def await_moment(self):
        """Of the machine's clock: 50 ms."""
        self._ask([])

    def data(self, *command):
        """Its exit status and all that it says."""
        answer = self._ask(command)
        return answer["status"], base64.b64decode(answer["output"])

    def output(self, *command):
        return self.data(*command)[1].decode("utf-8", "replace")

    def succeeds(self, *command):
        return self.data(*command)[0] == 0

    def must(self, *command):
        status, said = self.data(*command)
        if status != 0:
            raise Failure(f"{' '.join(command)}: {said.decode('utf-8', 'replace').strip()}")


class Machine:
    """Of the disks in that folder, which stay as they are. What it says at its serial line is in the log."""

    def __init__(self, folder, log):
        self.places = {name: folder / f"{name}.socket" for name in ("control", "root", "session")}
        for place in self.places.values():
            place.unlink(missing_ok=True)
        command = ["qemu-system-x86_64", "-accel", "tcg", "-icount", "shift=2", "-cpu", "max", "-m", "2048",
                   "-nodefaults", "-display", "none", "-no-reboot", "-device", "virtio-vga", "-device", "virtio-rng-pci",
                   "-serial", f"file:{log}", "-qmp", f"unix:{self.places['control']},server=on,wait=off",
                   "-kernel", str(folder / "kernel"), "-initrd", str(folder / "first"),
                   "-append", "console=tty0 console=ttyS0 quiet panic=-1 mitigations=off fsck.mode=skip apparmor=0 audit=0"]
        for name in ("system", "errand"):
            command += ["-drive", f"file={folder / name}.ext4,format=raw,if=virtio,snapshot=on"]
        command += ["-device", "virtio-serial-pci"]
        for name in ("root", "session"):
            command += ["-chardev", f"socket,id={name},path={self.places[name]},server=on,wait=off",
                        "-device", f"virtserialport,chardev={name},name={name}"]
        self.program = subprocess.Popen(command, stdin=subprocess.DEVNULL)
        atexit.register(self.end)
        wait_for("the machine", self.places["session"].exists)
        self.control = socket.socket(socket.AF_UNIX)
        self.control.connect(str(self.places["control"]))
        self.answers = self.control.makefile("rb")
        self.answers.readline()
        self._tell("qmp_capabilities")
        self.root = Line(self.places["root"])
        self.session = Line(self.places["session"])

    def runs(self):
        return self.program.poll() is None

    def end(self):
        self.program.terminate()
        self.program.wait()

    def _tell(self, command, **arguments):
        try:
            self.control.sendall(json.dumps({"execute": command, "arguments": arguments}).encode("ascii"))
            answers = iter(self.answers.readline, b"")
        except OSError as failure:
            raise Failure(f"the machine has ended: {failure}") from failure
        for line in answers:
            answer = json.loads(line)
            if "error" in answer:
                raise Failure(f"the machine refuses {command}: {answer['error']['desc']}")
            if "return" in answer:
                return
        raise Failure("the machine has ended")

    def _move(self, key, is_down):
        event = {"type": "key", "data": {"down": is_down, "key": {"type": "qcode", "data": key}}}
        self._tell("input-send-event", events=[event])
        # Nobody types faster, and the keyboard keeps 16 bytes for a kernel that does not ask.
        self.root.await_moment()

    def stroke(self, *keys):
        """All of them, one after the other, and back."""
        for key in keys:
            self._move(key, True)
        for key in reversed(keys):
            self._move(key, False)

    def type(self, text):
        for letter in text:
            key = KEYS.get(letter, letter.lower())
            self.stroke(*(("shift", key) if letter.isupper() else (key,)))

    def pause(self, seconds):
        """By the machine's own clock, which goes the slower the less of the processor it gets."""
        self.root.must("sleep", str(seconds))

    def picture(self, file: pathlib.Path):
        """Of what its screen shows, as the screen's own device has it."""
        self._tell("screendump", filename=str(file), format="png")

    def console(self, number):
        """The text that is on that console."""
        return self.root.output("cat", f"/dev/vcs{number}")

    def front_console(self):
        return self.root.output("cat", "/sys/class/tty/tty0/active").strip()
