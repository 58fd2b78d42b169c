// SPDX-License-Identifier: MIT
#include "platform/evdev/SeatKeys.h"

namespace evdev {

bool SeatKeys::change(std::uint16_t keyboard, std::uint8_t keycode, bool press) {
    KeycodeSet& down = m_down[keyboard];
    if (down[keycode] == press) return false;
    down[keycode] = press;
    unsigned& count = m_counts[keycode];
    return press ? count++ == 0 : --count == 0;
}

std::vector<std::uint8_t> SeatKeys::remove(std::uint16_t keyboard) {
    std::vector<std::uint8_t> up;
    const KeycodeSet down = m_down[keyboard];
    for (std::size_t i = 0; i < down.size(); ++i) {
        const auto keycode = static_cast<std::uint8_t>(i);
        if (down[i] && change(keyboard, keycode, false)) up.push_back(keycode);
    }
    m_down.erase(keyboard);
    return up;
}

}  // namespace evdev
