// SPDX-License-Identifier: MIT
#include "platform/evdev/WindowKeyboard.h"

#include <chrono>

namespace evdev {

void WindowKeyboard::setUsed(bool used) {
    m_isUsed = used;
    m_ownPresses = {};
    m_ownReleases = {};
}

void WindowKeyboard::key(const WindowKey& key) {
    if (!m_isUsed || isOwn(key)) return;
    m_stream.windowKey(key);
    m_changed();
}

void WindowKeyboard::leave() {
    if (!m_isUsed) return;
    m_stream.windowLeft();
    m_changed();
}

void WindowKeyboard::ownKey(std::uint8_t keycode, bool press) {
    if (!m_isUsed) return;
    ++(press ? m_ownPresses : m_ownReleases)[keycode];
    m_lastOwn = m_clock.now();
}

/// Crosses it off. What has not come for so long has gone to another window.
bool WindowKeyboard::isOwn(const WindowKey& key) {
    constexpr std::chrono::seconds patience{2};
    if (key.kind == WindowKey::Kind::repeat || m_clock.now() - m_lastOwn > patience) return false;
    unsigned& count = (key.kind == WindowKey::Kind::press ? m_ownPresses : m_ownReleases)[key.keycode];
    if (count == 0) return false;
    --count;
    return true;
}

}  // namespace evdev
