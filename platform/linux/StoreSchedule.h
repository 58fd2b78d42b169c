// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <functional>
#include <optional>

#include "platform/Result.h"

/// When what was set is stored: at the end of the event loop's turn, or sooner where that is asked for; and
/// what went wrong where nobody asked.
class StoreSchedule {
  public:
    /// `store` writes what has been set and not been written. `awaitTurnEnd`, which may be empty, is called
    /// with the first change of each turn; endTurn() has to follow.
    StoreSchedule(std::function<Result<>()> store, std::function<void()> awaitTurnEnd);

    /// Something was set.
    void noteChange();
    /// Stores what was set in this turn, unless that was done or tried. A failure is a fault; one that lasts
    /// is told once.
    void endTurn();
    Result<> storeNow();
    /// The last chance, also for what could not be stored before: there may be room by now.
    void end();

    void addFault(const Error& fault) { m_faults.push_back(fault); }
    std::optional<Error> takeFault();

  private:
    std::function<Result<>()> m_store;
    std::function<void()> m_awaitTurnEnd;
    /// Something was set since the last try to write.
    bool m_isDue = false;
    std::deque<Error> m_faults;
    std::optional<Error> m_lastFailure;
};
