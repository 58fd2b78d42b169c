// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>

#include "platform/Descriptor.h"

/// The word that the process is about to end, given by a signal handler and seen by whoever waits in ppoll.
class RunInterrupt {
  public:
    RunInterrupt();
    RunInterrupt(const RunInterrupt&) = delete;
    RunInterrupt& operator=(const RunInterrupt&) = delete;

    /// Async-signal-safe.
    void raise() noexcept;
    bool isRaised() const noexcept { return m_raised.load(); }

    /// Readable once raised, and from then on; -1 when no descriptor was left, then only isRaised() tells.
    int fileDescriptor() const { return m_descriptor.number(); }

  private:
    Descriptor m_descriptor;
    std::atomic<bool> m_raised = false;
    static_assert(std::atomic<bool>::is_always_lock_free);
};
