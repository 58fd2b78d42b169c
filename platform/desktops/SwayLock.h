// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "platform/Clock.h"
#include "platform/desktops/ScreenLockers.h"
#include "platform/desktops/SwayConnection.h"

/// Whether a screen locker that the user has started has sway's keyboard. Neither of them tells: there is one
/// where no window has the keyboard while a locker runs. Launchers take it from the windows too.
class SwayLock {
  public:
    /// `clock` outlives this.
    SwayLock(SwayConnection connection, const Clock& clock)
        : m_connection(std::move(connection)), m_clock(clock) {}

    /// What is so now, or was at most 10 ms ago. While sway does not answer any locker that runs counts.
    bool isLocked();

  private:
    bool look();

    SwayConnection m_connection;
    const Clock& m_clock;
    ScreenLockers m_lockers;
    std::optional<Clock::Time> m_looked;
    bool m_isLocked = false;
};
