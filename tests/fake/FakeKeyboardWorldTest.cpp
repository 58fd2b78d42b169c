// SPDX-License-Identifier: MIT
#include "contracts/EventMonitorContract.h"
#include "contracts/HotKeysContract.h"
#include "contracts/KeyboardHoldContract.h"
#include "platform/fake/FakePlatform.h"

namespace {

/// The fake platform as a contract test sees a desktop.
class FakeKeyboardWorld : public HeldKeyboardWorld {
  public:
    EventMonitor& monitor() override { return m_platform.eventMonitor; }
    HotKeys& hotKeys() override { return m_platform.hotKeys; }
    void press(std::uint32_t keyCode) override { m_platform.keyboard.userPresses(keyCode); }
    void release(std::uint32_t keyCode) override { m_platform.keyboard.userReleases(keyCode); }
    void holdUntilRepeats(std::uint32_t keyCode, int atLeast) override {
        m_platform.keyboard.userHolds(keyCode, atLeast);
    }
    void setCapsLock(bool on) override { m_platform.keyboard.setCapsLock(on); }
    void otherClientGrabs(std::uint32_t keyCode, std::uint32_t modifiers) override {
        m_platform.hotKeys.otherProgramHolds(keyCode, modifiers);
    }
    void lockerTakesKeyboard() override { m_platform.eventMonitor.programHoldsKeyboard(true); }
    // Of no consequence, so that the fake knows none.
    void menuTakesKeyboard() override {}
    void menuStaysOpen() override {}
    void keyboardIsGivenBack() override { m_platform.eventMonitor.programHoldsKeyboard(false); }
    void settle() override { m_platform.desktop.turnLoop(); }

  private:
    FakePlatform m_platform;
};

std::unique_ptr<KeyboardWorld> makeWorld() { return std::make_unique<FakeKeyboardWorld>(); }

INSTANTIATE_TEST_SUITE_P(Fake, EventMonitorContract, testing::Values(&makeWorld));
INSTANTIATE_TEST_SUITE_P(Fake, KeyboardHoldContract, testing::Values(&makeWorld));
INSTANTIATE_TEST_SUITE_P(Fake, HotKeysContract, testing::Values(&makeWorld));

}  // namespace
