// SPDX-License-Identifier: MIT
#include "app/check/HotKeyProbe.h"

#include <gtest/gtest.h>

#include "platform/Modifiers.h"
#include "platform/fake/FakePlatform.h"
#include "support/Keys.h"

namespace {

class HotKeyProbeTest : public testing::Test {
  protected:
    HotKeyProbeTest() {
        platform.settings.put("notFirstRun", std::int64_t{1});
        choose("record", key::r);
    }

    void choose(const std::string& name, std::uint32_t keyCode) {
        platform.settings.put(name + "Code", static_cast<std::int64_t>(keyCode));
        platform.settings.put(name + "Flags", controlflag::control | controlflag::command);
    }
    HotKeyFact recordFact(const std::vector<std::string>& ours = {}) {
        return probeHotKeys(platform.settings, platform.hotKeys, platform.keyboardLayout, ours).front();
    }

    FakePlatform platform;
};

TEST_F(HotKeyProbeTest, namesTheCombinationAndTakesNothing) {
    const HotKeyFact fact = recordFact();
    EXPECT_EQ(fact.combination, "Ctrl+Super+R");
    EXPECT_EQ(fact.finding, HotKeyFinding::free);
    EXPECT_TRUE(platform.hotKeys.registered().empty());
}

TEST_F(HotKeyProbeTest, whatAnotherProgramHoldsIsTaken) {
    platform.hotKeys.otherProgramHolds(key::r, modifier::control | modifier::command);
    EXPECT_EQ(recordFact().finding, HotKeyFinding::taken);
    EXPECT_EQ(recordFact({"stop"}).finding, HotKeyFinding::taken);
}

TEST_F(HotKeyProbeTest, whatCannotBeHadSaysWhy) {
    const Error why = {"R cannot be used: nobody could type it any more.", "Add Ctrl, Alt or Super."};
    platform.hotKeys.failNextCall(why);
    const HotKeyFact fact = recordFact();
    EXPECT_EQ(fact.finding, HotKeyFinding::taken);
    EXPECT_EQ(fact.why, why);
}

TEST_F(HotKeyProbeTest, whatTheRunningProgramHoldsIsOurs) {
    platform.hotKeys.otherProgramHolds(key::r, modifier::control | modifier::command);
    EXPECT_EQ(recordFact({"stop", "record"}).finding, HotKeyFinding::ours);
}

TEST_F(HotKeyProbeTest, whatIsNotChosenIsUnset) {
    const auto facts = probeHotKeys(platform.settings, platform.hotKeys, platform.keyboardLayout, {});
    ASSERT_EQ(facts.size(), 4U);
    EXPECT_EQ(facts[2].finding, HotKeyFinding::unset);
    EXPECT_EQ(facts[2].combination, "");
}

TEST_F(HotKeyProbeTest, inTheFirstRunTheProgramHasWhatIsNotStoredYet) {
    platform.hotKeys.otherProgramHolds(key::p, modifier::control | modifier::command);
    const auto facts =
        probeHotKeys(platform.settings, platform.hotKeys, platform.keyboardLayout, {"record", "play"});
    EXPECT_EQ(facts[2].combination, "Ctrl+Super+P");
    EXPECT_EQ(facts[2].finding, HotKeyFinding::ours);
    EXPECT_EQ(facts[0].combination, "Ctrl+Super+R");
    EXPECT_EQ(facts[1].finding, HotKeyFinding::unset);
}

/// Who asks before the first start is told of what that will have.
TEST_F(HotKeyProbeTest, beforeTheFirstStartThoseOfThatAreLookedUp) {
    const FakePlatform fresh;
    const auto facts = probeHotKeys(fresh.settings, platform.hotKeys, platform.keyboardLayout, {});
    EXPECT_EQ(facts[2].combination, "Ctrl+Super+P");
    EXPECT_EQ(facts[2].finding, HotKeyFinding::free);
}

TEST_F(HotKeyProbeTest, twoOfOneCombinationAreNotInEachOthersWay) {
    choose("stop", key::r);
    const auto facts = probeHotKeys(platform.settings, platform.hotKeys, platform.keyboardLayout, {});
    EXPECT_EQ(facts[1].finding, HotKeyFinding::free);
}

}  // namespace
