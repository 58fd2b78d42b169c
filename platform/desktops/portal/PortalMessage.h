// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

/// What is said to keyrill-portal, one packet each. Both ends are built together and run on one machine, so
/// that the record goes over as it lies in memory.
struct PortalMessage {
    enum class Kind : std::uint8_t {
        open = 1,     ///< the desktop is asked for permission, unless it has given it; answered
        press = 2,    ///< a key goes down
        release = 3,  ///< a key goes up
        sync = 4,     ///< answered when all that was said before has reached the desktop
        rest = 5,     ///< nothing is down, and nothing will be for a while
        leave = 6,    ///< another layout will be in force than that one, which is to be so at the end
        home = 7,     ///< that layout is in force again
    };
    Kind kind = Kind::open;
    /// Of the key that goes down or up, the kernel's.
    std::uint16_t keycode = 0;
    /// Of the layout that is left, from 0.
    std::uint32_t layout = 0;
};

/// What it says, one byte each. After a failure it ends.
enum class PortalAnswer : char {
    opened = 'o',
    synced = 's',
    /// No portal for keys answers on the session bus.
    missing = 'm',
    /// The user has not agreed.
    refused = 'r',
    /// Nobody has answered in time.
    silent = 't',
    /// The desktop has failed, or has taken the permission back.
    lost = 'l',
};
