// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <memory>
#include <string>
#include <vector>

#include "compositor/Compositor.h"
#include "compositor/UserSession.h"

/// A private KWin without a screen, with a session bus and a home of its own and nobody else on it; ends with
/// the object. It runs as nobody where the test runs as root. One that cannot be started fails the test by an
/// exception.
///
/// A script of the test's tells all the time which windows there are: asking by one each time would come into
/// the way of programs that do so.
///
/// Programs may do there what KWin otherwise asks a desktop entry for, so that a test has hands (KWinHands).
class KWin final : public Compositor {
  public:
    /// How long keys are down before they repeat: a KWin that has no time for hands makes no strokes of its
    /// own. Then they do so 25 times a second.
    static constexpr std::chrono::milliseconds repeatDelay{1500};

    struct Options {
        /// As xkb-data calls them, separated by commas.
        std::string layouts = "us";
        /// Whether X11 programs can be shown.
        bool hasXServer = false;
        /// Whether KDE's portal is there, as in its sessions.
        bool hasPortal = false;
        /// Whether ScreenPicture can be taken of it, which makes it slower.
        bool hasPictures = false;
        /// Whether KWin gives the focus only to windows that it takes for wanted, as it does at users' most
        /// careful setting; else to each one that comes.
        bool guardsFocus = false;
        /// How many pixels of the screen's own a program's are in each direction.
        int scale = 1;
    };

    KWin() : KWin(Options()) {}
    explicit KWin(const Options& options);

    /// With the session bus; no X server among it unless asked for.
    const std::map<std::string, std::string>& environment() const override { return m_session.environment(); }
    bool focus(const std::string& title) const override;
    void close(const std::string& title) const override;
    void makeFullScreen(const std::string& title) const;
    /// Whether the window with that title is there, but off the screen.
    bool isMinimised(const std::string& title) const;
    bool hasFocus(const std::string& title) const override { return front() == title; }
    bool shows(const std::string& title) const override;
    /// The title of the window that has the focus, empty without one and where a layer has it.
    std::string front() const { return windows().front(); }
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
    /// Ends as it would by a crash: KDE's part of the portal, the portal, the session bus.
    enum class Service { portalOfKde, portal, bus };
    void kill(Service service);
    /// As at the beginning of a session: nothing of the portal runs, and the first who asks for it waits so
    /// long until it does.
    void putPortalBack(std::chrono::seconds wait);

  private:
    void startCompositor();
    void startPortal();
    void watchWindows();
    /// The titles of the one that has the focus, empty without one, and of all.
    std::vector<std::string> windows() const;
    /// What a script in KWin says first, by its function `say`: one line.
    std::string run(const std::string& script) const;
    /// The name of a script that is loaded and runs from now on.
    std::string load(const std::string& script) const;

    UserSession m_session;
    Options m_options;
    std::unique_ptr<Child> m_program;
    std::vector<std::unique_ptr<Child>> m_portal;
    mutable int m_scripts = 0;
    /// The name of the script that tells of windows.
    std::string m_watcher;
};
