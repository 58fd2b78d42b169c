// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "platform/press/ModifierTail.h"
#include "platform/run/RunWaiter.h"

/// Waits as RunWaiter does, and ends a tail of modifiers whose time comes meanwhile.
class TailWait final : public RunWait {
  public:
    /// `modifiersOfHands` tells of hands that want the keyboard for a combination of their own. What they
    /// hold themselves stays down as long, or it would be up for them too.
    TailWait(ModifierTail& tail, KeyOutput& output, RunWaiter& waiter, Clock& clock,
             std::function<KeycodeSet()> modifiersOfHands)
        : m_tail(tail),
          m_output(output),
          m_waiter(waiter),
          m_clock(clock),
          m_modifiersOfHands(std::move(modifiersOfHands)) {}

    Step<> waitUntil(Clock::Time deadline) override;

    /// Waits until the time of the tail is over, or until a hand holds a modifier, and releases it. Returns
    /// at once where there is none. After a halt it may still be down.
    Step<> endTail();
    /// Releases it if its time is over.
    void endTailInTime();
    /// Waits until its time is over, whatever the user wishes, and releases it: also where the run was
    /// cancelled, since whoever follows the modifiers would take the combination for unended.
    void rest();

  private:
    void release(const KeycodeSet& staying);

    ModifierTail& m_tail;
    KeyOutput& m_output;
    RunWaiter& m_waiter;
    Clock& m_clock;
    std::function<KeycodeSet()> m_modifiersOfHands;
};
