// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <stdexcept>
#include <string>

#include "compositor/Foot.h"
#include "compositor/OtherUser.h"
#include "compositor/Sway.h"
#include "compositor/WaylandHands.h"
#include "wayland/ProgramSession.h"

/// keyrill itself under a sway of the test's own, and as its user, who may read no keyboard of the machine's.
class SwayProgram : public ProgramSession {
  public:
    /// `configuration` is the user's, of sway.
    explicit SwayProgram(const std::string& configuration = {})
        : m_sway({.configuration = configuration, .hasXServer = true}), m_hands(m_sway.socket()) {
        std::filesystem::create_directories(m_folder.file("presets/keyrill"));
        std::filesystem::copy_file(KEYRILL_PRESETS, m_folder.file("presets/keyrill/keyrill.conf"));
        std::filesystem::create_directories(m_folder.file("home/.config/keyrill"));
        // Nobody is greeted.
        std::ofstream(m_folder.file("home/.config/keyrill/keyrill.conf")) << "[Settings]\nnotFirstRun=true\n";
        otheruser::giveAwayAll(m_folder.path());
    }

    /// It has its combinations, too, when this returns.
    void start(const std::string& lines) override {
        std::ofstream(m_folder.file("macro.keyrill")) << "tell application \"System Events\"\n"
                                                      << lines << "\nend tell\n";
        auto environment = m_sway.environment();
        environment["HOME"] = m_folder.file("home");
        environment["XDG_CONFIG_DIRS"] = m_folder.file("presets");
        environment["XDG_CONFIG_HOME"] = "";
        environment["XDG_DATA_HOME"] = "";
        environment["LC_ALL"] = "C.UTF-8";
        environment["DBUS_SESSION_BUS_ADDRESS"] = "disabled:";
        environment["DBUS_SYSTEM_BUS_ADDRESS"] = systemBus();
        m_program = std::make_unique<Child>(
            otheruser::command({KEYRILL_PRODUCT, m_folder.file("macro.keyrill")}),
            Child::Options{.environment = environment, .outputFile = m_folder.file("log")});
        // Without a tray a small window appears, once the program is up.
        if (!eventually([this] { return shows("Keyrill"); }, std::chrono::seconds(30))) {
            throw std::runtime_error("the program does not start: " + contentOf(m_folder.file("log")));
        }
    }
    const Compositor& compositor() const override { return m_sway; }
    WaylandHands& hands() override { return m_hands; }
    Child& program() override { return *m_program; }

    /// How often sway has taken the preset combination for playing for the program.
    std::size_t timesTaken() const {
        const std::string log = m_sway.log();
        std::size_t times = 0;
        for (std::size_t at = log.find("nop keyrill"); at != std::string::npos;
             at = log.find("nop keyrill", at + 1)) {
            const std::string line = log.substr(at, log.find('\n', at) - at);
            if (line.find("press 33 ") != std::string::npos && line.find(" for device") != std::string::npos)
                ++times;
        }
        return times;
    }

    const Sway& sway() const { return m_sway; }
    const TemporaryFolder& folder() const { return m_folder; }

  private:
    TemporaryFolder m_folder;
    Sway m_sway;
    WaylandHands m_hands;
    std::unique_ptr<Child> m_program;
};

class SwayProgramTest : public SwayProgram, public testing::Test {
  protected:
    using SwayProgram::SwayProgram;
};
