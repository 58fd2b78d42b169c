// SPDX-License-Identifier: MIT
#include "platform/x11/keymap/KeyboardMaps.h"

#include <algorithm>

#include "platform/x11/server/XcbXkb.h"

namespace x11 {

namespace {

constexpr std::uint32_t noSymbol = 0;

/// Whether the key types anything, and nothing but what `keys` say.
bool isAsRecorded(const KeySymbols& key, std::uint8_t keycode, const std::vector<BoundKey>& keys) {
    bool hasSymbol = false;
    for (std::size_t level = 0; level < key.symbols.size(); ++level) {
        const std::uint32_t symbol = key.symbols[level];
        if (symbol == noSymbol) continue;
        hasSymbol = true;
        const BoundKey found{keycode, static_cast<std::uint8_t>(level), symbol};
        if (std::find(keys.begin(), keys.end(), found) == keys.end()) return false;
    }
    return hasSymbol;
}

}  // namespace

KeyboardMaps::KeyboardMaps(xcb_connection_t* connection, const std::vector<SlaveKeyboard>& keyboards,
                           const DeviceMap& core) {
    for (const SlaveKeyboard& keyboard : keyboards) {
        auto map = readDeviceMap(connection, keyboard.device);
        if (map) m_targets.push_back({keyboard.device, std::move(*map)});
    }
    const auto isEqual = [&](const Target& target) { return target.map == core; };
    if (!std::all_of(m_targets.begin(), m_targets.end(), isEqual)) return;
    m_targets.clear();
    m_targets.push_back({XCB_XKB_ID_USE_CORE_KBD, core});
}

bool KeyboardMaps::areEqual() const {
    return m_targets.size() == 1 && m_targets.front().device == XCB_XKB_ID_USE_CORE_KBD;
}

std::bitset<256> KeyboardMaps::empty(const std::vector<BoundKey>& keys) {
    std::bitset<256> emptied;
    for (Target& target : m_targets) {
        for (const BoundKey& recorded : keys) {
            KeySymbols& key = target.map.keys[recorded.keycode];
            if (!isAsRecorded(key, recorded.keycode, keys)) continue;
            key = KeySymbols{};
            emptied.set(recorded.keycode);
        }
    }
    return emptied;
}

bool KeyboardMaps::write(xcb_connection_t* connection, const std::bitset<256>& keys) const {
    std::uint8_t first = 0;
    std::uint8_t last = 0;
    for (std::size_t keycode = keys.size(); keycode-- > 0;) {
        if (!keys[keycode]) continue;
        first = static_cast<std::uint8_t>(keycode);
        if (last == 0) last = first;
    }
    if (last == 0) return true;
    return std::all_of(m_targets.begin(), m_targets.end(), [&](const Target& target) {
        return writeKeySymbols(connection, target.device, target.map, first, last);
    });
}

}  // namespace x11
