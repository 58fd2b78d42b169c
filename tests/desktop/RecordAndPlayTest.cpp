// SPDX-License-Identifier: MIT
#include "desktop/DesktopTest.h"
#include "desktop/SavedMacro.h"

namespace {

class RecordAndPlayTest : public DesktopTest {
  protected:
    RecordAndPlayTest() { desktop.startTray(); }

    Terminal terminal{desktop.display()};
    Keyrill keyrill{desktop};
    Hands hands{desktop.display()};
};

const std::string typedText = "Hello, World 42!\n\x1b[D\x1b[A";

TEST_F(RecordAndPlayTest, theTerminalReceivesThePlayedKeysAsTheyWereTyped) {
    record();
    desktop.run({"xdotool", "type", "Hello, World 42!"});
    desktop.run({"xdotool", "key", "Return", "Left", "Up", "BackSpace"});
    // Backspace is one byte, which one is the terminal's choice.
    const std::string typed = terminal.typed(typedText.size() + 1);
    EXPECT_EQ(typed.substr(0, typedText.size()), typedText);
    stop();
    EXPECT_EQ(keyLines(savedMacro(desktop)), 20U);

    play();
    terminal.typed(2 * typed.size());
    press("period");
    EXPECT_EQ(terminal.typed(2 * typed.size() + 1), typed + typed + ".");
}

TEST_F(RecordAndPlayTest, theScriptHoldsNothingOfTheHotKeys) {
    record();
    press("a");
    stop();
    EXPECT_EQ(savedMacro(desktop),
              R"(tell application "System Events"
	key code (0) using {}
delay 0.01
end tell
)");
}

TEST_F(RecordAndPlayTest, aPlayLeavesNoKeyDownAndNoLockChanged) {
    press("Num_Lock");
    ASSERT_TRUE(isLocked("Num Lock"));
    record();
    press("shift+a");
    stop();
    play();
    EXPECT_EQ(terminal.typed(2), "AA");
    press("period");
    terminal.typed(3);
    EXPECT_EQ(desktop.keysDown(), std::vector<std::string>());
    EXPECT_TRUE(isLocked("Num Lock"));
    EXPECT_FALSE(isLocked("Caps Lock"));
}

TEST_F(RecordAndPlayTest, theSecondRecordKeyEndsTheRecordingToo) {
    record();
    press("a");
    record();
    play();
    EXPECT_EQ(terminal.typed(2), "aa");
}

TEST_F(RecordAndPlayTest, twentyThousandKeysFlatOutAreRecordedInOrder) {
    record();
    // The keys A to L of the middle row with their key codes.
    const std::vector<std::pair<std::uint8_t, std::string>> keys = {
        {38, "0"}, {39, "1"}, {40, "2"}, {41, "3"}, {42, "5"}, {43, "4"}, {44, "38"}, {45, "40"}, {46, "37"}};
    constexpr std::size_t count = 20000;
    std::string expected = "tell application \"System Events\"\n";
    for (std::size_t i = 0; i < count; ++i) {
        const auto& [keycode, code] = keys[(i * i + i / 7) % keys.size()];
        hands.tap(keycode);
        expected += "\tkey code (" + code + ") using {}\ndelay 0.01\n";
    }
    hands.finish();
    stop();
    // Too long to be printed.
    const std::string script = savedMacro(desktop);
    EXPECT_TRUE(script == expected + "end tell\n") << keyLines(script) << " keys";
}

TEST_F(RecordAndPlayTest, aMacroOfTwoThousandKeysArrivesWhole) {
    record();
    constexpr std::size_t count = 2000;
    for (std::size_t i = 0; i < count; ++i) hands.tap(static_cast<std::uint8_t>(xkey::a + i % 9));
    hands.finish();
    const std::string typed = terminal.typed(count);
    stop();
    play();
    EXPECT_EQ(terminal.typed(2 * count, std::chrono::seconds(90)), typed + typed);
}

}  // namespace
