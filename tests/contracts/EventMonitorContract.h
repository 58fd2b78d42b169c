// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>

#include "contracts/KeyboardContract.h"

/// What platform/EventMonitor.h promises.
class EventMonitorContract : public KeyboardContract {};

TEST_P(EventMonitorContract, aKeyGivesADownWithItsCharacterAndAnUp) {
    tap(key::a);
    EXPECT_EQ(delivered(), (Log{"down 0 a", "up 0"}));
}

TEST_P(EventMonitorContract, keysThatOverlapKeepTheirOrder) {
    press({key::a, key::s});
    release({key::a, key::s});
    EXPECT_EQ(delivered(), (Log{"down 0 a", "down 1 s", "up 0", "up 1"}));
}

TEST_P(EventMonitorContract, shiftChangesTheMaskBeforeTheKeyAndTheCharacter) {
    press({key::shift});
    tap(key::a);
    tap(key::one);
    release({key::shift});
    EXPECT_EQ(delivered(),
              (Log{"modifiers 0x200", "down 0 A", "up 0", "down 18 !", "up 18", "modifiers 0x0"}));
}

TEST_P(EventMonitorContract, eachModifierHasItsBit) {
    const std::vector<std::pair<std::uint32_t, std::string>> rows = {{key::super, "modifiers 0x100"},
                                                                     {key::shift, "modifiers 0x200"},
                                                                     {key::alt, "modifiers 0x800"},
                                                                     {key::control, "modifiers 0x1000"}};
    for (const auto& [keyCode, words] : rows) {
        tap(keyCode);
        EXPECT_EQ(delivered(), (Log{words, "modifiers 0x0"})) << keyCode;
    }
}

TEST_P(EventMonitorContract, controlAltAndSuperDoNotChangeTheCharacter) {
    for (const std::uint32_t modifierKey : {key::control, key::alt, key::super}) {
        press({modifierKey});
        tap(key::a);
        release({modifierKey});
        EXPECT_EQ(deliveredWithout("modifiers"), (Log{"down 0 a", "up 0"})) << modifierKey;
    }
}

TEST_P(EventMonitorContract, theMaskGrowsAndShrinksWithTheKeysAndIsZeroOnlyAtTheEnd) {
    press({key::control, key::shift, key::super});
    release({key::shift, key::control, key::super});
    EXPECT_EQ(delivered(), (Log{"modifiers 0x1000", "modifiers 0x1200", "modifiers 0x1300",
                                "modifiers 0x1100", "modifiers 0x100", "modifiers 0x0"}));
}

TEST_P(EventMonitorContract, theSecondKeyOfAModifierChangesNothing) {
    press({key::shift, key::rightShift});
    release({key::shift, key::rightShift});
    EXPECT_EQ(delivered(), (Log{"modifiers 0x200", "modifiers 0x0"}));
}

TEST_P(EventMonitorContract, aHeldKeyGivesOneDownAndItsRepeats) {
    world().holdUntilRepeats(key::a, 3);
    release({key::a});
    const Log log = delivered();
    ASSERT_GE(log.size(), 5U);
    EXPECT_EQ(log.front(), "down 0 a");
    EXPECT_EQ(log.back(), "up 0");
    EXPECT_EQ(static_cast<std::size_t>(std::count(log.begin(), log.end(), "repeat 0 a")), log.size() - 2);
}

TEST_P(EventMonitorContract, keysThatTypeNothingHaveNoCharacter) {
    tap(key::f5);
    tap(key::arrowUp);
    EXPECT_EQ(delivered(), (Log{"down 96", "up 96", "down 126", "up 126"}));
}

TEST_P(EventMonitorContract, capsLockIsNotSeenAtRest) {
    world().setCapsLock(true);
    const Log log = delivered();
    EXPECT_EQ(std::count_if(log.begin(), log.end(), [](const auto& line) { return line != "modifiers 0x0"; }),
              0);
}

TEST_P(EventMonitorContract, aLetterUnderCapsLockIsReportedUnderThatMaskAlone) {
    world().setCapsLock(true);
    delivered();
    tap(key::a);
    EXPECT_EQ(delivered(), (Log{"modifiers 0x400", "down 0 A", "modifiers 0x0", "up 0"}));
}

TEST_P(EventMonitorContract, capsLockDoesNotTouchADigit) {
    world().setCapsLock(true);
    delivered();
    tap(key::one);
    EXPECT_EQ(delivered(), (Log{"down 18 1", "up 18"}));
}

TEST_P(EventMonitorContract, shiftUnderCapsLockTypesASmallLetterAndTheMaskStaysAboveZero) {
    world().setCapsLock(true);
    delivered();
    press({key::shift});
    tap(key::a);
    release({key::shift});
    // A bit that plays nothing.
    EXPECT_EQ(delivered(), (Log{"modifiers 0x200", "modifiers 0x800000", "down 0 a", "modifiers 0x200",
                                "up 0", "modifiers 0x0"}));
}

TEST_P(EventMonitorContract, aCombinationUnderCapsLockIsTheCombination) {
    world().setCapsLock(true);
    delivered();
    for (const std::uint32_t modifierKey : {key::control, key::alt, key::super}) {
        press({modifierKey});
        tap(key::a);
        release({modifierKey});
    }
    EXPECT_EQ(delivered(),
              (Log{"modifiers 0x1000", "down 0 A", "up 0", "modifiers 0x0", "modifiers 0x800", "down 0 A",
                   "up 0", "modifiers 0x0", "modifiers 0x100", "down 0 A", "up 0", "modifiers 0x0"}));
}

TEST_P(EventMonitorContract, controlAndShiftUnderCapsLockAreControlAndShift) {
    world().setCapsLock(true);
    delivered();
    press({key::control, key::shift});
    tap(key::a);
    release({key::shift, key::control});
    EXPECT_EQ(delivered(), (Log{"modifiers 0x1000", "modifiers 0x1200", "down 0 a", "up 0",
                                "modifiers 0x1000", "modifiers 0x0"}));
}

TEST_P(EventMonitorContract, whileWithheldOnlyModifierChangesGoOn) {
    world().monitor().setWithheld(true);
    press({key::shift});
    tap(key::a);
    release({key::shift});
    EXPECT_EQ(deliveredWithout("up"), (Log{"modifiers 0x200", "modifiers 0x0"}));

    world().monitor().setWithheld(false);
    tap(key::s);
    EXPECT_EQ(delivered(), (Log{"down 1 s", "up 1"}));
}

TEST_P(EventMonitorContract, aSecondInstallReplacesTheHandler) {
    int events = 0;
    ASSERT_TRUE(world().monitor().install([&events](const KeyEvent&) { ++events; }));
    tap(key::a);
    EXPECT_EQ(delivered(), Log{});
    EXPECT_EQ(events, 2);
    ASSERT_TRUE(world().monitor().install({}));
}
