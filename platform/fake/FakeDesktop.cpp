// SPDX-License-Identifier: MIT
#include "platform/fake/FakeDesktop.h"

#include <utility>

namespace {

constexpr Clock::Seconds escapeHold{0.3};

/// Sets a flag for a scope and puts the old value back.
class FlagScope {
  public:
    explicit FlagScope(bool& flag) : m_flag(flag), m_previous(std::exchange(flag, true)) {}
    ~FlagScope() { m_flag = m_previous; }
    FlagScope(const FlagScope&) = delete;
    FlagScope& operator=(const FlagScope&) = delete;

  private:
    bool& m_flag;
    bool m_previous;
};

}  // namespace

void FakeDesktop::turnLoop() {
    if (m_delivering && !m_withheld) return;
    const FlagScope delivering(m_delivering);
    while (!isRunning() && !m_queue.empty()) {
        const Waiting next = std::move(m_queue.front());
        m_queue.pop_front();
        next.make();
    }
}

std::uint32_t FakeDesktop::eventTime() const {
    const auto now = m_clock.now().time_since_epoch();
    return static_cast<std::uint32_t>(std::chrono::duration_cast<std::chrono::milliseconds>(now).count());
}

void FakeDesktop::startPlayback() {
    m_cancelled = false;
    if (m_escapeDownSince) m_escapeDownSince = m_clock.now();
}

void FakeDesktop::cancelPlayback() {
    if (std::exchange(m_cancelled, true)) return;
    std::erase_if(m_queue, [](const Waiting& waiting) { return waiting.isPlay; });
}

bool FakeDesktop::isCancelled() {
    if (m_escapeDownSince && m_clock.now() - *m_escapeDownSince >= escapeHold) cancelPlayback();
    return m_cancelled;
}

void FakeDesktop::escapeGoesDown() { m_escapeDownSince = m_clock.now(); }

void FakeDesktop::escapeGoesUp() {
    isCancelled();
    m_escapeDownSince.reset();
}
