// SPDX-License-Identifier: MIT
#include "platform/keymap/QtKeys.h"

#include <gtest/gtest.h>

#include "keymap/NamedKeymap.h"
#include "support/Keys.h"

namespace {

using Numbers = std::vector<std::int32_t>;

constexpr std::int32_t shift = 0x02000000;
constexpr std::int32_t control = 0x04000000;
constexpr std::int32_t alt = 0x08000000;
constexpr std::int32_t meta = 0x10000000;
constexpr std::int32_t keyF9 = 0x01000038;
constexpr std::int32_t keyTab = 0x01000001;
constexpr std::uint8_t f9 = 75;

Numbers of(const Keymap& keymap, std::uint8_t keycode, xkb_mod_mask_t modifiers) {
    return qtCombinations(keymap, keycode, modifiers);
}

TEST(QtKeysTest, aLetterIsItsCapitalInEachLayout) {
    const auto keymap = namedKeymap("us,ru");
    const auto& masks = keymap->masks();
    EXPECT_EQ(of(*keymap, xkey::r, masks.control | masks.command),
              (Numbers{control | meta | 'R', control | meta | 0x41A}));
}

TEST(QtKeysTest, layoutsThatTypeTheSameCountOnce) {
    const auto keymap = namedKeymap("us,de");
    EXPECT_EQ(of(*keymap, xkey::r, keymap->masks().option), (Numbers{alt | 'R'}));
    EXPECT_EQ(of(*keymap, xkey::z, keymap->masks().option), (Numbers{alt | 'Z', alt | 'Y'}));
}

TEST(QtKeysTest, aLetterKeepsItsShiftAndASignHasNone) {
    const auto keymap = namedKeymap("us");
    const auto& masks = keymap->masks();
    EXPECT_EQ(of(*keymap, xkey::r, masks.control | masks.shift), (Numbers{control | shift | 'R'}));
    EXPECT_EQ(of(*keymap, xkey::one, masks.control | masks.shift), (Numbers{control | '!'}));
}

TEST(QtKeysTest, keysWithoutCharactersHaveNumbersOfTheirOwn) {
    const auto keymap = namedKeymap("us");
    const auto& masks = keymap->masks();
    EXPECT_EQ(of(*keymap, f9, 0), (Numbers{keyF9}));
    EXPECT_EQ(of(*keymap, f9, masks.shift), (Numbers{shift | keyF9}));
    EXPECT_EQ(of(*keymap, xkey::tab, masks.shift), (Numbers{shift | keyTab}));
}

TEST(QtKeysTest, aKeyThatQtCannotNumberIsNothing) { EXPECT_EQ(of(*namedKeymap("us"), 255, 0), Numbers()); }

}  // namespace
