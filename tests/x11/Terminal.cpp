// SPDX-License-Identifier: MIT
#include "x11/Terminal.h"

#include <filesystem>
#include <stdexcept>

Terminal::Terminal(const std::string& display) {
    const std::map<std::string, std::string> environment = {{"DISPLAY", display}, {"LC_ALL", "C.UTF-8"}};
    const std::string title = std::filesystem::path(m_folder.path()).filename().string();
    const std::string ready = m_folder.file("ready");
    const std::string script = "stty -icanon -echo -isig -ixon min 1; : > '" + ready + "'; exec cat > '" +
                               m_folder.file("typed") + "'";
    m_program = std::make_unique<Child>(
        std::vector<std::string>{"xterm", "-u8", "-T", title, "-fa", "DejaVu Sans Mono", "-e", "sh", "-c",
                                 script},
        Child::Options{.environment = environment, .outputFile = m_folder.file("log")});
    if (!eventually([&] { return std::filesystem::exists(ready); })) {
        throw std::runtime_error("the terminal does not start: " + contentOf(m_folder.file("log")));
    }
    outputOf({"xdotool", "search", "--sync", "--onlyvisible", "--name", title, "windowfocus", "--sync"},
             environment);
}

std::string Terminal::typed(std::size_t bytes) const {
    eventually([&] { return typed().size() >= bytes; });
    return typed();
}
