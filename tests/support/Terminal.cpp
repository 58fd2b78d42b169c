// SPDX-License-Identifier: MIT
#include "support/Terminal.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <stdexcept>

Terminal::Terminal(const std::string& display, const Options& options) : WindowedProgram(display) {
    const std::string file = folder().file("typed");
    std::vector<std::string> command = {"xterm", "-u8", "-fa", "DejaVu Sans Mono", "-fs", "10", "-T", name()};
    command.insert(command.end(), options.xterm.begin(), options.xterm.end());
    // Button events in SGR form, as xterm's control sequences name it.
    const std::string mouse = options.typesMouseButtons ? "printf '\\033[?1000h\\033[?1006h'; " : "";
    command.insert(command.end(),
                   {"-e", "sh", "-c",
                    "stty raw -echo icrnl; " + mouse + ": > '" + file + "'; exec cat > '" + file + "'"});
    add(options.environment);
    start(command);
    if (!eventually([&] { return std::filesystem::exists(file); }, std::chrono::seconds(20))) {
        throw std::runtime_error("the terminal does not start: " + log());
    }
    findWindow(name());
    focus();
}

std::string Terminal::typed(std::size_t bytes, std::chrono::milliseconds deadline) const {
    EXPECT_TRUE(eventually([&] { return typed().size() >= bytes; }, deadline)) << "typed so far: " << typed();
    return typed();
}

void Terminal::focus() const {
    run({"xdotool", "windowfocus", "--sync", window()});
    if (!eventually([this] { return hasFocus(); })) throw std::runtime_error("the terminal gets no focus");
}

bool Terminal::hasFocus() const { return run({"xdotool", "getwindowfocus", "-f"}) == window() + "\n"; }
