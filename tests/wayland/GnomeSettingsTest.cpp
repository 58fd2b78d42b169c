// SPDX-License-Identifier: MIT
//
// What keyrill writes into the settings of a real GNOME, and leaves there, and what GNOME makes of it.
#include "compositor/Field.h"
#include "wayland/GnomeSession.h"

namespace {

class GnomeSettingsTest : public GnomeSessionTest {};

TEST_F(GnomeSettingsTest, nothingIsWrittenBeforeTheUserAgreesAndHeIsAskedOnce) {
    start("keystroke \"ab\"");
    ASSERT_TRUE(hasFocus(question)) << log();
    EXPECT_TRUE(listsNone());
    EXPECT_EQ(assistant({"focused"}), "push button|Write Them||focusable|Press SetFocus \n");
    keep("question");
    hands().stroke({xkey::returnKey});
    ASSERT_TRUE(isGone(question));
    awaitHotKeys();
    EXPECT_EQ(at("keyrill-record", "binding"), "'<Control><Super>r'");
    EXPECT_EQ(at("keyrill-record", "name"), "'Keyrill: Start Recording'");
    EXPECT_EQ(at("custom0", "binding"), "'<Control><Alt>e'");
    program().signal(15);
    EXPECT_EQ(program().wait(), 0);
    EXPECT_TRUE(listsNone());
    start("keystroke \"ab\"");
    EXPECT_TRUE(listsAll());
    EXPECT_FALSE(shell().shows(question));
}

TEST_F(GnomeSettingsTest, whoDecidesLaterIsAskedAtTheNextStart) {
    start("keystroke \"ab\"");
    ASSERT_TRUE(hasFocus(question)) << log();
    hands().stroke({xkey::escape});
    ASSERT_TRUE(isGone(question));
    program().signal(15);
    program().wait();
    EXPECT_TRUE(listsNone());
    start("keystroke \"ab\"");
    EXPECT_TRUE(hasFocus(question)) << log();
}

TEST_F(GnomeSettingsTest, whoNeverAgreesIsNotAskedAgain) {
    start("keystroke \"ab\"");
    ASSERT_TRUE(hasFocus(question)) << log();
    assistant({"press", "Never"});
    ASSERT_TRUE(isGone(question));
    program().signal(15);
    program().wait();
    start("keystroke \"ab\"");
    const auto mayWrite = [this] {
        return shell().shows(question) || list().find("keyrill-") != std::string::npos;
    };
    EXPECT_FALSE(eventually(mayWrite, std::chrono::seconds(2)));
    EXPECT_FALSE(isTaken(xkey::r));
}

TEST_F(GnomeSettingsTest, atTheEndTheUsersShortcutsAloneAreLeft) {
    startWithHotKeys("keystroke \"a\"");
    program().signal(15);
    EXPECT_EQ(program().wait(), 0) << log();
    EXPECT_TRUE(listsNone());
    EXPECT_EQ(at("custom0", "command"), "'gedit'");
    EXPECT_EQ(at("keyrill-record", "command"), "''");
    EXPECT_TRUE(eventually([this] { return !isTaken(xkey::r); }));
}

/// The X server goes with the shell.
TEST_F(GnomeSettingsTest, aLogoutTakesThemOutToo) {
    startWithHotKeys("keystroke \"a\"");
    // It has an end of its own for a process whose X server goes.
    const std::string loaded = contentOf("/proc/" + std::to_string(program().pid()) + "/maps");
    ASSERT_NE(loaded.find("/libgtk-3.so"), std::string::npos);
    shell().program().signal(9);
    program().wait();
    EXPECT_TRUE(listsNone());
}

TEST_F(GnomeSettingsTest, whatAnotherShortcutOfTheUsersHasIsRefusedByItsName) {
    setBinding("custom0", "binding", "<Control><Super>p");
    agreeToHotKeys();
    start("keystroke \"a\"");
    EXPECT_TRUE(lists({"multiplePlay", "record", "stop"})) << list();
    EXPECT_NE(assistant({"list"}).find("your own shortcut “Editor” in GNOME's settings has it"),
              std::string::npos)
        << assistant({"list"});
}

TEST_F(GnomeSettingsTest, macrosHaveHotKeysOfTheirOwnUnlessTheyAreGnomesOwn) {
    constexpr const char* lines = "tell application \"System Events\" to keystroke \"cd\"\n";
    session().put("home/.local/share/keyrill/free.keyrill", lines);
    session().put("home/.local/share/keyrill/taken.keyrill", lines);
    // Control and Super with B; Super with A, by which GNOME shows all programs.
    session().put("home/.config/keyrill/macros.conf",
                  "[free.keyrill]\nhotKeyCode=11\nhotKeyFlags=1310720\n"
                  "[taken.keyrill]\nhotKeyCode=0\nhotKeyFlags=1048576\n");
    agreeToHotKeys();
    start("keystroke \"a\"");
    ASSERT_TRUE(lists({"macro-free%2Ekeyrill", "multiplePlay", "play", "record", "stop"})) << list();
    ASSERT_TRUE(eventually([this] { return isTaken(xkey::b); }));
    const Field field(shell(), Field::Toolkit::gtk);
    strokeHotKey(xkey::b);
    allowKeys();
    EXPECT_EQ(field.text("cd"), "cd");
}

TEST_F(GnomeSettingsTest, whatTheUserBindsOtherwiseWorksSo) {
    startWithHotKeys("keystroke \"a\"");
    setBinding("keyrill-record", "binding", "<Control><Super>z");
    ASSERT_TRUE(eventually([this] { return isTaken(xkey::z); }));
    strokeHotKey(xkey::z);
    EXPECT_TRUE(hasFocus(recordHere));
}

TEST_F(GnomeSettingsTest, aHotKeyThatAMacroTypesStartsNothing) {
    startWithHotKeys("keystroke \"a\"\nkeystroke \"r\" using {control down, command down}\nkeystroke \"b\"");
    const Field field(shell(), Field::Toolkit::gtk);
    strokeHotKey(xkey::p);
    allowKeys();
    ASSERT_EQ(field.text("ab"), "ab");
    EXPECT_FALSE(eventually([this] { return shell().shows(recordHere); }, std::chrono::seconds(3)));
}

TEST_F(GnomeSettingsTest, thoseOfAKilledProgramStartIt) {
    startWithHotKeys("keystroke \"a\"");
    program().signal(9);
    program().wait();
    ASSERT_TRUE(isGone("Keyrill"));
    EXPECT_TRUE(listsAll());
    strokeHotKey(xkey::p);
    EXPECT_TRUE(eventually([this] { return shell().shows("Keyrill"); }, std::chrono::seconds(30)));
}

}  // namespace
