// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "platform/Windows.h"

class EventMonitor;

/// Shut while a question of the program's own is open or the screen is locked.
///
/// While it is shut the monitor delivers no key presses and no hot keys, and whoever starts commands has to
/// ask isOpen() first; modifier changes go on. A play that waits for modifier keys is forgotten when it
/// shuts, or it would play into the question or into the lock. Whether hot keys are switched on is not its
/// business.
class Gate {
  public:
    /// The monitor outlives the gate. `changed` is called after isOpen() or isLocked() has changed.
    Gate(EventMonitor& monitor, std::function<void()> changed);

    bool isOpen() const { return m_questions == 0 && !m_locked; }
    bool isLocked() const { return m_locked; }

    /// Questions nest. Each that opens closes once.
    void questionOpens();
    void questionCloses();
    void setLocked(bool locked);

    /// While the program's own menu is open key presses and hot keys are the menu's; the commands that are
    /// chosen in it are carried out all the same. `window` is its own.
    void setMenuOpen(bool open, WindowId window);

  private:
    void follow(bool wasOpen);
    void withhold();

    EventMonitor& m_monitor;
    std::function<void()> m_changed;
    int m_questions = 0;
    bool m_locked = false;
    bool m_menuOpen = false;
    WindowId m_menu = Windows::none;
};
