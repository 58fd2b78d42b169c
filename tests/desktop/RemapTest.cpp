// SPDX-License-Identifier: MIT
//
// Modifiers that are given to other keys, by xmodmap and by an option of setxkbmap, at whichever moment: the
// keys mean in a recording and in a run what they mean to the applications. A terminal tells by the control
// characters that it gets.
#include <fstream>

#include "desktop/DesktopTest.h"
#include "display/Typist.h"

namespace {

enum class Tool { xmodmap, setxkbmap };

std::string nameOf(Tool tool) { return tool == Tool::xmodmap ? "xmodmap" : "setxkbmap"; }

/// Control and Caps Lock change places.
class RemapTest : public DesktopTest, public testing::WithParamInterface<Tool> {
  protected:
    void swapControl() const {
        if (GetParam() == Tool::setxkbmap) return desktop.setLayout({"-option", "ctrl:swapcaps"});
        std::ofstream(desktop.file("map")) << "clear Lock\nclear Control\n"
                                              "keycode 66 = Control_L\nkeycode 37 = Caps_Lock\n"
                                              "add Lock = Caps_Lock\nadd Control = Control_L Control_R\n";
        desktop.run({"xmodmap", desktop.file("map")});
    }
    /// By places, as hands do it.
    void hotKey(std::uint8_t control, std::uint8_t keycode) const {
        person.stroke({control, xkey::super, keycode});
    }
    /// Waits until the program knows the keymap: the combination does what it is to do.
    void recordWith(std::uint8_t control) const {
        ASSERT_TRUE(eventually([&] {
            hotKey(control, xkey::r);
            return eventually([this] { return desktop.shows(title::overlay); }, std::chrono::seconds(2));
        }));
    }
    void expectTwice(const std::string& typed, std::uint8_t control) {
        ASSERT_EQ(terminal.typed(typed.size()), typed);
        hotKey(control, xkey::s);
        hotKey(control, xkey::p);
        EXPECT_EQ(terminal.typed(2 * typed.size()), typed + typed);
    }
    void start(const std::string& script = {}) { keyrill.emplace(desktop, script); }

    static constexpr std::uint8_t other = xkey::capsLock;

    Hands hands{desktop.display()};
    Typist person{hands, Typist::Gap(30)};
    Terminal terminal{desktop.display()};
    std::optional<Keyrill> keyrill;
};

TEST_P(RemapTest, beforeTheStart) {
    swapControl();
    start();
    recordWith(other);
    person.stroke({other, xkey::a});
    person.tap(xkey::a);
    expectTwice(
        "\x01"
        "a",
        other);
}

TEST_P(RemapTest, whileNothingHappens) {
    start();
    swapControl();
    recordWith(other);
    person.stroke({other, xkey::a});
    person.stroke({xkey::shift, xkey::a});
    expectTwice(
        "\x01"
        "A",
        other);
}

TEST_P(RemapTest, inARecording) {
    start();
    recordWith(xkey::control);
    person.stroke({xkey::control, xkey::a});
    ASSERT_EQ(terminal.typed(1), "\x01");
    swapControl();
    person.hold(std::chrono::milliseconds(200));
    person.stroke({other, xkey::b});
    person.tap(xkey::a);
    expectTwice(
        "\x01\x02"
        "a",
        other);
}

TEST_P(RemapTest, inARun) {
    start(
        "tell application \"System Events\"\nkey code 0 using control down\ndelay 1\n"
        "key code 11 using control down\nkey code 0\nend tell");
    hotKey(xkey::control, xkey::p);
    ASSERT_EQ(terminal.typed(1), "\x01");
    swapControl();
    EXPECT_EQ(terminal.typed(3),
              "\x01\x02"
              "a");
}

INSTANTIATE_TEST_SUITE_P(Tools, RemapTest, testing::Values(Tool::xmodmap, Tool::setxkbmap),
                         nameOfParameter<Tool>);

}  // namespace
