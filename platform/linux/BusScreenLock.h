// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/ScreenLock.h"
#include "platform/linux/BusAddresses.h"

class BusLoop;

/// The screen's lock as the login manager and the screen savers tell of it on the message buses. Connects in
/// the background; never locked where there is no bus.
class BusScreenLock : public ScreenLock {
  public:
    /// `session` is the identifier of the login session (XDG_SESSION_ID); empty for the caller's own.
    BusScreenLock(BusLoop& loop, const BusAddresses& addresses, const std::string& session = {});
    ~BusScreenLock() override;
    BusScreenLock(const BusScreenLock&) = delete;
    BusScreenLock& operator=(const BusScreenLock&) = delete;

    bool isLocked() const override;
    void observe(std::function<void(bool locked)> changed) override;

  private:
    struct Parts;

    void tell();

    BusLoop& m_loop;
    std::unique_ptr<Parts> m_parts;
    bool m_isToldLocked = false;
    std::vector<std::function<void(bool locked)>> m_observers;
};
