// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <memory>

#include "platform/Clock.h"
#include "platform/Session.h"
#include "platform/linux/SignalCatcher.h"

/// The way to press keys in the session that the program was started in, for the length of one run.
///
/// While it lasts SIGINT, SIGTERM and SIGHUP end the run, which releases what it holds; SIGTSTP stops the
/// process when the run has released it for so long. At most one object.
class Playback {
  public:
    /// Fails where there is no session in which keys can be pressed.
    static Result<std::unique_ptr<Playback>> make();

    KeyInjector& injector() { return m_session->sessionServices().keyInjector; }
    ScriptDesktop& desktop() { return m_session->sessionServices().scriptDesktop; }
    Session& session() { return *m_session; }
    const SignalCatcher& signals() const { return m_signals; }
    /// Whether the session is still there; its end ends the run as a wish of the user's does.
    Result<void> connection() const { return m_session->connection(); }

    /// Leaves the session and puts back what the run has changed, which no signal cuts short. The signal that
    /// has come by then, 0 if none has. The last call.
    int finish();

  private:
    Playback(std::unique_ptr<Clock> clock, std::unique_ptr<Session> session);

    static void interrupt(void* playback);
    static void suspend(void* playback);

    std::unique_ptr<Clock> m_clock;
    std::unique_ptr<Session> m_session;
    /// What a signal interrupts; null when there is nothing any more.
    std::atomic<Session*> m_interruptible = m_session.get();
    static_assert(std::atomic<Session*>::is_always_lock_free);
    SignalCatcher m_signals{interrupt, suspend, this};
};

/// Ends the process by a signal that was caught: whoever waits for it is told how it ended, also where the
/// signal was ignored before.
void endBySignal(int number);
