// SPDX-License-Identifier: MIT
#include "platform/monitor/LockAwareMonitor.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/Modifiers.h"
#include "platform/fake/FakePlatform.h"
#include "support/Keys.h"

namespace {

class LockAwareMonitorTest : public testing::Test {
  protected:
    LockAwareMonitorTest() {
        EXPECT_TRUE(m_monitor.install([this](const KeyEvent& event) {
            if (event.kind == KeyEventKind::keyDown) m_heard += event.character;
            if (event.kind == KeyEventKind::keyUp) m_heard += '^';
            if (event.kind == KeyEventKind::modifiersChanged) m_heard += '!';
        }));
        m_monitor.observeHold([this](bool held) { m_heard += held ? "<" : ">"; });
        m_monitor.setRecording(true);
    }

    void press(char character) {
        m_platform.eventMonitor.reportKeyPress({.keyCode = key::a, .character = character}, 0);
        m_platform.desktop.turnLoop();
    }
    /// What was delivered, in order.
    std::string heard() const { return m_heard; }

    FakePlatform m_platform;
    bool m_isLocked = false;
    std::string m_heard;
    LockAwareMonitor m_monitor{m_platform.eventMonitor, [this] { return m_isLocked; }};
};

TEST_F(LockAwareMonitorTest, deliversWhatIsTypedIntoWindows) {
    press('a');
    m_platform.eventMonitor.reportKeyUp({.kind = KeyEventKind::keyUp, .keyCode = key::a});
    m_platform.desktop.turnLoop();
    EXPECT_EQ(heard(), "a^");
}

TEST_F(LockAwareMonitorTest, keepsWhatIsTypedIntoALockerToItself) {
    press('a');
    m_isLocked = true;
    press('s');
    press('e');
    m_isLocked = false;
    press('b');
    EXPECT_EQ(heard(), "a<>b");
}

TEST_F(LockAwareMonitorTest, modifiersGoOn) {
    m_isLocked = true;
    m_platform.eventMonitor.reportModifiers(modifier::shift);
    m_platform.desktop.turnLoop();
    EXPECT_EQ(heard(), "!");
}

TEST_F(LockAwareMonitorTest, aRecordingBeginsOpen) {
    m_isLocked = true;
    press('s');
    m_monitor.setRecording(false);
    m_isLocked = false;
    m_monitor.setRecording(true);
    press('a');
    EXPECT_EQ(heard(), "<a");
    EXPECT_TRUE(m_platform.eventMonitor.isRecording());
}

}  // namespace
