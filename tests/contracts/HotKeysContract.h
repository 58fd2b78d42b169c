// SPDX-License-Identifier: MIT
#pragma once

#include "contracts/KeyboardContract.h"
#include "platform/KeyCodes.h"

/// What platform/HotKeys.h promises, and the one order with the monitor.
class HotKeysContract : public KeyboardContract {
  protected:
    static constexpr HotKeyId record = 1;
    static constexpr HotKeyId play = 3;
    static constexpr std::uint32_t controlSuper = modifier::control | modifier::command;
};

TEST_P(HotKeysContract, anIdThatAskedForNothingIsUnset) {
    EXPECT_EQ(status(play), HotKeyStatus::unset);
    EXPECT_EQ(world().hotKeys().state(play).error, std::nullopt);
}

TEST_P(HotKeysContract, aPressAndItsReleaseComeHereAndOnlyTheModifiersGoToTheMonitor) {
    request(play, "play", contractkey::p, controlSuper);
    ASSERT_EQ(status(play), HotKeyStatus::registered);
    press({contractkey::control, contractkey::super, contractkey::p});
    release({contractkey::p, contractkey::super, contractkey::control});
    EXPECT_EQ(delivered(), (Log{"modifiers 0x1000", "modifiers 0x1100", "pressed 3", "released 3",
                                "modifiers 0x1000", "modifiers 0x0"}));
}

TEST_P(HotKeysContract, theKeyAloneOrWithOtherModifiersIsAnOrdinaryKey) {
    request(play, "play", contractkey::p, controlSuper);
    tap(contractkey::p);
    EXPECT_EQ(delivered(), (Log{"down 35 p", "up 35"}));
    press({contractkey::control});
    tap(contractkey::p);
    release({contractkey::control});
    EXPECT_EQ(deliveredWithout("modifiers"), (Log{"down 35 p", "up 35"}));
    press({contractkey::control, contractkey::super, contractkey::shift});
    tap(contractkey::p);
    release({contractkey::control, contractkey::super, contractkey::shift});
    EXPECT_EQ(deliveredWithout("modifiers"), (Log{"down 35 P", "up 35"}));
}

TEST_P(HotKeysContract, theReleaseIsKnownByTheKeyWhateverTheModifiersAreByThen) {
    request(play, "play", contractkey::p, controlSuper);
    press({contractkey::control, contractkey::super, contractkey::p});
    release({contractkey::control, contractkey::super, contractkey::p});
    EXPECT_EQ(delivered(), (Log{"modifiers 0x1000", "modifiers 0x1100", "pressed 3", "modifiers 0x100",
                                "modifiers 0x0", "released 3"}));
}

TEST_P(HotKeysContract, aHeldHotKeyPressesOnce) {
    request(play, "play", contractkey::f5, 0);
    press({contractkey::f5});
    world().settle();
    EXPECT_EQ(delivered(), (Log{"pressed 3"}));
    // Another key that repeats proves that the time for repeats has passed.
    world().holdUntilRepeats(contractkey::a, 2);
    release({contractkey::a, contractkey::f5});
    const Log log = deliveredWithout("repeat");
    EXPECT_EQ(log, (Log{"down 0 a", "up 0", "released 3"}));
}

TEST_P(HotKeysContract, eventsBeforeAHotKeyAreDeliveredBeforeIt) {
    request(play, "play", contractkey::f5, 0);
    tap(contractkey::a);
    tap(contractkey::f5);
    tap(contractkey::s);
    EXPECT_EQ(delivered(), (Log{"down 0 a", "up 0", "pressed 3", "released 3", "down 1 s", "up 1"}));
}

TEST_P(HotKeysContract, capsLockDoesNotMatter) {
    request(play, "play", contractkey::p, controlSuper);
    world().setCapsLock(true);
    delivered();
    press({contractkey::control, contractkey::super});
    tap(contractkey::p);
    release({contractkey::super, contractkey::control});
    EXPECT_EQ(deliveredWithout("modifiers"), (Log{"pressed 3", "released 3"}));
}

TEST_P(HotKeysContract, capsLockAndFunctionKeyInARequestAreIgnored) {
    request(play, "play", contractkey::p, controlSuper | modifier::functionKey | modifier::capsLock);
    ASSERT_EQ(status(play), HotKeyStatus::registered);
    press({contractkey::control, contractkey::super});
    tap(contractkey::p);
    release({contractkey::super, contractkey::control});
    EXPECT_EQ(deliveredWithout("modifiers"), (Log{"pressed 3", "released 3"}));
}

TEST_P(HotKeysContract, noKeyLeavesTheHotKeyUnset) {
    request(play, "play", keycode::none, 0);
    EXPECT_EQ(status(play), HotKeyStatus::unset);
    EXPECT_EQ(world().hotKeys().state(play).error, std::nullopt);
    tap(contractkey::p);
    EXPECT_EQ(delivered(), (Log{"down 35 p", "up 35"}));
}

TEST_P(HotKeysContract, aRequestTakesThePlaceOfWhatTheIdHad) {
    request(play, "play", contractkey::p, controlSuper);
    request(play, "play", contractkey::f5, 0);
    EXPECT_EQ(status(play), HotKeyStatus::registered);
    press({contractkey::control, contractkey::super});
    tap(contractkey::p);
    release({contractkey::super, contractkey::control});
    EXPECT_EQ(deliveredWithout("modifiers"), (Log{"down 35 p", "up 35"}));
    tap(contractkey::f5);
    EXPECT_EQ(delivered(), (Log{"pressed 3", "released 3"}));
}

TEST_P(HotKeysContract, aRequestForNoKeyGivesTheOldCombinationFree) {
    request(play, "play", contractkey::f5, 0);
    request(play, "play", keycode::none, 0);
    EXPECT_EQ(status(play), HotKeyStatus::unset);
    tap(contractkey::f5);
    EXPECT_EQ(delivered(), (Log{"down 96", "up 96"}));
}

TEST_P(HotKeysContract, aWithdrawnCombinationIsAnOrdinaryKeyAgain) {
    request(play, "play", contractkey::f5, 0);
    world().hotKeys().withdraw(play);
    world().settle();
    EXPECT_EQ(status(play), HotKeyStatus::unset);
    tap(contractkey::f5);
    EXPECT_EQ(delivered(), (Log{"down 96", "up 96"}));
}

TEST_P(HotKeysContract, withdrawingAnIdWithoutACombinationIsNothing) {
    request(record, "record", contractkey::f5, 0);
    world().hotKeys().withdraw(play);
    tap(contractkey::f5);
    EXPECT_EQ(delivered(), (Log{"pressed 1", "released 1"}));
}

TEST_P(HotKeysContract, theFirstOfTwoWithOneCombinationKeepsIt) {
    request(record, "record", contractkey::p, controlSuper);
    request(play, "play", contractkey::p, controlSuper);
    EXPECT_EQ(status(record), HotKeyStatus::registered);
    ASSERT_EQ(status(play), HotKeyStatus::refused);
    press({contractkey::control, contractkey::super});
    tap(contractkey::p);
    release({contractkey::super, contractkey::control});
    EXPECT_EQ(deliveredWithout("modifiers"), (Log{"pressed 1", "released 1"}));
}

TEST_P(HotKeysContract, aCombinationOfAnotherProgramIsRefusedByAnErrorThatNamesIt) {
    world().otherClientGrabs(contractkey::p, controlSuper);
    request(play, "play", contractkey::p, controlSuper);
    const HotKeyState state = world().hotKeys().state(play);
    ASSERT_EQ(state.status, HotKeyStatus::refused);
    ASSERT_TRUE(state.error.has_value());
    for (const char* word : {"Ctrl", "Super", "P"}) {
        EXPECT_NE(state.error->message.find(word), std::string::npos) << state.error->message;
    }
}

TEST_P(HotKeysContract, aRefusalTouchesNoOtherHotKeyAndIsUndoneByTheNextRequest) {
    world().otherClientGrabs(contractkey::p, controlSuper);
    request(record, "record", contractkey::f5, 0);
    request(play, "play", contractkey::p, controlSuper);
    EXPECT_EQ(status(record), HotKeyStatus::registered);
    request(play, "play", contractkey::r, controlSuper);
    EXPECT_EQ(status(play), HotKeyStatus::registered);
    EXPECT_EQ(world().hotKeys().state(play).error, std::nullopt);
    tap(contractkey::f5);
    EXPECT_EQ(delivered(), (Log{"pressed 1", "released 1"}));
}

TEST_P(HotKeysContract, theObserverIsToldWhatBecameOfARequest) {
    std::vector<std::pair<HotKeyId, HotKeyStatus>> seen;
    world().hotKeys().observe(
        [&seen](HotKeyId id, const HotKeyState& state) { seen.emplace_back(id, state.status); });
    request(play, "play", contractkey::f5, 0);
    ASSERT_FALSE(seen.empty());
    EXPECT_EQ(seen.back(), std::make_pair(play, HotKeyStatus::registered));
    world().hotKeys().withdraw(play);
    world().settle();
    EXPECT_EQ(seen.back(), std::make_pair(play, HotKeyStatus::unset));
    world().hotKeys().observe({});
}

TEST_P(HotKeysContract, whileWithheldHotKeysAreDropped) {
    request(play, "play", contractkey::f5, 0);
    world().monitor().setWithheld(true);
    tap(contractkey::f5);
    EXPECT_EQ(delivered(), Log{});
    world().monitor().setWithheld(false);
    tap(contractkey::f5);
    EXPECT_EQ(delivered(), (Log{"pressed 3", "released 3"}));
}

TEST_P(HotKeysContract, aPressHasATimeStamp) {
    EXPECT_EQ(world().hotKeys().lastPressTime(), 0U);
    request(play, "play", contractkey::f5, 0);
    tap(contractkey::f5);
    EXPECT_EQ(delivered(), (Log{"pressed 3", "released 3"}));
    EXPECT_NE(world().hotKeys().lastPressTime(), 0U);
}
