// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <set>

#include "platform/fake/FakeDesktop.h"
#include "platform/fake/FakeEventMonitor.h"
#include "platform/fake/FakeHotKeys.h"

/// The user's hands on a US keyboard. Each act is delivered before it returns, unless a script runs.
///
/// Keys are key codes (platform/KeyCodes.h); 54 to 62 are modifier keys, 57 of them Caps Lock.
class FakeKeyboard {
  public:
    FakeKeyboard(FakeDesktop& desktop, FakeEventMonitor& monitor, FakeHotKeys& hotKeys)
        : m_desktop(desktop), m_monitor(monitor), m_hotKeys(hotKeys) {}

    /// A press of a key that is down is nothing.
    void userPresses(std::uint32_t keyCode);
    /// The key, pressed first if it is up, stays down until it has repeated so often.
    void userHolds(std::uint32_t keyCode, int repeats);
    /// A release of a key that is up is nothing.
    void userReleases(std::uint32_t keyCode);

    void setCapsLock(bool on) { m_capsLock = on; }
    void lockScreen(bool locked) { m_desktop.lockScreen(locked); }

    /// A stroke of a running script; it never fires a hot key.
    void scriptStrikes(std::uint32_t keyCode, std::uint32_t modifiers);

    /// The modifier keys that are down, without locks.
    std::uint32_t heldModifiers() const;

  private:
    void keyGoesDown(std::uint32_t keyCode);
    void reportPress(KeyEventKind kind, std::uint32_t keyCode);

    FakeDesktop& m_desktop;
    FakeEventMonitor& m_monitor;
    FakeHotKeys& m_hotKeys;
    std::set<std::uint32_t> m_down;
    bool m_capsLock = false;
};
