// SPDX-License-Identifier: MIT
#include "app/controller/StatusDesk.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QLabel>
#include <QPushButton>
#include <algorithm>
#include <chrono>
#include <fstream>

#include "app/AppTest.h"
#include "app/Buttons.h"
#include "app/RunLoop.h"
#include "app/panels/StatusPanel.h"

namespace {

/// What works here, by a shell's script in place of the program.
class StatusDeskTest : public AppTest {
  protected:
    void showWhat(const char* script) {
        desk.emplace(stage);
        desk->setCheck({QStringLiteral("/bin/sh"), QStringLiteral("-c"), QLatin1String(script)});
        desk->show();
    }
    bool comesToSay(const char* text) {
        const auto says = [&] {
            const auto labels = desk->panel()->findChildren<QLabel*>();
            return std::any_of(labels.begin(), labels.end(),
                               [text](const QLabel* label) { return label->text() == QLatin1String(text); });
        };
        return comesTrue(says, std::chrono::seconds(20));
    }
    QPushButton& againButton() { return buttonOf(*desk->panel(), "Check Again"); }

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
    showWhat("echo 'ok  Tray: there'; kill -9 $$");
    EXPECT_TRUE(comesToSay("What works here could not be found out."));
    desk.emplace(stage);
    desk->setCheck({QStringLiteral("/nowhere/keyrill")});
    desk->show();
    EXPECT_TRUE(comesToSay("What works here could not be found out."));
}

TEST_F(StatusDeskTest, doesNotWaitForACheckThatHangs) {
    desk.emplace(stage);
    desk->setPatience(std::chrono::milliseconds(200));
    desk->setCheck({QStringLiteral("/bin/sleep"), QStringLiteral("1000")});
    desk->show();
    EXPECT_TRUE(comesToSay("A moment..."));
    EXPECT_TRUE(comesToSay("What works here could not be found out."));
    desk->setCheck({QStringLiteral("/bin/echo"), QStringLiteral("ok  Tray: there")});
    againButton().click();
    EXPECT_TRUE(comesToSay("Tray: there"));
}

TEST_F(StatusDeskTest, endsWhileItIsFindingOut) {
    showWhat("exec sleep 1000");
    EXPECT_TRUE(comesToSay("A moment..."));
    desk.reset();
}

TEST_F(StatusDeskTest, asksOnceAtATimeAndAnewEachTime) {
    const TemporaryFolder folder;
    const std::string file = folder.file("runs");
    const std::string script = "echo >> " + file + "; read line < " + folder.file("gate") + "; wc -l < " +
                               file + " | sed 's/^/ok  Runs: /'";
    ASSERT_EQ(mkfifo(folder.file("gate").c_str(), 0600), 0);
    showWhat(script.c_str());
    desk->show();
    againButton().click();
    std::ofstream(folder.file("gate")) << "\n";
    EXPECT_TRUE(comesToSay("Runs: 1"));
    desk->show();
    std::ofstream(folder.file("gate")) << "\n";
    EXPECT_TRUE(comesToSay("Runs: 2"));
}

}  // namespace
