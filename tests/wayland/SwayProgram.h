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
#include "compositor/UserSession.h"
#include "compositor/WaylandHands.h"
#include "compositor/WaylandMouse.h"
#include "wayland/ProgramSession.h"

class SwayMouse final : public Mouse {
  public:
    explicit SwayMouse(const std::string& socket) : m_mouse(socket) {}

    void click(unsigned x, unsigned y) override { m_mouse.click(x, y, 1024, 640); }

  private:
    WaylandMouse m_mouse;
};

/// keyrill itself under a sway of the test's own, and as its user, who may read no keyboard of the machine's.
class SwayProgram : public ProgramSession {
  public:
    struct Options {
        /// The user's, of sway.
        std::string configuration = {};
        bool hasSessionBus = false;
        bool hasXServer = true;
    };

    SwayProgram() : SwayProgram(Options()) {}
    explicit SwayProgram(const Options& options)
        : m_bus(options.hasSessionBus ? std::make_unique<UserSession>() : nullptr),
          m_sway({.configuration = options.configuration, .hasXServer = options.hasXServer}),
          m_hands(m_sway.socket()) {
        std::filesystem::create_directories(m_folder.file("presets/keyrill"));
        std::filesystem::copy_file(KEYRILL_PRESETS, m_folder.file("presets/keyrill/keyrill.conf"));
        std::filesystem::create_directories(m_folder.file("home/.config/keyrill"));
        // Nobody is greeted.
        std::ofstream(m_folder.file("home/.config/keyrill/keyrill.conf")) << "[Settings]\nnotFirstRun=true\n";
        otheruser::giveAwayAll(m_folder.path());
    }

    void launch(const std::string& lines) override {
        const std::string macro =
            put("macro.keyrill", "tell application \"System Events\"\n" + lines + "\nend tell\n");
        m_program = run({KEYRILL_PRODUCT, macro}, "output");
    }
    const Compositor& compositor() const override { return m_sway; }
    WaylandHands& hands() override { return m_hands; }
    Child& program() override { return *m_program; }
    std::unique_ptr<Child> run(const std::vector<std::string>& command,
                               const std::string& output) const override {
        auto environment = m_sway.environment();
        environment["HOME"] = m_folder.file("home");
        environment["XDG_CONFIG_DIRS"] = m_folder.file("presets");
        environment["XDG_CONFIG_HOME"] = "";
        environment["XDG_DATA_HOME"] = "";
        environment["LC_ALL"] = "C.UTF-8";
        environment["DBUS_SESSION_BUS_ADDRESS"] =
            m_bus ? m_bus->environment().at("DBUS_SESSION_BUS_ADDRESS") : "disabled:";
        environment["DBUS_SYSTEM_BUS_ADDRESS"] = systemBus();
        return std::make_unique<Child>(
            otheruser::command(command),
            Child::Options{.environment = environment, .outputFile = m_folder.file(output)});
    }
    std::string put(const std::string& name, const std::string& content) const override {
        std::ofstream(m_folder.file(name), std::ios::binary) << content;
        otheruser::giveAway(m_folder.file(name));
        return m_folder.file(name);
    }
    std::string socket() const override { return m_sway.socket(); }
    std::string outputIn(const std::string& file) const override { return contentOf(m_folder.file(file)); }
    std::unique_ptr<Target> openTarget(Target::Kind kind) const override {
        if (kind == Target::Kind::terminal) return makeTerminal(m_sway);
        return makeField(m_sway, kind == Target::Kind::qt ? Field::Toolkit::qt : Field::Toolkit::gtk);
    }
    ScreenPicture picture() const override { return ScreenPicture(m_sway); }
    void makeFullScreen() const override { m_sway.message({"fullscreen", "enable"}); }
    std::unique_ptr<Mouse> plugMouse() override { return std::make_unique<SwayMouse>(m_sway.socket()); }
    bool hasLayerKeys() const override { return m_sway.hasLayerKeys(); }

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

    void forgetSettings() const override {
        std::filesystem::remove_all(m_folder.file("home/.config/keyrill"));
    }

    const Sway& sway() const { return m_sway; }
    const TemporaryFolder& folder() const { return m_folder; }

  private:
    TemporaryFolder m_folder;
    std::unique_ptr<UserSession> m_bus;
    Sway m_sway;
    WaylandHands m_hands;
    std::unique_ptr<Child> m_program;
};

class SwayProgramTest : public SwayProgram, public testing::Test {
  protected:
    using SwayProgram::SwayProgram;
};
