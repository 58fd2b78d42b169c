// SPDX-License-Identifier: MIT
#include "app/dialogs/MacroFilePanel.h"

#include <gtest/gtest.h>
#include <malloc.h>

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QTimer>
#include <filesystem>
#include <fstream>

#include "app/dialogs/AlertDialog.h"
#include "app/dialogs/QtDialogs.h"
#include "app/widgets/NoticeLine.h"
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

    /// Answers the alert that comes once a name has been typed.
    void answerAlert(bool yes) {
        // The first turn of the loop is that in which the name is typed.
        QTimer::singleShot(0, [this, yes] {
            QTimer::singleShot(0, [this, yes] {
                auto* alert = qobject_cast<AlertDialog*>(QApplication::activeModalWidget());
                ASSERT_NE(alert, nullptr);
                for (const auto* label : alert->findChildren<QLabel*>()) {
                    if (!label->pixmap().isNull()) continue;
                    EXPECT_EQ(label->textFormat(), Qt::PlainText);
                    question += label->text() + u'\n';
                }
                yes ? alert->accept() : alert->reject();
            });
        });
    }

    TemporaryFolder folder;
    QtDialogs dialogs;
    QString question;
};

TEST_F(MacroFilePanelTest, asksBeforeAFileIsReplacedThatHasTheSuffix) {
    makeFile("a <b>taken<i> &name.keyrill");
    answerAlert(false);
    EXPECT_EQ(savedAs(QStringLiteral("a <b>taken<i> &name")), QString());
    EXPECT_EQ(question.toStdString(),
              "\"a <b>taken<i> &name.keyrill\" is there already.\n"
              "Do you want to replace it? What is in it will be lost.\n");
}

TEST_F(MacroFilePanelTest, replacesAFileIfTheUserWishesIt) {
    makeFile("taken.keyrill");
    answerAlert(true);
    EXPECT_EQ(savedAs(QStringLiteral("taken")), inFolder("taken.keyrill"));
}

TEST_F(MacroFilePanelTest, saysThatANameIsTooLong) {
    const QString longest = QString(255 - 8, u'x');
    QTimer::singleShot(0, [&] {
        auto* panel = qobject_cast<MacroFilePanel*>(QApplication::activeModalWidget());
        auto* name = panel->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        const auto* notice = panel->findChild<NoticeLine*>();
        ASSERT_NE(notice, nullptr);
        name->setText(longest);
        EXPECT_FALSE(notice->isVisible());
        for (const QString& tooLong : {longest + u'x', QString(300, u'x'), QString(130, u'é')}) {
            name->setText(tooLong);
            EXPECT_TRUE(notice->isVisible());
            EXPECT_EQ(notice->notice(), "This name is too long for a file.");
            QMetaObject::invokeMethod(panel, "accept");
            EXPECT_TRUE(panel->isVisible());
        }
        name->setText(longest);
        EXPECT_FALSE(notice->isVisible());
        QMetaObject::invokeMethod(panel, "accept");
    });
    EXPECT_EQ(dialogs.runSavePanel(folderPath()), folderPath() + u'/' + longest + ".keyrill");
}

TEST_F(MacroFilePanelTest, loadsMacroFilesOnly) {
    makeFile("notes.txt");
    answerAlert(true);
    EXPECT_EQ(loadedFrom(QStringLiteral("notes.txt")), QString());
    EXPECT_EQ(
        question.toStdString(),
        "\"notes.txt\" is not a macro file.\nThe names of Keyrill's macro files end with \".keyrill\".\n");
}

TEST_F(MacroFilePanelTest, saysThatAFileIsNotThere) {
    answerAlert(true);
    EXPECT_EQ(loadedFrom(QStringLiteral("<i>none.keyrill")), QString());
    EXPECT_EQ(question.toStdString(),
              "There is no file \"<i>none.keyrill\".\nCheck the name, or choose one of the list.\n");
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

TEST_F(MacroFilePanelTest, beginsAnewEachTime) {
    makeFile("there.keyrill");
    EXPECT_EQ(loadedFrom(QStringLiteral("there.keyrill")), inFolder("there.keyrill"));
    const TemporaryFolder other;
    const QString place = QString::fromStdString(other.path());
    QTimer::singleShot(0, [&place] {
        auto* panel = qobject_cast<MacroFilePanel*>(QApplication::activeModalWidget());
        ASSERT_NE(panel, nullptr);
        auto* name = panel->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        EXPECT_EQ(panel->directory().absolutePath(), place);
        EXPECT_EQ(name->text(), QString());
        EXPECT_EQ(panel->focusWidget(), name);
        panel->close();
    });
    EXPECT_EQ(dialogs.runOpenPanel(place), QString());
}

TEST_F(MacroFilePanelTest, takesNoMoreMemoryEachTime) {
    const auto lookAndClose = [] {
        auto* panel = QApplication::activeModalWidget();
        ASSERT_NE(panel, nullptr);
        panel->grab();
        panel->close();
    };
    const auto cycles = [&](int count) {
        for (int number = 0; number < count; ++number) {
            QTimer::singleShot(0, lookAndClose);
            dialogs.runSavePanel(folderPath());
            QTimer::singleShot(0, lookAndClose);
            dialogs.runOpenPanel(folderPath());
        }
        return mallinfo2().uordblks;
    };
    const std::size_t before = cycles(3);
    constexpr std::size_t kibibyte = 1024;
    EXPECT_LT(cycles(15), before + 40 * kibibyte);
}

TEST_F(MacroFilePanelTest, showsMacrosAndFoldersOnly) {
    const MacroFilePanel panel(MacroFilePanel::Kind::open, folderPath());
    EXPECT_EQ(panel.nameFilters(), QStringList(QStringLiteral("Keyrill macros (*.keyrill)")));
    EXPECT_EQ(panel.directory().absolutePath(), folderPath());
}

}  // namespace
