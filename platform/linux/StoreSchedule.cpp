// SPDX-License-Identifier: MIT
#include "platform/linux/StoreSchedule.h"

#include <utility>

StoreSchedule::StoreSchedule(std::function<Result<>()> store, std::function<void()> awaitTurnEnd)
    : m_store(std::move(store)), m_awaitTurnEnd(std::move(awaitTurnEnd)) {}

void StoreSchedule::noteChange() {
    if (!std::exchange(m_isDue, true) && m_awaitTurnEnd) m_awaitTurnEnd();
}

void StoreSchedule::endTurn() {
    if (!m_isDue) return;
    const std::optional<Error> before = m_lastFailure;
    const Result<> stored = storeNow();
    if (!stored && stored.error() != before) m_faults.push_back(stored.error());
}

Result<> StoreSchedule::storeNow() {
    m_isDue = false;
    Result<> stored = m_store();
    m_lastFailure = stored ? std::nullopt : std::optional(stored.error());
    return stored;
}

void StoreSchedule::end() {
    // Nobody is left to be told.
    if (m_isDue || m_lastFailure) [[maybe_unused]]
        const auto stored = storeNow();
}

std::optional<Error> StoreSchedule::takeFault() {
    if (m_faults.empty()) return std::nullopt;
    Error fault = std::move(m_faults.front());
    m_faults.pop_front();
    return fault;
}
