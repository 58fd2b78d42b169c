// SPDX-License-Identifier: MIT
#include "desktop/DesktopTest.h"

namespace {

struct Keyboard {
    std::string name;
    std::vector<std::string> layout;
    std::uint8_t group = 0;
    bool capsLock = false;
    bool numLock = false;
};

/// What is typed on a keyboard of some layout, group and locks is played as it was typed, whatever the Caps
/// Lock is when it is played.
class LayoutTest : public DesktopTest, public testing::WithParamInterface<Keyboard> {
  protected:
    LayoutTest() {
        desktop.setLayout(GetParam().layout);
        if (GetParam().capsLock) press("Caps_Lock");
        if (GetParam().numLock) press("Num_Lock");
        hands.lockGroup(GetParam().group);
        hands.finish();
    }

    /// Letters, digits, signs, the key that is ö on a German keyboard, with Shift and without, and the
    /// keypad.
    void typeKeys() const {
        for (const std::uint8_t keycode : std::vector<std::uint8_t>{38, 29, 52, 10, 15, 47, 61}) {
            hands.tap(keycode);
            hands.stroke({xkey::shift, keycode});
        }
        for (const std::uint8_t keycode : std::vector<std::uint8_t>{79, 88, 91}) hands.tap(keycode);
        hands.finish();
    }

    Hands hands{desktop.display()};
    Terminal terminal{desktop.display()};
    Keyrill keyrill{desktop};
};

TEST_P(LayoutTest, playsWhatWasTyped) {
    typeKeys();
    press("F12");
    // F12 shows that all keys before it have come.
    const std::string end = "\x1b[24~";
    ASSERT_TRUE(eventually([&] { return terminal.typed().ends_with(end); }));
    const std::string typed = terminal.typed().substr(0, terminal.typed().size() - end.size());

    record();
    typeKeys();
    stop();
    ASSERT_EQ(terminal.typed(2 * typed.size() + end.size()), typed + end + typed);
    play();
    EXPECT_EQ(terminal.typed(3 * typed.size() + end.size()), typed + end + typed + typed);
    press("Caps_Lock");
    play();
    EXPECT_EQ(terminal.typed(4 * typed.size() + end.size()), typed + end + typed + typed + typed);
}

std::string nameOf(const testing::TestParamInfo<Keyboard>& info) { return info.param.name; }

INSTANTIATE_TEST_SUITE_P(Keyboards, LayoutTest,
                         testing::Values(Keyboard{"us", {"-layout", "us"}},
                                         Keyboard{"usCapsLock", {"-layout", "us"}, 0, true, false},
                                         Keyboard{"usNumLock", {"-layout", "us"}, 0, false, true},
                                         Keyboard{"de", {"-layout", "de"}},
                                         Keyboard{"deCapsLock", {"-layout", "de"}, 0, true, false},
                                         Keyboard{"deBothLocks", {"-layout", "de"}, 0, true, true},
                                         Keyboard{"fr", {"-layout", "fr"}},
                                         Keyboard{"frCapsLock", {"-layout", "fr"}, 0, true, false},
                                         Keyboard{
                                             "ruInTheSecondGroup", {"-layout", "us,ru"}, 1, false, false}),
                         nameOf);

}  // namespace
