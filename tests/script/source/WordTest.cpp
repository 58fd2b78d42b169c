// SPDX-License-Identifier: MIT
#include "platform/script/source/Word.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace {

using script::Word;

constexpr auto lastWord = Word::without;

TEST(WordTest, everyWordIsFoundByItsSpelling) {
    std::set<std::string_view> spellings;
    for (auto number = 1; number <= static_cast<int>(lastWord); ++number) {
        const auto word = static_cast<Word>(number);
        EXPECT_EQ(script::wordOf(script::spellingOf(word)), word) << script::spellingOf(word);
        spellings.insert(script::spellingOf(word));
    }
    EXPECT_EQ(spellings.size(), static_cast<std::size_t>(lastWord));
}

TEST(WordTest, caseNeverMatters) {
    EXPECT_EQ(script::wordOf("TELL"), Word::tell);
    EXPECT_EQ(script::wordOf("KeyStroke"), Word::keystroke);
}

TEST(WordTest, namesAreNoWords) {
    for (const std::string_view name : {"tells", "tel", "x", "_", "tell_", "t3ll", "pauseTime"}) {
        EXPECT_EQ(script::wordOf(name), Word::none) << name;
    }
}

TEST(WordTest, keyboardWordsBelongToTheDictionary) {
    EXPECT_EQ(script::kindOf(Word::keystroke), script::WordKind::dictionary);
    EXPECT_EQ(script::kindOf(Word::command), script::WordKind::dictionary);
    EXPECT_EQ(script::kindOf(Word::tell), script::WordKind::reserved);
    EXPECT_EQ(script::kindOf(Word::delay), script::WordKind::special);
}

}  // namespace
