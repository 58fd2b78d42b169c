// SPDX-License-Identifier: MIT
#pragma once

/// What the menu and the prompt depend on.
struct MenuFacts {
    bool recording = false;
    /// Whether a recording has been stopped since the program started, also one without actions.
    bool hasStopped = false;
    bool overlayShown = false;
    /// Whether there is a current macro to play.
    bool hasMacro = false;
    bool hasHistory = false;

    friend bool operator==(const MenuFacts&, const MenuFacts&) = default;
};

struct MenuItemState {
    bool visible = true;
    bool enabled = true;

    friend bool operator==(const MenuItemState&, const MenuItemState&) = default;
};

/// What is shown and what can be chosen.
struct MenuState {
    MenuItemState record;
    MenuItemState stop;
    MenuItemState saveDelay;
    MenuItemState play;
    MenuItemState multiplePlay;
    MenuItemState history;
    /// Whether the prompt's button and Return play.
    bool promptPlays = true;

    friend bool operator==(const MenuState&, const MenuState&) = default;
};

MenuState menuState(const MenuFacts& facts);
