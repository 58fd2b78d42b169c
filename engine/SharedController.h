// SPDX-License-Identifier: MIT
#pragma once

#include <boost/smart_ptr/shared_ptr.hpp>
#include <string>

#include "platform/Result.h"

class Macro;

/// What the engine tells the user interface. Main thread only.
class SharedController {
  public:
    virtual ~SharedController() = default;

    /// The text of the recording overlay, UTF-8: the whole macro so far. The reference is good during the
    /// call only.
    virtual void setMacroString(const std::string& text) = 0;

    /// A recording has started. Calls restartLastEventTime() once the overlay is up; may call
    /// cancelRecording() instead.
    virtual void showRecordingGui() = 0;
    virtual void hideRecordingGui() = 0;

    /// A recording was asked for and has not started, since nothing can be recorded. Of interest only where
    /// it can be told.
    virtual void cannotRecord(const Error& /*why*/) {}

    /// Ask how many times to play.
    virtual void showMultiplePlayGui() = 0;

    /// A recording with at least one action has ended; it belongs into the history.
    virtual void addMacro(const boost::shared_ptr<Macro>& macro) = 0;

    /// The current macro has become another one, or none, without a recording. Of interest only where it can
    /// be seen whether there is one.
    virtual void currentMacroChanged() {}

    /// A play command has ended. Of interest only where it can be told what failed in it.
    virtual void playbackEnded() {}
};

/// Installs the controller for the life of the scope. Scopes nest; the inner one counts.
class SharedControllerScope {
  public:
    explicit SharedControllerScope(SharedController& controller);
    ~SharedControllerScope();
    SharedControllerScope(const SharedControllerScope&) = delete;
    SharedControllerScope& operator=(const SharedControllerScope&) = delete;

  private:
    SharedController* m_previous;
};

/// Null while none is installed: the engine then runs without a user interface.
SharedController* sharedController();
