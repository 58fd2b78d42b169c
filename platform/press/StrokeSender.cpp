// SPDX-License-Identifier: MIT
#include "platform/press/StrokeSender.h"

#include <utility>

#include "platform/keymap/StrokeKeys.h"

void StrokeSender::meet(const XkbComponents& state) {
    m_homeLocks = m_locks = state.locked;
    m_homeGroup = m_group = state.lockedLayout;
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
    // A key that the run holds down, or a hand, goes up first, or nobody would see it go down again.
    if (held[stroke.keycode] || m_watch.handsHold(stroke.keycode)) m_output.release(stroke.keycode);
    m_output.press(stroke.keycode);
    if (!held[stroke.keycode]) m_output.release(stroke.keycode);
    m_tail.keyIsUp(stroke.modifiers & keymap.masks().commands());
    if (!isLifted) return {};
    const auto passed = m_output.synchronise();
    m_watch.restoreHotKeysOf(stroke.keycode);
    return passed ? Result<void>() : passed.error();
}

std::vector<std::uint8_t> StrokeSender::hold(const ModifierKeys& keys, const Stroke& stroke,
                                             const KeycodeSet& held) {
    auto pressed = keysAround(keys, stroke, keys.heldBy(held));
    setLocks(stroke);
    for (const std::uint8_t keycode : pressed) m_output.press(keycode);
    if (!pressed.empty()) keepGroup(keys);
    if (m_watch.handsHold(stroke.keycode)) m_output.release(stroke.keycode);
    m_output.press(stroke.keycode);
    pressed.push_back(stroke.keycode);
    return pressed;
}

/// Of the keys of a stroke only its own may switch the layout, as it did when it was recorded; pairs of
/// modifiers may do so on their way.
void StrokeSender::keepGroup(const ModifierKeys& keys) {
    if (keys.haveLayouts()) m_output.lockGroup(m_group);
}

void StrokeSender::lockGroup(xkb_layout_index_t group) {
    if (group == m_group) return;
    m_output.lockGroup(group);
    m_group = group;
}

void StrokeSender::lockModifiers(xkb_mod_mask_t locks) {
    const xkb_mod_mask_t change = std::exchange(m_locks, locks) ^ locks;
    if (change != 0) m_output.lockModifiers(change, locks);
}

void StrokeSender::setLocks(const Stroke& stroke) {
    if (stroke.group >= 0) lockGroup(static_cast<xkb_layout_index_t>(stroke.group));
    lockModifiers((m_homeLocks & ~stroke.lockMask) | (stroke.lockValues & stroke.lockMask));
}

void StrokeSender::home() {
    lockGroup(m_homeGroup);
    lockModifiers(m_homeLocks);
}
