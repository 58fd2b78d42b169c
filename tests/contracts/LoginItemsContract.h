// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>

#include "platform/LoginItems.h"

/// The program's entry, and others who change it.
class LoginItemsWorld {
  public:
    virtual ~LoginItemsWorld() = default;

    virtual LoginItems& items() = 0;
    /// In the desktop's settings; the entry is there.
    virtual void userHidesEntry() = 0;
    /// The entry is for a program in another place from now on.
    virtual void otherProgramTakesEntry() = 0;
    virtual bool isOtherProgramsEntry() const = 0;
};

using MakeLoginItemsWorld = std::function<std::unique_ptr<LoginItemsWorld>()>;

/// What all LoginItems do.
class LoginItemsContract : public testing::TestWithParam<MakeLoginItemsWorld> {
  protected:
    using State = LoginItems::State;
    LoginItems& items() { return world->items(); }

    std::unique_ptr<LoginItemsWorld> world = GetParam()();
};

TEST_P(LoginItemsContract, areOffAtFirst) { EXPECT_EQ(items().state(), State::off); }

TEST_P(LoginItemsContract, areSwitchedOnAndOffAsOftenAsAsked) {
    for (const bool enable : {false, true, true, false, false, true}) {
        EXPECT_TRUE(items().install(enable));
        EXPECT_EQ(items().state(), enable ? State::on : State::off);
    }
}

TEST_P(LoginItemsContract, stayHiddenWhereTheUserHidThem) {
    EXPECT_TRUE(items().install(true));
    world->userHidesEntry();
    for (const bool enable : {true, false, true}) {
        EXPECT_EQ(items().state(), State::hiddenByUser);
        EXPECT_TRUE(items().install(enable));
    }
}

TEST_P(LoginItemsContract, comeBackWhereTheUserWishesItAnew) {
    for (const bool isThere : {true, false}) {
        EXPECT_TRUE(items().install(isThere));
        if (isThere) world->userHidesEntry();
        for (int again = 0; again < 2; ++again) {
            EXPECT_TRUE(items().reveal());
            EXPECT_EQ(items().state(), State::on);
        }
    }
}

TEST_P(LoginItemsContract, replaceAnotherProgramsEntry) {
    world->otherProgramTakesEntry();
    EXPECT_EQ(items().state(), State::off);
    EXPECT_TRUE(items().install(true));
    EXPECT_EQ(items().state(), State::on);
    EXPECT_FALSE(world->isOtherProgramsEntry());
}

TEST_P(LoginItemsContract, leaveAnotherProgramsEntryWhenSwitchedOff) {
    world->otherProgramTakesEntry();
    EXPECT_TRUE(items().install(false));
    EXPECT_TRUE(world->isOtherProgramsEntry());
}
