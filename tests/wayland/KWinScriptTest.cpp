// SPDX-License-Identifier: MIT
//
// keyrill-script under KWin, by KDE's own portal, judged by what native programs get.
#include <gtest/gtest.h>
#include <signal.h>

#include "compositor/Field.h"
#include "compositor/KWin.h"
#include "compositor/KWinHands.h"
#include "support/Keys.h"

namespace {

class KWinScriptTest : public testing::Test {
  protected:
    explicit KWinScriptTest(const std::string& layouts = "us")
        : m_kwin({.layouts = layouts, .hasPortal = true}), m_hands(m_kwin.socket()) {}

    static std::string keys(const std::string& lines) {
        return "tell application \"System Events\"\n" + lines + "\nend tell\n";
    }
    std::unique_ptr<Child> startWhole(const std::string& script) {
        // The portal answers whoever is the desktop's user.
        return m_kwin.start({KEYRILL_SCRIPT_TOOL, "run", m_kwin.put("home/script", script)}, "output");
    }
    void playWhole(const std::string& script) {
        EXPECT_EQ(startWhole(script)->wait(), 0) << output();
        EXPECT_EQ(output(), "");
    }
    /// Lines inside `tell application "System Events"`.
    std::unique_ptr<Child> start(const std::string& lines) { return startWhole(keys(lines)); }
    void play(const std::string& lines) { playWhole(keys(lines)); }
    std::string output() const { return m_kwin.log("output"); }

    const KWin& kwin() const { return m_kwin; }
    KWinHands& hands() { return m_hands; }

  private:
    KWin m_kwin;
    KWinHands m_hands;
};

/// Lines, and the signs of an American keyboard but those two that are accents in Germany.
constexpr const char* ascii =
    "The quick brown fox jumps over 0123456789 lazy dogs; ~!@#$%&*()-_=+[{]}|:',<.>/? and\\n\\tagain";
constexpr const char* asciiTyped =
    "The quick brown fox jumps over 0123456789 lazy dogs; ~!@#$%&*()-_=+[{]}|:',<.>/? and\n\tagain";

class KWinLayoutTest : public KWinScriptTest, public testing::WithParamInterface<const char*> {
  protected:
    KWinLayoutTest() : KWinScriptTest(GetParam()) {}
};

TEST_P(KWinLayoutTest, aQtFieldGetsExactlyTheText) {
    const Field field(kwin(), Field::Toolkit::qt);
    play(std::string("keystroke \"") + ascii + "\"");
    EXPECT_EQ(field.text(asciiTyped), asciiTyped);
}

TEST_P(KWinLayoutTest, aGtkFieldGetsExactlyTheText) {
    const Field field(kwin(), Field::Toolkit::gtk);
    play(std::string("keystroke \"") + ascii + "\"");
    EXPECT_EQ(field.text(asciiTyped), asciiTyped);
}

INSTANTIATE_TEST_SUITE_P(Layouts, KWinLayoutTest, testing::Values("us", "de"),
                         [](const auto& layout) { return std::string(layout.param); });

class KWinGermanTest : public KWinScriptTest {
  protected:
    KWinGermanTest() : KWinScriptTest("de") {}
};

TEST_F(KWinGermanTest, keyCodesAreKeysOfTheUsersLayout) {
    const Field field(kwin(), Field::Toolkit::qt);
    // The keys that are Y and Z on an American keyboard, then what the layout has beside ASCII.
    play("key code 16\nkey code 6\nkeystroke \"äÖß€@\"");
    EXPECT_EQ(field.text("zyäÖß€@"), "zyäÖß€@");
}

TEST_F(KWinScriptTest, aCharacterOfNoLayoutIsNamedAndNothingIsTyped) {
    const Field field(kwin(), Field::Toolkit::qt);
    EXPECT_EQ(start("keystroke \"abcé\"")->wait(), 1);
    EXPECT_NE(output().find("The character \"é\" (U+00E9) cannot be typed with your keyboard layouts."),
              std::string::npos)
        << output();
    hands().stroke({xkey::z});
    EXPECT_EQ(field.text("z"), "z");
}

class KWinTwoLayoutsTest : public KWinScriptTest {
  protected:
    KWinTwoLayoutsTest() : KWinScriptTest("us,ru") {}
};

TEST_F(KWinTwoLayoutsTest, theOtherLayoutIsTakenForWhatItHasAndGivenBack) {
    const Field field(kwin(), Field::Toolkit::qt);
    play("repeat 5 times\nkeystroke \"ab Привет cd\"\nend repeat");
    hands().stroke({xkey::z});
    const std::string once = "ab Привет cd";
    const std::string expected = once + once + once + once + once + "z";
    EXPECT_EQ(field.text(expected), expected);
}

TEST_F(KWinScriptTest, combinationsArrive) {
    const Field field(kwin(), Field::Toolkit::qt);
    // All of it is chosen, and typed over.
    play("keystroke \"abc\"\nkeystroke \"a\" using control down\nkeystroke \"x\"");
    EXPECT_EQ(field.text("x"), "x");
}

class KWinWindowsTest : public KWinScriptTest {
  protected:
    /// The lines that wait for the windows of both fields.
    static std::string awaitFields() {
        std::string lines;
        for (const char* const name : {"GTK Application", "keyrill_qt_field"}) {
            lines += keys(std::string("repeat until (exists (processes whose name is \"") + name +
                          "\"))\ndelay 0.05\nend repeat");
        }
        return lines;
    }
    /// Whether KWin has a script of ours.
    bool hasScript() const {
        return kwin().call({"-d", "org.kde.KWin", "-o", "/Scripting", "-m",
                            "org.kde.kwin.Scripting.isScriptLoaded", "example.orlen.Keyrill"}) !=
               "(false,)\n";
    }
};

TEST_F(KWinWindowsTest, aScriptBringsAProgramToTheFront) {
    const Field gtk(kwin(), Field::Toolkit::gtk);
    const Field qt(kwin(), Field::Toolkit::qt);
    playWhole(awaitFields() + "tell application \"GTK Application\" to activate\n" +
              keys("keystroke \"one\"") + "activate application \"Keyrill_Qt_Field\"\n" +
              keys("keystroke \"two\""));
    EXPECT_EQ(gtk.text("one"), "one");
    EXPECT_EQ(qt.text("two"), "two");
    hands().stroke({xkey::z});
    EXPECT_EQ(qt.text("twoz"), "twoz");
    EXPECT_TRUE(eventually([this] { return !hasScript(); }));
}

TEST_F(KWinWindowsTest, programsAreNamedFromTheFrontOn) {
    const Field qt(kwin(), Field::Toolkit::qt);
    const Field gtk(kwin(), Field::Toolkit::gtk);
    playWhole(awaitFields() +
              "activate application \"GTK Application\"\nset text item delimiters to \",\"\n" +
              keys("set found to name of every process\nkeystroke found as text\n"
                   "keystroke (exists (processes whose name is \"nobody\")) as text"));
    EXPECT_EQ(gtk.text("GTK Application,keyrill_qt_fieldfalse"), "GTK Application,keyrill_qt_fieldfalse");
}

TEST_F(KWinWindowsTest, aProgramThatHasNoWindowIsNotThere) {
    const Field field(kwin(), Field::Toolkit::qt);
    EXPECT_EQ(startWhole("activate application \"nobody\"")->wait(), 1);
    EXPECT_NE(output().find("-1728"), std::string::npos) << output();
}

/// As of a process that was killed before it had the script run.
TEST_F(KWinWindowsTest, aScriptThatWasLeftLoadedGoesWithTheNext) {
    const Field gtk(kwin(), Field::Toolkit::gtk);
    const Field qt(kwin(), Field::Toolkit::qt);
    const std::string file = kwin().put("home/left.js", "workspace.activeClient = null;\n");
    kwin().call({"-d", "org.kde.KWin", "-o", "/Scripting", "-m", "org.kde.kwin.Scripting.loadScript", file,
                 "example.orlen.Keyrill"});
    ASSERT_TRUE(hasScript());
    playWhole(awaitFields() + "activate application \"GTK Application\"\n" + keys("keystroke \"one\""));
    EXPECT_EQ(gtk.text("one"), "one");
    EXPECT_TRUE(eventually([this] { return !hasScript(); }));
}

TEST_F(KWinScriptTest, capsLockChangesNothingOfATextAndIsOnAgainAfterIt) {
    const Field field(kwin(), Field::Toolkit::qt);
    hands().stroke({xkey::capsLock});
    play("keystroke \"abCD 1!\"");
    EXPECT_EQ(field.text("abCD 1!"), "abCD 1!");
    hands().stroke({xkey::z});
    EXPECT_EQ(field.text("abCD 1!Z"), "abCD 1!Z");
}

TEST_F(KWinScriptTest, capsLockIsOnAgainWhereTheRunIsKilled) {
    const Field field(kwin(), Field::Toolkit::qt);
    hands().stroke({xkey::capsLock});
    const auto player = start("keystroke \"" + std::string(3000, 'a') + "\"");
    ASSERT_TRUE(eventually([&] { return field.text().ends_with("aaa"); })) << field.text();
    player->signal(SIGKILL);
    player->wait();
    // Whoever puts it back needs a moment.
    ASSERT_TRUE(eventually([&] {
        hands().stroke({xkey::z});
        return field.text().ends_with("Z");
    })) << field.text();
    EXPECT_LT(field.text().size(), 3000U);
}

class KWinDeathTest : public KWinScriptTest, public testing::WithParamInterface<int> {};

TEST_P(KWinDeathTest, noKeyStaysDown) {
    const Field field(kwin(), Field::Toolkit::qt);
    const auto player = start("key down shift\nkeystroke \"a\"\ndelay 60");
    ASSERT_EQ(field.text("A"), "A");
    player->signal(GetParam());
    player->wait();
    // Whoever releases it needs a moment; each stroke before types a capital.
    ASSERT_TRUE(eventually([&] {
        hands().stroke({xkey::z});
        return field.text().ends_with("z");
    })) << field.text();
}

INSTANTIATE_TEST_SUITE_P(Signals, KWinDeathTest, testing::Values(SIGKILL, SIGTERM));

}  // namespace
