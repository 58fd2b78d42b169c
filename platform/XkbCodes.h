// SPDX-License-Identifier: MIT
#pragma once

#include <bitset>
#include <cstdint>

/// The key codes of XKB keymaps, which X servers and toolkits count by: those of evdev, moved up since the
/// core protocol of X has none below 8.
namespace xkbcode {

inline constexpr std::uint16_t evdevOffset = 8;
/// The lowest and the highest code that an X server carries, both included.
inline constexpr std::uint16_t first = evdevOffset;
inline constexpr std::uint16_t last = 255;

/// `evdev` is 0 to 247.
constexpr std::uint8_t fromEvdev(std::uint16_t evdev) {
    return static_cast<std::uint8_t>(evdev + evdevOffset);
}
/// `code` is 8 or more.
constexpr std::uint16_t toEvdev(std::uint32_t code) { return static_cast<std::uint16_t>(code - evdevOffset); }

}  // namespace xkbcode

/// Some keys, by their XKB key codes.
using KeycodeSet = std::bitset<256>;
