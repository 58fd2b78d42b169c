// SPDX-License-Identifier: MIT
#pragma once

#include "platform/x11/guard/GuardLink.h"
#include "platform/x11/keymap/KeymapWatch.h"
#include "platform/x11/press/InjectionConnection.h"

namespace x11 {

/// Keeps what modifiers and locks do away from the strokes of one run, while no hand holds a key (HandsWait).
///
/// - At the start locks except Num Lock are cleared, and latches.
/// - Before each stroke: modifiers in force that no key holds go, a lock that the user has changed is changed
///   back, and what the run holds is pressed again where another program has released it.
/// - At the end the locks are put back, with the user's changes.
class HandsAndLocks {
  public:
    HandsAndLocks(InjectionConnection& connection, GuardLink& guard)
        : m_connection(connection), m_guard(guard) {}

    /// Tells the guard, then takes over.
    Result<void> takeOver(const KeymapWatch& keymap);

    /// Brings everything in order before a stroke; `state` is the server's, with no key held by a hand. True
    /// if there was something to do, which is queued. `held` are the keys that the run itself holds down. The
    /// locked group must be the user's own.
    Result<bool> repair(const KeymapWatch& keymap, const KeycodeSet& held, const XkbComponents& state);

    /// Takes the locks as they are for the run's own doing: after a stroke of a lock key.
    Result<void> adopt();

    /// Nothing happens unless takeOver() was called, and called since the last time.
    void giveBack();

  private:
    Result<void> tellGuard(xkb_layout_index_t group);
    bool releaseStuck(const ModifierKeys& keys, const KeycodeSet& held, const XkbComponents& state);
    bool pressUndone(const ModifierKeys& keys, const KeycodeSet& held, const XkbComponents& state);
    bool changeLocksBack(xkb_mod_mask_t locked, xkb_mod_mask_t numLock);

    InjectionConnection& m_connection;
    GuardLink& m_guard;
    bool m_hasTakenOver = false;
    /// The locks as they are during the run, and as they are to be after it.
    xkb_mod_mask_t m_current = 0;
    xkb_mod_mask_t m_afterwards = 0;
};

}  // namespace x11
