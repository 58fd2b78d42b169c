// SPDX-License-Identifier: MIT
#include "platform/fake/FakeEventMonitor.h"

#include <array>
#include <utility>

Result<void> FakeEventMonitor::install(Handler handler) {
    m_journal.note("installMonitor");
    if (m_nextError) return *std::exchange(m_nextError, std::nullopt);
    m_handler = std::move(handler);
    return {};
}

void FakeEventMonitor::setRecording(bool recording) {
    m_recording = recording;
    // The end of a recording is no end of a hold that anybody is told of.
    if (!m_recording) m_held = false;
    followHold();
}

void FakeEventMonitor::FakeWindowKeys::key(const WindowKey& key) {
    constexpr std::array<const char*, 3> kinds{"press", "repeat", "release"};
    told.push_back(std::string(kinds.at(static_cast<std::size_t>(key.kind))) + " " +
                   std::to_string(key.keycode) + " " + std::to_string(key.modifiers));
}

void FakeEventMonitor::programHoldsKeyboard(bool holds) {
    m_programHolds = holds;
    followHold();
}

void FakeEventMonitor::followHold() {
    const bool held = m_programHolds && m_recording;
    if (std::exchange(m_held, held) != held && m_holdChanged) m_holdChanged(held);
}

void FakeEventMonitor::reportKeyPress(KeyEvent event, std::uint32_t shape) {
    if (m_desktop.isScreenLocked() || m_held) return;
    event.modifiers = shape;
    event.time = m_desktop.eventTime();
    m_desktop.post([this, event, held = m_heldModifiers] {
        if (m_desktop.isWithheld()) return;
        if (event.modifiers != held) deliverModifiers(event.modifiers);
        deliver(event);
        if (event.modifiers != held) deliverModifiers(held);
    });
}

void FakeEventMonitor::reportKeyUp(const KeyEvent& event) {
    m_desktop.post([this, event] { deliver(event); });
}

void FakeEventMonitor::reportModifiers(std::uint32_t held) {
    if (held == std::exchange(m_heldModifiers, held)) return;
    m_desktop.post([this, held] { deliverModifiers(held); });
}

void FakeEventMonitor::reportModifierKey(KeyEventKind kind, std::uint32_t keyCode, std::uint32_t modifier) {
    if (!m_recording || !m_showsModifierKeys || m_desktop.isScreenLocked() || m_held) return;
    const KeyEvent event{kind, keyCode, 0, modifier, m_desktop.eventTime()};
    m_desktop.post([this, event] {
        if (!m_desktop.isWithheld()) deliver(event);
    });
}

void FakeEventMonitor::reportOwnStroke(const KeyEvent& event) {
    if (!m_keepsOwnStrokes) return;
    const std::uint32_t held = m_heldModifiers;
    reportModifiers(event.modifiers);
    reportKeyPress(event, event.modifiers);
    reportKeyUp({KeyEventKind::keyUp, event.keyCode, event.character, event.modifiers});
    reportModifiers(held);
}

void FakeEventMonitor::deliver(const KeyEvent& event) const {
    if (m_handler) m_handler(event);
}

void FakeEventMonitor::deliverModifiers(std::uint32_t mask) const {
    deliver({KeyEventKind::modifiersChanged, 0, 0, mask});
}
