// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "platform/KeyEvent.h"

/// What a modifier key was held for, from its press to its release.
struct ModifierHold {
    std::uint32_t keyCode = 0;
    std::uint32_t modifiers = 0;  ///< that it holds (platform/Modifiers.h)
    std::uint32_t time = 0;       ///< of the press (KeyEvent::time)
    int keys = 0;                 ///< that were recorded meanwhile
    std::size_t firstKey = 0;     ///< the place in the macro of the first of them
    bool isAlone = true;          ///< nothing else was pressed meanwhile
    bool isThroughout = true;     ///< all keys were recorded with its modifiers

    /// Whether it was pressed for its own sake. Longer than half a second it was held for something else,
    /// such as a click.
    bool isTapUntil(std::uint32_t released) const;
    /// Whether it was one hold over several keys.
    bool isOverKeys() const { return keys > 1 && isThroughout; }
};

/// The modifier keys that are down in a recording. Those that were down before it are none of them.
class ModifierHolds {
  public:
    void press(const KeyEvent& event);
    /// Its hold, which is over; empty if it is none of them.
    std::optional<ModifierHold> release(const KeyEvent& event);

    /// A key is recorded at that place of the macro with these modifiers.
    void addKey(std::size_t place, std::uint32_t modifiers);
    /// Something is pressed that is not recorded, as a hot key.
    void addOther();
    /// An action was put into the macro at that place.
    void insertedAt(std::size_t place);

  private:
    std::vector<ModifierHold> m_holds;
};
