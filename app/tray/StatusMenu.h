// SPDX-License-Identifier: MIT
#pragma once

#include <QMenu>
#include <array>

#include "app/tray/MenuItems.h"

struct MenuState;

/// The status item's menu: menuRows on the screen. The controller connects the items; what they look like
/// comes from a MenuState. Until the first one, everything is shown.
class StatusMenu : public QMenu {
    Q_OBJECT

  public:
    StatusMenu();

    void apply(const MenuState& state);

    /// The item of the row with that index in menuRows; null if the build does not offer it.
    QAction* item(std::size_t index) const { return m_items.at(index); }

  signals:
    /// The program's own menu window is on the screen, or no more. Nothing of a menu that the tray draws: not
    /// every tray says when it closes one.
    void shown(bool open);

  protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    using Items = std::array<QAction*, menuRows.size()>;

    Items makeItems();

    Items m_items;

  public:
    // Those that are spoken of by name.
    QAction* const recordMenuItem = item(menuIndex("record"));
    QAction* const stopMenuItem = item(menuIndex("stop"));
    QAction* const saveDelayMenuItem = item(menuIndex("saveDelay"));
    QAction* const playMenuItem = item(menuIndex("play"));
    QAction* const multiplePlayMenuItem = item(menuIndex("multiplePlay"));
    QMenu* const historyMenu = item(menuIndex("history"))->menu();
    QAction* const saveMacroMenuItem = item(menuIndex("saveMacro"));
    QMenu* const helpMenu = item(menuIndex("help"))->menu();
};
