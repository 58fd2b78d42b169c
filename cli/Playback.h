// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "platform/Clock.h"
#include "platform/Session.h"

/// The way to press keys in the session that the program was started in, for the length of one run.
///
/// While it lasts SIGINT, SIGTERM and SIGHUP end the run, which releases what it holds. At most one object.
class Playback {
  public:
    /// Fails where there is no session in which keys can be pressed.
    static Result<std::unique_ptr<Playback>> make();

    /// Puts back what the run has changed, which no signal cuts short.
    ~Playback();
    Playback(const Playback&) = delete;
    Playback& operator=(const Playback&) = delete;

    KeyInjector& injector() { return m_session->sessionServices().keyInjector; }
    ScriptDesktop& desktop() { return m_session->sessionServices().scriptDesktop; }
    /// The signal that came, also while the last object was destroyed; 0 if none came.
    static int signalNumber();
    /// Whether the session is still there; its end ends the run as a wish of the user's does.
    Result<void> connection() const { return m_session->connection(); }

  private:
    Playback(std::unique_ptr<Clock> clock, std::unique_ptr<Session> session);

    std::unique_ptr<Clock> m_clock;
    std::unique_ptr<Session> m_session;
};
