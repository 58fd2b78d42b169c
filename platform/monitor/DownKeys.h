// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstdint>
#include <map>
#include <optional>
#include <utility>
#include <vector>

#include "platform/HotKeys.h"
#include "platform/keymap/MaskShaper.h"
#include "platform/monitor/MonitorEvents.h"

/// What is known of a key that is down.
struct DownKey {
    /// The real modifiers that it holds; 0 for ordinary keys.
    xkb_mod_mask_t modifiers = 0;
    bool isModifierKey = false;
    /// What its press was reported as; empty if it was not. Its release and repeats are reported alike.
    std::optional<std::uint32_t> reportedCode;
    /// The hot key that its press was, if any, and whether that was reported.
    std::optional<HotKeyId> hotKey;
    bool hotKeyReported = false;
    /// A stroke of the running script that is not to be seen.
    bool hidden = false;
    /// Of the press, or of the last repeat that came as raw events.
    ServerTime pressTime = 0;
};

/// The keys that are down, those of each keyboard for itself: the server lets a second keyboard press a key
/// that is down on the first.
class DownKeys {
  public:
    /// Stands for all keyboards: keys that were down from the beginning.
    static constexpr std::uint16_t anySource = 0;

    bool isDown(const RawKey& key) const { return m_keys.contains({key.source, key.keycode}); }
    bool canRelease(const RawKey& key) const {
        return isDown(key) || m_keys.contains({anySource, key.keycode});
    }

    DownKey& press(const RawKey& key) {
        m_keys.erase({anySource, key.keycode});
        DownKey& held = m_keys[{key.source, key.keycode}];
        held = {};
        held.pressTime = key.time;
        return held;
    }

    /// Takes the key out; empty if it was not down.
    std::optional<DownKey> release(const RawKey& key) {
        auto held = m_keys.find({key.source, key.keycode});
        if (held == m_keys.end()) held = m_keys.find({anySource, key.keycode});
        if (held == m_keys.end()) return std::nullopt;
        const DownKey result = held->second;
        m_keys.erase(held);
        return result;
    }

    /// The key on whichever keyboard it is down; null if on none.
    DownKey* find(std::uint8_t keycode) {
        for (auto& [place, held] : m_keys) {
            if (place.second == keycode) return &held;
        }
        return nullptr;
    }

    bool isHotKey(std::uint8_t keycode) const {
        return std::any_of(m_keys.begin(), m_keys.end(), [keycode](const auto& entry) {
            return entry.first.second == keycode && entry.second.hotKey;
        });
    }

    std::vector<std::uint8_t> keycodesOf(std::uint16_t source) const {
        std::vector<std::uint8_t> keycodes;
        for (const auto& [place, held] : m_keys) {
            if (place.first == source) keycodes.push_back(place.second);
        }
        return keycodes;
    }

    /// The real modifiers held by keys that are not hidden.
    xkb_mod_mask_t modifiers() const {
        xkb_mod_mask_t result = 0;
        for (const auto& [place, held] : m_keys) result |= held.hidden ? 0 : held.modifiers;
        return result;
    }

    /// Whether the key may repeat at that time: it has been down for the delay before repeats.
    bool mayRepeat(std::uint8_t keycode, ServerTime time) const {
        return std::any_of(m_keys.begin(), m_keys.end(), [&](const auto& entry) {
            return entry.first.second == keycode && hasBeenDownForDelay(entry.second, time);
        });
    }

    /// Whether any key may have repeated until then.
    bool mayHaveRepeated(ServerTime time) const {
        return std::any_of(m_keys.begin(), m_keys.end(), [&](const auto& entry) {
            return !entry.second.isModifierKey && hasBeenDownForDelay(entry.second, time);
        });
    }

    /// How long a key is held before it repeats, in milliseconds.
    void setRepeatDelay(std::int32_t delay) { m_repeatDelay = delay; }

  private:
    bool hasBeenDownForDelay(const DownKey& held, ServerTime time) const {
        // The server counts in other clock ticks than it stamps.
        constexpr std::int32_t rounding = 2;
        return millisecondsAfter(time, held.pressTime) >= std::max(1, m_repeatDelay - rounding);
    }

    std::int32_t m_repeatDelay = 1;
    std::map<std::pair<std::uint16_t, std::uint8_t>, DownKey> m_keys;
};
