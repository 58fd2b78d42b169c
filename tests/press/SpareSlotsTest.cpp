// SPDX-License-Identifier: MIT
#include "platform/press/SpareSlots.h"

#include <gtest/gtest.h>

namespace {

using namespace std::chrono_literals;
using Bindings = std::vector<SpareBinding>;

class SpareSlotsTest : public testing::Test {
  protected:
    SpareSlotsTest() { slots.reset({93, 97}, 2); }

    void bind(const std::vector<char32_t>& wanted) { slots.apply(slots.plan(wanted)); }

    SpareSlots slots;
    Clock::Time start = Clock::Time() + 1h;
};

TEST_F(SpareSlotsTest, freeLevelsAreTakenKeyByKeyAtOnce) {
    const auto plan = slots.plan({U'a', U'b', U'c'});
    EXPECT_EQ(plan.bindings, (Bindings{{{93, 0}, U'a'}, {{93, 1}, U'b'}, {{97, 0}, U'c'}}));
    EXPECT_FALSE(plan.notBefore);
    EXPECT_EQ(slots.capacity(), 4U);
}

TEST_F(SpareSlotsTest, aPlanChangesNothingBeforeItIsApplied) {
    const auto plan = slots.plan({U'a'});
    EXPECT_FALSE(slots.find(U'a'));
    slots.apply(plan);
    EXPECT_EQ(slots.find(U'a'), (SpareSlot{93, 0}));
}

TEST_F(SpareSlotsTest, whatIsBoundAlreadyIsNotBoundAgain) {
    bind({U'a', U'b'});
    EXPECT_EQ(slots.plan({U'b', U'a', U'a'}).bindings, Bindings{});
    EXPECT_EQ(slots.plan({U'a', U'c', U'c'}).bindings, (Bindings{{{97, 0}, U'c'}}));
}

TEST_F(SpareSlotsTest, theLeastRecentlyUsedGivesWayAfterItsRest) {
    bind({U'a', U'b', U'c', U'd'});
    slots.markUsed(U'b', start);
    slots.markUsed(U'a', start + 1s);
    slots.markUsed(U'c', start + 2s);
    slots.markUsed(U'd', start + 3s);
    const auto plan = slots.plan({U'e'});
    EXPECT_EQ(plan.bindings, (Bindings{{{93, 1}, U'e'}}));
    EXPECT_EQ(plan.notBefore, start + 100ms);
    slots.apply(plan);
    EXPECT_FALSE(slots.find(U'b'));
    EXPECT_EQ(slots.find(U'e'), (SpareSlot{93, 1}));
}

TEST_F(SpareSlotsTest, whatIsWantedTooDoesNotGiveWay) {
    bind({U'a', U'b', U'c', U'd'});
    slots.markUsed(U'd', start);
    EXPECT_EQ(slots.plan({U'a', U'b', U'e'}).bindings, (Bindings{{{97, 0}, U'e'}}));
}

TEST_F(SpareSlotsTest, whatFindsNoSlotIsLeftOut) {
    EXPECT_EQ(slots.plan({U'a', U'b', U'c', U'd', U'e'}).bindings.size(), 4U);
}

TEST_F(SpareSlotsTest, restEndsAfterTheLastUse) {
    bind({U'a', U'b'});
    EXPECT_FALSE(slots.restUntil());
    slots.markUsed(U'a', start + 1s);
    slots.markUsed(U'b', start);
    EXPECT_EQ(slots.restUntil(), start + 1100ms);
}

}  // namespace
