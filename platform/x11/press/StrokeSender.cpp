// SPDX-License-Identifier: MIT
#include "platform/x11/press/StrokeSender.h"

#include <algorithm>
#include <bit>

namespace x11 {

namespace {

std::uint8_t modifiersHeldBy(const ModifierKeys& keys, const KeycodeSet& held) {
    unsigned modifiers = 0;
    for (std::size_t keycode = 0; held.any() && keycode < held.size(); ++keycode) {
        if (held[keycode]) modifiers |= keys.heldBy(static_cast<std::uint8_t>(keycode));
    }
    return static_cast<std::uint8_t>(modifiers);
}

/// The keys for the modifiers that are not down yet.
std::vector<std::uint8_t> missingKeys(const ModifierKeys& keys, const Stroke& stroke, std::uint8_t down) {
    std::vector<std::uint8_t> missing;
    for (unsigned bit = 1; bit <= 0x80U; bit <<= 1U) {
        if ((stroke.modifiers & ~down & bit) == 0) continue;
        const std::uint8_t keycode = keys.keyFor(static_cast<std::uint8_t>(bit));
        if (keycode != stroke.keycode) missing.push_back(keycode);
    }
    return missing;
}

}  // namespace

void StrokeSender::meet(const InputState& state) {
    m_locked = state.locked;
    m_homeGroup = m_group = state.lockedGroup;
}

std::size_t StrokeSender::sizeOf(const Stroke& stroke) {
    const auto modifiers = static_cast<std::size_t>(std::popcount(stroke.modifiers));
    constexpr std::size_t locksAndGroups = 4;
    return (modifiers + 2) * 2 * InjectionConnection::keyEventSize +
           locksAndGroups * InjectionConnection::lockSize;
}

Result<void> StrokeSender::send(const ModifierKeys& keys, const Stroke& stroke, const KeycodeSet& held) {
    const std::uint8_t down = modifiersHeldBy(keys, held);
    const auto modifiers = missingKeys(keys, stroke, down);
    const bool isLifted =
        m_watch.liftHotKey(stroke.keycode, static_cast<std::uint16_t>(stroke.modifiers | down));
    setLocks(stroke);
    for (const std::uint8_t keycode : modifiers) m_connection.press(keycode);
    // A key that the run holds down goes up first, or nobody would see it go down again.
    if (held[stroke.keycode]) m_connection.release(stroke.keycode);
    m_connection.press(stroke.keycode);
    if (!held[stroke.keycode]) m_connection.release(stroke.keycode);
    std::for_each(modifiers.rbegin(), modifiers.rend(),
                  [&](std::uint8_t keycode) { m_connection.release(keycode); });
    resetLocks(stroke);
    if (!isLifted) return {};
    const auto passed = m_connection.synchronise();
    m_watch.restoreHotKey();
    return passed ? Result<void>() : passed.error();
}

std::vector<std::uint8_t> StrokeSender::hold(const ModifierKeys& keys, const Stroke& stroke,
                                             const KeycodeSet& held) {
    auto pressed = missingKeys(keys, stroke, modifiersHeldBy(keys, held));
    pressed.push_back(stroke.keycode);
    setLocks(stroke);
    for (const std::uint8_t keycode : pressed) m_connection.press(keycode);
    resetLocks(stroke);
    return pressed;
}

void StrokeSender::lockGroup(std::uint8_t group) {
    if (group == m_group) return;
    m_connection.lockGroup(group);
    m_group = group;
}

void StrokeSender::setLocks(const Stroke& stroke) {
    if (stroke.group >= 0) lockGroup(static_cast<std::uint8_t>(stroke.group));
    const auto change = static_cast<std::uint8_t>((m_locked ^ stroke.lockValues) & stroke.lockMask);
    if (change != 0) m_connection.lockModifiers(change, stroke.lockValues);
}

void StrokeSender::resetLocks(const Stroke& stroke) {
    const auto change = static_cast<std::uint8_t>((m_locked ^ stroke.lockValues) & stroke.lockMask);
    if (change != 0) m_connection.lockModifiers(change, m_locked);
}

}  // namespace x11
