// SPDX-License-Identifier: MIT
#include "platform/script/values/Characters.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace {

std::u32string eachOf(std::u32string_view text, char32_t (*change)(char32_t)) {
    std::u32string changed;
    for (const char32_t character : text) changed += change(character);
    return changed;
}

TEST(CharactersTest, lettersOfAllAlphabetsHaveALowerCase) {
    EXPECT_EQ(eachOf(U"AZ[ÀÞ×ĀŸƁΆΣЀЯԱႠẞἈⰀＡ", script::lowered), U"az[àþ×āÿɓάσѐяաⴀßἀⰰａ");
}

TEST(CharactersTest, aLowerCaseOfTwoCharactersIsNotTaken) { EXPECT_EQ(script::lowered(U'İ'), U'İ'); }

TEST(CharactersTest, lettersLoseAccentsAndStrokes) {
    EXPECT_EQ(eachOf(U"aÀéÖĄǕỆΰἋЙӁ", script::withoutAccents), U"aAeOAUEυΑИЖ");
    EXPECT_EQ(eachOf(U"ØøĐđıŁł", script::withoutAccents), U"OoDdiLl");
}

TEST(CharactersTest, anAccentByItselfGoes) {
    EXPECT_EQ(script::withoutAccents(0x300), 0U);
    EXPECT_EQ(script::withoutAccents(0x36F), 0U);
}

TEST(CharactersTest, whatIsMadeOfPartsButHasNoAccentStays) {
    EXPECT_EQ(eachOf(U"≠\u0958\uAC01ﬁ", script::withoutAccents), U"≠\u0958\uAC01ﬁ");
}

}  // namespace
