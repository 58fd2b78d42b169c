// SPDX-License-Identifier: MIT
#include "app/controller/MacrosDesk.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QPushButton>
#include <QTimer>
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <mutex>

#include "app/AppTest.h"
#include "app/Buttons.h"
#include "app/RunLoop.h"
#include "app/library/LibraryController.h"
#include "app/macros/KeysView.h"
#include "app/macros/MacroEditor.h"
#include "app/macros/MacroListModel.h"
#include "app/macros/MacroSettingsRow.h"
#include "app/macros/MacrosWindow.h"
#include "app/macros/ScriptEditor.h"
#include "app/shortcuts/SRRecorderControl.h"
#include "app/widgets/NoticeLine.h"
#include "core/MacroManager.h"
#include "platform/Modifiers.h"
#include "platform/linux/LocalFolderFollower.h"
#include "platform/linux/LocalMacroFiles.h"
#include "support/Child.h"
#include "support/Keys.h"

namespace {

std::string recording(const std::string& lines) {
    return std::string(steps::firstLine) + lines + std::string(steps::lastLine);
}

const std::string a = recording(steps::keyLines(key::a, 0));
const std::string ab = recording(steps::keyLines(key::a, 0) + steps::keyLines(key::b, 0));

const std::string gone = "The file of this macro is gone. If you save, it is there again.";
const std::string conflict = "Another program has changed this macro. If you save, your text replaces it.";

constexpr KeyCombo controlSuperOne{.flags = 0x140000, .code = 18};

/// The desk on a folder with Greeting ("a") and work/Mail, and a trash of its own.
class MacrosDeskTest : public AppTest {
  public:
    ~MacrosDeskTest() override {
        if (m_dataHome.isNull()) {
            qunsetenv("XDG_DATA_HOME");
        } else {
            qputenv("XDG_DATA_HOME", m_dataHome);
        }
    }

  protected:
    MacrosDeskTest() : m_dataHome(qgetenv("XDG_DATA_HOME")) {
        qputenv("XDG_DATA_HOME", QByteArray::fromStdString(m_home.file("data")));
        std::filesystem::create_directories(folder + "/work");
        write("Greeting", a);
        write("work/Mail", "tell application \"System Events\" to keystroke \"Kind regards\"\n");
        shelf.start();
        desk.show();
        EXPECT_TRUE(soon([this] { return names() == "Greeting|work/Mail"; }));
    }

    std::string file(const std::string& name) const { return folder + "/" + name + ".keyrill"; }
    void write(const std::string& name, const std::string& text) const { std::ofstream(file(name)) << text; }
    std::string draftFolder() const { return m_home.file("state"); }
    std::map<std::string, Draft> drafts() const { return DraftFiles(draftFolder()).all(); }
    bool isThere(const std::string& name) const { return std::filesystem::exists(file(name)); }

    MacrosWindow& window() { return *desk.window(); }
    MacroEditor& editor() { return window().editor(); }
    void choose(const std::string& name) {
        window().choose(name + ".keyrill");
        EXPECT_TRUE(soon([this] { return button("Play").isEnabled() || !warning().empty(); }));
    }
    std::string names() {
        std::string all;
        for (const MacroListItem& item : window().list().items())
            all += (all.empty() ? "" : "|") + item.path.substr(0, item.path.find(".keyrill"));
        return all;
    }
    /// Lets the loop run until that is so.
    bool soon(const std::function<bool()>& isSo) {
        return comesTrue([&] {
            follower.dispatch();
            return isSo();
        });
    }
    /// By Ctrl+Z under Keys.
    void undo() {
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, Qt::Key_Z, Qt::ControlModifier);
            QCoreApplication::sendEvent(&editor(), &event);
        }
    }
    QPushButton& button(const char* title) { return buttonOf(window(), title); }
    std::string warning() {
        for (auto* line : window().findChildren<NoticeLine*>()) {
            if (!line->notice().isEmpty() && line->isVisible()) return line->notice().toStdString();
        }
        return {};
    }

    /// In the field that the list has opened to name a macro in; empty if there is none.
    std::string nameInField() {
        for (auto* list : window().findChildren<QListView*>()) {
            const auto* field = list->findChild<QLineEdit*>();
            if (list->accessibleName() == QStringLiteral("Macros") && field != nullptr)
                return field->text().toStdString();
        }
        return {};
    }
    std::string told() { return window().findChild<QLabel*>(QStringLiteral("told"))->text().toStdString(); }

  private:
    /// Files of a folder that can be kept from answering.
    class HeldFiles : public LocalMacroFiles {
      public:
        using LocalMacroFiles::LocalMacroFiles;

        Result<std::string> read(const std::string& path) const override {
            const std::lock_guard lock(m_mutex);
            return LocalMacroFiles::read(path);
        }
        void hold() { m_mutex.lock(); }
        void letGo() { m_mutex.unlock(); }

      private:
        mutable std::mutex m_mutex;
    };

    TemporaryFolder m_home;
    QByteArray m_dataHome;

  protected:
    const std::string folder = m_home.file("data/keyrill");
    HeldFiles files{m_home.path(), m_home.file("data")};
    LocalFolderFollower follower;
    FakeHotKeys hotKeys{platform().journal, platform().desktop, platform().clock};
    LibraryController shelf{{.folderFollower = follower,
                             .macroRecords = platform().macroRecords,
                             .recordings = platform().recordings,
                             .macroFiles = files,
                             .hotKeys = hotKeys,
                             .firstHotKey = 1000,
                             .notifications = platform().notifications,
                             .scripting = platform().scripting,
                             .draftFolder = {}}};
    Gate gate{platform().eventMonitor, [] {}};
    Stage stage{windows, [this] { return std::vector<QWidget*>{desk.window()}; }};
    MacrosDesk desk{{shelf, files, platform().keyboardLayout, gate, stage, DraftFiles(m_home.file("state"))}};
};

TEST_F(MacrosDeskTest, listsTheMacroFolder) {
    EXPECT_EQ(names(), "Greeting|work/Mail");
    EXPECT_EQ(window().list().items()[1].group, QStringLiteral("work"));
    choose("Greeting");
    EXPECT_EQ(editor().text(), a);
}

TEST_F(MacrosDeskTest, followsWhatOthersDoInTheFolder) {
    write("New", a);
    EXPECT_TRUE(soon([this] { return names() == "Greeting|New|work/Mail"; })) << names();
    std::filesystem::create_directory(folder + "/more");
    write("more/Deep", a);
    std::filesystem::rename(file("Greeting"), file("Hello"));
    EXPECT_TRUE(soon([this] { return names() == "Hello|New|more/Deep|work/Mail"; })) << names();
    std::filesystem::remove(file("New"));
    EXPECT_TRUE(soon([this] { return names() == "Hello|more/Deep|work/Mail"; })) << names();
}

TEST_F(MacrosDeskTest, aMacroThatOthersRenameStaysChosenWithWhatIsNotSaved) {
    choose("Greeting");
    editor().keys().insertLines(steps::keyLines(key::b, 0));
    std::filesystem::rename(file("Greeting"), file("work/Hello"));
    EXPECT_TRUE(soon([this] { return names() == "work/Hello|work/Mail"; })) << names();
    EXPECT_EQ(window().chosen(), "work/Hello.keyrill");
    EXPECT_EQ(editor().text(), ab);
    EXPECT_TRUE(editor().isChanged());
    EXPECT_TRUE(soon([this] {
        const auto kept = drafts();
        return kept.size() == 1 && kept.begin()->first == "work/Hello.keyrill";
    }));
    button("Save").click();
    EXPECT_EQ(contentOf(file("work/Hello")), ab);
    EXPECT_FALSE(isThere("Greeting"));
}

TEST_F(MacrosDeskTest, whatIsNotSavedOfAnEarlierRunFollowsARename) {
    choose("Greeting");
    editor().keys().insertLines(steps::keyLines(key::b, 0));
    ASSERT_TRUE(soon([this] { return drafts().size() == 1; }));
    Stage otherStage(windows, [] { return std::vector<QWidget*>(); });
    MacrosDesk next({shelf, files, platform().keyboardLayout, gate, otherStage, DraftFiles(draftFolder())});
    std::filesystem::rename(file("Greeting"), file("Hello"));
    ASSERT_TRUE(soon([this] { return names() == "Hello|work/Mail"; }));
    next.show();
    next.window()->choose("Hello.keyrill");
    EXPECT_TRUE(soon([&] { return next.window()->editor().text() == ab; }));
}

TEST_F(MacrosDeskTest, aMacroThatOthersDeleteIsNotChosenAnyMore) {
    choose("Greeting");
    std::filesystem::remove(file("Greeting"));
    EXPECT_TRUE(soon([this] { return names() == "work/Mail"; })) << names();
    EXPECT_EQ(window().chosen(), "");
    EXPECT_FALSE(button("Play").isEnabled());
}

TEST_F(MacrosDeskTest, whatIsNotSavedOutlivesItsFile) {
    choose("Greeting");
    editor().keys().insertLines(steps::keyLines(key::b, 0));
    std::filesystem::remove(file("Greeting"));
    EXPECT_TRUE(soon([this] { return !warning().empty(); }));
    EXPECT_EQ(warning(), gone);
    EXPECT_EQ(window().chosen(), "Greeting.keyrill");
    button("Save").click();
    EXPECT_EQ(contentOf(file("Greeting")), ab);
}

TEST_F(MacrosDeskTest, whatIsNotSavedOutlivesItsFolder) {
    choose("work/Mail");
    editor().showScriptTab(true);
    editor().script().changeScript("beep\n");
    std::filesystem::remove_all(folder + "/work");
    ASSERT_TRUE(soon([this] { return warning().find("is gone") != std::string::npos; })) << warning();
    button("Save").click();
    EXPECT_EQ(contentOf(file("work/Mail")), "beep\n");
}

TEST_F(MacrosDeskTest, aFolderThatDoesNotAnswerHoldsNothingUp) {
    files.hold();
    window().choose("Greeting.keyrill");
    EXPECT_TRUE(
        soon([this] { return told() == "The macro is still being read: its folder does not answer."; }));
    EXPECT_FALSE(button("Save").isEnabled());
    files.letGo();
    EXPECT_TRUE(soon([this] { return editor().text() == a; }));
    EXPECT_EQ(told(), "");
}

TEST_F(MacrosDeskTest, aMacroThatOthersRenameWhileItIsReadIsShown) {
    write("work/Mail", a);
    choose("work/Mail");
    files.hold();
    window().choose("Greeting.keyrill");
    ASSERT_TRUE(
        soon([this] { return told() == "The macro is still being read: its folder does not answer."; }));
    std::filesystem::rename(file("Greeting"), file("Hello"));
    ASSERT_TRUE(soon([this] { return names() == "Hello|work/Mail"; })) << names();
    files.letGo();
    EXPECT_TRUE(soon([this] { return told().empty(); })) << told();
    EXPECT_EQ(window().chosen(), "Hello.keyrill");
    EXPECT_EQ(editor().text(), a);
}

TEST_F(MacrosDeskTest, savesWhatWasChanged) {
    choose("Greeting");
    editor().keys().insertLines(steps::keyLines(key::b, 0));
    EXPECT_EQ(contentOf(file("Greeting")), a);
    button("Save").click();
    EXPECT_EQ(contentOf(file("Greeting")), ab);
    EXPECT_FALSE(editor().isChanged());
    EXPECT_FALSE(button("Save").isEnabled());
}

TEST_F(MacrosDeskTest, whatIsNotSavedStaysWhateverElseIsChosen) {
    choose("Greeting");
    editor().keys().insertLines(steps::keyLines(key::b, 0));
    choose("work/Mail");
    EXPECT_FALSE(editor().isChanged());
    choose("Greeting");
    EXPECT_EQ(editor().text(), ab);
    EXPECT_TRUE(editor().isChanged());
    EXPECT_EQ(window().list().data(window().list().indexOf("Greeting.keyrill"), Qt::DisplayRole).toString(),
              QString::fromUtf8("Greeting •"));
}

TEST_F(MacrosDeskTest, aFileThatCannotBeWrittenKeepsItsTextAndTheChange) {
    choose("Greeting");
    editor().showScriptTab(true);
    editor().script().changeScript("keystroke \"é\"\n");
    button("Save").click();
    EXPECT_NE(warning().find("é"), std::string::npos) << warning();
    EXPECT_EQ(contentOf(file("Greeting")), a);
    EXPECT_TRUE(editor().isChanged());
}

TEST_F(MacrosDeskTest, aMacroThatOthersChangeIsShownAnewUnlessItIsBeingEdited) {
    choose("Greeting");
    // As editors do.
    write("Greeting.new", ab);
    std::filesystem::rename(file("Greeting.new"), file("Greeting"));
    EXPECT_TRUE(soon([this] { return editor().text() == ab; }));
    editor().keys().insertLines(steps::pauseLines(1));
    const std::string mine = editor().text();
    write("Greeting.new", a);
    std::filesystem::rename(file("Greeting.new"), file("Greeting"));
    EXPECT_TRUE(soon([this] { return !warning().empty(); }));
    EXPECT_EQ(warning(), conflict);
    EXPECT_EQ(editor().text(), mine);
}

TEST_F(MacrosDeskTest, renamesTheFileAndKeepsWhatIsNotSaved) {
    choose("Greeting");
    editor().keys().insertLines(steps::keyLines(key::b, 0));
    window().list().setData(window().list().indexOf("Greeting.keyrill"), QStringLiteral("Hello"),
                            Qt::EditRole);
    EXPECT_TRUE(soon([this] { return names() == "Hello|work/Mail"; })) << names();
    EXPECT_EQ(window().chosen(), "Hello.keyrill");
    EXPECT_EQ(editor().text(), ab);
    button("Save").click();
    EXPECT_EQ(contentOf(file("Hello")), ab);
    EXPECT_FALSE(isThere("Greeting"));
}

TEST_F(MacrosDeskTest, aNameThatCannotBeGivenIsToldAndNothingIsOverwritten) {
    choose("Greeting");
    write("Hello", "other");
    window().list().setData(window().list().indexOf("Greeting.keyrill"), QStringLiteral("Hello"),
                            Qt::EditRole);
    EXPECT_EQ(warning(), "There is already a macro called \"Hello\".");
    EXPECT_EQ(contentOf(file("Hello")), "other");
    EXPECT_EQ(contentOf(file("Greeting")), a);
}

TEST_F(MacrosDeskTest, aCopyIsChosenToBeNamed) {
    choose("Greeting");
    button("Duplicate").click();
    EXPECT_TRUE(soon([this] { return window().chosen() == "Greeting 2.keyrill"; }));
    EXPECT_EQ(contentOf(file("Greeting 2")), a);
}

TEST_F(MacrosDeskTest, whatIsDeletedComesBackFromTheTrash) {
    choose("Greeting");
    button("Delete").click();
    EXPECT_TRUE(soon([this] { return names() == "work/Mail"; })) << names();
    EXPECT_EQ(window().chosen(), "work/Mail.keyrill") << "the next one";
    EXPECT_EQ(told(), "The macro is in the trash.");
    button("Undo").click();
    EXPECT_TRUE(soon([this] { return window().chosen() == "Greeting.keyrill"; }));
    EXPECT_EQ(contentOf(file("Greeting")), a);
}

TEST_F(MacrosDeskTest, allAreDeletedOneByOneAndComeBack) {
    choose("Greeting");
    button("Delete").click();
    button("Delete").click();
    EXPECT_TRUE(soon([this] { return names().empty(); })) << names();
    EXPECT_EQ(window().chosen(), "");
    EXPECT_FALSE(button("Delete").isEnabled());
    emit window().undoWanted();
    emit window().undoWanted();
    EXPECT_TRUE(soon([this] { return names() == "Greeting|work/Mail"; })) << names();
}

TEST_F(MacrosDeskTest, playsIntoTheWindowBeforeWhatIsShown) {
    choose("Greeting");
    editor().keys().insertLines(steps::keyLines(key::b, 0));
    platform().scripting.duringEachRun([this] { EXPECT_FALSE(window().isVisible()); });
    emit window().playWanted();
    EXPECT_EQ(platform().scripting.runs(), std::vector<std::string>{ab});
    EXPECT_EQ(windows.calls().back(), "awaitFocusElsewhere(hidden)");
    EXPECT_TRUE(window().isVisible());
    EXPECT_EQ(window().windowOpacity(), 1);
    EXPECT_FALSE(state().currentMacro) << "what Play plays stays";
}

TEST_F(MacrosDeskTest, aRecordingBecomesAMacroToBeNamed) {
    button("Record New").click();
    EXPECT_TRUE(state().recording);
    EXPECT_FALSE(window().isVisible());
    platform().journal.clear();
    desk.takeRecording(*[] {
        auto macro = MacroManager::createMacro();
        macro->setScript(ab);
        return macro;
    }());
    EXPECT_TRUE(window().isVisible());
    ASSERT_EQ(windows.calls().size(), 1U);
    EXPECT_TRUE(windows.calls().front().starts_with("activate(")) << windows.calls().front();
    EXPECT_TRUE(soon([this] { return window().chosen() == "New Macro.keyrill"; }));
    EXPECT_EQ(contentOf(file("New Macro")), ab);
    EXPECT_EQ(nameInField(), "New Macro");
}

TEST_F(MacrosDeskTest, aRecordingBecomesKeysOfTheMacro) {
    choose("Greeting");
    emit window().keysWanted();
    auto macro = MacroManager::createMacro();
    macro->setScript(recording(steps::keyLines(key::b, 0)));
    desk.takeRecording(*macro);
    EXPECT_EQ(editor().text(), ab);
    // Others are none of the window's.
    desk.takeRecording(*macro);
    EXPECT_EQ(editor().text(), ab);
}

TEST_F(MacrosDeskTest, anEmptyRecordingBringsTheWindowBack) {
    button("Record New").click();
    desk.recordingEnded();
    EXPECT_TRUE(window().isVisible());
    EXPECT_EQ(names(), "Greeting|work/Mail");
}

TEST_F(MacrosDeskTest, whatIsNotSavedOutlivesTheProgram) {
    choose("Greeting");
    editor().keys().insertLines(steps::keyLines(key::b, 0));
    ASSERT_TRUE(soon([this] { return drafts().size() == 1; }));
    EXPECT_EQ(drafts().begin()->second, (Draft{ab, fingerprintOf(a)}));
    // The file goes too.
    std::filesystem::remove(file("Greeting"));
    Stage otherStage(windows, [] { return std::vector<QWidget*>(); });
    MacrosDesk next({shelf, files, platform().keyboardLayout, gate, otherStage, DraftFiles(draftFolder())});
    next.show();
    next.window()->choose("Greeting.keyrill");
    EXPECT_TRUE(soon([&] { return next.window()->editor().text() == ab; }));
    emit next.window()->saveWanted();
    EXPECT_EQ(contentOf(file("Greeting")), ab);
    EXPECT_TRUE(soon([this] { return drafts().empty(); }));
}

TEST_F(MacrosDeskTest, whatOthersWroteMeanwhileIsToldAsLongAsItWouldBeLost) {
    choose("Greeting");
    editor().keys().insertLines(steps::keyLines(key::b, 0));
    write("Greeting", recording(steps::keyLines(key::s, 0)));
    ASSERT_TRUE(soon([this] { return warning() == conflict; })) << warning();
    choose("work/Mail");
    EXPECT_EQ(warning(), "");
    choose("Greeting");
    EXPECT_TRUE(soon([this] { return warning() == conflict; })) << warning();
    EXPECT_EQ(editor().text(), ab);
    ASSERT_TRUE(soon([this] { return drafts().size() == 1; }));
    // Another run knows it too.
    Stage otherStage(windows, [] { return std::vector<QWidget*>(); });
    MacrosDesk next({shelf, files, platform().keyboardLayout, gate, otherStage, DraftFiles(draftFolder())});
    next.show();
    next.window()->choose("Greeting.keyrill");
    const auto nextWarning = [&next] {
        for (auto* line : next.window()->findChildren<NoticeLine*>()) {
            if (!line->notice().isEmpty() && line->isVisible()) return line->notice().toStdString();
        }
        return std::string();
    };
    EXPECT_TRUE(soon([&] { return nextWarning() == conflict; })) << nextWarning();
    // Who saves has chosen.
    emit window().saveWanted();
    choose("work/Mail");
    choose("Greeting");
    EXPECT_EQ(warning(), "");
}

TEST_F(MacrosDeskTest, whatOthersWroteIsNotToldAnyMoreOnceTheyTakeItBack) {
    choose("Greeting");
    editor().keys().insertLines(steps::keyLines(key::b, 0));
    write("Greeting", recording(steps::keyLines(key::s, 0)));
    ASSERT_TRUE(soon([this] { return warning() == conflict; })) << warning();
    write("Greeting", a);
    EXPECT_TRUE(soon([this] { return warning().empty(); })) << warning();
    EXPECT_EQ(editor().text(), ab);
    // Also when the macro was opened meanwhile, and the file is replaced.
    write("Greeting", recording(steps::keyLines(key::s, 0)));
    ASSERT_TRUE(soon([this] { return warning() == conflict; })) << warning();
    choose("work/Mail");
    choose("Greeting");
    ASSERT_TRUE(soon([this] { return warning() == conflict; })) << warning();
    write("Greeting.new", a);
    std::filesystem::rename(file("Greeting.new"), file("Greeting"));
    EXPECT_TRUE(soon([this] { return warning().empty(); })) << warning();
    EXPECT_EQ(editor().text(), ab);
}

TEST_F(MacrosDeskTest, whoTakesBackAllThatWasNotSavedSeesWhatOthersWrote) {
    const std::string others = recording(steps::keyLines(key::s, 0));
    choose("Greeting");
    editor().keys().insertLines(steps::keyLines(key::b, 0));
    write("Greeting", others);
    ASSERT_TRUE(soon([this] { return warning() == conflict; })) << warning();
    undo();
    EXPECT_TRUE(soon([&] { return editor().text() == others; })) << editor().text();
    EXPECT_EQ(warning(), "");
    EXPECT_FALSE(editor().isChanged());
    // The same where the file is gone.
    editor().keys().insertLines(steps::keyLines(key::b, 0));
    std::filesystem::remove(file("Greeting"));
    ASSERT_TRUE(soon([this] { return warning() == gone; })) << warning();
    undo();
    EXPECT_TRUE(soon([this] { return window().chosen().empty(); }));
    EXPECT_EQ(told(), "Another program has deleted or moved the macro.");
}

TEST_F(MacrosDeskTest, aHotKeyGoesWithItsMacroAndComesBackWithIt) {
    const MacroSettings mine{.hotKey = controlSuperOne, .play = {.times = {3}}};
    choose("Greeting");
    shelf.library().setSettings("Greeting.keyrill", mine);
    ASSERT_EQ(shelf.hotKeys().state("Greeting.keyrill").status, HotKeyStatus::registered);
    button("Delete").click();
    ASSERT_TRUE(soon([this] { return names() == "work/Mail"; })) << names();
    // Somebody else's.
    write("Greeting", ab);
    ASSERT_TRUE(soon([this] { return names() == "Greeting|work/Mail"; })) << names();
    EXPECT_EQ(shelf.hotKeys().state("Greeting.keyrill").status, HotKeyStatus::unset);
    EXPECT_EQ(shelf.library().settings("Greeting.keyrill"), MacroSettings());
    std::filesystem::remove(file("Greeting"));
    ASSERT_TRUE(soon([this] { return names() == "work/Mail"; })) << names();
    emit window().undoWanted();
    ASSERT_TRUE(soon([this] { return names() == "Greeting|work/Mail"; })) << names();
    EXPECT_EQ(shelf.library().settings("Greeting.keyrill"), mine);
    EXPECT_EQ(shelf.hotKeys().state("Greeting.keyrill").status, HotKeyStatus::registered);
}

TEST_F(MacrosDeskTest, aFileThatComesBackAsItWasIsNotToldAsGone) {
    choose("Greeting");
    editor().keys().insertLines(steps::keyLines(key::b, 0));
    std::filesystem::remove(file("Greeting"));
    ASSERT_TRUE(soon([this] { return warning() == gone; })) << warning();
    write("Greeting", a);
    EXPECT_TRUE(soon([this] { return warning().empty(); })) << warning();
    std::filesystem::remove(file("Greeting"));
    ASSERT_TRUE(soon([this] { return warning() == gone; })) << warning();
    // Nothing but the text that was there counts.
    write("Greeting", recording(steps::keyLines(key::s, 0)));
    EXPECT_TRUE(soon([this] { return warning() == conflict; })) << warning();
    EXPECT_EQ(editor().text(), ab);
}

TEST_F(MacrosDeskTest, anotherWarningStaysWhenOthersTakeTheirTextBack) {
    choose("Greeting");
    editor().keys().insertLines(steps::keyLines(key::b, 0));
    write("Greeting", recording(steps::keyLines(key::s, 0)));
    ASSERT_TRUE(soon([this] { return warning() == conflict; })) << warning();
    write("Hello", "other");
    window().list().setData(window().list().indexOf("Greeting.keyrill"), QStringLiteral("Hello"),
                            Qt::EditRole);
    const std::string taken = "There is already a macro called \"Hello\".";
    ASSERT_EQ(warning(), taken);
    write("Greeting", a);
    const auto isRead = [this] { return window().list().hasContent("Greeting.keyrill"); };
    ASSERT_TRUE(soon([&] { return !isRead(); }));
    ASSERT_TRUE(soon(isRead));
    EXPECT_EQ(warning(), taken);
}

TEST_F(MacrosDeskTest, aTextWhoseFileIsGoneCanBeDeletedAndBroughtBack) {
    choose("Greeting");
    editor().keys().insertLines(steps::keyLines(key::b, 0));
    std::filesystem::remove(file("Greeting"));
    ASSERT_TRUE(soon([this] { return !warning().empty(); }));
    button("Delete").click();
    EXPECT_EQ(warning(), "");
    EXPECT_TRUE(soon([this] { return names() == "work/Mail"; })) << names();
    EXPECT_TRUE(soon([this] { return drafts().empty(); }));
    button("Undo").click();
    EXPECT_TRUE(soon([this] { return window().chosen() == "Greeting.keyrill" && editor().text() == ab; }));
    EXPECT_FALSE(isThere("Greeting"));
}

TEST_F(MacrosDeskTest, aFileThatCannotBeReadIsNotCalledGone) {
    choose("Greeting");
    editor().keys().insertLines(steps::keyLines(key::b, 0));
    choose("work/Mail");
    std::filesystem::remove(file("Greeting"));
    std::filesystem::create_directory(file("Greeting"));
    choose("Greeting");
    EXPECT_TRUE(soon([this] { return warning().find("folder") != std::string::npos; })) << warning();
    EXPECT_EQ(warning().find("gone"), std::string::npos) << warning();
    EXPECT_EQ(editor().text(), ab);
}

TEST_F(MacrosDeskTest, aScriptThatIsWrongIsNotCountedDownFor) {
    write("Broken", "beep\ntell application\n");
    ASSERT_TRUE(soon([this] { return names() == "Broken|Greeting|work/Mail"; }));
    choose("Broken");
    button("Play").click();
    EXPECT_FALSE(window().isCounting());
    const auto lines = window().findChildren<NoticeLine*>();
    EXPECT_TRUE(std::any_of(lines.begin(), lines.end(), [](const NoticeLine* line) {
        return line->notice().startsWith(QStringLiteral("The macro cannot be played. Line 2: "));
    }));
    choose("Greeting");
    button("Play").click();
    EXPECT_TRUE(window().isCounting());
}

TEST_F(MacrosDeskTest, whatCannotBeKeptOfAMacroIsTold) {
    choose("Greeting");
    emit window().settings().playWanted({.times = {3}});
    // As it is when it is written, at the end of the turn.
    platform().macroRecords.addFault({"The disk is full", "Make room."});
    EXPECT_TRUE(soon([this] { return warning() == "The disk is full. Make room."; })) << warning();
}

TEST_F(MacrosDeskTest, whatIsNotSavedGoesToTheTrashAndComesBackWithItsMacro) {
    choose("Greeting");
    editor().keys().insertLines(steps::keyLines(key::b, 0));
    button("Delete").click();
    EXPECT_TRUE(soon([this] { return names() == "work/Mail"; })) << names();
    button("Undo").click();
    EXPECT_TRUE(soon([this] { return window().chosen() == "Greeting.keyrill"; }));
    EXPECT_TRUE(soon([this] { return editor().text() == ab; }));
    EXPECT_EQ(contentOf(file("Greeting")), a);
}

TEST_F(MacrosDeskTest, whatMacrosTypeIsFound) {
    ASSERT_TRUE(soon([this] { return window().list().hasContent("work/Mail.keyrill"); }));
    window().list().setQuery(QStringLiteral("kind reg"));
    EXPECT_TRUE(soon([this] { return window().list().rowCount() == 2; }));
    EXPECT_TRUE(window().list().indexOf("work/Mail.keyrill").isValid());
}

TEST_F(MacrosDeskTest, whatIsToldAboutAMacroIsFound) {
    write("Bill", "-- For the invoice\n" + a);
    ASSERT_TRUE(soon([this] { return window().list().hasContent("Bill.keyrill"); }));
    window().list().setQuery(QStringLiteral("invoice"));
    EXPECT_TRUE(soon([this] { return window().list().indexOf("Bill.keyrill").isValid(); }));
}

TEST_F(MacrosDeskTest, aGoodNameEndsWhatWasToldOfABadOne) {
    choose("Greeting");
    emit window().renameWanted("Greeting.keyrill", QStringLiteral("a/b"));
    ASSERT_NE(warning(), "");
    emit window().renameWanted("Greeting.keyrill", QStringLiteral("Hello"));
    EXPECT_EQ(warning(), "");
    EXPECT_TRUE(isThere("Hello"));
}

TEST_F(MacrosDeskTest, aNewNameLeavesWhatWasDeletedToBeTakenBack) {
    choose("Greeting");
    emit window().deleteWanted("Greeting.keyrill");
    emit window().renameWanted("work/Mail.keyrill", QStringLiteral("Post"));
    ASSERT_FALSE(isThere("Greeting"));
    button("Undo").click();
    EXPECT_TRUE(isThere("Greeting"));
}

TEST_F(MacrosDeskTest, whatIsInTheWayOfWhatWasDeletedMayGo) {
    choose("Greeting");
    editor().keys().insertLines(steps::keyLines(key::b, 0));
    const std::string unsaved = editor().text();
    emit window().deleteWanted("Greeting.keyrill");
    write("Greeting", ab);
    button("Undo").click();
    EXPECT_NE(warning(), "");
    std::filesystem::remove(file("Greeting"));
    button("Undo").click();
    ASSERT_TRUE(isThere("Greeting"));
    EXPECT_TRUE(soon([&] { return window().chosen() == "Greeting.keyrill" && editor().text() == unsaved; }));
}

TEST_F(MacrosDeskTest, aFileThatCannotBeReadSaysSo) {
    std::filesystem::remove(file("Greeting"));
    choose("Greeting");
    EXPECT_NE(warning().find("Greeting.keyrill"), std::string::npos) << warning();
    EXPECT_FALSE(button("Play").isEnabled());
}

/// What belongs to a macro beside its text.
class MacroSettingsDeskTest : public MacrosDeskTest {
  protected:
    Record kept(const std::string& name) {
        platform().macroRecords.endTurn();
        const auto& stored = platform().macroRecords.stored();
        const auto record = stored.find(name + ".keyrill");
        return record == stored.end() ? Record() : record->second;
    }
    std::string notice() {
        const auto* line = window().settings().findChild<NoticeLine*>();
        return line->isVisible() ? line->notice().toStdString() : std::string();
    }
    std::string shownHotKey() {
        return window().settings().findChild<SRRecorderControl*>()->displayText().toStdString();
    }
    std::string line(const std::string& name) {
        const QModelIndex index = window().list().indexOf(name + ".keyrill");
        return window().list().data(index, Qt::DisplayRole).toString().toStdString();
    }
};

TEST_F(MacroSettingsDeskTest, aHotKeyIsKeptRegisteredAndListedAtOnce) {
    choose("Greeting");
    emit window().settings().hotKeyWanted(controlSuperOne);
    EXPECT_EQ(kept("Greeting"), (Record{{"hotKeyCode", "18"}, {"hotKeyFlags", "1310720"}}));
    EXPECT_EQ(hotKeys.registered().at(1000), (std::pair<std::uint32_t, std::uint32_t>{18, 0x1100}));
    EXPECT_TRUE(soon([this] { return line("Greeting") == "Greeting (Ctrl+Super+1)"; })) << line("Greeting");
    EXPECT_EQ(notice(), "");
    choose("work/Mail");
    EXPECT_EQ(shownHotKey(), "Not set");
    choose("Greeting");
    EXPECT_EQ(shownHotKey(), "Ctrl+Super+1");
}

TEST_F(MacroSettingsDeskTest, aHotKeyThatSomebodyElseHasSaysWho) {
    choose("Greeting");
    emit window().settings().hotKeyWanted(controlSuperOne);
    choose("work/Mail");
    emit window().settings().hotKeyWanted(controlSuperOne);
    EXPECT_EQ(notice(), "Already used by macro \"Greeting\".");
    setHotKey("record", 18, 0x1100);
    shelf.followShortcuts();
    EXPECT_EQ(notice(), "Already used by Start Recording.");
    EXPECT_TRUE(soon([this] { return line("Greeting") == "Greeting"; })) << line("Greeting");
}

TEST_F(MacroSettingsDeskTest, timesAndSpeedAreKeptAndPlayed) {
    choose("Greeting");
    emit window().settings().playWanted({.times = {2}, .speed = 0.5});
    EXPECT_EQ(kept("Greeting"), (Record{{"times", "2"}, {"speed", "0.5"}}));
    emit window().playWanted();
    EXPECT_EQ(platform().scripting.runs(), (std::vector<std::string>{a, a}));
    EXPECT_EQ(platform().scripting.speeds(), (std::vector<double>{0.5, 0.5}));
}

TEST_F(MacroSettingsDeskTest, theSettingsGoWithAMacroThatOthersRename) {
    choose("Greeting");
    emit window().settings().hotKeyWanted(controlSuperOne);
    std::filesystem::rename(file("Greeting"), file("Hello"));
    EXPECT_TRUE(soon([this] { return window().chosen() == "Hello.keyrill"; }));
    EXPECT_EQ(shownHotKey(), "Ctrl+Super+1");
    EXPECT_TRUE(soon([this] { return line("Hello") == "Hello (Ctrl+Super+1)"; })) << line("Hello");
}

TEST_F(MacroSettingsDeskTest, hotKeysRestWhileTheFieldTakesOne) {
    choose("Greeting");
    emit window().settings().recordingChanged(true);
    EXPECT_FALSE(state().hotKeysEnabled);
    emit window().settings().recordingChanged(false);
    EXPECT_TRUE(state().hotKeysEnabled);
    // As long as the preferences are open they rest anyway.
    state().hotKeysEnabled = false;
    emit window().settings().recordingChanged(true);
    emit window().settings().recordingChanged(false);
    EXPECT_FALSE(state().hotKeysEnabled);
}

/// The history has two recordings.
class MacrosDeskHistoryTest : public MacrosDeskTest {
  protected:
    void record(const std::string& script) {
        auto macro = MacroManager::createMacro();
        macro->setScript(script);
        shelf.history().add(*macro);
    }
    QPushButton& keepButton() { return button("Keep Recording..."); }
    /// What can be chosen there, as it is when it is opened.
    QList<QAction*> keepActions() {
        emit keepButton().menu()->aboutToShow();
        return keepButton().menu()->actions();
    }
    QList<QAction*> forgetActions() { return keepActions().last()->menu()->actions(); }
};

TEST_F(MacrosDeskHistoryTest, aRecordingIsKeptUnderAName) {
    EXPECT_FALSE(keepButton().isEnabled());
    record(a);
    record(ab);
    EXPECT_TRUE(keepButton().isEnabled());
    // And a line, and what forgets them.
    ASSERT_EQ(keepActions().size(), 4);
    // The latest is the first.
    keepActions().first()->trigger();
    EXPECT_TRUE(soon([this] { return window().chosen() == "New Macro.keyrill"; }));
    EXPECT_EQ(contentOf(file("New Macro")), ab);
    keepActions()[1]->trigger();
    EXPECT_TRUE(soon([this] { return window().chosen() == "New Macro 2.keyrill"; }));
    EXPECT_EQ(contentOf(file("New Macro 2")), a);
}

TEST_F(MacrosDeskHistoryTest, oneOfThemIsForgotten) {
    record(a);
    record(ab);
    forgetActions().first()->trigger();
    EXPECT_EQ(told(), "The recording is forgotten.");
    ASSERT_EQ(shelf.history().entries().size(), 1U);
    EXPECT_EQ(keepActions().size(), 3);
    keepActions().first()->trigger();
    EXPECT_TRUE(soon([this] { return contentOf(file("New Macro")) == a; }));
}

TEST_F(MacrosDeskHistoryTest, oneThatCannotBeForgottenIsToldAndStays) {
    shelf.history().setKept(true);
    record(a);
    platform().recordings.failNextCall({"The folder is read-only.", ""});
    forgetActions().first()->trigger();
    EXPECT_EQ(warning(), "The folder is read-only.");
    EXPECT_EQ(shelf.history().entries().size(), 1U);
    platform().recordings.failNextCall({"The folder is full.", ""});
    forgetActions().last()->trigger();
    EXPECT_EQ(warning(), "The folder is full.");
    EXPECT_EQ(shelf.history().entries().size(), 1U);
}

TEST_F(MacrosDeskHistoryTest, linesSayWhatAndWhen) {
    auto macro = MacroManager::createMacro();
    macro->addAction(createKeyCode(0, "a&b", 'a'));
    shelf.history().add(*macro);
    record(a);
    const QString time = QLocale().toString(
        QDateTime::fromMSecsSinceEpoch(shelf.history().entries()[1].recordedAt.time_since_epoch().count()),
        QLocale::ShortFormat);
    EXPECT_EQ(keepActions()[1]->text(), QStringLiteral("a&&b\t") + time);
    EXPECT_EQ(forgetActions()[1]->text(), QStringLiteral("a&&b\t") + time);
    EXPECT_EQ(forgetActions().last()->text(), "Forget &All");
}

TEST_F(MacrosDeskHistoryTest, allOfThemAreForgotten) {
    record(a);
    record(ab);
    state().currentMacro = MacroManager::macro(shelf.history().entries().front().macroId);
    forgetActions().last()->trigger();
    EXPECT_EQ(told(), "All recordings are forgotten. Play has the latest macro until there is another.");
    EXPECT_TRUE(shelf.history().entries().empty());
    EXPECT_FALSE(keepButton().isEnabled());
}

}  // namespace
