// SPDX-License-Identifier: MIT
#include "desktop/Desktop.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <utility>

#include "platform/x11/server/XConnection.h"
#include "support/Keys.h"
#include "support/Programs.h"

namespace {

void awaitOrThrow(const std::string& what, const std::function<bool()>& condition) {
    if (!eventually(condition, std::chrono::seconds(20)))
        throw std::runtime_error("waited in vain for " + what);
}

std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) lines.push_back(line);
    return lines;
}

/// A program that is started again has a log of its own.
std::string unusedName(const Desktop& desktop, const std::string& name) {
    int number = 1;
    while (std::filesystem::exists(desktop.file(name + std::to_string(number)))) ++number;
    return name + std::to_string(number);
}

std::vector<std::string> commandOf(WindowManager manager) {
    switch (manager) {
        case WindowManager::none:
            break;
        case WindowManager::openbox:
            return {"openbox", "--sm-disable"};
        case WindowManager::xfwm4:
            return {"xfwm4", "--compositor=off"};
        case WindowManager::fluxbox:
            return {"fluxbox"};
        case WindowManager::jwm:
            return {"jwm"};
        case WindowManager::icewm:
            return {"icewm"};
    }
    return {};
}

std::vector<std::string> commandFor(const Desktop& desktop, const std::string& script) {
    if (script.empty()) return {programs::keyrill};
    const std::string file = desktop.file("script");
    std::ofstream(file, std::ios::binary) << script;
    return {programs::keyrill, file};
}

}  // namespace

Desktop::Desktop()
    : m_server(std::make_unique<XServer>()), m_display(m_server->display()), m_screen(m_display) {
    makeHome();
}

Desktop::Desktop(std::string display) : m_display(std::move(display)), m_screen(m_display) { makeHome(); }

void Desktop::makeHome() {
    const std::filesystem::path presets = m_folder.file("presets");
    std::filesystem::create_directories(presets / "keyrill");
    std::filesystem::copy_file(programs::presets, presets / "keyrill/keyrill.conf");
    std::filesystem::create_directories(m_folder.file("host"));
    // Nobody is greeted.
    writeSettings("notFirstRun=true\n");
    mkdir(m_folder.file("runtime").c_str(), 0700);
    m_environment = {{"DISPLAY", m_display},
                     {"HOME", home()},
                     {"XDG_RUNTIME_DIR", m_folder.file("runtime")},
                     {"XDG_CONFIG_DIRS", presets},
                     {"XDG_CONFIG_HOME", ""},
                     {"XDG_DATA_HOME", ""},
                     {"XDG_STATE_HOME", ""},
                     {"XDG_CURRENT_DESKTOP", ""},
                     {"WAYLAND_DISPLAY", ""},
                     {"LC_ALL", "C.UTF-8"},
                     {"DBUS_SESSION_BUS_ADDRESS", "disabled:"}};
}

void Desktop::writeSettings(const std::string& lines) const {
    const std::filesystem::path folder = home() + "/.config/keyrill";
    std::filesystem::create_directories(folder);
    std::ofstream(folder / "keyrill.conf") << "[Settings]\n" << lines;
}

Child::Options Desktop::options(const std::string& log) const {
    return {.environment = m_environment, .outputFile = m_folder.file(log)};
}

Child::Options Desktop::hostOptions(const std::string& log) const {
    Child::Options result = options(log);
    result.environment["HOME"] = m_folder.file("host");
    result.environment["XDG_CONFIG_DIRS"] = "";
    // Toolkits look for assistive technology, which none is there.
    result.environment["NO_AT_BRIDGE"] = "1";
    return result;
}

SessionBus& Desktop::startBus() {
    m_bus = std::make_unique<SessionBus>(hostOptions("bus.log").environment);
    m_environment["DBUS_SESSION_BUS_ADDRESS"] = m_bus->address();
    return *m_bus;
}

void Desktop::startWindowManager(WindowManager manager) {
    if (manager == WindowManager::none) return;
    if (manager == WindowManager::xfwm4 && !m_bus) startBus();
    if (manager == WindowManager::icewm) {
        // Its own use of Super leaves no other program any combination with it.
        std::filesystem::create_directories(m_folder.file("host/.icewm"));
        std::ofstream(m_folder.file("host/.icewm/preferences")) << "Win95Keys=0\nModSuperIsCtrlAlt=0\n";
    }
    // The first key of a device makes the server tell of a new keymap, and openbox lets go of all its keys
    // for a moment then: the next one would be lost in it.
    press("Shift_L");
    m_manager = std::make_unique<Child>(commandOf(manager), hostOptions("manager.log"));
    awaitOrThrow("the window manager", [this] {
        return run({"xprop", "-root", "_NET_SUPPORTING_WM_CHECK"}).find("0x") != std::string::npos;
    });
}

void Desktop::startCompositor() {
    m_compositor = std::make_unique<Child>(
        std::vector<std::string>{"picom", "--backend", "xrender", "--config", "/dev/null"},
        hostOptions("compositor.log"));
    awaitOrThrow("the compositor", [this] { return m_screen.isOwned("_NET_WM_CM_S0"); });
}

TrayHost& Desktop::startTray(TrayKind kind, bool isDark) {
    if (kind == TrayKind::statusNotifier) {
        if (!m_bus) startBus();
        m_bus->letIn("org.xfce.Xfconf");
        const std::filesystem::path folder = m_folder.file("host/.config/xfce4/xfconf/xfce-perchannel-xml");
        std::filesystem::create_directories(folder);
        std::ofstream(folder / "xfce4-panel.xml") << TrayHost::panelSettings(isDark);
    }
    m_tray = std::make_unique<TrayHost>(kind, hostOptions("tray.log"), m_screen);
    return *m_tray;
}

void Desktop::killTray() {
    m_tray->program().signal(SIGKILL);
    m_tray->program().wait();
    m_tray.reset();
    // Helpers of the tray end a moment later.
    awaitOrThrow("the tray's end", [this] { return !m_screen.isOwned("_NET_SYSTEM_TRAY_S0"); });
}

std::string Desktop::run(const std::vector<std::string>& command) const {
    return outputOf(command, m_environment);
}

bool Desktop::succeeds(const std::vector<std::string>& command) const {
    return Child(command, options("command.log")).wait() == 0;
}

ScreenWindow Desktop::awaitWindow(const std::string& title) const {
    std::optional<ScreenWindow> found;
    awaitOrThrow("the window " + title, [&] { return (found = window(title)).has_value(); });
    return *found;
}

ScreenWindow Desktop::awaitFocus(const std::string& title) const {
    // A window that has been painted has many more.
    constexpr std::size_t fewestColours = 20;
    std::optional<ScreenWindow> found;
    awaitOrThrow("the focus on " + title, [&] {
        found = window(title);
        return found && hasFocus(*found) && m_screen.activeWindow() == found->number &&
               m_screen.colours(*found) > fewestColours;
    });
    return *found;
}

bool Desktop::isHotKeyTaken(std::uint8_t keycode) const {
    const auto connection = x11::XConnection::open(m_display);
    const x11::XConnection& server = connection.value();
    // Nobody else may try while the key is ours.
    xcb_grab_server(server);
    const auto grab = xcb_grab_key_checked(server, 0, server.root(), XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_4,
                                           keycode, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    const x11::XReply<xcb_generic_error_t> refused(xcb_request_check(server, grab));
    return refused != nullptr;
}

void Desktop::click(int x, int y, int button) const {
    run({"xdotool", "mousemove", std::to_string(x), std::to_string(y), "click", std::to_string(button)});
}

void Desktop::press(const std::string& combination) const { run({"xdotool", "key", combination}); }

void Desktop::setLayout(const std::vector<std::string>& layoutOptions) const {
    std::vector<std::string> command = {"setxkbmap"};
    command.insert(command.end(), layoutOptions.begin(), layoutOptions.end());
    run(command);
}

std::vector<std::string> Desktop::keysDown() const {
    std::vector<std::string> down;
    for (const std::string& device : linesOf(run({"xinput", "list", "--short"}))) {
        if (device.find("slave  keyboard") == std::string::npos) continue;
        const std::size_t start = device.find("id=") + 3;
        const std::string id = device.substr(start, device.find_first_not_of("0123456789", start) - start);
        for (const std::string& line : linesOf(run({"xinput", "query-state", id}))) {
            const std::size_t key = line.find("key[");
            if (key == std::string::npos || line.find("]=down") == std::string::npos) continue;
            down.push_back(id + " " + line.substr(key + 4, line.find(']') - key - 4));
        }
    }
    return down;
}

Keyrill::Keyrill(const Desktop& desktop, const std::string& script)
    : m_log(desktop.file(unusedName(desktop, "keyrill.log"))),
      m_child(commandFor(desktop, script), desktop.options(std::filesystem::path(m_log).filename())) {
    // The last one that it takes.
    awaitOrThrow("Keyrill", [&] { return desktop.isHotKeyTaken(xkey::m); });
}

std::string Keyrill::output() const { return contentOf(m_log); }
