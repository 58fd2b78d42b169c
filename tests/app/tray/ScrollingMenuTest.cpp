// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QScreen>

#include "app/tray/StatusMenu.h"

namespace {

/// A history of so many that no screen has room for all.
class ScrollingMenuTest : public testing::Test {
  protected:
    ScrollingMenuTest() {
        for (int i = 0; i < 500; ++i) history.addAction(QStringLiteral("A B C"));
        history.popup({0, 0});
    }
    void press(Qt::Key key) {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(&history, &press);
    }

    StatusMenu menu;
    QMenu& history = *menu.historyMenu;
};

TEST_F(ScrollingMenuTest, isOneColumnThatTheScreenHasRoomFor) {
    EXPECT_LE(history.height(), history.screen()->geometry().height());
    EXPECT_LT(history.width(), history.screen()->geometry().width() / 2);
    const QRect first = history.actionGeometry(history.actions().first());
    for (QAction* entry : history.actions()) EXPECT_EQ(history.actionGeometry(entry).x(), first.x());
}

TEST_F(ScrollingMenuTest, bringsTheLastEntryIntoView) {
    press(Qt::Key_End);
    EXPECT_EQ(history.activeAction(), history.actions().last());
    EXPECT_TRUE(history.rect().contains(history.actionGeometry(history.actions().last())));
    press(Qt::Key_Home);
    EXPECT_EQ(history.activeAction(), history.actions().first());
}

/// From the first entry on it goes to the last.
TEST_F(ScrollingMenuTest, followsTheArrowKeys) {
    press(Qt::Key_Home);
    press(Qt::Key_Up);
    EXPECT_EQ(history.activeAction(), history.actions().last());
    for (int i = 0; i < 60; ++i) {
        press(Qt::Key_Up);
        EXPECT_TRUE(history.rect().contains(history.actionGeometry(history.activeAction()))) << i;
    }
}

/// Out of the menu that it belongs to, at the lower edge of the screen as from a tray.
TEST_F(ScrollingMenuTest, opensAtItsTopThoughItWasScrolledBefore) {
    history.hide();
    const auto open = [this] {
        menu.popup({0, menu.screen()->geometry().bottom()});
        menu.setActiveAction(history.menuAction());
        QKeyEvent right(QEvent::KeyPress, Qt::Key_Right, Qt::NoModifier);
        QCoreApplication::sendEvent(&menu, &right);
    };
    open();
    ASSERT_TRUE(history.isVisible());
    const QRect place = history.geometry();
    for (int time = 0; time < 3; ++time) {
        press(Qt::Key_End);
        menu.hide();
        ASSERT_FALSE(history.isVisible());
        open();
        EXPECT_EQ(history.geometry(), place) << time;
        EXPECT_TRUE(history.rect().contains(history.actionGeometry(history.actions().first()))) << time;
    }
}

}  // namespace
