// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// Compiles and runs script text. Runs are synchronous and report nothing: an error ends the run as if it had
/// succeeded.
class ScriptingService {
  public:
    virtual ~ScriptingService() = default;

    /// A play command of one or more runs starts: forgets an earlier wish to stop.
    virtual void startPlayback() = 0;

    /// Compiles the text afresh and runs it to its end. Called while a run lasts, it does nothing.
    virtual void run(const std::string& source) = 0;

    /// Whether the user has asked to end the playback since it started.
    virtual bool isCancelled() = 0;
};
