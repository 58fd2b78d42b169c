// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>

#include "compositor/KWin.h"
#include "compositor/KWinHands.h"
#include "wayland/ProgramSession.h"

class KWinMouse final : public Mouse {
  public:
    explicit KWinMouse(KWinHands& hands) : m_hands(hands) {}

    void click(unsigned x, unsigned y) override { m_hands.click(x, y); }

  private:
    KWinHands& m_hands;
};

/// keyrill itself under a KWin of the test's own.
class KWinProgram : public ProgramSession {
  public:
    explicit KWinProgram(KWin::Options options = {})
        : m_kwin(withPortal(std::move(options))), m_hands(m_kwin.socket()) {
        const std::string presets = m_kwin.put("presets/keyrill/keyrill.conf", contentOf(KEYRILL_PRESETS));
        m_presets = std::filesystem::path(presets).parent_path().parent_path();
        // Nobody is greeted.
        m_kwin.put("home/.config/keyrill/keyrill.conf", "[Settings]\nnotFirstRun=true\n");
    }

    void launch(const std::string& lines) override {
        const std::string macro =
            put("macro.keyrill", "tell application \"System Events\"\n" + lines + "\nend tell\n");
        m_program = run({KEYRILL_PRODUCT, macro}, "output");
    }
    const Compositor& compositor() const override { return m_kwin; }
    Hands& hands() override { return m_hands; }
    Child& program() override { return *m_program; }
    std::unique_ptr<Child> run(const std::vector<std::string>& command,
                               const std::string& output) const override {
        return m_kwin.start(command, output,
                            {{"XDG_CONFIG_DIRS", m_presets}, {"DBUS_SYSTEM_BUS_ADDRESS", systemBus()}});
    }
    std::string put(const std::string& name, const std::string& content) const override {
        return m_kwin.put("home/" + name, content);
    }
    std::string socket() const override { return m_kwin.socket(); }
    std::string outputIn(const std::string& file) const override { return m_kwin.log(file); }
    std::unique_ptr<Target> openTarget(Target::Kind kind) const override {
        if (kind == Target::Kind::terminal) throw std::runtime_error("there is no terminal under KWin");
        return makeField(m_kwin, kind == Target::Kind::qt ? Field::Toolkit::qt : Field::Toolkit::gtk);
    }
    ScreenPicture picture() const override { return ScreenPicture(m_kwin); }
    void makeFullScreen() const override { m_kwin.makeFullScreen(m_kwin.front()); }
    std::unique_ptr<Mouse> plugMouse() override { return std::make_unique<KWinMouse>(m_hands); }
    bool hasLayerKeys() const override { return m_kwin.front().empty(); }

    void forgetSettings() const override {
        std::filesystem::remove(m_kwin.environment().at("XDG_RUNTIME_DIR") +
                                "/home/.config/keyrill/keyrill.conf");
    }

    KWin& kwin() { return m_kwin; }

  private:
    static KWin::Options withPortal(KWin::Options options) {
        options.hasPortal = true;
        return options;
    }

    KWin m_kwin;
    std::string m_presets;
    KWinHands m_hands;
    std::unique_ptr<Child> m_program;
};
