// SPDX-License-Identifier: MIT
//
// keyrill records what is typed into a window of its own where no keyboard may be read. What is recorded is
// judged by what playing it types.
#include <gtest/gtest.h>

#include <chrono>

#include "compositor/Field.h"
#include "wayland/AccessWorld.h"
#include "wayland/Places.h"

namespace {

const char* const recordHere = "Record Here";

/// A native text field and the program, whose service is not installed.
class RecordHereTest : public testing::TestWithParam<Place> {
  protected:
    RecordHereTest() : m_session(GetParam().open()) {
        m_session->setSystemBus(m_access.bus());
        m_session->start("keystroke \"x\"\nset the clipboard to \"played\"");
        m_field = std::make_unique<Field>(m_session->compositor(), Field::Toolkit::qt);
    }

    void startRecording() {
        m_session->strokeHotKey(xkey::r);
        ASSERT_TRUE(eventually([this] { return compositor().hasFocus(recordHere); }));
    }
    void awaitEnd() {
        ASSERT_TRUE(eventually([this] { return !compositor().shows(recordHere); }));
        ASSERT_TRUE(eventually([this] { return compositor().focus("field"); }));
    }
    void stopRecording() {
        m_session->strokeHotKey(xkey::s);
        awaitEnd();
    }
    /// What playing it once types, and a full stop by hand after it; waits for that text.
    std::string played(const std::string& expected) {
        play();
        m_field->text(expected);
        hands().type(".");
        return m_field->text(expected + ".");
    }

    /// Holds the b in that window, which keeps the focus, until it has repeated ten times, and types an n;
    /// for how long it was held.
    std::chrono::steady_clock::duration hold(const std::string& window) {
        const std::chrono::milliseconds time = GetParam().repeatDelay + std::chrono::milliseconds(400);
        const auto begin = std::chrono::steady_clock::now();
        hands().press(xkey::b);
        EXPECT_FALSE(eventually([&] { return !compositor().hasFocus(window); }, time));
        hands().release(xkey::b);
        const auto end = std::chrono::steady_clock::now();
        hands().type("n");
        return end - begin;
    }
    /// What is in the field once it ends with an n.
    std::string textWithN() const {
        EXPECT_TRUE(eventually([this] { return field().text().ends_with("n"); }));
        return field().text();
    }
    std::string clipboard() const { return m_session->outputOfUsers({"wl-paste", "--no-newline"}); }
    void makeFieldFullScreen() {
        ASSERT_TRUE(eventually([this] { return compositor().focus("field"); }));
        m_session->makeFullScreen();
    }
    void clear() {
        hands().stroke({xkey::control, xkey::a});
        hands().stroke({xkey::backspace});
        ASSERT_EQ(field().text(""), "");
    }

    const Compositor& compositor() const { return m_session->compositor(); }
    Hands& hands() { return m_session->hands(); }
    const Field& field() const { return *m_field; }
    void play() { m_session->strokeHotKey(xkey::p); }

  private:
    AccessWorld m_access;
    std::unique_ptr<ProgramSession> m_session;
    std::unique_ptr<Field> m_field;
};

TEST_P(RecordHereTest, whatIsTypedThereIsRecordedAndPlaysInAnotherProgram) {
    startRecording();
    hands().type("The quick Fox No. 7");
    hands().stroke({xkey::returnKey});
    hands().stroke({xkey::tab});
    hands().type("jumps");
    hands().stroke({xkey::backspace});
    // played() waits for a text that is there only at the end.
    hands().type("er");
    stopRecording();
    EXPECT_EQ(field().text(), "");
    EXPECT_EQ(played("The quick Fox No. 7\n\tjumper"), "The quick Fox No. 7\n\tjumper.");
}

TEST_P(RecordHereTest, combinationsAreRecorded) {
    startRecording();
    hands().type("abc");
    hands().stroke({xkey::control, xkey::a});
    hands().type("d");
    stopRecording();
    EXPECT_EQ(played("d"), "d.");
}

TEST_P(RecordHereTest, capitalsOfCapsLockAreRecordedAsSuch) {
    startRecording();
    hands().type("a");
    hands().stroke({xkey::capsLock});
    hands().type("b1");
    hands().stroke({xkey::capsLock});
    hands().type("c");
    stopRecording();
    EXPECT_EQ(played("aB1c"), "aB1c.");
}

TEST_P(RecordHereTest, aHeldKeyIsRecordedAsOftenAsItRepeats) {
    startRecording();
    const auto held = hold(recordHere);
    stopRecording();
    play();
    const std::string played = textWithN();
    EXPECT_GE(played.size(), 5U);
    EXPECT_EQ(played, std::string(played.size() - 1, 'b') + "n");
    // A busy program misses some, and hears of the release late.
    EXPECT_LE(played.size() - 1, GetParam().strokesOf(held) + 2);
}

TEST_P(RecordHereTest, whatIsTypedElsewhereMeanwhileIsNotRecorded) {
    startRecording();
    hands().type("a");
    ASSERT_TRUE(eventually([this] { return compositor().focus("field"); }));
    hands().type("secret");
    ASSERT_EQ(field().text("secret"), "secret");
    clear();
    ASSERT_TRUE(eventually([this] { return compositor().focus(recordHere); }));
    hands().type("b");
    stopRecording();
    EXPECT_EQ(played("ab"), "ab.");
}

/// What the macro types meanwhile is recorded too, among them or behind them.
TEST_P(RecordHereTest, keysThatFollowThePlayHotKeyAtOnceAreRecordedWithoutItsModifiers) {
    startRecording();
    hands().type("b");
    play();
    hands().type("no");
    EXPECT_TRUE(eventually([this] { return clipboard() == "played"; }, std::chrono::seconds(20)));
    hands().type("c");
    stopRecording();
    play();
    ASSERT_TRUE(eventually([this] { return field().text().size() >= 5; })) << field().text();
    hands().type(".");
    ASSERT_TRUE(eventually([this] { return field().text().ends_with("."); })) << field().text();
    std::string text = field().text();
    EXPECT_EQ(std::erase(text, 'x'), 1U);
    EXPECT_EQ(text, "bnoc.");
}

TEST_P(RecordHereTest, closingTheWindowEndsTheRecordingToo) {
    startRecording();
    hands().type("ab");
    compositor().close(recordHere);
    awaitEnd();
    EXPECT_EQ(played("ab"), "ab.");
}

const Place swayWithoutX{"swayWithoutX", place::pureSway.open, Target::Kind::terminal};
const Place kwinWithoutX{"kwinWithoutX",
                         [] { return place::onKWin({.hasXServer = false, .guardsFocus = true}); },
                         Target::Kind::qt, KWin::repeatDelay};

/// With an X server, and without one.
using RecordHereWindowTest = RecordHereTest;

TEST_P(RecordHereWindowTest, comesInFrontOfAFullScreenAndHasTheKeys) {
    makeFieldFullScreen();
    startRecording();
    hands().type("ab");
    stopRecording();
    EXPECT_EQ(field().text(), "");
    EXPECT_EQ(played("ab"), "ab.");
}

INSTANTIATE_TEST_SUITE_P(Sessions, RecordHereWindowTest,
                         testing::Values(place::sway, place::kwin, swayWithoutX, kwinWithoutX), nameOf);
INSTANTIATE_TEST_SUITE_P(Sessions, RecordHereTest, testing::Values(place::sway, place::kwin), nameOf);

}  // namespace
