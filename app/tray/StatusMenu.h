// SPDX-License-Identifier: MIT
#pragma once

#include <QMenu>

struct MenuState;

/// The text as a menu's title: a single "&" would mark a mnemonic, so each is doubled.
QString menuTitle(QString text);

/// The status item's menu. The controller connects the items; what they look like comes from a MenuState.
/// Until the first one, everything is shown.
class StatusMenu : public QMenu {
    Q_OBJECT

  public:
    StatusMenu();

    void apply(const MenuState& state);

  signals:
    /// The program's own menu window is on the screen, or no more. Nothing of a menu that the tray draws: not
    /// every tray says when it closes one.
    void shown(bool open);

  public:
    QAction* recordMenuItem = nullptr;
    QAction* stopMenuItem = nullptr;
    QAction* saveDelayMenuItem = nullptr;
    QAction* playMenuItem = nullptr;
    QAction* multiplePlayMenuItem = nullptr;
    QMenu* historyMenu = nullptr;
    QAction* saveMacroMenuItem = nullptr;
    QAction* loadMacroMenuItem = nullptr;
    QAction* preferencesMenuItem = nullptr;
    QMenu* helpMenu = nullptr;
    QAction* documentationMenuItem = nullptr;
    QAction* forumMenuItem = nullptr;
    QAction* keyrillWebsiteMenuItem = nullptr;
    QAction* orlenWebsiteMenuItem = nullptr;
    QAction* supportMenuItem = nullptr;
    QAction* feedbackMenuItem = nullptr;
    QAction* bugMenuItem = nullptr;
    /// Null in builds without the update check.
    QAction* updateMenuItem = nullptr;
    QAction* aboutMenuItem = nullptr;
    QAction* quitMenuItem = nullptr;

  protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    void addMacroItems();
    void addHelpMenu();
};
