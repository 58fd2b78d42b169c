// SPDX-License-Identifier: MIT
#include "compositor/Sway.h"

#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "compositor/OtherUser.h"

Sway::Sway(const Options& options) : m_hasXServer(options.hasXServer) {
    configure(options.configuration);
    otheruser::giveAway(m_folder.path());
    const auto command = otheruser::command({"sway", "-d", "-c", m_folder.file("config")});
    const std::map<std::string, std::string> environment = {{"XDG_RUNTIME_DIR", m_folder.path()},
                                                            {"HOME", m_folder.path()},
                                                            {"DISPLAY", ""},
                                                            {"WAYLAND_DISPLAY", ""},
                                                            {"SWAYSOCK", ""},
                                                            {"DBUS_SESSION_BUS_ADDRESS", ""},
                                                            {"WLR_BACKENDS", "headless"},
                                                            {"WLR_LIBINPUT_NO_DEVICES", "1"},
                                                            {"WLR_RENDERER", "pixman"},
                                                            {"LIBSEAT_BACKEND", "noop"},
                                                            {"LC_ALL", "C.UTF-8"}};
    const std::string log = m_folder.file("log");
    m_program =
        std::make_unique<Child>(command, Child::Options{.environment = environment, .outputFile = log});
    const auto isUp = [this] { return std::filesystem::exists(socket()) && !findSocket().empty(); };
    eventually([&] { return isUp() || !m_program->isRunning(); }, std::chrono::seconds(20));
    if (!isUp()) throw std::runtime_error("no sway could be started: " + contentOf(log));
    m_environment = {{"XDG_RUNTIME_DIR", m_folder.path()},
                     {"WAYLAND_DISPLAY", "wayland-1"},
                     {"SWAYSOCK", findSocket()},
                     {"DISPLAY", ""},
                     {"DBUS_SESSION_BUS_ADDRESS", ""}};
    // Its socket is there before it listens, and it answers when it has read its configuration.
    const bool answers = eventually([this] { return tries({"-t", "get_version"}); });
    if (!answers) throw std::runtime_error("sway does not answer: " + contentOf(log));
    if (!m_hasXServer) return;
    const bool isFound = eventually([this] { return !findDisplay().empty(); });
    if (!isFound) throw std::runtime_error("sway has no X server: " + contentOf(log));
    m_environment["DISPLAY"] = findDisplay();
}

void Sway::configure(const std::string& lines) const {
    std::ofstream(m_folder.file("config"))
        << "output HEADLESS-1 resolution 1024x640\nxwayland "
        << (m_hasXServer ? "force\nexec echo $DISPLAY > $XDG_RUNTIME_DIR/display" : "disable") << "\n"
        << lines << "\n";
    otheruser::giveAway(m_folder.file("config"));
}

std::string Sway::findDisplay() const {
    const std::string text = contentOf(m_folder.file("display"));
    return text.ends_with('\n') ? text.substr(0, text.size() - 1) : std::string();
}

std::string Sway::findSocket() const {
    for (const auto& entry : std::filesystem::directory_iterator(m_folder.path())) {
        if (entry.path().filename().string().starts_with("sway-ipc.")) return entry.path();
    }
    return {};
}

std::string Sway::message(const std::vector<std::string>& arguments) const {
    std::vector<std::string> command = {"swaymsg"};
    command.insert(command.end(), arguments.begin(), arguments.end());
    return outputOf(command, m_environment);
}

bool Sway::hasFocus(const std::string& title) const {
    return tries({"[con_id=__focused__ title=\"^" + title + "$\"] nop"});
}

bool Sway::shows(const std::string& title) const { return tries({"[title=\"^" + title + "$\"] nop"}); }

int Sway::fillOf(const std::string& title) const {
    const std::string tree = message({"-t", "get_tree"});
    const std::string mode = "\"fullscreen_mode\": ";
    const std::size_t window = tree.find("\"name\": \"" + title + "\"");
    const std::size_t found = window == std::string::npos ? window : tree.find(mode, window);
    return found == std::string::npos ? 0 : std::stoi(tree.substr(found + mode.size()));
}

bool Sway::hasLayerKeys() const {
    return message({"-t", "get_seats"}).find("\"focus\": 0,") != std::string::npos;
}

bool Sway::focus(const std::string& title) const { return tries({"[title=\"^" + title + "$\"] focus"}); }

bool Sway::tries(const std::vector<std::string>& arguments) const {
    std::vector<std::string> command = {"swaymsg", "--quiet"};
    command.insert(command.end(), arguments.begin(), arguments.end());
    return Child(command, {.environment = m_environment, .outputFile = "/dev/null"}).wait() == 0;
}
