// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Descriptor.h"

/// Catches SIGTERM, SIGINT and SIGHUP as long as it lives, then puts back what was done with them before.
/// Calls of the system that they interrupt go on. At most one object at a time.
class SignalCatcher {
  public:
    /// What is done at once, within the signal handler, with the context; async-signal-safe.
    using AtOnce = void (*)(void* context);

    SignalCatcher(AtOnce atOnce, void* context);
    ~SignalCatcher();
    SignalCatcher(const SignalCatcher&) = delete;
    SignalCatcher& operator=(const SignalCatcher&) = delete;

    /// The signal that came last; 0 if none has come.
    int number() const;
    /// Readable once one has come, and from then on; -1 when no descriptor was left, then only number()
    /// tells.
    int fileDescriptor() const { return m_wakeup.number(); }

  private:
    Descriptor m_wakeup;
};
