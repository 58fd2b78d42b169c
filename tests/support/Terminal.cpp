// SPDX-License-Identifier: MIT
#include "support/Terminal.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <stdexcept>

Terminal::Terminal(const std::string& display, const Options& options)
    : m_environment{{"DISPLAY", display}, {"HOME", m_folder.path()}, {"LC_ALL", "C.UTF-8"}} {
    // Of several terminals each has a title of its own.
    const std::string title = std::filesystem::path(m_folder.path()).filename().string();
    const std::string file = m_folder.file("typed");
    std::vector<std::string> command = {"xterm", "-u8", "-fa", "DejaVu Sans Mono", "-fs", "10", "-T", title};
    command.insert(command.end(), options.xterm.begin(), options.xterm.end());
    // Button events in SGR form, as xterm's control sequences name it.
    const std::string mouse = options.typesMouseButtons ? "printf '\\033[?1000h\\033[?1006h'; " : "";
    command.insert(command.end(),
                   {"-e", "sh", "-c",
                    "stty raw -echo icrnl; " + mouse + ": > '" + file + "'; exec cat > '" + file + "'"});
    m_program = std::make_unique<Child>(
        command, Child::Options{.environment = m_environment, .outputFile = m_folder.file("log")});
    if (!eventually([&] { return std::filesystem::exists(file); }, std::chrono::seconds(20))) {
        throw std::runtime_error("the terminal does not start: " + contentOf(m_folder.file("log")));
    }
    const std::string windows = run({"xdotool", "search", "--sync", "--onlyvisible", "--name", title});
    m_window = windows.substr(0, windows.find('\n'));
    focus();
}

std::string Terminal::typed(std::size_t bytes, std::chrono::milliseconds deadline) const {
    EXPECT_TRUE(eventually([&] { return typed().size() >= bytes; }, deadline)) << "typed so far: " << typed();
    return typed();
}

void Terminal::focus() const {
    run({"xdotool", "windowfocus", "--sync", m_window});
    if (!eventually([this] { return hasFocus(); })) throw std::runtime_error("the terminal gets no focus");
}

bool Terminal::hasFocus() const { return run({"xdotool", "getwindowfocus", "-f"}) == m_window + "\n"; }

std::string Terminal::run(const std::vector<std::string>& command) const {
    return outputOf(command, m_environment);
}
