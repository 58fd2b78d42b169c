// SPDX-License-Identifier: MIT
//
// keyrill itself under KWin: hot keys and playing, judged by native text fields.
#include <gtest/gtest.h>
#include <signal.h>

#include <filesystem>

#include "compositor/Field.h"
#include "compositor/KWin.h"
#include "compositor/KWinHands.h"
#include "support/Keys.h"

namespace {

class KWinProgramTest : public testing::TestWithParam<const char*> {
  protected:
    KWinProgramTest()
        : m_kwin({.layouts = GetParam(), .hasXServer = true, .hasPortal = true}), m_hands(m_kwin.socket()) {
        const std::string presets = m_kwin.put("presets/keyrill/keyrill.conf", contentOf(KEYRILL_PRESETS));
        m_presets = std::filesystem::path(presets).parent_path().parent_path();
        // Nobody is greeted.
        m_kwin.put("home/.config/keyrill/keyrill.conf", "[Settings]\nnotFirstRun=true\n");
    }

    /// Starts the program with a macro of these lines, and waits until it is up.
    void start(const std::string& lines) {
        const std::string macro =
            m_kwin.put("home/macro.keyrill", "tell application \"System Events\"\n" + lines + "\nend tell\n");
        m_program = m_kwin.start({KEYRILL_PRODUCT, macro}, "output", {{"XDG_CONFIG_DIRS", m_presets}});
        // Without a tray a small window appears, once the program is up.
        if (!eventually([this] { return m_kwin.shows("Keyrill"); }, std::chrono::seconds(30))) {
            throw std::runtime_error("the program does not start: " + m_kwin.log("output"));
        }
    }
    void strokeHotKey(std::uint8_t key) { m_hands.stroke({xkey::control, xkey::super, key}); }

    const KWin& kwin() const { return m_kwin; }
    KWinHands& hands() { return m_hands; }
    Child& program() { return *m_program; }

  private:
    KWin m_kwin;
    std::string m_presets;
    KWinHands m_hands;
    std::unique_ptr<Child> m_program;
};

TEST_P(KWinProgramTest, theHotKeyPlaysTheMacroAndNothingOfItIsTyped) {
    start("keystroke \"Hello, World!\"");
    const Field field(kwin(), Field::Toolkit::qt);
    strokeHotKey(xkey::p);
    EXPECT_EQ(field.text("Hello, World!"), "Hello, World!");
    strokeHotKey(xkey::p);
    EXPECT_EQ(field.text("Hello, World!Hello, World!"), "Hello, World!Hello, World!");
}

TEST_P(KWinProgramTest, modifiersThatAreStillHeldArePartOfNothingThatIsPlayed) {
    start("keystroke \"abc\"");
    const Field field(kwin(), Field::Toolkit::qt);
    for (const std::uint8_t key : {xkey::control, xkey::super, xkey::p}) hands().press(key);
    // The desktop repeats the hot key meanwhile; nothing is played before it is up.
    EXPECT_FALSE(eventually([&] { return !field.text().empty(); }, std::chrono::milliseconds(1500)));
    for (const std::uint8_t key : {xkey::p, xkey::super, xkey::control}) hands().release(key);
    EXPECT_EQ(field.text("abc"), "abc");
    hands().stroke({xkey::a});
    EXPECT_EQ(field.text("abca"), "abca");
}

/// A digit: with the Control that is held on the way to the hot key it is no command of the field's.
TEST_P(KWinProgramTest, theStopHotKeyEndsThePlay) {
    start("repeat 1000 times\nkeystroke \"1\"\ndelay 0.02\nend repeat\nkeystroke \"end\"");
    const Field field(kwin(), Field::Toolkit::qt);
    strokeHotKey(xkey::p);
    ASSERT_TRUE(eventually([&] { return field.text().size() > 10; }));
    strokeHotKey(xkey::s);
    // Of a play that goes on 25 strokes come in this time.
    ASSERT_TRUE(eventually([&] {
        const std::string before = field.text();
        return !eventually([&] { return field.text() != before; }, std::chrono::milliseconds(500));
    }));
    EXPECT_LT(field.text().size(), 1000U);
    EXPECT_EQ(field.text().find("end"), std::string::npos);
    hands().stroke({xkey::b});
    EXPECT_TRUE(eventually([&] { return field.text().ends_with("1b"); })) << field.text();
}

INSTANTIATE_TEST_SUITE_P(Layouts, KWinProgramTest, testing::Values("us", "de"),
                         [](const auto& layout) { return std::string(layout.param); });

}  // namespace
