// SPDX-License-Identifier: MIT
#include "platform/keymap/CharacterTable.h"

#include <gtest/gtest.h>

#include "keymap/NamedKeymap.h"

namespace {

using Found = std::optional<Stroke>;

TEST(CharacterTableTest, lettersAndSignsAreAtTheirPlaces) {
    const CharacterTable us(*namedKeymap("us"));
    EXPECT_EQ(us.find(U'a', 0), (Stroke{.keycode = 38, .group = 0}));
    EXPECT_EQ(us.find(U'A', 0), (Stroke{.keycode = 38, .modifiers = 0x01, .group = 0}));
    EXPECT_EQ(us.find(U'~', 0), (Stroke{.keycode = 49, .modifiers = 0x01, .group = 0}));
}

TEST(CharacterTableTest, ordinaryPositionsComeBeforeOtherKeysOfTheSameCharacter) {
    // Key codes 187 and 188 type parentheses without Shift.
    EXPECT_EQ(CharacterTable(*namedKeymap("us")).find(U'(', 0),
              (Stroke{.keycode = 18, .modifiers = 0x01, .group = 0}));
}

TEST(CharacterTableTest, theKeypadIsLeftOut) {
    EXPECT_EQ(CharacterTable(*namedKeymap("us")).find(U'7', 0), (Stroke{.keycode = 16, .group = 0}));
    EXPECT_EQ(CharacterTable(*namedKeymap("us")).find(U'.', 0), (Stroke{.keycode = 60, .group = 0}));
}

TEST(CharacterTableTest, lineEndsTabAndControlKeysHaveTheirKeys) {
    const CharacterTable us(*namedKeymap("us"));
    EXPECT_EQ(us.find(U'\r', 0), (Stroke{.keycode = 36, .group = 0}));
    EXPECT_EQ(us.find(U'\n', 0), (Stroke{.keycode = 36, .group = 0}));
    EXPECT_EQ(us.find(U'\t', 0), (Stroke{.keycode = 23, .group = 0}));
    EXPECT_EQ(us.find(0x1B, 0), (Stroke{.keycode = 9, .group = 0}));
}

TEST(CharacterTableTest, theThirdLevelIsReachedByItsChooser) {
    const CharacterTable de(*namedKeymap("de"));
    EXPECT_EQ(de.find(U'@', 0), (Stroke{.keycode = 24, .modifiers = 0x80, .group = 0}));
    EXPECT_EQ(de.find(U'€', 0), (Stroke{.keycode = 26, .modifiers = 0x80, .group = 0}));
    EXPECT_EQ(de.find(U'ü', 0), (Stroke{.keycode = 34, .group = 0}));
}

TEST(CharacterTableTest, theCurrentGroupComesFirstThenTheOthers) {
    const CharacterTable both(*namedKeymap("us,ru"));
    EXPECT_EQ(both.find(U'я', 0), (Stroke{.keycode = 52, .group = 1}));
    EXPECT_EQ(both.find(U'q', 1), (Stroke{.keycode = 24, .group = 0}));
    EXPECT_EQ(both.find(U' ', 1), (Stroke{.keycode = 65, .group = 1}));
}

TEST(CharacterTableTest, whatNoLayoutTypesIsNotFound) {
    const CharacterTable us(*namedKeymap("us"));
    for (const char32_t character : {U'é', U'漢', U'😀', U'\x01'}) {
        EXPECT_EQ(us.find(character, 0), Found());
    }
}

TEST(CharacterTableTest, excludedKeysTypeNothing) {
    KeycodeSet excluded;
    excluded.set(38);
    EXPECT_EQ(CharacterTable(*namedKeymap("us"), excluded).find(U'a', 0), Found());
}

}  // namespace
