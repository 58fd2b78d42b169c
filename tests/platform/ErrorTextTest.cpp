// SPDX-License-Identifier: MIT
#include "platform/ErrorText.h"

#include <gtest/gtest.h>

namespace {

TEST(ErrorTextTest, aMessageWithoutAnEndHasAFullStopBeforeItsHint) {
    EXPECT_EQ(inOneParagraph({"The disk is full", "Make room."}), "The disk is full. Make room.");
    EXPECT_EQ(inOneParagraph({"There is no \"}\"", "Write it."}), "There is no \"}\". Write it.");
}

TEST(ErrorTextTest, aMessageThatEndsHasNoSecondEnd) {
    for (const char* message :
         {"It is full.", "Full!", "Is it full?", "It is full\u3002", "Full\u2026", "Full:"})
        EXPECT_EQ(inOneParagraph({message, "Make room."}), std::string(message) + " Make room.");
}

TEST(ErrorTextTest, aMessageWithoutAHintIsItself) {
    EXPECT_EQ(inOneParagraph({"The disk is full", ""}), "The disk is full");
}

}  // namespace
