// SPDX-License-Identifier: MIT
#include "app/program/CommandLine.h"

#include <gtest/gtest.h>

#include "platform/sessions/Sessions.h"

namespace {

TEST(CommandLineTest, withoutArgumentsTheProgramStarts) { EXPECT_EQ(readCommandLine({}), CommandLine{}); }

TEST(CommandLineTest, whatIsNoOptionIsAFile) {
    EXPECT_EQ(readCommandLine({"a.keyrill", "-", ""}).files,
              (std::vector<std::string>{"a.keyrill", "-", ""}));
}

TEST(CommandLineTest, behindTwoMinusesEverythingIsAFile) {
    const CommandLine line = readCommandLine({"--", "--help", "--session=x11"});
    EXPECT_EQ(line.files, (std::vector<std::string>{"--help", "--session=x11"}));
    EXPECT_EQ(line.wish, CommandLine::Wish::start);
    EXPECT_EQ(line.session, "");
}

TEST(CommandLineTest, aSessionIsNamed) {
    EXPECT_EQ(readCommandLine({"--session=x11", "a"}), (CommandLine{.session = "x11", .files = {"a"}}));
}

TEST(CommandLineTest, theNameOfASessionMayStandBehindABlank) {
    EXPECT_EQ(readCommandLine({"--session", "x11", "a"}), (CommandLine{.session = "x11", .files = {"a"}}));
    EXPECT_EQ(readCommandLine({"a", "--session"}).unknown, std::vector<std::string>{"--session"});
}

TEST(CommandLineTest, aSessionWithoutItsNameIsRefused) {
    EXPECT_EQ(checkOptions(readCommandLine({"--session="})).error(),
              (Error{"There is no option \"--session=\".", "keyrill --help lists them."}));
}

TEST(CommandLineTest, helpAndVersionAreNoFiles) {
    EXPECT_EQ(readCommandLine({"--help"}), (CommandLine{.wish = CommandLine::Wish::help}));
    EXPECT_EQ(readCommandLine({"-h"}), (CommandLine{.wish = CommandLine::Wish::help}));
    EXPECT_EQ(readCommandLine({"--version"}), (CommandLine{.wish = CommandLine::Wish::version}));
    EXPECT_EQ(readCommandLine({"--check"}), (CommandLine{.wish = CommandLine::Wish::check}));
}

TEST(CommandLineTest, oneThingIsAskedForAtATime) {
    const Error expected = {"\"--play\" is one thing too many.", "Call keyrill once for each."};
    EXPECT_EQ(checkMacroCall(readCommandLine({"--list", "--play", "Greeting"})).error(), expected);
    EXPECT_EQ(checkMacroCall(readCommandLine({"--show=Greeting", "--play", "Greeting"})).error(), expected);
    EXPECT_TRUE(checkMacroCall(readCommandLine({"--list", "--list"})));
}

TEST(CommandLineTest, anActionAndAPlayAreTwoThings) {
    const Error expected = {"\"--action\" is one thing too many.", "Call keyrill once for each."};
    EXPECT_EQ(checkMacroCall(readCommandLine({"--play", "Greeting", "--action=stop"})).error(), expected);
    EXPECT_EQ(checkMacroCall(readCommandLine({"--action=stop", "--play", "Greeting"})).error(), expected);
    EXPECT_EQ(checkMacroCall(readCommandLine({"--list", "--action=stop"})).error(), expected);
    EXPECT_EQ(checkMacroCall(readCommandLine({"--show", "--action=stop"})).error(), expected);
}

TEST(CommandLineTest, anActionIsNamed) {
    EXPECT_EQ(readCommandLine({"--action=play"}), (CommandLine{.action = "play"}));
    EXPECT_EQ(readCommandLine({"--session=x11", "--action", "play"}),
              (CommandLine{.session = "x11", .action = "play"}));
    EXPECT_TRUE(checkAction(readCommandLine({"--action=save-pause"})));
}

TEST(CommandLineTest, anActionThatThereIsNotListsTheOthers) {
    const std::string all = "Choose one of these: record, stop, play, multiple, save-pause, macros.";
    EXPECT_EQ(checkAction(readCommandLine({"--action=quit"})).error(),
              (Error{R"(There is no action "quit".)", all}));
    EXPECT_EQ(checkAction(readCommandLine({"--action="})).error(), (Error{R"(There is no action "".)", all}));
    EXPECT_EQ(checkAction(readCommandLine({"--action"})).error(), (Error{R"(There is no action "".)", all}));
}

TEST(CommandLineTest, anActionTakesNoFile) {
    EXPECT_EQ(
        checkAction(readCommandLine({"--action=play", "a.keyrill"})).error(),
        (Error{R"(An action takes no file, and "a.keyrill" was given.)", "Load it first: keyrill FILE."}));
}

TEST(CommandLineTest, aPlayMayHaveANameTimesAndASpeed) {
    using Wish = CommandLine::Wish;
    EXPECT_EQ(readCommandLine({"--play"}), (CommandLine{.wish = Wish::play}));
    const CommandLine whole{.wish = Wish::play, .times = "3", .speed = "0.5", .files = {"Greeting"}};
    EXPECT_EQ(readCommandLine({"--play", "Greeting", "--times", "3", "--speed", "0.5"}), whole);
    EXPECT_EQ(readCommandLine({"--speed=0.5", "--times=3", "--play=Greeting"}), whole);
    EXPECT_EQ(readCommandLine({"--play", "--", "-name"}),
              (CommandLine{.wish = Wish::play, .files = {"-name"}}));
    EXPECT_EQ(readCommandLine({"--show=Greeting"}), (CommandLine{.wish = Wish::show, .files = {"Greeting"}}));
    EXPECT_EQ(readCommandLine({"--list"}), (CommandLine{.wish = Wish::list}));
    EXPECT_EQ(readCommandLine({"--list=all"}).unknown, std::vector<std::string>{"--list=all"});
}

TEST(CommandLineTest, timesAndSpeedArePlaysAlone) {
    const Error misplaced{"--times and --speed say how --play plays.", "keyrill --help tells more."};
    EXPECT_EQ(checkOptions(readCommandLine({"--times", "3", "a.keyrill"})).error(), misplaced);
    EXPECT_EQ(checkOwnOptions(readCommandLine({"--action=play", "--speed=2"})).error(), misplaced);
    EXPECT_EQ(checkMacroCall(readCommandLine({"--show", "--times=3"})).error(), misplaced);
    EXPECT_TRUE(checkMacroCall(readCommandLine({"--play", "--times=3"})));
}

TEST(CommandLineTest, aPlayTakesOneNameThatIsNotEmpty) {
    EXPECT_EQ(
        checkMacroCall(readCommandLine({"--play", "My", "Macro"})).error(),
        (Error{R"("Macro" is too much.)", R"(A name with blanks is put in quotation marks: "My Macro".)"}));
    EXPECT_EQ(checkMacroCall(readCommandLine({"--play="})).error(),
              (Error{"The name of the macro is empty.", "keyrill --list prints those that there are."}));
    EXPECT_EQ(checkMacroCall(readCommandLine({"--list", "a"})).error(),
              (Error{R"("a" is too much.)", "--list takes no name."}));
    EXPECT_EQ(checkMacroCall(readCommandLine({"--play", "-x"})).error(),
              (Error{R"(There is no option "-x".)", "keyrill --help lists them."}));
}

TEST(CommandLineTest, aHotKeyIsNamedBesideWhatItDoes) {
    const CommandLine action = readCommandLine({"--action=play", "--hot-key=play"});
    EXPECT_EQ(action, (CommandLine{.action = "play", .hotKey = "play"}));
    EXPECT_TRUE(checkOptions(action));
    const CommandLine macro = readCommandLine({"--play=A b.keyrill", "--hot-key=macro-A%20b"});
    EXPECT_EQ(
        macro,
        (CommandLine{.wish = CommandLine::Wish::play, .hotKey = "macro-A%20b", .files = {"A b.keyrill"}}));
    EXPECT_TRUE(checkMacroCall(macro));
    EXPECT_EQ(checkOptions(readCommandLine({"--hot-key=play"})).error(),
              (Error{"There is no option \"--hot-key\".", "keyrill --help lists them."}));
}

TEST(CommandLineTest, theFirstUnknownOptionIsNamed) {
    const CommandLine line = readCommandLine({"-style", "a", "--sesion=x11"});
    EXPECT_EQ(line.unknown, (std::vector<std::string>{"-style", "--sesion=x11"}));
    EXPECT_EQ(checkOptions(line).error(),
              (Error{R"(There is no option "-style".)", "keyrill --help lists them."}));
    EXPECT_TRUE(checkOptions(readCommandLine({"a"})));
}

TEST(CommandLineTest, whereThereIsNoToolkitItsOptionsArePassedOver) {
    EXPECT_TRUE(checkOwnOptions(readCommandLine({"-style", "a"})));
    EXPECT_EQ(checkOwnOptions(readCommandLine({"-style", "a", "--sesion=x11"})).error(),
              (Error{R"(There is no option "--sesion=x11".)", "keyrill --help lists them."}));
}

TEST(CommandLineTest, theUsageListsTheSessions) {
    EXPECT_NE(usage(sessionKinds()).find(" x11\n"), std::string::npos) << usage(sessionKinds());
}

TEST(CommandLineTest, theUsageListsTheActions) {
    EXPECT_NE(usage({}).find(": record, stop, play, multiple, save-pause, macros.\n"), std::string::npos)
        << usage({});
}

}  // namespace
