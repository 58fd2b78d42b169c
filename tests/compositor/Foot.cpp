// SPDX-License-Identifier: MIT
#include "compositor/Foot.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <stdexcept>

Foot::Foot(const Compositor& compositor) : m_compositor(compositor) {
    const std::string file = m_folder.file("typed");
    auto environment = compositor.environment();
    environment["HOME"] = m_folder.path();
    environment["LC_ALL"] = "C.UTF-8";
    environment["SHELL"] = "/bin/sh";
    m_program = std::make_unique<Child>(
        std::vector<std::string>{
            "foot", "--config=/dev/null", "--override=colors.background=102030", "--app-id", program(),
            "--title", program(), "sh", "-c",
            "stty raw -echo icrnl; printf '\\033[?25l'; : > '" + file + "'; exec cat > '" + file + "'"},
        Child::Options{.environment = environment, .outputFile = m_folder.file("log")});
    if (!eventually([&] { return std::filesystem::exists(file); }, std::chrono::seconds(20))) {
        throw std::runtime_error("the terminal does not start: " + contentOf(m_folder.file("log")));
    }
    focus();
}

std::string Foot::program() const { return std::filesystem::path(m_folder.path()).filename().string(); }

std::string Foot::typed(std::size_t bytes, std::chrono::milliseconds deadline) const {
    EXPECT_TRUE(eventually([&] { return typed().size() >= bytes; }, deadline)) << "typed so far: " << typed();
    return typed();
}

void Foot::focus() const {
    if (!eventually([this] { return m_compositor.focus(program()); })) {
        throw std::runtime_error("the terminal gets no focus");
    }
}
