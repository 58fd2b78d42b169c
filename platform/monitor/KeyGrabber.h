// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "platform/monitor/KeyGrab.h"

/// Who can take combinations from all other programs.
class KeyGrabber {
  public:
    virtual ~KeyGrabber() = default;

    /// All variants or none. The error says why not, as the end of a sentence: "another program holds it".
    virtual std::optional<std::string> grab(const KeyGrab& grab) = 0;
    /// Gives back what grab() took; nothing happens for a combination that is not held.
    virtual void release(const KeyGrab& grab) = 0;
};
