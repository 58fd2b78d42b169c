// SPDX-License-Identifier: MIT
//
// keyrill records under a real GNOME what is typed into native programs, from keyboards that keyrill-access
// opens; its overlay and its prompt are X11 windows there.
#include <filesystem>

#include "compositor/Field.h"
#include "compositor/ScreenPicture.h"
#include "support/Terminal.h"
#include "wayland/GnomeSession.h"

namespace {

class GnomeRecordingTest : public GnomeSessionTest {
  protected:
    void begin(const std::string& lines) {
        access().tell("serve");
        access().tell("allow");
        startWithHotKeys(lines);
        m_person = std::make_unique<ShownHands>(access(), hands(), program().pid());
    }
    ShownHands& person() { return *m_person; }
    bool isKeyboardOpen() { return access().isOpenFor(program().pid()); }
    void press(std::uint8_t hotKey) { person().stroke({xkey::control, xkey::super, hotKey}); }
    void startRecording() {
        press(xkey::r);
        ASSERT_TRUE(eventually([this] { return isKeyboardOpen(); }));
    }
    void stopRecording() {
        press(xkey::s);
        ASSERT_TRUE(eventually([this] { return !isKeyboardOpen(); }));
    }

  private:
    std::unique_ptr<ShownHands> m_person;
};

TEST_F(GnomeRecordingTest, aMacroIsRecordedInAllWindowsAndPlayedThreeTimesByThePrompt) {
    begin("keystroke \"x\"");
    const Field field(shell(), Field::Toolkit::gtk);
    startRecording();
    const std::string text = "The quick brown Fox No. 1970 jumps. ";
    person().type(text);
    ASSERT_EQ(field.text(text), text);
    EXPECT_FALSE(shell().shows(recordHere));
    stopRecording();
    press(xkey::p);
    allowKeys();
    EXPECT_EQ(field.text(text + text), text + text);
    press(xkey::m);
    ASSERT_TRUE(eventually([this] { return shell().front() != "field"; })) << shell().front();
    keep("prompt");
    person().type("3");
    person().stroke({xkey::returnKey});
    std::string all;
    for (int i = 0; i < 5; ++i) all += text;
    EXPECT_EQ(field.text(all), all);
    EXPECT_EQ(shell().front(), "field");
}

TEST_F(GnomeRecordingTest, overlayAndPromptAreAboveAFullScreenWindowAndOnlyThePromptTakesKeys) {
    begin("keystroke \"x\"");
    const Field field(shell(), Field::Toolkit::gtk);
    shell().makeFullScreen("field");
    const auto isWhite = [this](int x, int y) {
        return ScreenPicture(shell()).at(x, y) == ScreenPicture::Colour{255, 255, 255};
    };
    // In the lower half, and where the overlay and the prompt will be.
    ASSERT_TRUE(eventually([&] { return isWhite(640, 700) && isWhite(1100, 60) && isWhite(750, 255); }));
    startRecording();
    EXPECT_TRUE(eventually([&] { return !isWhite(1100, 60); }));
    keep("overlay-above-full-screen");
    person().type("ab");
    EXPECT_EQ(field.text("ab"), "ab");
    EXPECT_EQ(shell().front(), "field");
    stopRecording();
    EXPECT_TRUE(eventually([&] { return isWhite(1100, 60); }));
    press(xkey::m);
    ASSERT_TRUE(eventually([&] { return shell().front() != "field" && !isWhite(750, 255); }));
    keep("prompt-above-full-screen");
    person().type("2");
    person().stroke({xkey::returnKey});
    allowKeys();
    EXPECT_EQ(field.text("ababab"), "ababab");
}

TEST_F(GnomeRecordingTest, aPlayWaitsWhileHandsHoldModifiers) {
    begin("keystroke \"a\"\ndelay 3\nkeystroke \"b\"");
    const Field field(shell(), Field::Toolkit::gtk);
    press(xkey::p);
    allowKeys();
    ASSERT_EQ(field.text("a"), "a");
    ASSERT_TRUE(isKeyboardOpen());
    person().press(xkey::control);
    EXPECT_FALSE(eventually([&] { return field.text() != "a"; }, std::chrono::milliseconds(4000)));
    person().release(xkey::control);
    EXPECT_EQ(field.text("ab"), "ab");
    EXPECT_TRUE(eventually([this] { return !isKeyboardOpen(); }));
}

TEST_F(GnomeRecordingTest, aHeldEscapeEndsAPlay) {
    begin("repeat 2000 times\nkeystroke \"x\"\ndelay 0.02\nend repeat");
    const Field field(shell(), Field::Toolkit::gtk);
    press(xkey::p);
    allowKeys();
    ASSERT_TRUE(eventually([&] { return field.text().size() >= 10; }, std::chrono::seconds(20)));
    person().press(xkey::escape);
    ASSERT_TRUE(eventually([this] { return !isKeyboardOpen(); }));
    person().release(xkey::escape);
    EXPECT_LT(field.text().size(), 1900U);
    hands().type("n");
    EXPECT_TRUE(eventually([&] { return field.text().ends_with("xn"); })) << field.text();
}

TEST_F(GnomeRecordingTest, X11WindowsAreRecordedAndPlayedInToo) {
    begin("keystroke \"x\"");
    const Terminal terminal(shell().environment().at("DISPLAY"), {.environment = shell().environment()});
    startRecording();
    person().type("ab");
    ASSERT_EQ(terminal.typed(2), "ab");
    stopRecording();
    press(xkey::p);
    allowKeys();
    EXPECT_EQ(terminal.typed(4), "abab");
}

}  // namespace
