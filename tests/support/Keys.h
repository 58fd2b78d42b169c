// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

/// The keys that tests press, by their positions on a PC keyboard: a namespace for each way to count them.
/// The values are written out, because what the code under test computes is judged by them.

/// Key codes of our own, as platform/KeyCodes.h numbers positions.
namespace key {
inline constexpr std::uint32_t a = 0;
inline constexpr std::uint32_t s = 1;
inline constexpr std::uint32_t b = 11;
inline constexpr std::uint32_t r = 15;
inline constexpr std::uint32_t one = 18;
inline constexpr std::uint32_t p = 35;
inline constexpr std::uint32_t returnKey = 36;
inline constexpr std::uint32_t m = 46;
inline constexpr std::uint32_t space = 49;
inline constexpr std::uint32_t escape = 53;
inline constexpr std::uint32_t super = 55;
inline constexpr std::uint32_t shift = 56;
inline constexpr std::uint32_t capsLock = 57;
inline constexpr std::uint32_t alt = 58;
inline constexpr std::uint32_t control = 59;
inline constexpr std::uint32_t rightShift = 60;
inline constexpr std::uint32_t unassigned = 66;  ///< no keyboard has it
inline constexpr std::uint32_t keypadOne = 83;
inline constexpr std::uint32_t f5 = 96;
inline constexpr std::uint32_t f2 = 120;
inline constexpr std::uint32_t f1 = 122;
inline constexpr std::uint32_t arrowUp = 126;
inline constexpr std::uint32_t power = 127;
inline constexpr std::uint32_t showDesktop = 161;
}  // namespace key

/// X key codes: the kernel's key codes and 8, as on each server that follows xkb-data's rules "evdev".
namespace xkey {
inline constexpr std::uint8_t escape = 9;
inline constexpr std::uint8_t one = 10;
inline constexpr std::uint8_t two = 11;
inline constexpr std::uint8_t seven = 16;
inline constexpr std::uint8_t nine = 18;
inline constexpr std::uint8_t backspace = 22;
inline constexpr std::uint8_t tab = 23;
inline constexpr std::uint8_t q = 24;
inline constexpr std::uint8_t r = 27;
inline constexpr std::uint8_t p = 33;
inline constexpr std::uint8_t returnKey = 36;
inline constexpr std::uint8_t control = 37;
inline constexpr std::uint8_t a = 38;
inline constexpr std::uint8_t s = 39;
inline constexpr std::uint8_t semicolon = 47;
inline constexpr std::uint8_t shift = 50;
inline constexpr std::uint8_t z = 52;
inline constexpr std::uint8_t b = 56;
inline constexpr std::uint8_t m = 58;
inline constexpr std::uint8_t period = 60;
inline constexpr std::uint8_t rightShift = 62;
inline constexpr std::uint8_t alt = 64;
inline constexpr std::uint8_t space = 65;
inline constexpr std::uint8_t capsLock = 66;
inline constexpr std::uint8_t f4 = 70;
inline constexpr std::uint8_t f5 = 71;
inline constexpr std::uint8_t numLock = 77;
inline constexpr std::uint8_t scrollLock = 78;
inline constexpr std::uint8_t keypadFive = 84;
inline constexpr std::uint8_t keypadOne = 87;
inline constexpr std::uint8_t keypadPoint = 91;
inline constexpr std::uint8_t keypadEnter = 104;
inline constexpr std::uint8_t f12 = 96;
inline constexpr std::uint8_t print = 107;
inline constexpr std::uint8_t altGr = 108;
inline constexpr std::uint8_t super = 133;
inline constexpr std::uint8_t f13 = 191;
inline constexpr std::uint8_t arrowDown = 116;
inline constexpr std::uint8_t home = 110;
}  // namespace xkey

/// Real modifiers of X, as xkb-data's keymaps use them.
namespace xmask {
inline constexpr std::uint8_t shift = 0x01;
inline constexpr std::uint8_t capsLock = 0x02;
inline constexpr std::uint8_t control = 0x04;
inline constexpr std::uint8_t alt = 0x08;
inline constexpr std::uint8_t numLock = 0x10;
inline constexpr std::uint8_t super = 0x40;
inline constexpr std::uint8_t levelThree = 0x80;
}  // namespace xmask

/// The kernel's key codes (linux/input-event-codes.h).
namespace evdevkey {
inline constexpr std::uint16_t power = 116;
inline constexpr std::uint16_t f13 = 183;
}  // namespace evdevkey
