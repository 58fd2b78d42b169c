// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

/// A shortcut combination; without arguments the empty one.
struct KeyCombo {
    /// Which encoding the mask has depends on the holder (platform/Modifiers.h): `controlflag` in shortcut
    /// fields and settings.
    std::uint32_t flags = 0;
    /// See platform/KeyCodes.h, 16 bits; -1 is no key.
    std::int16_t code = -1;

    friend bool operator==(const KeyCombo&, const KeyCombo&) = default;
};
