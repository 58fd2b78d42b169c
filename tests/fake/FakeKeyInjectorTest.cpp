// SPDX-License-Identifier: MIT
#include "platform/fake/FakeKeyInjector.h"

#include <gtest/gtest.h>

#include "platform/Modifiers.h"
#include "platform/fake/FakePlatform.h"

namespace {

class FakeKeyInjectorTest : public testing::Test {
  protected:
    std::unique_ptr<InjectionSession> open() {
        auto session = m_platform.keyInjector.open({});
        EXPECT_TRUE(session);
        return std::move(session).value();
    }
    FakeKeyInjector& injector() { return m_platform.keyInjector; }
    using Posted = std::vector<std::string>;

    FakePlatform m_platform;
};

TEST_F(FakeKeyInjectorTest, writesEachStepDown) {
    auto session = open();
    EXPECT_TRUE(session->stroke(36, modifier::shift | modifier::command));
    EXPECT_TRUE(session->text("hé", modifier::option));
    EXPECT_TRUE(session->pause(0.5));
    EXPECT_EQ(injector().postedKeys(), (Posted{"key 36 command shift", "text hé option", "pause 0.5"}));
}

TEST_F(FakeKeyInjectorTest, releasesAtTheEndWhatIsStillDown) {
    auto session = open();
    ASSERT_TRUE(session->keyDown(HeldModifier{modifier::shift}));
    ASSERT_TRUE(session->keyDown(HeldCode{0}));
    ASSERT_TRUE(session->keyUp(HeldCode{0}));
    session.reset();
    EXPECT_EQ(injector().postedKeys(), (Posted{"down shift", "down 0", "up 0", "up shift"}));
}

TEST_F(FakeKeyInjectorTest, pressesNothingAfterAnError) {
    const Error unplugged{"The keyboard is gone.", ""};
    auto session = open();
    injector().failNextCall(unplugged);
    EXPECT_EQ(session->stroke(0, 0).error(), Halt(unplugged));
    EXPECT_EQ(session->text("a", 0).error(), Halt(unplugged));
    EXPECT_EQ(injector().postedKeys(), Posted{});
}

TEST_F(FakeKeyInjectorTest, pressesNothingOnceTheUserHasCancelled) {
    auto session = open();
    injector().userCancels();
    EXPECT_EQ(session->stroke(0, 0).error(), Halt::cancelled());
    EXPECT_EQ(injector().postedKeys(), Posted{});
    injector().startPlayback();
    EXPECT_FALSE(injector().isCancelled());
    EXPECT_EQ(session->stroke(0, 0).error(), Halt::cancelled());
}

TEST_F(FakeKeyInjectorTest, escapeHeldDuringAPauseCancels) {
    auto session = open();
    m_platform.keyboard.userPresses(53);
    EXPECT_TRUE(session->pause(0.2));
    EXPECT_EQ(session->pause(0.2).error(), Halt::cancelled());
}

TEST_F(FakeKeyInjectorTest, aCodeWithoutAKeyPlaysNothingAndThePowerKeyIsAnError) {
    auto session = open();
    EXPECT_TRUE(session->stroke(66, 0));
    EXPECT_FALSE(session->stroke(127, 0));
    EXPECT_EQ(injector().postedKeys(), Posted{});
}

TEST_F(FakeKeyInjectorTest, hasOneSessionAtATime) {
    auto session = open();
    EXPECT_FALSE(m_platform.keyInjector.open({}));
    session.reset();
    EXPECT_TRUE(m_platform.keyInjector.open({}));
}

TEST_F(FakeKeyInjectorTest, strokesReachTheMonitorAfterTheRunWhereTheyAreKept) {
    std::vector<std::uint32_t> seen;
    ASSERT_TRUE(m_platform.eventMonitor.install([&seen](const KeyEvent& event) {
        if (event.kind == KeyEventKind::keyDown) seen.push_back(event.keyCode);
    }));
    m_platform.eventMonitor.setKeepsOwnStrokes(true);
    auto session = open();
    ASSERT_TRUE(session->stroke(1, 0));
    m_platform.desktop.turnLoop();
    EXPECT_EQ(seen, std::vector<std::uint32_t>{});
    session.reset();
    m_platform.desktop.turnLoop();
    EXPECT_EQ(seen, std::vector<std::uint32_t>{1});
}

}  // namespace
