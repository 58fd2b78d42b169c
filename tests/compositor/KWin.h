// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "compositor/Compositor.h"
#include "compositor/UserSession.h"

/// A private KWin without a screen, with a session bus and a home of its own and nobody else on it; ends with
/// the object. It runs as nobody where the test runs as root. One that cannot be started fails the test by an
/// exception.
///
/// Programs may do there what KWin otherwise asks a desktop entry for, so that a test has hands (KWinHands).
class KWin final : public Compositor {
  public:
    struct Options {
        /// As xkb-data calls them, separated by commas.
        std::string layouts = "us";
        /// Whether X11 programs can be shown.
        bool hasXServer = false;
        /// Whether KDE's portal is there, as in its sessions.
        bool hasPortal = false;
    };

    KWin() : KWin(Options()) {}
    explicit KWin(const Options& options);

    /// With the session bus; no X server among it unless asked for.
    const std::map<std::string, std::string>& environment() const override { return m_session.environment(); }
    bool focus(const std::string& title) const override;
    void close(const std::string& title) const override;
    bool hasFocus(const std::string& title) const override { return front() == title; }
    bool shows(const std::string& title) const override;
    /// The title of the window that has the focus, empty without one.
    std::string front() const;
    /// The compositor's socket, an absolute path.
    std::string socket() const { return m_session.file("kwin"); }
    Child& program() { return *m_program; }

    // The user's programs, his files and his bus (UserSession).
    std::string call(const std::vector<std::string>& arguments) const { return m_session.call(arguments); }
    std::unique_ptr<Child> start(const std::vector<std::string>& command, const std::string& log,
                                 const std::map<std::string, std::string>& more = {}) const {
        return m_session.start(command, log, more);
    }
    std::string log(const std::string& name) const { return m_session.log(name); }
    std::string put(const std::string& name, const std::string& content) const {
        return m_session.put(name, content);
    }

    /// As a crash would, and another one in its place. Programs that it showed have lost it.
    void comeAgain();

  private:
    void startCompositor();
    void startPortal();
    /// What a script in KWin prints, with `print` alone: one line.
    std::string run(const std::string& script) const;

    UserSession m_session;
    Options m_options;
    std::unique_ptr<Child> m_program;
    std::vector<std::unique_ptr<Child>> m_portal;
    mutable int m_scripts = 0;
};
