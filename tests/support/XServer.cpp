// SPDX-License-Identifier: MIT
#include "support/XServer.h"

#include <sstream>
#include <stdexcept>

XServer::XServer(std::vector<std::string> command, const std::map<std::string, std::string>& environment) {
    // The server writes the number of the display that it found free to its standard output.
    command.insert(command.end(), {"-displayfd", "1"});
    const std::string log = m_folder.file("server");
    m_server =
        std::make_unique<Child>(command, Child::Options{.environment = environment, .outputFile = log});
    const auto numberLine = [&log]() -> std::string {
        std::istringstream lines(contentOf(log));
        for (std::string line; std::getline(lines, line) && !lines.eof();) {
            if (!line.empty() && line.find_first_not_of("0123456789") == std::string::npos) return line;
        }
        return {};
    };
    eventually([&] { return !numberLine().empty() || !m_server->isRunning(); });
    if (numberLine().empty()) throw std::runtime_error("no X server could be started: " + contentOf(log));
    m_display = ":" + numberLine();
}
