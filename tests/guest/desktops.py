# SPDX-License-Identifier: MIT
"""The desktops that a user starts in the machine: what is to be seen of their windows, and who is typed into there."""
import json

from machine import wait_for

HOME = "/home/ann"
# Milliseconds.
REPEAT_DELAY = 1500
# The agent that asks for passwords dies on Wayland as soon as it shows its window; on the desktop's X server it does not.
STARTS = (f"sh -c 'python3 /errand/inside.py /dev/virtio-ports/session >{HOME}/session.log 2>&1 & "
          f"GDK_BACKEND=x11 /usr/lib/policykit-1-gnome/polkit-gnome-authentication-agent-1 >{HOME}/agent.log 2>&1 &'")


class Desktop:
    def __init__(self, machine):
        self.machine = machine

    def put(self, name, text):
        """A file of the user's."""
        path = f"{HOME}/{name}"
        self.machine.root.must("runuser", "-u", "ann", "--", "sh", "-c", 'mkdir -p "${1%/*}" && printf %s "$2" >"$1"', "sh", path, text)
        return path

    def title(self, wanted):
        """Of the windows there are, the one with that title, or nothing."""
        return next((window for window in self.windows() if window["title"] == wanted), None)

    def shows(self, title):
        return self.title(title) is not None

    def has_focus(self, title):
        window = self.title(title)
        return window is not None and window["focused"]

    def asks_for_keys(self):
        """A layer of the compositor's has the keys, no window: to KWin a window without a title."""
        return not any(window["focused"] and window["title"] for window in self.windows())

    def front_program(self):
        """Whose window has the keys; empty if none has."""
        return next((window["program"] for window in self.windows() if window["focused"]), "")

    def typed(self):
        """What whoever is typed into has got so far."""
        status, text = self.machine.root.data("cat", self.judge)
        return text.decode("utf-8", "replace") if status == 0 else ""


class Sway(Desktop):
    """By sway's own tree. A terminal is typed into."""

    command = "sway"
    field = "foot"
    judge = f"{HOME}/typed"

    def prepare(self):
        self.put(".profile", "export WLR_RENDERER=pixman XDG_CURRENT_DESKTOP=sway\n")
        # Nothing that is pressed key by key repeats on a slow machine.
        self.put(".config/sway/config", f"output * bg #4a6785 solid_color\ninput * repeat_delay {REPEAT_DELAY}\nexec {STARTS}\n")

    def windows(self):
        found = []

        def visit(node):
            if node.get("pid"):
                found.append({"title": node["name"], "program": node["app_id"] or node["window_properties"].get("class", ""), "focused": node["focused"]})
            for child in node["nodes"] + node["floating_nodes"]:
                visit(child)

        visit(json.loads(self.machine.session.output("swaymsg", "-r", "-t", "get_tree")))
        return found

    def focus(self, title):
        wait_for("the window " + title, lambda: self.machine.session.succeeds("swaymsg", f'[title="^{title}$"] focus'))
        wait_for("the focus on " + title, lambda: self.has_focus(title))

    def open_field(self):
        self.machine.session.start("foot", "--config=/dev/null", "--title", self.field, "sh", "-c",
                                   f"stty raw -echo icrnl; exec cat >{self.judge}")
        wait_for("the terminal", lambda: self.machine.root.succeeds("test", "-e", self.judge))
        self.focus(self.field)

    def picture(self, file):
        """As the compositor tells it."""
        _, data = self.machine.session.data("grim", "-")
        file.write_bytes(data)


class KWin(Desktop):
    """By scripts that KWin runs. A text field of Qt's is typed into."""

    command = "sh kwin"
    field = "field"
    judge = f"{HOME}/field.now"

    def __init__(self, machine):
        super().__init__(machine)
        self.scripts = 0

    def prepare(self):
        self.put(".config/kwinrc", "[Windows]\nFocusStealingPreventionLevel=0\n")
        self.put(".config/kcminputrc", f"[Keyboard]\nRepeatDelay={REPEAT_DELAY}\nRepeatRate=25\n")
        self.put(".config/kxkbrc", "[Layout]\nUse=true\nLayoutList=us\n")
        self.put("begin", "dbus-update-activation-environment --systemd WAYLAND_DISPLAY DISPLAY XDG_SESSION_TYPE XDG_CURRENT_DESKTOP "
                 f"KDE_FULL_SESSION KDE_SESSION_VERSION\n{STARTS}\nexec sleep infinity\n")
        self.put("kwin", "export XDG_SESSION_TYPE=wayland XDG_MENU_PREFIX=kf5- XDG_CURRENT_DESKTOP=KDE KDE_FULL_SESSION=true KDE_SESSION_VERSION=5 KWIN_COMPOSE=Q\n"
                 "export QT_LOGGING_RULES='*.debug=false;js.debug=true'\n"
                 f"kwin_wayland --drm --xwayland --no-lockscreen 'sh {HOME}/begin' >{HOME}/kwin.log 2>&1\n")

    def _run(self, script):
        """What it says, once KWin has run it."""
        self.scripts += 1
        name = f"ask{self.scripts}"
        file = self.put(f"{name}.js", f"function say(text) {{ print('{name}:' + text + ':{name}'); }}\n{script}\n")
        call = ("busctl", "--user", "call", "org.kde.KWin")
        said = self.machine.session.output(*call, "/Scripting", "org.kde.kwin.Scripting", "loadScript", "ss", file, name)
        self.machine.session.output(*call, "/" + said.split()[-1], "org.kde.kwin.Script", "run")
        log = []

        def has_said():
            log[:] = self.machine.root.output("cat", f"{HOME}/kwin.log").split(name + ":")[1:]
            return bool(log) and ":" + name in log[0]

        wait_for("what KWin's script says", has_said)
        self.machine.session.output(*call, "/Scripting", "org.kde.kwin.Scripting", "unloadScript", "s", name)
        return log[0].split(":" + name)[0]

    def windows(self):
        return json.loads(self._run("say(JSON.stringify(workspace.clientList().map(function (one) {\n"
                                    "return {title: one.caption, program: String(one.resourceClass), focused: one == workspace.activeClient}; })));"))

    def focus(self, title):
        wait_for("the window " + title, lambda: self.shows(title))
        self._run(f"workspace.clientList().forEach(function (one) {{ if (one.caption == '{title}') workspace.activeClient = one; }});\n"
                  "say('');")
        wait_for("the focus on " + title, lambda: self.has_focus(title))

    def open_field(self):
        self.machine.session.start("env", "QT_QPA_PLATFORM=wayland", "/errand/field", f"{HOME}/field")
        self.focus(self.field)

    def picture(self, file):
        """There is only the screen's."""
