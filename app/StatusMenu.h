// SPDX-License-Identifier: MIT
#pragma once

#include <QMenu>

struct MenuState;

/// The text as a menu's title: a single "&" would mark a mnemonic, so each is doubled.
QString menuTitle(QString text);

/// The status item's menu. The controller connects the items; what they look like comes from a MenuState.
class StatusMenu : public QMenu {
    Q_OBJECT

  public:
    StatusMenu();

    void apply(const MenuState& state);

    QAction* recordMenuItem;
    QAction* stopMenuItem;
    QAction* saveDelayMenuItem;
    QAction* playMenuItem;
    QAction* multiplePlayMenuItem;
    QMenu* historyMenu;
    QAction* quitMenuItem;
};
