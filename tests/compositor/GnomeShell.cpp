// SPDX-License-Identifier: MIT
#include "compositor/GnomeShell.h"

#include <stdexcept>

#include "compositor/BusClient.h"

namespace {

constexpr const char* shell = "org.gnome.Shell";
constexpr const char* shellObject = "/org/gnome/Shell";

/// As a text of a script.
std::string quoted(const std::string& title) {
    std::string text = "'";
    for (const char letter : title) {
        if (letter == '\'' || letter == '\\') text += '\\';
        text += letter;
    }
    return text + "'";
}

/// The text that JSON has in quotes; there is nothing to unescape in what tests ask for.
std::string unquoted(const std::string& json) {
    return json.size() < 2 ? json : json.substr(1, json.size() - 2);
}

}  // namespace

GnomeShell::GnomeShell(const Options& options)
    : m_bus(std::make_unique<BusClient>(m_session.environment().at("DBUS_SESSION_BUS_ADDRESS"))) {
    m_session.set("WAYLAND_DISPLAY", "gnome");
    m_session.set("XDG_CURRENT_DESKTOP", "GNOME");
    m_session.set("XDG_SESSION_DESKTOP", "gnome");
    m_session.set("GNOME_SHELL_SESSION_MODE", "user");
    m_session.set("GSETTINGS_BACKEND", "dconf");
    m_session.set("LIBGL_ALWAYS_SOFTWARE", "1");
    m_session.set("DBUS_SYSTEM_BUS_ADDRESS", options.systemBus);
    m_services.push_back(m_session.startService({"/usr/libexec/dconf-service"}, "dconf.log", "ca.desrt.dconf",
                                                "/ca/desrt/dconf/Writer/user"));
    m_services.push_back(m_session.startService({"/usr/libexec/at-spi-bus-launcher", "--launch-immediately"},
                                                "at-spi.log", "org.a11y.Bus", "/org/a11y/bus"));
    set({"org.gnome.shell", "welcome-dialog-last-shown-version", "'999'"});
    set({"org.gnome.desktop.interface", "enable-animations", "false"});
    // One colour behind all windows.
    set({"org.gnome.desktop.background", "picture-options", "'none'"});
    for (const Setting& setting : options.settings) set(setting);
    startShell();
    m_services.push_back(m_session.startService({"/usr/libexec/gsd-media-keys"}, "media-keys.log",
                                                "org.gnome.SettingsDaemon.MediaKeys",
                                                "/org/gnome/SettingsDaemon/MediaKeys"));
    startPortal();
}

GnomeShell::~GnomeShell() = default;

void GnomeShell::startShell() {
    m_program = m_session.startService({"gnome-shell", "--headless", "--wayland", "--virtual-monitor",
                                        "1280x800", "--wayland-display", "gnome", "--unsafe-mode"},
                                       "shell.log", shell, shellObject, {{"DISPLAY", ""}});
    // It has its name before it takes calls, and begins with the overview of its windows, which takes keys.
    const auto isStarted = [this] {
        return m_session.log("shell.log").find("GNOME Shell started") != std::string::npos;
    };
    const auto isAside = [this] {
        return evaluate("Main.overview.hide(), Main.overview.visible || Main.modalCount > 0") == "false";
    };
    if (!eventually(isStarted, UserSession::startUp) || !eventually(isAside)) {
        throw std::runtime_error("the shell does not get ready: " + m_session.log("shell.log"));
    }
    for (const char* const name : {"DISPLAY", "XAUTHORITY"}) {
        m_session.set(name, unquoted(evaluate("imports.gi.GLib.getenv('" + std::string(name) + "')")));
    }
}

void GnomeShell::startPortal() {
    const std::string object = "/org/freedesktop/portal/desktop";
    m_services.push_back(m_session.startService({"/usr/libexec/xdg-permission-store"}, "permissions.log",
                                                "org.freedesktop.impl.portal.PermissionStore",
                                                "/org/freedesktop/impl/portal/PermissionStore"));
    m_questions = m_session.startService({"/usr/libexec/xdg-desktop-portal-gnome"}, "portal-gnome.log",
                                         "org.freedesktop.impl.portal.desktop.gnome", object,
                                         {{"GDK_BACKEND", "wayland"}, {"GSK_RENDERER", "cairo"}});
    m_services.push_back(m_session.startService({"/usr/libexec/xdg-desktop-portal"}, "portal.log",
                                                "org.freedesktop.portal.Desktop", object));
}

std::string GnomeShell::evaluate(const std::string& expression) const {
    const auto answer =
        m_bus->call({shell, shellObject, shell, "Eval"}, g_variant_new("(s)", expression.c_str()), "(bs)");
    gboolean isDone = FALSE;
    const char* value = nullptr;
    g_variant_get(answer.get(), "(b&s)", &isDone, &value);
    if (isDone == FALSE) throw std::runtime_error("the shell's script fails: " + std::string(value));
    return value;
}

bool GnomeShell::withWindow(const std::string& title, const std::string& statement) const {
    return evaluate(
               "(() => { const window = global.get_window_actors().map(actor => actor.meta_window)"
               ".find(one => one.title === " +
               quoted(title) + "); if (window) { " + statement + "; } return Boolean(window); })()") ==
           "true";
}

bool GnomeShell::shows(const std::string& title) const { return withWindow(title, ""); }

std::string GnomeShell::front() const {
    return unquoted(evaluate("global.display.focus_window ? global.display.focus_window.title || '' : ''"));
}

bool GnomeShell::hasFocus(const std::string& title) const { return shows(title) && front() == title; }

bool GnomeShell::focus(const std::string& title) const {
    return withWindow(title, "Main.activateWindow(window)") && hasFocus(title);
}

void GnomeShell::close(const std::string& title) const {
    withWindow(title, "window.delete(global.get_current_time())");
}

void GnomeShell::makeFullScreen(const std::string& title) const {
    withWindow(title, "window.make_fullscreen()");
}

/// As the user: of his settings the files are his.
std::string GnomeShell::run(const std::vector<std::string>& command) const {
    const std::string log = "command" + std::to_string(++m_commands) + ".log";
    const int status = m_session.start(command, log)->wait();
    std::string output = m_session.log(log);
    if (status != 0) throw std::runtime_error(command.front() + " fails: " + output);
    while (output.ends_with('\n')) output.pop_back();
    return output;
}

std::string GnomeShell::setting(const std::string& schema, const std::string& key) const {
    return run({"gsettings", "get", schema, key});
}

void GnomeShell::set(const Setting& setting) const {
    run({"gsettings", "set", setting.schema, setting.key, setting.value});
}

std::string GnomeShell::picture(const std::string& name) const {
    std::string file = m_session.file(name);
    constexpr const char* service = "org.gnome.Shell.Screenshot";
    const auto answer = m_bus->call({service, "/org/gnome/Shell/Screenshot", service, "Screenshot"},
                                    g_variant_new("(bbs)", FALSE, FALSE, file.c_str()), "(bs)");
    gboolean isDone = FALSE;
    g_variant_get(answer.get(), "(bs)", &isDone, nullptr);
    if (isDone == FALSE) throw std::runtime_error("the shell gives no picture");
    return file;
}
