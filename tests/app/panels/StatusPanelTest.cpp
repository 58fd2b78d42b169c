// SPDX-License-Identifier: MIT
#include "app/panels/StatusPanel.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QPushButton>

namespace {

const std::vector<ReportLine> someReport = {
    {.verdict = Verdict::works, .text = "Recording: by XInput"},
    {.verdict = Verdict::fails, .text = "Tray: none", .advice = "Start a panel."},
    {.verdict = Verdict::uncertain, .text = "Hot key: not known"}};

class StatusPanelTest : public testing::Test {
  protected:
    /// What somebody hears who does not see the panel.
    QStringList names() {
        QStringList names;
        for (const auto* label : panel.findChildren<QLabel*>())
            names.append(label->accessibleName().isEmpty() ? label->text() : label->accessibleName());
        return names;
    }
    QPushButton& button(const char* title) {
        for (auto* button : panel.findChildren<QPushButton*>()) {
            if (button->text().remove(u'&') == QLatin1String(title)) return *button;
        }
        throw std::runtime_error(title);
    }
    StatusPanel panel;
};

TEST_F(StatusPanelTest, saysOfEachLineWhetherItWorks) {
    panel.setReport(someReport);
    EXPECT_EQ(names().join(u'|').toStdString(),
              "Works|Works: Recording: by XInput|Does not work|Does not work: Tray: none|Start a panel.|"
              "Not known|Not known: Hot key: not known");
}

TEST_F(StatusPanelTest, aNewReportTakesThePlaceOfTheOld) {
    panel.setReport(someReport);
    panel.setReport({someReport[0]});
    EXPECT_EQ(names().size(), 2);
}

TEST_F(StatusPanelTest, canBeCopied) {
    panel.setReport(someReport);
    button("Copy").click();
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(),
              "ok  Recording: by XInput\nno  Tray: none\n        Start a panel.\n?   Hot key: not known\n");
}

TEST_F(StatusPanelTest, nothingIsAskedTwiceAtOnce) {
    int asked = 0;
    QObject::connect(&panel, &StatusPanel::checkWanted, [&asked] { ++asked; });
    panel.setReport(someReport);
    button("Check Again").click();
    EXPECT_EQ(asked, 1);
    panel.setChecking();
    EXPECT_FALSE(button("Check Again").isEnabled());
    EXPECT_FALSE(button("Copy").isEnabled());
    panel.setReport(someReport);
    EXPECT_TRUE(button("Check Again").isEnabled());
    EXPECT_TRUE(button("Copy").isEnabled());
}

TEST_F(StatusPanelTest, saysWhatToDoWhereNothingIsFoundOut) {
    panel.setChecking();
    panel.setFault();
    EXPECT_TRUE(names().contains(QStringLiteral("Not known: What works here could not be found out.")));
    EXPECT_FALSE(button("Copy").isEnabled());
    EXPECT_TRUE(button("Check Again").isEnabled());
}

}  // namespace
