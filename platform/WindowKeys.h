// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

/// What happens to a key while a window of the program's own has the keyboard.
struct WindowKey {
    enum class Kind { press, repeat, release };

    Kind kind = Kind::press;
    /// The X key code, which is the kernel's number + 8.
    std::uint8_t keycode = 0;
    /// The real modifiers that were in force just before, locks among them (XKB's first eight).
    std::uint32_t modifiers = 0;

    friend bool operator==(const WindowKey&, const WindowKey&) = default;
};

/// A recording of what is typed into a window of the program's own, where nobody may see what is typed into
/// others. What is recorded follows the same rules (platform/EventMonitor.h).
class WindowKeys {
  public:
    virtual ~WindowKeys() = default;

    /// Until its end the recording takes its keys from here alone; nothing outside of a recording.
    virtual void begin() = 0;
    /// The window has got a key, in the order of the calls. Strokes of a running script that it gets are
    /// none of the user's and are not recorded.
    virtual void key(const WindowKey& key) = 0;
    /// The window has lost the keyboard: what was down is up.
    virtual void leave() = 0;
};
