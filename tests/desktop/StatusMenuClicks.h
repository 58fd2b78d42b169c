// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "desktop/Desktop.h"

/// The user's mouse at the program's icon in the tray.
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

  private:
    struct Area {
        int x = 0;
        int y = 0;
        int width = 0;
        int height = 0;
    };
    Area areaOf(const std::string& window) const;
    void chooseAt(int y);
    void click(int x, int y) const;

    const Desktop& m_desktop;
    std::string m_icon;
    std::string m_menu;
};
