// SPDX-License-Identifier: MIT
#include "platform/keymap/TriggerNames.h"

#include <gtest/gtest.h>

#include "keymap/NamedKeymap.h"
#include "support/Keys.h"

// NOLINTNEXTLINE(readability-identifier-naming): the name is the test framework's
void PrintTo(const KeyCombination& combination, std::ostream* stream) {
    *stream << "key " << int{combination.keycode} << " modifiers " << combination.modifiers;
}

namespace {

constexpr std::uint8_t f9 = 75;

class TriggerNamesTest : public testing::Test {
  protected:
    std::optional<KeyCombination> meaningOf(const std::string& words) const {
        return meaningOfTrigger(*keymap, words);
    }

    std::unique_ptr<Keymap> keymap = namedKeymap("us");
    const ModifierMasks& masks = keymap->masks();
};

TEST_F(TriggerNamesTest, aCombinationIsItsModifiersAndWhatTheKeyTypes) {
    EXPECT_EQ(portalTrigger(*keymap, xkey::r, masks.control | masks.command), "CTRL+LOGO+r");
    EXPECT_EQ(portalTrigger(*keymap, xkey::r, masks.option | masks.shift), "ALT+SHIFT+r");
    EXPECT_EQ(portalTrigger(*keymap, f9, 0), "F9");
    EXPECT_EQ(portalTrigger(*keymap, xkey::returnKey, masks.control), "CTRL+Return");
}

TEST_F(TriggerNamesTest, whatTheStandardHasNoNameForHasNone) {
    EXPECT_EQ(portalTrigger(*keymap, xkey::r, masks.control | masks.thirdLevel), "");
    EXPECT_EQ(portalTrigger(*keymap, 8, masks.control), "");
}

TEST_F(TriggerNamesTest, wordsOfGtkAreUnderstoodInAnyLanguage) {
    const KeyCombination controlSuperR{xkey::r, masks.control | masks.command};
    EXPECT_EQ(meaningOf("Press <Control><Super>r"), controlSuperR);
    EXPECT_EQ(meaningOf("<ctrl><super>r drücken"), controlSuperR);
    EXPECT_EQ(meaningOf("Press <Primary><Alt>Return"),
              (KeyCombination{xkey::returnKey, masks.control | masks.option}));
    EXPECT_EQ(meaningOf("Press F9"), (KeyCombination{f9, 0}));
}

TEST_F(TriggerNamesTest, wordsOfQtAreUnderstood) {
    EXPECT_EQ(meaningOf("Meta+Ctrl+R"), (KeyCombination{xkey::r, masks.control | masks.command}));
    EXPECT_EQ(meaningOf("F9"), (KeyCombination{f9, 0}));
    EXPECT_EQ(meaningOf("Press Ctrl+Shift+R"), (KeyCombination{xkey::r, masks.control | masks.shift}));
}

TEST_F(TriggerNamesTest, whatIsNotUnderstoodIsNothing) {
    for (const char* const words :
         {"", "Press <Control>r or <Control>p", "Press <Hyper>r", "Press <Control", "Press <Control>",
          "Ctrl+Page Up", "Ctrl++", "a button", "Strg+R", "Press r"}) {
        EXPECT_EQ(meaningOf(words), std::nullopt) << words;
    }
}

TEST_F(TriggerNamesTest, itIsTheKeyThatTypesItInTheFirstLayout) {
    const auto french = namedKeymap("fr,us");
    EXPECT_EQ(portalTrigger(*french, xkey::q, 0), "a");
    EXPECT_EQ(meaningOfTrigger(*french, "<Control>a"), (KeyCombination{xkey::q, french->masks().control}));
}

TEST_F(TriggerNamesTest, anAcceleratorIsNamedByTheLayoutInForce) {
    const auto both = namedKeymap("us,de");
    const xkb_mod_mask_t held = both->masks().control | both->masks().command;
    EXPECT_EQ(gtkAccelerator(*both, 0, xkey::r, held), "<Control><Super>r");
    EXPECT_EQ(gtkAccelerator(*both, 0, xkey::z, masks.option | masks.shift), "<Alt><Shift>z");
    EXPECT_EQ(gtkAccelerator(*both, 1, xkey::z, held), "<Control><Super>y");
    EXPECT_EQ(gtkAccelerator(*both, 1, f9, 0), "F9");
    EXPECT_EQ(gtkAccelerator(*both, 0, 8, held), "");
    EXPECT_EQ(gtkAccelerator(*both, 0, xkey::r, both->masks().thirdLevel), "");
}

TEST_F(TriggerNamesTest, acceleratorsAreTheSameWhateverTheirModifiersAreCalled) {
    EXPECT_TRUE(isSameAccelerator("<Control><Super>r", "<Mod4><Primary>R"));
    EXPECT_TRUE(isSameAccelerator("F9", "F9"));
    EXPECT_TRUE(isSameAccelerator("<Super>Prior", "<Super>Page_Up"));
    EXPECT_FALSE(isSameAccelerator("<Super>Prior", "<Super>Next"));
    EXPECT_TRUE(isSameAccelerator("<Hyper>a", "<hyper>a"));
    EXPECT_FALSE(isSameAccelerator("<Control>r", "<Control><Shift>r"));
    EXPECT_FALSE(isSameAccelerator("<Control>r", "<Control>p"));
    EXPECT_FALSE(isSameAccelerator("<Control>r", "r"));
    for (const char* const none : {"", "<Control>", "<Control"}) EXPECT_FALSE(isSameAccelerator(none, none));
}

}  // namespace
