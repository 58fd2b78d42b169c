// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstdint>
#include <map>
#include <optional>
#include <vector>

#include "platform/HotKeys.h"
#include "platform/XkbCodes.h"
#include "platform/keymap/MaskShaper.h"
#include "platform/monitor/MonitorEvents.h"

/// What is known of a key that is down.
struct DownKey {
    /// The keyboard that pressed it first, or DownKeys::anySource.
    std::uint16_t source = 0;
    /// The real modifiers that it holds; 0 for ordinary keys.
    xkb_mod_mask_t modifiers = 0;
    bool isModifierKey = false;
    /// What its press was shown as, where modifier keys are; empty if it was not.
    std::optional<std::uint32_t> shownModifierKey;
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

/// The keys that are down. Keyboards are merged as the server merges them for the applications: a key that
/// is down on two is down once, and up when the first of them lets go.
class DownKeys {
  public:
    /// Stands for whichever keyboard: keys that were down from the beginning.
    static constexpr std::uint16_t anySource = 0;

    /// Whether the event changes anything: a press of a key that is down and a release of one that is up do
    /// not. The first press tells which keyboard holds what was down from the beginning.
    bool isChangedBy(const RawKey& key) const {
        const auto down = m_keys.find(key.keycode);
        if (down == m_keys.end()) return key.press;
        return !key.press || down->second.source == anySource;
    }

    /// Whether the key is down and the keyboard of the event was the first to press it.
    bool isPressedBy(const RawKey& key) const {
        const auto down = m_keys.find(key.keycode);
        return down != m_keys.end() && down->second.source == key.source;
    }

    DownKey& press(const RawKey& key) {
        DownKey& held = m_keys[key.keycode];
        held = {};
        held.source = key.source;
        held.pressTime = key.time;
        return held;
    }

    /// Takes the key out; empty if it was not down.
    std::optional<DownKey> release(const RawKey& key) {
        const auto down = m_keys.find(key.keycode);
        if (down == m_keys.end()) return std::nullopt;
        const DownKey result = down->second;
        m_keys.erase(down);
        return result;
    }

    /// Null if it is up.
    DownKey* find(std::uint8_t keycode) {
        const auto down = m_keys.find(keycode);
        return down == m_keys.end() ? nullptr : &down->second;
    }

    bool isHotKey(std::uint8_t keycode) const {
        const auto down = m_keys.find(keycode);
        return down != m_keys.end() && down->second.hotKey;
    }

    /// The releases of these hot keys are not reported.
    template <typename Condition>
    void dropHotKeys(const Condition& dropped) {
        for (auto& [keycode, held] : m_keys) {
            if (held.hotKey && dropped(*held.hotKey)) held.hotKeyReported = false;
        }
    }

    KeycodeSet keycodes() const {
        KeycodeSet down;
        for (const auto& [keycode, held] : m_keys) down.set(keycode);
        return down;
    }

    /// The keys that this keyboard was the first to press.
    std::vector<std::uint8_t> keycodesOf(std::uint16_t source) const {
        std::vector<std::uint8_t> keycodes;
        for (const auto& [keycode, held] : m_keys) {
            if (held.source == source) keycodes.push_back(keycode);
        }
        return keycodes;
    }

    /// The real modifiers held by keys that are not hidden.
    xkb_mod_mask_t modifiers() const {
        xkb_mod_mask_t result = 0;
        for (const auto& [keycode, held] : m_keys) result |= held.hidden ? 0 : held.modifiers;
        return result;
    }

    /// Whether the key may repeat at that time: it has been down for the delay before repeats.
    bool mayRepeat(std::uint8_t keycode, ServerTime time) const {
        const auto down = m_keys.find(keycode);
        return down != m_keys.end() && hasBeenDownForDelay(down->second, time);
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
    std::map<std::uint8_t, DownKey> m_keys;
};
