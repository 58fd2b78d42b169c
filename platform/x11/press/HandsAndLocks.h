// SPDX-License-Identifier: MIT
#pragma once

#include "platform/x11/guard/GuardLink.h"
#include "platform/x11/keymap/KeymapWatch.h"
#include "platform/x11/press/InjectionConnection.h"

namespace x11 {

/// Keeps what the user's hands and the locks do away from the strokes of one run.
///
/// - At the start every key that is down on a keyboard is released by XTEST; locks except Num Lock are
/// cleared,
///   and latches. What the user still holds has no effect until it is pressed anew.
/// - Before each stroke: a modifier that the user has pressed since is released, a lock that he has changed
/// is
///   changed back.
/// - At the end the locks are put back, with the user's changes. Modifiers are not pressed again: he may have
///   let go, and they would stick.
class HandsAndLocks {
  public:
    HandsAndLocks(InjectionConnection& connection, GuardLink& guard, RunWatch& watch)
        : m_connection(connection), m_guard(guard), m_watch(watch) {}

    /// Tells the guard, then takes over. True if keys were released, which applications need a moment for.
    Result<bool> takeOver(const KeymapWatch& keymap);

    /// Brings everything in order before a stroke and tells the state then; a round trip. `held` are the keys
    /// that the run itself holds down, which are pressed again where the user's release has undone them. The
    /// locked group must be the user's own.
    Result<XkbComponents> check(const KeymapWatch& keymap, const KeycodeSet& held);

    /// Takes the locks as they are for the run's own doing: after a stroke of a lock key.
    Result<void> adopt();

    /// Nothing happens unless takeOver() was called, and called since the last time.
    void giveBack();

  private:
    Result<void> tellGuard(xkb_layout_index_t group);
    KeycodeSet keysDown(const KeymapWatch& keymap) const;
    void release(const KeymapWatch& keymap, xkb_mod_mask_t modifiers, const KeycodeSet& held);
    bool changeLocksBack(xkb_mod_mask_t locked, xkb_mod_mask_t numLock);
    bool repair(const KeymapWatch& keymap, const KeycodeSet& held, const XkbComponents& state);

    InjectionConnection& m_connection;
    GuardLink& m_guard;
    RunWatch& m_watch;
    bool m_hasTakenOver = false;
    /// The locks as they are during the run, and as they are to be after it.
    xkb_mod_mask_t m_current = 0;
    xkb_mod_mask_t m_afterwards = 0;
};

}  // namespace x11
