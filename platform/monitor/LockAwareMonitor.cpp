// SPDX-License-Identifier: MIT
#include "platform/monitor/LockAwareMonitor.h"

Result<void> LockAwareMonitor::install(Handler handler) {
    m_handler = std::move(handler);
    return m_monitor.install([this](const KeyEvent& event) { deliver(event); });
}

void LockAwareMonitor::setRecording(bool recording) {
    m_isHeld = false;
    m_opened.reset();
    m_isRecording = recording;
    if (recording) m_wakeups.startTimer(m_rest);
    m_monitor.setRecording(recording);
}

/// The timer of a recording that has ended may still run.
void LockAwareMonitor::dispatch() {
    if (!m_wakeups.takeTimer() || !m_isRecording) return;
    hold(m_isLocked());
    m_wakeups.startTimer(m_rest);
}

void LockAwareMonitor::observeHold(std::function<void(bool held)> changed) {
    m_holdChanged = changed;
    m_monitor.observeHold(std::move(changed));
}

void LockAwareMonitor::deliver(const KeyEvent& event) {
    const bool isPress = event.kind == KeyEventKind::keyDown || event.kind == KeyEventKind::autoRepeat;
    if (isPress) hold(m_isLocked());
    // A modifier is no sign of a user who types, and tells as much of a password.
    const bool isModifierKey =
        event.kind == KeyEventKind::modifierKeyDown || event.kind == KeyEventKind::modifierKeyUp;
    if (isModifierKey && (m_isLocked() || isForLocker(event))) return;
    if (!isPress || !(m_isHeld || isForLocker(event))) m_handler(event);
}

bool LockAwareMonitor::isForLocker(const KeyEvent& event) const {
    if (!m_opened) return false;
    const auto later = static_cast<std::int32_t>(*m_opened - event.time);
    return later > quickestUnlock.count();
}

void LockAwareMonitor::hold(bool isHeld) {
    if (std::exchange(m_isHeld, isHeld) == isHeld) return;
    if (!isHeld) m_opened = m_now();
    if (m_holdChanged) m_holdChanged(isHeld);
}
