// SPDX-License-Identifier: MIT
#include "evdev/EvdevWorld.h"

#include <poll.h>

#include <algorithm>

#include "keymap/NamedKeymap.h"
#include "platform/KeyCodes.h"
#include "platform/XkbCodes.h"
#include "platform/evdev/RepeatCounter.h"
#include "platform/monitor/KeyGrab.h"

namespace {

constexpr std::chrono::milliseconds repeatDelay{400};
constexpr std::chrono::milliseconds repeatInterval{40};

std::uint16_t realModifiersOf(std::uint32_t modifiers) {
    unsigned result = 0;
    if ((modifiers & modifier::shift) != 0) result |= xmask::shift;
    if ((modifiers & modifier::control) != 0) result |= xmask::control;
    if ((modifiers & modifier::option) != 0) result |= xmask::alt;
    if ((modifiers & modifier::command) != 0) result |= xmask::super;
    return static_cast<std::uint16_t>(result);
}

}  // namespace

std::optional<std::string> FakeGrabber::grab(const KeyGrab& grab, const HotKeyRequest& /*request*/) {
    for (const KeyGrab& other : m_elsewhere) {
        if (other.collidesWith(grab)) return "another program holds it";
    }
    m_taken.push_back(grab);
    return std::nullopt;
}

EvdevWorld::EvdevWorld(KeyGrabber& desktop) : m_opener(m_input.folders()), m_keyboard(m_input.plug(0)) {
    m_monitor = std::make_unique<evdev::EvdevEventMonitor>(
        evdev::EvdevEventMonitor::Session{.clock = m_clock,
                                          .opener = m_opener,
                                          .calls = m_calls,
                                          .grabs = desktop,
                                          .folders = m_input.folders(),
                                          .layout = [this] { return m_layout; },
                                          .isDesktopLost = [this] { return m_isLost; }},
        namedKeymap("us"));
    m_monitor->setRepeatRule({repeatDelay, repeatInterval});
    m_monitor->setRecording(true);
}

void EvdevWorld::key(const FakeInput::Device& keyboard, std::uint32_t keyCode, int value) {
    keyboard.key(keycode::evdevFor(keyCode).value(), value, m_clock.now());
}

void EvdevWorld::holdUntilRepeats(std::uint32_t keyCode, int atLeast) {
    key(*m_keyboard, keyCode, 1);
    settle();
    advance(repeatDelay + atLeast * repeatInterval);
    settle();
}

void EvdevWorld::setCapsLock(bool on) {
    if (std::exchange(m_capsLock, on) == on) return;
    press(key::capsLock);
    release(key::capsLock);
}

void EvdevWorld::otherClientGrabs(std::uint32_t keyCode, std::uint32_t modifiers) {
    m_grabber.otherTakes({.keycode = xkbcode::fromEvdev(keycode::evdevFor(keyCode).value()),
                          .modifiers = realModifiersOf(modifiers),
                          .locks = xmask::capsLock | xmask::numLock});
}

void EvdevWorld::settle() {
    pollfd descriptor{m_monitor->fileDescriptor(), POLLIN, 0};
    do m_monitor->dispatch();
    while (poll(&descriptor, 1, 0) > 0);
}

std::unique_ptr<KeyboardWorld> makeEvdevWorld() { return std::make_unique<EvdevWorld>(); }
