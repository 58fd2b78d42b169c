// SPDX-License-Identifier: MIT
//
// keyrill itself under sway: hot keys, playing, the prompt, judged by a native terminal and by sway's
// commands.
#include <gtest/gtest.h>
#include <signal.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "compositor/Foot.h"
#include "compositor/WaylandHands.h"
#include "support/Keys.h"

namespace {

class SwayProgramTest : public testing::Test {
  protected:
    /// `configuration` is the user's, of sway.
    explicit SwayProgramTest(const std::string& configuration = {})
        : m_sway({.configuration = configuration, .hasXServer = true}), m_hands(m_sway.socket()) {
        std::filesystem::create_directories(m_folder.file("presets/keyrill"));
        std::filesystem::copy_file(KEYRILL_PRESETS, m_folder.file("presets/keyrill/keyrill.conf"));
        std::filesystem::create_directories(m_folder.file("home/.config/keyrill"));
        // Nobody is greeted.
        std::ofstream(m_folder.file("home/.config/keyrill/keyrill.conf")) << "[Settings]\nnotFirstRun=true\n";
    }

    /// Starts the program with a macro of these lines, and waits until it has its combinations.
    void start(const std::string& lines) {
        std::ofstream(m_folder.file("macro.keyrill")) << "tell application \"System Events\"\n"
                                                      << lines << "\nend tell\n";
        auto environment = m_sway.environment();
        environment["HOME"] = m_folder.file("home");
        environment["XDG_CONFIG_DIRS"] = m_folder.file("presets");
        environment["XDG_CONFIG_HOME"] = "";
        environment["XDG_DATA_HOME"] = "";
        environment["LC_ALL"] = "C.UTF-8";
        environment["DBUS_SESSION_BUS_ADDRESS"] = "disabled:";
        m_program = std::make_unique<Child>(
            std::vector<std::string>{KEYRILL_PRODUCT, m_folder.file("macro.keyrill")},
            Child::Options{.environment = environment, .outputFile = m_folder.file("log")});
        // Without a tray a small window appears, once the program is up.
        if (!eventually([this] { return shows("Keyrill"); }, std::chrono::seconds(30))) {
            throw std::runtime_error("the program does not start: " + contentOf(m_folder.file("log")));
        }
    }
    bool shows(const std::string& title) const { return m_sway.tries({"[title=\"^" + title + "$\"] nop"}); }

    /// How often sway has taken the preset combination for playing for the program.
    std::size_t timesTaken() const {
        const std::string log = m_sway.log();
        std::size_t times = 0;
        for (std::size_t at = log.find("nop keyrill"); at != std::string::npos;
             at = log.find("nop keyrill", at + 1)) {
            const std::string line = log.substr(at, log.find('\n', at) - at);
            if (line.find("press 33 ") != std::string::npos && line.find(" for device") != std::string::npos)
                ++times;
        }
        return times;
    }

    void strokeHotKey(std::uint8_t key) { m_hands.stroke({xkey::control, xkey::super, key}); }

    const Sway& sway() const { return m_sway; }
    WaylandHands& hands() { return m_hands; }
    Child& program() { return *m_program; }
    const TemporaryFolder& folder() const { return m_folder; }

  private:
    TemporaryFolder m_folder;
    Sway m_sway;
    WaylandHands m_hands;
    std::unique_ptr<Child> m_program;
};

TEST_F(SwayProgramTest, theHotKeyPlaysTheMacroAndNothingOfItIsTyped) {
    start("keystroke \"Grüße 日本\"");
    const Foot foot(sway());
    strokeHotKey(xkey::p);
    const std::string expected = "Grüße 日本";
    EXPECT_EQ(foot.typed(expected.size()), expected);
    hands().stroke({xkey::z});
    EXPECT_EQ(foot.typed(expected.size() + 1), expected + "z");
}

TEST_F(SwayProgramTest, aHeldHotKeyPlaysOnce) {
    start("keystroke \"a\"");
    const Foot foot(sway());
    for (const std::uint8_t key : {xkey::control, xkey::super, xkey::p}) hands().press(key);
    // Sway's keys repeat for so long at least: 10 times after 200 ms.
    EXPECT_FALSE(eventually([&] { return foot.typed().size() > 1; }, std::chrono::milliseconds(700)));
    for (const std::uint8_t key : {xkey::p, xkey::super, xkey::control}) hands().release(key);
    EXPECT_EQ(foot.typed(1), "a");
    strokeHotKey(xkey::p);
    EXPECT_EQ(foot.typed(2), "aa");
}

TEST_F(SwayProgramTest, thePromptPlaysAsOftenAsItIsTold) {
    start("keystroke \"ab\"");
    const Foot foot(sway());
    strokeHotKey(xkey::m);
    // Keys go to no window then.
    ASSERT_TRUE(eventually([this] {
        return sway().message({"-t", "get_seats"}).find("\"focus\": 0,") != std::string::npos;
    }));
    hands().stroke({12});  // 3
    hands().stroke({xkey::returnKey});
    EXPECT_EQ(foot.typed(6), "ababab");
}

TEST_F(SwayProgramTest, recordingSaysThatItIsNotPossible) {
    start("keystroke \"a\"");
    strokeHotKey(xkey::r);
    EXPECT_TRUE(eventually([this] { return shows("Recording is not possible in this session yet"); }))
        << sway().message({"-t", "get_tree"});
}

TEST_F(SwayProgramTest, theStopHotKeyEndsThePlay) {
    start("repeat 1000 times\nkeystroke \"a\"\ndelay 0.02\nend repeat\nkeystroke \"end\"");
    const Foot foot(sway());
    strokeHotKey(xkey::p);
    foot.typed(10);
    strokeHotKey(xkey::s);
    // Of a play that goes on 25 strokes come in this time.
    ASSERT_TRUE(eventually([&] {
        const std::string before = foot.typed();
        return !eventually([&] { return foot.typed() != before; }, std::chrono::milliseconds(500));
    }));
    EXPECT_LT(foot.typed().size(), 1000U);
    EXPECT_EQ(foot.typed().find("end"), std::string::npos);
    hands().stroke({xkey::z});
    ASSERT_TRUE(eventually([&] { return foot.typed().ends_with("az"); })) << foot.typed();
}

TEST_F(SwayProgramTest, theStopHotKeyEndsAMacroThatAsksForEver) {
    start("repeat\ntry\ndisplay dialog \"What now\" with title \"Question\"\nend try\nend repeat");
    const Foot foot(sway());
    strokeHotKey(xkey::p);
    ASSERT_TRUE(eventually([this] { return shows("Question"); }));
    strokeHotKey(xkey::s);
    ASSERT_TRUE(eventually([this] { return !shows("Question"); }));
    // It does not ask again, and plays when it is told to.
    EXPECT_FALSE(eventually([this] { return shows("Question"); }, std::chrono::milliseconds(300)));
    EXPECT_EQ(foot.typed(), "");
    strokeHotKey(xkey::p);
    EXPECT_TRUE(eventually([this] { return shows("Question"); }));
}

TEST_F(SwayProgramTest, ownStrokesReachTheProgramAndFireNothing) {
    start("keystroke \"a\"\nkey code 35 using {control down, command down}\nkeystroke \"b\"");
    const Foot foot(sway());
    strokeHotKey(xkey::p);
    ASSERT_TRUE(eventually([&] { return foot.typed().ends_with("b"); })) << foot.typed();
    EXPECT_GT(foot.typed().size(), 2U) << "the combination did not arrive";
    const std::string once = foot.typed();
    // Taken back afterwards.
    strokeHotKey(xkey::p);
    EXPECT_EQ(foot.typed(2 * once.size()), once + once);
    hands().stroke({xkey::z});
    EXPECT_EQ(foot.typed(2 * once.size() + 1), once + once + "z");
}

TEST_F(SwayProgramTest, itsCombinationsAreFreeWhenItHasEnded) {
    start("keystroke \"a\"");
    const Foot foot(sway());
    program().signal(SIGTERM);
    EXPECT_EQ(program().wait(), 0);
    strokeHotKey(xkey::p);
    hands().stroke({xkey::z});
    ASSERT_TRUE(eventually([&] { return foot.typed().ends_with("z"); }));
    EXPECT_GT(foot.typed().size(), 1U) << "the combination is still taken";
}

TEST_F(SwayProgramTest, aReloadOfTheConfigurationLosesNothing) {
    start("keystroke \"a\"");
    const Foot foot(sway());
    ASSERT_EQ(timesTaken(), 1U);
    sway().message({"reload"});
    ASSERT_TRUE(eventually([this] { return timesTaken() == 2; }));
    strokeHotKey(xkey::p);
    EXPECT_EQ(foot.typed(1), "a");
}

/// Whose own combination is the preset one for playing.
class SwayUsersBindingTest : public SwayProgramTest {
  protected:
    SwayUsersBindingTest() : SwayProgramTest("bindsym Ctrl+Mod4+p exec touch $XDG_RUNTIME_DIR/users") {}
    bool hasFired() const {
        return std::filesystem::exists(sway().environment().at("XDG_RUNTIME_DIR") + "/users");
    }
};

TEST_F(SwayUsersBindingTest, isNeverTakenOver) {
    start("keystroke \"a\"");
    const Foot foot(sway());
    strokeHotKey(xkey::p);
    EXPECT_TRUE(eventually([this] { return hasFired(); }));
    hands().stroke({xkey::z});
    EXPECT_EQ(foot.typed(1), "z");
}

TEST_F(SwayUsersBindingTest, isTakenOnceTheUserGivesItUp) {
    start("keystroke \"a\"");
    const Foot foot(sway());
    sway().configure("");
    sway().message({"reload"});
    ASSERT_TRUE(eventually([this] { return timesTaken() == 1; }));
    strokeHotKey(xkey::p);
    EXPECT_EQ(foot.typed(1), "a");
    EXPECT_FALSE(hasFired());
}

}  // namespace
