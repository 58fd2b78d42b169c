// SPDX-License-Identifier: MIT
#include "platform/x11/press/HandsAndLocks.h"

#include <utility>

namespace x11 {

Result<void> HandsAndLocks::takeOver(const KeymapWatch& keymap) {
    const auto state = m_connection.synchronise();
    if (!state) return state.error();
    m_afterwards = state.value().locked;
    const auto told = tellGuard(state.value().lockedLayout);
    if (!told) return told.error();
    m_hasTakenOver = true;
    const xkb_mod_mask_t inTheWay = state.value().locked & ~keymap.keymap().masks().numLock;
    if (inTheWay != 0) m_connection.lockModifiers(inTheWay, 0);
    if (state.value().latched != 0 || state.value().latchedLayout != 0) m_connection.clearLatches();
    m_current = state.value().locked & ~inTheWay;
    const auto done = m_connection.synchronise();
    return done ? Result<void>() : done.error();
}

Result<bool> HandsAndLocks::repair(const KeymapWatch& keymap, const KeycodeSet& held,
                                   const XkbComponents& state) {
    const Keymap& map = keymap.keymap();
    bool isDone = changeLocksBack(state.locked, map.masks().numLock);
    isDone = releaseStuck(map.keys(), held, state) || isDone;
    isDone = pressUndone(map.keys(), held, state) || isDone;
    const auto told = tellGuard(state.lockedLayout);
    if (!told) return told.error();
    return isDone;
}

/// Modifiers that are in force though no key is down that holds them: a keyboard that has gone, a keymap that
/// was changed meanwhile. The release of any key that could hold them ends them.
bool HandsAndLocks::releaseStuck(const ModifierKeys& keys, const KeycodeSet& held,
                                 const XkbComponents& state) {
    const xkb_mod_mask_t stuck = state.depressed & ~keys.heldBy(held);
    if (stuck == 0 && state.latched == 0 && !state.movesLayout()) return false;
    if (stuck != 0) m_connection.release(keys.holdersOf(stuck, ~held));
    m_connection.clearLatches();
    return true;
}

bool HandsAndLocks::pressUndone(const ModifierKeys& keys, const KeycodeSet& held,
                                const XkbComponents& state) {
    const xkb_mod_mask_t undone = keys.heldBy(held) & ~state.depressed;
    if (undone == 0) return false;
    const KeycodeSet holders = keys.holdersOf(undone, held);
    m_connection.release(holders);
    m_connection.press(holders);
    return true;
}

bool HandsAndLocks::changeLocksBack(xkb_mod_mask_t locked, xkb_mod_mask_t numLock) {
    const xkb_mod_mask_t changed = locked ^ m_current;
    if (changed == 0) return false;
    m_afterwards ^= changed;
    // Num Lock changes no stroke but a keypad digit's, which sets it for itself.
    m_current ^= changed & numLock;
    const xkb_mod_mask_t back = changed & ~numLock;
    if (back != 0) m_connection.lockModifiers(back, m_current);
    return back != 0;
}

Result<void> HandsAndLocks::adopt() {
    const auto state = m_connection.synchronise();
    if (!state) return state.error();
    m_current = state.value().locked;
    return {};
}

void HandsAndLocks::giveBack() {
    if (!std::exchange(m_hasTakenOver, false)) return;
    const auto state = m_connection.synchronise();
    if (!state) return;
    m_afterwards ^= state.value().locked ^ m_current;
    if (state.value().locked != m_afterwards) m_connection.lockModifiers(realModifiers, m_afterwards);
    // The state is of no use any more, but with it all of it has been worked off.
    [[maybe_unused]] const auto ignored = m_connection.synchronise();
}

Result<void> HandsAndLocks::tellGuard(xkb_layout_index_t group) {
    return m_guard.tell({.kind = GuardMessage::Kind::running,
                         .lockedModifiers = static_cast<std::uint8_t>(m_afterwards),
                         .lockedGroup = static_cast<std::uint8_t>(group)});
}

}  // namespace x11
