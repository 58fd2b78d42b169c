// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>

#include "platform/Descriptor.h"

/// The word that the process is about to end, or to stop for a while, given by a signal handler and seen by
/// whoever waits in ppoll.
class RunInterrupt {
  public:
    RunInterrupt();
    RunInterrupt(const RunInterrupt&) = delete;
    RunInterrupt& operator=(const RunInterrupt&) = delete;

    /// Async-signal-safe.
    void raise() noexcept;
    bool isRaised() const noexcept { return m_raised.load(); }

    /// The process is to stop until somebody lets it go on (SIGTSTP): here and now, unless a run holds
    /// something; that one is told. Async-signal-safe.
    void suspend() noexcept;
    /// Whether a run holds what it has to give back before the process stops.
    void setHolding(bool holds) noexcept { m_holds.store(holds); }
    bool isSuspended() const noexcept { return m_suspended.load(); }
    /// Stops the process, and returns when it goes on.
    void stopProcess() noexcept;

    /// Readable once raised, and from then on; -1 when no descriptor was left, then only isRaised() tells.
    int fileDescriptor() const { return m_descriptor.number(); }

  private:
    Descriptor m_descriptor;
    std::atomic<bool> m_raised = false;
    std::atomic<bool> m_suspended = false;
    std::atomic<bool> m_holds = false;
    static_assert(std::atomic<bool>::is_always_lock_free);
};
