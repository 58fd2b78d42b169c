// SPDX-License-Identifier: MIT
#pragma once

#include "contracts/KeyboardContract.h"
#include "support/Child.h"

/// What platform/EventMonitor.h promises of a recording while another program has the keyboard to itself.
class KeyboardHoldContract : public KeyboardContract {
  protected:
    void SetUp() override {
        KeyboardContract::SetUp();
        world().monitor().observeHold([this](bool held) { m_told.push_back(held); });
        world().monitor().setRecording(true);
    }

    HeldKeyboardWorld& holders() { return static_cast<HeldKeyboardWorld&>(world()); }

    /// Waits until that is all that has been told of who has the keyboard.
    void awaitTold(const std::vector<bool>& expected) {
        const auto isTold = [&] {
            world().settle();
            return m_told == expected;
        };
        ASSERT_TRUE(eventually(isTold)) << m_told.size() << " were told";
    }
    /// Waits until so many key-downs have been delivered: these, and later ones that came with them.
    Log downs(std::size_t count) {
        Log found;
        const auto haveCome = [&] {
            for (const std::string& line : delivered()) {
                if (line.starts_with("down")) found.push_back(line);
            }
            return found.size() >= count;
        };
        EXPECT_TRUE(eventually(haveCome));
        return found;
    }
    const std::vector<bool>& told() const { return m_told; }

  private:
    std::vector<bool> m_told;
};

TEST_P(KeyboardHoldContract, whatIsTypedIntoALockerIsNotDelivered) {
    tap(key::a);
    EXPECT_EQ(downs(1), Log{"down 0 a"});
    holders().lockerTakesKeyboard();
    // Before it is known what it is, and then.
    tap(key::s);
    awaitTold({true});
    tap(key::s);
    world().settle();
    holders().keyboardIsGivenBack();
    awaitTold({true, false});
    tap(key::a);
    EXPECT_EQ(downs(1), Log{"down 0 a"});
}

TEST_P(KeyboardHoldContract, aMenuLosesNoKey) {
    holders().menuTakesKeyboard();
    tap(key::a);
    holders().menuStaysOpen();
    tap(key::s);
    world().settle();
    holders().keyboardIsGivenBack();
    tap(key::a);
    EXPECT_EQ(downs(3), (Log{"down 0 a", "down 1 s", "down 0 a"}));
    EXPECT_EQ(told(), std::vector<bool>());
}

TEST_P(KeyboardHoldContract, theNextRecordingIsOpen) {
    holders().lockerTakesKeyboard();
    awaitTold({true});
    world().monitor().setRecording(false);
    holders().keyboardIsGivenBack();
    world().monitor().setRecording(true);
    tap(key::a);
    EXPECT_EQ(downs(1), Log{"down 0 a"});
    // It is told of its own holds.
    holders().lockerTakesKeyboard();
    awaitTold({true, true});
    holders().keyboardIsGivenBack();
    awaitTold({true, true, false});
}
