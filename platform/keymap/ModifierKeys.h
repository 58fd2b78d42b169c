// SPDX-License-Identifier: MIT
#pragma once

#include <xkbcommon/xkbcommon.h>

#include <array>
#include <bitset>
#include <cstdint>

/// Which X modifier bits stand for what. Shift, Lock and Control are fixed by the X protocol; the others are
/// the keymap's virtual modifiers Alt, Super, NumLock, LevelThree and LevelFive, 0 where it has none.
struct ModifierMasks {
    static constexpr std::uint8_t shift = 0x01;
    static constexpr std::uint8_t lock = 0x02;
    static constexpr std::uint8_t control = 0x04;
    std::uint8_t option = 0;
    std::uint8_t command = 0;
    std::uint8_t numLock = 0;
    std::uint8_t levelThree = 0;
    std::uint8_t levelFive = 0;

    friend bool operator==(const ModifierMasks&, const ModifierMasks&) = default;
};

/// The keys that hold modifiers down, found by trying every key of a keymap: an option that swaps or moves
/// modifier keys is followed.
class ModifierKeys {
  public:
    explicit ModifierKeys(xkb_keymap* keymap);

    /// The key that holds exactly this one bit in every layout, the usual position of a keyboard first; 0 if
    /// there is none.
    std::uint8_t keyFor(std::uint8_t bit) const;
    /// Whether each bit of `mask`, which must not be 0, has a key.
    bool canHold(std::uint8_t mask) const;

    /// The bits that the key holds while it is down, of all layouts together.
    std::uint8_t heldBy(std::uint8_t keycode) const { return m_held[keycode]; }

    /// Whether a stroke of the key leaves a lock or a latch behind.
    bool isLock(std::uint8_t keycode) const { return m_locks[keycode]; }

  private:
    void examine(xkb_keymap* keymap, std::uint8_t keycode);

    std::array<std::uint8_t, 256> m_held{};
    /// The bits held where they are the same in all layouts and nothing is left of them afterwards; else 0.
    std::array<std::uint8_t, 256> m_momentary{};
    std::bitset<256> m_locks;
};
