// SPDX-License-Identifier: MIT
#include <signal.h>

#include <filesystem>
#include <fstream>

#include "desktop/DesktopTest.h"
#include "support/Editor.h"
#include "support/Programs.h"

namespace {

constexpr const char* text = "Grüße & 日本";

/// What scripts put into the clipboard, told by whoever pastes it.
class ScriptClipboardTest : public DesktopTest {
  protected:
    std::string pasted() const { return desktop.run({"xclip", "-selection", "clipboard", "-out"}); }
    /// Status 0 and nothing said.
    void runByTool(const std::string& script, const std::vector<std::string>& before = {}) const {
        std::ofstream(desktop.file("script")) << script;
        std::vector<std::string> command = before;
        command.insert(command.end(), {programs::scriptTool, "run", desktop.file("script")});
        Child tool(command, desktop.options("tool.log"));
        EXPECT_EQ(tool.wait(), 0);
        EXPECT_EQ(contentOf(desktop.file("tool.log")), "");
    }
    /// The processes of keyrill-script at this display.
    std::vector<pid_t> tools() const {
        std::vector<pid_t> found;
        for (const auto& entry : std::filesystem::directory_iterator("/proc")) {
            const std::string name = entry.path().filename();
            if (name.find_first_not_of("0123456789") != std::string::npos) continue;
            const std::string folder = entry.path();
            const bool isTool = contentOf(folder + "/comm") == "keyrill-script\n";
            const std::string display = std::string(1, '\0') + "DISPLAY=" + desktop.display() + '\0';
            const std::string environment = '\0' + contentOf(folder + "/environ");
            if (isTool && environment.find(display) != std::string::npos) found.push_back(std::stoi(name));
        }
        return found;
    }
};

TEST_F(ScriptClipboardTest, aPasteTypedRightAfterwardsFindsItAndSoDoesWhoeverPastesLater) {
    const Terminal terminal(desktop.display(), {.xterm = {"-xrm", "*selectToClipboard: true"}});
    Keyrill keyrill(desktop, std::string("set the clipboard to \"") + text +
                                 "\"\n"
                                 "tell application \"System Events\" to key code 114 using shift down\n");
    play();
    EXPECT_EQ(terminal.typed(std::string(text).size()), text);
    EXPECT_EQ(pasted(), text);
    play();
    EXPECT_EQ(terminal.typed(2 * std::string(text).size()), std::string(text) + text);
    EXPECT_EQ(pasted(), text);
    keyrill.child().signal(SIGTERM);
    EXPECT_EQ(keyrill.child().wait(), 0);
}

TEST_F(ScriptClipboardTest, aScriptReadsWhatAnotherProgramHasCopied) {
    std::ofstream(desktop.file("copied")) << text;
    Child other({"xclip", "-quiet", "-selection", "clipboard", "-in", desktop.file("copied")},
                desktop.options("xclip.log"));
    ASSERT_TRUE(eventually([this] { return desktop.screen().isOwned("CLIPBOARD"); }));
    const Terminal terminal(desktop.display());
    const Keyrill keyrill(desktop, "tell application \"System Events\" to keystroke (the clipboard)\n");
    play();
    EXPECT_EQ(terminal.typed(std::string(text).size()), text);
}

TEST_F(ScriptClipboardTest, theToolLeavesItToAProcessThatEndsWhenAnotherProgramCopies) {
    runByTool(std::string("set the clipboard to \"") + text + "\"\n");
    EXPECT_EQ(tools().size(), 1U);
    EXPECT_EQ(pasted(), text);
    EXPECT_EQ(desktop.run({"xsel", "--clipboard", "--output"}), text);
    runByTool("set the clipboard to (the clipboard) & \"!\"\n");
    EXPECT_EQ(pasted(), std::string(text) + "!");
    EXPECT_TRUE(eventually([this] { return tools().size() == 1; }));
    Child other({"xclip", "-quiet", "-selection", "clipboard", "-in", desktop.file("script")},
                desktop.options("xclip.log"));
    EXPECT_TRUE(eventually([this] { return tools().empty(); }));
}

TEST_F(ScriptClipboardTest, theToolLeavesATextLongerThanARequest) {
    runByTool(
        R"(set t to "0123456789abcdef"
repeat 16 times
set t to t & t
end repeat
set the clipboard to t
)");
    std::string expected;
    for (int i = 0; i < 1 << 16; ++i) expected += "0123456789abcdef";
    EXPECT_TRUE(pasted() == expected);
    for (const pid_t tool : tools()) kill(tool, SIGTERM);
}

TEST_F(ScriptClipboardTest, nobodyWaitsForTheProcessThatStays) {
    // A shell waits for the end of what it substitutes.
    std::ofstream(desktop.file("substituted")) << R"text(test "$("$@")" = '' && exit 0
exit 1
)text";
    runByTool("set the clipboard to \"x\"\n", {"sh", desktop.file("substituted")});
    EXPECT_EQ(pasted(), "x");
    for (const pid_t tool : tools()) kill(tool, SIGTERM);
}

TEST_F(ScriptClipboardTest, aRunThatSetsNothingLeavesNobody) {
    runByTool("the clipboard\n");
    EXPECT_EQ(tools(), std::vector<pid_t>());
}

/// Whom the tool finds: the settings daemon of Xfce, which does all that a clipboard manager should, or
/// Clipman, which fetches each text and never says so.
class ClipboardManagerTest : public ScriptClipboardTest, public testing::WithParamInterface<const char*> {
  protected:
    ClipboardManagerTest() {
        desktop.startBus().letIn("org.xfce.Xfconf");
        manager.emplace(std::vector<std::string>{GetParam()}, desktop.options("manager.log"));
        EXPECT_TRUE(eventually([this] { return desktop.screen().isOwned("CLIPBOARD_MANAGER"); }));
    }
    void expectPasted() const {
        ASSERT_TRUE(eventually([this] { return desktop.screen().isOwned("CLIPBOARD"); }));
        EXPECT_EQ(pasted(), text);
    }

    std::optional<Child> manager;
};

TEST_P(ClipboardManagerTest, whatTheToolLeavesCanBePasted) {
    runByTool(std::string("set the clipboard to \"") + text + "\"\n");
    expectPasted();
}

TEST_P(ClipboardManagerTest, hasWhatTheProgramLeavesAtItsEnd) {
    Keyrill keyrill(desktop, std::string("set the clipboard to \"") + text + "\"\n");
    play();
    expectPasted();
    keyrill.child().signal(SIGTERM);
    EXPECT_EQ(keyrill.child().wait(), 0);
    expectPasted();
}

std::string nameOfManager(const testing::TestParamInfo<const char*>& manager) {
    return std::string(manager.param) == "xfsettingsd" ? "settingsDaemon" : "clipman";
}

INSTANTIATE_TEST_SUITE_P(Xfce, ClipboardManagerTest, testing::Values("xfsettingsd", "xfce4-clipman"),
                         nameOfManager);

class SettingsDaemonTest : public ClipboardManagerTest {};

TEST_P(SettingsDaemonTest, nobodyStaysInTheBackgroundWhenItHasTheText) {
    runByTool(std::string("set the clipboard to \"") + text + "\"\n");
    EXPECT_TRUE(eventually([this] { return tools().empty(); }));
    expectPasted();
}

INSTANTIATE_TEST_SUITE_P(Xfce, SettingsDaemonTest, testing::Values("xfsettingsd"), nameOfManager);

/// Programs that paste by Ctrl+V.
class EditorPasteTest : public ScriptClipboardTest, public testing::WithParamInterface<Editor::Toolkit> {};

TEST_P(EditorPasteTest, aPasteTypedRightAfterwardsFindsIt) {
    const Editor editor(desktop.display(), GetParam());
    const Keyrill keyrill(desktop,
                          std::string("set the clipboard to \"") + text +
                              "\"\n"
                              "tell application \"System Events\" to key code 9 using control down\n");
    play();
    // What is saved may be from before the paste.
    EXPECT_TRUE(eventually([&] {
        press("ctrl+s");
        return editor.saved(text, std::chrono::milliseconds(500)) == text;
    }));
    EXPECT_EQ(pasted(), text);
}

INSTANTIATE_TEST_SUITE_P(Toolkit, EditorPasteTest,
                         testing::Values(Editor::Toolkit::gtk, Editor::Toolkit::qt));

}  // namespace
