// SPDX-License-Identifier: MIT
#include "platform/keymap/MaskShaper.h"

#include <gtest/gtest.h>

#include <ostream>

#include "keymap/NamedKeymap.h"

std::ostream& operator<<(std::ostream& stream, const TypedKey& key) {
    return stream << "{" << key.keyCode << ", " << static_cast<int>(key.character) << ", 0x" << std::hex
                  << key.modifiers << "}";
}

namespace {

constexpr xkb_mod_mask_t shift = 0x01;
constexpr xkb_mod_mask_t caps = 0x02;
constexpr xkb_mod_mask_t control = 0x04;
constexpr xkb_mod_mask_t alt = 0x08;
constexpr xkb_mod_mask_t num = 0x10;
constexpr xkb_mod_mask_t super = 0x40;
constexpr xkb_mod_mask_t levelThree = 0x80;

constexpr std::uint8_t one = 10;
constexpr std::uint8_t two = 11;
constexpr std::uint8_t seven = 16;
constexpr std::uint8_t q = 24;
constexpr std::uint8_t returnKey = 36;
constexpr std::uint8_t a = 38;
constexpr std::uint8_t semicolon = 47;
constexpr std::uint8_t space = 65;
constexpr std::uint8_t f5 = 71;
constexpr std::uint8_t keypadFive = 84;
constexpr std::uint8_t keypadOne = 87;
constexpr std::uint8_t keypadPoint = 91;
constexpr std::uint8_t keypadEnter = 104;
constexpr std::uint8_t print = 107;
constexpr std::uint8_t f13 = 191;

struct Row {
    std::uint8_t keycode;
    xkb_mod_mask_t modifiers;
    TypedKey expected;
};

void check(const Keymap& keymap, const std::vector<Row>& rows, xkb_layout_index_t layout = 0) {
    for (const Row& row : rows) {
        const bool held = (row.modifiers & (shift | control | alt | super)) != 0;
        EXPECT_EQ(shapeKey(keymap, row.keycode, row.modifiers, layout, held), row.expected)
            << "key " << int{row.keycode} << " modifiers " << row.modifiers;
    }
}

TEST(MaskShaperTest, withoutLocksTheMaskIsWhatIsHeld) {
    check(*namedKeymap("us"), {{a, 0, {0, 'a', 0}},
                               {a, shift, {0, 'A', 0x200}},
                               {a, control, {0, 'a', 0x1000}},
                               {a, alt | super, {0, 'a', 0x900}},
                               {one, shift, {18, '!', 0x200}},
                               {space, 0, {49, ' ', 0}},
                               {returnKey, 0, {36, '\r', 0}},
                               {f5, shift, {96, 0, 0x200}},
                               {keypadEnter, 0, {76, '\r', 0}},
                               {print, 0, {105, 0, 0}},
                               {f13, 0, {0x10B7, 0, 0}}});
}

TEST(MaskShaperTest, capsLockStandsForTheShiftOfAToZ) {
    check(*namedKeymap("us"), {{a, caps, {0, 'A', 0x400}},
                               {a, caps | shift, {0, 'a', 0x400}},
                               {one, caps, {18, '1', 0}},
                               {one, caps | shift, {18, '!', 0x200}},
                               {returnKey, caps, {36, '\r', 0}},
                               {a, caps | control | shift, {0, 'a', 0x1000}}});
}

TEST(MaskShaperTest, otherLettersUnderCapsLockAreShapedByShift) {
    check(*namedKeymap("de"), {{semicolon, caps, {41, 0, 0x200}}, {semicolon, caps | shift, {41, 0, 0x400}}});
    check(*namedKeymap("us,ru"), {{q, caps, {12, 0, 0x200}}, {q, 0, {12, 0, 0}}}, 1);
}

TEST(MaskShaperTest, whatNoShiftCanTypeKeepsWhatIsHeld) {
    // Caps Lock makes É of the digit row's é, which Shift turns into a digit.
    check(*namedKeymap("fr"),
          {{two, caps, {19, 0, 0}}, {two, shift, {19, '2', 0x200}}, {q, caps, {12, 'A', 0x400}}});
}

TEST(MaskShaperTest, theKeypadIsWhatWasTyped) {
    check(*namedKeymap("us"), {{keypadOne, num, {83, '1', 0}},
                               {keypadOne, 0, {119, 0, 0}},
                               {keypadOne, num | shift, {119, 0, 0x200}},
                               {keypadOne, control, {119, 0, 0x1000}},
                               {keypadFive, 0, {0x1000 + 76, 0, 0}},
                               {keypadFive, num, {87, '5', 0}},
                               {keypadPoint, 0, {117, 0, 0}},
                               {keypadPoint, num, {65, '.', 0}}});
    check(*namedKeymap("de"), {{keypadPoint, num, {65, ',', 0}}});
}

TEST(MaskShaperTest, aDigitThatShiftTypedWithoutNumLockIsTheDigitAlone) {
    check(*namedKeymap("us", "keypad:oss"), {{keypadOne, shift, {83, '1', 0x400}}});
}

TEST(MaskShaperTest, levelChoosersGoIntoTheCode) {
    check(*namedKeymap("de"), {{seven, levelThree, {0x200 + 26, '{', 0}},
                               {q, levelThree, {0x200 + 12, '@', 0}},
                               {q, levelThree | control, {0x200 + 12, '@', 0x1000}}});
}

TEST(MaskShaperTest, theSecondGroupTypesItsOwn) {
    check(*namedKeymap("us,ru"), {{q, 0, {12, 0, 0}}, {one, 0, {18, '1', 0}}}, 1);
    check(*namedKeymap("us,fr"), {{q, 0, {12, 'a', 0}}, {one, shift, {18, '1', 0x200}}}, 1);
}

}  // namespace
