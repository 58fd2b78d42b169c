// SPDX-License-Identifier: MIT
//
// keyrill itself on a desktop that gives programs nothing but portals, as GNOME does: hot keys and playing by
// portals that stand in for the desktop's, in the session of a KWin which the program does not know for one.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "compositor/KWin.h"
#include "linux/desktop/PrivateBus.h"

namespace {

class PortalProgramTest : public testing::Test {
  protected:
    PortalProgramTest() {
        std::filesystem::create_directories(m_folder.file("presets/keyrill"));
        std::filesystem::copy_file(KEYRILL_PRESETS, m_folder.file("presets/keyrill/keyrill.conf"));
        std::filesystem::create_directories(m_folder.file("home/.config/keyrill"));
        // Nobody is greeted.
        std::ofstream(m_folder.file("home/.config/keyrill/keyrill.conf")) << "[Settings]\nnotFirstRun=true\n";
    }

    void havePortal(const std::vector<std::string>& how) { m_portal = std::make_unique<StandIn>(m_bus, how); }
    /// Starts the program with a macro of these lines, and waits until it has asked for its hot keys.
    void start(const std::string& lines) {
        std::ofstream(m_folder.file("macro.keyrill")) << "tell application \"System Events\"\n"
                                                      << lines << "\nend tell\n";
        m_program = run({KEYRILL_PRODUCT, m_folder.file("macro.keyrill")}, "log");
        ASSERT_TRUE(eventually([this] { return m_kwin.shows("Keyrill"); }, std::chrono::seconds(30)))
            << contentOf(m_folder.file("log"));
        ASSERT_TRUE(hears("shortcut stop"));
    }
    std::unique_ptr<Child> run(const std::vector<std::string>& command, const std::string& log) const {
        auto environment = m_kwin.environment();
        // A sanitizer tells whose a leak is by the whole stack alone.
        environment["ASAN_OPTIONS"] = "fast_unwind_on_malloc=0";
        environment["HOME"] = m_folder.file("home");
        environment["XDG_CONFIG_DIRS"] = m_folder.file("presets");
        for (const char* const name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME"})
            environment[name] = "";
        environment["DBUS_SESSION_BUS_ADDRESS"] = m_bus.address();
        environment["DBUS_SYSTEM_BUS_ADDRESS"] = "unix:path=" + m_folder.file("no-bus");
        return std::make_unique<Child>(
            command, Child::Options{.environment = environment, .outputFile = m_folder.file(log)});
    }
    std::string reportOf() const {
        run({KEYRILL_PRODUCT, "--check"}, "report")->wait();
        return contentOf(m_folder.file("report"));
    }
    bool hears(const std::string& text, std::size_t times = 1) {
        return eventually([&] { return m_portal->count(text) >= times; }, std::chrono::seconds(20));
    }
    void strokeHotKey(const std::string& name) {
        m_portal->obey("press " + name);
        m_portal->obey("release " + name);
    }
    StandIn& portal() { return *m_portal; }
    Child& program() { return *m_program; }

  private:
    TemporaryFolder m_folder;
    KWin m_kwin{{.hasXServer = true}};
    PrivateBus m_bus;
    std::unique_ptr<StandIn> m_portal;
    std::unique_ptr<Child> m_program;
};

TEST_F(PortalProgramTest, theHotKeyThatTheDesktopGaveStartsAPlayOfKeysByItsPortal) {
    havePortal({"agrees", "shortcuts", "strict"});
    start("keystroke \"ab\"");
    EXPECT_EQ(portal().count("shortcut play CTRL+LOGO+p Play"), 1U) << portal().heard();
    EXPECT_EQ(portal().count("shortcut multiplePlay CTRL+LOGO+m Play Multiple Times"), 1U);
    EXPECT_EQ(portal().count("shortcut record CTRL+LOGO+r Start Recording"), 1U);
    EXPECT_EQ(portal().count("shortcut stop CTRL+LOGO+s Stop Recording"), 1U);
    strokeHotKey("play");
    ASSERT_TRUE(hears("key 48 0"));
    const std::string heard = portal().heard();
    EXPECT_NE(heard.find("key 30 1\nkey 30 0\nkey 48 1\nkey 48 0\n"), std::string::npos) << heard;
    // The desktop's dialogs come in the order of the user's wishes.
    EXPECT_LT(heard.find("shortcut play"), heard.find("devices"));
}

TEST_F(PortalProgramTest, theStopHotKeyEndsThePlay) {
    havePortal({"agrees", "shortcuts"});
    start("repeat 1000 times\nkeystroke \"1\"\ndelay 0.02\nend repeat\nkeystroke \"b\"");
    strokeHotKey("play");
    ASSERT_TRUE(hears("key 2 0", 10));
    strokeHotKey("stop");
    // Of a play that goes on 25 strokes come in this time.
    ASSERT_TRUE(eventually([&] {
        const std::size_t before = portal().count("key 2 1");
        return !eventually([&] { return portal().count("key 2 1") != before; },
                           std::chrono::milliseconds(500));
    }));
    EXPECT_LT(portal().count("key 2 1"), 1000U);
    EXPECT_EQ(portal().count("key 48 1"), 0U);
    EXPECT_EQ(portal().count("key 2 1"), portal().count("key 2 0"));
}

TEST_F(PortalProgramTest, theHotKeysAreGivenBackAtTheEnd) {
    havePortal({"agrees", "shortcuts"});
    start("keystroke \"a\"");
    program().signal(15);
    EXPECT_EQ(program().wait(), 0);
    EXPECT_TRUE(hears("closed"));
}

TEST_F(PortalProgramTest, theReportSaysWhatThePortalsDo) {
    havePortal({"agrees", "shortcuts"});
    const std::string report = reportOf();
    EXPECT_NE(
        report.find("ok  Hot keys: by the desktop's portal: you choose them when it asks, and later in its "
                    "settings\n"),
        std::string::npos)
        << report;
    EXPECT_NE(report.find("ok  Pressing keys: by the desktop's portal, once you allow it\n"),
              std::string::npos);
    EXPECT_NE(
        report.find("no  Typing text: by the desktop's portal, once you allow it. Only characters that the "
                    "keyboard layout in force has.\n"),
        std::string::npos);
    EXPECT_EQ(portal().count("shortcut"), 0U);
}

}  // namespace
