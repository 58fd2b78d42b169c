// SPDX-License-Identifier: MIT
#include "app/panels/WelcomePanel.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>

#include "app/panels/AboutPanel.h"
#include "app/shortcuts/PreferencesModel.h"
#include "engine/EngineTest.h"

namespace {

QString wordsOf(const QWidget& panel) {
    QStringList words;
    for (const auto* label : panel.findChildren<QLabel*>()) words.append(label->text());
    return words.join(QLatin1Char('\n'));
}

class WelcomePanelTest : public EngineTest {
  protected:
    PreferencesModel model;
    WelcomePanel panel{model};
};

TEST_F(WelcomePanelTest, namesTheCombinationsAsTheyAreSet) {
    for (const char* combination : {"Ctrl+Super+R", "Ctrl+Super+S", "Ctrl+Super+P", "Ctrl+Super+M"})
        EXPECT_TRUE(wordsOf(panel).contains(QLatin1String(combination))) << combination;
}

TEST_F(WelcomePanelTest, followsTheCombinations) {
    model.record.setKeyCombo({.flags = 0x040000, .code = 15});
    EXPECT_TRUE(wordsOf(panel).contains(QStringLiteral("Press Ctrl+R,")));
    model.stop.record({.flags = 0x040000, .code = 17});
    EXPECT_TRUE(wordsOf(panel).contains(QStringLiteral("Press Ctrl+T when")));
}

TEST_F(WelcomePanelTest, leadsToTheMenuWhereNoCombinationIsSet) {
    model.record.setKeyCombo({});
    EXPECT_TRUE(
        wordsOf(panel).contains(QStringLiteral("Choose Start Recording in Keyrill's menu. Then type.")));
}

/// As where a compositor gives no program any, or another program has one.
TEST_F(WelcomePanelTest, namesNoCombinationThatTheDesktopRefuses) {
    model.record.setRefused(true);
    const QString words = wordsOf(panel);
    EXPECT_TRUE(words.contains(QStringLiteral("Choose Start Recording in Keyrill's menu. Then type.")));
    EXPECT_FALSE(words.contains(QStringLiteral("Ctrl+Super+R")));
    EXPECT_TRUE(words.contains(QStringLiteral("Not set")));
    EXPECT_TRUE(words.contains(QStringLiteral("Press Ctrl+Super+S when")));
    model.record.setRefused(false);
    EXPECT_TRUE(wordsOf(panel).contains(QStringLiteral("Press Ctrl+Super+R,")));
}

TEST_F(WelcomePanelTest, closesByItsButtonAsByItsFrame) {
    int closes = 0;
    QObject::connect(&panel, &Panel::willClose, [&closes] { ++closes; });
    panel.show();
    panel.findChild<QPushButton*>()->click();
    EXPECT_EQ(closes, 1);
    EXPECT_FALSE(panel.isVisible());
}

TEST_F(WelcomePanelTest, goesOnByReturn) {
    panel.show();
    QKeyEvent event(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QCoreApplication::sendEvent(panel.focusWidget(), &event);
    EXPECT_FALSE(panel.isVisible());
}

TEST(AboutPanelTest, namesVersionLicenceAndLibraries) {
    const AboutPanel panel;
    for (const char* fact : {"Keyrill", "Version ", "MIT licence", "Qt 6", "LGPL 3", "GLib", "Boost"})
        EXPECT_TRUE(wordsOf(panel).contains(QLatin1String(fact))) << fact;
}

TEST(AboutPanelTest, pressesTheButtonThatHasTheFocusOnReturn) {
    AboutPanel panel;
    int presses = 0;
    QObject::connect(panel.productPageButton(), &QPushButton::clicked, [&presses] { ++presses; });
    panel.show();
    panel.productPageButton()->setFocus();
    QKeyEvent event(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QCoreApplication::sendEvent(panel.productPageButton(), &event);
    EXPECT_EQ(presses, 1);
    EXPECT_TRUE(panel.isVisible());
}

}  // namespace
