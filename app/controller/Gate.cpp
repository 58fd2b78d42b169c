// SPDX-License-Identifier: MIT
#include "app/controller/Gate.h"

#include <utility>

#include "engine/EngineState.h"
#include "platform/EventMonitor.h"

Gate::Gate(EventMonitor& monitor, std::function<void()> changed)
    : m_monitor(monitor), m_changed(std::move(changed)) {}

void Gate::questionOpens() {
    const bool wasOpen = isOpen();
    ++m_questions;
    follow(wasOpen);
}

void Gate::questionCloses() {
    const bool wasOpen = isOpen();
    --m_questions;
    follow(wasOpen);
}

void Gate::setLocked(bool locked) {
    if (m_locked == locked) return;
    const bool wasOpen = isOpen();
    m_locked = locked;
    follow(wasOpen);
}

void Gate::setMenuOpen(bool open, WindowId window) {
    m_menu = window;
    if (std::exchange(m_menuOpen, open) != open) withhold();
}

void Gate::withhold() {
    m_monitor.setWithheld(!isOpen() || m_menuOpen);
    if (isOpen() && m_menuOpen) m_monitor.withholdOnlyFor(m_menu);
}

void Gate::follow(bool wasOpen) {
    if (wasOpen != isOpen()) {
        withhold();
        if (!isOpen()) engineState().playPending = false;
    }
    m_changed();
}
