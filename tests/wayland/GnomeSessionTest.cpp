// SPDX-License-Identifier: MIT
//
// keyrill under a real GNOME: recorded and played by hot keys that GNOME starts it for. What is typed is
// judged by what a native program has got.
#include <array>

#include "compositor/Field.h"
#include "wayland/GnomeSession.h"

namespace {

TEST_F(GnomeSessionTest, aMacroIsRecordedStoppedAndPlayedByHotKeys) {
    startWithHotKeys("keystroke \"x\"");
    const Field field(shell(), Field::Toolkit::gtk);
    strokeHotKey(xkey::r);
    ASSERT_TRUE(hasFocus(recordHere));
    hands().type("The quick Fox No. 7");
    keep("record-here");
    hands().stroke({xkey::returnKey});
    hands().stroke({xkey::tab});
    hands().type("jumper");
    strokeHotKey(xkey::s);
    ASSERT_TRUE(isGone(recordHere));
    ASSERT_TRUE(hasFocus("field"));
    EXPECT_EQ(field.text(), "");
    const std::string text = "The quick Fox No. 7\n\tjumper";
    strokeHotKey(xkey::p);
    allowKeys();
    EXPECT_EQ(field.text(text), text);
    keep("played");
    // Nobody is asked again.
    letGo();
    strokeHotKey(xkey::p);
    EXPECT_EQ(field.text(text + text), text + text);
    EXPECT_FALSE(shell().shows(portalQuestion));
}

/// Fast and slow, and with one key down before the last one is up.
TEST_F(GnomeSessionTest, unevenHandsAreRecordedInTheirOrder) {
    startWithHotKeys("keystroke \"x\"");
    const Field field(shell(), Field::Toolkit::gtk);
    strokeHotKey(xkey::r);
    ASSERT_TRUE(hasFocus(recordHere));
    constexpr std::array pauses{5, 150, 20, 90, 5, 60, 35, 120};
    const auto wait = [&](std::size_t i) {
        std::this_thread::sleep_for(std::chrono::milliseconds(pauses.at(i % pauses.size())));
    };
    constexpr std::array keys{xkey::a, xkey::b, xkey::r, xkey::a, xkey::z, xkey::p, xkey::q, xkey::s};
    hands().press(keys.front());
    for (std::size_t i = 1; i < keys.size(); ++i) {
        wait(2 * i);
        hands().press(keys.at(i));
        wait(2 * i + 1);
        hands().release(keys.at(i - 1));
    }
    hands().release(keys.back());
    strokeHotKey(xkey::s);
    ASSERT_TRUE(hasFocus("field"));
    strokeHotKey(xkey::p);
    allowKeys();
    EXPECT_EQ(field.text("abrazpqs"), "abrazpqs");
}

TEST_F(GnomeSessionTest, aHeldHotKeyStartsOnePlay) {
    startWithHotKeys("keystroke \"a\"");
    const Field field(shell(), Field::Toolkit::qt);
    strokeHotKey(xkey::p);
    allowKeys();
    ASSERT_EQ(field.text("a"), "a");
    letGo();
    hands().press(xkey::control);
    hands().press(xkey::super);
    hands().press(xkey::p);
    // For as long as it takes to be started again and again.
    std::this_thread::sleep_for(std::chrono::milliseconds(1500));
    hands().release(xkey::p);
    hands().release(xkey::super);
    hands().release(xkey::control);
    ASSERT_EQ(field.text("aa"), "aa");
    EXPECT_FALSE(eventually([&] { return field.text() != "aa"; }, std::chrono::seconds(3)));
}

TEST_F(GnomeSessionTest, theStopCombinationEndsAPlay) {
    startWithHotKeys("repeat 2000 times\nkeystroke \"x\"\ndelay 0.02\nend repeat\nkeystroke \"b\"");
    const Field field(shell(), Field::Toolkit::gtk);
    strokeHotKey(xkey::p);
    allowKeys();
    ASSERT_TRUE(eventually([&] { return field.text().size() >= 10; }, std::chrono::seconds(20)));
    strokeHotKey(xkey::s);
    // Of a play that goes on 25 strokes come in this time.
    ASSERT_TRUE(eventually([&] {
        const std::size_t before = field.text().size();
        return !eventually([&] { return field.text().size() != before; }, std::chrono::milliseconds(500));
    }));
    EXPECT_EQ(field.text(), std::string(field.text().size(), 'x'));
    hands().type("n");
    EXPECT_TRUE(eventually([&] { return field.text().ends_with("xn"); })) << field.text();
}

TEST_F(GnomeSessionTest, whoAllowsNoKeysIsToldSo) {
    startWithHotKeys("keystroke \"a\"");
    const Field field(shell(), Field::Toolkit::gtk);
    strokeHotKey(xkey::p);
    ASSERT_TRUE(hasFocus(portalQuestion));
    hands().stroke({xkey::escape});
    ASSERT_TRUE(isGone(portalQuestion));
    const std::string said =
        "The desktop was not allowed to let Keyrill press keys. Play again, and agree when you are asked.";
    EXPECT_TRUE(eventually([&] { return assistant({"list"}).find(said) != std::string::npos; })) << log();
    keep("not-allowed");
    EXPECT_EQ(field.text(), "");
    strokeHotKey(xkey::p);
    allowKeys();
    EXPECT_EQ(field.text("a"), "a");
}

TEST_F(GnomeSessionTest, theStopCombinationWithdrawsTheQuestion) {
    startWithHotKeys("keystroke \"a\"");
    const Field field(shell(), Field::Toolkit::gtk);
    strokeHotKey(xkey::p);
    ASSERT_TRUE(hasFocus(portalQuestion)) << log();
    strokeHotKey(xkey::s);
    EXPECT_TRUE(isGone(portalQuestion));
    ASSERT_TRUE(hasFocus("field"));
    EXPECT_EQ(field.text(), "");
    letGo();
    strokeHotKey(xkey::p);
    allowKeys();
    EXPECT_EQ(field.text("a"), "a");
}

/// GNOME 43 does not know its answer again.
TEST_F(GnomeSessionTest, onceKeysHaveRestedForAMinuteTheUserIsAskedAgain) {
    startWithHotKeys("keystroke \"a\"");
    const Field field(shell(), Field::Toolkit::gtk);
    strokeHotKey(xkey::p);
    allowKeys();
    ASSERT_EQ(field.text("a"), "a");
    const auto hasSession = [this] {
        return session()
                   .call({"-d", "org.freedesktop.portal.Desktop", "-o",
                          "/org/freedesktop/portal/desktop/session", "-m",
                          "org.freedesktop.DBus.Introspectable.Introspect"})
                   .find("<node name=") != std::string::npos;
    };
    ASSERT_TRUE(hasSession());
    ASSERT_TRUE(eventually([&] { return !hasSession(); }, std::chrono::seconds(90)));
    strokeHotKey(xkey::p);
    allowKeys();
    EXPECT_EQ(field.text("aa"), "aa");
}

TEST_F(GnomeSessionTest, theCommandDoesTheSame) {
    startWithHotKeys("keystroke \"a\"");
    const Field field(shell(), Field::Toolkit::gtk);
    EXPECT_EQ(start({KEYRILL_PRODUCT, "--action=record"}, "action")->wait(), 0);
    ASSERT_TRUE(hasFocus(recordHere));
    hands().type("cd");
    EXPECT_EQ(start({KEYRILL_PRODUCT, "--action=stop"}, "action")->wait(), 0);
    ASSERT_TRUE(hasFocus("field"));
    EXPECT_EQ(start({KEYRILL_PRODUCT, "--action=play"}, "action")->wait(), 0);
    allowKeys();
    EXPECT_EQ(field.text("cd"), "cd");
}

TEST_F(GnomeSessionTest, theReportSaysWhatHolds) {
    startWithHotKeys("keystroke \"a\"");
    const std::string report = reportOf();
    for (const char* const line :
         {"ok  Session: wayland, display gnome\n",
          "ok  Hot keys: by custom shortcuts in GNOME's settings while Keyrill runs, as you have agreed; the "
          "preferences take that back\n",
          "ok  Overlay: above all windows\n",
          "ok  Pressing keys: by the desktop's portal, once you allow it\n",
          "no  Recording: what you type into a window of Keyrill's, \"Record Here\".",
          "ok  Keyrill: is running\n"}) {
        EXPECT_NE(report.find(line), std::string::npos) << line << report;
    }
    EXPECT_EQ(report.find("portal for hot keys, "), std::string::npos) << report;
    EXPECT_TRUE(listsAll());
    assistant({"press", "What Works Here"});
    EXPECT_TRUE(hasFocus("What Works Here"));
    keep("what-works-here");
}

}  // namespace
