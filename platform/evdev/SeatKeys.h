// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <vector>

#include "platform/XkbCodes.h"

namespace evdev {

/// All keyboards of a seat as one, which is how compositors pass them on: a key that is down on two is down
/// once, and up when the last of them lets go.
class SeatKeys {
  public:
    /// A key of a keyboard goes down or up; whether it does so for the seat.
    bool change(std::uint16_t keyboard, std::uint8_t keycode, bool press);

    /// A keyboard is gone: the keys that are up with it.
    std::vector<std::uint8_t> remove(std::uint16_t keyboard);

  private:
    std::map<std::uint16_t, KeycodeSet> m_down;
    std::array<unsigned, 256> m_counts{};
};

}  // namespace evdev
