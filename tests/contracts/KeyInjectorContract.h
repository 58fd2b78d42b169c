// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "platform/KeyInjector.h"
#include "platform/Modifiers.h"
#include "support/Keys.h"

/// A desktop with a US layout and one application in front that takes text. No lock is on and no key down.
class KeyInjectorWorld {
  public:
    virtual ~KeyInjectorWorld() = default;

    virtual KeyInjector& injector() = 0;

    /// All text that has reached the application, UTF-8, Return as a line feed. At least `bytes` are waited
    /// for.
    virtual std::string typed(std::size_t bytes) = 0;
};

using KeyInjectorWorldFactory = std::unique_ptr<KeyInjectorWorld> (*)();

/// What platform/KeyInjector.h promises, told by the text that the application got.
class KeyInjectorContract : public testing::TestWithParam<KeyInjectorWorldFactory> {
  protected:
    void SetUp() override {
        m_world = GetParam()();
        ASSERT_NE(m_world, nullptr);
        m_world->injector().startPlayback();
    }

    KeyInjectorWorld& world() { return *m_world; }

    std::unique_ptr<InjectionSession> open() {
        auto session = world().injector().open({});
        EXPECT_TRUE(session) << session.error().message;
        return session ? std::move(session).value() : nullptr;
    }

    /// Types "z" behind everything that was done; what has arrived by then.
    std::string typedAndZ() {
        EXPECT_TRUE(open()->text("z", 0));
        return world().typed(1);
    }

  private:
    std::unique_ptr<KeyInjectorWorld> m_world;
};

TEST_P(KeyInjectorContract, strokesAndTextArriveInOrder) {
    auto session = open();
    EXPECT_TRUE(session->stroke(key::a, 0));
    EXPECT_TRUE(session->text("bc D!", 0));
    EXPECT_TRUE(session->stroke(key::b, modifier::shift));
    EXPECT_EQ(world().typed(7), "abc D!B");
}

TEST_P(KeyInjectorContract, aCodeWithoutAKeyPlaysNothing) {
    EXPECT_TRUE(open()->stroke(key::unassigned, 0));
    EXPECT_EQ(typedAndZ(), "z");
}

TEST_P(KeyInjectorContract, thePowerKeyIsAnErrorAndEndsTheRun) {
    auto session = open();
    const auto refused = session->stroke(key::power, 0);
    ASSERT_FALSE(refused);
    ASSERT_FALSE(refused.error().isCancelled());
    EXPECT_NE(refused.error().error->message, "");
    const auto later = session->stroke(key::a, 0);
    ASSERT_FALSE(later);
    EXPECT_EQ(later.error(), refused.error());
    session.reset();
    EXPECT_EQ(typedAndZ(), "z");
}

TEST_P(KeyInjectorContract, thePowerKeyIsNotHeldEither) {
    EXPECT_FALSE(open()->keyDown(HeldCode{key::power}));
}

TEST_P(KeyInjectorContract, aHeldModifierHoldsUntilItIsReleased) {
    auto session = open();
    ASSERT_TRUE(session->keyDown(HeldModifier{modifier::shift}));
    EXPECT_TRUE(session->stroke(key::a, 0));
    ASSERT_TRUE(session->keyUp(HeldModifier{modifier::shift}));
    EXPECT_TRUE(session->stroke(key::b, 0));
    EXPECT_EQ(world().typed(2), "Ab");
}

TEST_P(KeyInjectorContract, theEndOfARunReleasesWhatIsHeld) {
    auto session = open();
    ASSERT_TRUE(session->keyDown(HeldModifier{modifier::shift}));
    EXPECT_TRUE(session->stroke(key::a, 0));
    session.reset();
    EXPECT_TRUE(open()->stroke(key::b, 0));
    EXPECT_EQ(world().typed(2), "Ab");
}

TEST_P(KeyInjectorContract, thereIsOneSessionAtATime) {
    auto session = open();
    EXPECT_FALSE(world().injector().open({}));
    session.reset();
    EXPECT_TRUE(world().injector().open({}));
}

TEST_P(KeyInjectorContract, shortPausesAndNegativeOnesReturn) {
    auto session = open();
    EXPECT_TRUE(session->pause(0));
    EXPECT_TRUE(session->pause(-1));
    EXPECT_TRUE(session->pause(0.001));
    EXPECT_FALSE(world().injector().isCancelled());
}
