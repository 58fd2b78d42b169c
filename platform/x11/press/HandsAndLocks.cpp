// SPDX-License-Identifier: MIT
#include "platform/x11/press/HandsAndLocks.h"

#include <utility>

namespace x11 {

namespace {

/// The keys of `among` that hold one of the modifiers.
KeycodeSet holdersOf(const ModifierKeys& keys, xkb_mod_mask_t modifiers, const KeycodeSet& among) {
    KeycodeSet holders;
    for (std::size_t keycode = 0; keycode < among.size(); ++keycode) {
        holders[keycode] =
            among[keycode] && (keys.heldBy(static_cast<std::uint8_t>(keycode)) & modifiers) != 0;
    }
    return holders;
}

void releaseAll(InjectionConnection& connection, const KeycodeSet& keys) {
    for (std::size_t keycode = 0; keycode < keys.size(); ++keycode) {
        if (keys[keycode]) connection.release(static_cast<std::uint8_t>(keycode));
    }
}

}  // namespace

Result<bool> HandsAndLocks::takeOver(const KeymapWatch& keymap) {
    const auto state = m_connection.synchronise();
    if (!state) return state.error();
    const Keymap& map = keymap.keymap();
    m_afterwards = state.value().locked;
    const auto told = tellGuard(state.value().lockedLayout);
    if (!told) return told.error();
    m_hasTakenOver = true;
    m_watch.takeModifierPress();
    KeycodeSet down = keysDown(keymap);
    const xkb_mod_mask_t held = state.value().depressed;
    if (held != 0) down |= holdersOf(map.keys(), held, KeycodeSet().set());
    releaseAll(m_connection, down);
    const xkb_mod_mask_t inTheWay = state.value().locked & ~map.masks().numLock;
    if (inTheWay != 0) m_connection.lockModifiers(inTheWay, 0);
    if (state.value().latched != 0 || state.value().movesLayout()) m_connection.clearLatches();
    m_current = state.value().locked & ~inTheWay;
    const auto done = m_connection.synchronise();
    if (!done) return done.error();
    return down.any();
}

Result<XkbComponents> HandsAndLocks::check(const KeymapWatch& keymap, const KeycodeSet& held) {
    auto state = m_connection.synchronise();
    if (!state) return state;
    const bool isRepaired = repair(keymap, held, state.value());
    const auto told = tellGuard(state.value().lockedLayout);
    if (!told) return told.error();
    return isRepaired ? m_connection.synchronise() : state;
}

/// Queues what has to be done; true if there is something.
bool HandsAndLocks::repair(const KeymapWatch& keymap, const KeycodeSet& held, const XkbComponents& state) {
    const Keymap& map = keymap.keymap();
    const xkb_mod_mask_t own = map.keys().heldBy(held);
    const xkb_mod_mask_t foreign = state.depressed & ~own;
    const xkb_mod_mask_t undone = own & ~state.depressed;
    const bool hasPress = m_watch.takeModifierPress();
    bool isDone = changeLocksBack(state.locked, map.masks().numLock);
    if (state.latched != 0) m_connection.clearLatches();
    if (foreign != 0 || state.movesLayout() || hasPress) {
        release(keymap, foreign, held);
        isDone = true;
    }
    for (std::size_t keycode = 0; undone != 0 && keycode < held.size(); ++keycode) {
        const auto code = static_cast<std::uint8_t>(keycode);
        if (!held[keycode] || (map.keys().heldBy(code) & undone) == 0) continue;
        m_connection.release(code);
        m_connection.press(code);
        isDone = true;
    }
    return isDone || state.latched != 0;
}

/// Releases the modifier keys that are down on a keyboard; where none is seen to be, all that hold the
/// modifiers.
void HandsAndLocks::release(const KeymapWatch& keymap, xkb_mod_mask_t modifiers, const KeycodeSet& held) {
    const ModifierKeys& keys = keymap.keymap().keys();
    const KeycodeSet down = holdersOf(keys, realModifiers, keysDown(keymap)) & ~held;
    releaseAll(m_connection, down);
    if (holdersOf(keys, modifiers, down).none()) {
        releaseAll(m_connection, holdersOf(keys, modifiers, ~held));
    }
    m_connection.clearLatches();
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

KeycodeSet HandsAndLocks::keysDown(const KeymapWatch& keymap) const {
    KeycodeSet down;
    for (const SlaveKeyboard& keyboard : keymap.slaves()) down |= keysDownOn(m_connection.get(), keyboard);
    return down;
}

}  // namespace x11
