// SPDX-License-Identifier: MIT
//
// Macros of the macro folder, and files, that are played and shown from outside: by a shell, a launcher,
// another program on the session bus, a window manager's key.
#include <chrono>
#include <filesystem>
#include <fstream>
#include <optional>
#include <regex>

#include "desktop/Answer.h"
#include "desktop/BoundKey.h"
#include "desktop/DesktopTest.h"
#include "display/CoreClient.h"
#include "display/Typist.h"
#include "support/Programs.h"

namespace fs = std::filesystem;

namespace {

std::string typing(const std::string& text) {
    return R"(tell application "System Events" to keystroke ")" + text + "\"\n";
}

/// Not done, and why.
Answer refused(const std::string& why) { return {1, "keyrill: " + why + "\n"}; }
Answer misused(const std::string& why) { return {2, "keyrill: " + why + "\n"}; }

/// A desktop with a bus and a macro "Greeting", and `keyrill` on the path.
class MacroCalls {
  public:
    explicit MacroCalls(Desktop& desktop) : m_desktop(desktop) {
        desktop.startBus();
        fs::create_directories(folder);
        drop("Greeting", typing("hello"));
        fs::create_directories(desktop.file("programs"));
        fs::create_symlink(programs::keyrill, desktop.file("programs/keyrill"));
        desktop.setEnvironment("PATH", desktop.file("programs") + ":/usr/bin:/bin");
    }

    /// Puts a macro there as a whole.
    void drop(const std::string& name, const std::string& text) const {
        std::ofstream(m_desktop.file("new")) << text;
        fs::create_directories(fs::path(folder + "/" + name).parent_path());
        fs::rename(m_desktop.file("new"), folder + "/" + name + ".keyrill");
    }

  private:
    Desktop& m_desktop;

  public:
    const std::string folder = m_desktop.home() + "/.local/share/keyrill";
    const std::string settings = m_desktop.home() + "/.config/keyrill/macros.conf";
};

class MacroCallsTest : public DesktopTest {
  protected:
    /// In a shell, in the test's own folder.
    Answer shell(const std::string& line) const {
        return answerOf(desktop, {"/bin/sh", "-c", "cd '" + desktop.file("") + "' && " + line});
    }
    Answer call(std::initializer_list<std::string> arguments) const {
        return callOnTheBus(desktop, arguments);
    }
    /// Nothing else has been typed, nor will be: what is typed now comes right behind.
    void expectTypedExactly(const std::string& text) const {
        EXPECT_EQ(terminal->typed(text.size()), text);
        EXPECT_EQ(shell("keyrill --action=stop"),
                  (Answer{2, "keyrill: Nothing is being recorded or played.\n"}));
        typist.tap(xkey::b);
        EXPECT_EQ(terminal->typed(text.size() + 1), text + "b");
    }
    /// Ctrl+Super and the key.
    void userStrikes(std::uint8_t key) const { typist.stroke({xkey::control, xkey::super, key}); }

    const MacroCalls macros{desktop};
    const Hands hands{desktop.display()};
    const Typist typist{hands, Typist::Gap(30)};
    std::optional<Terminal> terminal{std::in_place, desktop.display()};
};

TEST_F(MacroCallsTest, aShellPlaysAMacroThreeTimes) {
    const Keyrill keyrill(desktop);
    EXPECT_EQ(shell("keyrill --play Greeting --times 3"), done);
    expectTypedExactly("hellohellohello");
}

TEST_F(MacroCallsTest, theFirstCallStartsTheProgram) {
    EXPECT_EQ(shell("keyrill --play Greeting"), done);
    EXPECT_EQ(terminal->typed(5), "hello");
    EXPECT_TRUE(eventually([this] { return desktop.isHotKeyTaken(xkey::m); }));
}

TEST_F(MacroCallsTest, aMacroOfAGroupIsNamedByItselfOrWithIt) {
    macros.drop("mail/Thanks", typing("ty"));
    const Keyrill keyrill(desktop);
    EXPECT_EQ(shell("keyrill --play Thanks"), done);
    EXPECT_EQ(shell("keyrill --play=mail/Thanks.keyrill"), done);
    expectTypedExactly("tyty");
}

TEST_F(MacroCallsTest, itsOwnTimesAndSpeedHoldUnlessOthersAreGiven) {
    std::ofstream(macros.settings) << "[Greeting.keyrill]\ntimes=2\n";
    const Keyrill keyrill(desktop);
    EXPECT_EQ(shell("keyrill --play Greeting"), done);
    EXPECT_EQ(terminal->typed(10), "hellohello");
    EXPECT_EQ(shell("keyrill --play Greeting --times=1"), done);
    expectTypedExactly("hellohellohello");
    EXPECT_TRUE(
        eventually([this] { return contentOf(macros.settings).find("\nlastPlayed=") != std::string::npos; }));
    EXPECT_NE(contentOf(macros.settings).find("\ntimes=2\n"), std::string::npos);
}

TEST_F(MacroCallsTest, withoutANameWhatPlayPlaysIsPlayedAndStaysThat) {
    const Keyrill keyrill(desktop, typing("mine"));
    EXPECT_EQ(shell("keyrill --play Greeting"), done);
    EXPECT_EQ(terminal->typed(5), "hello");
    EXPECT_EQ(shell("keyrill --play --times 2"), done);
    EXPECT_EQ(terminal->typed(13), "hellominemine");
    userStrikes(xkey::p);
    EXPECT_EQ(terminal->typed(17), "hellomineminemine");
}

TEST_F(MacroCallsTest, aFileIsPlayedByItsPath) {
    std::ofstream(desktop.file("Greeting")) << typing("file");
    std::ofstream(desktop.file("own file.keyrill")) << typing("own");
    const Keyrill keyrill(desktop);
    EXPECT_EQ(shell("keyrill --play './Greeting' --times 2"), done);
    EXPECT_EQ(terminal->typed(8), "filefile");
    // The macro has the name before the file.
    EXPECT_EQ(shell("keyrill --play Greeting"), done);
    EXPECT_EQ(terminal->typed(13), "filefilehello");
    EXPECT_EQ(shell("keyrill --play 'own file.keyrill'"), done);
    EXPECT_EQ(shell("keyrill --play \"$PWD/own file.keyrill\""), done);
    expectTypedExactly("filefilehelloownown");
}

/// Between two keys of two runs, by the server's clock.
TEST_F(MacroCallsTest, aSpeedDividesThePauses) {
    macros.drop("Slow", typing("a") + "delay 2\n" + typing("b"));
    const Keyrill keyrill(desktop);
    CoreClient client(desktop.display());
    const auto playedPause = [&](const std::string& options) {
        const std::size_t before = client.events().size();
        EXPECT_EQ(shell("keyrill --play Slow" + options), done);
        std::vector<std::uint32_t> presses;
        EXPECT_TRUE(eventually([&] {
            presses.clear();
            for (std::size_t i = before; i < client.events().size(); ++i) {
                const CoreClient::KeyEvent& event = client.events()[i];
                if (event.press) presses.push_back(event.time);
            }
            return presses.size() == 2;
        }));
        return presses.size() == 2 ? static_cast<int>(presses[1] - presses[0]) : 0;
    };
    // A busy machine makes a pause longer, hardly four in a row.
    const auto shortest = [&playedPause](const std::string& options) {
        int least = playedPause(options);
        for (int plays = 1; plays < 4; ++plays) least = std::min(least, playedPause(options));
        return least;
    };
    EXPECT_NEAR(shortest(""), 2000, 40);
    EXPECT_NEAR(shortest(" --speed 2"), 1000, 20);
}

TEST_F(MacroCallsTest, itGoesOnUntilItIsStopped) {
    macros.drop("Rain", typing("a") + "delay 0.05\n");
    const Keyrill keyrill(desktop);
    EXPECT_EQ(shell("keyrill --play Rain --times until-stopped"), done);
    EXPECT_EQ(terminal->typed(20).substr(0, 20), std::string(20, 'a'));
    EXPECT_EQ(shell("keyrill --play Greeting"), refused("Keyrill is playing a macro."));
    EXPECT_EQ(shell("keyrill --action=stop"), done);
    expectTypedExactly(terminal->typed());
}

TEST_F(MacroCallsTest, whatIsNotThereIsSaidWithWhatIsNear) {
    macros.drop("mail/Hello", typing("x"));
    macros.drop("work/Hello", typing("y"));
    const Keyrill keyrill(desktop);
    EXPECT_EQ(shell("keyrill --play greting"),
              refused(R"(There is no macro called "greting". Similar: "Greeting".)"));
    EXPECT_EQ(shell("keyrill --show greting"),
              refused(R"(There is no macro called "greting". Similar: "Greeting".)"));
    EXPECT_EQ(shell("keyrill --play nowhere"),
              refused(R"(There is no macro called "nowhere". keyrill --list lists all.)"));
    EXPECT_EQ(
        shell("keyrill --play Hello"),
        refused(R"(There are several macros called "Hello". Say which one: "mail/Hello", "work/Hello".)"));
    EXPECT_EQ(shell("keyrill --play ./nowhere"),
              refused("The file " + desktop.file("nowhere") +
                      " cannot be read: No such file or directory. Check that the file is there and who may "
                      "read it."));
    EXPECT_FALSE(desktop.shows("Macros"));
}

TEST_F(MacroCallsTest, whatCannotBePlayedIsSaid) {
    macros.drop("Broken", "beep\ndelay \"a\n");
    const Keyrill keyrill(desktop);
    EXPECT_EQ(shell("keyrill --play"), refused("There is no macro to play yet."));
    EXPECT_EQ(shell("keyrill --play Broken"),
              refused("\"Broken\" cannot be played: its script is wrong in line 2. keyrill-script check \"" +
                      macros.folder + "/Broken.keyrill\" tells more."));
    EXPECT_EQ(shell("keyrill --action=record"), done);
    EXPECT_EQ(shell("keyrill --play Greeting"), refused("A macro is being recorded."));
}

/// Names of files come from others, too.
TEST_F(MacroCallsTest, namesDoNotActOnTheTerminal) {
    macros.drop("vil\x1Bla", "beep\ndelay \"a\n");
    const Keyrill keyrill(desktop);
    EXPECT_EQ(shell("keyrill --play villa"),
              refused(R"(There is no macro called "villa". Similar: "vil la".)"));
    // The name itself, and one like it.
    EXPECT_EQ(shell(R"-(keyrill --play "$(printf 'vil\033la')")-"),
              refused(R"("vil la" cannot be played: its script is wrong in line 2. keyrill-script check ")" +
                      macros.folder + R"(/vil la.keyrill" tells more.)"));
    EXPECT_EQ(shell(R"-(keyrill --play "$(printf 'vil\033l')")-"),
              refused(R"(There is no macro called "vil l". Similar: "vil la".)"));
    EXPECT_EQ(shell(R"-(keyrill --show "$(printf '\302\233')")-"),
              refused(R"(There is no macro called " ". keyrill --list lists all.)"));
    macros.drop("C1\u009Bla", typing("c"));
    EXPECT_EQ(shell("keyrill --list"), (Answer{0, "C1?la\nGreeting\nvil?la\n"}));
}

/// What is asked for from outside is not typed into the program's own windows.
TEST_F(MacroCallsTest, nothingIsTypedIntoThePrompt) {
    const Keyrill keyrill(desktop);
    EXPECT_EQ(shell("keyrill --play Greeting"), done);
    press("ctrl+super+r");
    desktop.awaitWindow(title::overlay);
    press("ctrl+super+s");
    EXPECT_EQ(shell("keyrill --action=record"), done);
    press("a");
    EXPECT_EQ(shell("keyrill --action=stop"), done);
    EXPECT_EQ(shell("keyrill --action=multiple"), done);
    desktop.awaitFocus(title::prompt);
    EXPECT_EQ(shell("keyrill --play Greeting"), refused("Keyrill is asking how often to play."));
    EXPECT_EQ(shell("keyrill --show Greeting"), refused("Keyrill is asking how often to play."));
    EXPECT_EQ(shell("keyrill --action=record").status, 2);
    press("Escape");
    EXPECT_TRUE(eventually([this] { return !desktop.shows(title::prompt); }));
    EXPECT_EQ(shell("keyrill --play Greeting"), done);
}

/// What hot keys ask for while a macro plays is done after it, but not after a stop.
TEST_F(MacroCallsTest, aStopTakesBackWhatHotKeysAskedForBeforeIt) {
    macros.drop("Paused", "delay 30\n");
    std::ofstream(macros.settings) << "[Greeting.keyrill]\nhotKeyCode=18\nhotKeyFlags=1310720\n";
    const Keyrill keyrill(desktop);
    ASSERT_TRUE(eventually([this] { return desktop.isHotKeyTaken(xkey::one); }));
    EXPECT_EQ(shell("keyrill --play Paused"), done);
    userStrikes(xkey::one);
    userStrikes(xkey::r);
    EXPECT_EQ(shell("keyrill --action=stop"), done);
    expectTypedExactly("");
    EXPECT_FALSE(desktop.shows(title::overlay));
}

/// A held Escape is a stop as well.
TEST_F(MacroCallsTest, aHeldEscapeTakesBackWhatHotKeysAskedForBeforeIt) {
    macros.drop("Paused", "delay 30\n");
    const Keyrill keyrill(desktop);
    EXPECT_EQ(shell("keyrill --play Paused"), done);
    userStrikes(xkey::r);
    typist.press({xkey::escape});
    typist.hold(std::chrono::milliseconds(400));
    typist.release({xkey::escape});
    // The program gets it, too.
    expectTypedExactly("\x1B");
    EXPECT_FALSE(desktop.shows(title::overlay));
}

TEST_F(MacroCallsTest, aCommandLineThatMakesNoSenseHasAStatusOfItsOwn) {
    EXPECT_EQ(
        shell("keyrill --play Greeting --times often"),
        misused("\"often\" is not how many times a macro can be played. It is a whole number from 1 on, "
                "or until-stopped."));
    EXPECT_EQ(shell("keyrill --play Greeting --speed 8"),
              misused("\"8\" is not how fast a macro can be played. It is a number from 0.25 to 4, with a "
                      "point: 1.5."));
    EXPECT_EQ(shell("keyrill --play \"$NO_SUCH_VARIABLE\""),
              misused("The name of the macro is empty. keyrill --list prints those that there are."));
    EXPECT_EQ(shell("keyrill --play My Macro"),
              misused("\"Macro\" is too much. A name with blanks is put in quotation marks: \"My Macro\"."));
    EXPECT_EQ(shell("keyrill --play Greeting --tmes 3"),
              misused("There is no option \"--tmes\". keyrill --help lists them."));
    EXPECT_EQ(shell("keyrill --list Greeting"), misused("\"Greeting\" is too much. --list takes no name."));
    EXPECT_FALSE(desktop.isHotKeyTaken(xkey::m));
}

TEST_F(MacroCallsTest, withoutASessionBusItSaysSo) {
    const Keyrill keyrill(desktop);
    EXPECT_EQ(shell("DBUS_SESSION_BUS_ADDRESS=disabled: keyrill --play Greeting"),
              refused("There is no session bus, over which the running Keyrill could be asked. Call it from "
                      "within the desktop session; the hot keys and the menu need none."));
}

TEST_F(MacroCallsTest, theListIsInTheOrderOfTheWindowAndNeedsNoProgram) {
    for (const char* name : {"zebra", "Apple", "mail/b", "mail/A", "Letters/x", "mail/tab\tin\nit"}) {
        macros.drop(name, "");
    }
    std::ofstream(macros.folder + "/note.txt") << "none";
    EXPECT_EQ(shell("DISPLAY= DBUS_SESSION_BUS_ADDRESS=disabled: keyrill --list"),
              (Answer{0, "Apple\nGreeting\nzebra\nLetters/x\nmail/A\nmail/b\nmail/tab?in?it\n"}));
    EXPECT_FALSE(desktop.isHotKeyTaken(xkey::m));
    fs::remove_all(macros.folder);
    EXPECT_EQ(shell("keyrill --list"), (Answer{0, ""}));
}

TEST_F(MacroCallsTest, showChoosesTheMacroInTheWindow) {
    macros.drop("mail/Other", typing("other"));
    const Keyrill keyrill(desktop);
    EXPECT_EQ(shell("keyrill --show Other"), done);
    desktop.awaitFocus("Macros");
    // Its button plays what is chosen.
    press("alt+p");
    EXPECT_EQ(terminal->typed(5), "other");
    EXPECT_EQ(shell("keyrill --show Greeting"), done);
    desktop.awaitFocus("Macros");
    press("alt+p");
    EXPECT_EQ(terminal->typed(10), "otherhello");
}

TEST_F(MacroCallsTest, showStartsTheProgram) {
    EXPECT_EQ(shell("keyrill --show"), done);
    desktop.awaitFocus("Macros");
}

/// An entry that a user has made.
TEST_F(MacroCallsTest, aLauncherPlaysAMacro) {
    const Keyrill keyrill(desktop);
    std::ofstream(desktop.file("greeting.desktop"))
        << "[Desktop Entry]\nType=Application\nName=Greeting\nExec=keyrill --play Greeting --times 2\n";
    EXPECT_EQ(shell("gio launch greeting.desktop"), done);
    expectTypedExactly("hellohello");
}

TEST_F(MacroCallsTest, anyCallerOnTheBusMayAsk) {
    const Keyrill keyrill(desktop);
    const Answer taken{0, "()\n"};
    EXPECT_EQ(call({"example.orlen.Keyrill.Macros.PlayMacro", "Greeting", "{'times': <2>, 'speed': <0.5>}"}),
              taken);
    EXPECT_EQ(terminal->typed(10), "hellohello");
    std::ofstream(desktop.file("a file.keyrill")) << typing("file");
    EXPECT_EQ(
        call({"example.orlen.Keyrill.Macros.PlayFile", "file://" + desktop.file("a%20file.keyrill"), "{}"}),
        taken);
    expectTypedExactly("hellohellofile");
    const auto error = [this](std::initializer_list<std::string> arguments) {
        const Answer answer = call(arguments);
        EXPECT_EQ(answer.status, 1);
        return answer.output.substr(0, answer.output.find('\n'));
    };
    const std::string invalid = "Error: GDBus.Error:org.freedesktop.DBus.Error.InvalidArgs: ";
    EXPECT_EQ(error({"example.orlen.Keyrill.Macros.PlayMacro", "Greeting", "{'times': <0>}"}),
              invalid +
                  "\"0\" is not how many times a macro can be played. It is a whole number from 1 on, or "
                  "until-stopped.");
    EXPECT_EQ(error({"example.orlen.Keyrill.Macros.PlayMacro", "Greeting", "{'loops': <2>}"}),
              invalid + "There is no option \"loops\". There are: times, speed.");
    EXPECT_EQ(error({"example.orlen.Keyrill.Macros.PlayMacro", "", "{}"}),
              invalid + "The name of the macro is empty. keyrill --list prints those that there are.");
    EXPECT_EQ(error({"example.orlen.Keyrill.Macros.PlayFile", "https://orlen.example/", "{}"}),
              invalid + "\"https://orlen.example/\" is no file of this machine. It begins with file:///.");
    EXPECT_EQ(error({"example.orlen.Keyrill.Macros.PlayMacro", "Greting", "{}"}),
              "Error: GDBus.Error:example.orlen.Keyrill.Error.NoSuchMacro: There is no macro called "
              "\"Greting\". Similar: \"Greeting\".");
}

/// Methods with their arguments, a line each, as an introspection has them.
std::string methodsOf(const std::string& text, const std::string& interface) {
    const std::size_t begin = text.find("<interface name=\"" + interface + "\">");
    const std::string part = text.substr(begin, text.find("</interface>", begin) - begin);
    const std::regex element("<(?:method|signal|property|arg) [^>]*>");
    std::string methods;
    for (std::sregex_iterator at(part.begin(), part.end(), element), end; at != end; ++at) {
        const std::string found = at->str();
        methods += found.starts_with("<arg") ? "" : found + "\n";
        if (!found.starts_with("<arg")) continue;
        for (const char* name : {"name", "type", "direction"}) {
            std::smatch value;
            std::regex_search(found, value, std::regex(std::string(name) + "=\"([^\"]*)\""));
            methods += value[1].str() + " ";
        }
        methods += "\n";
    }
    return methods;
}

TEST_F(MacroCallsTest, theInterfaceIsAsItIsDescribed) {
    const Keyrill keyrill(desktop);
    const std::string object =
        desktop.run({"gdbus", "introspect", "--session", "--dest", "example.orlen.Keyrill", "--object-path",
                     "/example/orlen/Keyrill", "--xml"});
    const std::string interface = "example.orlen.Keyrill.Macros";
    const std::string described =
        methodsOf(contentOf(fs::path(programs::presets).replace_filename(interface + ".xml")), interface);
    EXPECT_TRUE(described.starts_with("<method name=\"Play\">\noptions a{sv} in \n")) << described;
    EXPECT_EQ(methodsOf(object, interface), described);
}

/// Whatever can be called on the bus, with what there is to name, after a secret was recorded.
TEST_F(MacroCallsTest, nothingOnTheBusReadsWhatIsRecordedOrKept) {
    // Whose words a compiler would quote.
    macros.drop("Note", "on xylophone()\nbeep\nend zither\n");
    const Keyrill keyrill(desktop);
    ASSERT_EQ(shell("keyrill --action=record"), done);
    typist.tap(xkey::a);
    typist.tap(xkey::b);
    ASSERT_EQ(shell("keyrill --action=stop"), done);
    const std::string object =
        desktop.run({"gdbus", "introspect", "--session", "--dest", "example.orlen.Keyrill", "--object-path",
                     "/example/orlen/Keyrill", "--xml"});
    EXPECT_EQ(object.find("<node name="), std::string::npos) << object;
    const std::map<std::string, std::vector<std::string>> valuesOf = {
        {"s", {"Greeting", "greting", "Note", "play", "file://" + macros.folder + "/Note.keyrill"}},
        {"as", {"[]"}},
        {"av", {"[]"}},
        {"a{sv}", {"{}"}}};
    const std::regex element(R"re(<(interface|method|property|signal|arg) ([^>]*)>|</(method)>)re");
    std::string interface;
    std::vector<std::vector<std::string>> calls;
    std::vector<std::vector<std::string>> open;
    const auto attribute = [](const std::string& attributes, const std::string& name) {
        std::smatch value;
        const bool isThere = std::regex_search(attributes, value, std::regex(name + "=\"([^\"]*)\""));
        return isThere ? value[1].str() : std::string();
    };
    for (std::sregex_iterator at(object.begin(), object.end(), element), end; at != end; ++at) {
        const std::string kind = (*at)[1];
        const std::string attributes = (*at)[2];
        if (kind == "interface") interface = attribute(attributes, "name");
        if (interface.starts_with("org.freedesktop.DBus.")) continue;
        EXPECT_NE(kind, "property");
        EXPECT_NE(kind, "signal");
        if (kind == "method") open = {{interface + "." + attribute(attributes, "name")}};
        if (kind == "arg") {
            EXPECT_EQ(attribute(attributes, "direction"), "in") << interface << attributes;
            std::vector<std::vector<std::string>> longer;
            for (const auto& call : open) {
                for (const std::string& value : valuesOf.at(attribute(attributes, "type"))) {
                    longer.push_back(call);
                    longer.back().push_back(value);
                }
            }
            open = std::move(longer);
        }
        const bool isClosed = (*at)[3] == "method" || (kind == "method" && attributes.ends_with('/'));
        if (isClosed) calls.insert(calls.end(), open.begin(), open.end());
    }
    calls.push_back({"org.freedesktop.DBus.Properties.GetAll", "example.orlen.Keyrill.Macros"});
    calls.push_back({"org.freedesktop.DBus.Properties.GetAll", "org.freedesktop.Application"});
    // Of the standard 2; of macros one without a name, three with; of the application one with.
    EXPECT_EQ(calls.size(), 2U + 1 + 5 + 5 + 5 + 1 + 1 + 5) << object;
    for (const std::vector<std::string>& arguments : calls) {
        const std::string method = arguments.front();
        const Answer answer = callOnTheBus(desktop, arguments);
        const bool saysNothing = answer.output == "()\n" || answer.output == "(@a{sv} {},)\n";
        const bool saysWhyNot = std::regex_search(
            answer.output, std::regex("^Error: GDBus.Error:(example.orlen.Keyrill.Error."
                                      "(NotNow|NoSuchMacro|NotPlayable)|org.freedesktop.DBus.Error."
                                      "(InvalidArgs|UnknownInterface)): "));
        EXPECT_TRUE(saysNothing || saysWhyNot) << method << ": " << answer;
        for (const char* content : {"hello", "keystroke", "key code", "ab", "xylophone", "zither"}) {
            EXPECT_FALSE(std::regex_search(answer.output, std::regex("\\b" + std::string(content) + "\\b")))
                << method << ": " << answer;
        }
    }
}

class BoundMacroTest : public BoundKey {
  protected:
    BoundMacroTest() { bind("--play Greeting"); }

    const MacroCalls macros{desktop};
};

TEST_P(BoundMacroTest, playsWhenTheKeysAreLetGo) {
    const Keyrill keyrill(desktop);
    expectPlayedWhenTheKeysAreLetGo("hello");
}

TEST_P(BoundMacroTest, typesNothingWhileAHandHoldsAModifier) {
    const Keyrill keyrill(desktop);
    expectNothingWhileAHandHoldsAModifier("hello");
}

INSTANTIATE_TEST_SUITE_P(EachGap, BoundMacroTest,
                         testing::Values(Typist::Gap(30), Typist::Gap(80), Typist::Gap(150)),
                         [](const auto& gap) { return nameOf(gap.param); });

}  // namespace
