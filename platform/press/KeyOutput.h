// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "platform/Result.h"
#include "platform/keymap/XkbComponents.h"

/// The keyboard that a run presses its keys on, by XKB key codes and real modifiers (keymap/ModifierMasks.h).
///
/// All but synchronise() is queued, in order, until flush().
class KeyOutput {
  public:
    virtual ~KeyOutput() = default;

    virtual void press(std::uint8_t keycode) = 0;
    virtual void release(std::uint8_t keycode) = 0;
    /// Of the modifiers in `mask` those in `values` are locked, the others unlocked.
    virtual void lockModifiers(xkb_mod_mask_t mask, xkb_mod_mask_t values) = 0;
    virtual void lockGroup(xkb_layout_index_t group) = 0;

    virtual void flush() = 0;
    /// Flushes, waits until all of it has been worked off, and tells the state then. Fails when the
    /// connection is lost.
    virtual Result<XkbComponents> synchronise() = 0;

  protected:
    KeyOutput() = default;
    KeyOutput(const KeyOutput&) = default;
    KeyOutput(KeyOutput&&) = default;
    KeyOutput& operator=(const KeyOutput&) = default;
    KeyOutput& operator=(KeyOutput&&) = default;
};
