// SPDX-License-Identifier: MIT
#pragma once

#include "platform/XkbCodes.h"
#include "platform/keymap/Keymap.h"
#include "platform/keymap/Stroke.h"
#include "platform/press/ModifierTail.h"
#include "platform/run/RunWatch.h"

/// Turns strokes into key events, locks and groups around them included.
class StrokeSender {
  public:
    StrokeSender(KeyOutput& output, RunWatch& watch, ModifierTail& tail)
        : m_output(output), m_watch(watch), m_tail(tail) {}

    /// The state that the next strokes meet; home() goes back to its locks and its group.
    void meet(const XkbComponents& state);

    /// Queues a stroke; the modifiers that the keys in `held` hold are down already. Its own go into the
    /// tail. One that is a hot key of ours is let through to the application, and has been sent when the call
    /// returns.
    Result<void> send(const Keymap& keymap, const Stroke& stroke, const KeycodeSet& held);

    /// Queues the presses of a stroke without their releases. The keys that went down, in order.
    std::vector<std::uint8_t> hold(const ModifierKeys& keys, const Stroke& stroke, const KeycodeSet& held);

    /// Queues the way back to the locks and the group that were there at first: once after the strokes that
    /// follow each other.
    void home();

  private:
    void lockGroup(xkb_layout_index_t group);
    void setLocks(const Stroke& stroke);
    void keepGroup(const ModifierKeys& keys);
    void lockModifiers(xkb_mod_mask_t locks);

    KeyOutput& m_output;
    RunWatch& m_watch;
    ModifierTail& m_tail;
    xkb_mod_mask_t m_homeLocks = 0;
    xkb_mod_mask_t m_locks = 0;
    xkb_layout_index_t m_homeGroup = 0;
    xkb_layout_index_t m_group = 0;
};
