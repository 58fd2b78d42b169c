// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>

#include "compositor/KWin.h"
#include "compositor/KWinHands.h"
#include "wayland/ProgramSession.h"

/// keyrill itself under a KWin of the test's own.
class KWinProgram : public ProgramSession {
  public:
    explicit KWinProgram(const std::string& layouts = "us")
        : m_kwin({.layouts = layouts, .hasXServer = true, .hasPortal = true}), m_hands(m_kwin.socket()) {
        const std::string presets = m_kwin.put("presets/keyrill/keyrill.conf", contentOf(KEYRILL_PRESETS));
        m_presets = std::filesystem::path(presets).parent_path().parent_path();
        // Nobody is greeted.
        m_kwin.put("home/.config/keyrill/keyrill.conf", "[Settings]\nnotFirstRun=true\n");
    }

    void start(const std::string& lines) override {
        const std::string macro =
            m_kwin.put("home/macro.keyrill", "tell application \"System Events\"\n" + lines + "\nend tell\n");
        m_program = m_kwin.start({KEYRILL_PRODUCT, macro}, "output",
                                 {{"XDG_CONFIG_DIRS", m_presets}, {"DBUS_SYSTEM_BUS_ADDRESS", systemBus()}});
        // Without a tray a small window appears, once the program is up.
        if (!eventually([this] { return m_kwin.shows("Keyrill"); }, std::chrono::seconds(30))) {
            throw std::runtime_error("the program does not start: " + m_kwin.log("output"));
        }
    }
    const Compositor& compositor() const override { return m_kwin; }
    Hands& hands() override { return m_hands; }
    Child& program() override { return *m_program; }

    KWin& kwin() { return m_kwin; }

  private:
    KWin m_kwin;
    std::string m_presets;
    KWinHands m_hands;
    std::unique_ptr<Child> m_program;
};
