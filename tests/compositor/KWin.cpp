// SPDX-License-Identifier: MIT
#include "compositor/KWin.h"

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace {

/// A copy has none of the capabilities that the file has, which root in a container may not have.
constexpr const char* installed = "/usr/bin/kwin_wayland";

constexpr const char* portal = "org.freedesktop.portal.Desktop";
constexpr const char* portalProgram = "/usr/libexec/xdg-desktop-portal";

/// As a text of a script.
std::string quoted(const std::string& title) {
    std::string text;
    for (const char letter : title) text += letter == '\'' ? "\\'" : std::string(1, letter);
    return "'" + text + "'";
}

}  // namespace

KWin::KWin(const Options& options) : m_options(options) {
    const std::string level = options.guardsFocus ? "4" : "0";
    put("home/.config/kwinrc", "[Windows]\nFocusStealingPreventionLevel=" + level + "\n");
    put("home/.config/kxkbrc", "[Layout]\nUse=true\nLayoutList=" + options.layouts + "\n");
    // Nothing fades.
    put("home/.config/kdeglobals", "[KDE]\nAnimationDurationFactor=0\n");
    put("home/.config/kcminputrc",
        "[Keyboard]\nRepeatDelay=" + std::to_string(repeatDelay.count()) + "\nRepeatRate=25\n");
    std::filesystem::copy_file(installed, m_session.file("kwin_wayland"));
    m_session.set("WAYLAND_DISPLAY", "kwin");
    m_session.set("XDG_CURRENT_DESKTOP", "KDE");
    m_session.set("KDE_FULL_SESSION", "true");
    m_session.set("KDE_SESSION_VERSION", "5");
    startCompositor();
    if (options.hasPortal) startPortal();
}

/// In a session the bus starts both, as it does here where they are gone.
void KWin::startPortal() {
    std::ifstream service("/usr/share/dbus-1/services/org.freedesktop.impl.portal.desktop.kde.service");
    std::string program;
    for (std::string line; std::getline(service, line);) {
        if (line.starts_with("Exec=")) program = line.substr(std::string("Exec=").size());
    }
    const std::string object = "/org/freedesktop/portal/desktop";
    const std::string part = "org.freedesktop.impl.portal.desktop.kde";
    const std::map<std::string, std::string> toolkit = {{"QT_QPA_PLATFORM", "wayland"}};
    m_portal.push_back(m_session.startService({program}, "portal-kde.log", part, object, toolkit));
    m_portal.push_back(m_session.startService({portalProgram}, "portal.log", portal, object));
    m_session.letStart(part, {program}, toolkit);
    m_session.letStart(portal, {portalProgram});
}

void KWin::kill(Service service) {
    if (service == Service::bus) return m_session.killBus();
    Child& program = *m_portal.at(service == Service::portalOfKde ? 0 : 1);
    program.signal(SIGKILL);
    program.wait();
}

void KWin::putPortalBack(std::chrono::seconds wait) {
    for (const Service service : {Service::portal, Service::portalOfKde}) kill(service);
    m_session.letStart(
        portal, {"sh", "-c", "'sleep " + std::to_string(wait.count()) + "; exec " + portalProgram + "'"});
}

void KWin::startCompositor() {
    std::vector<std::string> command = {m_session.file("kwin_wayland"),
                                        "--virtual",
                                        "--width",
                                        "1024",
                                        "--height",
                                        "640",
                                        "--scale",
                                        std::to_string(m_options.scale),
                                        "--no-lockscreen",
                                        "--no-kactivities",
                                        "--socket",
                                        "kwin"};
    if (m_options.hasXServer) {
        command.emplace_back("--xwayland");
        // The X server tells the programs that KWin starts.
        command.push_back("sh -c 'echo $DISPLAY > " + m_session.file("display") + "'");
    }
    m_program = m_session.startService(command, "kwin.log", "org.kde.kglobalaccel", "/kglobalaccel",
                                       {{"QT_LOGGING_RULES", "*.debug=false;js.debug=true"},
                                        {"KWIN_COMPOSE", m_options.hasPictures ? "O2" : "Q"},
                                        {"KWIN_SCREENSHOT_NO_PERMISSION_CHECKS", "1"},
                                        {"KWIN_WAYLAND_NO_PERMISSION_CHECKS", "1"}});
    if (!eventually([this] { return std::filesystem::exists(socket()); }, UserSession::startUp)) {
        throw std::runtime_error("KWin listens to nobody: " + log("kwin.log"));
    }
    watchWindows();
    if (!m_options.hasXServer) return;
    const auto display = [this] { return log("display"); };
    if (!eventually([&] { return display().ends_with('\n'); }, UserSession::startUp)) {
        throw std::runtime_error("KWin has no X server: " + log("kwin.log"));
    }
    m_session.set("DISPLAY", display().substr(0, display().size() - 1));
}

void KWin::comeAgain() {
    m_program->signal(9);
    m_program->wait();
    std::filesystem::remove(socket());
    std::filesystem::remove(m_session.file("display"));
    startCompositor();
}

std::string KWin::load(const std::string& script) const {
    const std::string name = "test" + std::to_string(++m_scripts);
    const std::string file = m_session.file(name + ".js");
    std::ofstream(file) << "function say(text) { print('" << name << ":' + text + ':'); }\n"
                        << script << "\n";
    const std::string loaded = call(
        {"-d", "org.kde.KWin", "-o", "/Scripting", "-m", "org.kde.kwin.Scripting.loadScript", file, name});
    const std::string number = loaded.substr(1, loaded.find(',') - 1);
    call({"-d", "org.kde.KWin", "-o", "/" + number, "-m", "org.kde.kwin.Script.run"});
    return name;
}

/// KWin writes what scripts print to its log.
std::string KWin::run(const std::string& script) const {
    const std::string name = load(script);
    const auto said = [&] {
        const std::string log = m_session.log("kwin.log");
        const auto at = log.find(name + ":");
        const auto from = at + name.size() + 1;
        const auto end = log.find(':', from);
        return at == std::string::npos || end == std::string::npos ? "?" : log.substr(from, end - from);
    };
    if (!eventually([&] { return said() != "?"; })) {
        throw std::runtime_error("KWin runs no script: " + log("kwin.log"));
    }
    call({"-d", "org.kde.KWin", "-o", "/Scripting", "-m", "org.kde.kwin.Scripting.unloadScript", name});
    return said();
}

void KWin::watchWindows() {
    m_watcher = load(R"(function tell(gone) {
    var titles = [workspace.activeClient ? workspace.activeClient.caption : ''];
    workspace.clientList().forEach(function (one) { if (one !== gone) titles.push(one.caption); });
    say('\t' + titles.join('\t') + '\t');
}
function follow(one) {
    one.captionChanged.connect(function () { tell(null); });
    tell(null);
}
workspace.clientList().forEach(follow);
workspace.clientAdded.connect(follow);
workspace.clientRemoved.connect(tell);
workspace.clientActivated.connect(function () { tell(null); });
tell(null);
)");
    if (!eventually([this] { return !windows().empty(); }))
        throw std::runtime_error("KWin tells of no windows: " + log("kwin.log"));
}

/// Its last word that is whole.
std::vector<std::string> KWin::windows() const {
    const std::string log = m_session.log("kwin.log");
    const std::string begin = m_watcher + ":\t";
    const auto end = log.rfind("\t:");
    const auto at = end == std::string::npos ? end : log.rfind(begin, end);
    if (at == std::string::npos) return {};
    std::vector<std::string> titles;
    for (std::size_t from = at + begin.size(); from <= end;) {
        const auto next = log.find('\t', from);
        titles.push_back(log.substr(from, next - from));
        from = next + 1;
    }
    return titles;
}

bool KWin::shows(const std::string& title) const {
    const auto titles = windows();
    return std::find(titles.begin() + 1, titles.end(), title) != titles.end();
}

bool KWin::focus(const std::string& title) const {
    if (!shows(title)) return false;
    if (hasFocus(title)) return true;
    run("workspace.clientList().forEach(function (one) { if (one.caption == " + quoted(title) +
        ") workspace.activeClient = one; });\nsay('');");
    return hasFocus(title);
}

void KWin::makeFullScreen(const std::string& title) const {
    run("workspace.clientList().forEach(function (one) { if (one.caption == " + quoted(title) +
        ") one.fullScreen = true; });\nsay('');");
}

bool KWin::isMinimised(const std::string& title) const {
    return run("say(workspace.clientList().some(function (one) { return one.caption == " + quoted(title) +
               " && one.minimized; }));") == "true";
}

void KWin::close(const std::string& title) const {
    run("workspace.clientList().forEach(function (one) { if (one.caption == " + quoted(title) +
        ") one.closeWindow(); });\nsay('');");
}
