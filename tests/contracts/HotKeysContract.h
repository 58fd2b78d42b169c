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
    request(play, "play", key::p, controlSuper);
    ASSERT_EQ(status(play), HotKeyStatus::registered);
    press({key::control, key::super, key::p});
    release({key::p, key::super, key::control});
    EXPECT_EQ(delivered(), (Log{"modifiers 0x1000", "modifiers 0x1100", "pressed 3", "released 3",
                                "modifiers 0x1000", "modifiers 0x0"}));
}

TEST_P(HotKeysContract, theKeyAloneOrWithOtherModifiersIsAnOrdinaryKey) {
    request(play, "play", key::p, controlSuper);
    tap(key::p);
    EXPECT_EQ(delivered(), (Log{"down 35 p", "up 35"}));
    press({key::control});
    tap(key::p);
    release({key::control});
    EXPECT_EQ(deliveredWithout("modifiers"), (Log{"down 35 p", "up 35"}));
    press({key::control, key::super, key::shift});
    tap(key::p);
    release({key::control, key::super, key::shift});
    EXPECT_EQ(deliveredWithout("modifiers"), (Log{"down 35 P", "up 35"}));
}

TEST_P(HotKeysContract, theReleaseIsKnownByTheKeyWhateverTheModifiersAreByThen) {
    request(play, "play", key::p, controlSuper);
    press({key::control, key::super, key::p});
    release({key::control, key::super, key::p});
    EXPECT_EQ(delivered(), (Log{"modifiers 0x1000", "modifiers 0x1100", "pressed 3", "modifiers 0x100",
                                "modifiers 0x0", "released 3"}));
}

TEST_P(HotKeysContract, aHeldHotKeyPressesOnce) {
    request(play, "play", key::f5, 0);
    press({key::f5});
    world().settle();
    EXPECT_EQ(delivered(), (Log{"pressed 3"}));
    // Another key that repeats proves that the time for repeats has passed.
    world().holdUntilRepeats(key::a, 2);
    release({key::a, key::f5});
    const Log log = deliveredWithout("repeat");
    EXPECT_EQ(log, (Log{"down 0 a", "up 0", "released 3"}));
}

TEST_P(HotKeysContract, eventsBeforeAHotKeyAreDeliveredBeforeIt) {
    request(play, "play", key::f5, 0);
    tap(key::a);
    tap(key::f5);
    tap(key::s);
    EXPECT_EQ(delivered(), (Log{"down 0 a", "up 0", "pressed 3", "released 3", "down 1 s", "up 1"}));
}

TEST_P(HotKeysContract, capsLockDoesNotMatter) {
    request(play, "play", key::p, controlSuper);
    world().setCapsLock(true);
    delivered();
    press({key::control, key::super});
    tap(key::p);
    release({key::super, key::control});
    EXPECT_EQ(deliveredWithout("modifiers"), (Log{"pressed 3", "released 3"}));
}

TEST_P(HotKeysContract, capsLockAndFunctionKeyInARequestAreIgnored) {
    request(play, "play", key::p, controlSuper | modifier::functionKey | modifier::capsLock);
    ASSERT_EQ(status(play), HotKeyStatus::registered);
    press({key::control, key::super});
    tap(key::p);
    release({key::super, key::control});
    EXPECT_EQ(deliveredWithout("modifiers"), (Log{"pressed 3", "released 3"}));
}

TEST_P(HotKeysContract, noKeyLeavesTheHotKeyUnset) {
    request(play, "play", keycode::none, 0);
    EXPECT_EQ(status(play), HotKeyStatus::unset);
    EXPECT_EQ(world().hotKeys().state(play).error, std::nullopt);
    tap(key::p);
    EXPECT_EQ(delivered(), (Log{"down 35 p", "up 35"}));
}

TEST_P(HotKeysContract, aRequestTakesThePlaceOfWhatTheIdHad) {
    request(play, "play", key::p, controlSuper);
    request(play, "play", key::f5, 0);
    EXPECT_EQ(status(play), HotKeyStatus::registered);
    press({key::control, key::super});
    tap(key::p);
    release({key::super, key::control});
    EXPECT_EQ(deliveredWithout("modifiers"), (Log{"down 35 p", "up 35"}));
    tap(key::f5);
    EXPECT_EQ(delivered(), (Log{"pressed 3", "released 3"}));
}

TEST_P(HotKeysContract, aRequestForNoKeyGivesTheOldCombinationFree) {
    request(play, "play", key::f5, 0);
    request(play, "play", keycode::none, 0);
    EXPECT_EQ(status(play), HotKeyStatus::unset);
    tap(key::f5);
    EXPECT_EQ(delivered(), (Log{"down 96", "up 96"}));
}

TEST_P(HotKeysContract, aWithdrawnCombinationIsAnOrdinaryKeyAgain) {
    request(play, "play", key::f5, 0);
    world().hotKeys().withdraw(play);
    world().settle();
    EXPECT_EQ(status(play), HotKeyStatus::unset);
    tap(key::f5);
    EXPECT_EQ(delivered(), (Log{"down 96", "up 96"}));
}

TEST_P(HotKeysContract, withdrawingAnIdWithoutACombinationIsNothing) {
    request(record, "record", key::f5, 0);
    world().hotKeys().withdraw(play);
    tap(key::f5);
    EXPECT_EQ(delivered(), (Log{"pressed 1", "released 1"}));
}

TEST_P(HotKeysContract, theFirstOfTwoWithOneCombinationKeepsIt) {
    request(record, "record", key::p, controlSuper);
    request(play, "play", key::p, controlSuper);
    EXPECT_EQ(status(record), HotKeyStatus::registered);
    ASSERT_EQ(status(play), HotKeyStatus::refused);
    EXPECT_EQ(world().hotKeys().state(play).holder, record);
    press({key::control, key::super});
    tap(key::p);
    release({key::super, key::control});
    EXPECT_EQ(deliveredWithout("modifiers"), (Log{"pressed 1", "released 1"}));
}

TEST_P(HotKeysContract, severalAreAskedForAtOnceAsIfOneAfterTheOther) {
    world().otherClientGrabs(key::b, controlSuper);
    world().hotKeys().requestAll({{.id = 5, .name = "a", .keyCode = key::a, .modifiers = controlSuper},
                                  {.id = 6, .name = "b", .keyCode = key::b, .modifiers = controlSuper},
                                  {.id = 7, .name = "again", .keyCode = key::a, .modifiers = controlSuper},
                                  {.id = 8, .name = "p", .keyCode = key::p, .modifiers = controlSuper},
                                  {.id = 9, .name = "none", .keyCode = keycode::none}});
    EXPECT_EQ(status(5), HotKeyStatus::registered);
    EXPECT_EQ(status(6), HotKeyStatus::refused);
    EXPECT_EQ(world().hotKeys().state(6).holder, std::nullopt);
    EXPECT_EQ(status(7), HotKeyStatus::refused);
    EXPECT_EQ(world().hotKeys().state(7).holder, 5U);
    EXPECT_EQ(status(8), HotKeyStatus::registered);
    EXPECT_EQ(status(9), HotKeyStatus::unset);
    press({key::control, key::super});
    tap(key::a);
    tap(key::p);
    release({key::super, key::control});
    EXPECT_EQ(deliveredWithout("modifiers"), (Log{"pressed 5", "released 5", "pressed 8", "released 8"}));
}

TEST_P(HotKeysContract, aCombinationOfAnotherProgramIsRefusedByAnErrorThatNamesIt) {
    world().otherClientGrabs(key::p, controlSuper);
    request(play, "play", key::p, controlSuper);
    const HotKeyState state = world().hotKeys().state(play);
    ASSERT_EQ(state.status, HotKeyStatus::refused);
    ASSERT_TRUE(state.error.has_value());
    for (const char* word : {"Ctrl", "Super", "P"}) {
        EXPECT_NE(state.error->message.text().find(word), std::string::npos) << state.error->message;
    }
}

TEST_P(HotKeysContract, aRefusalTouchesNoOtherHotKeyAndIsUndoneByTheNextRequest) {
    world().otherClientGrabs(key::p, controlSuper);
    request(record, "record", key::f5, 0);
    request(play, "play", key::p, controlSuper);
    EXPECT_EQ(status(record), HotKeyStatus::registered);
    request(play, "play", key::r, controlSuper);
    EXPECT_EQ(status(play), HotKeyStatus::registered);
    EXPECT_EQ(world().hotKeys().state(play).error, std::nullopt);
    tap(key::f5);
    EXPECT_EQ(delivered(), (Log{"pressed 1", "released 1"}));
}

TEST_P(HotKeysContract, theObserverIsToldWhatBecameOfARequest) {
    std::vector<std::pair<HotKeyId, HotKeyStatus>> seen;
    world().hotKeys().observe(
        [&seen](HotKeyId id, const HotKeyState& state) { seen.emplace_back(id, state.status); });
    request(play, "play", key::f5, 0);
    ASSERT_FALSE(seen.empty());
    EXPECT_EQ(seen.back(), std::make_pair(play, HotKeyStatus::registered));
    world().hotKeys().withdraw(play);
    world().settle();
    EXPECT_EQ(seen.back(), std::make_pair(play, HotKeyStatus::unset));
    world().hotKeys().observe({});
}

TEST_P(HotKeysContract, whileWithheldHotKeysAreDropped) {
    request(play, "play", key::f5, 0);
    world().monitor().setWithheld(true);
    tap(key::f5);
    EXPECT_EQ(delivered(), Log{});
    world().monitor().setWithheld(false);
    tap(key::f5);
    EXPECT_EQ(delivered(), (Log{"pressed 3", "released 3"}));
}

TEST_P(HotKeysContract, aPressHasATimeStamp) {
    EXPECT_EQ(world().hotKeys().lastPressTime(), 0U);
    request(play, "play", key::f5, 0);
    tap(key::f5);
    EXPECT_EQ(delivered(), (Log{"pressed 3", "released 3"}));
    EXPECT_NE(world().hotKeys().lastPressTime(), 0U);
}
