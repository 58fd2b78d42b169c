// SPDX-License-Identifier: MIT
#include "platform/keymap/MaskShaper.h"

#include <gtest/gtest.h>

#include <ostream>

#include "keymap/NamedKeymap.h"
#include "support/Keys.h"

std::ostream& operator<<(std::ostream& stream, const TypedKey& key) {
    return stream << "{" << key.keyCode << ", " << static_cast<int>(key.character) << ", 0x" << std::hex
                  << key.modifiers << "}";
}

namespace {

struct Row {
    std::uint8_t keycode;
    xkb_mod_mask_t modifiers;
    TypedKey expected;
};

void check(const Keymap& keymap, const std::vector<Row>& rows, xkb_layout_index_t layout = 0) {
    for (const Row& row : rows) {
        const bool held = (row.modifiers & (xmask::shift | xmask::control | xmask::alt | xmask::super)) != 0;
        EXPECT_EQ(shapeKey(keymap, row.keycode, row.modifiers, layout, held), row.expected)
            << "key " << int{row.keycode} << " modifiers " << row.modifiers;
    }
}

TEST(MaskShaperTest, withoutLocksTheMaskIsWhatIsHeld) {
    check(*namedKeymap("us"), {{xkey::a, 0, {0, 'a', 0}},
                               {xkey::a, xmask::shift, {0, 'A', 0x200}},
                               {xkey::a, xmask::control, {0, 'a', 0x1000}},
                               {xkey::a, xmask::alt | xmask::super, {0, 'a', 0x900}},
                               {xkey::one, xmask::shift, {18, '!', 0x200}},
                               {xkey::space, 0, {49, ' ', 0}},
                               {xkey::returnKey, 0, {36, '\r', 0}},
                               {xkey::f5, xmask::shift, {96, 0, 0x200}},
                               {xkey::keypadEnter, 0, {76, '\r', 0}},
                               {xkey::print, 0, {105, 0, 0}},
                               {xkey::f13, 0, {0x10B7, 0, 0}}});
}

TEST(MaskShaperTest, capsLockStandsForTheShiftOfAToZ) {
    check(*namedKeymap("us"), {{xkey::a, xmask::capsLock, {0, 'A', 0x400}},
                               {xkey::a, xmask::capsLock | xmask::shift, {0, 'a', 0x800000}},
                               {xkey::one, xmask::capsLock, {18, '1', 0}},
                               {xkey::one, xmask::capsLock | xmask::shift, {18, '!', 0x200}},
                               {xkey::returnKey, xmask::capsLock, {36, '\r', 0}}});
}

TEST(MaskShaperTest, withControlAltOrSuperCapsLockLeavesTheMaskAlone) {
    check(*namedKeymap("us"), {{xkey::a, xmask::capsLock | xmask::control, {0, 'A', 0x1000}},
                               {xkey::a, xmask::capsLock | xmask::control | xmask::shift, {0, 'a', 0x1200}},
                               {xkey::a, xmask::capsLock | xmask::alt, {0, 'A', 0x800}},
                               {xkey::a, xmask::capsLock | xmask::super | xmask::shift, {0, 'a', 0x300}}});
    check(*namedKeymap("cz"), {{xkey::two, xmask::capsLock | xmask::control, {19, 0, 0x1000}}});
}

TEST(MaskShaperTest, otherLettersUnderCapsLockAreShapedByShift) {
    check(*namedKeymap("de"), {{xkey::semicolon, xmask::capsLock, {41, 0, 0x200}},
                               {xkey::semicolon, xmask::capsLock | xmask::shift, {41, 0, 0x800000}}});
    check(*namedKeymap("us,ru"), {{xkey::q, xmask::capsLock, {12, 0, 0x200}}, {xkey::q, 0, {12, 0, 0}}}, 1);
}

TEST(MaskShaperTest, whatCapsLockAloneMakesCarriesTheLock) {
    // Caps Lock makes É of the digit row's é, which Shift turns into a digit.
    check(*namedKeymap("fr"), {{xkey::two, xmask::capsLock, {0x800 + 19, 0, 0x400}},
                               {xkey::two, xmask::shift, {19, '2', 0x200}},
                               {xkey::q, xmask::capsLock, {12, 'A', 0x400}}});
    // An S is made of the long one on the third level, whose Shift types another sign.
    constexpr std::uint8_t w = 25;
    check(*namedKeymap("be"), {{w, xmask::capsLock | xmask::levelThree, {0x800 + 0x200 + 13, 'S', 0}}});
}

TEST(MaskShaperTest, theKeypadIsWhatWasTyped) {
    check(*namedKeymap("us"), {{xkey::keypadOne, xmask::numLock, {83, '1', 0}},
                               {xkey::keypadOne, 0, {119, 0, 0}},
                               {xkey::keypadOne, xmask::numLock | xmask::shift, {119, 0, 0x200}},
                               {xkey::keypadOne, xmask::control, {119, 0, 0x1000}},
                               {xkey::keypadFive, 0, {87, 0, 0}},
                               {xkey::keypadFive, xmask::numLock, {87, '5', 0}},
                               {xkey::keypadPoint, 0, {117, 0, 0}},
                               {xkey::keypadPoint, xmask::numLock, {65, '.', 0}}});
    check(*namedKeymap("de"), {{xkey::keypadPoint, xmask::numLock, {65, ',', 0}}});
}

TEST(MaskShaperTest, aDigitOfTheKeypadIsOneInWhicheverStateOfNumLockTypesIt) {
    check(*namedKeymap("de(neo)"), {{xkey::keypadOne, 0, {83, '1', 0}},
                                    {xkey::keypadOne, xmask::numLock, {119, 0, 0}},
                                    {xkey::keypadFive, xmask::numLock, {87, 0, 0}}});
}

TEST(MaskShaperTest, aDigitThatShiftTypedWithoutNumLockIsTheDigitAlone) {
    check(*namedKeymap("us", "keypad:oss"), {{xkey::keypadOne, xmask::shift, {83, '1', 0x800000}}});
}

TEST(MaskShaperTest, levelChoosersGoIntoTheCode) {
    check(*namedKeymap("de"), {{xkey::seven, xmask::levelThree, {0x200 + 26, '{', 0}},
                               {xkey::q, xmask::levelThree, {0x200 + 12, '@', 0}},
                               {xkey::q, xmask::levelThree | xmask::control, {0x200 + 12, '@', 0x1000}}});
}

TEST(MaskShaperTest, theSecondGroupTypesItsOwn) {
    check(*namedKeymap("us,ru"), {{xkey::q, 0, {12, 0, 0}}, {xkey::one, 0, {18, '1', 0}}}, 1);
    check(*namedKeymap("us,fr"), {{xkey::q, 0, {12, 'a', 0}}, {xkey::one, xmask::shift, {18, '1', 0x200}}},
          1);
}

}  // namespace
