// SPDX-License-Identifier: MIT
#include "cli/NoSession.h"

#include <algorithm>

#include "platform/linux/SteadyClock.h"

/// A run that presses nothing.
class NoSession::Waiting : public InjectionSession {
  public:
    explicit Waiting(NoSession& owner) : m_owner(owner) {}

    Step<> stroke(std::uint32_t /*keyCode*/, std::uint32_t /*modifiers*/) override { return refused(); }
    Step<> text(std::string_view /*text*/, std::uint32_t /*modifiers*/) override { return refused(); }
    Step<> keyDown(const HeldKey& /*key*/) override { return refused(); }
    Step<> keyUp(const HeldKey& /*key*/) override { return refused(); }
    /// A signal ends the process: nothing is held.
    Step<> pause(double seconds) override {
        constexpr double longest = 1e9;
        m_clock.sleepFor(Clock::Seconds(std::min(seconds, longest)));
        return {};
    }

  private:
    Step<> refused() { return Halt(m_owner.refusal()); }

    NoSession& m_owner;
    SteadyClock m_clock;
};

Result<std::unique_ptr<InjectionSession>> NoSession::Injector::open(const InjectionPlan& /*plan*/) {
    return std::unique_ptr<InjectionSession>(std::make_unique<Waiting>(m_owner));
}
