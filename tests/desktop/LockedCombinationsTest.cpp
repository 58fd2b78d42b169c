// SPDX-License-Identifier: MIT
//
// Combinations with Control that are typed under Caps Lock: Shift is part of them where it was held, and
// nowhere else.
#include "desktop/DesktopTest.h"
#include "desktop/SavedMacro.h"
#include "display/Typist.h"

namespace {

constexpr std::uint8_t letterC = 54;

class LockedCombinationsTest : public DesktopTest {
  protected:
    LockedCombinationsTest() { desktop.startTray(); }

    void copyAndCopyWithShift() const {
        typist.stroke({xkey::control, letterC});
        typist.stroke({xkey::control, xkey::shift, letterC});
    }
    void hotKey(std::uint8_t keycode) const { typist.stroke({xkey::control, xkey::super, keycode}); }
    void recordUnderCapsLock() const {
        typist.tap(xkey::capsLock);
        ASSERT_TRUE(isLocked("Caps Lock"));
        hotKey(xkey::r);
        desktop.awaitWindow(title::overlay);
        copyAndCopyWithShift();
        hotKey(xkey::s);
        ASSERT_TRUE(eventually([this] { return !desktop.shows(title::overlay); }));
        ASSERT_TRUE(isLocked("Caps Lock"));
    }

    /// Tells of the modifiers too: escape, the modifiers and 1, the character.
    Terminal terminal{desktop.display(), {.xterm = {"-xrm", "XTerm*vt100.modifyOtherKeys: 2"}}};
    Keyrill keyrill{desktop};
    Hands hands{desktop.display()};
    Typist typist{hands, Typist::Gap(30)};
};

TEST_F(LockedCombinationsTest, keepTheirMasksInTheScript) {
    recordUnderCapsLock();
    typist.tap(xkey::capsLock);
    ASSERT_FALSE(isLocked("Caps Lock"));
    EXPECT_EQ(savedMacro(desktop), R"(tell application "System Events"
	key code (8) using {control down}
delay 0.01
	key code (8) using {shift down, control down}
delay 0.01
end tell
)");
}

TEST_F(LockedCombinationsTest, arriveAsTheyAreTypedWithoutTheLock) {
    copyAndCopyWithShift();
    const std::string typed = "\x1b[27;5;99~\x1b[27;6;67~";
    ASSERT_EQ(terminal.typed(typed.size()), typed);
    recordUnderCapsLock();
    std::string expected = terminal.typed(2 * typed.size());
    for (const bool locked : {true, false}) {
        if (!locked) typist.tap(xkey::capsLock);
        hotKey(xkey::p);
        expected += typed;
        EXPECT_EQ(terminal.typed(expected.size()), expected);
        EXPECT_TRUE(eventually([&] { return isLocked("Caps Lock") == locked; }));
    }
}

}  // namespace
