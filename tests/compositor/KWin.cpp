// SPDX-License-Identifier: MIT
#include "compositor/KWin.h"

#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "compositor/OtherUser.h"

namespace {

/// A copy has none of the capabilities that the file has, which root in a container may not have.
constexpr const char* installed = "/usr/bin/kwin_wayland";
constexpr std::chrono::seconds startUp{30};

/// As a text of a script.
std::string quoted(const std::string& title) {
    std::string text;
    for (const char letter : title) text += letter == '\'' ? "\\'" : std::string(1, letter);
    return "'" + text + "'";
}

}  // namespace

KWin::KWin(const Options& options) : m_options(options) {
    const std::string home = m_folder.file("home");
    std::filesystem::create_directories(home + "/.config");
    // What gets the focus is the test's to say.
    std::ofstream(home + "/.config/kwinrc") << "[Windows]\nFocusStealingPreventionLevel=0\n";
    std::ofstream(home + "/.config/kxkbrc") << "[Layout]\nUse=true\nLayoutList=" << options.layouts << "\n";
    std::filesystem::copy_file(installed, m_folder.file("kwin_wayland"));
    std::ofstream(m_folder.file("bus.conf"))
        << "<busconfig><type>session</type><listen>unix:path=" << m_folder.file("bus") << "</listen>"
        << "<auth>EXTERNAL</auth><policy context='default'><allow send_destination='*' eavesdrop='true'/>"
        << "<allow eavesdrop='true'/><allow own='*'/><allow user='*'/></policy></busconfig>";
    otheruser::giveAwayAll(m_folder.path());
    m_environment = {{"XDG_RUNTIME_DIR", m_folder.path()},
                     {"WAYLAND_DISPLAY", "kwin"},
                     {"DISPLAY", ""},
                     {"SWAYSOCK", ""},
                     {"XDG_CURRENT_DESKTOP", "KDE"},
                     {"XDG_SESSION_TYPE", "wayland"},
                     {"KDE_FULL_SESSION", "true"},
                     {"KDE_SESSION_VERSION", "5"},
                     {"LC_ALL", "C.UTF-8"},
                     {"DBUS_SESSION_BUS_ADDRESS", "unix:path=" + m_folder.file("bus")}};
    startBus();
    startCompositor();
    if (options.hasPortal) startPortal();
}

/// In a session the bus starts both.
void KWin::startPortal() {
    std::ifstream service("/usr/share/dbus-1/services/org.freedesktop.impl.portal.desktop.kde.service");
    std::string program;
    for (std::string line; std::getline(service, line);) {
        if (line.starts_with("Exec=")) program = line.substr(std::string("Exec=").size());
    }
    const std::string object = "/org/freedesktop/portal/desktop";
    m_portal.push_back(start({program}, "portal-kde.log", {{"QT_QPA_PLATFORM", "wayland"}}));
    awaitName("org.freedesktop.impl.portal.desktop.kde", object, "portal-kde.log");
    m_portal.push_back(start({"/usr/libexec/xdg-desktop-portal"}, "portal.log"));
    awaitName("org.freedesktop.portal.Desktop", object, "portal.log");
}

void KWin::awaitName(const std::string& name, const std::string& object, const std::string& log) const {
    const auto isThere = [&] {
        return Child({"gdbus", "call", "--session", "-d", name, "-o", object, "-m",
                      "org.freedesktop.DBus.Peer.Ping"},
                     {.environment = m_environment, .outputFile = "/dev/null"})
                   .wait() == 0;
    };
    if (!eventually(isThere, startUp)) {
        throw std::runtime_error(name + " could not be started: " + contentOf(m_folder.file(log)));
    }
}

std::string KWin::put(const std::string& name, const std::string& content) const {
    const std::filesystem::path file = m_folder.file(name);
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << content;
    for (std::filesystem::path path = file; path != m_folder.path(); path = path.parent_path()) {
        otheruser::giveAway(path);
    }
    return file;
}

std::unique_ptr<Child> KWin::start(const std::vector<std::string>& command, const std::string& log,
                                   const std::map<std::string, std::string>& more) const {
    auto environment = m_environment;
    environment["HOME"] = m_folder.file("home");
    for (const char* const name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME"}) {
        environment[name] = "";
    }
    environment["QT_LOGGING_RULES"] = "*.debug=false;js.debug=true";
    environment["KWIN_COMPOSE"] = "Q";
    environment["KWIN_WAYLAND_NO_PERMISSION_CHECKS"] = "1";
    for (const auto& [name, value] : more) environment[name] = value;
    return std::make_unique<Child>(
        otheruser::command(command),
        Child::Options{.environment = environment, .outputFile = m_folder.file(log)});
}

void KWin::startBus() {
    m_bus = start({"dbus-daemon", "--nofork", "--config-file=" + m_folder.file("bus.conf")}, "bus.log");
    if (!eventually([this] { return std::filesystem::exists(m_folder.file("bus")); }, startUp)) {
        throw std::runtime_error("no session bus could be started: " + contentOf(m_folder.file("bus.log")));
    }
}

void KWin::startCompositor() {
    std::vector<std::string> command = {m_folder.file("kwin_wayland"),
                                        "--virtual",
                                        "--width",
                                        "1024",
                                        "--height",
                                        "640",
                                        "--no-lockscreen",
                                        "--no-kactivities",
                                        "--socket",
                                        "kwin"};
    if (m_options.hasXServer) {
        command.emplace_back("--xwayland");
        // The X server tells the programs that KWin starts.
        command.push_back("sh -c 'echo $DISPLAY > " + m_folder.file("display") + "'");
    }
    m_program = start(command, "kwin.log");
    const auto isUp = [this] {
        return std::filesystem::exists(socket()) &&
               Child({"gdbus", "call", "--session", "-d", "org.kde.kglobalaccel", "-o", "/kglobalaccel", "-m",
                      "org.freedesktop.DBus.Peer.Ping"},
                     {.environment = m_environment, .outputFile = "/dev/null"})
                       .wait() == 0;
    };
    eventually([&] { return isUp() || !m_program->isRunning(); }, startUp);
    if (!isUp()) {
        throw std::runtime_error("no KWin could be started: " + contentOf(m_folder.file("kwin.log")));
    }
    if (!m_options.hasXServer) return;
    const auto display = [this] { return contentOf(m_folder.file("display")); };
    if (!eventually([&] { return display().ends_with('\n'); }, startUp)) {
        throw std::runtime_error("KWin has no X server: " + contentOf(m_folder.file("kwin.log")));
    }
    m_environment["DISPLAY"] = display().substr(0, display().size() - 1);
}

void KWin::comeAgain() {
    m_program->signal(9);
    m_program->wait();
    std::filesystem::remove(socket());
    std::filesystem::remove(m_folder.file("display"));
    startCompositor();
}

std::string KWin::call(const std::vector<std::string>& arguments) const {
    std::vector<std::string> command = {"gdbus", "call", "--session"};
    command.insert(command.end(), arguments.begin(), arguments.end());
    return outputOf(command, m_environment);
}

/// KWin writes what scripts print to its log.
std::string KWin::run(const std::string& script) const {
    const std::string name = "test" + std::to_string(++m_scripts);
    const std::string file = m_folder.file(name + ".js");
    std::ofstream(file) << "function say(text) { print('" << name << ":' + text + ':'); }\n"
                        << script << "\n";
    const std::string loaded = call(
        {"-d", "org.kde.KWin", "-o", "/Scripting", "-m", "org.kde.kwin.Scripting.loadScript", file, name});
    const std::string number = loaded.substr(1, loaded.find(',') - 1);
    call({"-d", "org.kde.KWin", "-o", "/" + number, "-m", "org.kde.kwin.Script.run"});
    const auto said = [&] {
        const std::string log = contentOf(m_folder.file("kwin.log"));
        const auto at = log.find(name + ":");
        const auto from = at + name.size() + 1;
        return at == std::string::npos ? "?" : log.substr(from, log.find(':', from) - from);
    };
    if (!eventually([&] { return said() != "?"; })) {
        throw std::runtime_error("KWin runs no script: " + contentOf(m_folder.file("kwin.log")));
    }
    call({"-d", "org.kde.KWin", "-o", "/Scripting", "-m", "org.kde.kwin.Scripting.unloadScript", name});
    return said();
}

bool KWin::shows(const std::string& title) const {
    return run("var there = 'no';\n"
               "workspace.clientList().forEach(function (one) { if (one.caption == " +
               quoted(title) + ") there = 'yes'; });\nsay(there);") == "yes";
}

std::string KWin::front() const {
    return run("say(workspace.activeClient ? workspace.activeClient.caption : '');");
}

bool KWin::focus(const std::string& title) const {
    return run("var windows = workspace.clientList();\n"
               "for (var i = 0; i < windows.length; ++i)\n"
               "  if (windows[i].caption == " +
               quoted(title) +
               ") workspace.activeClient = windows[i];\n"
               "say(workspace.activeClient ? workspace.activeClient.caption : '');") == title;
}

void KWin::close(const std::string& title) const {
    run("workspace.clientList().forEach(function (one) { if (one.caption == " + quoted(title) +
        ") one.closeWindow(); });\nsay('');");
}
