// SPDX-License-Identifier: MIT
#include "compositor/UserSession.h"

#include <csignal>
#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "compositor/OtherUser.h"

UserSession::UserSession() {
    std::filesystem::create_directories(file("home/.config"));
    std::ofstream(file("bus.conf"))
        << "<busconfig><type>session</type><listen>unix:path=" << file("bus") << "</listen>"
        << "<servicedir>" << file("services") << "</servicedir>"
        << "<auth>EXTERNAL</auth><policy context='default'><allow send_destination='*' eavesdrop='true'/>"
        << "<allow eavesdrop='true'/><allow own='*'/><allow user='*'/></policy></busconfig>";
    otheruser::giveAwayAll(m_folder.path());
    m_environment = {{"XDG_RUNTIME_DIR", m_folder.path()},
                     {"DISPLAY", ""},
                     {"SWAYSOCK", ""},
                     {"XDG_SESSION_TYPE", "wayland"},
                     {"LC_ALL", "C.UTF-8"},
                     {"DBUS_SESSION_BUS_ADDRESS", "unix:path=" + file("bus")}};
    startBus();
}

void UserSession::startBus() {
    m_bus = start({"dbus-daemon", "--nofork", "--config-file=" + file("bus.conf")}, "bus.log");
    if (!eventually([this] { return answers("org.freedesktop.DBus", "/org/freedesktop/DBus"); }, startUp)) {
        throw std::runtime_error("no session bus could be started: " + log("bus.log"));
    }
}

void UserSession::killBus() {
    m_bus->signal(SIGKILL);
    m_bus->wait();
}

std::string UserSession::put(const std::string& name, const std::string& content) const {
    const std::filesystem::path path = file(name);
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << content;
    for (std::filesystem::path part = path; part != m_folder.path(); part = part.parent_path()) {
        otheruser::giveAway(part);
    }
    return path;
}

std::unique_ptr<Child> UserSession::start(const std::vector<std::string>& command, const std::string& log,
                                          const std::map<std::string, std::string>& more) const {
    return std::make_unique<Child>(
        otheruser::command(command),
        Child::Options{.environment = environmentWith(more), .outputFile = file(log)});
}

std::map<std::string, std::string> UserSession::environmentWith(
    const std::map<std::string, std::string>& more) const {
    auto environment = m_environment;
    environment["HOME"] = file("home");
    for (const char* const name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME"}) {
        environment[name] = "";
    }
    for (const auto& [name, value] : more) environment[name] = value;
    return environment;
}

void UserSession::letStart(const std::string& name, const std::vector<std::string>& command,
                           const std::map<std::string, std::string>& more) const {
    std::string words = "/usr/bin/env";
    for (const auto& [variable, value] : environmentWith(more)) words += " " + variable + "=" + value;
    for (const std::string& word : command) words += " " + word;
    put("services/" + name + ".service", "[D-BUS Service]\nName=" + name + "\nExec=" + words + "\n");
    call({"-d", "org.freedesktop.DBus", "-o", "/org/freedesktop/DBus", "-m",
          "org.freedesktop.DBus.ReloadConfig"});
}

std::unique_ptr<Child> UserSession::startService(const std::vector<std::string>& command,
                                                 const std::string& log, const std::string& name,
                                                 const std::string& object,
                                                 const std::map<std::string, std::string>& more) const {
    auto program = start(command, log, more);
    eventually([&] { return answers(name, object) || !program->isRunning(); }, startUp);
    if (!answers(name, object))
        throw std::runtime_error(name + " could not be started: " + contentOf(file(log)));
    return program;
}

bool UserSession::answers(const std::string& name, const std::string& object) const {
    return Child({"gdbus", "call", "--session", "-d", name, "-o", object, "-m",
                  "org.freedesktop.DBus.Peer.Ping"},
                 {.environment = m_environment, .outputFile = "/dev/null"})
               .wait() == 0;
}

std::string UserSession::call(const std::vector<std::string>& arguments) const {
    std::vector<std::string> command = {"gdbus", "call", "--session"};
    command.insert(command.end(), arguments.begin(), arguments.end());
    return outputOf(command, m_environment);
}
