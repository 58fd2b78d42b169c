// SPDX-License-Identifier: MIT
#include <sstream>

#include "platform/KeyCodes.h"
#include "platform/XkbCodes.h"
#include "platform/x11/watch/X11KeyboardLayout.h"
#include "x11/watch/X11Test.h"

namespace {

class X11LayoutTest : public X11Test {
  protected:
    /// Changes the layout and waits until the key is called so.
    void setLayout(const std::string& layout, std::uint32_t keyCode, const std::string& name) {
        hands().finish();
        outputOf({"setxkbmap", "-layout", layout}, environment());
        ASSERT_TRUE(loopUntil([&] { return m_layout.keyName(keyCode) == name; }))
            << m_layout.keyName(keyCode);
    }

    std::map<std::string, std::string> environment() { return {{"DISPLAY", world().display()}}; }

    x11::X11KeyboardLayout m_layout{world().manager()};
};

TEST_F(X11LayoutTest, aChangeOfTheLayoutIsFollowed) {
    hands().tap(xkey::q);
    setLayout("fr", 12, "A");
    hands().tap(xkey::q);
    hands().tap(xkey::one);
    setLayout("de", 41, "Ö");
    hands().tap(xkey::semicolon);
    EXPECT_EQ(delivered("down"), (Log{"down 12 q 0x0", "down 12 a 0x0", "down 18 & 0x0", "down 41 0x0"}));
}

TEST_F(X11LayoutTest, theGroupCountsAtOnce) {
    outputOf({"setxkbmap", "-layout", "us,ru"}, environment());
    ASSERT_TRUE(loopUntil([&] {
        hands().lockGroup(1);
        hands().finish();
        return m_layout.keyName(12) == "Й";
    }));
    delivered();
    hands().tap(xkey::q);
    hands().lockGroup(0);
    hands().tap(xkey::q);
    EXPECT_EQ(delivered("down"), (Log{"down 12 0x0", "down 12 q 0x0"}));
    EXPECT_EQ(m_layout.keyName(12), "Q");
}

TEST_F(X11LayoutTest, umlautsUnderCapsLockAreShapedByShift) {
    setLayout("de", 41, "Ö");
    hands().lock(xmask::capsLock, true);
    hands().tap(xkey::semicolon);
    hands().stroke({xkey::shift, xkey::semicolon});
    EXPECT_EQ(delivered(), (Log{"mask 0x200", "down 41 0x200", "mask 0x0", "up 41", "mask 0x200",
                                "mask 0x800000", "down 41 0x800000", "mask 0x200", "up 41", "mask 0x0"}));
}

// In the mask, and in the code (0x800 + 25), which a script can carry.
TEST_F(X11LayoutTest, aLetterThatOnlyCapsLockMakesCarriesTheLock) {
    setLayout("cz", 25, "Í");
    hands().lock(xmask::capsLock, true);
    hands().tap(xkey::nine);
    hands().stroke({xkey::control, xkey::nine});
    EXPECT_EQ(delivered(), (Log{"mask 0x400", "down 2073 0x400", "mask 0x0", "up 2073", "mask 0x1000",
                                "down 25 0x1000", "up 25", "mask 0x0"}));
}

TEST_F(X11LayoutTest, theThirdLevelChooserGoesIntoTheCode) {
    setLayout("de", 41, "Ö");
    hands().stroke({xkey::altGr, xkey::seven});
    EXPECT_EQ(delivered(), (Log{"down 538 { 0x0", "up 538"}));
    EXPECT_EQ(m_layout.keyName(538), "{");
}

TEST_F(X11LayoutTest, theKeypadIsReportedAsWhatItTypes) {
    hands().tap(xkey::keypadOne);
    hands().tap(xkey::keypadEnter);
    hands().tap(xkey::numLock);
    hands().tap(xkey::keypadOne);
    hands().stroke({xkey::shift, xkey::keypadOne});
    hands().tap(xkey::numLock);
    hands().stroke({xkey::shift, xkey::keypadOne});
    EXPECT_EQ(delivered("down"),
              (Log{"down 119 0x0", "down 76 #13 0x0", "down 83 1 0x0", "down 119 0x200", "down 119 0x200"}));
}

TEST_F(X11LayoutTest, lockKeysAreNoKeyDowns) {
    for (const std::uint8_t key : {xkey::capsLock, xkey::numLock, xkey::altGr}) hands().tap(key);
    for (const std::uint8_t key : {xkey::capsLock, xkey::numLock}) hands().tap(key);
    hands().tap(xkey::a);
    EXPECT_EQ(delivered("down"), Log{"down 0 a 0x0"});
}

TEST_F(X11LayoutTest, manyNotificationsOfTheSameMapCostNothingAndChangeNothing) {
    const KeyboardState* before = &world().manager().keyboard();
    for (int i = 0; i < 5; ++i) outputOf({"setxkbmap", "-layout", "us"}, environment());
    hands().tap(xkey::q);
    EXPECT_EQ(delivered("down"), Log{"down 12 q 0x0"});
    EXPECT_EQ(before, &world().manager().keyboard());
}

/// Key codes to the symbol that the server's own tool shows for the unshifted level.
std::map<unsigned, std::string> symbolsByXmodmap(const std::string& display) {
    std::map<unsigned, std::string> symbols;
    std::istringstream lines(outputOf({"xmodmap", "-pke"}, {{"DISPLAY", display}}));
    for (std::string line; std::getline(lines, line);) {
        std::istringstream words(line);
        std::string word;
        unsigned keycode = 0;
        std::string equals;
        std::string symbol;
        if (words >> word >> keycode >> equals >> symbol) symbols[keycode] = symbol;
    }
    return symbols;
}

TEST_F(X11LayoutTest, letterKeysAreCalledWhatTheServersToolShows) {
    for (const auto& [layout, quote] : {std::pair("us", "'"), {"de", "Ä"}, {"fr", "Ù"}, {"es", "´"}}) {
        setLayout(layout, 39, quote);
        int compared = 0;
        for (const auto& [keycode, symbol] : symbolsByXmodmap(world().display())) {
            if (symbol.size() != 1 || keycode > 255) continue;
            const char expected = static_cast<char>(std::toupper(static_cast<unsigned char>(symbol[0])));
            const auto evdev = xkbcode::toEvdev(keycode);
            EXPECT_EQ(m_layout.keyName(keycode::fromEvdev(evdev)), std::string(1, expected))
                << layout << keycode;
            ++compared;
        }
        EXPECT_GE(compared, 26) << layout;
    }
}

TEST_F(X11LayoutTest, aCharacterIsWhatTheKeyTypesWithShift) {
    setLayout("de", 41, "Ö");
    EXPECT_EQ(m_layout.character(18, false, false).value(), "1");
    EXPECT_EQ(m_layout.character(18, true, false).value(), "!");
    EXPECT_EQ(m_layout.character(0, false, true).value(), "A");
    EXPECT_EQ(m_layout.character(36, false, false).error().message, "The key ↩ types no character.");
}

}  // namespace
