// SPDX-License-Identifier: MIT
#include "platform/fake/FakeKeyboard.h"

#include "platform/Modifiers.h"
#include "platform/fake/FakeUsKeys.h"

namespace {

constexpr std::uint32_t escape = 53;

/// The mask that types what the key types with Caps Lock on, once Caps Lock is off.
std::uint32_t shapeWithoutCapsLock(std::uint32_t keyCode, std::uint32_t held) {
    constexpr std::uint32_t commands = modifier::control | modifier::option | modifier::command;
    if (!fakeus::isLetter(keyCode) || (held & commands) != 0) return held;
    return (held & modifier::shift) == 0 ? modifier::capsLock : modifier::functionKey;
}

}  // namespace

void FakeKeyboard::userPresses(std::uint32_t keyCode) {
    if (m_down.insert(keyCode).second) keyGoesDown(keyCode);
    m_desktop.turnLoop();
}

void FakeKeyboard::keyGoesDown(std::uint32_t keyCode) {
    const std::uint32_t modifier = fakeus::modifierOf(keyCode);
    if (modifier == modifier::capsLock) m_capsLock = !m_capsLock;
    if (modifier != 0) {
        if (modifier != modifier::capsLock) {
            m_monitor.reportModifierKey(KeyEventKind::modifierKeyDown, keyCode, modifier);
        }
        m_monitor.reportModifiers(heldModifiers());
        return;
    }
    if (keyCode == escape && !m_desktop.isScreenLocked()) m_desktop.escapeGoesDown();
    if (m_hotKeys.takesPress(keyCode, heldModifiers())) return;
    reportPress(KeyEventKind::keyDown, keyCode);
}

void FakeKeyboard::userHolds(std::uint32_t keyCode, int repeats) {
    userPresses(keyCode);
    if (fakeus::modifierOf(keyCode) != 0 || m_hotKeys.holds(keyCode)) return;
    for (int i = 0; i < repeats; ++i) reportPress(KeyEventKind::autoRepeat, keyCode);
    m_desktop.turnLoop();
}

void FakeKeyboard::userReleases(std::uint32_t keyCode) {
    if (m_down.erase(keyCode) == 0) return;
    if (keyCode == escape) m_desktop.escapeGoesUp();
    const std::uint32_t modifier = fakeus::modifierOf(keyCode);
    if (modifier != 0) {
        m_monitor.reportModifiers(heldModifiers());
        if (modifier != modifier::capsLock) {
            m_monitor.reportModifierKey(KeyEventKind::modifierKeyUp, keyCode, modifier);
        }
    } else if (!m_hotKeys.takesRelease(keyCode)) {
        m_monitor.reportKeyUp({KeyEventKind::keyUp, keyCode, 0, heldModifiers()});
    }
    m_desktop.turnLoop();
}

void FakeKeyboard::scriptStrikes(std::uint32_t keyCode, std::uint32_t modifiers) {
    const char character = fakeus::character(keyCode, (modifiers & modifier::shift) != 0);
    m_monitor.reportOwnStroke({KeyEventKind::keyDown, keyCode, character, modifiers});
    m_desktop.turnLoop();
}

std::uint32_t FakeKeyboard::heldModifiers() const {
    std::uint32_t held = 0;
    for (const std::uint32_t keyCode : m_down) held |= fakeus::modifierOf(keyCode);
    return held & ~modifier::capsLock;
}

void FakeKeyboard::reportPress(KeyEventKind kind, std::uint32_t keyCode) {
    const std::uint32_t held = heldModifiers();
    bool shift = (held & modifier::shift) != 0;
    if (m_capsLock && fakeus::isLetter(keyCode)) shift = !shift;
    const std::uint32_t shape = m_capsLock ? shapeWithoutCapsLock(keyCode, held) : held;
    m_monitor.reportKeyPress({kind, keyCode, fakeus::character(keyCode, shift), held}, shape);
}
