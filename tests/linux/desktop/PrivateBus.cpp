// SPDX-License-Identifier: MIT
#include "linux/desktop/PrivateBus.h"

#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace {

void awaitLine(const std::string& log, Child& process) {
    const auto hasLine = [&] { return contentOf(log).find('\n') != std::string::npos; };
    eventually([&] { return hasLine() || !process.isRunning(); });
    if (!hasLine()) throw std::runtime_error("nothing was started: " + contentOf(log));
}

}  // namespace

PrivateBus::PrivateBus() {
    std::ofstream(m_folder.file("config"))
        << "<busconfig><type>session</type><listen>unix:path=" << m_folder.file("bus") << "</listen>"
        << "<auth>EXTERNAL</auth><policy context='default'><allow send_destination='*' eavesdrop='true'/>"
        << "<allow eavesdrop='true'/><allow own='*'/></policy></busconfig>";
    start();
    // Without the identifier of this daemon, as in sessions: another one may come in its place.
    m_address = "unix:path=" + m_folder.file("bus");
}

void PrivateBus::comeBack() {
    m_daemon->wait();
    std::filesystem::remove(m_folder.file("log"));
    start();
}

void PrivateBus::start() {
    const std::string log = m_folder.file("log");
    m_daemon = std::make_unique<Child>(std::vector<std::string>{"dbus-daemon", "--nofork", "--print-address",
                                                                "--config-file=" + m_folder.file("config")},
                                       Child::Options{.outputFile = log});
    awaitLine(log, *m_daemon);
}

StandIn::StandIn(const PrivateBus& bus, const std::vector<std::string>& services)
    : m_pipe(m_folder.file("commands")), m_log(m_folder.file("log")) {
    if (mkfifo(m_pipe.c_str(), 0600) != 0) throw std::runtime_error("no pipe can be made");
    std::vector<std::string> command = {KEYRILL_BUS_STANDIN, bus.address(), m_pipe};
    command.insert(command.end(), services.begin(), services.end());
    m_process = std::make_unique<Child>(command, Child::Options{.outputFile = m_log});
    awaitLine(m_log, *m_process);
}

void StandIn::obey(const std::string& command) const { std::ofstream(m_pipe) << command << std::endl; }

std::size_t StandIn::count(const std::string& text) const {
    std::istringstream lines(heard());
    std::size_t count = 0;
    for (std::string line; std::getline(lines, line);) count += line.find(text) != std::string::npos ? 1 : 0;
    return count;
}
