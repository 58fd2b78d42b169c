// SPDX-License-Identifier: MIT
#include "core/KeyCode.h"

#include <vector>

#include "LocaleTest.h"

namespace {

class KeyCodeTest : public LocaleTest {};
KEYRILL_IN_BOTH_LOCALES(KeyCodeTest);

struct Press {
    std::uint32_t keyCode = 0;
    std::uint32_t modifiers = 0;
    char character = 0;
    std::string keyName = {};
};

boost::shared_ptr<Action> create(const Press& press) {
    auto action = createKeyCode(press.keyCode, press.keyName, press.character);
    action->setModifiers(press.modifiers);
    return action;
}

std::string scriptLine(const Press& press) { return create(press)->scriptLine(); }
std::string displayText(const Press& press) { return create(press)->displayText(); }

TEST_P(KeyCodeTest, hasNoModifiersAtFirst) {
    EXPECT_EQ(createKeyCode(36, "↩", '\r')->modifiers(), 0U);
    EXPECT_EQ(createKeyCode(36, "↩", '\r')->scriptLine(), "\tkey code (36) using {}\n");
}

TEST_P(KeyCodeTest, keepsTheWholeMask) {
    EXPECT_EQ(create({0, 0xFFFFFFFF, 'a', "a"})->modifiers(), 0xFFFFFFFFU);
}

TEST_P(KeyCodeTest, writesModifierWordsInAFixedOrder) {
    EXPECT_EQ(scriptLine({1, 0x0100, 's'}), "\tkey code (1) using {command down}\n");
    EXPECT_EQ(scriptLine({1, 0x0300, 'S'}), "\tkey code (1) using {command down, shift down}\n");
    EXPECT_EQ(scriptLine({18, 0x1A00, '1'}),
              "\tkey code (18) using {shift down, option down, control down}\n");
    EXPECT_EQ(scriptLine({18, 0x1B00, '1'}),
              "\tkey code (18) using {command down, shift down, option down, control down}\n");
}

TEST_P(KeyCodeTest, writesCapsLockAsShiftWhereItMadeACapital) {
    EXPECT_EQ(scriptLine({0, 0x0400, 'A'}), "\tkey code (0) using {shift down}\n");
    EXPECT_EQ(scriptLine({6, 0x0400, 'Z'}), "\tkey code (6) using {shift down}\n");
    EXPECT_EQ(scriptLine({0, 0x0400, 'a'}), "\tkey code (0) using {}\n");
    EXPECT_EQ(scriptLine({6, 0x0400, 'z'}), "\tkey code (6) using {}\n");
}

TEST_P(KeyCodeTest, writesShiftOnceWhenCapsLockCountsToo) {
    EXPECT_EQ(scriptLine({0, 0x0600, 'A'}), "\tkey code (0) using {shift down}\n");
}

TEST_P(KeyCodeTest, takesOnlyAsciiCapitalsForCapitals) {
    for (const char character : {'@', '[', '\0', '\x7F', '\xC4', '\xFF'}) {
        EXPECT_EQ(scriptLine({0, 0x0400, character}), "\tkey code (0) using {}\n");
        EXPECT_EQ(displayText({0, 0x0200, character, "x"}), "<⇧+x>");
    }
}

TEST_P(KeyCodeTest, takesZeroForAKey) { EXPECT_EQ(scriptLine({0, 0, 'a'}), "\tkey code (0) using {}\n"); }

TEST_P(KeyCodeTest, writesTheWholeRangeOfCodesWithoutGroups) {
    EXPECT_EQ(scriptLine({4294967295, 0, 0}), "\tkey code (4294967295) using {}\n");
    EXPECT_EQ(scriptLine({1234, 0, 0}), "\tkey code (1234) using {}\n");
}

TEST_P(KeyCodeTest, ignoresUnknownBits) {
    EXPECT_EQ(scriptLine({0, 0x8000, 'a', "a"}), "\tkey code (0) using {}\n");
    EXPECT_EQ(displayText({0, 0x8000, 'a', "a"}), "a");
}

TEST_P(KeyCodeTest, showsTheNameAloneWithoutModifiers) {
    EXPECT_EQ(displayText({0, 0, 'a', "a"}), "a");
    EXPECT_EQ(displayText({36, 0, '\r', "↩"}), "↩");
}

TEST_P(KeyCodeTest, showsSymbolsInAFixedOrder) {
    EXPECT_EQ(displayText({1, 0x0100, 's', "s"}), "<⌘+s>");
    EXPECT_EQ(displayText({18, 0x1A00, '1', "1"}), "<⇧+⌥+⌃+1>");
    EXPECT_EQ(displayText({18, 0x1B00, '1', "1"}), "<⌘+⇧+⌥+⌃+1>");
}

TEST_P(KeyCodeTest, hidesShiftWhereTheLetterShowsIt) {
    EXPECT_EQ(displayText({1, 0x0300, 'S', "S"}), "<⌘+S>");
    EXPECT_EQ(scriptLine({0, 0x0200, 'A', "A"}), "\tkey code (0) using {shift down}\n");
    EXPECT_EQ(displayText({0, 0x0200, 'A', "A"}), "A");
}

TEST_P(KeyCodeTest, hasNoSymbolForCapsLock) {
    EXPECT_EQ(displayText({6, 0x0400, 'Z', "Z"}), "Z");
    EXPECT_EQ(displayText({6, 0x0400, 'z', "z"}), "z");
    EXPECT_EQ(displayText({6, 0x0500, 'z', "z"}), "<⌘+z>");
}

TEST_P(KeyCodeTest, isDeletedThroughItsBase) {
    const boost::shared_ptr<Action> action(
        static_cast<Action*>(new actionpack::KeyCode(0, "a long name of a key", 'a')));
    EXPECT_EQ(action->displayText(), "a long name of a key");
}

}  // namespace
