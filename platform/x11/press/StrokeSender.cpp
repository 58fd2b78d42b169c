// SPDX-License-Identifier: MIT
#include "platform/x11/press/StrokeSender.h"

#include <bit>
#include <utility>

#include "platform/keymap/StrokeKeys.h"

namespace x11 {

void StrokeSender::meet(const XkbComponents& state) {
    m_homeLocks = m_locks = state.locked;
    m_homeGroup = m_group = state.lockedLayout;
}

std::size_t StrokeSender::sizeOf(const Stroke& stroke) {
    const auto modifiers = static_cast<std::size_t>(std::popcount(stroke.modifiers));
    constexpr std::size_t locksAndGroups = 5;
    return (modifiers + 2) * 2 * InjectionConnection::keyEventSize +
           locksAndGroups * InjectionConnection::lockSize;
}

Result<void> StrokeSender::send(const Keymap& keymap, const Stroke& stroke, const KeycodeSet& held) {
    const ModifierKeys& keys = keymap.keys();
    const xkb_mod_mask_t down = keys.heldBy(held);
    // Those of a key that the run holds down are lifted already, and stay so.
    const bool isLifted =
        !held[stroke.keycode] &&
        m_watch.liftHotKey(stroke.keycode, static_cast<std::uint16_t>(stroke.modifiers | down));
    setLocks(stroke);
    if (m_tail.press(keysAround(keys, stroke, down))) keepGroup(keys);
    // A key that the run holds down goes up first, or nobody would see it go down again.
    if (held[stroke.keycode]) m_connection.release(stroke.keycode);
    m_connection.press(stroke.keycode);
    if (!held[stroke.keycode]) m_connection.release(stroke.keycode);
    m_tail.keyIsUp(stroke.modifiers & keymap.masks().commands());
    if (!isLifted) return {};
    const auto passed = m_connection.synchronise();
    m_watch.restoreHotKeysOf(stroke.keycode);
    return passed ? Result<void>() : passed.error();
}

std::vector<std::uint8_t> StrokeSender::hold(const ModifierKeys& keys, const Stroke& stroke,
                                             const KeycodeSet& held) {
    auto pressed = keysAround(keys, stroke, keys.heldBy(held));
    setLocks(stroke);
    for (const std::uint8_t keycode : pressed) m_connection.press(keycode);
    if (!pressed.empty()) keepGroup(keys);
    m_connection.press(stroke.keycode);
    pressed.push_back(stroke.keycode);
    return pressed;
}

/// Of the keys of a stroke only its own may switch the layout, as it did when it was recorded; pairs of
/// modifiers may do so on their way.
void StrokeSender::keepGroup(const ModifierKeys& keys) {
    if (keys.haveLayouts()) m_connection.lockGroup(m_group);
}

void StrokeSender::lockGroup(xkb_layout_index_t group) {
    if (group == m_group) return;
    m_connection.lockGroup(group);
    m_group = group;
}

void StrokeSender::lockModifiers(xkb_mod_mask_t locks) {
    const xkb_mod_mask_t change = std::exchange(m_locks, locks) ^ locks;
    if (change != 0) m_connection.lockModifiers(change, locks);
}

void StrokeSender::setLocks(const Stroke& stroke) {
    if (stroke.group >= 0) lockGroup(static_cast<xkb_layout_index_t>(stroke.group));
    lockModifiers((m_homeLocks & ~stroke.lockMask) | (stroke.lockValues & stroke.lockMask));
}

void StrokeSender::home() {
    lockGroup(m_homeGroup);
    lockModifiers(m_homeLocks);
}

}  // namespace x11
