// SPDX-License-Identifier: MIT
#include <signal.h>

#include <fstream>

#include "desktop/DesktopTest.h"
#include "desktop/SavedMacro.h"
#include "display/KeyboardProbe.h"
#include "display/Typist.h"
#include "platform/Utf8.h"
#include "support/Programs.h"

namespace {

/// Macros in files, which the product plays and keyrill-script explains.
class ScriptMacroTest : public DesktopTest {
  protected:
    ScriptMacroTest() {
        desktop.startBus();
        terminal.emplace(desktop.display());
    }

    std::string fileWith(const std::string& name, const std::string& script) const {
        std::ofstream(desktop.file(name)) << script;
        return desktop.file(name);
    }
    /// The first start is the program; a later one hands its file over.
    void load(const std::string& file) {
        if (product) {
            Child second({programs::keyrill, file}, desktop.options("second.log"));
            ASSERT_EQ(second.wait(), 0);
            return;
        }
        product.emplace(std::vector<std::string>{programs::keyrill, file}, desktop.options("product.log"));
        ASSERT_TRUE(eventually([this] { return desktop.isHotKeyTaken(xkey::m); }));
    }
    std::string output() const { return contentOf(desktop.file("product.log")); }

    struct Told {
        int status = 0;
        std::string output;

        friend bool operator==(const Told&, const Told&) = default;
        friend std::ostream& operator<<(std::ostream& out, const Told& told) {
            return out << told.status << "\n" << told.output;
        }
    };
    /// What keyrill-script says of a file that it is to play.
    Told runByTool(const std::string& file) const {
        Child tool({programs::scriptTool, "run", file}, desktop.options("tool.log"));
        const int status = tool.wait();
        return {status, contentOf(desktop.file("tool.log"))};
    }

    std::optional<Terminal> terminal;
    std::optional<Child> product;
};

TEST_F(ScriptMacroTest, aRecordedMacroThatWasEditedByHandTypesWhatItSays) {
    std::string recorded;
    {
        desktop.startTray();
        Keyrill keyrill(desktop);
        record();
        desktop.run({"xdotool", "type", "ab"});
        stop();
        recorded = savedMacro(desktop);
    }
    ASSERT_EQ(terminal->typed(2), "ab");
    const std::string file = fileWith("edited.keyrill",
                                      "-- what the program has written is in the handler\n"
                                      "on again()\n" +
                                          recorded + R"(end again
set who to text returned of (display dialog "Who is it?" default answer "" with title "Question")
repeat 3 times
	again()
end repeat
tell application "System Events"
	keystroke " für " & who & return
	delay 0.01
end tell
)");
    load(file);
    ASSERT_TRUE(terminal->hasFocus());
    play();
    const ScreenWindow question = desktop.awaitWindow("Question");
    ASSERT_TRUE(eventually([&] { return desktop.hasFocus(question); }));
    desktop.run({"xdotool", "type", "Ann & Bob"});
    press("Return");
    const std::string expected = "abababab für Ann & Bob\n";
    EXPECT_EQ(terminal->typed(expected.size()), expected);
    press("period");
    EXPECT_EQ(terminal->typed(expected.size() + 1), expected + ".");
    EXPECT_EQ(output(), "");
}

TEST_F(ScriptMacroTest, aProgramThatIsBusyForSecondsGets200CharactersOfNoLayout) {
    std::string text;
    for (char32_t character = 0x4E00; character < 0x4E00 + 200; ++character) appendUtf8(text, character);
    load(fileWith("long.keyrill", R"(tell application "System Events" to keystroke ")" + text + "\"\n"));
    ASSERT_TRUE(terminal->hasFocus());
    ASSERT_EQ(kill(terminal->pid(), SIGSTOP), 0);
    play();
    const KeyboardProbe probe(desktop.display());
    ASSERT_TRUE(eventually([&] { return probe.hasProperty("_KEYRILL_BOUND_KEYS"); }));
    const Hands nobody(desktop.display());
    Typist(nobody, Typist::Gap(0)).hold(std::chrono::seconds(6));
    ASSERT_EQ(kill(terminal->pid(), SIGCONT), 0);
    EXPECT_EQ(terminal->typed(text.size()), text);
}

TEST_F(ScriptMacroTest, anErrorOfTheCompilerIsSilentInTheProgramAndLoudInTheTool) {
    const std::string file = fileWith("wrong.keyrill",
                                      R"(tell application "System Events"
	keystroke "never"
	keystroke “quoted”
end tell
)");
    load(file);
    ASSERT_TRUE(terminal->hasFocus());
    play();
    load(fileWith("right.keyrill", "tell application \"System Events\" to keystroke \"right\"\n"));
    play();
    EXPECT_EQ(terminal->typed(5), "right");
    EXPECT_EQ(desktop.keysDown(), std::vector<std::string>());
    EXPECT_EQ(output(), "");

    const Told told = runByTool(file);
    EXPECT_EQ(told.status, 1);
    EXPECT_TRUE(told.output.starts_with(file + ":3:12: syntax error: ")) << told.output;
    EXPECT_NE(told.output.find("(-2741)\n\tkeystroke “quoted”\n\t          ^\n"), std::string::npos)
        << told.output;
    EXPECT_EQ(terminal->typed(), "right");
}

TEST_F(ScriptMacroTest, anErrorOfTheRunIsSilentInTheProgramAndLoudInTheTool) {
    const std::string file = fileWith("wrong.keyrill",
                                      R"(tell application "System Events"
	key down {shift, control}
	key up control
	keystroke "ab"
	keystroke item 3 of {"x", "y"}
	keystroke "never"
end tell
)");
    load(file);
    ASSERT_TRUE(terminal->hasFocus());
    play();
    EXPECT_EQ(terminal->typed(2), "AB");
    EXPECT_TRUE(eventually([this] { return desktop.keysDown().empty(); }));
    load(fileWith("right.keyrill", "tell application \"System Events\" to keystroke \"right\"\n"));
    play();
    EXPECT_EQ(terminal->typed(7), "ABright");
    EXPECT_EQ(output(), "");

    EXPECT_EQ(runByTool(file),
              (Told{1, file + ":5:12: execution error: Can’t get item 3 of {\"x\", \"y\"}. (-1728)\n"
                              "\tkeystroke item 3 of {\"x\", \"y\"}\n"
                              "\t          ^\n"}));
    EXPECT_EQ(terminal->typed(9), "ABrightAB");
    EXPECT_EQ(desktop.keysDown(), std::vector<std::string>());
}

}  // namespace
