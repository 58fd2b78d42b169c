// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "platform/ScreenLock.h"
#include "platform/fake/FakeDesktop.h"

/// The lock of the fake desktop's screen.
class FakeScreenLock : public ScreenLock {
  public:
    explicit FakeScreenLock(FakeDesktop& desktop) : m_desktop(desktop) {}

    bool isLocked() const override { return m_desktop.isScreenLocked(); }
    void observe(std::function<void(bool locked)> changed) override;

    void userLocksScreen() { setLocked(true); }
    void userUnlocksScreen() { setLocked(false); }

  private:
    void setLocked(bool locked);

    FakeDesktop& m_desktop;
    std::vector<std::function<void(bool locked)>> m_observers;
};
