// SPDX-License-Identifier: MIT
#include "app/dialogs/MacroFilePanel.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QTimer>
#include <filesystem>
#include <fstream>

#include "app/dialogs/QtDialogs.h"
#include "support/Child.h"

namespace {

class MacroFilePanelTest : public testing::Test {
  protected:
    QString folderPath() const { return QString::fromStdString(folder.path()); }
    QString inFolder(const char* name) const { return QString::fromStdString(folder.file(name)); }
    void makeFile(const char* name) const { std::ofstream(folder.file(name)) << "script"; }

    /// What the panel answers for a name that is typed into it.
    template <typename Run>
    QString answerFor(const QString& name, Run run) {
        QTimer::singleShot(0, [&name] {
            auto* panel = qobject_cast<MacroFilePanel*>(QApplication::activeModalWidget());
            ASSERT_NE(panel, nullptr);
            panel->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(name);
            QMetaObject::invokeMethod(panel, "accept");
            panel->close();
        });
        return run();
    }
    QString savedAs(const QString& name) {
        return answerFor(name, [this] { return dialogs.runSavePanel(folderPath()); });
    }
    QString loadedFrom(const QString& name) {
        return answerFor(name, [this] { return dialogs.runOpenPanel(folderPath()); });
    }

    /// Answers the next question of the toolkit with No.
    void refuse() {
        QTimer::singleShot(0, [this] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            question = box->text();
            box->button(QMessageBox::No)->click();
        });
    }

    TemporaryFolder folder;
    QtDialogs dialogs;
    QString question;
};

TEST_F(MacroFilePanelTest, asksBeforeAFileIsReplacedThatHasTheSuffix) {
    makeFile("taken.keyrill");
    QTimer::singleShot(0, [this] { refuse(); });
    EXPECT_EQ(savedAs(QStringLiteral("taken")), QString());
    EXPECT_TRUE(question.contains(QStringLiteral("taken.keyrill"))) << question.toStdString();
}

TEST_F(MacroFilePanelTest, savesInTheHomeFolderAndLeavesNoSettingsBehind) {
    qputenv("XDG_CONFIG_HOME", folder.file("config").c_str());
    EXPECT_EQ(savedAs(QStringLiteral("~/kept")), QDir::homePath() + QStringLiteral("/kept.keyrill"));
    qunsetenv("XDG_CONFIG_HOME");
    EXPECT_FALSE(std::filesystem::exists(folder.file("config")));
}

TEST_F(MacroFilePanelTest, loadsAFileThatIsThere) {
    makeFile("there.keyrill");
    EXPECT_EQ(loadedFrom(QStringLiteral("there.keyrill")), inFolder("there.keyrill"));
}

TEST_F(MacroFilePanelTest, isCancelledByClosingIt) { EXPECT_EQ(savedAs(QString()), QString()); }

TEST_F(MacroFilePanelTest, showsMacrosAndFoldersOnly) {
    const MacroFilePanel panel(MacroFilePanel::Kind::open, folderPath());
    EXPECT_EQ(panel.nameFilters(), QStringList(QStringLiteral("Keyrill macros (*.keyrill)")));
    EXPECT_EQ(panel.directory().absolutePath(), folderPath());
}

}  // namespace
