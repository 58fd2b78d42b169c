// SPDX-License-Identifier: MIT
//
// What is asked of the program from outside: by its own command line, by other programs on the session bus,
// by the desktop's menu and by a window manager's key.
#include <chrono>
#include <filesystem>
#include <fstream>
#include <optional>
#include <regex>
#include <set>

#include "desktop/Answer.h"
#include "desktop/BoundKey.h"
#include "desktop/DesktopTest.h"
#include "desktop/SavedMacro.h"
#include "display/NestedServers.h"
#include "display/Typist.h"
#include "support/Programs.h"

namespace {

Answer notNow(const std::string& why) { return {2, "keyrill: " + why + "\n"}; }

class ActionTest : public testing::Test {
  protected:
    ActionTest() {
        desktop.startBus();
        desktop.startWindowManager();
        terminal.emplace(desktop.display());
    }

    Answer answerOf(const std::vector<std::string>& command) const { return ::answerOf(desktop, command); }
    Answer ask(const std::string& action) const {
        return answerOf({programs::keyrill, "--action=" + action});
    }
    /// The same by a program that is none of ours.
    Answer call(const std::string& action, const std::string& parameter = "[]") const {
        return callOnTheBus(desktop, {"org.freedesktop.Application.ActivateAction", action, parameter, "{}"});
    }
    void type(std::initializer_list<std::uint8_t> keycodes) const {
        for (const std::uint8_t keycode : keycodes) typist.tap(keycode);
    }
    void recordAb() const {
        ASSERT_EQ(ask("record"), done);
        type({xkey::a, xkey::b});
        ASSERT_EQ(ask("stop"), done);
    }

    Desktop desktop;
    const Hands hands{desktop.display()};
    const Typist typist{hands, Typist::Gap(30)};
    std::optional<Terminal> terminal;
};

constexpr const char* twentySeconds = R"(repeat 2000 times
tell application "System Events" to key code 0
delay 0.01
end repeat
)";

TEST_F(ActionTest, theFirstOneStartsTheProgramAndTheNextStopAndPlay) {
    EXPECT_EQ(ask("record"), done);
    desktop.awaitWindow(title::overlay);
    type({xkey::a, xkey::b});
    EXPECT_EQ(ask("stop"), done);
    EXPECT_TRUE(eventually([this] { return !desktop.shows(title::overlay); }));
    EXPECT_EQ(terminal->typed(2), "ab");
    EXPECT_EQ(ask("play"), done);
    EXPECT_EQ(terminal->typed(4), "abab");
}

TEST_F(ActionTest, theProgramThatWasStartedForItGoesOn) {
    EXPECT_EQ(ask("record"), done);
    EXPECT_TRUE(eventually([this] { return desktop.isHotKeyTaken(xkey::m); }));
    desktop.awaitWindow(title::overlay);
    desktop.press("ctrl+super+s");
    EXPECT_TRUE(eventually([this] { return !desktop.shows(title::overlay); }));
}

TEST_F(ActionTest, theProgramThatWasStartedForItHasItsName) {
    EXPECT_EQ(ask("record"), done);
    // "(uint32 4711,)"
    const std::string owner = desktop.run(
        {"gdbus", "call", "--session", "-d", "org.freedesktop.DBus", "-o", "/org/freedesktop/DBus", "-m",
         "org.freedesktop.DBus.GetConnectionUnixProcessID", "example.orlen.Keyrill"});
    const std::string process = owner.substr(owner.find(' ') + 1, owner.find(',') - owner.find(' ') - 1);
    EXPECT_EQ(contentOf("/proc/" + process + "/comm"), "keyrill\n") << owner;
}

TEST_F(ActionTest, anyCallerOnTheBusMayAsk) {
    const Keyrill keyrill(desktop);
    EXPECT_EQ(call("record"), (Answer{0, "()\n"}));
    type({xkey::a, xkey::b});
    EXPECT_EQ(call("stop"), (Answer{0, "()\n"}));
    EXPECT_EQ(call("play"), (Answer{0, "()\n"}));
    EXPECT_EQ(terminal->typed(4), "abab");
}

TEST_F(ActionTest, theCallerIsToldWhatCannotBeDone) {
    const Keyrill keyrill(desktop);
    const Answer refused = call("play");
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.output,
              "Error: GDBus.Error:example.orlen.Keyrill.Error.NotNow: There is no macro to play yet.\n");
    EXPECT_TRUE(call("quit").output.starts_with(
        "Error: GDBus.Error:org.freedesktop.DBus.Error.InvalidArgs: There is no action \"quit\". There are: "
        "record, stop, play, multiple, save-pause, macros.\n"));
    EXPECT_TRUE(
        call("record", "[<1>]")
            .output.starts_with(
                "Error: GDBus.Error:org.freedesktop.DBus.Error.InvalidArgs: The action \"record\" takes no "
                "parameter.\n"));
    EXPECT_FALSE(desktop.shows(title::overlay));
}

TEST_F(ActionTest, whatCannotBeDoneNowHasAStatusOfItsOwn) {
    EXPECT_EQ(ask("stop"), notNow("Keyrill is not running."));
    EXPECT_EQ(ask("save-pause"), notNow("Keyrill is not running."));
    const Keyrill keyrill(desktop);
    EXPECT_EQ(ask("stop"), notNow("Nothing is being recorded or played."));
    EXPECT_EQ(ask("play"), notNow("There is no macro to play yet."));
    EXPECT_EQ(ask("multiple"), notNow("There is no macro to play yet."));
    EXPECT_EQ(ask("save-pause"), notNow("Nothing is being recorded."));
    EXPECT_EQ(ask("record"), done);
    EXPECT_EQ(ask("record"), notNow("A macro is being recorded already."));
    EXPECT_EQ(ask("play"), notNow("A macro is being recorded."));
    EXPECT_EQ(ask("stop"), done);
}

TEST_F(ActionTest, itMustBeOneThatThereIs) {
    EXPECT_EQ(ask("quit"),
              (Answer{1,
                      "keyrill: There is no action \"quit\". Choose one of these: record, stop, play, "
                      "multiple, save-pause, macros.\n"}));
    EXPECT_EQ(answerOf({programs::keyrill, "--action=play", "--now"}),
              (Answer{1, "keyrill: There is no option \"--now\". keyrill --help lists them.\n"}));
}

TEST_F(ActionTest, withoutASessionBusItSaysSo) {
    const Keyrill keyrill(desktop);
    desktop.setEnvironment("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    const Answer answer = ask("record");
    EXPECT_EQ(answer.status, 1);
    EXPECT_EQ(answer.output,
              "keyrill: There is no session bus, over which the running Keyrill could be asked. Call it from "
              "within the desktop session; the hot keys and the menu need none.\n");
    EXPECT_FALSE(desktop.shows(title::overlay));
}

TEST_F(ActionTest, withoutADisplayNothingIsStarted) {
    desktop.setEnvironment("DISPLAY", "");
    const Answer answer = ask("record");
    EXPECT_EQ(answer.status, 1);
    EXPECT_TRUE(answer.output.starts_with("keyrill: The X server of display \"\" cannot be reached."))
        << answer.output;
}

TEST_F(ActionTest, theRunningOneIsReachedFromWhereThereIsNoDisplay) {
    const Keyrill keyrill(desktop);
    desktop.setEnvironment("DISPLAY", "");
    EXPECT_EQ(ask("record"), done);
    desktop.awaitWindow(title::overlay);
}

TEST_F(ActionTest, multipleAsksHowOftenAndHasTheFocus) {
    const Keyrill keyrill(desktop);
    recordAb();
    EXPECT_EQ(ask("multiple"), done);
    desktop.awaitFocus(title::prompt);
    desktop.run({"xdotool", "key", "ctrl+a", "3", "Return"});
    EXPECT_EQ(terminal->typed(8), "abababab");
}

TEST_F(ActionTest, macrosShowsTheirWindow) {
    EXPECT_EQ(ask("macros"), done);
    desktop.awaitFocus("Macros");
}

TEST_F(ActionTest, savePauseKeepsTheTimeSinceTheLastKey) {
    desktop.startTray();
    const Keyrill keyrill(desktop);
    ASSERT_EQ(ask("record"), done);
    const auto start = std::chrono::steady_clock::now();
    type({xkey::a});
    EXPECT_EQ(terminal->typed(1), "a");
    // Its answer tells that the program has had the key too.
    EXPECT_EQ(ask("record"), notNow("A macro is being recorded already."));
    constexpr std::chrono::milliseconds pause{700};
    typist.hold(pause);
    EXPECT_EQ(ask("save-pause"), done);
    const std::chrono::duration<double> longest = std::chrono::steady_clock::now() - start;
    ASSERT_EQ(ask("stop"), done);
    const std::string script = savedMacro(desktop);
    const std::regex paused(
        "tell application \"System Events\"\n\tkey code \\(0\\) using \\{\\}\ndelay 0\\.01\n"
        "\tdelay ([0-9.]+)\ndelay 0\\.01\nend tell\n");
    std::smatch parts;
    ASSERT_TRUE(std::regex_match(script, parts, paused)) << script;
    EXPECT_GE(std::stod(parts[1]), std::chrono::duration<double>(pause).count());
    EXPECT_LE(std::stod(parts[1]), longest.count());
}

TEST_F(ActionTest, whileAMacroPlaysOnlyStopIsTaken) {
    const Keyrill keyrill(desktop, twentySeconds);
    EXPECT_EQ(ask("play"), done);
    terminal->typed(20);
    EXPECT_EQ(ask("play"), notNow("Keyrill is playing a macro."));
    EXPECT_EQ(ask("record"), notNow("Keyrill is playing a macro."));
    EXPECT_EQ(ask("stop"), done);
    const std::string typed = terminal->typed();
    EXPECT_LT(typed.size(), 1900U);
    EXPECT_EQ(ask("stop"), notNow("Nothing is being recorded or played."));
    // What was refused is not done later.
    EXPECT_FALSE(desktop.shows(title::overlay));
    type({xkey::b});
    EXPECT_EQ(terminal->typed(typed.size() + 1), typed + "b");
}

TEST_F(ActionTest, stopEndsAMacroInTheMiddleOfAPause) {
    const Keyrill keyrill(desktop, R"(tell application "System Events" to keystroke "x"
delay 1000
tell application "System Events" to keystroke "y"
)");
    EXPECT_EQ(ask("play"), done);
    EXPECT_EQ(terminal->typed(1), "x");
    EXPECT_EQ(ask("multiple"), notNow("Keyrill is playing a macro."));
    EXPECT_EQ(ask("stop"), done);
    type({xkey::b});
    EXPECT_EQ(terminal->typed(2), "xb");
}

TEST_F(ActionTest, stopEndsAMacroThatAsks) {
    const Keyrill keyrill(desktop, R"(repeat
try
display dialog "What now?" with title "Go on?"
end try
end repeat
)");
    EXPECT_EQ(ask("play"), done);
    desktop.awaitFocus("Go on?");
    EXPECT_EQ(ask("record"), notNow("Keyrill is asking something, which has to be answered first."));
    EXPECT_EQ(ask("stop"), done);
    EXPECT_TRUE(eventually([this] { return !desktop.shows("Go on?") && terminal->hasFocus(); }));
    EXPECT_EQ(ask("stop"), notNow("Nothing is being recorded or played."));
}

TEST_F(ActionTest, theBusTellsNothingOfWhatIsRecorded) {
    const Keyrill keyrill(desktop);
    recordAb();
    const std::string object =
        desktop.run({"gdbus", "introspect", "--session", "--dest", "example.orlen.Keyrill", "--object-path",
                     "/example/orlen/Keyrill", "--xml"});
    std::set<std::string> members;
    std::string interface;
    const std::regex element("<(interface|method|signal|property) name=\"([^\"]*)\"");
    for (std::sregex_iterator at(object.begin(), object.end(), element), end; at != end; ++at) {
        if ((*at)[1] == "interface") {
            interface = (*at)[2];
        } else if (!interface.starts_with("org.freedesktop.DBus.")) {
            members.insert(interface + " " + (*at)[1].str() + " " + (*at)[2].str());
        }
    }
    EXPECT_EQ(
        members,
        (std::set<std::string>{
            "org.freedesktop.Application method Activate",
            "org.freedesktop.Application method ActivateAction", "org.freedesktop.Application method Open",
            "example.orlen.Keyrill.Macros method Play", "example.orlen.Keyrill.Macros method PlayFile",
            "example.orlen.Keyrill.Macros method PlayMacro", "example.orlen.Keyrill.Macros method Show"}))
        << object;
}

/// Of the messages that are like that, in what a monitor of the bus has written down; the first group is who
/// has sent it.
std::set<std::string> sendersIn(const std::string& heard, const std::string& like) {
    const std::regex message("(?:^|\n)" + like);
    std::set<std::string> senders;
    for (std::sregex_iterator at(heard.begin(), heard.end(), message), end; at != end; ++at)
        senders.insert((*at)[1]);
    return senders;
}

/// A program that may read all that goes over the bus hears nothing but the question that is asked meanwhile,
/// and its answer.
TEST_F(ActionTest, theBusCarriesNothingWhileKeysAreRecorded) {
    const Keyrill keyrill(desktop);
    ASSERT_EQ(ask("record"), done);
    desktop.awaitWindow(title::overlay);
    const std::string answer =
        desktop.run({"gdbus", "call", "--session", "--dest", "org.freedesktop.DBus", "--object-path", "/",
                     "--method", "org.freedesktop.DBus.GetNameOwner", "example.orlen.Keyrill"});
    const std::string owner = answer.substr(answer.find(':'), answer.rfind('\'') - answer.find(':'));
    const std::string bus = "org.freedesktop.DBus";
    const Child monitor({"dbus-monitor", "--address", desktop.bus().address()},
                        desktop.options("monitor.log"));
    const auto awaitHeard = [this](const std::string& words) {
        ASSERT_TRUE(eventually(
            [&] { return contentOf(desktop.file("monitor.log")).find(words) != std::string::npos; }));
    };
    // It stops being an ordinary client when it begins to read.
    awaitHeard("member=NameLost");
    type({xkey::a, xkey::b});
    EXPECT_EQ(terminal->typed(2), "ab");
    // Its answer tells that the program has had the keys too.
    EXPECT_EQ(ask("record"), notNow("A macro is being recorded already."));
    awaitHeard("\"A macro is being recorded already.\"");
    const std::string heard = contentOf(desktop.file("monitor.log"));
    const std::set<std::string> asking =
        sendersIn(heard, "method call [^\n]*sender=(\\S+)[^\n]*=ActivateAction");
    ASSERT_EQ(asking.size(), 1U) << heard;
    EXPECT_EQ(sendersIn(heard, "(?:method return|error) [^\n]*sender=(\\S+)"), (std::set{bus, owner}))
        << heard;
    EXPECT_EQ(sendersIn(heard, "(?:method call|signal) [^\n]*sender=(\\S+)"),
              (std::set{bus, *asking.begin()}))
        << heard;
    ASSERT_EQ(ask("stop"), done);
}

/// The entry's actions, as desktops offer them beside the program's name.
TEST_F(ActionTest, theMenuEntryRecordsStopsAndPlays) {
    const std::string folder = desktop.file("programs");
    std::filesystem::create_directories(folder);
    std::filesystem::create_symlink(programs::keyrill, folder + "/keyrill");
    desktop.setEnvironment("PATH", folder + ":/usr/bin:/bin");
    const auto launch = [this](const std::string& action) {
        desktop.run(
            {"/usr/bin/python3", "-c", R"(import sys
from gi.repository import Gio
Gio.DesktopAppInfo.new_from_filename(sys.argv[1]).launch_action(sys.argv[2], None))",
             std::filesystem::path(programs::presets).replace_filename("example.orlen.Keyrill.desktop"),
             action});
    };
    launch("record");
    desktop.awaitWindow(title::overlay);
    type({xkey::a, xkey::b});
    launch("stop");
    ASSERT_TRUE(eventually([this] { return !desktop.shows(title::overlay); }));
    launch("play");
    EXPECT_EQ(terminal->typed(4), "abab");
}

class BoundKeyTest : public BoundKey {
  protected:
    BoundKeyTest() {
        desktop.startBus();
        bind("--action=play");
    }
};

TEST_P(BoundKeyTest, playsWhenTheKeysAreLetGo) {
    const Keyrill keyrill(desktop, "tell application \"System Events\" to keystroke \"Hello\"\n");
    expectPlayedWhenTheKeysAreLetGo("Hello");
}

TEST_P(BoundKeyTest, typesNothingWhileAHandHoldsAModifier) {
    const Keyrill keyrill(desktop, "tell application \"System Events\" to keystroke \"Hello\"\n");
    expectNothingWhileAHandHoldsAModifier("Hello");
}

INSTANTIATE_TEST_SUITE_P(EachGap, BoundKeyTest,
                         testing::Values(Typist::Gap(30), Typist::Gap(80), Typist::Gap(150)),
                         [](const auto& gap) { return nameOf(gap.param); });

}  // namespace
