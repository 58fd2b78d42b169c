// SPDX-License-Identifier: MIT
//
// The lowest key code of X, which no keyboard has: programs that type what no key does give it a meaning.
#include "desktop/DesktopTest.h"
#include "desktop/SavedMacro.h"
#include "display/Typist.h"

namespace {

constexpr std::uint8_t lowest = 8;

class LowestKeyTest : public DesktopTest {
  protected:
    LowestKeyTest() { desktop.startTray(); }

    Terminal terminal{desktop.display()};
    Keyrill keyrill{desktop};
    Hands hands{desktop.display()};
    Typist typist{hands, Typist::Gap(30)};
};

TEST_F(LowestKeyTest, isRecordedAndPlayed) {
    desktop.run({"xmodmap", "-e", "keycode 8 = eacute Eacute"});
    record();
    desktop.awaitWindow(title::overlay);
    typist.tap(lowest);
    typist.stroke({xkey::shift, lowest});
    stop();
    const std::string typed = "éÉ";
    ASSERT_EQ(terminal.typed(typed.size()), typed);
    play();
    EXPECT_EQ(terminal.typed(2 * typed.size()), typed + typed);
    EXPECT_EQ(savedMacro(desktop), R"(tell application "System Events"
	key code (4096) using {}
delay 0.01
	key code (4096) using {shift down}
delay 0.01
end tell
)");
}

}  // namespace
