// SPDX-License-Identifier: MIT
#include "contracts/ScreenLockContract.h"
#include "platform/fake/FakePlatform.h"

namespace {

class FakeScreenLockWorld : public ScreenLockWorld {
  public:
    ScreenLock& lock() override { return m_platform.screenLock; }
    void userLocks() override { m_platform.screenLock.userLocksScreen(); }
    void userUnlocks() override { m_platform.screenLock.userUnlocksScreen(); }

  private:
    FakePlatform m_platform;
};

INSTANTIATE_TEST_SUITE_P(InMemory, ScreenLockContract,
                         testing::Values([]() -> std::unique_ptr<ScreenLockWorld> {
                             return std::make_unique<FakeScreenLockWorld>();
                         }));

}  // namespace
