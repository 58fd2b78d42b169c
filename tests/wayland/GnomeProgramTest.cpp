// SPDX-License-Identifier: MIT
//
// keyrill itself on a GNOME that gives programs no hot keys: its portal for keys and its shell's name by a
// stand-in, its settings in a file, and its user's presses by a stand-in that starts what is bound there.
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <thread>

#include "compositor/KWin.h"
#include "compositor/KWinHands.h"
#include "linux/desktop/PrivateBus.h"
#include "support/Keys.h"

namespace {

constexpr const char* schema = "org.gnome.settings-daemon.plugins.media-keys";
const std::string folder = "/org/gnome/settings-daemon/plugins/media-keys/custom-keybindings/";
const std::string users = "'" + folder + "custom0/'";
const std::string question = "May Keyrill write its hot keys into GNOME's settings?";

class GnomeProgramTest : public testing::Test {
  protected:
    GnomeProgramTest() {
        std::filesystem::create_directories(m_folder.file("presets/keyrill"));
        std::filesystem::copy_file(KEYRILL_PRESETS, m_folder.file("presets/keyrill/keyrill.conf"));
        std::filesystem::create_directories(m_folder.file("home/.config/keyrill"));
        std::filesystem::create_directories(m_folder.file("home/.local/share/keyrill"));
        // Nobody is greeted.
        put(".config/keyrill/keyrill.conf", "[Settings]\nnotFirstRun=true\n");
        set("custom-keybinding:" + folder + "custom0/", "name", "Editor");
        set("custom-keybinding:" + folder + "custom0/", "command", "gedit");
        set("custom-keybinding:" + folder + "custom0/", "binding", "<Control><Alt>e");
        gsettings({"set", schema, "custom-keybindings", "[" + users + "]"});
    }

    void put(const std::string& name, const std::string& content) const {
        std::ofstream(m_folder.file("home/" + name)) << content;
    }
    void decide(bool isAllowed) const {
        put(".config/keyrill/keyrill.conf",
            std::string("[Settings]\nnotFirstRun=true\nwriteHotKeys=") + (isAllowed ? "true\n" : "false\n"));
    }
    std::string settings() const { return contentOf(m_folder.file("home/.config/keyrill/keyrill.conf")); }
    /// Starts the program with a macro of these lines.
    void start(const std::string& lines = "keystroke \"ab\"") {
        put("macro.keyrill", "tell application \"System Events\"\n" + lines + "\nend tell\n");
        m_program = run({KEYRILL_PRODUCT, m_folder.file("home/macro.keyrill")}, "log");
        ASSERT_TRUE(eventually([this] { return m_kwin.shows("Keyrill"); }, std::chrono::seconds(30)))
            << contentOf(m_folder.file("log"));
    }
    std::unique_ptr<Child> run(const std::vector<std::string>& command, const std::string& log) const {
        return std::make_unique<Child>(
            command, Child::Options{.environment = environment(), .outputFile = m_folder.file(log)});
    }
    std::map<std::string, std::string> environment() const {
        auto environment = m_kwin.environment();
        // A sanitizer tells whose a leak is by the whole stack alone.
        environment["ASAN_OPTIONS"] = "fast_unwind_on_malloc=0";
        environment["HOME"] = m_folder.file("home");
        environment["XDG_CONFIG_DIRS"] = m_folder.file("presets");
        for (const char* const name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME"})
            environment[name] = "";
        environment["DBUS_SESSION_BUS_ADDRESS"] = m_bus.address();
        environment["DBUS_SYSTEM_BUS_ADDRESS"] = "unix:path=" + m_folder.file("no-bus");
        environment["GSETTINGS_BACKEND"] = "keyfile";
        return environment;
    }
    std::string reportOf() const {
        run({KEYRILL_PRODUCT, "--check"}, "report")->wait();
        return contentOf(m_folder.file("report"));
    }

    // What another program finds there, and does.
    std::string gsettings(std::vector<std::string> arguments) const {
        arguments.insert(arguments.begin(), "gsettings");
        auto output = outputOf(arguments, environment());
        while (output.ends_with('\n')) output.pop_back();
        return output;
    }
    void set(const std::string& where, const char* key, const std::string& value) const {
        gsettings({"set", std::string(schema) + "." + where, key, value});
    }
    std::string at(const std::string& name, const char* key) const {
        return gsettings({"get", std::string(schema) + ".custom-keybinding:" + folder + name + "/", key});
    }
    std::string list() const { return gsettings({"get", schema, "custom-keybindings"}); }
    bool lists(const std::vector<std::string>& names) const {
        std::string wanted = "[" + users;
        for (const std::string& name : names) wanted += ", '" + folder + "keyrill-" + name + "/'";
        return eventually([&] { return list() == wanted + "]"; }, std::chrono::seconds(20));
    }
    bool listsAll() const { return lists({"multiplePlay", "play", "record", "stop"}); }
    /// Whether the user presses something that is bound.
    bool userPresses(const std::string& accelerator, int times = 1) const {
        return run({KEYRILL_MEDIA_KEYS, accelerator, std::to_string(times)}, "pressed")->wait() == 0;
    }
    bool asks() const {
        return eventually([this] { return m_kwin.focus(question) && m_kwin.hasFocus(question); },
                          std::chrono::seconds(20));
    }
    bool hears(const std::string& text, std::size_t times = 1) const {
        return eventually([&] { return m_portal.count(text) >= times; }, std::chrono::seconds(20));
    }
    void kill(int signal) {
        m_program->signal(signal);
        m_program->wait();
    }

    const StandIn& portal() const { return m_portal; }
    Child& program() { return *m_program; }
    KWin& kwin() { return m_kwin; }
    std::string log() const { return contentOf(m_folder.file("log")); }

  private:
    TemporaryFolder m_folder;
    KWin m_kwin{{.hasXServer = true}};
    PrivateBus m_bus;
    StandIn m_portal{m_bus, {"agrees", "gnome"}};
    std::unique_ptr<Child> m_program;
};

TEST_F(GnomeProgramTest, theHotKeysStandAmongTheUsersShortcuts) {
    decide(true);
    start();
    ASSERT_TRUE(listsAll()) << list();
    EXPECT_EQ(at("keyrill-record", "binding"), "'<Control><Super>r'");
    EXPECT_EQ(at("keyrill-stop", "binding"), "'<Control><Super>s'");
    EXPECT_EQ(at("keyrill-play", "binding"), "'<Control><Super>p'");
    EXPECT_EQ(at("keyrill-multiplePlay", "binding"), "'<Control><Super>m'");
    EXPECT_EQ(at("keyrill-record", "name"), "'Keyrill: Start Recording'");
    EXPECT_NE(at("keyrill-multiplePlay", "command").find("--action=multiple"), std::string::npos);
    EXPECT_EQ(at("custom0", "command"), "'gedit'");
}

TEST_F(GnomeProgramTest, aPressStartsThePlayOnceHoweverLongItIsHeld) {
    decide(true);
    start("keystroke \"ab\"\nkeystroke \"c\"");
    ASSERT_TRUE(listsAll());
    ASSERT_TRUE(userPresses("<Control><Super>p", 4));
    ASSERT_TRUE(hears("key 46 0"));
    EXPECT_NE(portal().heard().find("key 30 1\nkey 30 0\nkey 48 1\nkey 48 0\nkey 46 1\nkey 46 0\n"),
              std::string::npos)
        << portal().heard();
    // A press that comes too soon would be taken for one more of the same. Whatever else were played would
    // come before this one.
    std::this_thread::sleep_for(std::chrono::seconds(1));
    ASSERT_TRUE(userPresses("<Control><Super>p"));
    ASSERT_TRUE(hears("key 46 0", 2));
    EXPECT_EQ(portal().count("key 30 1"), 2U);
}

TEST_F(GnomeProgramTest, aPressOfStopEndsThePlay) {
    decide(true);
    start("repeat 1000 times\nkeystroke \"1\"\ndelay 0.02\nend repeat\nkeystroke \"b\"");
    ASSERT_TRUE(listsAll());
    ASSERT_TRUE(userPresses("<Control><Super>p"));
    ASSERT_TRUE(hears("key 2 0", 10));
    ASSERT_TRUE(userPresses("<Control><Super>s"));
    // Of a play that goes on 25 strokes come in this time.
    ASSERT_TRUE(eventually([&] {
        const std::size_t before = portal().count("key 2 1");
        return !eventually([&] { return portal().count("key 2 1") != before; },
                           std::chrono::milliseconds(500));
    }));
    EXPECT_LT(portal().count("key 2 1"), 1000U);
    EXPECT_EQ(portal().count("key 48 1"), 0U);
}

TEST_F(GnomeProgramTest, aMacroOfTheLibraryIsPlayedByItsHotKey) {
    decide(true);
    put(".local/share/keyrill/A b.keyrill", "tell application \"System Events\" to keystroke \"x\"\n");
    put(".config/keyrill/macros.conf", "[A b.keyrill]\nhotKeyCode=18\nhotKeyFlags=1310720\n");
    start();
    ASSERT_TRUE(lists({"macro-A%20b%2Ekeyrill", "multiplePlay", "play", "record", "stop"})) << list();
    EXPECT_EQ(at("keyrill-macro-A%20b%2Ekeyrill", "binding"), "'<Control><Super>1'");
    EXPECT_NE(at("keyrill-macro-A%20b%2Ekeyrill", "command").find("'--play=A b.keyrill'"), std::string::npos);
    ASSERT_TRUE(userPresses("<Control><Super>1"));
    EXPECT_TRUE(hears("key 45 0"));
}

TEST_F(GnomeProgramTest, atTheEndTheUsersAloneAreLeft) {
    decide(true);
    start();
    ASSERT_TRUE(listsAll());
    program().signal(15);
    EXPECT_EQ(program().wait(), 0) << log();
    EXPECT_EQ(list(), "[" + users + "]");
    EXPECT_EQ(at("custom0", "binding"), "'<Control><Alt>e'");
    EXPECT_EQ(at("keyrill-record", "command"), "''");
}

TEST_F(GnomeProgramTest, whatAKilledProgramHasLeftGoesAtTheNextStart) {
    decide(true);
    start();
    ASSERT_TRUE(listsAll());
    kill(9);
    EXPECT_TRUE(listsAll());
    decide(false);
    start();
    EXPECT_TRUE(lists({})) << list();
    EXPECT_EQ(at("keyrill-record", "command"), "''");
    EXPECT_EQ(at("custom0", "command"), "'gedit'");
}

TEST_F(GnomeProgramTest, nothingIsWrittenBeforeTheUserAgrees) {
    start();
    ASSERT_TRUE(asks()) << log();
    EXPECT_EQ(list(), "[" + users + "]");
    KWinHands(kwin().socket()).stroke({xkey::returnKey});
    EXPECT_TRUE(listsAll()) << list();
    EXPECT_TRUE(eventually([this] { return settings().find("writeHotKeys=true") != std::string::npos; }));
    kill(15);
    start();
    EXPECT_TRUE(listsAll());
    EXPECT_FALSE(kwin().shows(question));
}

TEST_F(GnomeProgramTest, whoDecidesLaterIsAskedAtTheNextStart) {
    start();
    ASSERT_TRUE(asks());
    KWinHands(kwin().socket()).stroke({xkey::escape});
    ASSERT_TRUE(eventually([this] { return !kwin().shows(question); }));
    kill(15);
    EXPECT_EQ(settings().find("writeHotKeys"), std::string::npos) << settings();
    EXPECT_EQ(list(), "[" + users + "]");
    start();
    EXPECT_TRUE(asks());
}

TEST_F(GnomeProgramTest, theReportSaysWhatHoldsAndHowToChangeIt) {
    EXPECT_NE(
        reportOf().find(
            "no  Hot keys: This version of GNOME has hot keys for programs only as custom shortcuts in your "
            "own settings, and you have not agreed that Keyrill writes them.\n        Tick the box in "
            "Keyrill's preferences, or bind keys to commands such as \"keyrill --action=play\" in "
            "GNOME's settings yourself.\n"),
        std::string::npos)
        << reportOf();
    decide(true);
    EXPECT_NE(
        reportOf().find("ok  Hot keys: by custom shortcuts in GNOME's settings while Keyrill runs, as you "
                        "have agreed; the preferences take that back\n"),
        std::string::npos)
        << reportOf();
    EXPECT_EQ(list(), "[" + users + "]");
}

}  // namespace
