// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "compositor/Compositor.h"
#include "compositor/UserSession.h"

class BusClient;

/// A private GNOME without a screen: its shell, its daemon for shortcuts, its settings (dconf), its portal
/// and the bus of assistive technology, with nobody else on it; ends with the object. It runs as nobody where
/// the test runs as root. One that cannot be started fails the test by an exception.
///
/// The shell takes scripts and gives pictures, so that a test sees what is there; nobody is greeted, and
/// nothing fades.
class GnomeShell final : public Compositor {
  public:
    /// A key of the user's settings: "org.gnome.shell", "enabled-extensions", "['a@b']".
    struct Setting {
        std::string schema;
        std::string key;
        std::string value;
    };
    struct Options {
        /// A bus with logind on it, which the shell does not do without.
        std::string systemBus;
        /// What the user has changed before.
        std::vector<Setting> settings = {};
    };

    explicit GnomeShell(const Options& options);
    ~GnomeShell() override;

    /// With the session bus and an X server.
    const std::map<std::string, std::string>& environment() const override { return m_session.environment(); }
    bool focus(const std::string& title) const override;
    void close(const std::string& title) const override;
    bool hasFocus(const std::string& title) const override;
    bool shows(const std::string& title) const override;
    /// The title of the window that has the focus, empty without one.
    std::string front() const;
    void makeFullScreen(const std::string& title) const;

    /// What an expression in the shell is, as JSON. One that fails fails the test.
    std::string evaluate(const std::string& expression) const;
    /// What the user's settings say, as gsettings(1) prints it.
    std::string setting(const std::string& schema, const std::string& key) const;
    void set(const Setting& setting) const;
    /// A picture of the whole screen, PNG; the file.
    std::string picture(const std::string& name) const;

    Child& program() { return *m_program; }
    /// Who shows the questions of the portal.
    const Child& questions() const { return *m_questions; }
    /// The user's programs, his files and his bus.
    const UserSession& session() const { return m_session; }

  private:
    void startShell();
    void startPortal();
    /// Whether there is a window of that title for which a statement about `window` has been run.
    bool withWindow(const std::string& title, const std::string& statement) const;
    std::string run(const std::vector<std::string>& command) const;

    UserSession m_session;
    std::unique_ptr<BusClient> m_bus;
    std::vector<std::unique_ptr<Child>> m_services;
    std::unique_ptr<Child> m_program;
    std::unique_ptr<Child> m_questions;
    mutable int m_commands = 0;
};
