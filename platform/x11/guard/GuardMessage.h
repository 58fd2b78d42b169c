// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace x11 {

/// What the injector tells its guard, one packet each. Both are built together and run on one machine, so
/// that the record goes over as it lies in memory.
struct GuardMessage {
    enum class Kind : std::uint8_t {
        running = 1,  ///< keys are being pressed from now on; the rest says what to put back
        idle = 2,     ///< nothing of ours is down
    };
    Kind kind = Kind::idle;
    /// The locked modifiers and the locked group as they were before the run, kept up with the user's
    /// changes.
    std::uint8_t lockedModifiers = 0;
    std::uint8_t lockedGroup = 0;

    friend bool operator==(const GuardMessage&, const GuardMessage&) = default;
};

/// What the guard says once when it can do its work, and to each message once it has taken it in.
inline constexpr char guardReady = 'r';

}  // namespace x11
