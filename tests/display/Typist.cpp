// SPDX-License-Identifier: MIT
#include "display/Typist.h"

#include <algorithm>
#include <optional>
#include <thread>

namespace {

/// How often keys that a nested server has not looked at yet are brought to its mind.
constexpr std::chrono::milliseconds betweenDeliveries{5};

}  // namespace

void Typist::press(std::initializer_list<std::uint8_t> keycodes) const {
    for (const std::uint8_t keycode : keycodes) press(keycode);
}

void Typist::release(std::initializer_list<std::uint8_t> keycodes) const {
    for (const std::uint8_t keycode : keycodes) release(keycode);
}

void Typist::tap(std::uint8_t keycode) const {
    press(keycode);
    release(keycode);
}

void Typist::stroke(std::initializer_list<std::uint8_t> keycodes) const {
    press(keycodes);
    for (auto keycode = std::rbegin(keycodes); keycode != std::rend(keycodes); ++keycode) release(*keycode);
}

void Typist::rollOver(std::initializer_list<std::uint8_t> keycodes) const {
    std::optional<std::uint8_t> last;
    for (const std::uint8_t keycode : keycodes) {
        press(keycode);
        if (last) release(*last);
        last = keycode;
    }
    if (last) release(*last);
}

void Typist::hold(std::chrono::milliseconds duration) const {
    const auto end = std::chrono::steady_clock::now() + duration;
    m_deliver();
    for (auto now = std::chrono::steady_clock::now(); now < end; now = std::chrono::steady_clock::now()) {
        std::this_thread::sleep_for(std::min<std::chrono::nanoseconds>(end - now, betweenDeliveries));
        m_deliver();
    }
}

void Typist::press(std::uint8_t keycode) const {
    m_hands.press(keycode);
    hold(m_gap);
}

void Typist::release(std::uint8_t keycode) const {
    m_hands.release(keycode);
    hold(m_gap);
}
