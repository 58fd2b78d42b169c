// SPDX-License-Identifier: MIT
//
// Taps and holds of modifier keys that are recorded as such, told by the window manager and by another
// client.
#include <sstream>
#include <string>

#include "desktop/DesktopTest.h"
#include "desktop/SavedMacro.h"
#include "display/CoreClient.h"
#include "display/Typist.h"

namespace {

class ModifierKeysTest : public DesktopTest {
  protected:
    ModifierKeysTest() { desktop.startTray(); }

    void start(const std::string& settings) {
        desktop.writeSettings("notFirstRun=true\n" + settings);
        keyrill.emplace(desktop);
    }
    /// Records what is typed.
    template <typename Typing>
    void typed(Typing typing) {
        stroke(xkey::r);
        desktop.awaitWindow(title::overlay);
        typing();
        stroke(xkey::s);
        EXPECT_TRUE(eventually([this] { return !desktop.shows(title::overlay); }));
    }
    void stroke(std::uint8_t key) { typist.stroke({xkey::control, xkey::super, key}); }

    std::optional<Keyrill> keyrill;
    Hands hands{desktop.display()};
    Typist typist{hands, std::chrono::milliseconds(80)};
};

/// Three windows, and how the settings play Alt over Tab, Tab that was typed at leisure.
class HeldAltTest : public ModifierKeysTest {
  protected:
    HeldAltTest() {
        for (int y = 0; y < 3; ++y) {
            windows.push_back(std::make_unique<Terminal>(
                desktop.display(),
                Terminal::Options{.xterm = {"-geometry", "40x5+100+" + std::to_string(200 * y)}}));
        }
    }

    /// All have been used, the last one last.
    void useAll() const {
        for (const auto& window : windows) {
            desktop.run({"xdotool", "mousemove", "--window", window->window(), "50", "20", "click", "1"});
            ASSERT_TRUE(eventually([&] { return isActive(*window) && window->hasFocus(); }));
        }
    }
    /// By the window manager's account, which has none for a moment.
    bool isActive(const Terminal& window) const {
        std::ostringstream expected;
        expected << "_NET_ACTIVE_WINDOW(WINDOW): window id # 0x" << std::hex << std::stoul(window.window())
                 << '\n';
        return desktop.run({"xprop", "-root", "_NET_ACTIVE_WINDOW"}) == expected.str();
    }
    void recordSwitch() {
        useAll();
        typed([this] {
            typist.press({xkey::alt});
            typist.tap(xkey::tab);
            typist.hold(std::chrono::milliseconds(300));
            typist.tap(xkey::tab);
            typist.hold(std::chrono::milliseconds(300));
            typist.release({xkey::alt});
            ASSERT_TRUE(eventually([this] { return isActive(*windows[0]); }));
        });
    }
    void play() {
        useAll();
        stroke(xkey::p);
    }

    std::vector<std::unique_ptr<Terminal>> windows;
};

TEST_F(HeldAltTest, reachesTheThirdWindow) {
    start("recordPauses=1\nrecordModifierKeys=true\n");
    recordSwitch();
    play();
    EXPECT_TRUE(eventually([this] { return isActive(*windows[0]) && windows[0]->hasFocus(); }));
    EXPECT_TRUE(eventually([this] { return desktop.keysDown().empty(); }));
    EXPECT_FALSE(desktop.screen().isKeyboardGrabbed());
    const std::string script = savedMacro(desktop);
    EXPECT_NE(script.find("\tkey down option\n"), std::string::npos) << script;
    EXPECT_NE(script.find("\tkey up option\n"), std::string::npos) << script;
}

TEST_F(HeldAltTest, withoutPausesReachesTheThirdWindowToo) {
    start("recordModifierKeys=true\n");
    recordSwitch();
    play();
    EXPECT_TRUE(eventually([this] { return isActive(*windows[0]) && windows[0]->hasFocus(); }));
}

TEST_F(ModifierKeysTest, aTapOfSuperArrivesAsOne) {
    start("recordModifierKeys=true\n");
    CoreClient client(desktop.display());
    typed([this] {
        typist.tap(xkey::a);
        typist.tap(xkey::super);
        typist.tap(xkey::b);
    });
    EXPECT_EQ(savedMacro(desktop), R"(tell application "System Events"
	key code (0) using {}
delay 0.01
	key code (55) using {}
delay 0.01
	key code (11) using {}
delay 0.01
end tell
)");
    const std::size_t before = client.events().size();
    stroke(xkey::p);
    const std::vector<std::pair<std::uint8_t, bool>> expected = {{xkey::a, true},     {xkey::a, false},
                                                                 {xkey::super, true}, {xkey::super, false},
                                                                 {xkey::b, true},     {xkey::b, false}};
    std::vector<std::pair<std::uint8_t, bool>> got;
    // What the hands pressed to play comes first.
    eventually([&] {
        got.clear();
        for (std::size_t i = before; i < client.events().size(); ++i) {
            got.emplace_back(client.events()[i].keycode, client.events()[i].press);
        }
        const auto first = std::find(got.begin(), got.end(), expected.front());
        got.erase(got.begin(), first);
        return got.size() >= expected.size();
    });
    EXPECT_EQ(got, expected);
}

TEST_F(ModifierKeysTest, aTapIsNotKeptUntilTheUserWantsIt) {
    start("");
    typed([this] {
        typist.tap(xkey::a);
        typist.tap(xkey::super);
        typist.press({xkey::control});
        typist.tap(xkey::a);
        typist.tap(xkey::b);
        typist.release({xkey::control});
    });
    EXPECT_EQ(savedMacro(desktop), R"(tell application "System Events"
	key code (0) using {}
delay 0.01
	key code (0) using {control down}
delay 0.01
	key code (11) using {control down}
delay 0.01
end tell
)");
}

}  // namespace
