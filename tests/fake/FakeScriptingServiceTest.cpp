// SPDX-License-Identifier: MIT
#include "platform/fake/FakeScriptingService.h"

#include <gtest/gtest.h>

#include "platform/Modifiers.h"
#include "platform/fake/FakePlatform.h"
#include "support/Keys.h"

namespace {

class FakeScriptingServiceTest : public testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(m_platform.eventMonitor.install([this](const KeyEvent& event) {
            if (event.kind == KeyEventKind::keyDown) m_log.push_back("down " + std::to_string(event.keyCode));
        }));
        m_platform.hotKeys.install([this](HotKeyId id) { m_log.push_back("pressed " + std::to_string(id)); },
                                   {});
    }
    FakeScriptingService& scripting() { return m_platform.scripting; }
    FakeKeyboard& user() { return m_platform.keyboard; }
    using Log = std::vector<std::string>;

    FakePlatform m_platform;
    Log m_log;
};

TEST_F(FakeScriptingServiceTest, remembersEveryTextAlsoOfScriptsThatFail) {
    int hooks = 0;
    scripting().duringEachRun([&hooks] { ++hooks; });
    scripting().failNextCall({"Expected end of line.", ""});
    scripting().run("first");
    scripting().run("second");
    EXPECT_EQ(scripting().runs(), (Log{"first", "second"}));
    EXPECT_EQ(hooks, 1);
}

TEST_F(FakeScriptingServiceTest, aRunInsideARunDoesNothing) {
    scripting().duringEachRun([this] { scripting().run("inner"); });
    scripting().run("outer");
    EXPECT_EQ(scripting().runs(), Log{"outer"});
}

TEST_F(FakeScriptingServiceTest, whatTheUserDoesDuringARunComesAfterIt) {
    m_platform.hotKeys.request({1, "record", key::f5, 0, false});
    scripting().duringEachRun([this] {
        user().userPresses(key::a);
        user().userPresses(key::f5);
        m_log.push_back("run ends");
    });
    scripting().run("");
    user().userReleases(key::a);
    EXPECT_EQ(m_log, (Log{"run ends", "down 0", "pressed 1"}));
}

TEST_F(FakeScriptingServiceTest, strokesOfTheScriptAreNotTheUsersUnlessKept) {
    scripting().duringEachRun([this] { user().scriptStrikes(key::a, 0); });
    scripting().run("");
    m_platform.desktop.turnLoop();
    EXPECT_EQ(m_log, Log{});

    m_platform.eventMonitor.setKeepsOwnStrokes(true);
    scripting().run("");
    m_platform.desktop.turnLoop();
    EXPECT_EQ(m_log, Log{"down 0"});
}

TEST_F(FakeScriptingServiceTest, strokesOfTheScriptFireNoHotKey) {
    m_platform.hotKeys.request({1, "record", key::f5, 0, false});
    scripting().duringEachRun([this] { user().scriptStrikes(key::f5, 0); });
    scripting().run("");
    m_platform.desktop.turnLoop();
    EXPECT_EQ(m_log, Log{});
}

TEST_F(FakeScriptingServiceTest, aHotKeyThatCancelsEndsThePlayback) {
    m_platform.hotKeys.request({2, "stop", key::f5, 0, true});
    scripting().startPlayback();
    user().userPresses(key::f5);
    user().userReleases(key::f5);
    EXPECT_FALSE(scripting().isCancelled());
    scripting().duringEachRun([this] { user().userPresses(key::f5); });
    scripting().run("");
    EXPECT_TRUE(scripting().isCancelled());
    scripting().startPlayback();
    EXPECT_FALSE(scripting().isCancelled());
}

TEST_F(FakeScriptingServiceTest, escapeCancelsOnceItIsHeldForThreeTenthsOfASecond) {
    scripting().startPlayback();
    user().userPresses(key::escape);
    m_platform.clock.advance(Clock::Seconds(0.29));
    EXPECT_FALSE(scripting().isCancelled());
    m_platform.clock.advance(Clock::Seconds(0.01));
    EXPECT_TRUE(scripting().isCancelled());
}

TEST_F(FakeScriptingServiceTest, escapeTypedShortlyDoesNotCancel) {
    scripting().startPlayback();
    user().userPresses(key::escape);
    user().userReleases(key::escape);
    m_platform.clock.advance(Clock::Seconds(1));
    EXPECT_FALSE(scripting().isCancelled());
}

TEST_F(FakeScriptingServiceTest, nothingOfALockedScreenIsDelivered) {
    m_platform.hotKeys.request({1, "record", key::f5, 0, false});
    user().lockScreen(true);
    user().userPresses(key::a);
    user().userPresses(key::f5);
    EXPECT_EQ(m_log, Log{});
}

}  // namespace
