// SPDX-License-Identifier: MIT
#include "display/NestedServers.h"

namespace {

std::vector<std::string> nestedCommand(const std::vector<std::string>& options) {
    std::vector<std::string> command = {"Xephyr", "-screen", "640x480", "-nolisten", "tcp", "-noreset"};
    command.insert(command.end(), options.begin(), options.end());
    return command;
}

}  // namespace

NestedServers::NestedServers(const std::vector<std::string>& options)
    : m_inner(std::make_unique<XServer>(nestedCommand(options),
                                        std::map<std::string, std::string>{{"DISPLAY", m_outer.display()}})) {
    outputOf({"xdotool", "search", "--sync", "--onlyvisible", "--name", "Xephyr", "windowfocus", "--sync"},
             {{"DISPLAY", m_outer.display()}});
    m_user = std::make_unique<Hands>(m_outer.display());
    m_program = std::make_unique<Hands>(m_inner->display());
}

void NestedServers::finish() const {
    m_user->finish();
    m_program->finish();
}
