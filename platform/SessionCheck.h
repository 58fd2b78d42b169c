// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"

/// Whether the program can do its work in the session that it was started in. Asked at start-up.
class SessionCheck {
  public:
    virtual ~SessionCheck() = default;

    /// Whether the session is of a kind and an age that the program knows; the error says what is needed and
    /// what was found.
    virtual Result<> version() const = 0;

    /// Whether the session lets the program see and press keys; the error names what is missing.
    virtual Result<> access() const = 0;

    /// Whether there are windows that the program neither sees nor reaches (X11 within a Wayland session).
    virtual bool seesOnlySomeWindows() const = 0;
};
