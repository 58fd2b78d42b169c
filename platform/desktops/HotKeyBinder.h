// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>

#include "platform/monitor/KeyGrabber.h"

/// A desktop that takes combinations from all programs and tells of them by a way of its own.
class HotKeyBinder : public KeyGrabber {
  public:
    /// What has happened: one of ours goes down or up, the desktop's user has decided on it, the desktop has
    /// forgotten all of them, or another layout is in force.
    struct Event {
        enum class Kind { press, release, answer, reload, layout };
        Kind kind = Kind::press;
        /// As it was grabbed.
        std::uint8_t keycode = 0;
        std::uint16_t modifiers = 0;
        GrabAnswer answer = {};

        friend bool operator==(const Event&, const Event&) = default;
    };

    /// Another layout may be in force.
    virtual void layoutChanged() {}

    /// Readable when nextEvent() may have one.
    virtual int fileDescriptor() const = 0;
    /// Without waiting.
    virtual std::optional<Event> nextEvent() = 0;
};
