// SPDX-License-Identifier: MIT
#pragma once

#include <xcb/xcb.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "platform/keymap/ModifierMasks.h"

namespace x11 {

/// A key type of an XKB map: which modifiers select which level.
struct KeyType {
    struct Entry {
        std::uint8_t modifiers = 0;
        std::uint8_t level = 0;
        friend bool operator==(const Entry&, const Entry&) = default;
    };
    std::uint8_t modifiers = 0;
    std::uint8_t levels = 0;
    /// Those in force only; a selection that is not listed is level 0.
    std::vector<Entry> entries;

    friend bool operator==(const KeyType&, const KeyType&) = default;
};

/// What one key types: `width` symbols for each of its groups, none for a key without a use.
struct KeySymbols {
    std::array<std::uint8_t, 4> types{};
    std::uint8_t groupInfo = 0;
    std::uint8_t width = 0;
    std::vector<std::uint32_t> symbols;

    bool isUnused() const { return (groupInfo & 0x0F) == 0; }
    friend bool operator==(const KeySymbols&, const KeySymbols&) = default;
};

/// The types and keys of one keyboard device, as the server keeps them.
struct DeviceMap {
    std::vector<KeyType> types;
    /// By key code; those outside the server's range are unused.
    std::array<KeySymbols, 256> keys;
    std::uint8_t firstKeycode = 0;
    std::uint8_t lastKeycode = 0;

    friend bool operator==(const DeviceMap&, const DeviceMap&) = default;
};

/// Reads the map of a device; empty if the server does not tell it (the device has gone, or is no keyboard).
/// The connection must have started the XKB extension.
std::optional<DeviceMap> readDeviceMap(xcb_connection_t* connection, std::uint16_t device);

/// Gives the keys first to last, a range within the server's, to a device, or to the core keyboard and all
/// devices below it. False if the server refuses.
bool writeKeySymbols(xcb_connection_t* connection, std::uint16_t device, const DeviceMap& map,
                     std::uint8_t first, std::uint8_t last);

/// What the core keyboard's keys do beside typing, as the server writes it: of use for comparing only.
std::vector<std::byte> readActions(xcb_connection_t* connection);

/// The type that selects level 1 by Shift, level 2 by the third-level chooser and level 3 by both; empty if
/// there is none.
std::optional<std::uint8_t> fourLevelType(const DeviceMap& map, const ModifierMasks& masks);

}  // namespace x11
