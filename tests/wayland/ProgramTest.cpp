// SPDX-License-Identifier: MIT
//
// keyrill itself under sway: hot keys, playing, the prompt, judged by a native terminal and by sway's
// commands.
#include <signal.h>

#include "wayland/SwayProgram.h"

namespace {

/// Of a play that goes on 25 strokes come in this time.
bool comesToRest(const Foot& foot) {
    return eventually([&] {
        const std::string before = foot.typed();
        return !eventually([&] { return foot.typed() != before; }, std::chrono::milliseconds(500));
    });
}

TEST_F(SwayProgramTest, theHotKeyPlaysTheMacroAndNothingOfItIsTyped) {
    start("keystroke \"Grüße 日本\"");
    const Foot foot(sway());
    strokeHotKey(xkey::p);
    const std::string expected = "Grüße 日本";
    EXPECT_EQ(foot.typed(expected.size()), expected);
    hands().stroke({xkey::z});
    EXPECT_EQ(foot.typed(expected.size() + 1), expected + "z");
}

TEST_F(SwayProgramTest, aHeldHotKeyPlaysOnce) {
    start("keystroke \"a\"");
    const Foot foot(sway());
    for (const std::uint8_t key : {xkey::control, xkey::super, xkey::p}) hands().press(key);
    // Sway's keys repeat for so long at least: 10 times after 200 ms.
    EXPECT_FALSE(eventually([&] { return foot.typed().size() > 1; }, std::chrono::milliseconds(700)));
    for (const std::uint8_t key : {xkey::p, xkey::super, xkey::control}) hands().release(key);
    EXPECT_EQ(foot.typed(1), "a");
    strokeHotKey(xkey::p);
    EXPECT_EQ(foot.typed(2), "aa");
}

TEST_F(SwayProgramTest, thePromptPlaysAsOftenAsItIsTold) {
    start("keystroke \"ab\"");
    const Foot foot(sway());
    strokeHotKey(xkey::m);
    ASSERT_TRUE(eventually([this] { return hasLayerKeys(); }));
    hands().stroke({12});  // 3
    hands().stroke({xkey::returnKey});
    EXPECT_EQ(foot.typed(6), "ababab");
}

TEST_F(SwayProgramTest, theStopHotKeyEndsThePlay) {
    start("repeat 1000 times\nkeystroke \"a\"\ndelay 0.02\nend repeat\nkeystroke \"end\"");
    const Foot foot(sway());
    strokeHotKey(xkey::p);
    foot.typed(10);
    strokeHotKey(xkey::s);
    ASSERT_TRUE(comesToRest(foot));
    EXPECT_LT(foot.typed().size(), 1000U);
    EXPECT_EQ(foot.typed().find("end"), std::string::npos);
    hands().stroke({xkey::z});
    ASSERT_TRUE(eventually([&] { return foot.typed().ends_with("az"); })) << foot.typed();
}

TEST_F(SwayProgramTest, theStopHotKeyEndsAMacroThatAsksForEver) {
    start("repeat\ntry\ndisplay dialog \"What now\" with title \"Question\"\nend try\nend repeat");
    const Foot foot(sway());
    strokeHotKey(xkey::p);
    ASSERT_TRUE(eventually([this] { return shows("Question"); }));
    strokeHotKey(xkey::s);
    ASSERT_TRUE(eventually([this] { return !shows("Question"); }));
    // It does not ask again, and plays when it is told to.
    EXPECT_FALSE(eventually([this] { return shows("Question"); }, std::chrono::milliseconds(300)));
    EXPECT_EQ(foot.typed(), "");
    strokeHotKey(xkey::p);
    EXPECT_TRUE(eventually([this] { return shows("Question"); }));
}

TEST_F(SwayProgramTest, aQuestionIsSeenAndAnsweredInFrontOfAFullScreen) {
    start("display dialog \"What now\" default answer \"\" with title \"Question\"\nkeystroke \"a\"");
    const Foot foot(sway());
    sway().message({"fullscreen", "enable"});
    strokeHotKey(xkey::p);
    ASSERT_TRUE(eventually([this] { return sway().hasFocus("Question"); }));
    hands().type("private");
    hands().stroke({xkey::returnKey});
    EXPECT_EQ(foot.typed(1), "a");
}

TEST_F(SwayProgramTest, ownStrokesReachTheProgramAndFireNothing) {
    start("keystroke \"a\"\nkey code 35 using {control down, command down}\nkeystroke \"b\"");
    const Foot foot(sway());
    strokeHotKey(xkey::p);
    ASSERT_TRUE(eventually([&] { return foot.typed().ends_with("b"); })) << foot.typed();
    EXPECT_GT(foot.typed().size(), 2U) << "the combination did not arrive";
    const std::string once = foot.typed();
    // Taken back afterwards.
    strokeHotKey(xkey::p);
    EXPECT_EQ(foot.typed(2 * once.size()), once + once);
    hands().stroke({xkey::z});
    EXPECT_EQ(foot.typed(2 * once.size() + 1), once + once + "z");
}

TEST_F(SwayProgramTest, itsCombinationsAreFreeWhenItHasEnded) {
    start("keystroke \"a\"");
    const Foot foot(sway());
    program().signal(SIGTERM);
    EXPECT_EQ(program().wait(), 0);
    strokeHotKey(xkey::p);
    hands().stroke({xkey::z});
    ASSERT_TRUE(eventually([&] { return foot.typed().ends_with("z"); }));
    EXPECT_GT(foot.typed().size(), 1U) << "the combination is still taken";
}

TEST_F(SwayProgramTest, aReloadOfTheConfigurationLosesNothing) {
    start("keystroke \"a\"");
    const Foot foot(sway());
    ASSERT_EQ(timesTaken(), 1U);
    sway().message({"reload"});
    ASSERT_TRUE(eventually([this] { return timesTaken() == 2; }));
    strokeHotKey(xkey::p);
    EXPECT_EQ(foot.typed(1), "a");
}

/// Presses a hot key and, before it is up, Shift: sway does not tell of its end then.
void rollShiftOver(Hands& hands, std::uint8_t key) {
    for (const std::uint8_t one : {xkey::control, xkey::super, key, xkey::shift}) hands.press(one);
    for (const std::uint8_t one : {key, xkey::shift, xkey::super, xkey::control}) hands.release(one);
}

TEST_F(SwayProgramTest, aHotKeyOverWhichAnotherKeyIsRolledPlays) {
    start("keystroke \"a\"");
    const Foot foot(sway());
    rollShiftOver(hands(), xkey::p);
    EXPECT_EQ(foot.typed(1), "a");
    strokeHotKey(xkey::p);
    EXPECT_EQ(foot.typed(2), "aa");
}

TEST_F(SwayProgramTest, theStopHotKeyOverWhichAnotherKeyWasRolledStopsTheNextTime) {
    start("repeat 1000 times\nkeystroke \"a\"\ndelay 0.02\nend repeat");
    const Foot foot(sway());
    rollShiftOver(hands(), xkey::s);
    strokeHotKey(xkey::p);
    foot.typed(10);
    strokeHotKey(xkey::s);
    EXPECT_TRUE(comesToRest(foot));
    EXPECT_LT(foot.typed().size(), 1000U);
}

class SwayBesideTypingTest : public SwayProgramTest {
  protected:
    SwayBesideTypingTest() : SwayProgramTest({.hasSessionBus = true}) {}
};

/// As wtype does: each character has a key of its own in it, and no key is a modifier.
TEST_F(SwayBesideTypingTest, aProgramThatTypesByAKeymapOfItsOwnIsNoKeyboard) {
    const Foot foot(sway());
    start("key code (0)");
    foot.focus();
    hands().stroke({xkey::b});
    ASSERT_EQ(foot.typed(1), "b");
    const auto combinationsAsked = [this] {
        const std::string log = sway().log();
        std::size_t count = 0;
        for (std::size_t at = log.find("bindcode"); at != std::string::npos;
             at = log.find("bindcode", at + 1))
            ++count;
        return count;
    };
    const std::size_t before = combinationsAsked();
    ASSERT_GT(before, 0U);
    run({"wtype", "w"}, "wtype")->wait();
    EXPECT_EQ(foot.typed(2), "bw");
    hands().stroke({xkey::b});
    EXPECT_EQ(foot.typed(3), "bwb");
    // A question answered after it: by now the program has heard of both keymaps.
    EXPECT_EQ(ask("stop"), "keyrill: Nothing is being recorded or played.\n");
    EXPECT_EQ(combinationsAsked(), before);
    strokeHotKey(xkey::p);
    EXPECT_EQ(foot.typed(4), "bwba");
}

/// Whose own combination is the preset one for playing.
class SwayUsersBindingTest : public SwayProgramTest {
  protected:
    SwayUsersBindingTest()
        : SwayProgramTest({.configuration = "bindsym Ctrl+Mod4+p exec touch $XDG_RUNTIME_DIR/users"}) {}
    bool hasFired() const {
        return std::filesystem::exists(sway().environment().at("XDG_RUNTIME_DIR") + "/users");
    }
};

TEST_F(SwayUsersBindingTest, isNeverTakenOver) {
    start("keystroke \"a\"");
    const Foot foot(sway());
    strokeHotKey(xkey::p);
    EXPECT_TRUE(eventually([this] { return hasFired(); }));
    hands().stroke({xkey::z});
    EXPECT_EQ(foot.typed(1), "z");
}

TEST_F(SwayUsersBindingTest, isTakenOnceTheUserGivesItUp) {
    start("keystroke \"a\"");
    const Foot foot(sway());
    sway().configure("");
    sway().message({"reload"});
    ASSERT_TRUE(eventually([this] { return timesTaken() == 1; }));
    strokeHotKey(xkey::p);
    EXPECT_EQ(foot.typed(1), "a");
    EXPECT_FALSE(hasFired());
}

}  // namespace
