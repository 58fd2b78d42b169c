// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

/// A top-level window's number in the window system.
using WindowId = std::uint32_t;

/// A top-level window of ours.
struct OwnWindow {
    /// Windows::none where the window system has no numbers for windows, as Wayland compositors for their
    /// own.
    WindowId id = 0;
    /// What such a compositor tells it by from the others of ours.
    std::string title = {};
    /// How many of ours that are shown it could be by number and title: this one came last.
    int count = 1;
};

/// What the toolkit cannot do with windows: take the focus with the permission of a hot key, and know when it
/// has really gone to somebody else.
class Windows {
  public:
    static constexpr WindowId none = 0;

    virtual ~Windows() = default;

    /// Has nobody give the focus to a window of ours when it appears. The toolkit has been told the same, and
    /// has told the window system of the window, but not shown it.
    virtual void refuseFocus(const OwnWindow& window) = 0;

    /// Gives the focus to a window of ours that has just been shown, and remembers who had it. `userTime` is
    /// the window system's time stamp of what the user did to open it (HotKeys::lastPressTime()), 0 for now.
    virtual void activate(const OwnWindow& window, std::uint32_t userTime) = 0;

    /// Waits, 0.5 s at most, until the focus is where keys should go: `hidden`, a window of ours that has
    /// just been hidden, is off the screen, another window is the active one and holds the focus. Without a
    /// window manager nobody passes the focus on; then it is given back to the window that had it before
    /// activate(). One without number and title for `hidden` if no window was hidden.
    ///
    /// Why: keys that are sent at once after a window was hidden are lost.
    virtual void awaitFocusElsewhere(const OwnWindow& hidden) = 0;
};
