// SPDX-License-Identifier: MIT
#pragma once

#include "platform/run/Pacer.h"
#include "platform/run/RunWaiter.h"
#include "platform/x11/keymap/KeymapWatch.h"
#include "platform/x11/press/InjectionConnection.h"

namespace x11 {

/// Holds a run back while a hand holds a modifier key: one that is down on a real keyboard, or that another
/// program holds through XTEST.
///
/// Why waiting: a hot key that is pressed at human pace reaches its grab only if its modifiers stay as they
/// are, and a key that is released or pressed in a hand's place sticks.
class HandsWait {
  public:
    struct Tools {
        InjectionConnection& connection;
        KeymapWatch& keymap;
        RunWatch& watch;
        const Clock& clock;
    };
    HandsWait(const Tools& tools, RunWaiter& waiter, Pacer& pacer)
        : m_tools(tools), m_waiter(waiter), m_pacer(pacer) {}

    /// A run, or the part of it after a rest: releases what other programs have held through XTEST for so
    /// long before that no hand is meant any more, and waits as untilUp() does.
    Step<> begin();

    /// Returns 10 ms after the last hand is up, at once where that was before; the state then. `held` are the
    /// keys that the run itself holds down; those of them that are modifiers are up while it waits, or they
    /// would be part of the user's combination, unless they are: what a hand holds too would be up for the
    /// hand as well.
    Step<XkbComponents> untilUp(const KeycodeSet& held);
    /// Those of the run's keys that are up because a wait was not waited to its end.
    const KeycodeSet& lifted() const { return m_lifted; }

    /// The modifier keys that hands hold now, as of the last drain of the watch.
    KeycodeSet modifiersOfHands(const KeycodeSet& held) const;

  private:
    KeycodeSet modifierKeysAmong(const KeycodeSet& keys) const;
    bool releaseLeftOvers();
    KeycodeSet keysOfHands(const KeycodeSet& held) const;
    bool isHeld(const XkbComponents& state, const KeycodeSet& held) const;
    Clock::Time settledAt() const;
    Step<> wait(const KeycodeSet& held);
    Step<> waitUntilUp(const KeycodeSet& held);

    Tools m_tools;
    RunWaiter& m_waiter;
    Pacer& m_pacer;
    Clock::Time m_runStart = {};
    KeycodeSet m_lifted;
};

}  // namespace x11
