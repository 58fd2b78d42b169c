// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"

/// Another process that a run relies on, looked after wherever the run waits.
class RunCompanion {
  public:
    virtual ~RunCompanion() = default;

    /// Readable when it has said something or has ended; -1 while there is none.
    virtual int fileDescriptor() const = 0;
    /// Reads what it has said, and puts another in its place if it has ended. Fails if that cannot be done.
    virtual Result<void> look() = 0;
};
