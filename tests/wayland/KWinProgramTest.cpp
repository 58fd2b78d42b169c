// SPDX-License-Identifier: MIT
//
// keyrill itself under KWin: hot keys and playing, judged by native text fields.
#include <gtest/gtest.h>
#include <signal.h>

#include "compositor/Field.h"
#include "wayland/KWinProgram.h"

namespace {

class KWinProgramTest : public KWinProgram, public testing::TestWithParam<const char*> {
  protected:
    KWinProgramTest() : KWinProgram({.layouts = GetParam(), .hasXServer = true}) {}
};

TEST_P(KWinProgramTest, theHotKeyPlaysTheMacroAndNothingOfItIsTyped) {
    start("keystroke \"Hello, World!\"");
    const Field field(kwin(), Field::Toolkit::qt);
    strokeHotKey(xkey::p);
    EXPECT_EQ(field.text("Hello, World!"), "Hello, World!");
    strokeHotKey(xkey::p);
    EXPECT_EQ(field.text("Hello, World!Hello, World!"), "Hello, World!Hello, World!");
}

TEST_P(KWinProgramTest, modifiersThatAreStillHeldArePartOfNothingThatIsPlayed) {
    start("keystroke \"abc\"");
    const Field field(kwin(), Field::Toolkit::qt);
    for (const std::uint8_t key : {xkey::control, xkey::super, xkey::p}) hands().press(key);
    // The desktop repeats the hot key meanwhile; nothing is played before it is up.
    EXPECT_FALSE(eventually([&] { return !field.text().empty(); }, std::chrono::milliseconds(1500)));
    for (const std::uint8_t key : {xkey::p, xkey::super, xkey::control}) hands().release(key);
    EXPECT_EQ(field.text("abc"), "abc");
    hands().stroke({xkey::a});
    EXPECT_EQ(field.text("abca"), "abca");
}

/// A digit: with the Control that is held on the way to the hot key it is no command of the field's.
TEST_P(KWinProgramTest, theStopHotKeyEndsThePlay) {
    start("repeat 1000 times\nkeystroke \"1\"\ndelay 0.02\nend repeat\nkeystroke \"end\"");
    const Field field(kwin(), Field::Toolkit::qt);
    strokeHotKey(xkey::p);
    ASSERT_TRUE(eventually([&] { return field.text().size() > 10; }));
    strokeHotKey(xkey::s);
    // Of a play that goes on 25 strokes come in this time.
    ASSERT_TRUE(eventually([&] {
        const std::string before = field.text();
        return !eventually([&] { return field.text() != before; }, std::chrono::milliseconds(500));
    }));
    EXPECT_LT(field.text().size(), 1000U);
    EXPECT_EQ(field.text().find("end"), std::string::npos);
    hands().stroke({xkey::b});
    EXPECT_TRUE(eventually([&] { return field.text().ends_with("1b"); })) << field.text();
}

INSTANTIATE_TEST_SUITE_P(Layouts, KWinProgramTest, testing::Values("us", "de"),
                         [](const auto& layout) { return std::string(layout.param); });

}  // namespace
