// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <vector>

/// A combination as a keyboard's events carry it.
struct KeyGrab {
    std::uint8_t keycode = 0;
    std::uint16_t modifiers = 0;
    /// All modifiers that a lock may set; they do not matter for the combination.
    std::uint16_t locks = 0;

    /// The combination with each set of locks: grabs compare all modifiers.
    std::vector<std::uint16_t> variants() const;
    bool matches(std::uint8_t pressedKeycode, std::uint16_t pressedModifiers) const;
    bool collidesWith(const KeyGrab& other) const;

    friend bool operator==(const KeyGrab&, const KeyGrab&) = default;
};
