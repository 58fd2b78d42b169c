// SPDX-License-Identifier: MIT
#include "platform/evdev/EvdevEventMonitor.h"

#include <utility>

#include "platform/evdev/EvdevEventParts.h"

namespace evdev {

EvdevEventMonitor::EvdevEventMonitor(const Session& session, std::unique_ptr<Keymap> keymap)
    : m_parts(std::make_unique<Parts>(session, std::move(keymap))) {}
EvdevEventMonitor::~EvdevEventMonitor() = default;

int EvdevEventMonitor::fileDescriptor() const { return m_parts->fileDescriptor(); }
void EvdevEventMonitor::dispatch() { m_parts->dispatch(); }

void EvdevEventMonitor::setKeymap(std::unique_ptr<Keymap> keymap) { m_parts->setKeymap(std::move(keymap)); }
void EvdevEventMonitor::setLayout(std::uint32_t layout) { m_parts->setLayout(layout); }
void EvdevEventMonitor::setRepeatRule(const RepeatRule& rule) { m_parts->setRepeatRule(rule); }
void EvdevEventMonitor::desktopTells(const KeyGrab& grab, bool press) { m_parts->desktopTells(grab, press); }
void EvdevEventMonitor::desktopAnswers(const KeyGrab& grab, const GrabAnswer& answer) {
    m_parts->hotKeys().answer(grab, answer);
}
void EvdevEventMonitor::desktopForgot() { m_parts->desktopForgot(); }
void EvdevEventMonitor::listenTo(EventSource& desktop) { m_parts->listenTo(desktop); }

void EvdevEventMonitor::endPlaysWhen(std::function<bool()> endsPlays) {
    m_parts->endPlaysWhen(std::move(endsPlays));
}

std::uint32_t EvdevEventMonitor::eventTime() const { return m_parts->eventTime(); }

RunWatch& EvdevEventMonitor::runWatch() { return *m_parts; }
const KeyboardState& EvdevEventMonitor::keyboard() const { return m_parts->keyboard(); }

Result<void> EvdevEventMonitor::install(EventMonitor::Handler handler) {
    m_parts->deliverer().setHandler(std::move(handler));
    return {};
}

void EvdevEventMonitor::setWithheld(bool withheld) { m_parts->setWithheld(withheld); }
void EvdevEventMonitor::setKeepsOwnStrokes(bool keeps) { m_parts->setKeepsOwnStrokes(keeps); }

void EvdevEventMonitor::setShowsModifierKeys(bool shows) { m_parts->setShowsModifierKeys(shows); }
void EvdevEventMonitor::setRecording(bool recording) { m_parts->setRecording(recording); }
void EvdevEventMonitor::observeHold(std::function<void(bool held)> /*changed*/) {}
void EvdevEventMonitor::observeAccess(AccessObserver changed) { m_parts->observeAccess(std::move(changed)); }

WindowKeys* EvdevEventMonitor::windowKeys() { return &m_parts->windowKeys(); }

void EvdevEventMonitor::install(HotKeys::Handler pressed, HotKeys::Handler released) {
    m_parts->deliverer().setHotKeyHandlers(std::move(pressed), std::move(released));
}

void EvdevEventMonitor::observe(Observer observer) { m_parts->hotKeys().observe(std::move(observer)); }
void EvdevEventMonitor::requestAll(const std::vector<HotKeyRequest>& requests) {
    m_parts->hotKeys().requestAll(requests);
}
void EvdevEventMonitor::withdraw(HotKeyId id) { m_parts->hotKeys().withdraw(id); }
HotKeyState EvdevEventMonitor::state(HotKeyId id) const { return m_parts->hotKeys().state(id); }
bool EvdevEventMonitor::needsConsent() const { return m_parts->hotKeys().needsConsent(); }
void EvdevEventMonitor::setConsent(bool given) { m_parts->hotKeys().setConsent(given); }
std::uint32_t EvdevEventMonitor::lastPressTime() const { return m_parts->deliverer().lastPressTime(); }

}  // namespace evdev
