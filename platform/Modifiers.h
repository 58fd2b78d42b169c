// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>

/// Modifier masks as hot keys, key events and actions carry them. Settings and shortcut fields use the other
/// encoding, `controlflag`; the two must not be mixed.
namespace modifier {
inline constexpr std::uint32_t command = 0x0100;  ///< Super on this desktop
inline constexpr std::uint32_t shift = 0x0200;
inline constexpr std::uint32_t capsLock = 0x0400;
inline constexpr std::uint32_t option = 0x0800;  ///< Alt on this desktop
inline constexpr std::uint32_t control = 0x1000;
inline constexpr std::uint32_t functionKey = 0x800000;  ///< carried in tables, no key of this desktop
}  // namespace modifier

/// Modifier masks as shortcut fields report them and settings store them.
namespace controlflag {
inline constexpr std::uint32_t shift = 0x020000;
inline constexpr std::uint32_t control = 0x040000;
inline constexpr std::uint32_t option = 0x080000;
inline constexpr std::uint32_t command = 0x100000;
inline constexpr std::uint32_t functionKey = 0x800000;
}  // namespace controlflag

/// A modifier in both encodings.
struct ModifierPair {
    std::uint32_t modifier = 0;
    std::uint32_t controlFlag = 0;
};

/// All modifiers that have both; Caps Lock has no control flag.
inline constexpr std::array<ModifierPair, 5> modifierPairs = {{
    {modifier::command, controlflag::command},
    {modifier::option, controlflag::option},
    {modifier::control, controlflag::control},
    {modifier::shift, controlflag::shift},
    {modifier::functionKey, controlflag::functionKey},
}};
