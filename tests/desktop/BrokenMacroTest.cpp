// SPDX-License-Identifier: MIT
#include <sys/stat.h>

#include <filesystem>
#include <fstream>

#include "desktop/Assistant.h"
#include "desktop/DesktopTest.h"
#include "support/Programs.h"

namespace {

/// A macro that cannot do what it says, where nobody shows notifications. The control window stands in for
/// the status item.
TEST_F(DesktopTest, aBrokenMacroIsToldAtTheStatusItemWhereNobodyShowsNotifications) {
    letAssistantsIn(desktop);
    const Terminal terminal{desktop.display()};
    const std::string file = desktop.file("broken.keyrill");
    std::ofstream(file) << "get 1 / 0\n";
    const Child keyrill({programs::keyrill, file}, desktop.options("product.log"));
    ASSERT_TRUE(eventually([this] { return desktop.isHotKeyTaken(xkey::m); }));
    const std::string fault = "The macro was not played to its end. Line 1: Can’t divide 1 by zero.";
    const auto shown = [&] { return desktop.run(assistantCall(keyrill, {"list"})); };
    EXPECT_EQ(shown().find(fault), std::string::npos);
    press("ctrl+super+p");
    EXPECT_TRUE(eventually([&] { return shown().find(fault) != std::string::npos; })) << shown();
    press("period");
    EXPECT_EQ(terminal.typed(1), ".");
}

/// A macro that cannot do what it says, on a desktop with a notification service.
class BrokenMacroTest : public DesktopTest {
  protected:
    BrokenMacroTest() {
        const std::string commands = desktop.file("commands");
        mkfifo(commands.c_str(), 0600);
        desktop.startBus();
        m_service.emplace(std::vector<std::string>{programs::busStandIn, desktop.bus().address(), commands,
                                                   "notifications"},
                          desktop.options("notifications.log"));
        EXPECT_TRUE(eventually([this] { return messages().find("ready\n") != std::string::npos; }));
    }

    /// The program with that macro loaded.
    void start(const std::string& script, const std::string& program = programs::keyrill) {
        const std::string file = desktop.file("broken.keyrill");
        std::ofstream(file) << script;
        m_keyrill.emplace(std::vector<std::string>{program, file}, desktop.options("product.log"));
        ASSERT_TRUE(eventually([this] { return desktop.isHotKeyTaken(xkey::m); }));
        awaitMessages("\"broken.keyrill\" is loaded", 1);
    }
    /// A line for each, as the service got it.
    std::string messages() const { return contentOf(desktop.file("notifications.log")); }
    std::size_t count(const std::string& part) const {
        const std::string all = messages();
        std::size_t found = 0;
        for (std::size_t at = all.find(part); at != std::string::npos; at = all.find(part, at + 1)) ++found;
        return found;
    }

    void awaitMessages(const std::string& title, std::size_t number) const {
        EXPECT_TRUE(eventually([&] { return count("'" + title) == number; })) << messages();
    }

    /// The service gets them in order, so that none comes after the one that is told of a new start.
    void awaitAllMessages() const {
        std::ofstream(desktop.file("last.keyrill")) << "beep\n";
        EXPECT_TRUE(desktop.succeeds({programs::keyrill, desktop.file("last.keyrill")}));
        awaitMessages("\"last.keyrill\" is loaded", 1);
    }

    const Terminal terminal{desktop.display()};

  private:
    std::optional<Child> m_service;
    std::optional<Child> m_keyrill;
};

TEST_F(BrokenMacroTest, isToldWithLineMessageAndHintWhenItIsLoadedAndWhenItIsPlayed) {
    const std::string line =
        "Line 2: Expected “to” but found “=”.\\nA variable is set with “to”: set x to 5.";
    start("beep\nset x = 5\n");
    awaitMessages("\"broken.keyrill\" is loaded but cannot be played', '" + line + "',", 1);
    play();
    awaitMessages("The macro cannot be played', '" + line + "',", 1);
    press("period");
    EXPECT_EQ(terminal.typed(1), ".");
}

/// A program that was copied alone.
TEST_F(BrokenMacroTest, isAnyWhereNoGuardIsBesideTheProgram) {
    const std::string alone = desktop.file("keyrill");
    std::filesystem::copy_file(programs::keyrill, alone);
    start("tell application \"System Events\" to keystroke \"a\"\n", alone);
    play();
    awaitMessages(
        "The macro was not played to its end', 'Line 1: System Events got an error: The guard program "
        "&quot;keyrill-guard&quot;, which releases keys after a crash, could not be started. Install "
        "the program again; nothing is played without its guard.',",
        1);
    press("period");
    EXPECT_EQ(terminal.typed(1), ".");
}

TEST_F(BrokenMacroTest, isToldOnceHoweverOftenAPlayCommandPlaysIt) {
    start("tell application \"System Events\" to keystroke \"a\"\nget 1 / 0\n");
    press("ctrl+super+m");
    desktop.awaitFocus(title::prompt);
    press("3");
    press("Return");
    EXPECT_EQ(terminal.typed(3), "aaa");
    awaitMessages("The macro was not played to its end', 'Line 2: Can’t divide 1 by zero.',", 1);
    play();
    EXPECT_EQ(terminal.typed(4), "aaaa");
    awaitMessages("The macro was not played to its end', 'Line 2: Can’t divide 1 by zero.',", 2);
    press("period");
    EXPECT_EQ(terminal.typed(5), "aaaa.");
    awaitAllMessages();
    EXPECT_EQ(count("'The macro was not played to its end"), 2U) << messages();
}

}  // namespace
