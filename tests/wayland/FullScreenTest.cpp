// SPDX-License-Identifier: MIT
//
// What fills the screen under sway makes room for windows of keyrill's, and fills it again afterwards.
#include <gtest/gtest.h>
#include <signal.h>

#include "wayland/SwayProgram.h"

namespace {

const char* const recordHere = "Record Here";
const char* const macros = "Macros";

/// With an X server, and without one.
class FullScreenTest : public SwayProgram, public testing::TestWithParam<bool> {
  protected:
    FullScreenTest() : SwayProgram({.hasSessionBus = true, .hasXServer = GetParam()}) {}

    void fillScreenWith(const Foot& foot, const std::string& how = "enable") const {
        foot.focus();
        sway().message({"fullscreen " + how});
        ASSERT_TRUE(fillsScreen(foot));
    }
    void startRecording() {
        strokeHotKey(xkey::r);
        ASSERT_TRUE(eventually([this] { return sway().hasFocus(recordHere); }));
    }
    void stopRecording() {
        strokeHotKey(xkey::s);
        ASSERT_TRUE(eventually([this] { return !shows(recordHere); }));
    }
    void recordInFrontOf(const Foot& foot, const std::string& how = "enable") {
        fillScreenWith(foot, how);
        startRecording();
    }
    void recordInFullScreen() {
        startRecording();
        sway().message({"fullscreen enable"});
        ASSERT_TRUE(sway().fillsScreen(recordHere));
    }
    /// Whether it does so once the program has nothing more to do after a stop.
    bool fillsScreenAtRest(const Foot& foot) const {
        awaitRest();
        return fillsScreen(foot);
    }
    bool fillsScreen(const Foot& foot) const { return sway().fillsScreen(foot.program()); }
    bool fillsScreenAgain(const Foot& foot) const {
        return eventually([&] { return fillsScreen(foot); }, std::chrono::seconds(20));
    }
};

INSTANTIATE_TEST_SUITE_P(XServers, FullScreenTest, testing::Bool(),
                         [](const auto& has) { return std::string(has.param ? "withOne" : "withoutOne"); });

TEST_P(FullScreenTest, comesBackWhenARecordingEnds) {
    start("");
    const Foot foot(sway());
    fillScreenWith(foot);
    for (int time = 0; time < 2; ++time) {
        startRecording();
        EXPECT_FALSE(fillsScreen(foot));
        stopRecording();
        EXPECT_TRUE(fillsScreenAgain(foot));
    }
    hands().type("z");
    EXPECT_EQ(foot.typed(1), "z");
}

TEST_P(FullScreenTest, comesBackWhenTheWindowIsClosed) {
    start("");
    const Foot foot(sway());
    recordInFrontOf(foot);
    sway().close(recordHere);
    EXPECT_TRUE(fillsScreenAgain(foot));
}

TEST_P(FullScreenTest, comesBackOnAllScreens) {
    start("");
    const Foot foot(sway());
    recordInFrontOf(foot, "enable global");
    EXPECT_FALSE(fillsScreen(foot));
    stopRecording();
    EXPECT_TRUE(fillsScreenAgain(foot));
    EXPECT_EQ(sway().fillOf(foot.program()), 2);
}

TEST_P(FullScreenTest, onAllScreensStaysAwayWhereItsUserIsElsewhere) {
    start("");
    const Foot foot(sway());
    recordInFrontOf(foot, "enable global");
    sway().message({"workspace 2"});
    const Foot other(sway());
    stopRecording();
    EXPECT_FALSE(fillsScreenAtRest(foot));
    EXPECT_TRUE(sway().hasFocus(other.program()));
}

TEST_P(FullScreenTest, comesBackWhenTheProgramEnds) {
    start("");
    const Foot foot(sway());
    recordInFrontOf(foot);
    program().signal(SIGTERM);
    EXPECT_EQ(program().wait(), 0);
    EXPECT_TRUE(fillsScreen(foot));
}

TEST_P(FullScreenTest, staysAwayWhereTheProgramEndsAndItsUserHasGoneOn) {
    start("");
    const Foot foot(sway());
    const Foot other(sway());
    recordInFrontOf(foot);
    other.focus();
    program().signal(SIGTERM);
    EXPECT_EQ(program().wait(), 0);
    EXPECT_FALSE(fillsScreen(foot));
    EXPECT_TRUE(sway().hasFocus(other.program()));
}

TEST_P(FullScreenTest, comesBackWhenTheLastWindowOfThoseInFrontOfItGoes) {
    start("");
    const Foot foot(sway());
    recordInFrontOf(foot);
    EXPECT_EQ(ask("macros"), "");
    ASSERT_TRUE(eventually([this] { return sway().hasFocus(macros); }));
    stopRecording();
    EXPECT_FALSE(fillsScreenAtRest(foot));
    EXPECT_TRUE(sway().hasFocus(macros));
    sway().close(macros);
    EXPECT_TRUE(fillsScreenAgain(foot));
}

TEST_P(FullScreenTest, comesBackAfterAQuestionOfAMacro) {
    start("display dialog \"What now\" with title \"Question\"\nkeystroke \"a\"");
    const Foot foot(sway());
    fillScreenWith(foot);
    strokeHotKey(xkey::p);
    ASSERT_TRUE(eventually([this] { return sway().hasFocus("Question"); }));
    hands().stroke({xkey::returnKey});
    EXPECT_EQ(foot.typed(1), "a");
    EXPECT_TRUE(fillsScreenAgain(foot));
}

TEST_P(FullScreenTest, comesBackWhileItsUserIsElsewhereAndLeavesHimThere) {
    start("");
    const Foot foot(sway());
    recordInFrontOf(foot);
    sway().message({"workspace 2"});
    const Foot other(sway());
    stopRecording();
    EXPECT_TRUE(fillsScreenAgain(foot));
    EXPECT_TRUE(sway().hasFocus(other.program()));
    hands().type("z");
    EXPECT_EQ(other.typed(1), "z");
}

TEST_P(FullScreenTest, staysAwayWhereItsUserHasGoneOnToAnotherWindow) {
    start("");
    const Foot foot(sway());
    const Foot other(sway());
    recordInFrontOf(foot);
    other.focus();
    stopRecording();
    EXPECT_FALSE(fillsScreenAtRest(foot));
    EXPECT_TRUE(sway().hasFocus(other.program()));
}

TEST_P(FullScreenTest, staysAwayWhereItsUserHasGivenTheScreenToAnotherWindow) {
    start("");
    const Foot foot(sway());
    const Foot other(sway());
    recordInFrontOf(foot);
    fillScreenWith(other);
    foot.focus();
    fillScreenWith(other);
    stopRecording();
    EXPECT_FALSE(fillsScreenAtRest(foot));
    EXPECT_TRUE(fillsScreen(other));
}

TEST_P(FullScreenTest, staysAwayWhereItsUserHasGivenAllScreensToAnotherWindow) {
    start("");
    const Foot foot(sway());
    recordInFrontOf(foot);
    sway().message({"workspace 2"});
    const Foot other(sway());
    fillScreenWith(other, "enable global");
    stopRecording();
    EXPECT_FALSE(fillsScreenAtRest(foot));
    EXPECT_EQ(sway().fillOf(other.program()), 2);
}

TEST_P(FullScreenTest, staysAwayWhereItsUserHasEndedIt) {
    start("");
    const Foot foot(sway());
    recordInFrontOf(foot);
    fillScreenWith(foot);
    sway().message({"fullscreen disable"});
    stopRecording();
    EXPECT_FALSE(fillsScreenAtRest(foot));
}

TEST_P(FullScreenTest, thatNeverWasIsNotMade) {
    start("");
    const Foot foot(sway());
    foot.focus();
    startRecording();
    stopRecording();
    EXPECT_FALSE(fillsScreenAtRest(foot));
}

/// Hot keys are off while it is open, so that nobody is to overlook it.
TEST_P(FullScreenTest, makesRoomForThePreferencesOfTheFirstStart) {
    forgetSettings();
    const Foot foot(sway());
    fillScreenWith(foot);
    launch("");
    ASSERT_TRUE(
        eventually([this] { return sway().hasFocus("Welcome to Keyrill"); }, std::chrono::seconds(60)))
        << log();
    hands().stroke({xkey::returnKey});
    ASSERT_TRUE(eventually([this] { return sway().hasFocus("Keyrill Preferences"); })) << log();
    EXPECT_FALSE(fillsScreen(foot));
    hands().stroke({xkey::escape});
    EXPECT_TRUE(fillsScreenAgain(foot));
    startRecording();
}

TEST_P(FullScreenTest, ofRecordHereItselfEndsWithTheRecording) {
    start("");
    recordInFullScreen();
    stopRecording();
    startRecording();
    EXPECT_FALSE(sway().fillsScreen(recordHere));
}

TEST_P(FullScreenTest, ofRecordHereItselfEndsWhenItIsClosed) {
    start("");
    recordInFullScreen();
    sway().close(recordHere);
    ASSERT_TRUE(eventually([this] { return !shows(recordHere); }));
    startRecording();
    EXPECT_FALSE(sway().fillsScreen(recordHere));
}

}  // namespace
