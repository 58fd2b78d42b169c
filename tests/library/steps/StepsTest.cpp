// SPDX-License-Identifier: MIT
#include "library/steps/Steps.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "library/steps/Recording.h"
#include "platform/Modifiers.h"
#include "platform/fake/FakeKeyboardLayout.h"
#include "support/Keys.h"

using steps::keyLines;
using steps::Step;
using steps::StepKind;

namespace {

/// The steps as words: "typing Hello [0+5]", "key 1 0x1000 x2 [5+2]", "pause 0.5 [0+1]", "text Hi [0+1]".
std::vector<std::string> stepsOf(const std::string& lines) {
    const FakeKeyboardLayout layout;
    std::vector<std::string> words;
    for (const Step& step : steps::stepsOf(recorded(recordingOf(lines)), layout)) {
        std::string word;
        if (step.kind == StepKind::typing) word = "typing " + step.text;
        if (step.kind == StepKind::text) word = "text " + step.text;
        if (step.kind == StepKind::pause) word = "pause " + std::to_string(step.seconds).substr(0, 4);
        if (step.kind == StepKind::key)
            word = "key " + std::to_string(step.keyCode) + " " + std::to_string(step.modifiers);
        if (step.kind == StepKind::keyDown) word = "down " + std::to_string(step.modifiers);
        if (step.kind == StepKind::keyUp) word = "up " + std::to_string(step.modifiers);
        if (step.repeats > 1) word += " x" + std::to_string(step.repeats);
        words.push_back(word + " [" + std::to_string(step.first) + "+" + std::to_string(step.count) + "]");
    }
    return words;
}

using Words = std::vector<std::string>;

TEST(StepsTest, keysThatTypeAreRunsOfText) {
    EXPECT_EQ(stepsOf(keyLines(key::a, modifier::shift) + keyLines(key::b, 0) + keyLines(key::space, 0) +
                      keyLines(key::one, modifier::shift)),
              Words{"typing Ab ! [0+4]"});
}

TEST(StepsTest, keysThatDoSomethingStandAlone) {
    EXPECT_EQ(stepsOf(keyLines(key::a, 0) + keyLines(key::s, modifier::control) + keyLines(key::b, 0) +
                      keyLines(key::returnKey, 0)),
              (Words{"typing a [0+1]", "key 1 4096 [1+1]", "typing b [2+1]", "key 36 0 [3+1]"}));
}

TEST(StepsTest, whatStandsBelowACommentBeginsAnew) {
    EXPECT_EQ(stepsOf(keyLines(key::a, 0) + "-- then\n" + keyLines(key::b, 0) + keyLines(key::one, 0)),
              (Words{"typing a [0+1]", "typing b1 [1+2]"}));
    EXPECT_EQ(stepsOf(keyLines(48, 0) + "-- again\n" + keyLines(48, 0)),
              (Words{"key 48 0 [0+1]", "key 48 0 [1+1]"}));
}

TEST(StepsTest, theSameKeySeveralTimesInARowIsCounted) {
    const std::string down = keyLines(125, 0);
    EXPECT_EQ(stepsOf(down + down + down + keyLines(126, 0) + down),
              (Words{"key 125 0 x3 [0+3]", "key 126 0 [3+1]", "key 125 0 [4+1]"}));
    EXPECT_EQ(stepsOf(keyLines(48, 0) + keyLines(48, modifier::shift)),
              (Words{"key 48 0 [0+1]", "key 48 512 [1+1]"}));
}

TEST(StepsTest, pausesAndTextsAreSteps) {
    EXPECT_EQ(stepsOf(steps::pauseLines(0.5) + steps::pauseLines(0.5) + steps::pauseLines(1) +
                      steps::textLines("Grüße")),
              (Words{"pause 0.50 x2 [0+2]", "pause 1.00 [2+1]", "text Grüße [3+1]"}));
}

TEST(StepsTest, longRunsArePartedWhereALineIsFull) {
    std::string lines;
    for (std::size_t i = 0; i < steps::longestTyping + 5; ++i) lines += keyLines(key::a, 0);
    EXPECT_EQ(stepsOf(lines),
              (Words{"typing " + std::string(steps::longestTyping, 'a') + " [0+60]", "typing aaaaa [60+5]"}));
}

/// The steps of a recording stand for all its lines, in their order.
TEST(StepsTest, noLineIsLeftOut) {
    std::string lines;
    for (std::uint32_t code = 0; code < 128; ++code) {
        lines += keyLines(code, code % 3 == 0 ? modifier::shift : 0);
        if (code % 10 == 0) lines += steps::pauseLines(code);
    }
    const auto recording = recorded(recordingOf(lines));
    std::size_t next = 0;
    for (const Step& step : steps::stepsOf(recording, FakeKeyboardLayout())) {
        EXPECT_EQ(step.first, next);
        next += step.count;
    }
    EXPECT_EQ(next, recording.lines().size());
}

/// A layout that counts how often it is asked.
class CountingLayout : public FakeKeyboardLayout {
  public:
    std::string typed(std::uint32_t keyCode, bool shift) const override {
        ++m_questions;
        return FakeKeyboardLayout::typed(keyCode, shift);
    }
    int questions() const { return m_questions; }

  private:
    mutable int m_questions = 0;
};

/// Layouts take their time to answer, and recordings may have a hundred thousand keys.
TEST(StepsTest, theLayoutIsAskedOnceForEachKey) {
    std::string lines;
    for (std::uint32_t i = 0; i < 1000; ++i) lines += keyLines(i % 50, 0) + keyLines(i % 50, modifier::shift);
    const CountingLayout layout;
    steps::stepsOf(recorded(recordingOf(lines)), layout);
    EXPECT_EQ(layout.questions(), 100);
}

TEST(StepsTest, modifiersThatAreHeldAreStepsAroundTheKeys) {
    const std::string tab = keyLines(48, modifier::option);
    EXPECT_EQ(stepsOf("\tkey down option\ndelay 0.01\n" + tab + tab + "\tkey up option\ndelay 0.01\n"),
              (Words{"down 2048 [0+1]", "key 48 2048 x2 [1+2]", "up 2048 [3+1]"}));
}

}  // namespace
