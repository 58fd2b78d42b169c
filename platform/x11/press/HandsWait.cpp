// SPDX-License-Identifier: MIT
#include "platform/x11/press/HandsWait.h"

namespace x11 {

namespace {

/// What applications need to take in that the user's keys are up.
constexpr std::chrono::milliseconds settleTime{10};
/// The watch tells of each key; servers inside a window may keep one back until they are asked something.
constexpr std::chrono::milliseconds betweenLooks{50};

}  // namespace

KeycodeSet HandsWait::modifierKeysAmong(const KeycodeSet& keys) const {
    return m_tools.keymap.keymap().keys().holdersOf(realModifiers, keys);
}

Step<> HandsWait::begin() {
    m_runStart = m_tools.clock.now();
    if (auto heeded = m_waiter.heedUser(); !heeded) return heeded;
    if (releaseLeftOvers()) {
        auto settled = m_waiter.waitUntil(m_tools.clock.now() + settleTime);
        if (!settled) return settled;
    }
    const auto up = untilUp({});
    return up ? Step<>() : Step<>(up.error());
}

bool HandsWait::releaseLeftOvers() {
    const KeycodeSet old = m_tools.watch.leftOvers(m_runStart);
    if (old.none()) return false;
    KeycodeSet left;
    for (const SlaveKeyboard& keyboard : m_tools.keymap.slaves()) {
        if (keyboard.isXtest) left |= keysDownOn(m_tools.connection.get(), keyboard);
    }
    left &= old;
    m_tools.connection.release(left);
    m_tools.connection.flush();
    return left.any();
}

Step<XkbComponents> HandsWait::untilUp(const KeycodeSet& held) {
    for (;;) {
        const auto state = m_tools.connection.synchronise();
        if (!state) return state.error();
        if (isHeld(state.value(), held)) {
            if (const auto waited = wait(held); !waited) return waited.error();
            continue;
        }
        const Clock::Time settled = settledAt();
        if (settled <= m_tools.clock.now()) return state.value();
        if (const auto waited = m_waiter.waitUntil(settled); !waited) return waited.error();
    }
}

Clock::Time HandsWait::settledAt() const {
    // A release that has just been may not have been told yet.
    if (m_tools.watch.handsHoldKeys()) m_tools.watch.drain();
    const auto release = m_tools.watch.lastHandRelease();
    return release ? *release + settleTime : Clock::Time::min();
}

Step<> HandsWait::wait(const KeycodeSet& held) {
    const KeycodeSet own = modifierKeysAmong(held);
    const KeycodeSet shared = own & keysOfHands(held);
    m_lifted = own & ~shared;
    m_tools.connection.release(m_lifted);
    m_tools.connection.flush();
    // What comes from now on through XTEST comes from other programs.
    m_tools.watch.settleOwnKeys();
    auto waited = waitUntilUp(held & ~m_lifted);
    if (!waited) return waited;
    m_lifted.reset();
    // The hand's release has ended what it shared.
    m_tools.connection.release(shared);
    m_tools.connection.press(own);
    m_tools.connection.flush();
    m_pacer.restart();
    return {};
}

Step<> HandsWait::waitUntilUp(const KeycodeSet& held) {
    for (;;) {
        // Before the question: what happens after it makes the watch readable.
        if (auto heeded = m_waiter.heedUser(); !heeded) return heeded;
        const auto state = m_tools.connection.synchronise();
        if (!state) return state.error();
        if (!isHeld(state.value(), held)) break;
        if (releaseLeftOvers()) continue;
        m_waiter.awaitNews(m_tools.clock.now() + betweenLooks);
    }
    return m_waiter.waitUntil(m_tools.clock.now() + settleTime);
}

bool HandsWait::isHeld(const XkbComponents& state, const KeycodeSet& held) const {
    // The devices are asked only where there is a sign: the state of the core keyboard forgets the keys of
    // one when another one speaks, and the watch may not have been told yet.
    if (state.depressed == 0 && state.baseLayout == 0 && !m_tools.watch.handsHoldKeys()) return false;
    const KeycodeSet down = keysOfHands(held);
    if (modifierKeysAmong(down).any()) return true;
    return state.baseLayout != 0 && down.any();
}

KeycodeSet HandsWait::modifiersOfHands(const KeycodeSet& held) const {
    if (!m_tools.watch.handsHoldKeys()) return {};
    return modifierKeysAmong(keysOfHands(held));
}

/// On the keyboard through which the run presses keys the server tells of no press of a key that is down
/// already: where another program holds any, it may hold the run's too. It is taken to hold those of a
/// combination that ends the run, and no others, with which it would be no such combination.
KeycodeSet HandsWait::keysOfHands(const KeycodeSet& held) const {
    const ModifierKeys& keys = m_tools.keymap.keymap().keys();
    KeycodeSet down;
    for (const SlaveKeyboard& keyboard : m_tools.keymap.slaves()) {
        const KeycodeSet here = keysDownOn(m_tools.connection.get(), keyboard);
        const KeycodeSet others = here & ~held;
        if (!keyboard.isXtest) {
            down |= here;
        } else if (modifierKeysAmong(others).any()) {
            down |= others | keys.holdersOf(m_tools.watch.modifiersOfStop(), here);
        }
    }
    return down;
}

}  // namespace x11
