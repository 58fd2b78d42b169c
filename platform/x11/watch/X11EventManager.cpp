// SPDX-License-Identifier: MIT
#include "platform/x11/watch/X11EventManager.h"

#include "platform/x11/watch/X11EventParts.h"

namespace x11 {

Result<std::unique_ptr<X11EventManager>> X11EventManager::open(const Clock& clock,
                                                               const std::string& display) {
    Result<std::unique_ptr<Parts>> parts = Parts::open(clock, display);
    if (!parts) return parts.error();
    return std::unique_ptr<X11EventManager>(new X11EventManager(std::move(parts).value()));
}

X11EventManager::X11EventManager(std::unique_ptr<Parts> parts) : m_parts(std::move(parts)) {}
X11EventManager::~X11EventManager() = default;

int X11EventManager::fileDescriptor() const { return m_parts->fileDescriptor(); }
void X11EventManager::dispatch() { m_parts->dispatch(); }
bool X11EventManager::isBroken() const { return m_parts->isBroken(); }
const std::optional<Error>& X11EventManager::problem() const { return m_parts->problem(); }
RunWatch& X11EventManager::runWatch() { return *m_parts; }
const KeyboardState& X11EventManager::keyboard() const { return m_parts->keyboard(); }

Result<void> X11EventManager::install(EventMonitor::Handler handler) {
    m_parts->deliverer().setHandler(std::move(handler));
    return {};
}

void X11EventManager::setWithheld(bool withheld) { m_parts->setWithheld(withheld); }
void X11EventManager::withholdOnlyFor(WindowId window) { m_parts->withholdOnlyFor(window); }
void X11EventManager::setKeepsOwnStrokes(bool keeps) { m_parts->setKeepsOwnStrokes(keeps); }

void X11EventManager::setShowsModifierKeys(bool shows) { m_parts->setShowsModifierKeys(shows); }
void X11EventManager::setRecording(bool recording) { m_parts->setRecording(recording); }

void X11EventManager::observeHold(std::function<void(bool held)> changed) {
    m_parts->observeHold(std::move(changed));
}

void X11EventManager::endPlaysWhen(std::function<bool()> endsPlays) {
    m_parts->endPlaysWhen(std::move(endsPlays));
}

void X11EventManager::install(HotKeys::Handler pressed, HotKeys::Handler released) {
    m_parts->deliverer().setHotKeyHandlers(std::move(pressed), std::move(released));
}

void X11EventManager::observe(Observer observer) { m_parts->hotKeys().observe(std::move(observer)); }

void X11EventManager::requestAll(const std::vector<HotKeyRequest>& requests) {
    m_parts->hotKeys().requestAll(requests);
    m_parts->kick();
}

void X11EventManager::withdraw(HotKeyId id) {
    m_parts->hotKeys().withdraw(id);
    m_parts->kick();
}

HotKeyState X11EventManager::state(HotKeyId id) const { return m_parts->hotKeys().state(id); }
std::uint32_t X11EventManager::lastPressTime() const { return m_parts->lastPressTime(); }

}  // namespace x11
