// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace x11 {

/// The core keyboard's state at one moment: modifier bits by where they come from, and groups.
struct InputState {
    std::uint8_t base = 0;
    std::uint8_t latched = 0;
    std::uint8_t locked = 0;
    /// Locked group, and whether held or latched keys add to it.
    std::uint8_t lockedGroup = 0;
    bool hasOtherGroup = false;

    friend bool operator==(const InputState&, const InputState&) = default;
};

}  // namespace x11
