// SPDX-License-Identifier: MIT
#include "platform/monitor/LockAwareMonitor.h"

#include <gtest/gtest.h>
#include <poll.h>

#include <string>

#include "platform/Modifiers.h"
#include "platform/fake/FakePlatform.h"
#include "support/Keys.h"

namespace {

class LockAwareMonitorTest : public testing::Test {
  protected:
    static constexpr std::chrono::milliseconds rest{5};

    LockAwareMonitorTest() {
        EXPECT_TRUE(m_monitor.install([this](const KeyEvent& event) {
            if (event.kind == KeyEventKind::keyDown) m_heard += event.character;
            if (event.kind == KeyEventKind::keyUp) m_heard += '^';
            if (event.kind == KeyEventKind::modifiersChanged) m_heard += '!';
        }));
        m_monitor.observeHold([this](bool held) { m_heard += held ? "<" : ">"; });
        m_monitor.setRecording(true);
    }

    /// It comes when the loop turns.
    void pressed(char character) {
        m_platform.eventMonitor.reportKeyPress({.keyCode = key::a, .character = character}, 0);
    }
    void press(char character) {
        pressed(character);
        m_platform.desktop.turnLoop();
    }
    void wait(int milliseconds) { m_platform.clock.advance(std::chrono::milliseconds(milliseconds)); }
    bool isWoken(std::chrono::milliseconds patience) const {
        pollfd entry{.fd = m_monitor.fileDescriptor(), .events = POLLIN, .revents = 0};
        return poll(&entry, 1, static_cast<int>(patience.count())) > 0;
    }
    /// Waits for the time of the next look.
    void look() {
        EXPECT_TRUE(isWoken(std::chrono::seconds(10)));
        m_monitor.dispatch();
    }
    /// What was delivered, in order.
    std::string heard() const { return m_heard; }

    FakePlatform m_platform;
    bool m_isLocked = false;
    std::string m_heard;
    LockAwareMonitor m_monitor{m_platform.eventMonitor, [this] { return m_isLocked; },
                               [this] { return m_platform.desktop.eventTime(); }, rest};
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

TEST_F(LockAwareMonitorTest, tellsOfALockerWithoutAnyKey) {
    m_isLocked = true;
    look();
    look();
    m_isLocked = false;
    look();
    EXPECT_EQ(heard(), "<>");
}

TEST_F(LockAwareMonitorTest, whatWasTypedIntoALockerAndComesWhenItHasGoneIsKeptBack) {
    m_isLocked = true;
    press('s');
    pressed('e');
    wait(100);
    pressed('c');
    wait(100);
    m_isLocked = false;
    pressed('a');
    wait(10);
    m_platform.desktop.turnLoop();
    wait(1000);
    press('b');
    EXPECT_EQ(heard(), "<>ab");
}

TEST_F(LockAwareMonitorTest, soItIsWhereTheTimerHasSeenIt) {
    m_isLocked = true;
    look();
    pressed('e');
    wait(100);
    m_isLocked = false;
    look();
    m_platform.desktop.turnLoop();
    press('a');
    EXPECT_EQ(heard(), "<>a");
}

TEST_F(LockAwareMonitorTest, looksForNoneAfterTheRecording) {
    m_monitor.setRecording(false);
    m_isLocked = true;
    look();
    EXPECT_FALSE(isWoken(2 * rest));
    EXPECT_EQ(heard(), "");
    m_monitor.setRecording(true);
    look();
    EXPECT_EQ(heard(), "<");
}

TEST_F(LockAwareMonitorTest, modifiersGoOn) {
    m_isLocked = true;
    m_platform.eventMonitor.reportModifiers(modifier::shift);
    m_platform.desktop.turnLoop();
    EXPECT_EQ(heard(), "!");
}

TEST_F(LockAwareMonitorTest, modifierKeysThatAreShownAreKeptBack) {
    std::vector<std::uint32_t> shown;
    ASSERT_TRUE(m_monitor.install([&](const KeyEvent& event) {
        if (event.kind == KeyEventKind::modifierKeyDown) shown.push_back(event.keyCode);
    }));
    m_monitor.setShowsModifierKeys(true);
    const auto tap = [this](std::uint32_t keyCode) {
        m_platform.keyboard.userPresses(keyCode);
        m_platform.keyboard.userReleases(keyCode);
    };
    tap(key::super);
    m_isLocked = true;
    tap(key::shift);
    m_isLocked = false;
    tap(key::control);
    EXPECT_EQ(shown, (std::vector<std::uint32_t>{key::super, key::control}));
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
