// SPDX-License-Identifier: MIT
#include "platform/script/source/Misspelling.h"

#include <gtest/gtest.h>

#include <initializer_list>

namespace {

using script::Misspelling;

std::string meant(std::string_view word, std::initializer_list<std::string_view> candidates,
                  std::size_t shortest = 3) {
    Misspelling misspelling(word, shortest);
    for (const std::string_view candidate : candidates) misspelling.compare(candidate);
    return misspelling.meant();
}

TEST(MisspellingTest, theNearestIsMeant) {
    EXPECT_EQ(meant("keystorkes", {"keystone", "keystroke"}), "keystroke");
    EXPECT_EQ(meant("Keystrok", {"keystroke"}), "keystroke");
}

TEST(MisspellingTest, longWordsMayHaveTwoSlipsAndOthersOne) {
    EXPECT_EQ(meant("apliction", {"application"}), "application");
    EXPECT_EQ(meant("rpeet", {"repeat"}), "");
}

TEST(MisspellingTest, shortWordsBeginAlikeOrHaveTheSameLetters) {
    EXPECT_EQ(meant("tel", {"tell"}), "tell");
    EXPECT_EQ(meant("kye", {"key"}), "key");
    EXPECT_EQ(meant("bet", {"set", "get"}), "");
}

TEST(MisspellingTest, wordsThatAreTooShortMeanNothing) {
    EXPECT_EQ(meant("tel", {"tell"}, 4), "");
    EXPECT_EQ(meant("", {"a"}, 0), "");
}

TEST(MisspellingTest, aWordOfItsOwnIsNoSlip) {
    EXPECT_EQ(meant("Times", {"time", "times"}), "");
    EXPECT_EQ(meant("times", {"times", "time"}), "");
}

}  // namespace
