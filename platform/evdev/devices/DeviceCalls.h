// SPDX-License-Identifier: MIT
#pragma once

#include "platform/XkbCodes.h"

namespace evdev {

/// The locks whose lights are lit on a keyboard. Why lights: whoever draws the desktop sets them, and tells
/// the locks themselves to none but the program that has the keyboard.
struct LockLights {
    bool capsLock = false;
    bool numLock = false;
    bool scrollLock = false;

    friend bool operator==(const LockLights&, const LockLights&) = default;
};

/// What is asked of an open event device beside its events.
class DeviceCalls {
  public:
    virtual ~DeviceCalls() = default;

    /// Has the device stamp its events by the clock of std::chrono::steady_clock.
    virtual void useSteadyClock(int device) const = 0;

    /// The keys that are down, by XKB key codes; none for a device that is gone. What had been read up to
    /// then of key events and is still to come from the device is dropped by the kernel.
    virtual KeycodeSet keysDown(int device) const = 0;

    virtual LockLights lights(int device) const = 0;

    /// Ends all reading of the device by whoever shares this descriptor. False if it is gone or ended
    /// already.
    virtual bool revoke(int device) const = 0;
};

}  // namespace evdev
