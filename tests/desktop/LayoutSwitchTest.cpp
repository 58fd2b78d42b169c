// SPDX-License-Identifier: MIT
//
// A recording in which the layout is switched plays what was typed, however it was switched: keys of that
// kind are strokes of the recording, and where no stroke switches, codes name their layout.
#include "desktop/DesktopTest.h"
#include "display/Typist.h"

namespace {

struct Switching {
    std::string name;
    /// Of setxkbmap.
    std::string option;
    /// Pressed in this order and let go in the opposite one; none where a panel locks the group.
    std::vector<std::uint8_t> keys;
    /// The keys are held as long as the other layout is in force.
    bool isHeld = false;
};

constexpr std::uint8_t rightControl = 105;
constexpr std::uint8_t menuKey = 135;

std::string nameOf(const Switching& switching) { return switching.name; }

class LayoutSwitchTest : public DesktopTest, public testing::WithParamInterface<Switching> {
  protected:
    LayoutSwitchTest() {
        std::vector<std::string> options{"-layout", "us,ru"};
        if (!GetParam().option.empty()) options.insert(options.end(), {"-option", GetParam().option});
        desktop.setLayout(options);
    }

    void down() const {
        for (const std::uint8_t keycode : GetParam().keys) person.press({keycode});
    }
    void up() const {
        for (auto keycode = GetParam().keys.rbegin(); keycode != GetParam().keys.rend(); ++keycode) {
            person.release({*keycode});
        }
    }
    void switchTo(std::uint8_t group) const {
        if (GetParam().keys.empty()) {
            hands.lockGroup(group);
            hands.finish();
        }
        if (!GetParam().isHeld || group == 1) down();
        if (!GetParam().isHeld || group == 0) up();
    }

    Hands hands{desktop.display()};
    Typist person{hands, Typist::Gap(30)};
    Terminal terminal{desktop.display()};
    Keyrill keyrill{desktop};
};

TEST_P(LayoutSwitchTest, playsWhatWasTypedInBothLayouts) {
    record();
    person.tap(xkey::a);
    switchTo(1);
    person.tap(xkey::a);
    person.stroke({xkey::shift, xkey::s});
    person.tap(xkey::one);
    switchTo(0);
    person.tap(xkey::s);
    stop();
    const std::string typed = "aфЫ1s";
    ASSERT_EQ(terminal.typed(typed.size()), typed);
    play();
    EXPECT_EQ(terminal.typed(2 * typed.size()), typed + typed);
    play();
    EXPECT_EQ(terminal.typed(3 * typed.size()), typed + typed + typed);
}

INSTANTIATE_TEST_SUITE_P(
    Ways, LayoutSwitchTest,
    testing::Values(Switching{"panel", "", {}},
                    Switching{"altThenShift", "grp:alt_shift_toggle", {xkey::alt, xkey::shift}},
                    Switching{"shiftThenAlt", "grp:alt_shift_toggle", {xkey::shift, xkey::alt}},
                    Switching{"controlThenShift", "grp:ctrl_shift_toggle", {xkey::control, xkey::shift}},
                    Switching{"shiftThenControl", "grp:ctrl_shift_toggle", {xkey::shift, xkey::control}},
                    Switching{"leftAltThenLeftShift", "grp:lalt_lshift_toggle", {xkey::alt, xkey::shift}},
                    Switching{"leftThenRightShift", "grp:shifts_toggle", {xkey::shift, xkey::rightShift}},
                    Switching{"rightThenLeftShift", "grp:shifts_toggle", {xkey::rightShift, xkey::shift}},
                    Switching{"shiftThenCapsLock", "grp:shift_caps_toggle", {xkey::shift, xkey::capsLock}},
                    Switching{"bothControls", "grp:ctrls_toggle", {xkey::control, rightControl}},
                    Switching{"capsLock", "grp:caps_toggle", {xkey::capsLock}},
                    Switching{"scrollLock", "grp:sclk_toggle", {xkey::scrollLock}},
                    Switching{"rightAltHeld", "grp:switch", {xkey::altGr}, true},
                    Switching{"menuHeld", "grp:menu_switch", {menuKey}, true}),
    nameOfParameter<Switching>);

}  // namespace
