// SPDX-License-Identifier: MIT
#include "app/controller/StatusDesk.h"

#include <gtest/gtest.h>

#include <QEventLoop>
#include <QLabel>
#include <QPushButton>
#include <chrono>
#include <fstream>

#include "app/AppTest.h"
#include "app/panels/StatusPanel.h"

namespace {

/// What works here, by a shell's script in place of the program.
class StatusDeskTest : public AppTest {
  protected:
    void showWhat(const char* script) {
        desk.emplace(stage,
                     QStringList{QStringLiteral("/bin/sh"), QStringLiteral("-c"), QLatin1String(script)});
        desk->show();
    }
    bool comesToSay(const char* text) {
        const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
        while (std::chrono::steady_clock::now() < deadline) {
            for (const auto* label : desk->panel()->findChildren<QLabel*>()) {
                if (label->text() == QLatin1String(text)) return true;
            }
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
        }
        return false;
    }
    QPushButton& againButton() {
        for (auto* button : desk->panel()->findChildren<QPushButton*>()) {
            if (button->text() == QStringLiteral("Check &Again")) return *button;
        }
        throw std::runtime_error("no button");
    }

    Stage stage{windows, [] { return std::vector<QWidget*>(); }};
    std::optional<StatusDesk> desk;
};

TEST_F(StatusDeskTest, showsWhatTheCheckPrints) {
    showWhat("echo 'ok  Recording: by XInput'; echo 'no  Tray: none'; exit 1");
    EXPECT_TRUE(desk->panel()->isVisible());
    EXPECT_TRUE(comesToSay("Tray: none"));
}

TEST_F(StatusDeskTest, findsOutAnewWhenAsked) {
    const TemporaryFolder folder;
    const std::string file = folder.file("report");
    std::ofstream(file) << "ok  Tray: there\n";
    const std::string script = "cat " + file;
    showWhat(script.c_str());
    ASSERT_TRUE(comesToSay("Tray: there"));
    std::ofstream(file) << "no  Tray: gone\n";
    againButton().click();
    EXPECT_TRUE(comesToSay("Tray: gone"));
}

TEST_F(StatusDeskTest, saysSoWhereNothingCanBeFoundOut) {
    showWhat("kill -9 $$");
    EXPECT_TRUE(comesToSay("What works here could not be found out."));
    desk.emplace(stage, QStringList{QStringLiteral("/nowhere/keyrill")});
    desk->show();
    EXPECT_TRUE(comesToSay("What works here could not be found out."));
}

TEST_F(StatusDeskTest, doesNotWaitForACheckThatHangs) {
    showWhat("exec sleep 1000");
    EXPECT_TRUE(comesToSay("A moment..."));
    desk.reset();
}

TEST_F(StatusDeskTest, asksTheProgramItself) {
    const QStringList check = StatusDesk::checkOfThisProgram();
    EXPECT_EQ(check.first(), QCoreApplication::applicationFilePath());
    EXPECT_EQ(check.last(), QStringLiteral("--check"));
}

}  // namespace
