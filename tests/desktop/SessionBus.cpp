// SPDX-License-Identifier: MIT
#include "desktop/SessionBus.h"

#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <utility>

SessionBus::SessionBus(std::map<std::string, std::string> environment)
    : m_environment(std::move(environment)) {
    const std::string socket = m_folder.file("bus");
    const std::string configuration = m_folder.file("configuration");
    std::filesystem::create_directories(services());
    std::ofstream(configuration)
        << "<!DOCTYPE busconfig PUBLIC \"-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN\" "
           "\"http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd\">\n"
           "<busconfig><type>session</type><listen>unix:path="
        << socket << "</listen><servicedir>" << services()
        << "</servicedir><policy context=\"default\"><allow send_destination=\"*\"/>"
           "<allow receive_sender=\"*\"/><allow own=\"*\"/></policy></busconfig>\n";
    start();
}

void SessionBus::restart() {
    std::filesystem::remove(m_folder.file("log"));
    start();
}

void SessionBus::start() {
    const std::string configuration = m_folder.file("configuration");
    m_daemon = std::make_unique<Child>(
        std::vector<std::string>{"dbus-daemon", "--nofork", "--nopidfile", "--print-address=1",
                                 "--config-file=" + configuration},
        Child::Options{.environment = m_environment, .outputFile = m_folder.file("log")});
    // It tells its address once it listens.
    if (!eventually([&] { return contentOf(m_folder.file("log")).ends_with('\n'); }))
        throw std::runtime_error("no session bus: " + contentOf(m_folder.file("log")));
    // Without the identifier of this daemon, as in sessions: another one may come in its place.
    m_address = "unix:path=" + m_folder.file("bus");
}

void SessionBus::letIn(const std::string& service) const {
    const std::string file = "/" + service + ".service";
    std::filesystem::copy_file("/usr/share/dbus-1/services" + file, services() + file,
                               std::filesystem::copy_options::overwrite_existing);
    outputOf({"dbus-send", "--bus=" + m_address, "--print-reply", "--dest=org.freedesktop.DBus", "/",
              "org.freedesktop.DBus.ReloadConfig"});
}
