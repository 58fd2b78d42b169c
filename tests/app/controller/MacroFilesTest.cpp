// SPDX-License-Identifier: MIT
#include <QDir>

#include "app/AppTest.h"
#include "app/controller/TildeExpansion.h"
#include "app/panels/PreferencesPanel.h"
#include "support/Keys.h"

namespace {

const QString folder = QString::fromLatin1(FakeMacroFiles::usualFolder);
const QString file = folder + "/greeting.keyrill";

class MacroFilesTest : public AppTest {
  protected:
    std::string path() const { return file.toStdString(); }
    std::string content() { return platform().macroFiles.files().at(path()); }

    void recordKey() {
        controller.recordMacro(nullptr);
        type(key::returnKey);
        controller.stopMacro(nullptr);
    }
    void save() {
        dialogs.chooseNextFile(file);
        controller.saveMacro(nullptr);
    }
    void load() {
        dialogs.chooseNextFile(file);
        controller.loadMacro(nullptr);
    }
};

TEST_F(MacroFilesTest, writesTheScriptOfTheCurrentMacro) {
    recordKey();
    save();
    EXPECT_EQ(content(), state().currentMacro->script());
    EXPECT_EQ(dialogs.filePanels, std::vector<QString>{"save " + folder});
    EXPECT_TRUE(dialogs.alerts.empty());
}

TEST_F(MacroFilesTest, loadsAndSavesAgainTheSameBytes) {
    recordKey();
    const std::string recorded = state().currentMacro->script();
    const auto number = state().currentMacro->macroId();
    save();
    load();
    EXPECT_EQ(state().currentMacro->script(), recorded);
    EXPECT_EQ(state().currentMacro->macroId(), number + 1);
    EXPECT_EQ(state().currentMacro->displayText(), "");
    save();
    EXPECT_EQ(content(), recorded);
    EXPECT_EQ(dialogs.filePanels.back(), "save " + folder);
}

TEST_F(MacroFilesTest, playsAnyTextThatWasLoaded) {
    platform().macroFiles.put(path(), "beep\n");
    load();
    controller.playMacro(nullptr);
    EXPECT_EQ(runs(), std::vector<std::string>{"beep\n"});
}

TEST_F(MacroFilesTest, tellsOfALoadedTextThatCannotBePlayed) {
    platform().macroFiles.put(path(), "tell\n");
    platform().scripting.refuse("tell\n",
                                {.hasBegun = false, .line = 1, .error = {"Expected more.", "Add it."}});
    load();
    EXPECT_EQ(state().currentMacro->script(), "tell\n");
    EXPECT_EQ(
        platform().notifications.messages(),
        (std::vector<FakeNotifications::Message>{
            {R"("greeting.keyrill" is loaded but cannot be played)", "Line 1: Expected more.\nAdd it."}}));
}

TEST_F(MacroFilesTest, doesNothingWithoutAMacroToSave) {
    save();
    EXPECT_TRUE(dialogs.filePanels.empty());
    EXPECT_EQ(platform().macroFiles.preparations(), 0);
}

TEST_F(MacroFilesTest, bringsBackWhatAPlayHasHiddenBeforeItAsks) {
    recordKey();
    for (void (AppController::*command)(QObject*) : {&AppController::saveMacro, &AppController::loadMacro}) {
        controller.showPreferences(nullptr);
        controller.hide();
        ASSERT_FALSE(controller.preferencesWindow()->isVisible());
        std::vector<bool> visible;
        dialogs.whileOpen([&] { visible.push_back(controller.preferencesWindow()->isVisible()); });
        (controller.*command)(nullptr);
        EXPECT_EQ(visible, std::vector<bool>{true});
    }
}

TEST_F(MacroFilesTest, ignoresSaveAndLoadWhileRecording) {
    recordKey();
    controller.recordMacro(nullptr);
    save();
    load();
    EXPECT_TRUE(dialogs.filePanels.empty());
    EXPECT_TRUE(platform().macroFiles.files().empty());
}

TEST_F(MacroFilesTest, preparesTheFolderBeforeEachPanel) {
    recordKey();
    dialogs.whileOpen([this] { EXPECT_GT(platform().macroFiles.preparations(), 0); });
    save();
    load();
    EXPECT_EQ(platform().macroFiles.preparations(), 2);
}

TEST_F(MacroFilesTest, writesNothingWhenThePanelIsCancelled) {
    recordKey();
    controller.saveMacro(nullptr);
    EXPECT_TRUE(platform().macroFiles.files().empty());
    EXPECT_TRUE(dialogs.alerts.empty());
}

TEST_F(MacroFilesTest, keepsTheCurrentMacroWhenLoadingIsCancelled) {
    recordKey();
    const auto current = state().currentMacro;
    controller.loadMacro(nullptr);
    EXPECT_EQ(state().currentMacro, current);
    EXPECT_TRUE(dialogs.alerts.empty());
}

TEST_F(MacroFilesTest, tellsWhyAMacroWasNotSaved) {
    recordKey();
    platform().macroFiles.put(path(), "before");
    platform().macroFiles.failNextCall({"The folder is read-only.", "Choose another."});
    save();
    ASSERT_EQ(dialogs.alerts.size(), 1U);
    EXPECT_EQ(dialogs.alerts[0], (AlertText{.kind = AlertText::Kind::warning,
                                            .title = R"(The macro was not saved as "greeting.keyrill".)",
                                            .message = "The folder is read-only.\n\nChoose another.",
                                            .defaultButton = "OK"}));
    EXPECT_EQ(content(), "before");
}

TEST_F(MacroFilesTest, tellsOfTheCharacterThatIsNotAscii) {
    state().currentMacro = macroWithScript("a\nb\xC3\xA9\n");
    save();
    ASSERT_EQ(dialogs.alerts.size(), 1U);
    EXPECT_TRUE(dialogs.alerts[0].message.contains("2")) << dialogs.alerts[0].message.toStdString();
    EXPECT_TRUE(dialogs.alerts[0].message.contains("\u00e9")) << dialogs.alerts[0].message.toStdString();
    EXPECT_TRUE(platform().macroFiles.files().empty());
}

TEST_F(MacroFilesTest, tellsWhyAFileCannotBeReadAndKeepsTheCurrentMacro) {
    recordKey();
    const auto current = state().currentMacro;
    platform().macroFiles.failNextCall({"Permission denied.", ""});
    load();
    ASSERT_EQ(dialogs.alerts.size(), 1U);
    EXPECT_EQ(dialogs.alerts[0].title, R"(No macro was loaded from "greeting.keyrill".)");
    EXPECT_EQ(dialogs.alerts[0].message, "Permission denied.");
    EXPECT_EQ(state().currentMacro, current);
}

TEST_F(MacroFilesTest, addsNoHistoryEntryAndShowsNoItemsByLoading) {
    controller.awakeFromNib();
    const std::string before = menu();
    platform().macroFiles.put(path(), "beep\n");
    load();
    EXPECT_EQ(menu(), before);
    EXPECT_TRUE(controller.statusMenu.historyMenu->isEmpty());
    EXPECT_FALSE(controller.statusMenu.playMenuItem->isVisible());
    EXPECT_FALSE(controller.statusMenu.saveMacroMenuItem->isVisible());
}

TEST_F(MacroFilesTest, expandsALeadingTilde) {
    recordKey();
    dialogs.chooseNextFile("~/greeting.keyrill");
    controller.saveMacro(nullptr);
    const std::string expected = QDir::homePath().toStdString() + "/greeting.keyrill";
    ASSERT_EQ(platform().macroFiles.files().size(), 1U);
    EXPECT_EQ(platform().macroFiles.files().begin()->first, expected);
}

TEST(TildeExpansionTest, replacesOnlyALeadingTildeOfThisUser) {
    EXPECT_EQ(withTildeExpanded("~", "/home/u"), "/home/u");
    EXPECT_EQ(withTildeExpanded("~/a", "/home/u"), "/home/u/a");
    EXPECT_EQ(withTildeExpanded("~other/a", "/home/u"), "~other/a");
    EXPECT_EQ(withTildeExpanded("/b/~/a", "/home/u"), "/b/~/a");
    EXPECT_EQ(withTildeExpanded("", "/home/u"), "");
}

// Files from outside

TEST_F(MacroFilesTest, loadsAFileFromOutsideWithoutPlayingItAndSaysHowToPlay) {
    controller.awakeFromNib();
    platform().macroFiles.put(path(), "beep\n");
    controller.openMacroFile(file);
    EXPECT_EQ(state().currentMacro->script(), "beep\n");
    EXPECT_TRUE(runs().empty());
    EXPECT_EQ(platform().notifications.messages(),
              (std::vector<FakeNotifications::Message>{
                  {R"("greeting.keyrill" is loaded)", "Press Ctrl+Super+P to play it."}}));
}

TEST_F(MacroFilesTest, doesNotSayHowToPlayWhatCannotBePlayed) {
    platform().macroFiles.put(path(), "tell\n");
    platform().scripting.refuse("tell\n", {.hasBegun = false, .line = 1, .error = {"Expected more.", ""}});
    controller.openMacroFile(file);
    EXPECT_EQ(platform().notifications.messages(),
              (std::vector<FakeNotifications::Message>{
                  {R"("greeting.keyrill" is loaded but cannot be played)", "Line 1: Expected more."}}));
}

TEST_F(MacroFilesTest, saysHowToPlayWithoutACombination) {
    platform().macroFiles.put(path(), "beep\n");
    controller.playShortcutText.setKeyCombo({});
    controller.openMacroFile(file);
    ASSERT_EQ(platform().notifications.messages().size(), 1U);
    EXPECT_EQ(platform().notifications.messages()[0].text,
              "Choose a shortcut for Play in the preferences to play it.");
}

TEST_F(MacroFilesTest, refusesAFileFromOutsideDuringARecording) {
    platform().macroFiles.put(path(), "beep\n");
    controller.recordMacro(nullptr);
    controller.openMacroFile(file);
    EXPECT_EQ(state().currentMacro, nullptr);
    EXPECT_EQ(
        platform().notifications.messages(),
        (std::vector<FakeNotifications::Message>{
            {R"("greeting.keyrill" was not loaded)", "A macro is being recorded. Stop recording first."}}));
}

TEST_F(MacroFilesTest, saysAtTheStatusItemWhatNobodyElseShows) {
    platform().notifications.losePresenter();
    platform().macroFiles.put(path(), "beep\n");
    controller.recordMacro(nullptr);
    controller.openMacroFile(file);
    EXPECT_EQ(statusItem.shownNotice,
              R"("greeting.keyrill" was not loaded. A macro is being recorded. Stop recording first.)");
}

TEST_F(MacroFilesTest, refusesAFileFromOutsideWhileAQuestionIsOpen) {
    platform().macroFiles.put(path(), "beep\n");
    recordKey();
    const auto recorded = state().currentMacro;
    dialogs.whileOpen([this] { controller.openMacroFile(file); });
    controller.saveMacro(nullptr);
    EXPECT_EQ(state().currentMacro, recorded);
    ASSERT_EQ(platform().notifications.messages().size(), 1U);
    EXPECT_EQ(platform().notifications.messages()[0].text, "Answer Keyrill's question first.");
}

TEST_F(MacroFilesTest, refusesAFileFromOutsideWhileTheScreenIsLocked) {
    platform().macroFiles.put(path(), "beep\n");
    controller.awakeFromNib();
    platform().screenLock.userLocksScreen();
    controller.openMacroFile(file);
    EXPECT_EQ(state().currentMacro, nullptr);
    ASSERT_EQ(platform().notifications.messages().size(), 1U);
    EXPECT_EQ(platform().notifications.messages()[0].text, "The screen is locked. Unlock it first.");
}

TEST_F(MacroFilesTest, tellsOfAFileFromOutsideThatCannotBeRead) {
    platform().macroFiles.failNextCall({"Permission denied.", ""});
    controller.openMacroFile(file);
    EXPECT_EQ(dialogs.alerts.size(), 1U);
    EXPECT_TRUE(platform().notifications.messages().empty());
}

}  // namespace
