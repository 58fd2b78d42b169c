// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

/// Key codes are virtual key codes by position: 0 to 127 name the keys of an ANSI, ISO or JIS keyboard, a few
/// above name special keys, and the extension bits below stand for what that numbering lacks.
///
/// | code         | meaning                                                                |
/// | 0x200 + n    | key n with the third-level chooser (AltGr) held                        |
/// | 0x400 + n    | key n with the fifth-level chooser held; 0x600 both                    |
/// | 0x800 + n    | key n under Caps Lock, where nothing but the lock makes its letter     |
/// | 0x1000 + e   | the evdev key e, 0 to 247, that has no code of its own                 |
/// | 0x2000 l + n | key n while layout l, 1 to 4, is in force, whichever is otherwise      |
///
/// The table is generated from keycodes.tsv, one row for each code; a row without an evdev key is a code that
/// plays nothing.
namespace keycode {

inline constexpr std::uint32_t thirdLevel = 0x200;
inline constexpr std::uint32_t fifthLevel = 0x400;
inline constexpr std::uint32_t choosers = thirdLevel | fifthLevel;
inline constexpr std::uint32_t capsLock = 0x800;
inline constexpr std::uint32_t evdevBase = 0x1000;
inline constexpr std::uint32_t firstLayout = 0x2000;
inline constexpr std::uint32_t layouts = 0xE000;
/// The highest evdev code that X11 can carry: its key codes are evdev + 8 and end at 255.
inline constexpr std::uint16_t maxEvdev = 247;
/// The power key, which no script may press.
inline constexpr std::uint32_t power = 127;
/// "No key" in preferences, widened with its sign; no key has this code.
inline constexpr std::uint32_t none = 0xFFFFFFFF;

/// The key alone: choosers, lock and layout put aside.
constexpr std::uint32_t baseOf(std::uint32_t code) { return code & ~(choosers | capsLock | layouts); }

/// The layout that the code names, from 0; empty if none. What names one above 3 is no code.
std::optional<std::uint32_t> layoutOf(std::uint32_t code);
/// The code in a layout, 0 to 3.
constexpr std::uint32_t inLayout(std::uint32_t code, std::uint32_t layout) {
    return (code & ~layouts) | firstLayout * (layout + 1);
}

/// A row of the table.
struct Row {
    std::uint32_t code = 0;   ///< 0 to 161, ascending, no duplicates
    std::uint16_t evdev = 0;  ///< 1 to 464; 0 where no key exists
    const char* name = "";    ///< the position's name ("ANSI_A"), ASCII, never empty
};

/// All rows, ascending by code.
const std::vector<Row>& rows();

/// The evdev key that plays `code`, choosers and layout put aside; empty when the code has no key that this
/// desktop can press, and for the power key.
std::optional<std::uint16_t> evdevFor(std::uint32_t code);

/// The code that a press of the evdev key is recorded as: the row's code where there is one, else
/// evdevBase + evdev. Where two codes share a key, keypad Enter is 76; codes above 127 are never given.
/// `evdev` is 0 to 247.
std::uint32_t fromEvdev(std::uint16_t evdev);

/// True for the extension codes, which only this program plays.
bool isExtension(std::uint32_t code);

/// True for the keypad digits and the keypad point (65, 82 to 92), which always mean the digit.
bool isKeypadDigit(std::uint32_t code);

}  // namespace keycode
