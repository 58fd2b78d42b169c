// SPDX-License-Identifier: MIT
#include "cli/NoSession.h"

#include <poll.h>

#include <algorithm>
#include <chrono>

#include "platform/linux/SteadyClock.h"

/// A run that presses nothing.
class NoSession::Waiting : public InjectionSession {
  public:
    explicit Waiting(NoSession& owner) : m_owner(owner) {}

    Step<> stroke(std::uint32_t /*keyCode*/, std::uint32_t /*modifiers*/) override { return refused(); }
    Step<> text(std::string_view /*text*/, std::uint32_t /*modifiers*/) override { return refused(); }
    Step<> keyDown(const HeldKey& /*key*/) override { return refused(); }
    Step<> keyUp(const HeldKey& /*key*/) override { return refused(); }
    Step<> pause(double seconds) override {
        using std::chrono::milliseconds;
        constexpr double longest = 1e9;
        const auto end = m_clock.now() + std::chrono::duration_cast<Clock::Time::duration>(
                                             Clock::Seconds(std::min(seconds, longest)));
        while (!m_owner.isOver()) {
            const auto rest = std::chrono::ceil<milliseconds>(end - m_clock.now());
            if (rest <= rest.zero()) return {};
            pollfd waited{m_owner.signals().fileDescriptor(), POLLIN, 0};
            poll(&waited, 1, static_cast<int>(std::min(rest, milliseconds(1000)).count()));
        }
        return Halt::cancelled();
    }

  private:
    Step<> refused() { return Halt(m_owner.refusal()); }

    NoSession& m_owner;
    SteadyClock m_clock;
};

Result<std::unique_ptr<InjectionSession>> NoSession::Injector::open(const InjectionPlan& /*plan*/) {
    return std::unique_ptr<InjectionSession>(std::make_unique<Waiting>(m_owner));
}
