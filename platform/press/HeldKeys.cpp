// SPDX-License-Identifier: MIT
#include "platform/press/HeldKeys.h"

#include <algorithm>
#include <utility>

KeycodeSet HeldKeys::keycodes() const {
    KeycodeSet keycodes;
    for (const Held& held : m_held) {
        for (const std::uint8_t keycode : held.pressed) keycodes.set(keycode);
    }
    return keycodes;
}

void HeldKeys::press(const ModifierKeys& keys, const Stroke& stroke) {
    const bool isLifted = m_watch.liftHotKeysOf(stroke.keycode);
    m_held.push_back({stroke.keycode, m_sender.hold(keys, stroke, keycodes()), isLifted});
}

Result<void> HeldKeys::letGo(std::uint8_t keycode) {
    const auto place =
        std::find_if(m_held.begin(), m_held.end(), [&](const Held& held) { return held.keycode == keycode; });
    if (place == m_held.end()) return {};
    const Held held = std::move(*place);
    m_held.erase(place);
    release(held);
    m_output.flush();
    if (!held.isLifted) return {};
    // Not before it is up.
    const auto done = m_output.synchronise();
    m_watch.restoreHotKeysOf(keycode);
    return done ? Result<void>() : done.error();
}

void HeldKeys::rest() {
    std::for_each(m_held.rbegin(), m_held.rend(), [this](const Held& held) { release(held); });
    m_output.flush();
    bool isSynchronised = false;
    for (Held& held : m_held) {
        if (!std::exchange(held.isLifted, false)) continue;
        if (!std::exchange(isSynchronised, true)) {
            // The state does not matter, nor that it fails: a server that is gone has no keys that are down.
            [[maybe_unused]] const auto ignored = m_output.synchronise();
        }
        m_watch.restoreHotKeysOf(held.keycode);
    }
}

void HeldKeys::pressAgain() {
    for (Held& held : m_held) {
        held.isLifted = m_watch.liftHotKeysOf(held.keycode);
        for (const std::uint8_t keycode : held.pressed) m_output.press(keycode);
    }
    m_output.flush();
}

void HeldKeys::forget(const KeycodeSet& keycodes) {
    for (Held& held : m_held) {
        std::erase_if(held.pressed, [&](std::uint8_t keycode) { return keycodes[keycode]; });
    }
}

void HeldKeys::release(const Held& held) {
    std::for_each(held.pressed.rbegin(), held.pressed.rend(),
                  [this](std::uint8_t keycode) { m_output.release(keycode); });
}
