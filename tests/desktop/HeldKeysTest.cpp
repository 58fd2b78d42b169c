// SPDX-License-Identifier: MIT
#include "desktop/DesktopTest.h"
#include "display/RepeatCount.h"

namespace {

class HeldKeysTest : public DesktopTest {
  protected:
    HeldKeysTest() { desktop.run({"xset", "r", "rate", "100", "50"}); }

    /// Holds Ctrl+Super+key until it has repeated a few times.
    void hold(std::uint8_t keycode) const {
        RepeatCount count(desktop.display(), keycode);
        hands.press(xkey::control);
        hands.press(xkey::super);
        hands.press(keycode);
        hands.finish();
        EXPECT_TRUE(eventually([&] { return count.presses() >= 5; }));
        hands.release(keycode);
        hands.release(xkey::super);
        hands.release(xkey::control);
        hands.finish();
    }

    Hands hands{desktop.display()};
    Terminal terminal{desktop.display()};
    Keyrill keyrill{desktop};
};

TEST_F(HeldKeysTest, recordsAsManyPressesAsTheTerminalGot) {
    record();
    hands.press(xkey::a);
    hands.flush();
    terminal.typed(5);
    hands.release(xkey::a);
    hands.tap(xkey::period);
    hands.finish();
    ASSERT_TRUE(eventually([this] { return terminal.typed().ends_with('.'); }));
    const std::string typed = terminal.typed();
    stop();
    play();
    EXPECT_EQ(terminal.typed(2 * typed.size()), typed + typed);
}

TEST_F(HeldKeysTest, aHeldRecordKeyStartsOneRecording) {
    hold(xkey::r);
    press("a");
    stop();
    play();
    terminal.typed(2);
    press("period");
    EXPECT_EQ(terminal.typed(3), "aa.");
}

TEST_F(HeldKeysTest, aHeldStopKeyEndsTheRecordingOnce) {
    record();
    press("a");
    hold(xkey::s);
    play();
    EXPECT_EQ(terminal.typed(2), "aa");
    record();
    press("b");
    stop();
    play();
    terminal.typed(4);
    press("period");
    EXPECT_EQ(terminal.typed(5), "aabb.");
}

}  // namespace
