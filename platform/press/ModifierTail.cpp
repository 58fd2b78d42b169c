// SPDX-License-Identifier: MIT
#include "platform/press/ModifierTail.h"

#include <algorithm>
#include <utility>

namespace {

bool contains(const std::vector<std::uint8_t>& keys, std::uint8_t keycode) {
    return std::find(keys.begin(), keys.end(), keycode) != keys.end();
}

}  // namespace

KeycodeSet ModifierTail::keycodes() const {
    KeycodeSet keycodes;
    for (const std::uint8_t keycode : m_keys) keycodes.set(keycode);
    return keycodes;
}

bool ModifierTail::press(std::vector<std::uint8_t> keys) {
    const std::vector<std::uint8_t> before = std::exchange(m_keys, std::move(keys));
    std::for_each(before.rbegin(), before.rend(), [this](std::uint8_t keycode) {
        if (!contains(m_keys, keycode)) m_output.release(keycode);
    });
    bool isAnyPressed = false;
    for (const std::uint8_t keycode : m_keys) {
        if (contains(before, keycode)) continue;
        m_output.press(keycode);
        isAnyPressed = true;
    }
    return isAnyPressed;
}

void ModifierTail::keyIsUp(xkb_mod_mask_t commands) {
    if (commands == 0) return release();
    m_commands = commands;
    begin();
}

void ModifierTail::release(const KeycodeSet& staying) {
    std::vector<std::uint8_t> kept = m_keys;
    std::erase_if(kept, [&](std::uint8_t keycode) { return !staying[keycode]; });
    press(std::move(kept));
}

void ModifierTail::forget(const KeycodeSet& keycodes) {
    std::erase_if(m_keys, [&](std::uint8_t keycode) { return keycodes[keycode]; });
}
