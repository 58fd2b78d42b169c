// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <utility>

#include "platform/run/RunCompanion.h"
#include "platform/run/RunInterrupt.h"
#include "platform/run/RunWait.h"
#include "platform/run/RunWatch.h"

/// The only place where a run blocks: one ppoll that serves the watch, the interrupt and the moment at which
/// a held Escape becomes a wish to stop.
class RunWaiter final : public RunWait {
  public:
    /// `server` is the descriptor of a connection to the desktop's server, looked at for its end only.
    RunWaiter(const Clock& clock, RunWatch& watch, const RunInterrupt& interrupt, RunCompanion& companion,
              int server)
        : m_clock(clock), m_watch(watch), m_interrupt(interrupt), m_companion(companion), m_server(server) {}

    /// What is done where the process is to stop for a while; a halt of it is one of the wait.
    void whenSuspended(std::function<Step<>()> suspended) { m_suspended = std::move(suspended); }

    Step<> waitUntil(Clock::Time deadline) override;

    /// Reads what the user has done, and halts if it means to stop. So does a lost server, and a companion
    /// that is lost for good.
    Step<> heedUser();

    /// Waits until the watch has something to read, or until then; heedUser() reads it.
    void awaitNews(Clock::Time deadline);

  private:
    void block(Clock::Time until);

    const Clock& m_clock;
    RunWatch& m_watch;
    const RunInterrupt& m_interrupt;
    RunCompanion& m_companion;
    int m_server;
    std::function<Step<>()> m_suspended;
    bool m_isLost = false;
};
