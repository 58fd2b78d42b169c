// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "desktop/Desktop.h"

/// The user's mouse at the program's icon in the tray. A tray of status notifier items draws the menu itself
/// when the icon is clicked with the right button; else the menu is the program's own.
class StatusMenuClicks {
  public:
    /// Waits until the icon is in the tray.
    explicit StatusMenuClicks(const Desktop& desktop);

    /// Clicks the icon and waits for the menu.
    void open();
    /// Clicks the n-th entry, 1 and up, of the open menu; entries before it are no lines. Waits until the
    /// menu is closed.
    void choose(int entry);
    void chooseLast();
    /// The same by arrow keys, for the n-th of those entries that can be chosen; then the further keys.
    void chooseByKeys(int entry, const std::vector<std::string>& then = {"Return"});

    bool isOpen() const { return menu().has_value(); }

  private:
    bool isDrawnByTray() const { return m_desktop.tray().kind() == TrayKind::statusNotifier; }
    std::optional<ScreenWindow> icon() const;
    std::optional<ScreenWindow> menu() const;
    void chooseAt(int y);
    void awaitClosed() const;

    const Desktop& m_desktop;
    ScreenWindow m_menu;
};
