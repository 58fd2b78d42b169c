// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "platform/KeyInjector.h"
#include "platform/Result.h"
#include "platform/ScriptDesktop.h"

/// The way to press keys in the session that the program was started in, for the length of one run.
///
/// While it lasts SIGINT, SIGTERM and SIGHUP end the run, which releases what it holds. At most one object.
class Playback {
  public:
    /// Fails where there is no session in which keys can be pressed.
    static Result<std::unique_ptr<Playback>> make();

    Playback() = default;
    virtual ~Playback() = default;
    Playback(const Playback&) = delete;
    Playback& operator=(const Playback&) = delete;

    virtual KeyInjector& injector() = 0;
    virtual ScriptDesktop& desktop() = 0;
    /// What a run has put into the clipboard is to outlive this process.
    virtual void leaveClipboard() = 0;
    /// The signal that ended the run; 0 if none came.
    virtual int signalNumber() const = 0;
    /// Whether the session is gone, which ends the run as a wish of the user's does.
    virtual bool isLost() const = 0;
};
