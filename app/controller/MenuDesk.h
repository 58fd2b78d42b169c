// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>

#include "app/tray/MenuState.h"
#include "app/tray/StatusItem.h"
#include "app/tray/StatusMenu.h"

class Gate;
class MacroMenuItem;
struct HistoryEntry;

/// The status item's menu: what the program's state makes of it, and its history.
class MenuDesk {
  public:
    /// `applied` is told each state that the menu has taken. The item outlives the desk.
    MenuDesk(StatusItem& item, std::function<void(const MenuState&)> applied);

    StatusMenu menu;
    StatusImage image = StatusImage::busy;

    /// Puts the status item onto the screen.
    void showBusy();
    void showNormal();

    void recordingBegins();
    void overlayIsShown();
    void recordingEnds();
    /// Takes over whether commands may be given. The menu follows with the next update().
    void follow(const Gate& gate);
    /// A new line of the history, in that place from the top.
    MacroMenuItem* addToHistory(const HistoryEntry& entry, std::size_t index);
    void removeFromHistory(int macroId);
    /// Shows the state; also needed when the current macro has become another.
    void update();

    /// As of the latest change, with the current macro of the latest update().
    MenuState state() const { return menuState(m_facts); }
    /// What that state comes from.
    const MenuFacts& facts() const { return m_facts; }
    bool isOverlayShown() const { return m_facts.overlayShown; }

  private:
    StatusItem& m_item;
    std::function<void(const MenuState&)> m_applied;
    MenuFacts m_facts;
};
