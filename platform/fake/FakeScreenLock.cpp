// SPDX-License-Identifier: MIT
#include "platform/fake/FakeScreenLock.h"

#include <utility>

void FakeScreenLock::observe(std::function<void(bool locked)> changed) {
    m_observers.push_back(std::move(changed));
}

void FakeScreenLock::setLocked(bool locked) {
    if (locked == isLocked()) return;
    m_desktop.lockScreen(locked);
    for (const auto& observer : m_observers) m_desktop.post([observer, locked] { observer(locked); });
    m_desktop.turnLoop();
}
