// SPDX-License-Identifier: MIT
#include "x11/watch/X11World.h"

#include <gtest/gtest.h>
#include <poll.h>

#include <stdexcept>

#include "display/RepeatCount.h"
#include "platform/KeyCodes.h"
#include "platform/Modifiers.h"
#include "platform/XkbCodes.h"
#include "platform/monitor/KeyboardHold.h"
#include "support/Keys.h"

namespace {

unsigned pcModifiers(std::uint32_t modifiers) {
    unsigned result = 0;
    if ((modifiers & modifier::shift) != 0) result |= XCB_MOD_MASK_SHIFT;
    if ((modifiers & modifier::control) != 0) result |= XCB_MOD_MASK_CONTROL;
    if ((modifiers & modifier::option) != 0) result |= XCB_MOD_MASK_1;
    if ((modifiers & modifier::command) != 0) result |= XCB_MOD_MASK_4;
    return result;
}

}  // namespace

std::uint8_t keycodeFor(std::uint32_t keyCode) {
    return xkbcode::fromEvdev(keycode::evdevFor(keyCode).value());
}

X11World::X11World() : m_hands(m_server.display()) {
    outputOf({"xset", "r", "rate", "150", "50"}, {{"DISPLAY", display()}});
    auto manager = x11::X11EventManager::open(m_clock, display());
    if (!manager) throw std::runtime_error(manager.error().message);
    m_manager = std::move(manager).value();
}

X11World::~X11World() {
    for (const std::uint32_t keyCode : m_down) m_hands.release(keycodeFor(keyCode));
    m_hands.finish();
}

void X11World::press(std::uint32_t keyCode) {
    m_down.insert(keyCode);
    m_hands.press(keycodeFor(keyCode));
}

void X11World::release(std::uint32_t keyCode) {
    m_down.erase(keyCode);
    m_hands.release(keycodeFor(keyCode));
}

void X11World::holdUntilRepeats(std::uint32_t keyCode, int atLeast) {
    m_hands.finish();
    RepeatCount count(display(), keycodeFor(keyCode));
    const int first = m_down.contains(keyCode) ? 0 : 1;
    if (first == 1) press(keyCode);
    m_hands.finish();
    if (!eventually([&] { return count.presses() >= first + atLeast; }))
        throw std::runtime_error("no repeats");
}

void X11World::setCapsLock(bool on) {
    m_hands.lock(xmask::capsLock, on);
    m_hands.flush();
}

void X11World::otherClientGrabs(std::uint32_t keyCode, std::uint32_t modifiers) {
    m_others.push_back(std::make_unique<CoreClient>(display()));
    for (const unsigned locks : {0x00U, 0x02U, 0x10U, 0x12U}) {
        const auto mask = static_cast<std::uint16_t>(pcModifiers(modifiers) | locks);
        if (!m_others.back()->grabKey(keycodeFor(keyCode), mask)) throw std::runtime_error("no grab");
    }
}

void X11World::lockerTakesKeyboard() {
    m_holder.emplace(display());
    m_holder->grabPointer();
    m_holder->grabKeyboard();
}

void X11World::menuTakesKeyboard() {
    lockerTakesKeyboard();
    m_holder->showMenu();
}

void X11World::menuStaysOpen() {
    constexpr std::chrono::milliseconds longer = KeyboardHold::lockTime * 3;
    for (const auto end = m_clock.now() + longer; m_clock.now() < end;) {
        pollfd descriptor{m_manager->fileDescriptor(), POLLIN, 0};
        if (poll(&descriptor, 1, 10) > 0) m_manager->dispatch();
    }
}

void X11World::keyboardIsGivenBack() {
    m_holder->ungrabKeyboard();
    m_holder.reset();
}

void X11World::settle() {
    m_hands.finish();
    turnLoop();
}

void X11World::turnLoop() const {
    pollfd descriptor{m_manager->fileDescriptor(), POLLIN, 0};
    while (poll(&descriptor, 1, 0) > 0) m_manager->dispatch();
}
