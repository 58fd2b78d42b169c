// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/SessionCheck.h"

namespace x11 {

/// An X11 session, by its server's extensions. Each question opens a connection of its own, unless the answer
/// is known.
class X11SessionCheck : public SessionCheck {
  public:
    /// What the environment says of the session; empty where it says nothing.
    struct Session {
        /// DISPLAY
        std::string display;
        /// WAYLAND_DISPLAY
        std::string waylandDisplay;
        /// The guard program of what presses keys; empty where it is looked for.
        std::string guard = {};
    };
    static Session sessionOfProcess();

    /// `worksAlready` tells that connections have shown all that version() and access() ask for.
    explicit X11SessionCheck(Session session, bool worksAlready = false)
        : m_session(std::move(session)), m_worksAlready(worksAlready) {}

    /// An X server that is reached and has XInput 2.2.
    Result<> version() const override;
    /// XKB and XTEST.
    Result<> access() const override;
    /// Where the X server is one within a Wayland session (its extension XWAYLAND), only X11 windows are seen
    /// and reached. Of trays only those that icons dock into.
    SessionCapabilities capabilities() const override;
    SessionDetails details() const override;

  private:
    Session m_session;
    bool m_worksAlready;
};

}  // namespace x11
