// SPDX-License-Identifier: MIT
#include "platform/monitor/KeyGrab.h"

namespace {

constexpr std::uint16_t allModifiers = 0xFF;

}  // namespace

std::vector<std::uint16_t> KeyGrab::variants() const {
    const auto variable = static_cast<std::uint16_t>(locks & ~modifiers);
    std::vector<std::uint16_t> result;
    // All subsets of the locks' bits, the empty one first.
    std::uint16_t subset = 0;
    do {
        result.push_back(modifiers | subset);
        subset = static_cast<std::uint16_t>((subset - variable) & variable);
    } while (subset != 0);
    return result;
}

bool KeyGrab::matches(std::uint8_t pressedKeycode, std::uint16_t pressedModifiers) const {
    const auto variable = static_cast<std::uint16_t>(locks & ~modifiers);
    return keycode == pressedKeycode && ((pressedModifiers ^ modifiers) & allModifiers & ~variable) == 0;
}

bool KeyGrab::collidesWith(const KeyGrab& other) const {
    return keycode == other.keycode && ((modifiers ^ other.modifiers) & ~(locks & other.locks)) == 0;
}
