// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

class ScriptingService;

/// A desktop with one application in front that takes text, the service that runs scripts there, and the
/// hands of a user outside. No lock is on and no key down.
class ScriptingWorld {
  public:
    virtual ~ScriptingWorld() = default;

    virtual ScriptingService& scripting() = 0;

    /// All text that has reached the application, waited for: called when no run lasts.
    virtual std::string typed() = 0;

    /// The user asks to stop the playback, and the wish has arrived when the call returns.
    virtual void userAsksToStop() = 0;
};

using ScriptingWorldFactory = std::unique_ptr<ScriptingWorld> (*)();
