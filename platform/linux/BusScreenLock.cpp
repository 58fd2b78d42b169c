// SPDX-License-Identifier: MIT
#include "platform/linux/BusScreenLock.h"

#include <utility>

#include "platform/linux/LoginSessionLock.h"
#include "platform/linux/ScreenSaverWatch.h"

struct BusScreenLock::Parts {
    Parts(BusLoop& loop, const BusAddresses& addresses, const std::string& session)
        : login(loop, addresses.system, session.empty() ? "auto" : session),
          savers(loop, addresses.session) {}

    bool isLocked() const { return login.isLocked() || savers.isActive(); }

    LoginSessionLock login;
    ScreenSaverWatch savers;
};

BusScreenLock::BusScreenLock(BusLoop& loop, const BusAddresses& addresses, const std::string& session)
    : m_loop(loop), m_parts(std::make_unique<Parts>(loop, addresses, session)) {
    m_loop.observe([this] { tell(); });
}

BusScreenLock::~BusScreenLock() = default;

bool BusScreenLock::isLocked() const {
    m_loop.update();
    // What was taken in here is told by the loop all the same.
    if (m_parts->isLocked() != m_isToldLocked) m_loop.wake();
    return m_parts->isLocked();
}

void BusScreenLock::observe(std::function<void(bool locked)> changed) {
    m_observers.push_back(std::move(changed));
}

void BusScreenLock::tell() {
    const bool locked = m_parts->isLocked();
    if (std::exchange(m_isToldLocked, locked) == locked) return;
    for (const auto& changed : m_observers) changed(locked);
}
