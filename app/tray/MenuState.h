// SPDX-License-Identifier: MIT
#pragma once

#include <array>

#include "app/tray/MenuItems.h"

struct MenuItemState {
    bool visible = true;
    bool enabled = true;

    friend bool operator==(const MenuItemState&, const MenuItemState&) = default;
};

/// What is shown and what can be chosen.
struct MenuState {
    /// In the order of menuRows.
    std::array<MenuItemState, menuRows.size()> items;
    /// Whether the prompt's button and Return play.
    bool promptPlays = true;
    /// Whether the overlay is on the screen: its text is nobody's business while the screen is locked.
    bool overlayVisible = false;

    friend bool operator==(const MenuState&, const MenuState&) = default;
};

MenuState menuState(const MenuFacts& facts);
