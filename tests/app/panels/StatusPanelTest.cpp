// SPDX-License-Identifier: MIT
#include "app/panels/StatusPanel.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

#include "app/Buttons.h"

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
    QPushButton& button(const char* title) { return buttonOf(panel, title); }
    QScrollArea& area() { return *panel.findChild<QScrollArea*>(); }
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

TEST_F(StatusPanelTest, whoAsksAgainStaysWhereHeIs) {
    int asked = 0;
    QObject::connect(&panel, &StatusPanel::checkWanted, [&asked] { ++asked; });
    panel.setReport(someReport);
    panel.show();
    button("Check Again").setFocus();
    button("Check Again").click();
    EXPECT_EQ(asked, 1);
    panel.setChecking();
    EXPECT_FALSE(area().isEnabled());
    panel.setReport(someReport);
    EXPECT_TRUE(area().isEnabled());
    EXPECT_EQ(panel.focusWidget(), &button("Check Again"));
}

TEST_F(StatusPanelTest, isAsLargeAsWhatComesWhileItIsShown) {
    panel.setChecking();
    EXPECT_FALSE(button("Copy").isEnabled());
    panel.show();
    std::vector<ReportLine> report;
    for (int i = 0; i < 10; ++i) report.push_back(someReport[0]);
    panel.setReport(report);
    QCoreApplication::processEvents();
    const QRect seen = area().viewport()->rect();
    for (const auto* label : panel.findChildren<QLabel*>())
        EXPECT_TRUE(seen.contains(QRect(label->mapTo(area().viewport(), QPoint(0, 0)), label->size())));
    const int before = panel.height();
    panel.setReport({someReport[0]});
    EXPECT_EQ(panel.height(), before);
}

TEST_F(StatusPanelTest, scrollsWhereTheScreenIsTooLow) {
    std::vector<ReportLine> report(200, someReport[1]);
    panel.show();
    panel.setReport(report);
    QCoreApplication::processEvents();
    EXPECT_LT(panel.height(), panel.screen()->availableSize().height());
    EXPECT_GT(area().verticalScrollBar()->maximum(), 0);
}

TEST_F(StatusPanelTest, linesBeginAtTheTopEachTime) {
    panel.resize(800, 500);
    panel.show();
    const auto top = [this] {
        QCoreApplication::processEvents();
        return panel.findChildren<QLabel*>()[1]->mapTo(&panel, QPoint(0, 0)).y();
    };
    panel.setReport(someReport);
    const int first = top();
    for (int time = 0; time < 2; ++time) panel.setReport(someReport);
    EXPECT_EQ(top(), first);
}

TEST_F(StatusPanelTest, saysWhatToDoWhereNothingIsFoundOut) {
    panel.setChecking();
    panel.setFault();
    EXPECT_TRUE(names().contains(QStringLiteral("Not known: What works here could not be found out.")));
    EXPECT_FALSE(button("Copy").isEnabled());
    EXPECT_TRUE(button("Check Again").isEnabled());
}

}  // namespace
