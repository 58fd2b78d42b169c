// SPDX-License-Identifier: MIT
#include "desktop/DesktopTest.h"
#include "display/RepeatCount.h"

namespace {

class HeldKeysTest : public DesktopTest {
  protected:
    HeldKeysTest() { desktop.run({"xset", "r", "rate", "100", "50"}); }

    /// How many recordings have ended.
    std::size_t recordings() const {
        const std::string output = keyrill.output();
        std::size_t count = 0;
        for (std::size_t at = 0; (at = output.find("-- end\n", at)) != std::string::npos; ++at) ++count;
        return count;
    }

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
    stop();
    EXPECT_EQ(Keyrill::keyLines(keyrill.script()), terminal.typed().size());
}

TEST_F(HeldKeysTest, aHeldRecordKeyStartsOneRecording) {
    hold(xkey::r);
    press("a");
    stop();
    EXPECT_EQ(Keyrill::keyLines(keyrill.script()), 1U);
    EXPECT_EQ(recordings(), 1U);
}

TEST_F(HeldKeysTest, aHeldStopKeyEndsTheRecordingOnce) {
    record();
    press("a");
    hold(xkey::s);
    EXPECT_EQ(Keyrill::keyLines(keyrill.script()), 1U);
    record();
    press("b");
    stop();
    EXPECT_EQ(Keyrill::keyLines(keyrill.script(2)), 1U);
    EXPECT_EQ(recordings(), 2U);
}

}  // namespace
