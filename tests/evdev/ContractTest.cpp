// SPDX-License-Identifier: MIT
#include "contracts/EventMonitorContract.h"
#include "contracts/HotKeysContract.h"
#include "contracts/KeyboardHoldContract.h"
#include "evdev/EvdevWorld.h"
#include "platform/monitor/LockAwareMonitor.h"

namespace {

/// Where all keys are seen, a locker's too, and whether there is one can be asked.
class LockerWorld final : public HeldKeyboardWorld {
  public:
    EventMonitor& monitor() override { return m_monitor; }
    HotKeys& hotKeys() override { return m_world.hotKeys(); }
    void press(std::uint32_t keyCode) override { m_world.press(keyCode); }
    void release(std::uint32_t keyCode) override { m_world.release(keyCode); }
    void holdUntilRepeats(std::uint32_t keyCode, int atLeast) override {
        m_world.holdUntilRepeats(keyCode, atLeast);
    }
    void setCapsLock(bool on) override { m_world.setCapsLock(on); }
    void otherClientGrabs(std::uint32_t keyCode, std::uint32_t modifiers) override {
        m_world.otherClientGrabs(keyCode, modifiers);
    }
    void lockerTakesKeyboard() override { m_isLocked = true; }
    // Menus are no lockers.
    void menuTakesKeyboard() override {}
    void menuStaysOpen() override {}
    void keyboardIsGivenBack() override { m_isLocked = false; }
    void settle() override {
        m_world.settle();
        m_monitor.dispatch();
    }

  private:
    static constexpr std::chrono::milliseconds betweenLooks{5};

    EvdevWorld m_world;
    bool m_isLocked = false;
    LockAwareMonitor m_monitor{m_world.monitor(), [this] { return m_isLocked; }, [] { return 0U; },
                               betweenLooks};
};

std::unique_ptr<KeyboardWorld> makeLockerWorld() { return std::make_unique<LockerWorld>(); }

}  // namespace

INSTANTIATE_TEST_SUITE_P(Evdev, EventMonitorContract, testing::Values(&makeEvdevWorld));
INSTANTIATE_TEST_SUITE_P(Evdev, HotKeysContract, testing::Values(&makeEvdevWorld));
INSTANTIATE_TEST_SUITE_P(Evdev, KeyboardHoldContract, testing::Values(&makeLockerWorld));
