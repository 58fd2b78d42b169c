// SPDX-License-Identifier: MIT
#include "platform/Sentence.h"

#include <gtest/gtest.h>

#include "platform/Result.h"

namespace {

std::string backwards(const char* context, const char* english) {
    return std::string(context) + ": %2, %1 <- " + english;
}

class SentenceTest : public testing::Test {
  protected:
    ~SentenceTest() override { translateSentencesBy(nullptr); }
};

TEST_F(SentenceTest, isEnglishAtFirst) {
    EXPECT_EQ(sentence("Files", "The disk is full.").text(), "The disk is full.");
    const Error error{sentence("Files", "%1 is a folder.").arg("/tmp"), ""};
    EXPECT_EQ(error.message, "/tmp is a folder.");
}

TEST_F(SentenceTest, takesItsArgumentsInTheirOrder) {
    EXPECT_EQ(sentence("Files", "%2 of %1: %2.").arg("a").arg("b").text(), "b of a: b.");
}

TEST_F(SentenceTest, anArgumentIsNoSentence) {
    EXPECT_EQ(sentence("Files", "%1 and %2").arg("%2").arg("%1").text(), "%2 and %1");
    EXPECT_EQ(sentence("Files", "100 % of %1%").arg("5%").text(), "100 % of 5%%");
}

TEST_F(SentenceTest, aPlaceholderWithoutItsArgumentStays) {
    EXPECT_EQ(sentence("Files", "%1 %2 %").arg("a").text(), "a %2 %");
}

TEST_F(SentenceTest, aPartIsASentenceOfItsOwn) {
    const Sentence whole = sentence("Files", "%1, %2").arg(sentence("Files", "[%1, %2]").arg("a")).arg("b");
    EXPECT_EQ(whole.text(), "[a, %2], b");
    translateSentencesBy(backwards);
    EXPECT_EQ(whole.text(), "Files: b, Files: %2, a <- [a, %2] <- Files: %2, a <- [a, %2], b");
}

TEST_F(SentenceTest, isEnglishForThoseWhoCompareIt) {
    const Sentence whole = sentence("Files", "%1, %2").arg(sentence("Files", "c")).arg("b");
    translateSentencesBy(backwards);
    EXPECT_EQ(whole.english(), "c, b");
}

TEST_F(SentenceTest, whatOthersHaveSaidIsTheSameInAllLanguages) {
    const Sentence said = std::string("No space left on device %1");
    translateSentencesBy(backwards);
    EXPECT_EQ(said.text(), "No space left on device %1");
    EXPECT_EQ(said.english(), "No space left on device %1");
}

TEST_F(SentenceTest, saysNothingWithoutWords) {
    EXPECT_TRUE(Sentence().empty());
    EXPECT_TRUE(Sentence("").empty());
    EXPECT_EQ(Sentence().text(), "");
    EXPECT_FALSE(Sentence("a").empty());
    EXPECT_FALSE(sentence("Files", "a").empty());
}

TEST_F(SentenceTest, thoseAreEqualThatSayTheSame) {
    EXPECT_EQ(sentence("Files", "%1 and %2").arg("a").arg("b"), "a and b");
    EXPECT_NE(sentence("Files", "a"), sentence("Files", "b"));
}

TEST_F(SentenceTest, isSaidInTheLanguageThatIsSpokenWhenItBecomesAText) {
    const Sentence later = sentence("Files", "%1, %2").arg("a").arg("b");
    translateSentencesBy(backwards);
    EXPECT_EQ(later.text(), "Files: b, a <- a, b");
    translateSentencesBy(nullptr);
    EXPECT_EQ(later.text(), "a, b");
}

}  // namespace
