// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Descriptor.h"

/// Catches SIGTERM, SIGINT and SIGHUP, and SIGTSTP where somebody wants to know of it, as long as it lives,
/// then puts back what was done with them before. Calls of the system that they interrupt go on. At most one
/// object at a time.
class SignalCatcher {
  public:
    /// What is done at once, within the signal handler, with the context; async-signal-safe.
    using AtOnce = void (*)(void* context);

    SignalCatcher(AtOnce atOnce, void* context) : SignalCatcher(atOnce, nullptr, context) {}
    /// `suspend` is done when the process is to stop for a while, which it has to see to itself; without one
    /// that is left to the system.
    SignalCatcher(AtOnce atOnce, AtOnce suspend, void* context);
    ~SignalCatcher();
    SignalCatcher(const SignalCatcher&) = delete;
    SignalCatcher& operator=(const SignalCatcher&) = delete;

    /// The signal that came last of those that end; 0 if none has come.
    int number() const;
    /// Readable once one has come, and from then on; -1 when no descriptor was left, then only number()
    /// tells.
    int fileDescriptor() const { return m_wakeup.number(); }

  private:
    Descriptor m_wakeup;
};
