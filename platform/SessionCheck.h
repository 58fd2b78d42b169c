// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Capabilities.h"
#include "platform/Result.h"

/// Whether the program can do its work in the session that it was started in. Asked at start-up, and by those
/// who want to know what works. Nothing of the session is changed or taken by a question.
class SessionCheck {
  public:
    virtual ~SessionCheck() = default;

    /// Whether the session is of a kind and an age that the program knows; the error says what is needed and
    /// what was found.
    virtual Result<> version() const = 0;

    /// Whether the session lets the program see and press keys; the error names what is missing.
    virtual Result<> access() const = 0;

    /// What works here, as of now.
    virtual SessionCapabilities capabilities() const = 0;
    virtual SessionDetails details() const = 0;
};
