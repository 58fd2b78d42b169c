// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "compositor/Compositor.h"
#include "compositor/Toplevels.h"
#include "compositor/UserSession.h"

/// A private phoc without a screen, with a session bus and a home of its own and nobody else on it; ends with
/// the object. It has virtual keyboards, layers, data control and toplevels as sway has, and neither hot keys
/// nor a way of its own to ask it. It runs as nobody where the test runs as root. One that cannot be started
/// fails the test by an exception.
class Phoc final : public Compositor {
  public:
    Phoc();

    const std::map<std::string, std::string>& environment() const override { return m_session.environment(); }
    bool focus(const std::string& title) const override { return m_windows->activate(title); }
    void close(const std::string& title) const override { m_windows->close(title); }
    bool hasFocus(const std::string& title) const override;
    bool shows(const std::string& title) const override;
    /// The compositor's socket, an absolute path.
    std::string socket() const { return m_session.file("wayland-0"); }

    /// His programs, his files.
    const UserSession& user() const { return m_session; }

  private:
    UserSession m_session;
    std::unique_ptr<Child> m_program;
    std::unique_ptr<Toplevels> m_windows;
};
