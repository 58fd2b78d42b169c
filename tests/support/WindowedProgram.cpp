// SPDX-License-Identifier: MIT
#include "support/WindowedProgram.h"

#include <filesystem>

WindowedProgram::WindowedProgram(const std::string& display)
    : m_environment{{"DISPLAY", display}, {"HOME", m_folder.path()}, {"LC_ALL", "C.UTF-8"}} {}

void WindowedProgram::add(const Environment& environment) {
    for (const auto& [name, value] : environment) m_environment[name] = value;
}

std::string WindowedProgram::name() const {
    return std::filesystem::path(m_folder.path()).filename().string();
}

void WindowedProgram::start(const std::vector<std::string>& command) {
    m_program = std::make_unique<Child>(
        command, Child::Options{.environment = m_environment, .outputFile = m_folder.file("log")});
}

void WindowedProgram::findWindow(const std::string& title) {
    const std::string windows = run({"xdotool", "search", "--sync", "--onlyvisible", "--name", title});
    m_window = windows.substr(0, windows.find('\n'));
}

std::string WindowedProgram::run(const std::vector<std::string>& command) const {
    return outputOf(command, m_environment);
}
